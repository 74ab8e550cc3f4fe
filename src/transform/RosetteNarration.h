#pragma once

#include "core/Narration.h"
#include "transform/MohrCalculation.h"

namespace forcelab::transform {

// The parts of the explanation that differ by what was entered.

/// What was entered, and how a rosette or a shear strain gives the coordinates of the circle.
void ExplainEntries(Narration& text, const StressState& state, const MohrEntry& entry);
/// Where the third principal value comes from.
void ExplainThird(Narration& text, const StressState& state, const MohrEntry& entry);
/// The principal stresses of a rosette, where they are asked for and can be given.
void ExplainHookesLaw(Narration& text, const StressState& state, const MohrEntry& entry);

} // namespace forcelab::transform
