#include "core/ArithmeticFault.h"
#include "sections/SectionCalculation.h"
#include "sections/ShapeCatalogue.h"

#include <algorithm>

namespace forcelab::sections {

namespace {

constexpr double kSteelModulus = 29000000.0; // psi
constexpr std::array kBothColumns{Column::Zz, Column::Yy};

/// The published values about one axis of a shape.
struct AxisValues {
    double Inertia;
    double SectionModulus;
    double Radius;
    double PlasticModulus;
};
AxisValues StrongAxis(const SteelShape& steel)
{
    return {steel.Ix, steel.Sx, steel.Rx, steel.Zx};
}
AxisValues WeakAxis(const SteelShape& steel)
{
    return {steel.Iy, steel.Sy, steel.Ry, steel.Zy};
}

/// Where the values go: `Strong` is the column of the tables' x axis.
struct Application {
    SectionRecord& Record;
    const SteelShape& Steel;
    Column Strong;
    Column Weak;
};

void FillAxis(SectionRecord& record, Column column, const AxisValues& values)
{
    record(Row::Inertia, column) = values.Inertia;
    for (const Row row :
         {Row::SmallestSectionModulus, Row::SectionModulusLow, Row::SectionModulusHigh})
        record(row, column) = values.SectionModulus;
    record(Row::RadiusOfGyration, column) = values.Radius;
    record(Row::PlasticModulus, column) = values.PlasticModulus;
    record(Row::ShapeFactor, column) = values.PlasticModulus / values.SectionModulus;
}

/// An axis of symmetry halves the shape: both edges and both plastic distances are alike.
void FillHalves(SectionRecord& record, Column column, double size)
{
    for (const Row row : {Row::LowEdge, Row::HighEdge, Row::PlasticAxisLow, Row::PlasticAxisHigh})
        record(row, column) = size / 2;
}

void FillArea(const Application& to)
{
    for (const Column column : kBothColumns) to.Record(Row::Area, column) = to.Steel.A;
}

void FillTorsion(const Application& to)
{
    for (const Column column : kBothColumns) to.Record(Row::PolarMoment, column) = to.Steel.J;
}

void FillBothAxes(const Application& to)
{
    FillArea(to);
    FillAxis(to.Record, to.Strong, StrongAxis(to.Steel));
    FillAxis(to.Record, to.Weak, WeakAxis(to.Steel));
    FillTorsion(to);
}

/// Principal values of a shape with an axis of symmetry. The angle follows the column that held
/// the strong axis after a tube exchanged them, so that an unrotated tube has 90. The product of
/// inertia is not written: shapes that were not summed keep the one of the section before.
void FillPrincipal(const Application& to, double other)
{
    for (const Column column : kBothColumns) {
        to.Record(Row::LargestPrincipal, column) = std::max(to.Steel.Ix, other);
        to.Record(Row::SmallestPrincipal, column) = std::min(to.Steel.Ix, other);
        to.Record(Row::PrincipalAngle, column) = to.Strong == Column::Zz ? 0 : 90;
        to.Record(Row::PrincipalSense, column) = -1;
    }
}

/// True where the summed centroid lies nearer the low edge: the heel of the shape is there.
bool HeelIsLow(const SectionRecord& record, Column column)
{
    return record(Row::LowEdge, column) < record(Row::HighEdge, column);
}

/// Edges and plastic axis across the only symmetry axis, from the heel's side, as summed.
void FillFromHeel(SectionRecord& record, Column column, const SteelShape& steel, double size)
{
    const bool low = HeelIsLow(record, column);
    const double inertia = record(Row::Inertia, column);
    record(low ? Row::LowEdge : Row::HighEdge, column) = steel.Centroid;
    record(low ? Row::HighEdge : Row::LowEdge, column) = size - steel.Centroid;
    record(low ? Row::SectionModulusLow : Row::SectionModulusHigh, column) =
        inertia / steel.Centroid;
    record(low ? Row::PlasticAxisLow : Row::PlasticAxisHigh, column) = steel.PlasticAxis;
    record(low ? Row::PlasticAxisHigh : Row::PlasticAxisLow, column) = size - steel.PlasticAxis;
}

/// The section modulus to the nearer edge, by the summed distance: angles publish the other one.
void FillNearModulus(SectionRecord& record, Column column)
{
    const bool low = HeelIsLow(record, column);
    const double distance = record(low ? Row::LowEdge : Row::HighEdge, column);
    record(low ? Row::SectionModulusLow : Row::SectionModulusHigh, column) =
        record(Row::Inertia, column) / distance;
}

void ApplyW(const Application& to)
{
    FillBothAxes(to);
    FillHalves(to.Record, to.Strong, to.Steel.Depth);
    FillHalves(to.Record, to.Weak, to.Steel.Width);
    FillPrincipal(to, to.Steel.Iy);
}

void ApplyC(const Application& to)
{
    FillBothAxes(to);
    FillHalves(to.Record, to.Strong, to.Steel.Depth);
    FillFromHeel(to.Record, to.Weak, to.Steel, to.Steel.Width);
    FillPrincipal(to, to.Steel.Iy);
}

void ApplyWT(const Application& to)
{
    FillBothAxes(to);
    FillHalves(to.Record, to.Weak, to.Steel.Width);
    FillFromHeel(to.Record, to.Strong, to.Steel, to.Steel.Depth);
    FillPrincipal(to, to.Steel.Iy);
}

/// Principal values stay as summed, for their axes are inclined; so do all distances.
void ApplyL(const Application& to)
{
    FillBothAxes(to);
    for (const Column column : kBothColumns) FillNearModulus(to.Record, column);
}

/// The gap is the user's, so that the axis through it stays as summed.
void Apply2L(const Application& to)
{
    FillArea(to);
    FillAxis(to.Record, to.Strong, StrongAxis(to.Steel));
    FillNearModulus(to.Record, to.Strong);
}

/// An unrotated tube lies with its depth along z: the columns change places.
void ApplyTS(const Application& to)
{
    const Application tube{to.Record, to.Steel, to.Weak, to.Strong};
    FillBothAxes(tube);
    FillHalves(tube.Record, tube.Strong, tube.Steel.Depth);
    FillHalves(tube.Record, tube.Weak, tube.Steel.Width);
    FillPrincipal(tube, tube.Steel.Iy);
}

void ApplyPipe(const Application& to)
{
    FillArea(to);
    for (const Column column : kBothColumns) {
        FillAxis(to.Record, column, StrongAxis(to.Steel));
        FillHalves(to.Record, column, to.Steel.Depth);
    }
    FillTorsion(to);
    FillPrincipal(to, to.Steel.Ix);
}

using Apply = void (*)(const Application&);
constexpr std::array<Apply, kSteelFamilies> kFamilies{ApplyW,  ApplyC,  ApplyWT,  ApplyL,
                                                      Apply2L, ApplyTS, ApplyPipe};

/// The tables are in inches whatever the unit option shows: columns 3 and 4 are columns 1 and 2,
/// the angle and its sense among them.
void CopyToInches(CrossSection& section)
{
    for (int row = int(Row::Modulus); row <= int(Row::PrincipalSense); ++row)
        for (int column = 1; column <= 2; ++column)
            section.Record.At(row, column + 2) = section.Record.At(row, column);
    section.ElementCornersInches = section.ElementCorners;
}

} // namespace

void ApplySteelTable(CrossSection& section, const SectionEntry& entry)
{
    if (!entry.Steel || !IsSteel(section.ShapeIndex))
        throw ArithmeticFault("no steel shape is selected");
    for (const Column column : kBothColumns) section.Record(Row::Modulus, column) = kSteelModulus;
    const bool upright = section.ElementLie[0] == 1;
    const Column strong = upright ? Column::Zz : Column::Yy;
    const Column weak = upright ? Column::Yy : Column::Zz;
    kFamilies[section.ShapeIndex - kSteelW]({section.Record, *entry.Steel, strong, weak});
    for (int k = 0; k < kElements; ++k)
        if (section.Shown[k]) section.ElementColour[k] = entry.Swatch[k];
    CopyToInches(section);
}

} // namespace forcelab::sections
