#include "sections/ShapeMarks.h"

#include "core/DrawingHelpers.h"
#include "core/Units.h"
#include "sections/ShapeCatalogue.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace forcelab::sections {

namespace {

constexpr double kNumberSize = 9; // points
constexpr double kPad = 3;        // pixels between a number and the corner that it stands in
constexpr double kBeside = 12;    // pixels from an element to the number beside it
constexpr double kRule = 1;       // pixels that a rule keeps off its number

// The property block of the specified shape, pixels.
constexpr double kMargin = 8;
constexpr double kRowGap = 4;
constexpr double kLine = 16; // height of a line of its text
constexpr double kTextSize = 8;
constexpr double kCaptionWidth = 54; // of "About Z-Z"
constexpr double kUnitWidth = 28;    // of a unit with its power

constexpr int kInertiaZ = 4; // boxes of the specified shape
constexpr int kInertiaY = 5;
constexpr int kArea = 6;

/// Writes numbers where nothing else stands.
class Numbers {
  public:
    Numbers(Picture& pic, const CrossSection& section, std::span<const PixelRect> boxes)
        : pic_(pic), section_(section), elements_(ElementRects(pic, section)),
          taken_(boxes.begin(), boxes.end())
    {
        const PixelRect digit = TextRect(pic, {0, 0}, "3");
        size_ = {digit.Hi[0], digit.Hi[1]};
    }

    void WriteAll()
    {
        for (std::size_t k = 0; k < elements_.size(); ++k) {
            const std::string number = std::to_string(k + 1);
            if (IsRound(section_.ShapeIndex))
                WriteOnCircle(elements_[k], number);
            else if (elements_[k].Length(0) < size_[0] + kPad || elements_[k].Length(1) < size_[1])
                WriteBeside(elements_[k], section_.ElementLie[k] == 1, number);
            else
                WriteInside(elements_[k], number);
        }
    }

  private:
    /// On the radius at 45 degrees plus twice the width of a digit.
    void WriteOnCircle(const PixelRect& circle, const std::string& number)
    {
        const double reach = (circle.Length(0) / 2 + 2 * size_[0]) * std::cos(kPi / 4);
        Write({circle.Middle(0) + reach - size_[0] / 2, circle.Middle(1) - reach - size_[1] / 2},
              number);
    }

    void WriteInside(const PixelRect& e, const std::string& number)
    {
        const double left = e.Lo[0] + kPad;
        const double right = e.Hi[0] - kPad - size_[0];
        const double top = e.Lo[1] + std::min(1.0, (e.Length(1) - size_[1]) / 2);
        const double bottom = e.Hi[1] - size_[1] - std::min(1.0, (e.Length(1) - size_[1]) / 2);
        const double x = e.Middle(0) - size_[0] / 2;
        const double y = e.Middle(1) - size_[1] / 2;
        const std::array<PicturePoint, 9> tries{{{left, top},
                                                 {left, bottom},
                                                 {right, top},
                                                 {right, bottom},
                                                 {x, top},
                                                 {x, bottom},
                                                 {left, y},
                                                 {right, y},
                                                 {x, y}}};
        const auto free = std::find_if(tries.begin(), tries.end(),
                                       [this](PicturePoint at) { return IsFree(at, false); });
        Write(free == tries.end() ? tries[0] : *free, number);
    }

    /// Along a lying element above or below it, along a standing one at its left or right; then
    /// at the ends.
    void WriteBeside(const PixelRect& e, bool lies, const std::string& number)
    {
        for (const double share : {0.12, 0.3, 0.5, 0.7, 0.88})
            for (const double side : {-1.0, 1.0})
                if (TryBeside(e, lies, share, side, number)) return;
        for (const double side : {-1.0, 1.0})
            if (TryBeside(e, !lies, 0.5, side, number)) return;
    }

    bool TryBeside(const PixelRect& e, bool lies, double share, double side,
                   const std::string& number)
    {
        const int along = lies ? 0 : 1;
        const int across = 1 - along;
        std::array<double, 2> foot{};
        foot[along] = e.Lo[along] + share * e.Length(along);
        foot[across] = side < 0 ? e.Lo[across] : e.Hi[across];
        std::array<double, 2> middle = foot;
        middle[across] += side * (kBeside + size_[across] / 2);
        const PicturePoint at{middle[0] - size_[0] / 2, middle[1] - size_[1] / 2};
        if (!IsFree(at, true)) return false;
        middle[across] -= side * (size_[across] / 2 + kRule);
        const PicturePoint from = pic_.FromPixels({foot[0], foot[1]});
        const PicturePoint to = pic_.FromPixels({middle[0], middle[1]});
        pic_.Line(from.X, from.Y, to.X, to.Y);
        Write(at, number);
        return true;
    }

    [[nodiscard]] bool IsFree(PicturePoint at, bool offElements) const
    {
        const PixelRect rect{{at.X, at.Y}, {at.X + size_[0], at.Y + size_[1]}};
        const auto meets = [&rect](const PixelRect& other) { return Meet(rect, other, 1); };
        if (rect.Lo[0] < 0 || rect.Lo[1] < 0 || rect.Hi[0] > pic_.WidthPixels() ||
            rect.Hi[1] > pic_.HeightPixels())
            return false;
        return std::none_of(taken_.begin(), taken_.end(), meets) &&
               !(offElements && std::any_of(elements_.begin(), elements_.end(), meets));
    }

    void Write(PicturePoint at, const std::string& number)
    {
        PrintAt(pic_, at, number);
        taken_.push_back(TextRect(pic_, at, number));
    }

    Picture& pic_;
    const CrossSection& section_;
    std::vector<PixelRect> elements_;
    std::vector<PixelRect> taken_;
    std::array<double, 2> size_{};
};

void PrintUnit(Picture& pic, const PixelRect& box, const char* unit, const char* power)
{
    const PicturePoint at = pic.FromPixels({box.Hi[0] + kRowGap, box.Middle(1)});
    PrintLabel(pic, at.X, at.Y,
               {{unit, LabelPart::Kind::Plain}, {power, LabelPart::Kind::Superscript}},
               HAlign::Left, VAlign::Middle);
}

} // namespace

PixelRect TextRect(const Picture& pic, PicturePoint topLeft, std::string_view text)
{
    return {{topLeft.X, topLeft.Y},
            {topLeft.X + std::abs(pic.ScaleX(pic.TextWidth(text))),
             topLeft.Y + std::abs(pic.ScaleY(pic.TextHeight(text)))}};
}

void PrintAt(Picture& pic, PicturePoint topLeft, std::string_view text)
{
    const PicturePoint at = pic.FromPixels(topLeft);
    pic.CurrentX = at.X;
    pic.CurrentY = at.Y;
    pic.Print(text);
}

void WriteNumbersByShapes(Picture& pic, const CrossSection& section,
                          std::span<const PixelRect> boxes)
{
    pic.ForeColor = IndexedColour(0);
    pic.FontSize = kNumberSize;
    pic.FontBold = true;
    pic.FontTransparent = false; // black reads on no dark fill
    Numbers(pic, section, boxes).WriteAll();
    pic.FontTransparent = true;
    pic.FontBold = false;
}

double PropertyStripHeight(BoxSize box)
{
    return kMargin + kLine + 2 * (box.Height + kRowGap) + kMargin;
}

std::vector<BoxPlace> PropertyWishes(const Picture& pic, BoxSize box)
{
    const double first = kMargin + kLine + box.Height / 2;
    const double second = first + box.Height + kRowGap;
    const double right = pic.WidthPixels() - kMargin - kUnitWidth - box.Width / 2;
    return {{kArea, {kMargin + box.Width / 2, first}},
            {kInertiaZ, {right, first}},
            {kInertiaY, {right, second}}};
}

void PrintPropertyTexts(Picture& pic, std::span<const BoxPlace> places, BoxSize box, int lengthUnit)
{
    pic.ForeColor = IndexedColour(0);
    pic.FontSize = kTextSize;
    const char* unit = lengthUnit == 0 ? "in" : "mm";
    for (const BoxPlace& place : places) {
        const PixelRect rect = RectAround(place.Middle, box);
        const double above = rect.Lo[1] - kLine;
        const double left = rect.Lo[0] - kCaptionWidth - kRowGap;
        if (place.Box == kArea) PrintAt(pic, {rect.Lo[0], above}, "Cross-Sectional Area");
        if (place.Box == kInertiaZ) PrintAt(pic, {left, above}, "Moments of Inertia");
        if (place.Box == kInertiaZ) PrintAt(pic, {left, rect.Middle(1) - kLine / 2}, "About Z-Z");
        if (place.Box == kInertiaY) PrintAt(pic, {left, rect.Middle(1) - kLine / 2}, "About Y-Y");
        if (place.Box >= kInertiaZ) PrintUnit(pic, rect, unit, place.Box == kArea ? "2" : "4");
    }
}

} // namespace forcelab::sections
