#include "core/LabelPlacer.h"
#include "core/Units.h"
#include "sections/DimensionLayout.h"
#include "sections/Report.h"
#include "sections/SectionDrawing.h"
#include "sections/ShapeCatalogue.h"

#include <algorithm>
#include <cmath>

namespace forcelab::sections {

namespace {

constexpr Colour kInk = Rgb(25, 25, 25);
constexpr Colour kAxisInk = Rgb(170, 0, 0);
constexpr Colour kDimensionInk = Rgb(0, 90, 0);
constexpr Colour kExtensionInk = Rgb(120, 160, 120);
constexpr Colour kPlasticInk = Rgb(110, 0, 130);
constexpr Colour kPrincipalInk = Rgb(0, 105, 120);
constexpr double kSoftening = 0.6; // share of white in the fill of an element

// Pixels, and points of the font.
constexpr double kLane = 38;    // from the section to the dimension line
constexpr double kOverrun = 22; // of an axis beyond the section
constexpr double kPlasticRun = 14;
constexpr double kMargin = 42; // at the sides without dimensions
constexpr double kTextGap = 6;
constexpr double kBlockGap = 3; // between the texts of two distances and the centroid
constexpr double kTick = 5;     // of an extension line beyond the dimension line
constexpr double kDot = 3;      // radius of the centroid
constexpr double kFont = 9;
constexpr double kSmallFont = 8;
constexpr double kSmallPicture = 260;
constexpr double kRoomyPicture = 380; // wide enough for names beside the section

constexpr std::string_view kPlasticName = "plastic n.a.";
constexpr double kLargestAspect = 8;  // a slimmer section is drawn out of scale
constexpr double kSameAxis = 0.002;   // of the depth: a plastic axis that is the centroidal one
constexpr double kSameInertia = 1e-9; // principal values without directions of their own
constexpr double kNotInclined = 0.01; // degrees

Colour Softened(Colour c)
{
    const auto mix = [](int part) { return static_cast<int>(part + (255 - part) * kSoftening); };
    return Rgb(mix(c.Red), mix(c.Green), mix(c.Blue));
}

/// Where the section and its axes lie, in the unit of its corners. Both come from the edges and
/// the distances of the record, which steel shapes take from their table.
struct Geometry {
    Corners Edge;
    PicturePoint Centroid;
    std::array<std::optional<double>, 2> Plastic; ///< level of the Z-Z one, offset of the Y-Y one
    std::optional<double> Principal;              ///< radians, of the axis of Imax
};

Corners EdgesOf(const CrossSection& section)
{
    const double radius = std::abs(section.ElementCorners[0].Top);
    if (IsRound(section.ShapeIndex)) return {-radius, -radius, radius, radius};
    Corners edge = section.ElementCorners[0];
    for (int k = 1; k < kElements; ++k) {
        if (!section.Shown[k]) continue;
        const Corners& c = section.ElementCorners[k];
        edge = {std::min(edge.Left, c.Left), std::min(edge.Bottom, c.Bottom),
                std::max(edge.Right, c.Right), std::max(edge.Top, c.Top)};
    }
    return edge;
}

/// From the low edge to the plastic axis, unless that axis is the centroidal one or is not known.
std::optional<double> PlasticDistance(const CrossSection& section, Column column, double depth)
{
    const double low = section.Record(Row::PlasticAxisLow, column);
    const double apart = std::abs(low - section.Record(Row::LowEdge, column));
    if (section.CompositeSection || low <= 0 || apart <= kSameAxis * depth) return std::nullopt;
    return low;
}

std::optional<double> PrincipalDirection(const CrossSection& section)
{
    const auto value = [&](Row row) { return section.Record(row, Column::Zz); };
    const double largest = value(Row::LargestPrincipal);
    const double angle = std::abs(value(Row::PrincipalAngle));
    if (section.CompositeSection || largest <= 0) return std::nullopt;
    if (largest - value(Row::SmallestPrincipal) <= kSameInertia * largest) return std::nullopt;
    if (angle < kNotInclined || std::abs(angle - 90) < kNotInclined) return std::nullopt;
    return (value(Row::PrincipalSense) > 0 ? -angle : angle) * kPi / 180;
}

Geometry GeometryOf(const CrossSection& section)
{
    const bool composite = section.CompositeSection;
    const Corners edge = EdgesOf(section);
    const double up = composite ? section.Record(CompositeRow::LowEdge, Column::CompositeZz)
                                : section.Record(Row::LowEdge, Column::Zz);
    const double right = composite ? section.Record(CompositeRow::LowEdge, Column::CompositeYy)
                                   : section.Record(Row::LowEdge, Column::Yy);
    Geometry g{edge, {edge.Left + right, edge.Bottom + up}, {}, PrincipalDirection(section)};
    if (const auto low = PlasticDistance(section, Column::Zz, edge.Top - edge.Bottom))
        g.Plastic[0] = edge.Bottom + *low;
    if (const auto low = PlasticDistance(section, Column::Yy, edge.Right - edge.Left))
        g.Plastic[1] = edge.Left + *low;
    return g;
}

/// An edge distance: its symbol, and its value in the very words of the summary.
struct EdgeText {
    std::string Symbol;
    std::string Value;
};

EdgeText EdgeTextOf(const std::vector<SummaryLine>& summary, std::string_view symbol)
{
    const auto line = std::find_if(summary.begin(), summary.end(),
                                   [&](const SummaryLine& l) { return l.Symbol == symbol; });
    return {std::string(symbol), line == summary.end() ? std::string() : line->Value};
}

class ReportPainter {
  public:
    ReportPainter(Picture& pic, const CrossSection& section, const SectionEntry& entry)
        : pic_(pic), section_(section), g_(GeometryOf(section)), placer_(pic)
    {
        const auto summary = Summary(section, entry);
        constexpr std::array<std::string_view, 4> symbols{"Y bot", "Y top", "Z left", "Z right"};
        for (int k = 0; k < 4; ++k) texts_[k] = EdgeTextOf(summary, symbols[k]);
    }

    void Draw()
    {
        SetScale();
        DrawElements();
        DrawDimensions();
        DrawAxes();
        DrawPlasticAxes();
        DrawPrincipalAxes();
        DrawCentroid();
        for (const LabelWish& wish : wishes_) placer_.Place(wish);
    }

  private:
    void SetScale()
    {
        pic_.BackColor = Rgb(255, 255, 255);
        pic_.FontName = "Arial";
        const double width = pic_.WidthPixels();
        const double height = pic_.HeightPixels();
        pic_.FontSize = std::min(width, height) < kSmallPicture ? kSmallFont : kFont;
        const double text = std::max(BlockWidth(0), BlockWidth(1));
        const double below = kLane + 2 * LineHeight() + 2 * kTextGap;
        const double left = std::min(kLane + text + 2 * kTextGap, width / 2);
        const double deep = std::max(g_.Edge.Top - g_.Edge.Bottom, 1e-300);
        const double wide = std::max(g_.Edge.Right - g_.Edge.Left, 1e-300);
        const bool roomy = width > kRoomyPicture;
        const double right = kMargin + (g_.Plastic[0] && roomy ? PixelWidth(kPlasticName) : 0);
        const double top = kMargin + (g_.Plastic[1] ? kPlasticRun : 0);
        const double roomX = std::max(width - left - right, 20.0);
        const double roomY = std::max(height - below - top, 20.0);
        // Pixels to a unit; the same both ways but for very slim sections.
        const double same = std::min(roomX / wide, roomY / deep);
        const double across =
            std::min(roomX / wide, std::max(same, same * deep / wide / kLargestAspect));
        const double up =
            std::min(roomY / deep, std::max(same, same * wide / deep / kLargestAspect));
        const double x = left + (roomX - wide * across) / 2;
        const double y = top + (roomY - deep * up) / 2;
        const double scaleLeft = g_.Edge.Left - x / across;
        const double scaleTop = g_.Edge.Top + y / up;
        pic_.Scale(scaleLeft, scaleTop, scaleLeft + width / across, scaleTop - height / up);
        pic_.Cls();
    }

    [[nodiscard]] double PixelWidth(std::string_view text) const
    {
        return std::abs(pic_.ScaleX(pic_.TextWidth(text)));
    }

    // --- the section

    [[nodiscard]] Colour FillOf(int element) const
    {
        const bool round = IsRound(section_.ShapeIndex);
        if (round) return element == 0 ? Softened(IndexedColour(8)) : IndexedColour(15);
        if (section_.ShapeIndex == kSpecified) return Softened(IndexedColour(8));
        return Softened(section_.ElementColour[element]);
    }

    void DrawElements()
    {
        pic_.ForeColor = kInk;
        pic_.DrawWidth = 1;
        pic_.DrawStyle = LinePattern::Solid;
        for (int k = 0; k < kElements; ++k) {
            if (!section_.Shown[k]) continue;
            pic_.FillColor = FillOf(k);
            pic_.FillStyle = FillPattern::Solid;
            const Corners& c = section_.ElementCorners[k];
            if (IsRound(section_.ShapeIndex))
                pic_.Circle(0, 0, std::abs(c.Top));
            else
                DrawElement(c);
        }
        pic_.FillStyle = FillPattern::Transparent;
    }

    void DrawElement(const Corners& c)
    {
        pic_.Box(c.Left, c.Top, c.Right, c.Bottom);
        for (const double level : {c.Bottom, c.Top})
            placer_.KeepOffLine({c.Left, level}, {c.Right, level});
        for (const double offset : {c.Left, c.Right})
            placer_.KeepOffLine({offset, c.Bottom}, {offset, c.Top});
    }

    void DrawCentroid()
    {
        pic_.FillColor = kInk;
        pic_.FillStyle = FillPattern::Solid;
        pic_.ForeColor = kInk;
        pic_.Circle(g_.Centroid.X, g_.Centroid.Y, pic_.UserWidth(kDot));
        pic_.FillStyle = FillPattern::Transparent;
    }

    // --- dimensions

    void DrawDimensions()
    {
        const double x = g_.Edge.Left - pic_.UserWidth(kLane);
        const double y = g_.Edge.Bottom - pic_.UserHeight(kLane);
        const auto vertical = [&](double level) { return PicturePoint{x, level}; };
        const auto across = [&](double offset) { return PicturePoint{offset, y}; };
        for (const double level : {g_.Edge.Bottom, g_.Centroid.Y, g_.Edge.Top})
            Extension({g_.Edge.Left, level}, {x - pic_.UserWidth(kTick), level});
        for (const double offset : {g_.Edge.Left, g_.Centroid.X, g_.Edge.Right})
            Extension({offset, g_.Edge.Bottom}, {offset, y - pic_.UserHeight(kTick)});
        Dimension(vertical(g_.Edge.Bottom), vertical(g_.Centroid.Y));
        Dimension(vertical(g_.Centroid.Y), vertical(g_.Edge.Top));
        Dimension(across(g_.Edge.Left), across(g_.Centroid.X));
        Dimension(across(g_.Centroid.X), across(g_.Edge.Right));
        WriteDistances(pic_.ToPixels({x, y}));
    }

    void Extension(PicturePoint from, PicturePoint to)
    {
        Line(from, to, kExtensionInk, LinePattern::Solid);
    }

    void Dimension(PicturePoint from, PicturePoint to)
    {
        pic_.ForeColor = kDimensionInk;
        const PicturePoint middle{(from.X + to.X) / 2, (from.Y + to.Y) / 2};
        DrawArrow(pic_, middle, from, kHeadPixels);
        DrawArrow(pic_, middle, to, kHeadPixels);
        placer_.KeepOffLine(from, to);
    }

    /// Two lines at the middle of each distance, but at either side of the centroid's level or
    /// offset, so that short distances do not bring them together.
    void WriteDistances(PicturePoint lanes)
    {
        const PicturePoint low = pic_.ToPixels({g_.Edge.Left, g_.Edge.Bottom});
        const PicturePoint high = pic_.ToPixels({g_.Edge.Right, g_.Edge.Top});
        const PicturePoint c = pic_.ToPixels(g_.Centroid);
        const double half = LineHeight() + kBlockGap;
        const double left = lanes.X - kTextGap;
        WriteBlock(0, left - BlockWidth(0) / 2, std::max((low.Y + c.Y) / 2, c.Y + half));
        WriteBlock(1, left - BlockWidth(1) / 2, std::min((high.Y + c.Y) / 2, c.Y - half));
        const double below = lanes.Y + kTextGap + LineHeight();
        const double first = BlockWidth(2) / 2 + kBlockGap;
        const double last = BlockWidth(3) / 2 + kBlockGap;
        const double edge = std::min(c.X, pic_.WidthPixels() - 2 * last); // room for the right one
        WriteBlock(2, std::max(first, std::min((low.X + c.X) / 2, edge - first)), below);
        WriteBlock(3,
                   std::min(pic_.WidthPixels() - last, std::max((high.X + c.X) / 2, edge + last)),
                   below);
    }

    void WriteBlock(int text, double x, double y)
    {
        const PicturePoint at = pic_.FromPixels({x, y});
        pic_.ForeColor = kDimensionInk;
        PrintText(pic_, at.X, at.Y, texts_[text].Symbol, HAlign::Centre, VAlign::Bottom);
        PrintText(pic_, at.X, at.Y, texts_[text].Value, HAlign::Centre, VAlign::Top);
        const double half = BlockWidth(text) / 2;
        const double line = LineHeight();
        placer_.KeepOffLine(pic_.FromPixels({x - half, y - line}),
                            pic_.FromPixels({x + half, y + line}));
        placer_.KeepOffLine(pic_.FromPixels({x - half, y + line}),
                            pic_.FromPixels({x + half, y - line}));
    }

    [[nodiscard]] double BlockWidth(int text) const
    {
        return std::max(PixelWidth(texts_[text].Symbol), PixelWidth(texts_[text].Value));
    }

    [[nodiscard]] double LineHeight() const { return std::abs(pic_.ScaleY(pic_.TextHeight("Y"))); }

    // --- axes

    void DrawAxes()
    {
        const double dx = pic_.UserWidth(kOverrun);
        const double dy = pic_.UserHeight(kOverrun);
        const PicturePoint c = g_.Centroid;
        Axis({g_.Edge.Left - dx, c.Y}, {g_.Edge.Right + dx, c.Y}, "Z");
        Axis({c.X, g_.Edge.Bottom - dy}, {c.X, g_.Edge.Top + dy}, "Y");
    }

    void Axis(PicturePoint low, PicturePoint high, const char* name)
    {
        Line(low, high, kAxisInk, LinePattern::DashDot);
        const bool level = low.Y == high.Y;
        Wish(high, {{name, LabelPart::Kind::Plain}}, level ? 0 : kPi / 2, kAxisInk);
        Wish(low, {{name, LabelPart::Kind::Plain}}, level ? kPi / 2 : 0, kAxisInk);
    }

    void DrawPlasticAxes()
    {
        const double dx = pic_.UserWidth(kPlasticRun);
        const double dy = pic_.UserHeight(kPlasticRun);
        const Label name{{std::string(kPlasticName), LabelPart::Kind::Plain}};
        if (const auto level = g_.Plastic[0]) {
            const PicturePoint end{g_.Edge.Right + dx, *level};
            Line({g_.Edge.Left - dx / 2, *level}, end, kPlasticInk, LinePattern::Dash);
            Wish(end, name, 0, kPlasticInk);
        }
        if (const auto offset = g_.Plastic[1]) {
            const PicturePoint end{*offset, g_.Edge.Top + dy};
            Line({*offset, g_.Edge.Bottom - dy / 2}, end, kPlasticInk, LinePattern::Dash);
            Wish(end, name, kPi / 2, kPlasticInk);
        }
    }

    void DrawPrincipalAxes()
    {
        if (!g_.Principal) return;
        PrincipalAxis(*g_.Principal, "max");
        PrincipalAxis(*g_.Principal + kPi / 2, "min");
    }

    void PrincipalAxis(double angle, const char* index)
    {
        const PicturePoint low = EndTowards(-std::cos(angle), -std::sin(angle));
        const PicturePoint high = EndTowards(std::cos(angle), std::sin(angle));
        Line(low, high, kPrincipalInk, LinePattern::Solid);
        Wish(high, {{"I", LabelPart::Kind::Plain}, {index, LabelPart::Kind::Subscript}}, angle,
             kPrincipalInk);
    }

    /// As far from the centroid in a direction as the section's surroundings reach.
    [[nodiscard]] PicturePoint EndTowards(double c, double s) const
    {
        const PicturePoint from = g_.Centroid;
        const double across = c > 0 ? g_.Edge.Right - from.X : from.X - g_.Edge.Left;
        const double along = s > 0 ? g_.Edge.Top - from.Y : from.Y - g_.Edge.Bottom;
        const double reach = std::min((across + pic_.UserWidth(kPlasticRun)) / std::abs(c),
                                      (along + pic_.UserHeight(kPlasticRun)) / std::abs(s));
        return {from.X + reach * c, from.Y + reach * s};
    }

    void Line(PicturePoint from, PicturePoint to, Colour ink, LinePattern pattern)
    {
        pic_.ForeColor = ink;
        pic_.DrawStyle = pattern;
        pic_.Line(from.X, from.Y, to.X, to.Y);
        pic_.DrawStyle = LinePattern::Solid;
        placer_.KeepOffLine(from, to);
    }

    void Wish(PicturePoint at, Label text, double side, Colour ink)
    {
        wishes_.push_back({{{at, side}}, std::move(text), ink});
    }

    Picture& pic_;
    const CrossSection& section_;
    Geometry g_;
    LabelPlacer placer_;
    std::array<EdgeText, 4> texts_; ///< bottom, top, left, right
    std::vector<LabelWish> wishes_;
};

} // namespace

void DrawCrossSection(Picture& pic, const CrossSection& section, const SectionEntry& entry)
{
    ReportPainter(pic, section, entry).Draw();
}

} // namespace forcelab::sections
