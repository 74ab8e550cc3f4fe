#pragma once

#include "truss/TrussSolver.h"

namespace forcelab::truss {

/// The motion that the missing member or support allows: displacements of the free directions
/// under which no member changes its length, the null vector of the transposed equilibrium
/// matrix. Of several motions one is given. Where a truss is refused though its members do resist,
/// if barely, the motion that they resist least is given.
///
/// Takes the joints, names and equation numbers of the results. Nothing where nothing can move.
std::optional<Mechanism> FindMechanism(const TrussModel& model, const TrussResults& results);

} // namespace forcelab::truss
