#include "beams/StressPoint.h"

#include <algorithm>
#include <cmath>

namespace forcelab::beams {

using sections::CrossSection;

namespace {

constexpr int kRows = 26; // of the section record
constexpr int kColumns = 9;
constexpr double kLeastSteps = 100;
constexpr double kMostPlace = 1e6; // a centroid far outside its section needs no finer bar
constexpr double kSlack = 1e-9;    // of a step: 0.3 / 0.1 is 2.9999999999999996 in doubles

bool IsSameRecord(const CrossSection& one, const CrossSection& other)
{
    for (int row = 0; row < kRows; ++row)
        for (int column = 0; column < kColumns; ++column)
            if (one.Record.At(row, column) != other.Record.At(row, column)) return false;
    return true;
}

int Place(double steps)
{
    return static_cast<int>(std::clamp(steps, -kMostPlace, kMostPlace));
}

} // namespace

bool HasStressSection(const CrossSection& section)
{
    // A shape that was only chosen still has the properties of the one before it.
    if (section.ShapeIndex <= 0 || !section.SectionComputed) return false;
    const StressProperties p = StressPropertiesOf(section);
    return p.Area > 0 && p.Inertia > 0;
}

bool IsSameSection(const CrossSection& one, const CrossSection& other)
{
    return one.ShapeIndex == other.ShapeIndex && one.Shown == other.Shown &&
           one.CompositeSection == other.CompositeSection &&
           one.ElementColour == other.ElementColour &&
           one.ElementCornersInches == other.ElementCornersInches && IsSameRecord(one, other);
}

StressDetails ReadDetailsAgain(const CrossSection& section, const DetailsEntry& entry,
                               const StressDetails& before)
{
    StressDetails read = ReadDetails(section, entry);
    const auto shown = CoordTexts(before);
    const double unit = before.LengthUnit() / read.LengthUnit();
    const double z = entry.Coord[0] == shown[0] ? before.PointZ * unit : read.PointZ;
    const double y = entry.Coord[1] == shown[1] ? before.PointY * unit : read.PointY;
    MovePoint(read, z, -y);
    return read;
}

int CoordinateBar::PlaceOf(double coordinate) const
{
    return std::clamp(Place(std::round(coordinate / Step)), First, Last);
}

CoordinateBar CoordinateBarOf(double low, double high)
{
    CoordinateBar bar;
    if (!(high > low)) return bar;
    bar.Step = std::pow(10.0, std::floor(std::log10((high - low) / kLeastSteps)));
    bar.First = Place(std::floor(low / bar.Step + kSlack));
    bar.Last = Place(std::ceil(high / bar.Step - kSlack));
    return bar;
}

} // namespace forcelab::beams
