#include "beams/BeamTexts.h"

#include "core/NumericText.h"
#include "core/Units.h"

#include <cmath>

namespace forcelab::beams {

namespace {

constexpr std::string_view kPositionMask = "######0.0#";

/// A reaction with its direction; its text carries the size.
std::string Line(const std::string& name, const std::string& size, std::string_view unit,
                 std::string_view direction)
{
    return name + " = " + size + " " + std::string(unit) + " " + std::string(direction);
}

} // namespace

double SlopeScale(const DiagramUnits& units)
{
    return 1 / AngleFactor(units.Slope) / units.BeamEI;
}

double DeflectionScale(const DiagramUnits& units)
{
    return 1 / LengthFactorInMm(units.Deflection) / units.BeamEI;
}

std::string LengthText(double x, const DiagramUnits& units)
{
    return Format(x / LengthFactor(units.Length), kPositionMask);
}

std::string PlainText(double value)
{
    return FormatValue(value, 1, true).Joined();
}

std::string ForceText(double force, const DiagramUnits& units)
{
    return PlainText(force / ForceFactor(units.Force));
}

std::string MomentText(double moment, const DiagramUnits& units)
{
    return PlainText(moment / MomentFactor(units.Moment));
}

std::string SmallText(double scaled)
{
    struct Places {
        double From;
        int Decimals;
    };
    // From a million and up to a thousandth FormatValue scales to 1 to 1000.
    constexpr std::array<Places, 5> kPlaces{{{1e6, 3}, {100, 1}, {1, 3}, {0.001, 5}, {0, 2}}};
    const double size = std::abs(scaled);
    for (const Places& places : kPlaces)
        if (size > places.From) return FormatValue(scaled, places.Decimals, false).Joined();
    return PlainText(0);
}

std::string SlopeText(double eiSlope, const DiagramUnits& units)
{
    return SmallText(eiSlope * SlopeScale(units));
}

std::string DeflectionText(double eiDeflection, const DiagramUnits& units)
{
    return SmallText(eiDeflection * DeflectionScale(units));
}

std::vector<std::string> FillReactionList(const BeamRecord& beam, const BeamReactions& reactions,
                                          const DiagramUnits& units, int loadCase)
{
    const int c = loadCase;
    std::vector<std::string> lines;
    const auto force = [&](const std::string& name, double value) {
        lines.push_back(Line(name, ForceText(std::abs(value), units), kForceUnits.at(units.Force),
                             value < 0 ? "(down)" : "(up)"));
    };
    const auto moment = [&](const std::string& name, double value) {
        lines.push_back(Line(name, MomentText(std::abs(value), units),
                             kMomentUnits.at(units.Moment), value < 0 ? "(cw)" : "(ccw)"));
    };
    if (beam.SupportType == kTwoSupports || beam.SupportType == kFixedLeft)
        force("A", reactions.ReactionA[c]);
    if (beam.SupportType == kFixedLeft) moment("MA", reactions.MomentA[c]);
    if (beam.SupportType == kTwoSupports || beam.SupportType == kFixedRight)
        force("B", reactions.ReactionB[c]);
    if (beam.SupportType == kFixedRight) moment("MB", reactions.MomentB[c]);
    return lines;
}

} // namespace forcelab::beams
