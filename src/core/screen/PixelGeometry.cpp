#include "core/screen/PixelGeometry.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace forcelab::screen {

namespace {

// Shorter stretches belong to a curve, which would get a step.
constexpr double kShortestSnapped = 6;

// One side of a box: keeps the points with Sign * coordinate <= Sign * Limit.
struct Side {
    bool IsX;
    double Sign;
    double Limit;

    [[nodiscard]] double Beyond(QPointF p) const { return Sign * ((IsX ? p.x() : p.y()) - Limit); }
    // Where the line from a to b meets the side; the two lie on different sides of it.
    [[nodiscard]] QPointF Meet(QPointF a, QPointF b) const
    {
        const double share = Beyond(a) / (Beyond(a) - Beyond(b));
        QPointF point = a + (b - a) * share;
        (IsX ? point.rx() : point.ry()) = Limit;
        return point;
    }
};

std::array<Side, 4> SidesOf(const QRectF& box)
{
    return {{{true, -1, box.left()},
             {true, 1, box.right()},
             {false, -1, box.top()},
             {false, 1, box.bottom()}}};
}

std::optional<QLineF> ClippedSegment(QPointF a, QPointF b, const std::array<Side, 4>& sides)
{
    for (const Side& side : sides) {
        const bool outA = side.Beyond(a) > 0;
        const bool outB = side.Beyond(b) > 0;
        if (outA && outB) return std::nullopt;
        if (outA) a = side.Meet(a, b);
        if (outB) b = side.Meet(a, b);
    }
    return QLineF(a, b);
}

} // namespace

QPainterPath ClippedLine(const QPolygonF& points, bool closed, const QRectF& box)
{
    const auto sides = SidesOf(box);
    QPainterPath path;
    for (qsizetype i = closed ? 0 : 1; i < points.size(); ++i) {
        const QPointF from = i == 0 ? points.back() : points[i - 1];
        const auto piece = ClippedSegment(from, points[i], sides);
        if (!piece) continue;
        if (path.isEmpty() || path.currentPosition() != piece->p1()) path.moveTo(piece->p1());
        path.lineTo(piece->p2());
    }
    return path;
}

QPolygonF ClippedPolygon(const QPolygonF& points, const QRectF& box)
{
    QPolygonF inside = points;
    for (const Side& side : SidesOf(box)) {
        const QPolygonF before = std::exchange(inside, {});
        for (qsizetype i = 0; i < before.size(); ++i) {
            const QPointF from = i == 0 ? before.back() : before[i - 1];
            const QPointF to = before[i];
            const bool outFrom = side.Beyond(from) > 0;
            const bool outTo = side.Beyond(to) > 0;
            if (outFrom != outTo) inside.append(side.Meet(from, to));
            if (!outTo) inside.append(to);
        }
    }
    return inside;
}

double SnappedMiddle(double place, double width, double ratio)
{
    const double device = place * ratio;
    const bool odd = std::lround(std::max(1.0, width * ratio)) % 2 != 0;
    return (odd ? std::floor(device) + 0.5 : std::round(device)) / ratio;
}

QPolygonF SnappedLine(QPolygonF points, bool closed, double width, double ratio)
{
    const QPolygonF from = points;
    const auto snapped = [width, ratio](QPointF p) {
        return QPointF(SnappedMiddle(p.x(), width, ratio), SnappedMiddle(p.y(), width, ratio));
    };
    for (qsizetype i = closed ? 0 : 1; i < points.size(); ++i) {
        const qsizetype before = i == 0 ? points.size() - 1 : i - 1;
        const QPointF span = from[i] - from[before];
        const bool straight = span.x() == 0 || span.y() == 0;
        if (!straight || span.manhattanLength() < kShortestSnapped) continue;
        points[before] = snapped(from[before]);
        points[i] = snapped(from[i]);
    }
    return points;
}

} // namespace forcelab::screen
