#pragma once

#include "core/Narration.h"
#include "truss/TrussSolver.h"

namespace forcelab::truss {

/// True where the three equations of the whole truss give all its reactions.
bool HasThreeReactions(const TrussResults& results);

/// Explains the reactions of a truss with three of them; of any other, why they come later.
void ExplainReactions(Narration& text, const TrussModel& model, const TrussResults& results);

/// The sums of all loads and reactions, and of their moments, which must vanish.
void ExplainGlobalChecks(Narration& text, const TrussModel& model, const TrussResults& results);

} // namespace forcelab::truss
