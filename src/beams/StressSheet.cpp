#include "beams/StressSheet.h"

#include "core/Units.h"

#include <algorithm>
#include <cmath>

namespace forcelab::beams {

namespace {

// Pixels, and points of the fonts.
constexpr double kPad = 8;
constexpr double kBlockGap = 18;    // between two blocks side by side
constexpr double kAboveTitle = 4;   // and below it
constexpr double kRoom = 21;        // for labels above and below the section
constexpr double kMostBeside = 0.4; // of the height
constexpr double kLeastDrawing = 30;
constexpr double kSide = 5;       // beside a level across the sheet
constexpr double kArrowStep = 13; // between two stress arrows, at least
constexpr double kShortest = 3;   // arrow that still shows
constexpr double kDot = 3;
constexpr double kHead = 7;
constexpr double kFont = 9;
constexpr double kSmallFont = 8;
constexpr double kSmallPicture = 260;
constexpr double kLineShare = 1.15; // of the text height, from line to line

} // namespace

StressSheet::StressSheet(Picture& pic, const SectionBounds& inches, const std::string& title,
                         const std::vector<TextBlock>& blocks, const std::vector<TextBlock>& beside)
    : pic_(pic), placer_(pic), bounds_(inches)
{
    Prepare();
    const Layout layout = LayOut(blocks);
    const double other = LayOut(beside).Height;
    const bool isHigh = other > kMostBeside * pic.HeightPixels(); // too high to follow
    const double below = isHigh ? layout.Height : std::max(layout.Height, other);
    blocksTop_ = pic.HeightPixels() - below - kPad;
    const double top = LinePixels() + 2 * kAboveTitle + kRoom;
    const double room = std::max(blocksTop_ - kRoom - top, kLeastDrawing);
    const double inch = std::max(inches.Depth(), 1e-300) / room;
    const double high = inches.SectionTop + inch * top;
    pic.Scale(0, high, pic.WidthPixels(), high - inch * pic.HeightPixels());
    WriteTitle(title);
    Write(blocks, layout);
}

void StressSheet::WriteTitle(const std::string& title)
{
    const PicturePoint at = pic_.FromPixels({Width() / 2, kAboveTitle});
    pic_.FontBold = true;
    PrintText(pic_, at.X, at.Y, title, HAlign::Centre);
    pic_.FontBold = false;
    placer_.Reserve(pic_.FromPixels({0, 0}),
                    pic_.FromPixels({Width(), kAboveTitle + LinePixels()}));
}

void StressSheet::Prepare()
{
    pic_.ScaleToPixels();
    pic_.BackColor = Rgb(255, 255, 255);
    pic_.ForeColor = kStressInk;
    pic_.FillStyle = FillPattern::Transparent;
    pic_.DrawStyle = LinePattern::Solid;
    pic_.FontName = "MS Sans Serif";
    pic_.FontBold = false;
    pic_.FontItalic = false;
    pic_.FontSize =
        std::min(pic_.WidthPixels(), pic_.HeightPixels()) < kSmallPicture ? kSmallFont : kFont;
    pic_.Cls();
}

double StressSheet::LinePixels() const
{
    return std::abs(pic_.ScaleY(pic_.TextHeight("X"))) * kLineShare;
}

double StressSheet::TextPixels(const std::string& text) const
{
    return std::abs(pic_.ScaleX(pic_.TextWidth(text)));
}

StressSheet::Layout StressSheet::LayOut(const std::vector<TextBlock>& blocks) const
{
    Layout layout;
    PicturePoint at{kPad, 0};
    for (const TextBlock& block : blocks) {
        double width = 0;
        for (const Label& line : block) width = std::max(width, LabelWidth(pic_, line));
        if (at.X > kPad && at.X + width > pic_.WidthPixels() - kPad) at = {kPad, layout.Height};
        layout.Corners.push_back(at);
        layout.Height =
            std::max(layout.Height, at.Y + LinePixels() * static_cast<double>(block.size()));
        at.X += width + kBlockGap;
    }
    return layout;
}

void StressSheet::Write(const std::vector<TextBlock>& blocks, const Layout& layout)
{
    for (std::size_t i = 0; i < blocks.size(); ++i) {
        double y = blocksTop_ + layout.Corners[i].Y;
        for (const Label& line : blocks[i]) {
            PrintLabel(pic_, layout.Corners[i].X, pic_.FromPixels({0, y}).Y, line);
            y += LinePixels();
        }
    }
    placer_.Reserve(pic_.FromPixels({0, blocksTop_}),
                    pic_.FromPixels({Width(), pic_.HeightPixels()}));
}

void StressSheet::Take(const Pen& pen)
{
    pic_.ForeColor = pen.Ink;
    pic_.DrawWidth = pen.Width;
    pic_.DrawStyle = pen.Pattern;
}

void StressSheet::Line(PicturePoint from, PicturePoint to, const Pen& pen)
{
    Take(pen);
    pic_.Line(from.X, from.Y, to.X, to.Y);
    Take({kStressInk});
    placer_.KeepOffLine(from, to);
}

void StressSheet::Arrow(PicturePoint from, PicturePoint to, Colour ink)
{
    Take({ink});
    DrawArrow(pic_, from, to, kHead);
    placer_.KeepOffLine(from, to);
}

void StressSheet::StressArrow(PicturePoint from, PicturePoint to, Colour ink)
{
    if (std::abs(to.X - from.X) > kShortest) Arrow(from, to, ink);
}

std::vector<double> StressSheet::ArrowLevels() const
{
    const double count = std::max(1.0, std::floor(bounds_.Depth() / Inches(kArrowStep)));
    std::vector<double> levels;
    for (double i = 0.5; i < count; ++i)
        levels.push_back(bounds_.SectionBottom + bounds_.Depth() * i / count);
    return levels;
}

void StressSheet::NeutralAxis(double y, bool nameAtLeft)
{
    const double right = Width() - kSide;
    Line({kSide, y}, {right, y}, {kNeutralInk, 1, LinePattern::DashDot});
    Text({nameAtLeft ? kSide : right, y}, "N.A.", nameAtLeft ? kPi / 4 : kPi * 3 / 4, kNeutralInk);
}

void StressSheet::PointLevel(PicturePoint at)
{
    Line({kSide, at.Y}, {Width() - kSide, at.Y}, {kPointInk, 1, LinePattern::Dot});
    Dot(at, kPointInk);
}

void StressSheet::Area(const std::vector<PicturePoint>& corners, Colour fill)
{
    pic_.DrawStyle = LinePattern::Invisible;
    pic_.FillStyle = FillPattern::Solid;
    pic_.FillColor = fill;
    pic_.Polygon(corners);
    pic_.FillStyle = FillPattern::Transparent;
    pic_.DrawStyle = LinePattern::Solid;
}

void StressSheet::Outline(const std::vector<PicturePoint>& corners, const Pen& pen)
{
    Take(pen);
    pic_.Polyline(corners);
    Take({kStressInk});
    for (std::size_t i = 1; i < corners.size(); ++i)
        placer_.KeepOffLine(corners[i - 1], corners[i]);
}

void StressSheet::Dot(PicturePoint at, Colour ink)
{
    Take({ink});
    pic_.FillStyle = FillPattern::Solid;
    pic_.FillColor = ink;
    pic_.Circle(at.X, at.Y, pic_.UserWidth(kDot));
    pic_.FillStyle = FillPattern::Transparent;
}

void StressSheet::Mark(PicturePoint middle, const std::string& text)
{
    pic_.ForeColor = kStressInk;
    PrintText(pic_, middle.X, middle.Y, text, HAlign::Centre, VAlign::Middle);
    const double across = TextPixels(text) / 2;
    const double up = Inches(LinePixels() / 2);
    placer_.Reserve({middle.X - across, middle.Y + up}, {middle.X + across, middle.Y - up});
}

void StressSheet::Text(PicturePoint at, const std::string& text, double angle, Colour ink,
                       bool needed)
{
    LabelWish wish;
    wish.Anchors = {{at, angle}};
    wish.Text = PlainLabel(text);
    wish.Ink = ink;
    wish.Needed = needed;
    placer_.Place(wish);
}

Label PlainLabel(std::string text)
{
    return {{std::move(text), LabelPart::Kind::Plain}};
}

TextBlock BlockAtPoint(const std::string& name, const std::string& value)
{
    return {PlainLabel(name), PlainLabel("specified coordinates"), PlainLabel("= " + value)};
}

std::vector<TextBlock> BlocksBeside(const sections::CrossSection& section,
                                    const StressDetails& details)
{
    if (details.KeyStressView != kShearView) return {};
    return ShearBlocks(section, details);
}

} // namespace forcelab::beams
