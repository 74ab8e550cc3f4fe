#pragma once

#include "beams/BeamRecord.h"
#include "core/Refusal.h"

#include <optional>

namespace forcelab::beams {

/// The factors of "1.4D", "1.2D + 1.6L" and "1.4D + 1.7L".
struct FactorSet {
    double Dead, Live;
};
inline constexpr std::array<FactorSet, 3> kFactorSets{{{1.4, 0}, {1.2, 1.6}, {1.4, 1.7}}};

/// Column 5 of a load: dead x DeadFactor + live x LiveFactor.
double FactoredMagnitude(const BeamRecord& beam, int row);

/// The question to ask before load factors come (true) or go (false): all loads would be deleted.
/// Nothing where there are no loads or nothing of the kind changes.
std::optional<Refusal> AskLoadFactors(const BeamRecord& beam, bool factored);

/// Takes the factors of a set. Loads without factors are deleted, and redo has none to bring back;
/// loads with factors stay and get a new column 5. True where loads were deleted.
bool UseLoadFactors(BeamRecord& beam, int set);

/// Goes back to loads without factors; loads with factors are deleted in the same way.
bool UseUnfactoredLoads(BeamRecord& beam);

} // namespace forcelab::beams
