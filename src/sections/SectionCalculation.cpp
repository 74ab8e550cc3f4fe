#include "sections/SectionCalculation.h"

#include "core/ArithmeticFault.h"
#include "core/Modulus.h"
#include "core/NumericText.h"
#include "core/Units.h"
#include "sections/SectionSums.h"
#include "sections/ShapeCatalogue.h"

#include <algorithm>
#include <cmath>

namespace forcelab::sections {

namespace {

constexpr std::array kBothColumns{Column::Zz, Column::Yy};

/// Steel shapes that take everything from their table; the others need the side on which the heel
/// lies, and their sums first.
bool IsFromTableAlone(int shape)
{
    return shape == kSteelW || shape == kSteelTS || shape == kSteelPipe;
}

bool IsFromTableAfterSums(int shape)
{
    return IsSteel(shape) && !IsFromTableAlone(shape);
}

/// Row 0 of the first four columns, rows 3 and 4 of the others.
void StoreModuli(SectionRecord& record, const Moduli& moduli)
{
    for (int column = 1; column <= 2; ++column) {
        record.At(int(Row::Modulus), column) = moduli.Entered[0];
        record.At(int(Row::Modulus), column + 2) = moduli.Psi[0];
        for (int material = 1; material <= 2; ++material) {
            const int row = int(CompositeRow::ModulusA) + material - 1;
            record.At(row, column + 4) = moduli.Entered[material];
            record.At(row, column + 6) = moduli.Psi[material];
        }
    }
}

/// A row that is brought to inches, by its power of length.
struct RowPower {
    Row Which;
    int Power;
};
// The principal angle and its sense are not among them: rows 17 and 18 of columns 3 and 4 keep
// what a steel shape left there. Readers take the angle from columns 1 and 2.
constexpr RowPower kOneMaterial[]{
    {Row::LowEdge, 1},
    {Row::HighEdge, 1},
    {Row::Area, 2},
    {Row::Inertia, 4},
    {Row::SmallestSectionModulus, 3},
    {Row::SectionModulusLow, 3},
    {Row::SectionModulusHigh, 3},
    {Row::RadiusOfGyration, 1},
    {Row::PlasticModulus, 3},
    {Row::ShapeFactor, 0},
    {Row::PlasticAxisLow, 1},
    {Row::PlasticAxisHigh, 1},
    {Row::PolarMoment, 4},
    {Row::ProductOfInertia, 4},
    {Row::LargestPrincipal, 4},
    {Row::SmallestPrincipal, 4},
};

struct CompositeRowPower {
    CompositeRow Which;
    int Power;
};
// The moduli are copied as entered over the psi that stood in columns 7 and 8. Beams and columns
// read them there, and so take them as psi whatever their unit.
constexpr CompositeRowPower kTwoMaterials[]{
    {CompositeRow::LowEdge, 1},    {CompositeRow::HighEdge, 1},    {CompositeRow::ModulusA, 0},
    {CompositeRow::ModulusB, 0},   {CompositeRow::RatioBToA, 0},   {CompositeRow::AreaAsA, 2},
    {CompositeRow::InertiaAsA, 4}, {CompositeRow::GyrationAsA, 1}, {CompositeRow::RatioAToB, 0},
    {CompositeRow::AreaAsB, 2},    {CompositeRow::InertiaAsB, 4},  {CompositeRow::GyrationAsB, 1},
};

template <std::size_t Rows, class Power>
void ConvertRows(SectionRecord& record, const Power (&rows)[Rows], int firstColumn, double inches)
{
    const double squared = inches * inches;
    const std::array<double, 5> factors{1, inches, squared, squared * inches, squared * squared};
    for (const Power& row : rows)
        for (int column = firstColumn; column < firstColumn + 2; ++column)
            record.At(int(row.Which), column + 2) =
                record.At(int(row.Which), column) * factors[row.Power];
}

/// The columns and the corners in inches.
void ConvertToInches(CrossSection& section, double inches)
{
    if (section.CompositeSection)
        ConvertRows(section.Record, kTwoMaterials, int(Column::CompositeZz), inches);
    else
        ConvertRows(section.Record, kOneMaterial, int(Column::Zz), inches);
    for (int k = 0; k < kElements; ++k) {
        const Corners& e = section.ElementCorners[k];
        section.ElementCornersInches[k] = {e.Left * inches, e.Bottom * inches, e.Right * inches,
                                           e.Top * inches};
    }
}

void CopyColours(CrossSection& section, const SectionEntry& entry)
{
    for (int k = 0; k < kElements; ++k)
        if (section.Shown[k]) section.ElementColour[k] = entry.Swatch[k];
}

void SumUp(CrossSection& section, const SectionEntry& entry, const Moduli& moduli)
{
    if (section.ShapeIndex == kCircle || section.ShapeIndex == kPipe)
        return CircularShapeProperties(section);
    if (section.ShapeIndex == kSpecified) return UserDefinedSectionProperties(section, entry);
    CopyColours(section, entry);
    if (section.CompositeSection)
        ComputeComposite(section, moduli);
    else
        ComputeHomogeneous(section);
}

/// Throws ArithmeticFault where anything that was computed is not finite.
void RequireFinite(const CrossSection& section)
{
    for (int row = 0; row <= int(Row::PrincipalSense); ++row)
        for (int column = 1; column <= 8; ++column) Finite(section.Record.At(row, column));
    for (const auto& row : section.Details)
        for (const double cell : row) Finite(cell);
    for (const Corners& e : section.ElementCornersInches)
        for (const double side : {e.Left, e.Bottom, e.Right, e.Top}) Finite(side);
    for (const double end : section.PrincipalAxisEnds) Finite(end);
}

/// The inner circle of a pipe takes away what the outer one has too much.
struct Ring {
    double Outer;
    double Inner;
    [[nodiscard]] double Difference(int power) const
    {
        return std::pow(Outer, power) - std::pow(Inner, power);
    }
};

void FillRoundColumn(SectionRecord& record, Column column, const Ring& ring)
{
    const double radius = ring.Outer / 2;
    const double inertia = kPi / 64 * ring.Difference(4);
    record(Row::LowEdge, column) = record(Row::HighEdge, column) = radius;
    record(Row::Area, column) = kPi / 4 * ring.Difference(2);
    record(Row::Inertia, column) = inertia;
    record(Row::PlasticModulus, column) = ring.Difference(3) / 6;
    FillModuliAndGyration(record, column);
    record(Row::ShapeFactor, column) =
        record(Row::PlasticModulus, column) / record(Row::SmallestSectionModulus, column);
    record(Row::PlasticAxisLow, column) = record(Row::PlasticAxisHigh, column) = radius;
    record(Row::PolarMoment, column) = 2 * inertia;
    record(Row::ProductOfInertia, column) = 0;
    record(Row::LargestPrincipal, column) = record(Row::SmallestPrincipal, column) = inertia;
    record(Row::PrincipalAngle, column) = 0;
    record(Row::PrincipalSense, column) = 1;
}

/// The row of one circle; the inner one of a pipe has negative area. Each lever is that of the
/// circle by itself, measured from its own edge.
void FillCircleDetails(std::array<double, 39>& row, double diameter, double sign)
{
    const double area = sign * kPi / 4 * diameter * diameter;
    const double inertia = sign * kPi / 64 * std::pow(diameter, 4);
    row[1] = area;
    row[2] = diameter / 2;
    row[3] = area * diameter / 2;
    row[4] = inertia;
    row[5] = row[6] = 0;
    row[7] = row[4] + row[6];
    for (const int first : {29, 34}) {
        row[first] = row[first + 2] = area / 2;
        row[first + 1] = row[first + 3] = 4 * diameter / 6 / kPi;
        row[first + 4] = sign * std::pow(diameter, 3) / 6;
    }
}

} // namespace

Moduli ReadModuli(const SectionEntry& entry)
{
    Moduli moduli;
    for (int i = 0; i < 3; ++i) {
        const double typed = std::abs(StringValue(entry.Modulus[i]));
        moduli.Entered[i] = typed == 0 ? 1 : typed;
        moduli.Psi[i] = moduli.Entered[i] * ElasticModulusFactor(entry.ModulusUnit);
    }
    return moduli;
}

void FillModuliAndGyration(SectionRecord& record, Column column)
{
    const double low = record(Row::LowEdge, column);
    const double high = record(Row::HighEdge, column);
    const double inertia = record(Row::Inertia, column);
    record(Row::SmallestSectionModulus, column) = inertia / (low > high ? low : high);
    record(Row::SectionModulusLow, column) = inertia / low;
    record(Row::SectionModulusHigh, column) = inertia / high;
    record(Row::RadiusOfGyration, column) = std::sqrt(inertia / record(Row::Area, column));
}

void ComputeSection(CrossSection& section, const SectionEntry& entry)
{
    section.Details = {};
    section.ModulusUnit = entry.ModulusUnit;
    if (IsFromTableAlone(section.ShapeIndex)) {
        ApplySteelTable(section, entry);
    } else {
        const Moduli moduli = ReadModuli(entry);
        StoreModuli(section.Record, moduli);
        SumUp(section, entry, moduli);
        if (IsFromTableAfterSums(section.ShapeIndex))
            ApplySteelTable(section, entry);
        else
            ConvertToInches(section, LengthFactorInMm(entry.LengthUnit));
    }
    RequireFinite(section);
}

void CircularShapeProperties(CrossSection& section)
{
    const bool pipe = section.ShapeIndex == kPipe;
    const double outer = section.ElementDims[0][0];
    const double inner = pipe ? section.ElementDims[0][1] : 0;
    const Ring ring{outer, inner};
    for (const Column column : kBothColumns) FillRoundColumn(section.Record, column, ring);

    section.ElementColour[0] = IndexedColour(8);
    if (pipe) section.ElementColour[1] = IndexedColour(15);

    DetailTable& details = section.Details;
    FillCircleDetails(details[1], outer, 1);
    if (pipe) FillCircleDetails(details[2], inner, -1);
    for (const int column : {1, 3, 7, 33, 38})
        details[0][column] = details[1][column] + details[2][column];
    for (const int column : {4, 29, 34}) details[0][column] = outer / 2;
}

void UserDefinedSectionProperties(CrossSection& section, const SectionEntry& entry)
{
    /// Where a box goes; c1 is to the low edge, c2 to the high one.
    struct Place {
        Row Which;
        Column Where;
        int Box;
    };
    constexpr Place kPlaces[]{
        {Row::LowEdge, Column::Zz, 3}, {Row::HighEdge, Column::Zz, 1}, {Row::Area, Column::Zz, 6},
        {Row::LowEdge, Column::Yy, 2}, {Row::HighEdge, Column::Yy, 0}, {Row::Area, Column::Yy, 6},
        {Row::Inertia, Column::Zz, 4}, {Row::Inertia, Column::Yy, 5},
    };
    SectionRecord& record = section.Record;
    std::copy_n(entry.Swatch.begin(), 4, section.ElementColour.begin());
    for (const Place& place : kPlaces)
        record(place.Which, place.Where) = StringValue(entry.Box[place.Box]);
    const double polar = record(Row::Inertia, Column::Zz) + record(Row::Inertia, Column::Yy);
    for (const Column column : kBothColumns) {
        FillModuliAndGyration(record, column);
        for (int row = int(Row::PlasticModulus); row <= int(Row::PrincipalSense); ++row)
            record.At(row, int(column)) = 0;
        record(Row::PolarMoment, column) = polar;
    }
}

} // namespace forcelab::sections
