#pragma once

#include "beams/BeamRecord.h"

namespace forcelab::beams {

/// True for a place (in) beyond the beam's end by more than what conversion and rounding leave:
/// 8 ft typed as 2.4384 m is its end, though the doubles differ. `unitFactor` is that of the length
/// unit in which the place was typed.
bool IsBeyondEnd(const BeamRecord& beam, double x, double unitFactor);

/// Puts loads that stand at the beam's end, at a support or at an earlier load, but were typed in
/// another unit, exactly there. The curves know one point there, and a load that starts a billionth
/// of an inch behind it would be missing from its values.
void AlignLoads(BeamRecord& beam);

} // namespace forcelab::beams
