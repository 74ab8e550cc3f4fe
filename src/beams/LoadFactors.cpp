#include "beams/LoadFactors.h"

#include "beams/BeamLabels.h"

namespace forcelab::beams {

namespace {

/// Deletes all loads for good where they are of the other kind.
bool ForgetLoads(BeamRecord& beam, bool factored)
{
    if (!AskLoadFactors(beam, factored)) return false;
    beam.LoadCount = 0;
    MakeLabels(beam);
    for (auto& factor : beam.LoadUnitFactor) factor = {};
    return true;
}

} // namespace

double FactoredMagnitude(const BeamRecord& beam, int row)
{
    const auto& magnitude = beam.LoadMagnitude[row];
    return magnitude[kDead] * beam.DeadFactor + magnitude[kLive] * beam.LiveFactor;
}

std::optional<Refusal> AskLoadFactors(const BeamRecord& beam, bool factored)
{
    if (beam.FactoredLoads == factored || beam.LoadCount == 0) return std::nullopt;
    const std::string change = factored ? "from unfactored loads to factored loads"
                                        : "from factored loads to unfactored loads";
    return Refusal{kStopOkCancel, "Load Data Warning",
                   "If you change " + change +
                       " at this time, all previously entered loads will be deleted.",
                   ""};
}

bool UseLoadFactors(BeamRecord& beam, int set)
{
    const bool deleted = ForgetLoads(beam, true);
    beam.FactoredLoads = true;
    beam.DeadFactor = kFactorSets.at(set).Dead;
    beam.LiveFactor = kFactorSets.at(set).Live;
    // Rows above LoadCount too, so that redo brings none back with the factors of before.
    for (int row = 1; row <= kMaxLoads; ++row)
        beam.LoadMagnitude[row][kFactored] = FactoredMagnitude(beam, row);
    return deleted;
}

bool UseUnfactoredLoads(BeamRecord& beam)
{
    const bool deleted = ForgetLoads(beam, false);
    beam.FactoredLoads = false;
    return deleted;
}

} // namespace forcelab::beams
