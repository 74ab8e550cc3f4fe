#include "truss/TrussSymbols.h"

#include "core/Units.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace forcelab::truss {

namespace {

constexpr double kAcrossShare = 66.66667; // of the scale width
constexpr double kAlongShare = 40;        // of the scale height
constexpr double kHatchStep = 0.99;
constexpr double kSupportWidth = 2;  // pixels
constexpr double kLabelGap = 2;      // pixels
constexpr double kLongestArc = 0.95; // of the member

int SideOf(int sense)
{
    return sense < 0 ? -1 : 1;
}

} // namespace

/// Directions of a support symbol: `out` away from the members, `side` along its base.
struct TrussSheet::Axis {
    PicturePoint Joint, Out, Side;
    [[nodiscard]] PicturePoint At(double out, double side) const
    {
        return {Joint.X + out * Out.X + side * Side.X, Joint.Y + out * Out.Y + side * Side.Y};
    }
};

TrussSheet::TrussSheet(Picture& pic, const TrussModel& model)
    : pic_(pic), placer_(pic), scale_(SetGridScale(model)),
      stretch_(std::abs(pic.ScaleY(1) / pic.ScaleX(1)))
{
    pic.FillStyle = FillPattern::Transparent;
    pic.DrawStyle = LinePattern::Solid;
}

void TrussSheet::Take(int colour, double width)
{
    pic_.ForeColor = IndexedColour(colour);
    pic_.DrawWidth = width;
}

void TrussSheet::Line(double x1, double y1, double x2, double y2)
{
    pic_.Line(x1, y1, x2, y2);
    placer_.KeepOffLine({x1, y1}, {x2, y2});
}

void TrussSheet::Label(const std::vector<PicturePoint>& places, double angle,
                       const std::string& text, int colour, LabelNeed need)
{
    LabelWish wish;
    for (const PicturePoint place : places) wish.Anchors.push_back({place, angle});
    wish.Text = {{text, LabelPart::Kind::Plain}};
    wish.Ink = IndexedColour(colour);
    wish.Needed = need != LabelNeed::IfRoom;
    wish.Leader = need == LabelNeed::Anywhere;
    if (placer_.Place(wish) || need != LabelNeed::Beside) return;
    wish.Anchors.resize(1);
    wish.Leader = true;
    placer_.Place(wish);
}

void TrussSheet::KeepOffCoordinates(double widest)
{
    const double left = pic_.ScaleLeft();
    const double top = pic_.ScaleTop();
    placer_.Reserve({left, top}, {left + pic_.ScaleWidth(), top - pic_.TextHeight("0")});
    placer_.Reserve({left, top},
                    {left + pic_.TextWidth("0") / 2 + widest, top + pic_.ScaleHeight()});
}

bool TrussSheet::IsFree(const Box& box) const
{
    if (box.Corner.X < 0 || box.Corner.Y < 0 || box.Opposite.X > pic_.WidthPixels() ||
        box.Opposite.Y > pic_.HeightPixels())
        return false;
    return std::none_of(taken_.begin(), taken_.end(), [&box](const Box& other) {
        return box.Corner.X < other.Opposite.X + kLabelGap &&
               other.Corner.X < box.Opposite.X + kLabelGap && box.Corner.Y < other.Opposite.Y &&
               other.Corner.Y < box.Opposite.Y;
    });
}

/// On the ground colour; the box counts as lines for the labels that are placed later.
void TrussSheet::PrintOn(const Box& box, const std::string& text, int colour)
{
    const PicturePoint at = pic_.FromPixels(box.Corner);
    const PicturePoint end = pic_.FromPixels(box.Opposite);
    pic_.ForeColor = IndexedColour(colour);
    pic_.FontTransparent = false;
    pic_.CurrentX = at.X;
    pic_.CurrentY = at.Y;
    pic_.Print(text);
    pic_.FontTransparent = true;
    placer_.KeepOffLine(at, end);
    placer_.KeepOffLine({at.X, end.Y}, {end.X, at.Y});
    taken_.push_back(box);
}

void TrussSheet::LabelOn(const std::vector<PicturePoint>& places, const std::string& text,
                         int colour)
{
    const double width = std::abs(pic_.ScaleX(pic_.TextWidth(text)));
    const double height = std::abs(pic_.ScaleY(pic_.TextHeight(text)));
    for (const PicturePoint place : places) {
        const PicturePoint centre = pic_.ToPixels(place);
        const Box box{{centre.X - width / 2, centre.Y - height / 2},
                      {centre.X + width / 2, centre.Y + height / 2}};
        if (IsFree(box)) return PrintOn(box, text, colour);
    }
}

double TrussSheet::SeenAngle(double dx, double dy) const
{
    return std::atan2(dy * stretch_, dx);
}

/// The base line, three units wide, with three strokes behind it.
void TrussSheet::DrawBase(const Axis& axis)
{
    const auto stroke = [&](PicturePoint from, PicturePoint to) {
        Line(from.X, from.Y, to.X, to.Y);
    };
    stroke(axis.At(1, -1.5), axis.At(1, 1.5));
    for (const int k : {-1, 0, 1})
        stroke(axis.At(1, k * kHatchStep), axis.At(1.5, k * kHatchStep - 0.5));
}

void TrussSheet::DrawPin(const Axis& axis)
{
    const std::array<PicturePoint, 3> corners{axis.Joint, axis.At(1, 1), axis.At(1, -1)};
    pic_.Polygon(corners);
    for (std::size_t k = 0; k < corners.size(); ++k)
        placer_.KeepOffLine(corners[k], corners[(k + 1) % corners.size()]);
}

void TrussSheet::DrawRoller(const Axis& axis)
{
    const PicturePoint centre = axis.At(0.5, 0);
    const double radius =
        std::max(std::abs(axis.Out.X), std::abs(axis.Out.Y) * stretch_) / 2; // in units of x
    pic_.Circle(centre.X, centre.Y, radius);
    placer_.KeepOffCircle(centre, radius);
}

void TrussSheet::DrawSupport(const TrussGridPoint& point, int senseX, int senseY)
{
    const bool pin = point.SupportX == 1 && point.SupportY == 1;
    const bool upright = pin ? std::abs(senseY) >= std::abs(senseX) : point.SupportY == 1;
    const double across = (scale_.Right - scale_.Left) / kAcrossShare;
    const double along = (scale_.Top - scale_.Bottom) / kAlongShare;
    Axis axis{{point.X, point.Y}, {}, {}};
    if (upright) {
        axis.Out = {0, -SideOf(senseY) * along};
        axis.Side = {across, 0};
    } else {
        axis.Out = {-SideOf(senseX) * along * stretch_, 0};
        axis.Side = {0, across / stretch_};
    }
    Take(kSupportColour, kSupportWidth);
    if (pin)
        DrawPin(axis);
    else
        DrawRoller(axis);
    DrawBase(axis);
}

PicturePoint TrussSheet::DrawArrow(const TrussGridPoint& point, double value, int sense,
                                   bool upright)
{
    const double d = value < 0 ? -1 : 1;
    const double s = SideOf(sense);
    const PicturePoint end = upright ? PicturePoint{point.X, point.Y - s * scale_.LoadArrowY}
                                     : PicturePoint{point.X - s * scale_.LoadArrowX, point.Y};
    Line(point.X, point.Y, end.X, end.Y);
    // At the joint where it pushes toward the members, else at the far end.
    const PicturePoint head = d == s ? PicturePoint{point.X, point.Y} : end;
    for (const int side : {-1, 1}) {
        const double dx = upright ? side * scale_.ArrowHeadX / 4 : -d * scale_.ArrowHeadX;
        const double dy = upright ? -d * scale_.ArrowHeadY : side * scale_.ArrowHeadY / 4;
        Line(head.X, head.Y, head.X + dx, head.Y + dy);
    }
    return end;
}

PicturePoint TrussSheet::DrawAngle(const TrussGridPoint& from, double dx, double dy, int ring)
{
    const double length = std::hypot(dx, dy * stretch_);
    const double radius = std::min(pic_.TextWidth("000.000") * ring, kLongestArc * length);
    const double angle = SeenAngle(std::abs(dx), std::abs(dy));
    const double level = dx > 0 ? 0 : kPi; // where the sweep starts, the x axis toward the member
    const bool counterclockwise = (dx > 0) == (dy > 0);
    const double start = counterclockwise ? level : level - angle;
    if (angle > 0) pic_.Circle(from.X, from.Y, radius, start, start + angle);
    const double middle = start + angle / 2;
    return {from.X + radius * std::cos(middle), from.Y + radius * std::sin(middle) / stretch_};
}

} // namespace forcelab::truss
