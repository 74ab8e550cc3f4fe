#include "beams/PointReadout.h"

#include "core/ArithmeticFault.h"
#include "core/NumericText.h"
#include "core/Units.h"

#include <algorithm>
#include <cmath>

namespace forcelab::beams {

namespace {

constexpr std::string_view kValueMask = "#,###,##0.00";
constexpr std::string_view kBarMask = "###,##0.00#";
constexpr double kMostSteps = 10000;   // of the bar over a beam
constexpr double kFinestStep = 1000;   // steps to a length unit
constexpr double kSlack = 1e-8;        // of a step: 0.3 x 10 is 2.9999999999999996 in doubles
constexpr double kMaskTellsFrom = 1.0; // below, the mask leaves less than three digits

std::string InParentheses(std::string_view unit)
{
    return "(" + std::string(unit) + ")";
}

double LengthInUnits(const BeamRecord& beam, const DiagramUnits& units)
{
    return beam.BeamLength / LengthFactor(units.Length);
}

std::array<double, 2> ShownValues(const PointReadout& point, const DiagramUnits& units)
{
    const BeamValues& at = point.Values;
    if (point.SlopeView)
        return {at.Slope * SlopeScale(units), at.Deflection * DeflectionScale(units)};
    return {at.Shear / ForceFactor(units.Force), at.Moment / MomentFactor(units.Moment)};
}

/// What the noise of a sum of many terms may leave of an EI times slope that is 0: doubles tell no
/// more than about 1e-12 of the largest term, reaction times length squared.
double NoiseOfSlope(const BeamRecord& beam, const BeamReactions& reactions, int loadCase)
{
    const double length = beam.BeamLength;
    const double moments =
        std::abs(reactions.MomentA[loadCase]) + std::abs(reactions.MomentB[loadCase]);
    const double forces =
        std::abs(reactions.ReactionA[loadCase]) + std::abs(reactions.ReactionB[loadCase]);
    return 1e-12 * (forces * length + moments) * length;
}

/// The digits that the mask hides; none where the value is noise.
std::string FinerText(double value, double noise)
{
    const double size = std::abs(value);
    return size < kMaskTellsFrom && size > noise ? SmallText(value) : "";
}

std::array<std::string, 2> FinerTexts(const std::array<double, 2>& shown, double noiseOfSlope,
                                      const BeamRecord& beam, const DiagramUnits& units)
{
    return {FinerText(shown[0], noiseOfSlope * SlopeScale(units)),
            FinerText(shown[1], noiseOfSlope * beam.BeamLength * DeflectionScale(units))};
}

bool HasLength(const BeamRecord& beam)
{
    return beam.SupportType != kNoBeam && beam.BeamLength > 0;
}

/// The values at `wanted`, held inside the beam.
void TakeValues(PointReadout& point, double wanted, const BeamRecord& beam,
                const DiagramUnits& units)
{
    const double x = std::clamp(wanted, 0.0, beam.BeamLength);
    PointReadout result = point;
    if (x != wanted) result.XText = PointText(x, units);
    BeamReactions reactions;
    CalculateReactions(beam, reactions);
    const int loadCase = point.SlopeView ? SlopeDeflectionCase(beam) : ShearMomentCase(beam);
    result.Values = BeamValuesAt(beam, reactions, loadCase, x);
    result.X = x;
    const auto shown = ShownValues(result, units);
    for (int i = 0; i < 2; ++i) result.Texts[i] = Format(shown[i], kValueMask);
    result.Finer = {};
    if (point.SlopeView)
        result.Finer = FinerTexts(shown, NoiseOfSlope(beam, reactions, loadCase), beam, units);
    point = result;
}

} // namespace

void TellPointChanged()
{
    if (OnPointForDetails) OnPointForDetails();
    if (OnPointForDiagrams) OnPointForDiagrams();
}

void ClearPoint(PointReadout& point)
{
    point.X.reset();
    point.Values = {};
    point.Texts = {kNotCalculated, kNotCalculated};
    point.Finer = {};
}

void CalculatePoint(PointReadout& point, const BeamRecord& beam, const DiagramUnits& units)
{
    if (!HasLength(beam)) return ClearPoint(point);
    TakeValues(point, Finite(StringValue(point.XText) * LengthFactor(units.Length)), beam, units);
}

void RenewPoint(PointReadout& point, const BeamRecord& beam, const DiagramUnits& units)
{
    if (!point.X || !HasLength(beam)) return ClearPoint(point);
    TakeValues(point, *point.X, beam, units);
}

PointCaptions CaptionsOfPoint(bool slopeView, const DiagramUnits& units)
{
    const std::string length = InParentheses(kLengthUnits[units.Length]);
    if (slopeView)
        return {"Slope/Deflection Along the Beam",
                "&Slope/Deflect",
                {"Slope", "Deflection"},
                {InParentheses(kSlopeUnits[units.Slope]),
                 InParentheses(kDeflectionUnits[units.Deflection])},
                length};
    return {"Shear/Moment Along the Beam",
            "&Shear/Moment",
            {"Shear Force", "Bending Moment"},
            {InParentheses(kForceUnits[units.Force]), InParentheses(kMomentUnits[units.Moment])},
            length};
}

std::string PointSentence(const PointReadout& point, const DiagramUnits& units)
{
    using Words = std::array<std::string_view, 2>;
    const Words names =
        point.SlopeView ? Words{"slope", "deflection"} : Words{"shear force", "bending moment"};
    const Words captions =
        point.SlopeView ? Words{kSlopeUnits.at(units.Slope), kDeflectionUnits.at(units.Deflection)}
                        : Words{kForceUnits.at(units.Force), kMomentUnits.at(units.Moment)};
    std::string line =
        "At X = " + point.XText + " " + std::string(kLengthUnits.at(units.Length)) + ":";
    for (std::size_t i = 0; i < names.size(); ++i) {
        const std::string& value = point.Finer[i].empty() ? point.Texts[i] : point.Finer[i];
        line += (i == 0 ? " " : ", ") + std::string(names[i]) + " " + value + " " +
                std::string(captions[i]);
    }
    return line;
}

std::optional<std::array<std::string, 2>>
ForcesOfPoint(const PointReadout& point, const BeamRecord& beam, const DiagramUnits& units)
{
    if (!point.X || point.SlopeView) return std::nullopt;
    const double shear = beam.ReverseShearSign ? -point.Values.Shear : point.Values.Shear;
    return std::array{Format(shear / ForceFactor(units.Force), kValueMask),
                      Format(point.Values.Moment / MomentFactor(units.Moment), kValueMask)};
}

double PointStepOf(const BeamRecord& beam, const DiagramUnits& units)
{
    const double length = LengthInUnits(beam, units);
    if (!(length > 0)) return 1;
    return std::min(kFinestStep, std::pow(10.0, std::floor(std::log10(kMostSteps / length))));
}

int PointBarEnd(const BeamRecord& beam, const DiagramUnits& units)
{
    const double steps = LengthInUnits(beam, units) * PointStepOf(beam, units);
    return static_cast<int>(std::ceil(std::min(steps, kMostSteps) - kSlack));
}

int PointBarValue(double x, const BeamRecord& beam, const DiagramUnits& units)
{
    const double steps = x / LengthFactor(units.Length) * PointStepOf(beam, units);
    return static_cast<int>(std::clamp(std::floor(steps + kSlack), 0.0, kMostSteps));
}

std::string PointBarText(int value, const BeamRecord& beam, const DiagramUnits& units)
{
    return Format(value / PointStepOf(beam, units), kBarMask);
}

std::string PointText(double x, const DiagramUnits& units)
{
    return Format(x / LengthFactor(units.Length), kBarMask);
}

std::string PointClickText(double x, const DiagramUnits& units)
{
    return Format(x / LengthFactor(units.Length), kValueMask);
}

} // namespace forcelab::beams
