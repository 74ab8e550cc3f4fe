#include "core/DrawingHelpers.h"

#include "core/ArithmeticFault.h"
#include "core/Units.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <utility>

namespace forcelab {

namespace {

constexpr double kTurn = 2 * kPi;
constexpr int kEllipseCorners = 36;
constexpr int kArcSegmentsPerTurn = 72;
constexpr double kMostArcSegments = 7200; // a hundred turns; more would draw the same again
constexpr double kHeadFactor = 4;
constexpr double kOnPixel = 1e-9;       // pixels; what lies on a pixel up to rounding stays there
constexpr double kArrowHeadSlope = 0.4; // half width of DrawArrow's head to its length
constexpr double kScriptSize = 0.75;    // of the font size
constexpr double kSubscriptDrop = 1.0 / 3; // of the text height
constexpr double kSuperscriptRise = 0.1;   // of the text height

struct Ellipse {
    double A, B, Rotation, X, Y;

    [[nodiscard]] PicturePoint At(double t) const
    {
        return Turned(A * std::cos(t), B * std::sin(t), X, Y);
    }
    /// The direction in which the angle grows.
    [[nodiscard]] PicturePoint Tangent(double t) const
    {
        return Turned(-A * std::sin(t), B * std::cos(t), 0, 0);
    }

  private:
    [[nodiscard]] PicturePoint Turned(double x, double y, double toX, double toY) const
    {
        const double c = std::cos(Rotation);
        const double s = std::sin(Rotation);
        return {x * c - y * s + toX, x * s + y * c + toY};
    }
};

double OntoPixel(double pixels)
{
    return std::trunc(pixels + std::copysign(kOnPixel, pixels));
}

/// The whole pixel that holds a point of the scale.
PicturePoint PixelOf(const Picture& pic, PicturePoint point)
{
    const PicturePoint pixels = pic.ToPixels(point);
    return {OntoPixel(Finite(pixels.X)), OntoPixel(Finite(pixels.Y))};
}

PicturePoint SnapToPixel(const Picture& pic, PicturePoint point)
{
    return pic.FromPixels(PixelOf(pic, point));
}

/// The angle raised by whole turns until it is at least `floor`, or above it where `above`.
double RaisedTo(double angle, double floor, bool above)
{
    const double missing = (Finite(floor) - Finite(angle)) / kTurn;
    if (missing < 0 || (missing == 0 && !above)) return angle;
    const double raised = angle + kTurn * std::ceil(missing);
    return above && raised <= floor ? raised + kTurn : raised;
}

/// A filled shape in ForeColor, given about the origin with the x axis along `direction` (a unit
/// vector in pixels), put at a pixel.
void FillHead(Picture& pic, PicturePoint at, PicturePoint direction,
              std::span<const PicturePoint> shape, bool wholePixels)
{
    std::vector<PicturePoint> corners;
    for (const PicturePoint& p : shape) {
        const double x = at.X + p.X * direction.X - p.Y * direction.Y;
        const double y = at.Y + p.X * direction.Y + p.Y * direction.X;
        corners.push_back(pic.FromPixels(wholePixels ? PicturePoint{OntoPixel(x), OntoPixel(y)}
                                                     : PicturePoint{x, y}));
    }
    const Colour fill = std::exchange(pic.FillColor, pic.ForeColor);
    const FillPattern pattern = std::exchange(pic.FillStyle, FillPattern::Solid);
    const LinePattern line = std::exchange(pic.DrawStyle, LinePattern::Solid);
    const double width = std::exchange(pic.DrawWidth, 1);
    pic.Polygon(corners);
    pic.FillColor = fill;
    pic.FillStyle = pattern;
    pic.DrawStyle = line;
    pic.DrawWidth = width;
}

/// The head of an arc arrow at the angle t. It points away from the arc, so at the start against
/// the way in which the angle grows.
void DrawArcHead(Picture& pic, const Ellipse& ellipse, double t, bool atStart, double size)
{
    const PicturePoint tangent = ellipse.Tangent(t);
    const double dx = pic.ScaleX(tangent.X);
    const double dy = pic.ScaleY(tangent.Y);
    const double length = std::hypot(dx, dy);
    if (length == 0) return;
    const double away = (atStart ? -1 : 1) / length;
    const double s = size * kHeadFactor;
    const std::array<PicturePoint, 4> shape{{{0, 0}, {-s / 4, s / 4}, {s, 0}, {-s / 4, -s / 4}}};
    FillHead(pic, PixelOf(pic, ellipse.At(t)), {dx * away, dy * away}, shape, true);
}

/// Sets the font for a part of a label while it lives.
class PartFont {
  public:
    PartFont(Picture& pic, LabelPart::Kind what)
        : pic_(pic), name_(pic.FontName), size_(pic.FontSize)
    {
        if (what == LabelPart::Kind::Greek) pic_.FontName = "Symbol";
        if (what == LabelPart::Kind::Subscript || what == LabelPart::Kind::Superscript)
            pic_.FontSize = size_ * kScriptSize;
    }
    PartFont(const PartFont&) = delete;
    PartFont& operator=(const PartFont&) = delete;
    ~PartFont()
    {
        pic_.FontName = name_;
        pic_.FontSize = size_;
    }

  private:
    Picture& pic_;
    std::string name_;
    double size_;
};

/// How far below the label's top a part starts, in text heights.
double DropOf(LabelPart::Kind what)
{
    if (what == LabelPart::Kind::Subscript) return kSubscriptDrop;
    return what == LabelPart::Kind::Superscript ? -kSuperscriptRise : 0;
}

/// The share of a label's width or height that lies before its anchor.
double ShareBefore(HAlign across)
{
    return across == HAlign::Left ? 0 : across == HAlign::Centre ? 0.5 : 1;
}

double ShareBefore(VAlign along)
{
    return along == VAlign::Top ? 0 : along == VAlign::Middle ? 0.5 : 1;
}

} // namespace

void DrawEllipsePolygon(Picture& pic, double a, double b, double rotation, double cx, double cy)
{
    const Ellipse ellipse{a, b, rotation, cx, cy};
    std::array<PicturePoint, kEllipseCorners> corners;
    for (int k = 0; k < kEllipseCorners; ++k)
        corners[k] = SnapToPixel(pic, ellipse.At(k * kTurn / kEllipseCorners));
    pic.Polygon(corners);
}

void DrawArcArrow(Picture& pic, double a, double b, double rotation, double cx, double cy,
                  double start, double end, bool headAtStart, double headSize)
{
    const Ellipse ellipse{a, b, rotation, cx, cy};
    const double from = RaisedTo(start, 0, false);
    const double to = RaisedTo(end, from, true);
    const double wanted = std::trunc((to - from) / kTurn * kArcSegmentsPerTurn);
    const int segments = static_cast<int>(std::clamp(wanted, 1.0, kMostArcSegments));
    std::vector<PicturePoint> points;
    points.reserve(segments + 1);
    for (int k = 0; k <= segments; ++k)
        points.push_back(SnapToPixel(pic, ellipse.At(from + (to - from) * k / segments)));
    pic.Polyline(points);
    DrawArcHead(pic, ellipse, headAtStart ? from : to, headAtStart, headSize);
}

std::array<PicturePoint, 4> ArrowPoints(double x, double y, double angle, int kind, double length,
                                        double headLength, double headHalfWidth)
{
    const bool tip = kind == kArrowTipAtPoint;
    const double side = tip ? length - headLength : headLength;
    const PicturePoint near{0, 0};
    const PicturePoint far{length, 0};
    std::array<PicturePoint, 4> points{
        tip ? far : near, {side, headHalfWidth}, {side, -headHalfWidth}, tip ? near : far};
    double turn = tip ? angle : angle + kPi;
    if (!tip && turn > kTurn) turn -= kTurn;
    for (PicturePoint& p : points)
        p = {x + p.X * std::cos(turn) - p.Y * std::sin(turn),
             y + p.X * std::sin(turn) + p.Y * std::cos(turn)};
    return points;
}

PixelRect RectToPicture(const Picture& pic, int rotation, const std::array<double, 4>& corners)
{
    const auto [left, bottom, right, top] = corners;
    PicturePoint lower{left, bottom};
    PicturePoint upper{right, top};
    if (rotation == 1) {
        lower = {-top, left};
        upper = {-bottom, right};
    } else if (rotation == 3) {
        lower = {bottom, -right};
        upper = {top, -left};
    }
    const PicturePoint foot = PixelOf(pic, lower);
    const PicturePoint head = PixelOf(pic, upper);
    return {head.Y, foot.X, head.X - foot.X, foot.Y - head.Y};
}

double LabelWidth(Picture& pic, const Label& label)
{
    double width = 0;
    for (const LabelPart& part : label) {
        const PartFont font(pic, part.What);
        width += pic.TextWidth(part.Text);
    }
    return width;
}

void PrintLabel(Picture& pic, double x, double y, const Label& label, HAlign across, VAlign along)
{
    const double right = pic.ScaleWidth() > 0 ? 1 : -1;
    const double down = pic.ScaleHeight() > 0 ? 1 : -1;
    const double height = pic.TextHeight("X");
    const double top = y - down * height * ShareBefore(along);
    pic.CurrentX = x - right * LabelWidth(pic, label) * ShareBefore(across);
    for (const LabelPart& part : label) {
        const PartFont font(pic, part.What);
        pic.CurrentY = top + down * height * DropOf(part.What);
        pic.Print(part.Text); // leaves CurrentX where the next part goes on
    }
    pic.CurrentY = top;
}

void PrintText(Picture& pic, double x, double y, const std::string& text, HAlign across,
               VAlign along)
{
    PrintLabel(pic, x, y, {{text, LabelPart::Kind::Plain}}, across, along);
}

void DrawArrow(Picture& pic, PicturePoint from, PicturePoint to, double headPixels)
{
    const PicturePoint tail = pic.ToPixels(from);
    const PicturePoint tip = pic.ToPixels(to);
    const double length = std::hypot(tip.X - tail.X, tip.Y - tail.Y);
    pic.Line(from.X, from.Y, to.X, to.Y);
    if (length == 0) return;
    const double head = std::min(headPixels, length);
    const double half = head * kArrowHeadSlope;
    const std::array<PicturePoint, 3> shape{{{0, 0}, {-head, half}, {-head, -half}}};
    FillHead(pic, tip, {(tip.X - tail.X) / length, (tip.Y - tail.Y) / length}, shape, false);
}

} // namespace forcelab
