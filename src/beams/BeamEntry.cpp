#include "beams/BeamEntry.h"

#include "beams/BeamLabels.h"
#include "beams/LoadFactors.h"
#include "beams/LoadPlaces.h"
#include "core/ArithmeticFault.h"
#include "core/MainModule.h"
#include "core/NumericText.h"
#include "core/Units.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace forcelab::beams {

namespace {

constexpr int kEnteredByHand = 4000;
constexpr std::string_view kPanelMask = "########0.000###";

double Size(const std::string& text)
{
    return std::abs(StringValue(text));
}

const std::string& EndText(const LoadText& text)
{
    return FamilyOf(text.Type) == kUniformLoad ? text.End : text.Start;
}

std::optional<Refusal> CheckLoadLimit(const BeamRecord& beam)
{
    if (beam.LoadCount < kMaxLoads) return std::nullopt;
    return Refusal{kStop, "Too Many Specified Loads",
                   "Forcelab accepts only " + Format(kMaxLoads, "#00") +
                       " loads on the determinate beam.  ",
                   ""};
}

void StoreMagnitudes(BeamRecord& beam, int row, double w1, double w2)
{
    auto& magnitude = beam.LoadMagnitude[row];
    if (!beam.FactoredLoads) {
        magnitude[kUnfactored] = magnitude[kService] = w1;
        return;
    }
    magnitude[kDead] = w1;
    magnitude[kLive] = w2;
    magnitude[kService] = w1 + w2;
    magnitude[kFactored] = FactoredMagnitude(beam, row);
}

} // namespace

std::optional<Refusal> CheckLoadLocation(const BeamRecord& beam, const LoadText& text)
{
    const double factor = LengthFactor(text.LengthUnit);
    for (const std::string& x : {text.Start, EndText(text)})
        if (IsBeyondEnd(beam, Size(x) * factor, factor))
            return Refusal{kStop, "Load Location Error",
                           "The x-coordinate entered for the load location" + MainModule::CrLf +
                               "does not fall within the specified beam length.",
                           ""};
    return std::nullopt;
}

std::optional<Refusal> EnterLoad(BeamRecord& beam, const LoadText& text)
{
    if (auto refusal = CheckLoadLocation(beam, text)) return refusal;
    if (auto refusal = CheckLoadLimit(beam)) return refusal;
    ++beam.LoadCount;
    EnterLoadData(beam, text, beam.LoadCount);
    beam.CurrentLoad = beam.LoadCount + 1;
    beam.DiagramEntry = kEnteredByHand;
    return std::nullopt;
}

void EnterLoadData(BeamRecord& beam, const LoadText& text, int row)
{
    const bool factored = beam.FactoredLoads;
    StoreBeamLoad(beam, row,
                  {text.Type, Size(text.Start), Size(EndText(text)), text.LengthUnit,
                   Size(text.Magnitude[factored ? 1 : 0]), factored ? Size(text.Magnitude[2]) : 0,
                   text.MagnitudeUnit});
    AlignLoads(beam);
    MakeLabels(beam);
}

void StoreBeamLoad(BeamRecord& beam, int row, const LoadNumbers& load)
{
    const int family = FamilyOf(load.Type);
    const double length = LengthFactor(load.LengthUnit);
    const double unit = MagnitudeFactor(family, load.LoadUnit);
    const double sign = IsNegativeType(load.Type) ? -1 : 1;
    beam.LoadType[row] = load.Type;
    beam.LoadClass[row] = family;
    beam.LoadX[row][1] = std::abs(load.X1) * length;
    beam.LoadX[row][2] = std::abs(family == kUniformLoad ? load.X2 : load.X1) * length;
    beam.LoadUnitIndex[row][1] = load.LengthUnit;
    beam.LoadUnitFactor[row][1] = length;
    beam.LoadUnitIndex[row][2] = load.LoadUnit;
    beam.LoadUnitFactor[row][2] = unit;
    StoreMagnitudes(beam, row, sign * std::abs(load.W1) * unit, sign * std::abs(load.W2) * unit);
}

void DeleteLoad(BeamRecord& beam, int row, int last)
{
    for (int k = row + 1; k <= last; ++k) {
        beam.LoadType[k - 1] = beam.LoadType[k];
        beam.LoadClass[k - 1] = beam.LoadClass[k];
        beam.LoadX[k - 1] = beam.LoadX[k];
        beam.LoadUnitIndex[k - 1] = beam.LoadUnitIndex[k];
        beam.LoadUnitFactor[k - 1] = beam.LoadUnitFactor[k];
        beam.LoadMagnitude[k - 1] = beam.LoadMagnitude[k];
    }
}

void EditLoad(BeamRecord& beam, const LoadText& text)
{
    EnterLoadData(beam, text, beam.CurrentLoad);
}

void DeleteCurrentLoad(BeamRecord& beam)
{
    DeleteLoad(beam, beam.CurrentLoad, beam.LoadCount);
    --beam.LoadCount;
    MakeLabels(beam);
}

bool HasPreviousLoad(const BeamRecord& beam)
{
    return beam.LoadCount > 0 && beam.CurrentLoad > 1;
}

bool HasNextLoad(const BeamRecord& beam)
{
    return beam.CurrentLoad < beam.LoadCount;
}

bool MoveCurrentLoad(BeamRecord& beam, int direction)
{
    const bool forward = direction == 1;
    if (!(forward ? HasNextLoad(beam) : HasPreviousLoad(beam))) return false;
    // After deletions and undo the counter may stand far above the loads that are left.
    beam.CurrentLoad =
        forward ? beam.CurrentLoad + 1 : std::min(beam.CurrentLoad - 1, beam.LoadCount);
    return true;
}

bool UndoLoad(BeamRecord& beam)
{
    if (beam.LoadCount < 1) return false;
    --beam.LoadCount;
    MakeLabels(beam);
    return true;
}

bool RedoLoad(BeamRecord& beam)
{
    if (beam.LoadCount >= kMaxLoads || beam.LoadUnitFactor[beam.LoadCount + 1][1] <= 0)
        return false;
    ++beam.LoadCount;
    AlignLoads(beam);
    MakeLabels(beam);
    return true;
}

LoadText ShowBeamLoad(const BeamRecord& beam)
{
    const int row = beam.CurrentLoad;
    const auto text = [](double value, double factor) {
        return Format(std::abs(value) / factor, kPanelMask);
    };
    const auto& unit = beam.LoadUnitFactor[row];
    LoadText panel;
    panel.Type = beam.LoadType[row];
    panel.Start = text(beam.LoadX[row][1], unit[1]);
    if (beam.LoadClass[row] == kUniformLoad) panel.End = text(beam.LoadX[row][2], unit[1]);
    const auto& magnitude = beam.LoadMagnitude[row];
    if (!beam.FactoredLoads)
        panel.Magnitude[0] = text(magnitude[kUnfactored], unit[2]);
    else
        for (int box : {1, 2}) panel.Magnitude[box] = text(magnitude[kService + box], unit[2]);
    panel.LengthUnit = beam.LoadUnitIndex[row][1];
    panel.MagnitudeUnit = beam.LoadUnitIndex[row][2];
    return panel;
}

void StartLoads(BeamRecord& beam)
{
    beam.LoadCount = 0;
    beam.FactoredLoads = false;
    MakeLabels(beam);
}

void RequireFinite(const BeamRecord& beam)
{
    for (const double length : {beam.BeamLength, beam.SupportA, beam.SupportB}) Finite(length);
    for (int row = 1; row <= beam.LoadCount; ++row) {
        for (const double x : beam.LoadX[row]) Finite(x);
        for (const double magnitude : beam.LoadMagnitude[row]) Finite(magnitude);
    }
}

} // namespace forcelab::beams
