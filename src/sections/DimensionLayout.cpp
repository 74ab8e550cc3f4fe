#include "sections/DimensionLayout.h"

#include "sections/ShapeCatalogue.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace forcelab::sections {

namespace {

// Pixels.
constexpr double kTail = 16;      // of a line that leads out of a short length
constexpr double kNear = 1;       // what still counts as touching
constexpr double kFootGap = 3;    // between an element and its extension lines
constexpr double kEdgeGap = 6;    // between a line and the edge of the picture
constexpr double kLaneGap = 8;    // between the boxes of two lanes
constexpr double kLeastLane = 12; // from the section to its first line
constexpr double kClearance = 14; // between a box and the section, where there is room

// What makes a side of the section a worse place for a line, in pixels of distance.
constexpr double kBlockedCost = 1000; // another element lies between
constexpr double kCrowdedCost = 80;   // for each line in the way
constexpr double kDistanceCost = 0.3; // for each pixel of extension line
constexpr double kOtherSideCost = 10; // not the side that such dimensions usually take

// Where across an element a line beside it runs, in shares of the element's length.
constexpr double kBesideShare = 0.7;
constexpr double kOtherBesideShare = 0.3;

/// A length to be measured: along `Axis`, over the body's extent.
struct Measure {
    int Box;
    int Axis;
    PixelRect Body;
    bool Second; ///< a thickness rather than a length
    int Style;
    bool Spacing = false; ///< between the webs of a doubled shape
};

/// The stretch of a lane that a line and its box take.
struct Taken {
    int Axis, Side, Lane;
    double From, To;
};

double Extent(BoxSize box, int axis)
{
    return axis == 0 ? box.Width : box.Height;
}

class Layout {
  public:
    Layout(const Picture& pic, const CrossSection& section, BoxSize box)
        : pic_(pic), section_(section), box_(box), elements_(ElementRects(pic, section))
    {
        const PicturePoint origin = pic.ToPixels({0, 0});
        origin_ = {origin.X, origin.Y};
        whole_ = elements_.empty() ? PixelRect{origin_, origin_} : elements_.front();
        for (const PixelRect& element : elements_)
            for (const int axis : {0, 1}) {
                whole_.Lo[axis] = std::min(whole_.Lo[axis], element.Lo[axis]);
                whole_.Hi[axis] = std::max(whole_.Hi[axis], element.Hi[axis]);
            }
    }

    [[nodiscard]] std::vector<DimensionLine> Lines()
    {
        std::vector<Measure> measures;
        for (int box = 0; box < kBoxes; ++box)
            if (const auto measure = MeasureOf(box)) measures.push_back(*measure);
        // Those that can see one side alone choose first.
        std::stable_partition(measures.begin(), measures.end(), [this](const Measure& m) {
            return IsBlocked(m, -1) != IsBlocked(m, 1);
        });
        std::vector<DimensionLine> lines;
        lines.reserve(measures.size());
        for (const Measure& measure : measures) lines.push_back(LineOf(measure));
        std::sort(lines.begin(), lines.end(),
                  [](const DimensionLine& a, const DimensionLine& b) { return a.Box < b.Box; });
        return lines;
    }

  private:
    [[nodiscard]] std::optional<Measure> MeasureOf(int box) const
    {
        const ShapeInfo& info = InfoOf(section_.ShapeIndex);
        if (!info.Box[box]) return std::nullopt;
        if (section_.ShapeIndex == kSpecified && box > 3) return std::nullopt;
        if (info.HasSpacing && box == 4) return SpacingMeasure();
        const bool round = IsRound(section_.ShapeIndex);
        const std::size_t element = round ? box : box / 2;
        if (element >= elements_.size()) return std::nullopt;
        const bool second = !round && box % 2 == 1;
        const bool across = (section_.ElementLie[element] == 1) != second;
        return Measure{box, round || across ? 0 : 1, elements_[element], second,
                       section_.ElementStyle[element]};
    }

    /// The gap between the two webs; of channels toe to toe, the distance from back to back.
    [[nodiscard]] std::optional<Measure> SpacingMeasure() const
    {
        if (elements_.size() < 3) return std::nullopt;
        const int axis = section_.ElementLie[0] == 1 ? 0 : 1;
        const bool swapped = elements_[1].Lo[axis] > elements_[2].Lo[axis];
        const PixelRect& first = elements_[swapped ? 2 : 1];
        const PixelRect& last = elements_[swapped ? 1 : 2];
        const bool toe = section_.ShapeIndex == kDoubleCToe;
        PixelRect body = toe ? whole_ : first;
        body.Lo[axis] = toe ? first.Lo[axis] : first.Hi[axis];
        body.Hi[axis] = toe ? last.Hi[axis] : last.Lo[axis];
        return Measure{4, axis, body, !toe, 3, true};
    }

    [[nodiscard]] DimensionLine LineOf(const Measure& m)
    {
        const bool beside =
            m.Second && m.Style != 1 && (m.Style == 2 || (IsBlocked(m, -1) && IsBlocked(m, 1)));
        DimensionLine line;
        line.Box = m.Box;
        line.Axis = m.Axis;
        line.From = m.Body.Lo[m.Axis];
        line.To = m.Body.Hi[m.Axis];
        if (beside)
            PutBeside(m, line);
        else
            PutOutside(m, line);
        return line;
    }

    void PutOutside(const Measure& m, DimensionLine& line)
    {
        AddTails(line, OutwardSide(line));
        const int side = SideCost(m, line, -1) <= SideCost(m, line, 1) ? -1 : 1;
        int lane = 0;
        while (IsTaken(line, side, lane)) ++lane;
        const auto [from, to] = Occupied(line);
        taken_.push_back({line.Axis, side, lane, from, to});
        const int cross = 1 - m.Axis;
        const double edge = side < 0 ? whole_.Lo[cross] : whole_.Hi[cross];
        line.At = edge + side * LaneDistance(cross, side, lane);
        line.Foot = IsRound(section_.ShapeIndex)
                        ? m.Body.Middle(cross)
                        : (side < 0 ? m.Body.Lo[cross] : m.Body.Hi[cross]) + side * kFootGap;
        SetWish(line);
    }

    void PutBeside(const Measure& m, DimensionLine& line)
    {
        const int cross = 1 - m.Axis;
        const auto level = [&](double share) {
            return m.Body.Lo[cross] + share * m.Body.Length(cross);
        };
        line.At = level(kBesideShare);
        if (std::abs(line.At - origin_[cross]) < Extent(box_, cross) / 2 + kNear)
            line.At = level(kOtherBesideShare);
        line.Foot = line.At;
        line.BoxSide = m.Spacing || Room(line, 1) >= Room(line, -1) ? 1 : -1;
        line.HeadsOutside = !m.Spacing || line.To - line.From < 3 * kHeadPixels;
        ExtendLine(line);
        if (m.Spacing) LeadOut(line);
        SetWish(line);
    }

    /// Brings the box of a gap between two webs out of the section, close below the axis or close
    /// to its right.
    void LeadOut(DimensionLine& line) const
    {
        const int cross = 1 - line.Axis;
        line.At = origin_[cross] + Extent(box_, cross) / 2 + kNear;
        line.Foot = line.At;
        line.LineTo = whole_.Hi[line.Axis] + kTail;
    }

    [[nodiscard]] bool Fits(const DimensionLine& line) const
    {
        return line.To - line.From >= Extent(box_, line.Axis) + 3 * kHeadPixels;
    }

    /// Leads the line of a short length out to the box, which follows its end on `side`.
    void AddTails(DimensionLine& line, int side) const
    {
        line.BoxSide = Fits(line) ? 0 : side;
        line.HeadsOutside = line.BoxSide != 0 && line.To - line.From < 3 * kHeadPixels;
        ExtendLine(line);
    }

    static void ExtendLine(DimensionLine& line)
    {
        line.LineFrom = line.From - (line.BoxSide < 0 || line.HeadsOutside ? kTail : 0);
        line.LineTo = line.To + (line.BoxSide > 0 || line.HeadsOutside ? kTail : 0);
    }

    void SetWish(DimensionLine& line) const
    {
        const double half = Extent(box_, line.Axis) / 2;
        const double along = line.BoxSide == 0  ? (line.From + line.To) / 2
                             : line.BoxSide > 0 ? line.LineTo + half
                                                : line.LineFrom - half;
        line.Wish = line.Axis == 0 ? PicturePoint{along, line.At} : PicturePoint{line.At, along};
    }

    /// Away from the middle of the section, unless the picture ends there.
    [[nodiscard]] int OutwardSide(const DimensionLine& line) const
    {
        const double need = kTail + Extent(box_, line.Axis);
        const bool high = (line.From + line.To) / 2 > whole_.Middle(line.Axis) - kNear;
        const bool highRoom = line.To + need <= Size(line.Axis);
        const bool lowRoom = line.From - need >= 0;
        return (high ? highRoom || !lowRoom : highRoom && !lowRoom) ? 1 : -1;
    }

    [[nodiscard]] double Size(int axis) const
    {
        return axis == 0 ? pic_.WidthPixels() : pic_.HeightPixels();
    }

    /// From the measured length to the next element on that side, or to the picture's edge.
    [[nodiscard]] double Room(const DimensionLine& line, int side) const
    {
        const int cross = 1 - line.Axis;
        double room = side > 0 ? Size(line.Axis) - line.To : line.From;
        for (const PixelRect& element : elements_) {
            if (element.Lo[cross] > line.At || element.Hi[cross] < line.At) continue;
            const double gap =
                side > 0 ? element.Lo[line.Axis] - line.To : line.From - element.Hi[line.Axis];
            if (gap > -kNear) room = std::min(room, gap);
        }
        return room;
    }

    [[nodiscard]] bool IsBlocked(const Measure& m, int side) const
    {
        const int cross = 1 - m.Axis;
        return std::any_of(elements_.begin(), elements_.end(), [&](const PixelRect& other) {
            const double shared = std::min(other.Hi[m.Axis], m.Body.Hi[m.Axis]) -
                                  std::max(other.Lo[m.Axis], m.Body.Lo[m.Axis]);
            const double beyond =
                side > 0 ? other.Hi[cross] - m.Body.Hi[cross] : m.Body.Lo[cross] - other.Lo[cross];
            return shared > kNear && beyond > kNear;
        });
    }

    [[nodiscard]] std::array<double, 2> Occupied(const DimensionLine& line) const
    {
        const double box = Extent(box_, line.Axis);
        return {line.LineFrom - (line.BoxSide < 0 ? box : 0),
                line.LineTo + (line.BoxSide > 0 ? box : 0)};
    }

    [[nodiscard]] bool IsTaken(const DimensionLine& line, int side, int lane) const
    {
        return Crowd(line, side, lane) > 0;
    }

    /// How many lines of that side, or of one lane of it, are in the way of this one.
    [[nodiscard]] int Crowd(const DimensionLine& line, int side, int lane = -1) const
    {
        const auto [from, to] = Occupied(line);
        return static_cast<int>(
            std::count_if(taken_.begin(), taken_.end(), [&, a = from, b = to](const Taken& t) {
                return t.Axis == line.Axis && t.Side == side && (lane < 0 || t.Lane == lane) &&
                       t.From < b - kNear && t.To > a + kNear;
            }));
    }

    [[nodiscard]] double SideCost(const Measure& m, const DimensionLine& line, int side) const
    {
        const int cross = 1 - m.Axis;
        const double distance =
            side > 0 ? whole_.Hi[cross] - m.Body.Hi[cross] : m.Body.Lo[cross] - whole_.Lo[cross];
        const int usual = m.Second ? 1 : -1; // lengths above and left, thicknesses below and right
        return (IsBlocked(m, side) ? kBlockedCost : 0) + kDistanceCost * distance +
               kCrowdedCost * Crowd(line, side) + (side == usual ? 0 : kOtherSideCost);
    }

    [[nodiscard]] double LaneDistance(int cross, int side, int lane) const
    {
        const double margin = side < 0 ? whole_.Lo[cross] : Size(cross) - whole_.Hi[cross];
        const double box = Extent(box_, cross);
        const double wished = box / 2 + kClearance;
        const double first = std::max(kLeastLane, std::min(wished, margin - box / 2 - kNear));
        return std::min(first + lane * (box + kLaneGap), std::max(margin - kEdgeGap, kEdgeGap));
    }

    const Picture& pic_;
    const CrossSection& section_;
    BoxSize box_;
    std::vector<PixelRect> elements_;
    PixelRect whole_;
    std::array<double, 2> origin_{};
    std::vector<Taken> taken_;
};

} // namespace

bool Meet(const PixelRect& a, const PixelRect& b, double gap)
{
    return a.Lo[0] < b.Hi[0] + gap && b.Lo[0] < a.Hi[0] + gap && a.Lo[1] < b.Hi[1] + gap &&
           b.Lo[1] < a.Hi[1] + gap;
}

PixelRect RectAround(PicturePoint middle, BoxSize size)
{
    return {{middle.X - size.Width / 2, middle.Y - size.Height / 2},
            {middle.X + size.Width / 2, middle.Y + size.Height / 2}};
}

bool IsRound(int shapeIndex)
{
    return LayoutOf(shapeIndex) == kCircle || LayoutOf(shapeIndex) == kPipe;
}

std::vector<PixelRect> ElementRects(const Picture& pic, const CrossSection& section)
{
    std::vector<PixelRect> rects;
    for (int k = 0; k < kElements && section.Shown[k]; ++k) {
        Corners c = section.ElementCorners[k];
        const double radius = std::abs(c.Top);
        if (IsRound(section.ShapeIndex)) c = {-radius, -radius, radius, radius};
        const PicturePoint low = pic.ToPixels({c.Left, c.Top});
        const PicturePoint high = pic.ToPixels({c.Right, c.Bottom});
        rects.push_back({{low.X, low.Y}, {high.X, high.Y}});
    }
    return rects;
}

std::vector<DimensionLine> LayDimensions(const Picture& pic, const CrossSection& section,
                                         BoxSize box)
{
    return Layout(pic, section, box).Lines();
}

} // namespace forcelab::sections
