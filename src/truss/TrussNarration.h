#pragma once

#include "truss/TrussSolver.h"

#include <string>

namespace forcelab::truss {

/// The method of joints in words and numbers for a truss that was solved: count, reactions from
/// the equilibrium of the whole, directions, zero-force members with the rule that shows each,
/// the equations of one joint after the other with at most two unknowns each, and checks.
///
/// Every line of arithmetic follows from the numbers printed in it. Results are the member forces
/// and reactions of Compute; where these, by the single precision of the unit vectors, differ from
/// a line in the third place, the places that agree are printed.
std::string ExplainTruss(const TrussModel& model, const TrussResults& results);

/// What the shown motion of a truss means: which joints move.
std::string ExplainMotion(const Mechanism& motion);

} // namespace forcelab::truss
