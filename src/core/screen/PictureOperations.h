#pragma once

#include "core/Picture.h"

#include <QBrush>
#include <QColor>
#include <QFont>
#include <QPen>
#include <QPolygonF>
#include <QRectF>
#include <QString>

class QPainter;

/// The drawing operations of a picture with all that they need, so that one can be drawn again on
/// another canvas. Coordinates are logical pixels.
namespace forcelab::screen {

/// What an operation draws on.
struct Canvas {
    QPainter& On;
    double Ratio; ///< device pixels a logical one
    bool Snap;    ///< thin lines are moved to the device's pixels
    bool Smooth;
};

QColor ToQt(Colour colour);
QPen PenOf(const Picture& pic);         ///< by ForeColor, DrawWidth, DrawStyle
QBrush BrushOf(const Picture& pic);     ///< by FillColor, FillStyle
double LineWidthOf(const Picture& pic); ///< DrawWidth; 1 where it says nothing of use

struct PathOperation {
    QPolygonF Points;
    bool Closed;
    QPen Pen;
    QBrush Brush;
    QRectF Sane; ///< what lies outside is cut off

    void operator()(const Canvas& canvas) const;

  private:
    void Fill(const Canvas& canvas, const QPolygonF& points) const;
};

struct BoxOperation {
    QRectF Box;
    QColor Ink;

    void operator()(const Canvas& canvas) const;

  private:
    [[nodiscard]] QRectF Snapped(double ratio) const;
};

struct DotOperation {
    QPointF At;
    double Width;
    QColor Ink;

    void operator()(const Canvas& canvas) const;
};

struct EllipseOperation {
    QPointF Centre;
    double Across; ///< half axes
    double Along;
    QPen Pen;
    QBrush Brush;

    void operator()(const Canvas& canvas) const;
};

struct TextOperation {
    QPointF At; ///< upper left corner
    QString Text;
    QFont Font;
    double Ascent;
    QColor Ink;
    QRectF Ground; ///< empty: the text stands on what was drawn before
    QColor GroundColour;

    void operator()(const Canvas& canvas) const;
};

} // namespace forcelab::screen
