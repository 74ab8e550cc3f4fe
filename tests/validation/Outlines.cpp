#include "validation/Outlines.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace forcelab::validation {

namespace {

void AddEdge(Moments& sum, const Vertex& a, const Vertex& b)
{
    const double cross = a.X * b.Y - b.X * a.Y;
    sum.Area += cross / 2;
    sum.FirstX += cross * (a.X + b.X) / 6;
    sum.FirstY += cross * (a.Y + b.Y) / 6;
    sum.SecondX += cross * (a.X * a.X + a.X * b.X + b.X * b.X) / 12;
    sum.SecondY += cross * (a.Y * a.Y + a.Y * b.Y + b.Y * b.Y) / 12;
    sum.Product += cross * (a.X * b.Y + 2 * a.X * a.Y + 2 * b.X * b.Y + b.X * a.Y) / 24;
}

template <class Change>
Figure Changed(Figure figure, Change change)
{
    for (Outline& outline : figure)
        for (Vertex& vertex : outline) vertex = change(vertex);
    return figure;
}

Outline CutAbove(const Outline& outline, double level)
{
    Outline kept;
    for (std::size_t i = 0; i < outline.size(); ++i) {
        const Vertex& a = outline[i];
        const Vertex& b = outline[(i + 1) % outline.size()];
        if (a.Y >= level) kept.push_back(a);
        if ((a.Y >= level) != (b.Y >= level))
            kept.push_back({a.X + (b.X - a.X) * (level - a.Y) / (b.Y - a.Y), level});
    }
    return kept;
}

/// Half of the area lies above every level of a gap between two parts; its middle is taken, and
/// found between the levels of a little more and a little less than the half.
constexpr double kBalance = 1e-12;

double LevelWithAreaAbove(const Figure& figure, double area)
{
    Box box = BoundsOf(figure);
    for (int i = 0; i < 60; ++i) {
        const double middle = (box.Bottom + box.Top) / 2;
        const bool tooLow = Integrate(Above(figure, middle)).Area > area;
        (tooLow ? box.Bottom : box.Top) = middle;
    }
    return (box.Bottom + box.Top) / 2;
}

} // namespace

Moments Integrate(const Figure& figure)
{
    Moments sum;
    for (const Outline& outline : figure)
        for (std::size_t i = 0; i < outline.size(); ++i)
            AddEdge(sum, outline[i], outline[(i + 1) % outline.size()]);
    return sum;
}

Figure Above(const Figure& figure, double level)
{
    Figure parts;
    for (const Outline& outline : figure) parts.push_back(CutAbove(outline, level));
    return parts;
}

Figure Turned(const Figure& figure, int quarters)
{
    Figure turned = figure;
    for (int i = 0; i < quarters; ++i)
        turned = Changed(turned, [](Vertex v) { return Vertex{-v.Y, v.X}; });
    return turned;
}

Figure Moved(const Figure& figure, double dx, double dy)
{
    return Changed(figure, [=](Vertex v) { return Vertex{v.X + dx, v.Y + dy}; });
}

Box BoundsOf(const Figure& figure)
{
    constexpr double kFar = std::numeric_limits<double>::infinity();
    Box box{kFar, kFar, -kFar, -kFar};
    for (const Outline& outline : figure)
        for (const Vertex& v : outline)
            box = {std::min(box.Left, v.X), std::min(box.Bottom, v.Y), std::max(box.Right, v.X),
                   std::max(box.Top, v.Y)};
    return box;
}

Outline Rectangle(double left, double bottom, double width, double height)
{
    return {{left, bottom},
            {left + width, bottom},
            {left + width, bottom + height},
            {left, bottom + height}};
}

Outline Hole(Outline outline)
{
    std::reverse(outline.begin(), outline.end());
    return outline;
}

Outline Round(double diameter, int sides)
{
    const double step = 2 * std::numbers::pi / sides;
    const double radius = diameter / 2 * std::sqrt(step / std::sin(step));
    Outline outline;
    for (int i = 0; i < sides; ++i)
        outline.push_back({radius * std::cos(i * step), radius * std::sin(i * step)});
    return outline;
}

PlasticFigure PlasticOf(const Figure& figure)
{
    const Moments whole = Integrate(figure);
    const double low = LevelWithAreaAbove(figure, whole.Area / 2 * (1 + kBalance));
    const double high = LevelWithAreaAbove(figure, whole.Area / 2 * (1 - kBalance));
    const double level = (low + high) / 2;
    const Moments above = Integrate(Above(figure, level));
    const double upper = above.FirstY - level * above.Area;
    const double lower = whole.FirstY - level * whole.Area - upper;
    return {level, upper - lower};
}

} // namespace forcelab::validation
