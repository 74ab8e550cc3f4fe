#include "core/screen/PictureOperations.h"

#include "core/screen/PixelGeometry.h"

#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace forcelab::screen {

namespace {

constexpr double kThickLine = 1.5;
constexpr double kWidestLine = 1000;
constexpr double kPatternStep = 8;

Qt::BrushStyle ToQt(FillPattern pattern)
{
    switch (pattern) {
    case FillPattern::Solid:
        return Qt::SolidPattern;
    case FillPattern::HorizontalLine:
        return Qt::HorPattern;
    case FillPattern::VerticalLine:
        return Qt::VerPattern;
    case FillPattern::UpwardDiagonal:
        return Qt::BDiagPattern;
    case FillPattern::DownwardDiagonal:
        return Qt::FDiagPattern;
    case FillPattern::Cross:
        return Qt::CrossPattern;
    case FillPattern::DiagonalCross:
        return Qt::DiagCrossPattern;
    case FillPattern::Transparent:
        break;
    }
    return Qt::NoBrush;
}

Qt::PenStyle ToQt(LinePattern pattern)
{
    switch (pattern) {
    case LinePattern::Solid:
        return Qt::SolidLine;
    case LinePattern::Dash:
        return Qt::DashLine;
    case LinePattern::Dot:
        return Qt::DotLine;
    case LinePattern::DashDot:
        return Qt::DashDotLine;
    case LinePattern::DashDotDot:
        return Qt::DashDotDotLine;
    case LinePattern::Invisible:
        break;
    }
    return Qt::NoPen;
}

bool HasLines(Qt::BrushStyle style, std::initializer_list<Qt::BrushStyle> styles)
{
    return std::find(styles.begin(), styles.end(), style) != styles.end();
}

// The lines of a pattern over a box, at places that are the same for all shapes of a sheet.
void DrawPatternLines(QPainter& painter, const QRectF& box, Qt::BrushStyle style)
{
    // Half a pixel away from the edges of pixels, so that thin lines are crisp.
    const auto first = [](double from) {
        return std::ceil((from - 0.5) / kPatternStep) * kPatternStep + 0.5;
    };
    if (HasLines(style, {Qt::HorPattern, Qt::CrossPattern}))
        for (double y = first(box.top()); y <= box.bottom(); y += kPatternStep)
            painter.drawLine(QPointF(box.left(), y), QPointF(box.right(), y));
    if (HasLines(style, {Qt::VerPattern, Qt::CrossPattern}))
        for (double x = first(box.left()); x <= box.right(); x += kPatternStep)
            painter.drawLine(QPointF(x, box.top()), QPointF(x, box.bottom()));
    const double h = box.height();
    if (HasLines(style, {Qt::BDiagPattern, Qt::DiagCrossPattern}))
        for (double c = first(box.left() + box.top()); c <= box.right() + box.bottom();
             c += kPatternStep)
            painter.drawLine(QPointF(c - box.bottom(), box.bottom()),
                             QPointF(c - box.bottom() + h, box.top()));
    if (HasLines(style, {Qt::FDiagPattern, Qt::DiagCrossPattern}))
        for (double c = first(box.left() - box.bottom()); c <= box.right() - box.top();
             c += kPatternStep)
            painter.drawLine(QPointF(c + box.top(), box.top()),
                             QPointF(c + box.top() + h, box.bottom()));
}

// Painters lay out patterns in pixels of the device, far too fine for a page. Here they have a size
// in logical pixels. A painter that cannot clip has no such device and draws them well by itself.
// Gives the brush that is left to use.
QBrush FillByPattern(const Canvas& canvas, const QPainterPath& shape, const QBrush& brush)
{
    if (brush.style() == Qt::NoBrush || brush.style() == Qt::SolidPattern ||
        canvas.On.paintEngine()->type() == QPaintEngine::SVG)
        return brush;
    canvas.On.save();
    canvas.On.setClipPath(shape, Qt::IntersectClip);
    canvas.On.setPen(QPen(brush.color(), 1, Qt::SolidLine, Qt::FlatCap));
    DrawPatternLines(canvas.On, shape.boundingRect(), brush.style());
    canvas.On.restore();
    return {};
}

QPainterPath ShapeOf(const QPolygonF& corners)
{
    QPainterPath shape;
    shape.addPolygon(corners);
    shape.closeSubpath();
    return shape;
}

} // namespace

QColor ToQt(Colour colour)
{
    return {colour.Red, colour.Green, colour.Blue};
}

double LineWidthOf(const Picture& pic)
{
    return pic.DrawWidth > 0 ? std::min(pic.DrawWidth, kWidestLine) : 1;
}

QPen PenOf(const Picture& pic)
{
    const double width = LineWidthOf(pic);
    const Qt::PenStyle style = ToQt(pic.DrawStyle);
    if (style != Qt::SolidLine)
        return {ToQt(pic.ForeColor), width, style, Qt::FlatCap, Qt::RoundJoin};
    if (width <= kThickLine)
        return {ToQt(pic.ForeColor), width, style, Qt::SquareCap, Qt::MiterJoin};
    return {ToQt(pic.ForeColor), width, style, Qt::RoundCap, Qt::RoundJoin};
}

QBrush BrushOf(const Picture& pic)
{
    return {ToQt(pic.FillColor), ToQt(pic.FillStyle)};
}

void PathOperation::operator()(const Canvas& canvas) const
{
    canvas.On.setRenderHint(QPainter::Antialiasing, canvas.Smooth);
    // Without an outline it is the interior that ends between two pixels.
    const double width = Pen.style() == Qt::NoPen ? 2 / canvas.Ratio : Pen.widthF();
    const QPolygonF points =
        canvas.Snap ? SnappedLine(Points, Closed, width, canvas.Ratio) : Points;
    const bool whole = Sane.contains(points.boundingRect());
    if (Closed && Brush.style() != Qt::NoBrush)
        Fill(canvas, whole ? points : ClippedPolygon(points, Sane));
    if (Pen.style() == Qt::NoPen) return;
    if (!whole) return canvas.On.strokePath(ClippedLine(points, Closed, Sane), Pen);
    canvas.On.setPen(Pen);
    canvas.On.setBrush(Qt::NoBrush);
    if (Closed)
        canvas.On.drawPolygon(points);
    else if (points.size() == 2)
        canvas.On.drawLine(points[0], points[1]);
    else
        canvas.On.drawPolyline(points);
}

void PathOperation::Fill(const Canvas& canvas, const QPolygonF& points) const
{
    const QBrush brush = FillByPattern(canvas, ShapeOf(points), Brush);
    if (brush.style() == Qt::NoBrush) return;
    canvas.On.setPen(Qt::NoPen);
    canvas.On.setBrush(brush);
    canvas.On.drawPolygon(points);
}

void BoxOperation::operator()(const Canvas& canvas) const
{
    canvas.On.setRenderHint(QPainter::Antialiasing, canvas.Smooth);
    canvas.On.fillRect(canvas.Snap ? Snapped(canvas.Ratio) : Box, Ink);
}

// At least one device pixel in each direction.
QRectF BoxOperation::Snapped(double ratio) const
{
    const double left = std::round(Box.left() * ratio);
    const double top = std::round(Box.top() * ratio);
    const double right = std::max(std::round(Box.right() * ratio), left + 1);
    const double bottom = std::max(std::round(Box.bottom() * ratio), top + 1);
    return {left / ratio, top / ratio, (right - left) / ratio, (bottom - top) / ratio};
}

void DotOperation::operator()(const Canvas& canvas) const
{
    canvas.On.setRenderHint(QPainter::Antialiasing, canvas.Smooth);
    const double x = canvas.Snap ? SnappedMiddle(At.x(), Width, canvas.Ratio) : At.x();
    const double y = canvas.Snap ? SnappedMiddle(At.y(), Width, canvas.Ratio) : At.y();
    const QRectF dot(x - Width / 2, y - Width / 2, Width, Width);
    if (Width <= kThickLine) return canvas.On.fillRect(dot, Ink);
    canvas.On.setPen(Qt::NoPen);
    canvas.On.setBrush(Ink);
    canvas.On.drawEllipse(dot);
}

void EllipseOperation::operator()(const Canvas& canvas) const
{
    canvas.On.setRenderHint(QPainter::Antialiasing, canvas.Smooth);
    QPainterPath shape;
    shape.addEllipse(Centre, Across, Along);
    const QBrush brush = FillByPattern(canvas, shape, Brush);
    canvas.On.setPen(Pen);
    canvas.On.setBrush(brush);
    canvas.On.drawEllipse(Centre, Across, Along);
}

void TextOperation::operator()(const Canvas& canvas) const
{
    if (!Ground.isEmpty()) BoxOperation{Ground, GroundColour}(canvas);
    const double line = At.y() + Ascent;
    const double y = canvas.Snap ? std::round(line * canvas.Ratio) / canvas.Ratio : line;
    canvas.On.setRenderHint(QPainter::TextAntialiasing, canvas.Smooth);
    canvas.On.setFont(Font);
    canvas.On.setPen(Ink);
    canvas.On.drawText(QPointF(At.x(), y), Text);
}

} // namespace forcelab::screen
