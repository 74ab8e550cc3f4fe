#pragma once

#include "transform/MohrCalculation.h"

#include <array>
#include <string>

namespace forcelab::transform {

/// SigmaX, SigmaY and TauXY of the strain state from the three gauge readings EntryA, EntryB,
/// EntryC (elongation positive) of a 0-45-90 or a 0-60-120 rosette. TauXY is minus half the
/// engineering shear strain.
void ReduceRosette(StressState& state);

/// True where E and Poisson's ratio can give stresses; writes both into the state.
bool ReadModuli(StressState& state, const StrainToStress& stresses);

/// Captions of the two frames of stresses: sigma 1, sigma 2 and the maximum shear stress in plane
/// stress by Hooke's law, or the two prompts for E and Poisson's ratio and an empty text.
/// The order is lblStressFromStrains(1), (2), (4).
std::array<std::string, 3> PrincipalStressesFromStrains(StressState& state, const MohrEntry& entry);

} // namespace forcelab::transform
