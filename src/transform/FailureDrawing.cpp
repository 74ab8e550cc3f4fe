#include "core/DrawingHelpers.h"
#include "core/MainModule.h"
#include "core/Units.h"
#include "transform/Failure.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace forcelab::transform {

namespace {

using Outline = std::vector<PicturePoint>;

constexpr Colour kBoundary = Rgb(0, 0, 0);
constexpr int kEllipsePoints = 100;
constexpr double kScaleShare = 1.5;    // of the largest size, to each side
constexpr double kDotShare = 1.0 / 80; // of the picture's width
constexpr double kSeedShift = 4;       // pixels
constexpr double kOutlineWidth = 2;    // pixels
constexpr double kMargin = 6;          // pixels

/// The closed hexagon with one limit for tension and one for compression.
Outline Hexagon(double t, double c)
{
    return {{t, 0}, {t, t}, {0, t}, {-c, 0}, {-c, -c}, {0, -c}, {t, 0}};
}

Outline Ellipse(double yield)
{
    Outline points{{yield, 0}};
    for (int k = 0; k < kEllipsePoints; ++k) {
        const double t = k * (2 * kPi / (kEllipsePoints - 1));
        const double slope = std::tan(t);
        double x = yield / std::sqrt(slope * slope + 1 - slope);
        if (t > kPi / 2 && t < 3 * kPi / 2) x = -x;
        points.push_back({x, x * slope});
    }
    return points;
}

Outline Square(double y)
{
    return {{y, 0}, {y, y}, {-y, y}, {-y, -y}, {y, -y}, {y, 0}};
}

Outline SafeRegion(const FailureEntry& entry)
{
    switch (entry.TheoryIndex) {
    case 0:
        return Hexagon(entry.Yield, entry.Yield);
    case 1:
        return Ellipse(entry.Yield);
    case 2:
        return Square(entry.Yield);
    default:
        return Hexagon(entry.Yield, entry.Compression);
    }
}

bool HasCompression(const FailureEntry& entry)
{
    return kFailureTheories[entry.TheoryIndex].HasCompression;
}

double LargestSize(const FailureEntry& entry)
{
    const double largest = std::max({std::abs(entry.Sigma1), std::abs(entry.Sigma2), entry.Yield});
    return HasCompression(entry) ? std::max(largest, entry.Compression) : largest;
}

void DrawOutline(Picture& pic, const Outline& outline)
{
    pic.ForeColor = kBoundary;
    pic.DrawWidth = kOutlineWidth;
    pic.Polyline(outline);
}

/// The pixel from which the region is filled, in the picture's scale.
PicturePoint Seed(const Picture& pic, const FailureEntry& entry)
{
    const double centre = std::floor(pic.WidthPixels() / 2);
    if (!HasCompression(entry)) return pic.FromPixels({centre, centre});
    const double shift = entry.Compression > entry.Yield ? -kSeedShift : kSeedShift;
    return pic.FromPixels({centre + shift, centre - shift});
}

/// A seed on the boundary or beyond it would fill the ground instead of the region.
bool SeedIsInside(const Picture& pic, const FailureEntry& entry, PicturePoint seed)
{
    const double line = pic.UserWidth(kOutlineWidth);
    FailureEntry at = entry;
    at.Sigma1 = seed.X + std::copysign(line, seed.X);
    at.Sigma2 = seed.Y + std::copysign(line, seed.Y);
    return !MaterialFails(at);
}

void FillRegion(Picture& pic, const FailureEntry& entry)
{
    pic.FillColor = IndexedColour(11);
    pic.FillStyle = FillPattern::Solid;
    const PicturePoint seed = Seed(pic, entry);
    if (SeedIsInside(pic, entry, seed)) pic.FloodFill(seed.X, seed.Y, kBoundary);
}

/// Draws the region without smoothing, since its colours are read back, and hands back the verdict.
bool DrawRegion(Picture& pic, const FailureEntry& entry)
{
    const Outline outline = SafeRegion(entry);
    const bool smooth = pic.Smooth;
    pic.Smooth = false;
    DrawOutline(pic, outline);
    FillRegion(pic, entry);
    const bool fails = HasCompression(entry)
                           ? pic.Point(entry.Sigma1, entry.Sigma2) != pic.FillColor
                           : MaterialFails(entry);
    pic.Smooth = smooth;
    DrawOutline(pic, outline);
    return fails;
}

void DrawAxesAndState(Picture& pic, const FailureEntry& entry, bool fails)
{
    const double end = pic.ScaleLeft();
    pic.DrawWidth = 1;
    pic.Line(end, 0, -end, 0);
    pic.Line(0, end, 0, -end);
    pic.FillColor = IndexedColour(fails ? 12 : 14);
    pic.Circle(entry.Sigma1, entry.Sigma2, pic.ScaleWidth() * kDotShare);
    pic.FillStyle = FillPattern::Transparent;
}

Label AxisLabel(const std::string& index)
{
    if (!MainModule::SymbolFontPresent) return {{"sig" + index}};
    return {{"s", LabelPart::Kind::Greek}, {index, LabelPart::Kind::Subscript}};
}

void LabelAxes(Picture& pic)
{
    const double end = -pic.ScaleLeft();
    const double across = pic.UserWidth(kMargin);
    const double along = pic.UserHeight(kMargin);
    if (MainModule::SymbolFontPresent) pic.FontSize = 14;
    PrintLabel(pic, end - across, along, AxisLabel("1"), HAlign::Right, VAlign::Bottom);
    PrintLabel(pic, across, end - along, AxisLabel("2"), HAlign::Left, VAlign::Top);
    pic.FontName = "MS Sans Serif";
    pic.FontSize = 8;
}

void PrintVerdict(Picture& pic, bool fails)
{
    const double end = -pic.ScaleLeft();
    pic.FontName = "MS Sans Serif";
    pic.FontSize = 8;
    PrintText(pic, end - pic.UserWidth(kMargin), -end + pic.UserHeight(kMargin),
              fails ? "The material fails" : "The material does not fail", HAlign::Right,
              VAlign::Bottom);
}

bool Prompt(Picture& pic, const FailureEntry& entry)
{
    pic.ScaleToPixels();
    pic.Cls();
    pic.FontSize = 8;
    pic.CurrentX = kMargin;
    pic.CurrentY = kMargin;
    pic.Print(kFailureTheories[entry.TheoryIndex].Prompt);
    return false;
}

} // namespace

bool DrawFailure(Picture& pic, const FailureEntry& entry)
{
    pic.ForeColor = kBoundary;
    pic.FillStyle = FillPattern::Transparent;
    pic.DrawStyle = LinePattern::Solid;
    pic.FontName = "MS Sans Serif";
    if (entry.Yield == 0) return Prompt(pic, entry);
    const double m = kScaleShare * LargestSize(entry);
    pic.Scale(-m, m, m, -m);
    pic.Cls();
    const bool fails = DrawRegion(pic, entry);
    DrawAxesAndState(pic, entry, fails);
    PrintVerdict(pic, fails);
    LabelAxes(pic);
    return fails;
}

} // namespace forcelab::transform
