#pragma once

#include "transform/MohrCalculation.h"

#include <string>

namespace forcelab::transform {

/// How the circle, the principal values, the maximum shear, the angles and the rotated state come
/// about, step by step, with the numbers that the pictures show.
std::string ExplainMohr(const StressState& state, const MohrEntry& entry);

} // namespace forcelab::transform
