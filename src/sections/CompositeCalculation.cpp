#include "core/ArithmeticFault.h"
#include "sections/SectionSums.h"

#include <algorithm>
#include <cmath>

namespace forcelab::sections {

namespace {

/// First columns of the blocks of the detail table, for Material A and B. Each block about an axis
/// holds weighted area, position, their product, own inertia, distance, transfer term and sum.
struct Block {
    int AboutYy;
    int AboutZz;
    int Sizes; ///< transformed height and width, transformed width and height
};
constexpr std::array<Block, 2> kBlocks{{{1, 8, 29}, {15, 22, 33}}};
enum InBlock : int { kArea, kPosition, kMoment, kOwn, kDistance, kTransfer, kSum };

/// What the two materials make of an element.
struct Weights {
    double Modulus = 0;            ///< as entered
    std::array<double, 2> Ratio{}; ///< to Material A, to Material B
};
using ElementWeights = std::array<Weights, kElements>;

Weights operator-(const Weights& a, const Weights& b)
{
    return {a.Modulus - b.Modulus, {a.Ratio[0] - b.Ratio[0], a.Ratio[1] - b.Ratio[1]}};
}

/// Weights by the colours of the elements: indexed 10 is Material B. The inner rectangle of a box
/// is no hole here but a filling: it lies on the outer one, and counts with the difference.
ElementWeights WeightsOf(const CrossSection& section, const Moduli& moduli)
{
    const double a = moduli.Entered[1];
    const double b = moduli.Entered[2];
    ElementWeights weights;
    for (int k = 0; k < kElements; ++k) {
        const double own = section.ElementColour[k] == IndexedColour(10) ? b : a;
        weights[k] = {own, {own / a, own / b}};
    }
    for (int k = kElements - 1; k > 0; --k)
        if (IsHollow(section, k)) weights[k] = weights[k] - weights[k - 1];
    return weights;
}

struct Point {
    double Z = 0;
    double Y = 0;
};

/// Centroid with the moduli as weights; it is the same for both transformations.
Point CentroidOf(const Parts& parts, const ElementWeights& weights)
{
    double stiffness = 0;
    Point moment;
    for (const Part& part : parts.All()) {
        const double weighted = weights[part.Element].Modulus * part.Area;
        stiffness += weighted;
        moment.Z += weighted * part.Z;
        moment.Y += weighted * part.Y;
    }
    return {Finite(moment.Z / stiffness), Finite(moment.Y / stiffness)};
}

/// One element in one block: `size` is its extent across the axis.
void FillElement(double* block, double area, double position, double size, double centroid)
{
    block[kArea] = area;
    block[kPosition] = position;
    block[kMoment] = area * position;
    block[kOwn] = area * size * size / 12;
    block[kDistance] = position - centroid;
    block[kTransfer] = area * block[kDistance] * block[kDistance];
    block[kSum] = block[kOwn] + block[kTransfer];
}

/// The sums of a block in row 0. The centroid stands in the column of the own inertias.
void FillTotals(DetailTable& details, int first, double centroid)
{
    for (const int column : {kArea, kMoment, kSum}) {
        double& total = details[0][first + column];
        for (int k = 1; k <= kElements; ++k) total += details[k][first + column];
    }
    details[0][first + kOwn] = centroid;
}

/// The detail table transformed to one material.
void FillDetails(DetailTable& details, const Parts& parts, const ElementWeights& weights,
                 int material, const Point& centroid)
{
    const Block& block = kBlocks[material];
    for (const Part& part : parts.All()) {
        std::array<double, 39>& row = details[part.Element + 1];
        const double n = weights[part.Element].Ratio[material];
        FillElement(&row[block.AboutYy], n * part.Area, part.Z, part.Width, centroid.Z);
        FillElement(&row[block.AboutZz], n * part.Area, part.Y, part.Height, centroid.Y);
        row[block.Sizes] = n * part.Height;
        row[block.Sizes + 1] = part.Width;
        row[block.Sizes + 2] = n * part.Width;
        row[block.Sizes + 3] = part.Height;
    }
    FillTotals(details, block.AboutYy, centroid.Z);
    FillTotals(details, block.AboutZz, centroid.Y);
}

/// Moves the shown corners to the centroid; gives width and height of the whole section.
Point MoveTo(CrossSection& section, const Point& centroid)
{
    Point low;
    Point high;
    for (int k = 0; k < kElements; ++k) {
        if (!section.Shown[k]) continue;
        Corners& e = section.ElementCorners[k];
        e = {e.Left - centroid.Z, e.Bottom - centroid.Y, e.Right - centroid.Z, e.Top - centroid.Y};
        low = {std::min(low.Z, e.Left), std::min(low.Y, e.Bottom)};
        high = {std::max(high.Z, e.Right), std::max(high.Y, e.Top)};
    }
    return {high.Z - low.Z, high.Y - low.Y};
}

/// Rows of a column that hold for both axes or follow from its inertias.
void FillRows(SectionRecord& record, Column column, double low, double size,
              const std::array<double, 2>& inertia, const std::array<double, 2>& area)
{
    const double a = record(CompositeRow::ModulusA, column);
    const double b = record(CompositeRow::ModulusB, column);
    record(CompositeRow::LowEdge, column) = low;
    record(CompositeRow::HighEdge, column) = size - low;
    record(CompositeRow::RatioBToA, column) = b / a;
    record(CompositeRow::AreaAsA, column) = area[0];
    record(CompositeRow::InertiaAsA, column) = inertia[0];
    record(CompositeRow::GyrationAsA, column) = std::sqrt(inertia[0] / area[0]);
    record(CompositeRow::RatioAToB, column) = a / b;
    record(CompositeRow::AreaAsB, column) = area[1];
    record(CompositeRow::InertiaAsB, column) = inertia[1];
    record(CompositeRow::GyrationAsB, column) = std::sqrt(inertia[1] / area[1]);
}

} // namespace

// There is no plastic axis, no principal value and no row of one material for a composite section:
// columns 1 to 4 keep what an earlier section left there.
void ComputeComposite(CrossSection& section, const Moduli& moduli)
{
    MoveToFirstQuadrant(section);
    const Parts parts(section);
    const ElementWeights weights = WeightsOf(section, moduli);
    const Point centroid = CentroidOf(parts, weights);
    for (int material = 0; material < 2; ++material)
        FillDetails(section.Details, parts, weights, material, centroid);
    const Point size = MoveTo(section, centroid);

    const std::array<double, 39>& total = section.Details[0];
    const std::array<double, 2> area{total[kBlocks[0].AboutYy], total[kBlocks[1].AboutYy]};
    FillRows(section.Record, Column::CompositeZz, centroid.Y, size.Y,
             {total[kBlocks[0].AboutZz + kSum], total[kBlocks[1].AboutZz + kSum]}, area);
    FillRows(section.Record, Column::CompositeYy, centroid.Z, size.Z,
             {total[kBlocks[0].AboutYy + kSum], total[kBlocks[1].AboutYy + kSum]}, area);
}

} // namespace forcelab::sections
