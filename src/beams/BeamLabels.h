#pragma once

#include "beams/BeamRecord.h"

#include <string>
#include <vector>

namespace forcelab::beams {

/// Names all loads, counts them by class, fills the list of uniform loads, and gives the lines of
/// cboLoads and cboLoadBackup, one a load, with magnitudes in the units of their entry:
/// "1P = 8. kN (down)" or "1w = 2. kips/ft (D) + 3.kips/ft (L) (down)".
std::vector<std::string> MakeLabels(BeamRecord& beam);

/// "(up)", "(down)", "(ccw)" or "(cw)".
std::string_view DirectionOf(int loadType);

} // namespace forcelab::beams
