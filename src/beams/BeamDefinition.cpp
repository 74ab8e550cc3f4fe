#include "beams/BeamEntry.h"

#include "beams/BeamLabels.h"
#include "beams/LoadPlaces.h"
#include "core/MainModule.h"
#include "core/NumericText.h"
#include "core/Units.h"

#include <cmath>
#include <string_view>
#include <utility>

namespace forcelab::beams {

namespace {

constexpr std::string_view kDefinitionMask = "#######0.00####";
const std::string kDefinitionTitle = "Beam Definition Error";

Refusal DefinitionError(const std::string& text, const std::string& focus)
{
    return {kStop, kDefinitionTitle, text, focus};
}

double Typed(const std::string& text)
{
    return std::abs(ParseNumber(text));
}

/// Reads both supports in the units typed; the boxes are written back as far as it gets.
std::optional<Refusal> ReadSupports(BeamRecord& beam, DefinitionText& text)
{
    beam.SupportA = Typed(text.Left);
    text.Left = Format(beam.SupportA, kDefinitionMask);
    beam.SupportB = Typed(text.Right);
    if (beam.SupportA == beam.SupportB)
        return DefinitionError("Both supports cannot be at the same location.", "txtRightSimple");
    // The left box keeps what was typed there, even where the supports change places.
    if (beam.SupportA > beam.SupportB) std::swap(beam.SupportA, beam.SupportB);
    text.Right = Format(beam.SupportB, kDefinitionMask);
    const bool leftIsOff = beam.SupportA > beam.BeamLength;
    if (leftIsOff || beam.SupportB > beam.BeamLength)
        return DefinitionError("The location specified for the support" + MainModule::CrLf +
                                   "is not within the length of the beam.",
                               leftIsOff ? "txtLeftSimple" : "txtRightSimple");
    return std::nullopt;
}

std::optional<Refusal> ReadDefinition(BeamRecord& beam, DefinitionText& text)
{
    beam.BeamLength = Typed(text.Length);
    text.Length = Format(beam.BeamLength, kDefinitionMask);
    if (beam.BeamLength == 0)
        return DefinitionError("Enter a non-zero length for the beam.", "txtBeamLength");
    if (beam.SupportType == kTwoSupports) return ReadSupports(beam, text);
    beam.SupportA = 0;
    beam.SupportB = beam.BeamLength;
    return std::nullopt;
}

void SetUnit(BeamRecord& beam, int unit)
{
    beam.BeamLengthUnit = unit;
    beam.BeamLengthFactor = LengthFactor(unit);
    beam.BeamLength *= beam.BeamLengthFactor;
    beam.SupportA *= beam.BeamLengthFactor;
    beam.SupportB *= beam.BeamLengthFactor;
}

bool ReachesBeyondEnd(const BeamRecord& beam, int row)
{
    const auto& x = beam.LoadX[row];
    const double unit = beam.LoadUnitFactor[row][1];
    return IsBeyondEnd(beam, x[1], unit) ||
           (beam.LoadClass[row] == kUniformLoad && IsBeyondEnd(beam, x[2], unit));
}

/// Deletes the loads beyond the beam's end; returns how many there were.
int DeleteLoadsBeyondEnd(BeamRecord& beam)
{
    int deleted = 0;
    for (int i = 1; i <= beam.LoadCount; ++i) {
        if (!ReachesBeyondEnd(beam, i - deleted)) continue;
        DeleteLoad(beam, i - deleted, beam.LoadCount);
        ++deleted;
    }
    beam.LoadCount -= deleted;
    return deleted;
}

Refusal DeletionNotice()
{
    const std::string& line = MainModule::CrLf;
    return {kStop, kDefinitionTitle,
            "Some of the previously specified loads do" + line +
                "not fall within the specified beam length." + line + line +
                "These loads will be deleted.",
            ""};
}

} // namespace

Definition DefineBeam(BeamRecord& beam, DefinitionText& text, int lengthUnit)
{
    Definition result;
    result.Refused = ReadDefinition(beam, text);
    if (result.Refused) return result;
    SetUnit(beam, lengthUnit);
    if (beam.LoadCount == 0) return result;
    if (DeleteLoadsBeyondEnd(beam) > 0) result.Notice = DeletionNotice();
    AlignLoads(beam);
    MakeLabels(beam);
    return result;
}

void SetBeamGeometry(BeamRecord& beam, int type, double length, double a, double b, int unit)
{
    beam.SupportType = type;
    beam.BeamLength = length;
    beam.SupportA = a;
    beam.SupportB = b;
    SetUnit(beam, unit);
}

} // namespace forcelab::beams
