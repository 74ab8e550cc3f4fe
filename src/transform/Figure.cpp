#include "transform/Figure.h"

#include "core/Units.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace forcelab::transform {

namespace {

struct SheetSize {
    double UpTo; ///< pixels of the shorter side
    double FontSize;
    double Head; ///< pixels, of an arrow
};
constexpr std::array<SheetSize, 4> kSheetSizes{
    {{230, 7, 6}, {330, 8, 8}, {700, 9, 9}, {1e9, 10, 11}}};
constexpr double kSmallSheet = 330; // pixels
constexpr double kDotPixels = 3;
constexpr double kArcStep = kPi / 60;

double ShorterSide(const Picture& pic)
{
    return std::min(pic.WidthPixels(), pic.HeightPixels());
}

const SheetSize& SizeFor(const Picture& pic)
{
    return *std::find_if(kSheetSizes.begin(), kSheetSizes.end() - 1,
                         [&pic](const SheetSize& row) { return ShorterSide(pic) <= row.UpTo; });
}

/// Sets a scale in which one unit is as long across as along.
void FitScale(Picture& pic, double left, double top, double right, double bottom)
{
    const double unit = std::max((right - left) / std::max(1.0, pic.WidthPixels()),
                                 (top - bottom) / std::max(1.0, pic.HeightPixels()));
    const double across = unit * std::max(1.0, pic.WidthPixels()) / 2;
    const double along = unit * std::max(1.0, pic.HeightPixels()) / 2;
    const double x = (left + right) / 2;
    const double y = (top + bottom) / 2;
    pic.Scale(x - across, y + along, x + across, y - along);
}

} // namespace

Figure::Figure(Picture& pic, double left, double top, double right, double bottom)
    : pic_(pic), placer_(pic), head_(SizeFor(pic).Head)
{
    FitScale(pic, left, top, right, bottom);
    pic.FillStyle = FillPattern::Transparent;
    pic.DrawStyle = LinePattern::Solid;
    pic.FontName = "MS Sans Serif";
    pic.FontSize = SizeFor(pic).FontSize;
    pic.FontBold = false;
    pic.FontItalic = false;
    pic.BackColor = Rgb(255, 255, 255);
    pic.Cls();
}

bool Figure::IsSmall() const
{
    return ShorterSide(pic_) < kSmallSheet;
}

void Figure::Take(const Pen& pen)
{
    pic_.ForeColor = pen.Ink;
    pic_.DrawWidth = pen.Width;
    pic_.DrawStyle = pen.Pattern;
}

void Figure::Line(PicturePoint from, PicturePoint to, const Pen& pen)
{
    Take(pen);
    pic_.Line(from.X, from.Y, to.X, to.Y);
    pic_.DrawStyle = LinePattern::Solid;
    placer_.KeepOffLine(from, to, pen.Weight);
}

void Figure::Arrow(PicturePoint from, PicturePoint to, const Pen& pen)
{
    Take(pen);
    pic_.DrawStyle = LinePattern::Solid;
    DrawArrow(pic_, from, to, head_);
    placer_.KeepOffLine(from, to, pen.Weight);
}

void Figure::Circle(PicturePoint centre, double radius, const Pen& pen)
{
    if (radius <= 0) return;
    Take(pen);
    pic_.FillStyle = FillPattern::Transparent;
    pic_.Circle(centre.X, centre.Y, radius);
    pic_.DrawStyle = LinePattern::Solid;
    placer_.KeepOffCircle(centre, radius);
}

void Figure::Outline(std::span<const PicturePoint> corners, const Pen& pen, Colour fill)
{
    Take(pen);
    pic_.FillStyle = FillPattern::Solid;
    pic_.FillColor = fill;
    pic_.Polygon(corners);
    pic_.FillStyle = FillPattern::Transparent;
    pic_.DrawStyle = LinePattern::Solid;
    for (std::size_t i = 0; i < corners.size(); ++i)
        placer_.KeepOffLine(corners[i], corners[(i + 1) % corners.size()]);
}

void Figure::AngleArc(PicturePoint centre, double radius, double from, double to, const Pen& pen)
{
    const double sweep = to - from;
    const int steps = std::max(2, static_cast<int>(std::ceil(std::abs(sweep) / kArcStep)));
    const double headSweep = head_ / std::abs(pic_.ScaleX(radius));
    const bool hasHead = std::abs(sweep) > 1.5 * headSweep;
    const double end = hasHead ? to - std::copysign(headSweep, sweep) : to;
    std::vector<PicturePoint> points;
    for (int k = 0; k <= steps; ++k)
        points.push_back(Polar(centre, radius, from + (end - from) * k / steps));
    Take(pen);
    pic_.Polyline(points);
    for (int k = 0; k < steps; ++k) placer_.KeepOffLine(points[k], points[k + 1]);
    if (hasHead) Arrow(points.back(), Polar(centre, radius, to), pen);
}

void Figure::Dot(PicturePoint at, Colour ink)
{
    Take({ink});
    pic_.FillStyle = FillPattern::Solid;
    pic_.FillColor = ink;
    pic_.Circle(at.X, at.Y, pic_.UserWidth(kDotPixels));
    pic_.FillStyle = FillPattern::Transparent;
}

bool Figure::Text(PicturePoint at, const Label& text, double angle, Colour ink, bool needed,
                  bool leader)
{
    LabelWish wish;
    wish.Anchors = {{at, angle}};
    wish.Text = text;
    wish.Ink = ink;
    wish.Needed = needed;
    wish.Leader = leader;
    return placer_.Place(wish);
}

void Figure::Text(std::vector<LabelAnchor> anchors, const Label& text, Colour ink)
{
    placer_.Place({std::move(anchors), text, ink});
}

Label Plain(std::string text)
{
    return {{std::move(text), LabelPart::Kind::Plain}};
}

Label Joined(Label first, const Label& second)
{
    for (const LabelPart& part : second) {
        const bool goesOn = !first.empty() && part.What == LabelPart::Kind::Plain &&
                            first.back().What == LabelPart::Kind::Plain;
        if (goesOn)
            first.back().Text += part.Text;
        else
            first.push_back(part);
    }
    return first;
}

PicturePoint Polar(PicturePoint centre, double radius, double angle)
{
    return {centre.X + radius * std::cos(angle), centre.Y + radius * std::sin(angle)};
}

} // namespace forcelab::transform
