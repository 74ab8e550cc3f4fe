#include "sections/SectionDrawing.h"

#include "core/DrawingHelpers.h"
#include "sections/BoxPlacement.h"
#include "sections/ShapeCatalogue.h"
#include "sections/ShapeMarks.h"

#include <algorithm>
#include <cmath>

namespace forcelab::sections {

namespace {

constexpr double kMarginFactor = 1.6;
constexpr double kRectangleAspect = 6; // beyond which a rectangle is drawn out of scale
constexpr double kOtherAspect = 2.5;
constexpr double kNoOffset = 0.001; // of principal axes that lie on Y and Z

// Indexed colours.
constexpr int kBlack = 0;
constexpr int kDimensionColour = 2;
constexpr int kPrincipalColour = 3;
constexpr int kHollowGrey = 7;
constexpr int kAxisColour = 12;
constexpr std::array<int, 4> kSpecifiedColours{5, 13, 1, 2};

// Pixels, and points of the fonts.
constexpr double kExtension = 5;  // of extension lines beyond the dimension line
constexpr double kInset = 6;      // of texts from the picture's edge
constexpr double kLeaderFrom = 4; // a box so far off its line is joined to it
constexpr double kAxisFont = 10;
constexpr double kNoteFont = 9;
constexpr double kLineReach = 3; // what a box keeps clear on either side of a line

// What covering them costs a box, in pixels of distance.
constexpr double kTextCost = 300;
constexpr double kLineCost = 30;
constexpr double kElementCost = 10;

constexpr std::string_view kToScale = "To scale";
constexpr std::string_view kZoomX = "Zoom X";
constexpr std::string_view kZoomY = "Zoom Y";

/// Least and greatest z and y of the shown elements and of the origin.
Corners ReachOf(const CrossSection& section)
{
    Corners reach;
    for (int k = 0; k < kElements; ++k) {
        if (!section.Shown[k]) continue;
        const Corners& c = section.ElementCorners[k];
        reach = {std::min(reach.Left, c.Left), std::min(reach.Bottom, c.Bottom),
                 std::max(reach.Right, c.Right), std::max(reach.Top, c.Top)};
    }
    return reach;
}

/// Draws one shape and finds the places of its boxes.
class ShapePainter {
  public:
    ShapePainter(Picture& pic, const CrossSection& section, const SectionEntry& entry, BoxSize box)
        : pic_(pic), section_(section), entry_(entry), box_(box),
          specified_(section.ShapeIndex == kSpecified)
    {}

    std::vector<BoxPlace> Draw()
    {
        SetScale();
        DrawElements();
        MeasureTexts();
        const auto lines = LayDimensions(pic_, section_, box_);
        const std::vector<BoxPlace> places = Place(lines);
        DrawAxes(places);
        DrawPrincipalAxes();
        for (const DimensionLine& line : lines) DrawDimension(line, RectOf(places, line.Box));
        WriteTexts(places);
        return places;
    }

  private:
    /// The same number of pixels for half the width as for half the height of the scale, about
    /// the middle of the picture, whose rest shows what lies beyond.
    void SetScale()
    {
        scale_ = ScalePicture(section_);
        const double width = pic_.WidthPixels();
        const double height = pic_.HeightPixels();
        const double strips = specified_ ? 2 * PropertyStripHeight(box_) : 0;
        const double side = std::max(1.0, std::min(width, height - strips));
        const double zHalf = scale_.ZHalf * width / side;
        const double yHalf = scale_.YHalf * height / side;
        pic_.Scale(-zHalf, yHalf, zHalf, -yHalf);
        pic_.BackColor = IndexedColour(15);
        pic_.Cls();
        pic_.DrawWidth = 1;
        pic_.DrawStyle = LinePattern::Solid;
        pic_.FontName = "Arial";
    }

    void MeasureTexts()
    {
        const PicturePoint origin = pic_.ToPixels({0, 0});
        const double width = pic_.WidthPixels();
        const double height = pic_.HeightPixels();
        pic_.FontSize = kAxisFont;
        const PixelRect letter = TextRect(pic_, {0, 0}, "Y");
        const double top = specified_ ? PropertyStripHeight(box_) : kInset / 2;
        yLabels_ = {PicturePoint{origin.X + kInset, top},
                    PicturePoint{origin.X + kInset, height - letter.Hi[1] - kInset / 2}};
        zLabels_ = {PicturePoint{kInset, origin.Y - letter.Hi[1] - 2},
                    PicturePoint{width - kInset - letter.Hi[0], origin.Y - letter.Hi[1] - 2}};
        pic_.FontSize = kNoteFont;
        const double noteHeight = TextRect(pic_, {0, 0}, scale_.Note()).Hi[1];
        note_ = {kInset, height - noteHeight - kInset};
    }

    // --- the section

    [[nodiscard]] Colour ColourOf(int element) const
    {
        if (specified_) return IndexedColour(kSpecifiedColours[element]);
        if (IsRound(section_.ShapeIndex)) return IndexedColour(element == 0 ? kBlack : kHollowGrey);
        return entry_.Swatch[element];
    }

    void DrawElements()
    {
        pic_.ForeColor = IndexedColour(kBlack);
        pic_.FillStyle = FillPattern::Solid;
        for (int k = 0; k < kElements; ++k) {
            if (!section_.Shown[k] || (specified_ && k > 3)) continue;
            const Corners& c = section_.ElementCorners[k];
            pic_.FillColor = ColourOf(k);
            if (IsRound(section_.ShapeIndex))
                pic_.Circle(0, 0, std::abs(c.Top));
            else
                FillElement(c);
        }
        pic_.FillStyle = FillPattern::Transparent;
    }

    void FillElement(const Corners& c)
    {
        pic_.ForeColor = pic_.FillColor;
        pic_.FilledBox(c.Left, c.Top, c.Right, c.Bottom);
        pic_.ForeColor = IndexedColour(kBlack);
        pic_.FillStyle = FillPattern::Transparent;
        pic_.Box(c.Left, c.Top, c.Right, c.Bottom);
        pic_.FillStyle = FillPattern::Solid;
    }

    void DrawAxes(const std::vector<BoxPlace>& places)
    {
        const double right = pic_.ScaleLeft() + pic_.ScaleWidth();
        const double bottom = pic_.ScaleTop() + pic_.ScaleHeight();
        const double top = pic_.FromPixels({0, specified_ ? PropertyStripHeight(box_) : 0}).Y;
        pic_.ForeColor = IndexedColour(kAxisColour);
        pic_.DrawWidth = 1;
        pic_.Line(pic_.ScaleLeft(), 0, right, 0);
        pic_.Line(0, top, 0, bottom);
        pic_.FontSize = kAxisFont;
        pic_.FontBold = true;
        for (const PicturePoint at : yLabels_) PrintAt(pic_, at, "Y");
        if (SpacingIsAcross()) PutZBesideSpacing(places);
        for (const PicturePoint at : zLabels_) PrintAt(pic_, at, "Z");
        pic_.FontBold = false;
    }

    [[nodiscard]] bool SpacingIsAcross() const
    {
        return section_.ShapeIndex == kDoubleI && section_.ElementLie[0] == 1;
    }

    /// The right label of the double I stands beside its spacing box, which is at that end.
    void PutZBesideSpacing(const std::vector<BoxPlace>& places)
    {
        const PixelRect box = RectOf(places, 4);
        const double left = box.Hi[0] + kInset;
        zLabels_[1].X = std::min(left, zLabels_[1].X);
    }

    /// Axes that lie on Y and Z are drawn already.
    void DrawPrincipalAxes()
    {
        if (!section_.SectionComputed) return;
        const auto& [z1, y1, z2, y2] = section_.PrincipalAxisEnds;
        const auto none = [](double a, double b) {
            return std::abs(a) < kNoOffset && std::abs(b) < kNoOffset;
        };
        if (none(y1, z2) || none(z1, y2)) return;
        pic_.ForeColor = IndexedColour(kPrincipalColour);
        pic_.Line(-z1, -y1, z1, y1);
        pic_.Line(-z2, -y2, z2, y2);
    }

    // --- dimensions

    [[nodiscard]] std::vector<BoxPlace> Place(const std::vector<DimensionLine>& lines) const
    {
        std::vector<BoxPlace> wishes;
        if (specified_) wishes = PropertyWishes(pic_, box_);
        for (const DimensionLine& line : lines) wishes.push_back({line.Box, line.Wish});
        std::vector<Obstacle> obstacles = TextObstacles();
        for (const PixelRect& element : ElementRects(pic_, section_))
            obstacles.push_back({element, kElementCost});
        for (const DimensionLine& line : lines) AddLine(line, obstacles);
        return PlaceBoxes(wishes, box_, pic_.WidthPixels(), pic_.HeightPixels(), obstacles);
    }

    [[nodiscard]] std::vector<Obstacle> TextObstacles() const
    {
        std::vector<Obstacle> obstacles;
        const auto add = [&](PicturePoint at, std::string_view text) {
            obstacles.push_back({TextRect(pic_, at, text), kTextCost});
        };
        if (!specified_) add(note_, scale_.Note());
        for (const PicturePoint at : yLabels_) add(at, "Y");
        add(zLabels_[0], "Z");
        if (!SpacingIsAcross()) add(zLabels_[1], "Z");
        return obstacles;
    }

    [[nodiscard]] static PicturePoint Pixel(const DimensionLine& line, double along, double across)
    {
        return line.Axis == 0 ? PicturePoint{along, across} : PicturePoint{across, along};
    }

    /// A line may be covered by its own box alone, its ends by none.
    static void AddLine(const DimensionLine& line, std::vector<Obstacle>& obstacles)
    {
        const BoxSize head{2 * kLineReach, 2 * kLineReach};
        const PixelRect from = RectAround(Pixel(line, line.From, line.At), head);
        const PixelRect to = RectAround(Pixel(line, line.To, line.At), head);
        obstacles.push_back({from, kLineCost});
        obstacles.push_back({to, kLineCost});
        obstacles.push_back({{from.Lo, to.Hi}, kLineCost, line.Box});
    }

    [[nodiscard]] PixelRect RectOf(const std::vector<BoxPlace>& places, int box) const
    {
        const auto place = std::find_if(places.begin(), places.end(),
                                        [box](const BoxPlace& p) { return p.Box == box; });
        return place == places.end() ? PixelRect{} : RectAround(place->Middle, box_);
    }

    void DrawDimension(const DimensionLine& line, const PixelRect& box)
    {
        pic_.ForeColor = IndexedColour(kDimensionColour);
        pic_.DrawWidth = 1;
        Segment(Pixel(line, line.LineFrom, line.At), Pixel(line, line.LineTo, line.At));
        DrawHead(line, line.From, line.HeadsOutside ? -1 : 1);
        DrawHead(line, line.To, line.HeadsOutside ? 1 : -1);
        if (line.Foot != line.At) {
            const double end = line.At + (line.At > line.Foot ? kExtension : -kExtension);
            Segment(Pixel(line, line.From, line.Foot), Pixel(line, line.From, end));
            Segment(Pixel(line, line.To, line.Foot), Pixel(line, line.To, end));
        }
        DrawLeader(line, box);
    }

    /// An arrowhead with its tip at `tip` whose body lies on `side` of it.
    void DrawHead(const DimensionLine& line, double tip, int side)
    {
        const PicturePoint from = pic_.FromPixels(Pixel(line, tip + side * kHeadPixels, line.At));
        DrawArrow(pic_, from, pic_.FromPixels(Pixel(line, tip, line.At)), kHeadPixels);
    }

    /// Joins a box that had to give way to the line that it belongs to.
    void DrawLeader(const DimensionLine& line, const PixelRect& box)
    {
        const double middle = std::clamp(box.Middle(line.Axis), line.LineFrom, line.LineTo);
        const double along = line.BoxSide == 0  ? middle
                             : line.BoxSide < 0 ? line.LineFrom
                                                : line.LineTo;
        const PicturePoint from = Pixel(line, along, line.At);
        const PicturePoint to{std::clamp(from.X, box.Lo[0], box.Hi[0]),
                              std::clamp(from.Y, box.Lo[1], box.Hi[1])};
        if (std::hypot(to.X - from.X, to.Y - from.Y) >= kLeaderFrom) Segment(from, to);
    }

    void Segment(PicturePoint from, PicturePoint to)
    {
        const PicturePoint a = pic_.FromPixels(from);
        const PicturePoint b = pic_.FromPixels(to);
        pic_.Line(a.X, a.Y, b.X, b.Y);
    }

    // --- texts

    void WriteTexts(const std::vector<BoxPlace>& places)
    {
        std::vector<PixelRect> taken;
        taken.reserve(places.size());
        for (const BoxPlace& place : places) taken.push_back(RectAround(place.Middle, box_));
        WriteNumbersByShapes(pic_, section_, taken);
        pic_.ForeColor = IndexedColour(kBlack);
        pic_.FontSize = kNoteFont;
        if (specified_)
            PrintPropertyTexts(pic_, places, box_, entry_.LengthUnit);
        else
            PrintAt(pic_, note_, scale_.Note());
    }

    Picture& pic_;
    const CrossSection& section_;
    const SectionEntry& entry_;
    BoxSize box_;
    bool specified_;
    ShapeScale scale_;
    std::array<PicturePoint, 2> yLabels_, zLabels_; ///< upper left corners, pixels
    PicturePoint note_;
};

} // namespace

std::string_view ShapeScale::Note() const
{
    if (ZHalf == YHalf) return kToScale;
    return ZHalf < YHalf ? kZoomX : kZoomY;
}

ShapeScale ScalePicture(const CrossSection& section)
{
    if (IsRound(section.ShapeIndex)) {
        const double radius = std::abs(section.ElementCorners[0].Top);
        const double half = radius > 0 ? kMarginFactor * radius : 1;
        return {half, half};
    }
    const Corners reach = ReachOf(section);
    const double h = std::max(-reach.Left, reach.Right);
    const double v = std::max(-reach.Bottom, reach.Top);
    if (h <= 0 && v <= 0) return {};
    const double width = reach.Right - reach.Left;
    const double height = reach.Top - reach.Bottom;
    const double limit = section.ShapeIndex == kRectangle ? kRectangleAspect : kOtherAspect;
    const bool zoom = h > 0 && v > 0 && (width > limit * height || height > limit * width);
    const double largest = kMarginFactor * std::max(h, v);
    return zoom ? ShapeScale{kMarginFactor * h, kMarginFactor * v} : ShapeScale{largest, largest};
}

std::vector<BoxPlace> DrawShape(Picture& pic, const CrossSection& section,
                                const SectionEntry& entry, BoxSize box)
{
    return ShapePainter(pic, section, entry, box).Draw();
}

} // namespace forcelab::sections
