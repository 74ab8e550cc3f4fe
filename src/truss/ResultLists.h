#pragma once

#include "truss/TrussSolver.h"

namespace forcelab::truss {

/// Fills the lines of the four result lists from forces and reactions.
void FillResultLists(TrussResults& results);

} // namespace forcelab::truss
