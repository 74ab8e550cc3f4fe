#pragma once

#include <QPainterPath>
#include <QPolygonF>
#include <QRectF>

/// Points in logical pixels made fit for a painter.
namespace forcelab::screen {

/// The line through the points without what lies outside `box`; `closed` joins the last point to
/// the first one.
QPainterPath ClippedLine(const QPolygonF& points, bool closed, const QRectF& box);

/// The polygon without what lies outside `box`.
QPolygonF ClippedPolygon(const QPolygonF& points, const QRectF& box);

/// Moves the ends of the horizontal and vertical stretches of a line so that its edges fall between
/// the pixels of a device with `ratio` device pixels a logical one.
QPolygonF SnappedLine(QPolygonF points, bool closed, double width, double ratio);

/// Where a line of this width has its middle, for an edge that falls between pixels.
double SnappedMiddle(double place, double width, double ratio);

} // namespace forcelab::screen
