#include "beams/BeamLabels.h"

#include "core/NumericText.h"

namespace forcelab::beams {

namespace {

constexpr std::string_view kMagnitudeMask = "#####.####";

int& CounterOf(BeamRecord& beam, int family)
{
    if (family == kPointLoad) return beam.PointLoadCount;
    return family == kUniformLoad ? beam.UniformLoadCount : beam.MomentLoadCount;
}

/// A magnitude in the unit of its entry, positive in the load's own direction.
std::string MagnitudeText(const BeamRecord& beam, int row, int loadCase)
{
    const double value = beam.LoadMagnitude[row][loadCase] / beam.LoadUnitFactor[row][2];
    return Format(IsNegativeType(beam.LoadType[row]) ? -value : value, kMagnitudeMask);
}

std::string LineOf(const BeamRecord& beam, int row)
{
    const std::string unit(MagnitudeUnit(beam.LoadClass[row], beam.LoadUnitIndex[row][2]));
    const std::string direction(DirectionOf(beam.LoadType[row]));
    const std::string name = beam.LoadName[row] + " = ";
    if (!beam.FactoredLoads)
        return name + MagnitudeText(beam, row, kUnfactored) + " " + unit + " " + direction;
    return name + MagnitudeText(beam, row, kDead) + " " + unit + " (D) + " +
           MagnitudeText(beam, row, kLive) + unit + " (L) " + direction;
}

void NameLoad(BeamRecord& beam, int row)
{
    constexpr std::string_view kLetters = "MPw"; // in the order of LoadFamily
    const int family = FamilyOf(beam.LoadType[row]);
    const int number = ++CounterOf(beam, family);
    beam.LoadName[row] = std::to_string(number) + kLetters[family];
    if (family != kUniformLoad) return;
    beam.UniformMagnitude[number] = beam.LoadMagnitude[row][kUnfactored];
    beam.UniformLoadIndex[number] = row;
}

} // namespace

std::string_view DirectionOf(int loadType)
{
    constexpr std::array<std::string_view, kLoadKinds> kDirections{"(up)",   "(down)", "(up)",
                                                                   "(down)", "(ccw)",  "(cw)"};
    return kDirections.at(loadType);
}

std::vector<std::string> MakeLabels(BeamRecord& beam)
{
    beam.PointLoadCount = beam.UniformLoadCount = beam.MomentLoadCount = 0;
    std::vector<std::string> lines;
    for (int row = 1; row <= beam.LoadCount; ++row) {
        NameLoad(beam, row);
        lines.push_back(LineOf(beam, row));
    }
    return lines;
}

} // namespace forcelab::beams
