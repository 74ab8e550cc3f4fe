#include "sections/PlasticAxis.h"

#include "sections/ShapeCatalogue.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace forcelab::sections {

namespace {

/// The search ends where the areas on both sides differ from the half by less than this, in the
/// square of the entered unit. Being absolute, it takes the centroid for any section smaller than
/// itself, and asks of a very large one more than a double can hold; see FindAxis.
constexpr double kBalance = 0.001;

/// An element seen from an axis: its extent across the axis, and its width along it.
struct Strip {
    double Low;
    double High;
    double Width;
};
Strip StripOf(const Corners& e, int axis)
{
    if (axis == 0) return {e.Left, e.Right, e.Top - e.Bottom};
    return {e.Bottom, e.Top, e.Right - e.Left};
}

/// Columns of the plastic table; the second axis has its own five behind those of the first.
enum PlasticColumn : int { kHighArea = 29, kHighLever, kLowArea, kLowLever, kContribution };
constexpr int kPlasticColumns = 5;

double& Cell(CrossSection& section, int row, PlasticColumn column, int axis)
{
    return section.Details[row][column + kPlasticColumns * axis];
}

/// Moves the corners to the centroid; least and greatest z and y, starting from 0.
std::array<double, 4> MoveToCentroid(CrossSection& section, double zBar, double yBar)
{
    std::array<double, 4> bounds{};
    for (int k = 0; k < kElements; ++k) {
        if (!section.Shown[k]) continue;
        Corners& e = section.ElementCorners[k];
        e = {e.Left - zBar, e.Bottom - yBar, e.Right - zBar, e.Top - yBar};
        bounds = {std::min(bounds[0], e.Left), std::max(bounds[1], e.Right),
                  std::min(bounds[2], e.Bottom), std::max(bounds[3], e.Top)};
    }
    return bounds;
}

struct SideAreas {
    double Low = 0;
    double High = 0;
};
SideAreas AreasBesideCentroid(const CrossSection& section, int axis)
{
    SideAreas areas;
    for (int k = 0; k < kElements; ++k) {
        if (!section.Shown[k]) continue;
        const Strip e = StripOf(section.ElementCorners[k], axis);
        if (e.High > 0 && e.Low >= 0) {
            areas.High += (e.High - e.Low) * e.Width;
        } else if (e.High <= 0 && e.Low < 0) {
            areas.Low += (e.High - e.Low) * e.Width;
        } else {
            areas.High += e.Width * e.High;
            areas.Low -= e.Width * e.Low;
        }
    }
    return areas;
}

/// One search for the axis that halves the area.
struct Search {
    const CrossSection& Section;
    int Axis;
    double HalfArea;
    double LowEdge;
    double HighEdge;

    [[nodiscard]] double Surplus(double position) const
    {
        return AreaBeyond(Section, Axis, position) - HalfArea;
    }
};

/// Secant steps from the centroid towards `edge`, the one of the heavier side. A step beyond the
/// edge is replaced by the midpoint between the present point and the edge. Nothing where the
/// balance is not met: AreaBeyond jumps to the other side's area where a step crosses the
/// centroid, so that the steps can circle for ever, or run into the edge.
std::optional<double> BySecant(const Search& search, double surplusAtCentroid, double edge)
{
    constexpr int kRounds = 100;
    double x0 = 0;
    double f0 = surplusAtCentroid;
    double x1 = edge / 5;
    double f1 = search.Surplus(x1);
    for (int round = 0; round < kRounds && x1 != x0; ++round) {
        const double slope = (f1 - f0) / (x1 - x0);
        if (slope == 0) break;
        x0 = x1;
        f0 = f1;
        const double next = x1 - f1 / slope;
        x1 = std::abs(edge) < std::abs(next) ? (x1 + edge) / 2 : next;
        f1 = search.Surplus(x1);
        if (std::abs(f1) < kBalance) return x1;
    }
    return std::nullopt;
}

/// Halves the section between its edges until neighbouring doubles are left. The area above a
/// line falls as the line rises, so this always ends, at the best balance that doubles can hold.
double ByBisection(const Search& search)
{
    constexpr int kHalvings = 200;
    double low = search.LowEdge;
    double high = search.HighEdge;
    for (int round = 0; round < kHalvings; ++round) {
        const double middle = (low + high) / 2;
        if (!(low < middle && middle < high)) break;
        const double surplus = search.Surplus(middle);
        const bool tooLow = middle < 0 ? surplus < 0 : surplus > 0;
        (tooLow ? low : high) = middle;
    }
    return (low + high) / 2;
}

/// The offset of the axis from the centroid. The stop rule is |surplus| < kBalance, met already by
/// the centroid in any section symmetric to it. What guards it: at most 100 secant steps, each of
/// which may also meet a zero slope or come to rest unbalanced, and then at most 200 halvings.
/// In sections so large that rounding alone exceeds kBalance the best balance found stands.
double FindAxis(const Search& search)
{
    const SideAreas areas = AreasBesideCentroid(search.Section, search.Axis);
    const bool high = areas.High - search.HalfArea > kBalance;
    const bool low = areas.Low - search.HalfArea > kBalance;
    if (!high && !low) return 0;
    const double surplus = (high ? areas.High : areas.Low) - search.HalfArea;
    const double edge = high ? search.HighEdge : search.LowEdge;
    const std::optional<double> found = BySecant(search, surplus, edge);
    return found ? *found : ByBisection(search);
}

/// Area and lever, from the plastic axis, of what an element has on both sides.
struct PlasticShare {
    double HighArea = 0;
    double HighLever = 0;
    double LowArea = 0;
    double LowLever = 0;
};
PlasticShare ShareOf(const Strip& e, double plastic)
{
    const double low = e.Low - plastic;
    const double high = e.High - plastic;
    if (low > 0 && high > 0) return {(high - low) * e.Width, (high + low) / 2, 0, 0};
    if (low < 0 && high < 0) return {0, 0, (high - low) * e.Width, -(low + high) / 2};
    return {high * e.Width, high / 2, -e.Width * low, -low / 2};
}

/// Fills the element rows of the plastic table; gives the plastic modulus.
double FillPlasticTable(CrossSection& section, int axis, double plastic)
{
    double modulus = 0;
    for (int k = 0; k < kElements; ++k) {
        if (!section.Shown[k]) continue;
        const PlasticShare share = ShareOf(StripOf(section.ElementCorners[k], axis), plastic);
        const double moment = share.HighArea * share.HighLever + share.LowArea * share.LowLever;
        Cell(section, k + 1, kHighArea, axis) = share.HighArea;
        Cell(section, k + 1, kHighLever, axis) = share.HighLever;
        Cell(section, k + 1, kLowArea, axis) = share.LowArea;
        Cell(section, k + 1, kLowLever, axis) = share.LowLever;
        Cell(section, k + 1, kContribution, axis) = moment;
        modulus += moment;
    }
    return modulus;
}

/// The same for the box, whose plastic axes lie at its centroid: halves of the two rectangles. The
/// lever is the arm between a rectangle's two halves, so that one half times it is the modulus.
double FillBoxTable(CrossSection& section, int axis)
{
    double modulus = 0;
    for (int k = 0; k < 2; ++k) {
        const Strip e = StripOf(section.ElementCorners[k], axis);
        const double depth = e.High - e.Low;
        const double sign = k == 0 ? 1 : -1;
        const double half = sign * depth * e.Width / 2;
        const double moment = sign * depth * depth * e.Width / 4;
        Cell(section, k + 1, kHighArea, axis) = half;
        Cell(section, k + 1, kHighLever, axis) = depth / 2;
        Cell(section, k + 1, kLowArea, axis) = half;
        Cell(section, k + 1, kLowLever, axis) = depth / 2;
        Cell(section, k + 1, kContribution, axis) = moment;
        modulus += moment;
    }
    return modulus;
}

} // namespace

double AreaBeyond(const CrossSection& section, int axis, double position)
{
    double area = 0;
    for (int k = 0; k < kElements; ++k) {
        if (!section.Shown[k]) continue;
        const Strip e = StripOf(section.ElementCorners[k], axis);
        if (position >= 0) {
            if (position < e.High) area += (e.High - std::max(e.Low, position)) * e.Width;
        } else if (e.Low < position) {
            area += (std::min(e.High, position) - e.Low) * e.Width;
        }
    }
    return area;
}

PlasticResult LocatePlasticNA(CrossSection& section, double zBar, double yBar, double halfArea)
{
    PlasticResult result;
    result.Bounds = MoveToCentroid(section, zBar, yBar);
    const bool box = LayoutOf(section.ShapeIndex) == kBox;
    const std::array<double, 2> centroid{zBar, yBar};
    for (int axis = 0; axis < 2; ++axis) {
        const double low = result.Bounds[2 * axis];
        const double high = result.Bounds[2 * axis + 1];
        double& plastic = result.PlasticNA[axis];
        if (!box) plastic = FindAxis({section, axis, halfArea, low, high});
        const double modulus =
            box ? FillBoxTable(section, axis) : FillPlasticTable(section, axis, plastic);
        Cell(section, 0, kHighArea, axis) = plastic + centroid[axis];
        Cell(section, 0, kContribution, axis) = modulus;
        result.PlasticModulus[axis] = modulus;
    }
    return result;
}

} // namespace forcelab::sections
