#include "sections/SectionCalculation.h"
#include "sections/ShapeCatalogue.h"

#include <cmath>
#include <utility>

namespace forcelab::sections {

namespace {

using Rectangles = std::array<Corners, kElements>;
using Dims = std::array<std::array<double, 2>, kElements>;

/// A shape being laid out in its own frame: unrotated and unflipped, Left to Right along the
/// flange, Bottom to Top along the web. Turning it into the drawing's z and y comes last.
struct Layout {
    const Dims& D;
    double Gap = 0;
    bool Lying = false;   ///< a quarter turn has exchanged z and y
    double FlipLevel = 0; ///< a flip along the web mirrors at this level
    Rectangles Out{};
};

Corners FromLowerLeft(double left, double bottom, double width, double height)
{
    return {left, bottom, left + width, bottom + height};
}

Corners Centred(double width, double bottom, double height)
{
    return {-width / 2, bottom, width / 2, bottom + height};
}

/// The like element on the other side of the web.
Corners Opposite(const Corners& e)
{
    return {-e.Right, e.Bottom, -e.Left, e.Top};
}

/// Top flange, web, bottom flange on one centre line; the bottom flange takes the dimensions of
/// the element with index `bottom`.
void FlangedLayout(Layout& a, int bottom)
{
    const double half = a.D[1][0] / 2;
    a.Out[0] = Centred(a.D[0][0], half, a.D[0][1]);
    a.Out[1] = Centred(a.D[1][1], -half, 2 * half);
    a.Out[2] = Centred(a.D[bottom][0], -half - a.D[bottom][1], a.D[bottom][1]);
}

/// The same with all three elements starting at one edge.
void ChannelLayout(Layout& a, int bottom)
{
    const double half = a.D[1][0] / 2;
    a.Out[0] = FromLowerLeft(0, half, a.D[0][0], a.D[0][1]);
    a.Out[1] = FromLowerLeft(0, -half, a.D[1][1], 2 * half);
    a.Out[2] = FromLowerLeft(0, -half - a.D[bottom][1], a.D[bottom][0], a.D[bottom][1]);
}

void GeneralFlanged(Layout& a)
{
    FlangedLayout(a, 2);
}

void GeneralChannel(Layout& a)
{
    ChannelLayout(a, 2);
}

void IShape(Layout& a)
{
    FlangedLayout(a, 0);
}

void CShape(Layout& a)
{
    ChannelLayout(a, 0);
}

void TShape(Layout& a)
{
    const double half = a.D[1][0] / 2;
    a.Out[0] = Centred(a.D[0][0], half, a.D[0][1]);
    a.Out[1] = Centred(a.D[1][1], -half, 2 * half);
}

/// The leg of element 2 is centred on 0; lying, it runs from 0, and a flip leaves it there.
void LShape(Layout& a)
{
    const double length = a.D[1][0];
    const double start = a.Lying ? 0 : -length / 2;
    a.FlipLevel = a.Lying ? length / 2 : 0;
    a.Out[0] = {0, start - a.D[0][1], a.D[0][0], start};
    a.Out[1] = {0, start, a.D[1][1], start + length};
}

void ZShape(Layout& a)
{
    const double half = a.D[1][0] / 2;
    const double side = a.D[1][1] / 2;
    a.Out[0] = {side - a.D[0][0], half, side, half + a.D[0][1]};
    a.Out[1] = {-side, -half, side, half};
    a.Out[2] = {-side, -half - a.D[0][1], a.D[0][0] - side, -half};
}

void Hat(Layout& a)
{
    const double left = -a.D[0][0] / 2;
    const double inner = left + a.D[1][1];
    const double foot = -a.D[1][0];
    a.Out[0] = Centred(a.D[0][0], 0, a.D[0][1]);
    a.Out[1] = {left, foot, inner, 0};
    a.Out[2] = {inner - a.D[2][0], foot - a.D[2][1], inner, foot};
    a.Out[3] = Opposite(a.Out[1]);
    a.Out[4] = Opposite(a.Out[2]);
}

/// The left one of two webs, hanging from 0, with its inner face at the gap's edge.
Corners LeftWeb(const Layout& a)
{
    return {-a.Gap / 2 - a.D[1][1], -a.D[1][0], -a.Gap / 2, 0};
}

void DoubleI(Layout& a)
{
    a.Out[0] = Centred(a.D[0][0], 0, a.D[0][1]);
    a.Out[1] = LeftWeb(a);
    a.Out[2] = Opposite(a.Out[1]);
    a.Out[3] = Centred(a.D[3][0], -a.D[1][0] - a.D[3][1], a.D[3][1]);
}

/// Right-hand web and flanges of two channels from the left-hand ones.
void DoubleChannels(Layout& a, double flangeLeft)
{
    a.Out[0] = FromLowerLeft(flangeLeft, 0, a.D[0][0], a.D[0][1]);
    a.Out[4] = FromLowerLeft(flangeLeft, -a.D[1][0] - a.D[0][1], a.D[0][0], a.D[0][1]);
    a.Out[2] = Opposite(a.Out[1]);
    a.Out[3] = Opposite(a.Out[0]);
    a.Out[5] = Opposite(a.Out[4]);
}

void DoubleCBack(Layout& a)
{
    a.Out[1] = LeftWeb(a);
    DoubleChannels(a, -a.Gap / 2 - a.D[0][0]);
}

void DoubleCToe(Layout& a)
{
    a.Out[1] = {-a.Gap / 2, -a.D[1][0], a.D[1][1] - a.Gap / 2, 0};
    DoubleChannels(a, -a.Gap / 2);
}

void DoubleT(Layout& a)
{
    a.Out[0] = Centred(a.D[0][0], 0, a.D[0][1]);
    a.Out[1] = LeftWeb(a);
    a.Out[2] = Opposite(a.Out[1]);
}

void DoubleL(Layout& a)
{
    a.Out[0] = {-a.Gap / 2 - a.D[0][0], 0, -a.Gap / 2, a.D[0][1]};
    a.Out[1] = LeftWeb(a);
    a.Out[2] = Opposite(a.Out[1]);
    a.Out[3] = Opposite(a.Out[0]);
}

/// Stiffeners stand against the ends of the flange, outside it.
void Stiffeners(Layout& a, double bottom)
{
    const double end = a.D[0][0] / 2;
    a.Out[2] = FromLowerLeft(-end - a.D[2][1], bottom, a.D[2][1], a.D[2][0]);
    a.Out[3] = Opposite(a.Out[2]);
}

void StiffenedTDown(Layout& a)
{
    TShape(a);
    Stiffeners(a, a.Out[0].Top - a.D[2][0]);
}

void StiffenedTUp(Layout& a)
{
    TShape(a);
    Stiffeners(a, a.Out[0].Bottom);
}

void Rectangle(Layout& a)
{
    a.Out[0] = Centred(a.D[0][0], -a.D[0][1] / 2, a.D[0][1]);
}

void BoxShape(Layout& a)
{
    Rectangle(a);
    a.Out[1] = Centred(a.D[1][0], -a.D[1][1] / 2, a.D[1][1]);
}

/// How the side of a shape along its flange shows in the corners.
enum class Side {
    None,      ///< it is symmetric, and no element has a counterpart
    InOrder,   ///< `First` lies left of `Second`
    FlushLeft, ///< `First` starts at the web's left edge, as does `Second`, if any
    FlushEnds, ///< `First` ends at the web's right edge, `Second` starts at its left one
    OpenRight, ///< `First` reaches beyond the web's right edge, by more than a tolerance
};

/// How to lay out a shape, and which elements show on what side it lies now.
struct LayoutRule {
    void (*Build)(Layout&);
    int Upper; ///< this element lies above Lower while the shape is not flipped
    int Lower;
    Side Across = Side::None;
    int First = -1;
    int Second = -1;
};
constexpr int kWeb = 1;
constexpr int kNone = -1;

// Rows by shape index from 1 to 17; later shapes have none or the row of another.
constexpr std::array<LayoutRule, 17> kRules{{
    {GeneralFlanged, 0, 2},
    {GeneralChannel, 0, 2, Side::FlushLeft, 0, 2},
    {IShape, 0, 2},
    {CShape, 0, 2, Side::OpenRight, 0},
    {TShape, 0, 1},
    {LShape, 1, 0, Side::FlushLeft, 0},
    {ZShape, 0, 2, Side::FlushEnds, 0, 2},
    {Hat, 0, 1, Side::InOrder, 1, 3},
    {DoubleI, 0, 3, Side::InOrder, 1, 2},
    {DoubleCBack, 0, 4, Side::InOrder, 0, 3},
    {DoubleCToe, 0, 4, Side::InOrder, 0, 3},
    {DoubleT, 0, 1, Side::InOrder, 1, 2},
    {DoubleL, 0, 1, Side::InOrder, 0, 3},
    {StiffenedTDown, 0, 1, Side::InOrder, 2, 3},
    {StiffenedTUp, 0, 1, Side::InOrder, 2, 3},
    {Rectangle, kNone, kNone},
    {BoxShape, kNone, kNone},
}};

Corners Exchanged(const Corners& e)
{
    return {e.Bottom, e.Left, e.Top, e.Right};
}

/// How far two elements are from starting and from ending together.
struct Misfit {
    double Left = 0;
    double Right = 0;
};
Misfit MisfitOf(const Corners& a, const Corners& b)
{
    return {std::abs(a.Left - b.Left), std::abs(a.Right - b.Right)};
}

/// True where the elements fit a mirror image better than the unflipped shape. Comparing the two
/// fits, and not one edge with another, bears the rounding of a rotation and flanges narrower
/// than the web.
bool IsMirrored(const Rectangles& now, const LayoutRule& rule)
{
    const Misfit first = MisfitOf(now[rule.First], now[kWeb]);
    const Misfit second = rule.Second < 0 ? Misfit{} : MisfitOf(now[rule.Second], now[kWeb]);
    if (rule.Across == Side::FlushLeft)
        return first.Right + second.Right < first.Left + second.Left;
    return first.Left + second.Right < first.Right + second.Left;
}

/// True where the shape lies flipped along its flange in the present corners.
bool IsFlippedAcross(const Rectangles& now, const LayoutRule& rule)
{
    constexpr double kOpenTolerance = 0.0001;
    switch (rule.Across) {
    case Side::None:
        return false;
    case Side::InOrder:
        return now[rule.First].Left + now[rule.First].Right >
               now[rule.Second].Left + now[rule.Second].Right;
    case Side::OpenRight:
        return now[rule.First].Right - now[kWeb].Right <= kOpenTolerance;
    default:
        return IsMirrored(now, rule);
    }
}

/// True where the shape lies flipped along its web in the present corners.
bool IsFlippedAlong(const Rectangles& now, const LayoutRule& rule)
{
    if (rule.Upper < 0) return false;
    return now[rule.Upper].Bottom + now[rule.Upper].Top <
           now[rule.Lower].Bottom + now[rule.Lower].Top;
}

/// A rectangular shape, on the sides and in the lie in which its elements stand now.
void BuildRectangles(CrossSection& section, const LayoutRule& rule, double spacing)
{
    const bool lying = section.ElementLie[0] != 1;
    Rectangles now = section.ElementCorners;
    if (lying)
        for (Corners& e : now) e = Exchanged(e);

    Layout layout{section.ElementDims, spacing, lying};
    rule.Build(layout);
    const bool along = IsFlippedAlong(now, rule);
    const bool across = IsFlippedAcross(now, rule);
    for (int k = 0; k <= InfoOf(section.ShapeIndex).LastElement; ++k) {
        Corners e = layout.Out[k];
        if (across) e = Opposite(e);
        if (along)
            e = {e.Left, 2 * layout.FlipLevel - e.Top, e.Right, 2 * layout.FlipLevel - e.Bottom};
        section.ElementCorners[k] = lying ? Exchanged(e) : e;
    }
}

bool IsStiffenedT(int shape)
{
    return shape == kStiffenedTDown || shape == kStiffenedTUp;
}

/// The upright stiffened T with its flange down takes the left edge of element 4 from where the
/// right edge of element 3 was before this pass. That belongs to this layout and is kept: what is
/// computed from such a section follows these corners.
void MoveFlippedStiffener(CrossSection& section, double oldRightOfThird)
{
    const bool upright = section.ElementLie[0] == 1;
    const bool flangeDown = section.ElementCorners[0].Bottom < section.ElementCorners[1].Bottom;
    if (upright && flangeDown)
        section.ElementCorners[3].Left = oldRightOfThird - section.ElementDims[2][1];
}

/// The circle lies across the origin; the pipe has its two radii in both heights.
void BuildRound(CrossSection& section, bool pipe)
{
    const std::array<double, 2>& diameters = section.ElementDims[0];
    for (int k = 0; k <= int(pipe); ++k) {
        Corners& e = section.ElementCorners[k];
        e.Top = diameters[k] / 2;
        e.Bottom = pipe ? e.Top : -e.Top;
    }
}

/// One rectangle a quadrant, for the picture alone.
void BuildQuadrants(CrossSection& section)
{
    const Dims& d = section.ElementDims;
    section.ElementCorners[0] = {0, 0, d[0][0], d[0][1]};
    section.ElementCorners[1] = {-d[1][0], -d[1][1], 0, 0};
    section.ElementCorners[2] = {0, -d[1][1], d[0][0], 0};
    section.ElementCorners[3] = {-d[1][0], 0, 0, d[0][1]};
}

} // namespace

void BuildElements(CrossSection& section, double spacing)
{
    const int shape = LayoutOf(section.ShapeIndex);
    if (shape == kCircle || shape == kPipe) return BuildRound(section, shape == kPipe);
    if (shape == kSpecified) return BuildQuadrants(section);
    if (shape < 1 || shape > int(kRules.size())) return;
    const double oldRightOfThird = section.ElementCorners[2].Right;
    BuildRectangles(section, kRules[shape - 1], spacing);
    if (IsStiffenedT(shape)) MoveFlippedStiffener(section, oldRightOfThird);
}

void RotateElements(CrossSection& section, double angle)
{
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    const bool quarter = std::lround(c) == 0;
    for (int k = 0; k < kElements; ++k) {
        if (quarter) section.ElementLie[k] = 1 - section.ElementLie[k];
        Corners& e = section.ElementCorners[k];
        e = {c * e.Left - s * e.Bottom, s * e.Left + c * e.Bottom, c * e.Right - s * e.Top,
             s * e.Right + c * e.Top};
        if (e.Left > e.Right) std::swap(e.Left, e.Right);
        if (e.Bottom > e.Top) std::swap(e.Bottom, e.Top);
    }
}

} // namespace forcelab::sections
