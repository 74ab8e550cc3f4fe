#include "beams/DiagramRequest.h"

#include <utility>

namespace forcelab::beams {

namespace {

/// The later choice of an option counts.
void TakeOver(std::optional<int>& unit, const std::optional<int>& later)
{
    if (later) unit = later;
}

std::optional<int> UnlessShown(int unit, int shown)
{
    return unit == shown ? std::nullopt : std::optional(unit);
}

} // namespace

void RequestDiagrams(const DiagramRequest& request)
{
    DiagramRequest& all = PendingDiagrams;
    all.Pictures |= request.Pictures;
    TakeOver(all.LengthUnit, request.LengthUnit);
    TakeOver(all.ForceUnit, request.ForceUnit);
    TakeOver(all.MomentUnit, request.MomentUnit);
    all.ShearMomentView = all.ShearMomentView || request.ShearMomentView;
    all.ListsChanged = all.ListsChanged || request.ListsChanged;
    all.NoLoads = request.ListsChanged ? request.NoLoads : all.NoLoads;
    if (OnDiagramRequest) OnDiagramRequest();
}

DiagramRequest TakeDiagramRequest()
{
    return std::exchange(PendingDiagrams, {});
}

DiagramRequest RequestAfterDefinition(const BeamRecord& beam)
{
    DiagramRequest request;
    request.LengthUnit = beam.BeamLengthUnit;
    request.Pictures = beam.LoadCount > 0 ? kAllPictures : kLoadPicture;
    request.ListsChanged = true;
    request.NoLoads = beam.LoadCount == 0;
    return request;
}

DiagramRequest RequestAfterEntry(const BeamRecord& beam, int row)
{
    DiagramRequest request;
    const int unit = beam.LoadUnitIndex[row][2];
    if (beam.LoadClass[row] == kMomentLoad)
        request.MomentUnit = UnlessShown(unit, ShownDiagramUnits.Moment);
    else // the options for uniform loads have the forces of optForceUnits in its order
        request.ForceUnit = UnlessShown(unit, ShownDiagramUnits.Force);
    request.Pictures = kAllPictures;
    request.ShearMomentView = true;
    request.ListsChanged = true;
    return request;
}

DiagramRequest RequestAfterChange(const BeamRecord& beam)
{
    DiagramRequest request;
    request.Pictures = kAllPictures;
    request.ListsChanged = true;
    request.NoLoads = beam.LoadCount == 0;
    return request;
}

} // namespace forcelab::beams
