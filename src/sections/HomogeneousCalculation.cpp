#include "core/ArithmeticFault.h"
#include "core/Units.h"
#include "sections/PlasticAxis.h"
#include "sections/SectionSums.h"
#include "sections/ShapeCatalogue.h"

#include <algorithm>
#include <cmath>

namespace forcelab::sections {

namespace {

constexpr double kClockwise = 1;
constexpr double kCounterclockwise = -1;
/// What rounding leaves of a difference that is 0, as a share of what was subtracted.
constexpr double kRounding = 1e-13;

struct Centroid {
    double Area = 0;
    double Z = 0;
    double Y = 0;
};

struct Inertias {
    double Iz = 0;
    double Iy = 0;
    double Iyz = 0;
};

struct Principal {
    double Largest = 0;
    double Smallest = 0;
    double Angle = 0; ///< degrees, with its sign
    double Sense = kClockwise;
};

Centroid FillCentroidColumns(DetailTable& details, const Parts& parts)
{
    std::array<double, 39>& total = details[0];
    for (const Part& part : parts.All()) {
        std::array<double, 39>& row = details[part.Element + 1];
        row[1] = row[8] = part.Area;
        row[2] = part.Z;
        row[3] = part.Area * part.Z;
        row[9] = part.Y;
        row[10] = part.Area * part.Y;
        for (const int column : {1, 3, 8, 10}) total[column] += row[column];
    }
    // Row 0 of the columns of own inertias carries the centroid, which stands beside its sums.
    total[4] = Finite(total[3] / total[1]);
    total[11] = Finite(total[10] / total[8]);
    return {total[1], total[4], total[11]};
}

Inertias FillInertiaColumns(DetailTable& details, const Parts& parts, const Centroid& centroid)
{
    std::array<double, 39>& total = details[0];
    for (const Part& part : parts.All()) {
        std::array<double, 39>& row = details[part.Element + 1];
        row[4] = part.Area * part.Width * part.Width / 12;
        row[5] = part.Z - centroid.Z;
        row[6] = part.Area * row[5] * row[5];
        row[7] = row[4] + row[6];
        row[11] = part.Area * part.Height * part.Height / 12;
        row[12] = part.Y - centroid.Y;
        row[13] = part.Area * row[12] * row[12];
        row[14] = row[11] + row[13];
        row[15] = part.Area * row[5] * row[12];
        for (const int column : {7, 14, 15}) total[column] += row[column];
    }
    return {total[14], total[7], total[15]};
}

/// Takes a product of inertia for 0 where rounding alone can have made it, so that the sense of
/// the angle of a symmetric section does not hang on its last bit.
void DropRounding(DetailTable& details, const Parts& parts, Inertias& inertias)
{
    double scale = 0;
    for (const Part& part : parts.All()) scale += std::abs(part.Area * part.Z * part.Y);
    if (std::abs(inertias.Iyz) > kRounding * scale) return;
    inertias.Iyz = details[0][15] = 0;
}

/// Twice the angle from the z axis to the axis of the largest inertia, degrees. Keeps the sign of
/// the arc tangent where the z axis is the stronger one, though the sense says it once more.
double DoubleAngle(const Inertias& i)
{
    const double half = (i.Iz - i.Iy) * 0.5;
    if (std::abs(half) <= kRounding * (std::abs(i.Iz) + std::abs(i.Iy))) return 90;
    const double arc = std::atan(-i.Iyz / half) * 180 / kPi;
    if (half > 0) return arc;
    return i.Iyz < 0 ? 180 - std::abs(arc) : 180 - arc;
}

Principal PrincipalOf(const Inertias& i)
{
    const double radius = std::hypot(i.Iyz, (i.Iz - i.Iy) / 2);
    const double average = (i.Iz + i.Iy) / 2;
    return {average + radius, average - radius, DoubleAngle(i) / 2,
            i.Iyz < 0 ? kCounterclockwise : kClockwise};
}

/// Ends of the principal axes from the centroid: as long as twice the larger offset of the corner
/// from the origin on which the shape was laid out. A shape that was laid out wholly at positive
/// coordinates, as an L lying on its leg is, has axes of no length, and none are drawn.
std::array<double, 4> AxisEnds(const std::array<double, 2>& corner, const Principal& principal)
{
    const double length = 2 * std::max(-corner[0], -corner[1]);
    const double angle = std::abs(principal.Angle) * kPi / 180;
    const double along = length * std::cos(angle);
    const double across = length * std::sin(angle);
    if (principal.Sense == kClockwise) return {along, -across, across, along};
    return {along, across, -across, along};
}

/// One column of the record, rows 1 to 18, from what holds for its axis.
struct AxisResult {
    double Low;
    double High;
    double Inertia;
    double PlasticModulus;
    double PlasticOffset;
};
void FillColumn(SectionRecord& record, Column column, const AxisResult& axis, double area)
{
    record(Row::LowEdge, column) = axis.Low;
    record(Row::HighEdge, column) = axis.High;
    record(Row::Area, column) = area;
    record(Row::Inertia, column) = axis.Inertia;
    FillModuliAndGyration(record, column);
    record(Row::PlasticModulus, column) = axis.PlasticModulus;
    record(Row::ShapeFactor, column) =
        axis.PlasticModulus / record(Row::SmallestSectionModulus, column);
    record(Row::PlasticAxisLow, column) = axis.Low + axis.PlasticOffset;
    record(Row::PlasticAxisHigh, column) = axis.High - axis.PlasticOffset;
}

void FillPrincipalRows(SectionRecord& record, const Inertias& i, const Principal& principal)
{
    for (const Column column : {Column::Zz, Column::Yy}) {
        record(Row::PolarMoment, column) = i.Iz + i.Iy;
        record(Row::ProductOfInertia, column) = i.Iyz;
        record(Row::LargestPrincipal, column) = principal.Largest;
        record(Row::SmallestPrincipal, column) = principal.Smallest;
        record(Row::PrincipalAngle, column) = principal.Angle;
        record(Row::PrincipalSense, column) = principal.Sense;
    }
}

} // namespace

Parts::Parts(const CrossSection& section)
{
    for (int k = 0; k < kElements; ++k) {
        if (!section.Shown[k]) continue;
        const Corners& e = section.ElementCorners[k];
        const double width = e.Right - e.Left;
        const double height = e.Top - e.Bottom;
        parts_[count_++] = {
            k, width, height, width * height, (e.Left + e.Right) / 2, (e.Bottom + e.Top) / 2};
    }
}

bool IsHollow(const CrossSection& section, int element)
{
    return LayoutOf(section.ShapeIndex) == kBox && element == 1;
}

std::array<double, 2> MoveToFirstQuadrant(CrossSection& section)
{
    std::array<double, 2> corner{};
    for (int k = 0; k < kElements; ++k) {
        if (!section.Shown[k]) continue;
        corner[0] = std::min(corner[0], section.ElementCorners[k].Left);
        corner[1] = std::min(corner[1], section.ElementCorners[k].Bottom);
    }
    for (int k = 0; k < kElements; ++k) {
        if (!section.Shown[k]) continue;
        Corners& e = section.ElementCorners[k];
        e = {e.Left - corner[0], e.Bottom - corner[1], e.Right - corner[0], e.Top - corner[1]};
    }
    return corner;
}

void ComputeHomogeneous(CrossSection& section)
{
    const std::array<double, 2> corner = MoveToFirstQuadrant(section);
    Parts parts(section);
    for (Part& part : parts.All())
        if (IsHollow(section, part.Element)) part.Area = -part.Area;

    const Centroid centroid = FillCentroidColumns(section.Details, parts);
    Inertias i = FillInertiaColumns(section.Details, parts, centroid);
    DropRounding(section.Details, parts, i);
    const Principal principal = PrincipalOf(i);
    section.PrincipalAxisEnds = AxisEnds(corner, principal);

    const PlasticResult p = LocatePlasticNA(section, centroid.Z, centroid.Y, centroid.Area / 2);
    FillColumn(section.Record, Column::Zz,
               {centroid.Y, p.Bounds[3] - p.Bounds[2] - centroid.Y, i.Iz, p.PlasticModulus[1],
                p.PlasticNA[1]},
               centroid.Area);
    FillColumn(section.Record, Column::Yy,
               {centroid.Z, p.Bounds[1] - p.Bounds[0] - centroid.Z, i.Iy, p.PlasticModulus[0],
                p.PlasticNA[0]},
               centroid.Area);
    FillPrincipalRows(section.Record, i, principal);
}

} // namespace forcelab::sections
