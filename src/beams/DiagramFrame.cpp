#include "beams/DiagramFrame.h"

#include "beams/BeamCurves.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace forcelab::beams {

namespace {

constexpr double kLeftShare = 0.11;   // of the sheet's width
constexpr double kNarrowestLeft = 72; // "Deflection" stands there
constexpr double kWidestLeft = 84;
constexpr double kRightShare = 0.07;
constexpr double kNarrowestRight = 44;
constexpr double kWidestRight = 56;
constexpr double kGap = 2;
constexpr double kEdge = 1;
constexpr double kRounding = 0.001;
constexpr double kRowShrink = 2.5;  // rows of positions touch each other
constexpr double kSmallestFont = 6; // points

struct PositionLabel {
    PixelBox Box;
    std::string Text;
};

double RightMargin(const Picture& pic)
{
    return std::clamp(kRightShare * pic.WidthPixels(), kNarrowestRight, kWidestRight);
}

/// The first row in which a position has room, straight under its point.
std::optional<PixelBox> RowFor(const LabelBoard& board, const std::string& text, double column,
                               double top, double bottom)
{
    for (double y = top; y + board.LineHeight() <= bottom + kRounding; y += board.LineHeight()) {
        const PixelBox box = board.BoxOf(text, column, y, HAlign::Centre, VAlign::Top);
        if (board.IsFree({box.X1, box.Y1 + kRowShrink, box.X2, box.Y2 - kRowShrink})) return box;
    }
    return {};
}

std::vector<PositionLabel> ArrangePositions(Picture& pic, LabelBoard board,
                                            const std::vector<double>& points,
                                            const DiagramUnits& units, double top, double bottom)
{
    std::vector<PositionLabel> labels;
    for (const double x : points) {
        const std::string text = LengthText(x, units);
        const auto box = RowFor(board, text, ColumnOf(pic, x), top, bottom);
        if (!box) continue;
        board.Take({box->X1, box->Y1 + kRowShrink, box->X2, box->Y2 - kRowShrink});
        labels.push_back({*box, text});
    }
    return labels;
}

} // namespace

double LeftMargin(const Picture& pic)
{
    return std::clamp(kLeftShare * pic.WidthPixels(), kNarrowestLeft, kWidestLeft);
}

void ScaleFrame(Picture& pic, double beamLength, double top, double bottom)
{
    const double left = LeftMargin(pic);
    const double right = RightMargin(pic);
    const double perPixel = beamLength / std::max(1.0, pic.WidthPixels() - left - right);
    pic.Scale(-left * perPixel, top, beamLength + right * perPixel, bottom);
}

double ColumnOf(const Picture& pic, double x)
{
    return pic.ScaleX(x - pic.ScaleLeft());
}

PixelBox LabelBoard::BoxOf(const std::string& text, double x, double y, HAlign across,
                           VAlign along) const
{
    const double width = std::abs(pic_.ScaleX(pic_.TextWidth(text)));
    const double height = LineHeight();
    const double x1 = x - width * (across == HAlign::Left ? 0 : across == HAlign::Centre ? 0.5 : 1);
    const double y1 = y - height * (along == VAlign::Top ? 0 : along == VAlign::Middle ? 0.5 : 1);
    return {x1, y1, x1 + width, y1 + height};
}

bool LabelBoard::IsFree(const PixelBox& box) const
{
    if (box.X1 < kEdge || box.Y1 < 0 || box.X2 > pic_.WidthPixels() - kEdge ||
        box.Y2 > pic_.HeightPixels())
        return false;
    return std::none_of(taken_.begin(), taken_.end(),
                        [&box](const PixelBox& other) { return box.Meets(other, kGap); });
}

void LabelBoard::Print(const PixelBox& box, const std::string& text, Colour ink)
{
    const Colour before = std::exchange(pic_.ForeColor, ink);
    const PicturePoint at = pic_.FromPixels({box.X1, box.Y1});
    pic_.CurrentX = at.X;
    pic_.CurrentY = at.Y;
    pic_.Print(text);
    pic_.ForeColor = before;
}

void LabelBoard::Put(const PixelBox& box, const std::string& text, Colour ink)
{
    Take(box);
    Print(box, text, ink);
}

double LabelBoard::LineHeight() const
{
    return std::abs(pic_.ScaleY(pic_.TextHeight("X")));
}

std::vector<double> FontSteps(double fontSize)
{
    std::vector<double> steps{fontSize};
    while (steps.back() > kSmallestFont) steps.push_back(std::max(kSmallestFont, steps.back() - 1));
    return steps;
}

void FitText(Picture& pic, const std::string& text)
{
    for (const double step : FontSteps(pic.FontSize)) {
        pic.FontSize = step;
        if (std::abs(pic.ScaleX(pic.TextWidth(text))) <= pic.WidthPixels()) return;
    }
}

std::vector<double> PositionsToPrint(const BeamRecord& beam, const std::vector<double>& more)
{
    const PointList keys = BuildKeyPoints(beam);
    std::vector<double> points(keys.At.begin() + 1, keys.At.begin() + 1 + keys.Count);
    const auto isFirst = [&](double x) {
        return x == 0 || x == beam.BeamLength || x == beam.SupportA || x == beam.SupportB;
    };
    const auto loads = std::stable_partition(points.begin(), points.end(), isFirst);
    points.insert(loads, more.begin(), more.end());
    return points;
}

void PrintPositions(Picture& pic, LabelBoard& board, const std::vector<double>& points,
                    const DiagramUnits& units, double top, double bottom)
{
    const double fontSize = pic.FontSize;
    for (const double step : FontSteps(fontSize)) {
        pic.FontSize = step;
        const auto labels = ArrangePositions(pic, board, points, units, top, bottom);
        if (labels.size() < points.size() && step > kSmallestFont) continue;
        for (const PositionLabel& label : labels) board.Put(label.Box, label.Text, kInk);
        break;
    }
    pic.FontSize = fontSize;
}

void PixelLine(Picture& pic, PicturePoint from, PicturePoint to, Colour colour, double width)
{
    const Colour before = std::exchange(pic.ForeColor, colour);
    const double widthBefore = std::exchange(pic.DrawWidth, width);
    const PicturePoint a = pic.FromPixels(from);
    const PicturePoint b = pic.FromPixels(to);
    pic.Line(a.X, a.Y, b.X, b.Y);
    pic.ForeColor = before;
    pic.DrawWidth = widthBefore;
}

} // namespace forcelab::beams
