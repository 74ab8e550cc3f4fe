#include "core/RecordingPicture.h"

#include "core/Units.h"

#include <algorithm>
#include <cmath>

namespace forcelab {

namespace {

constexpr double kPixelsPerPoint = 96.0 / 72.0;
constexpr double kWidthShare = 0.6;   // of the font size, for each character
constexpr double kHeightShare = 1.25; // of the font size
constexpr double kMeeting = 0.5;      // pixels between ends of lines that count as one point
constexpr int kCircleCorners = 72;

std::size_t CharacterCount(std::string_view text)
{
    return std::count_if(text.begin(), text.end(), [](char c) { return (c & 0xC0) != 0x80; });
}

} // namespace

bool RecordingPicture::Outline::Holds(PicturePoint p) const
{
    bool inside = false;
    for (std::size_t i = 0, j = Corners.size() - 1; i < Corners.size(); j = i++) {
        const PicturePoint& a = Corners[i];
        const PicturePoint& b = Corners[j];
        if ((a.Y > p.Y) == (b.Y > p.Y)) continue;
        if (p.X < (b.X - a.X) * (p.Y - a.Y) / (b.Y - a.Y) + a.X) inside = !inside;
    }
    return inside;
}

double RecordingPicture::Outline::Area() const
{
    double twice = 0;
    for (std::size_t i = 0, j = Corners.size() - 1; i < Corners.size(); j = i++)
        twice += Corners[j].X * Corners[i].Y - Corners[i].X * Corners[j].Y;
    return std::abs(twice) / 2;
}

RecordingPicture::RecordingPicture(double widthPixels, double heightPixels)
    : width_(widthPixels), height_(heightPixels)
{
    ScaleToPixels();
}

std::vector<RecordedOperation> RecordingPicture::All(RecordedOperation::Kind what) const
{
    std::vector<RecordedOperation> found;
    std::copy_if(operations_.begin(), operations_.end(), std::back_inserter(found),
                 [what](const RecordedOperation& op) { return op.What == what; });
    return found;
}

std::vector<RecordingPicture::PixelBox> RecordingPicture::TextBoxes() const
{
    std::vector<PixelBox> boxes;
    for (const RecordedOperation& op : All(RecordedOperation::Kind::Text)) {
        const PicturePoint a = ToPixels(op.Points[0]);
        const PicturePoint b = ToPixels(op.Points[1]);
        boxes.push_back({std::min(a.X, b.X), std::min(a.Y, b.Y), std::max(a.X, b.X),
                         std::max(a.Y, b.Y), op.Text});
    }
    return boxes;
}

RecordedOperation& RecordingPicture::Record(RecordedOperation::Kind what,
                                            std::vector<PicturePoint> points)
{
    RecordedOperation op;
    op.What = what;
    op.Points = std::move(points);
    op.Fore = ForeColor;
    op.Fill = FillColor;
    op.Pattern = FillStyle;
    op.Line = DrawStyle;
    op.Width = DrawWidth;
    return operations_.emplace_back(std::move(op));
}

void RecordingPicture::DrawClear()
{
    operations_.clear();
    chain_ = {};
    outlines_.clear();
    areas_.clear();
}

void RecordingPicture::DrawDot(PicturePoint at)
{
    Record(RecordedOperation::Kind::Dot, {at});
}

void RecordingPicture::DrawPath(std::span<const PicturePoint> points, bool closed)
{
    Record(RecordedOperation::Kind::Path, {points.begin(), points.end()}).Closed = closed;
    FollowOutline(points, closed);
}

bool RecordingPicture::Meet(PicturePoint a, PicturePoint b) const
{
    return std::hypot(ScaleX(a.X - b.X), ScaleY(a.Y - b.Y)) < kMeeting;
}

void RecordingPicture::AddOutline(std::vector<PicturePoint> corners)
{
    outlines_.push_back({std::move(corners), ForeColor});
    if (FillStyle == FillPattern::Solid) areas_.push_back({outlines_.back(), FillColor, {}});
}

void RecordingPicture::FollowOutline(std::span<const PicturePoint> points, bool closed)
{
    if (closed) return AddOutline({points.begin(), points.end()});
    std::vector<PicturePoint>& chain = chain_.Corners;
    if (chain.empty() || chain_.Ink != ForeColor || !Meet(chain.back(), points.front()))
        chain_ = {{points.begin(), points.end()}, ForeColor};
    else
        chain.insert(chain.end(), points.begin() + 1, points.end());
    if (chain.size() > 3 && Meet(chain.front(), chain.back())) {
        outlines_.push_back(chain_);
        chain_ = {};
    }
}

void RecordingPicture::DrawSolidBox(PicturePoint corner, PicturePoint opposite)
{
    Record(RecordedOperation::Kind::SolidBox, {corner, opposite});
    const Outline edge{{corner, {opposite.X, corner.Y}, opposite, {corner.X, opposite.Y}},
                       ForeColor};
    areas_.push_back({edge, ForeColor, {}});
}

void RecordingPicture::DrawWholeEllipse(PicturePoint centre, double radius, double aspect)
{
    RecordedOperation& op = Record(RecordedOperation::Kind::Ellipse, {centre});
    op.Radius = radius;
    op.Aspect = aspect;
    const double along = UserHeight(std::abs(ScaleX(radius)) * aspect);
    std::vector<PicturePoint> corners;
    for (int k = 0; k < kCircleCorners; ++k) {
        const double t = k * 2 * kPi / kCircleCorners;
        corners.push_back({centre.X + radius * std::cos(t), centre.Y + along * std::sin(t)});
    }
    AddOutline(std::move(corners));
}

void RecordingPicture::DrawText(PicturePoint at, std::string_view text)
{
    const double right = ScaleWidth() > 0 ? 1 : -1;
    const double down = ScaleHeight() > 0 ? 1 : -1;
    const PicturePoint corner{at.X + right * UserWidth(TextWidthPixels(text)),
                              at.Y + down * UserHeight(TextHeightPixels(text))};
    Record(RecordedOperation::Kind::Text, {at, corner}).Text = text;
}

void RecordingPicture::DrawFlood(PicturePoint seed, Colour boundary)
{
    Record(RecordedOperation::Kind::Flood, {seed});
    std::vector<Outline> bounds;
    std::copy_if(outlines_.begin(), outlines_.end(), std::back_inserter(bounds),
                 [boundary](const Outline& outline) { return outline.Ink == boundary; });
    const Outline* smallest = nullptr;
    for (const Outline& outline : bounds)
        if (outline.Holds(seed) && (!smallest || outline.Area() < smallest->Area()))
            smallest = &outline;
    if (!smallest) return;
    FilledArea area{*smallest, FillColor, {}};
    for (const Outline& outline : bounds)
        if (!outline.Holds(seed) && smallest->Holds(outline.Corners.front()))
            area.Holes.push_back(outline);
    areas_.push_back(std::move(area));
}

Colour RecordingPicture::ReadColour(PicturePoint at) const
{
    const PicturePoint pixels = ToPixels(at);
    if (pixels.X < 0 || pixels.Y < 0 || pixels.X > width_ || pixels.Y > height_) return BackColor;
    const auto holds = [at](const Outline& outline) { return outline.Holds(at); };
    for (auto area = areas_.rbegin(); area != areas_.rend(); ++area)
        if (holds(area->Edge) && std::none_of(area->Holes.begin(), area->Holes.end(), holds))
            return area->Fill;
    return BackColor;
}

void RecordingPicture::DrawNamedPicture(std::string_view name, PicturePoint corner,
                                        PicturePoint opposite)
{
    Record(RecordedOperation::Kind::NamedPicture, {corner, opposite}).Text = name;
}

double RecordingPicture::TextWidthPixels(std::string_view text) const
{
    return static_cast<double>(CharacterCount(text)) * FontSize * kPixelsPerPoint * kWidthShare;
}

double RecordingPicture::TextHeightPixels(std::string_view /*text*/) const
{
    return FontSize * kPixelsPerPoint * kHeightShare;
}

} // namespace forcelab
