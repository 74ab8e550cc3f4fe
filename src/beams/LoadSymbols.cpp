#include "beams/LoadSymbols.h"

#include "beams/DiagramFrame.h"
#include "core/DrawingHelpers.h"
#include "core/Units.h"

#include <array>
#include <utility>

namespace forcelab::beams {

namespace {

constexpr double kHead = 8;      // pixels
constexpr double kArcHead = 1.8; // as DrawArcArrow takes it
constexpr double kStroke = 1.5;
constexpr double kHalfPin = 8;
constexpr double kPinHeight = 13;
constexpr double kHalfGround = 11;
constexpr double kHatch = 5; // pixels, depth and distance of the hatching
constexpr double kWallDepth = 8;
constexpr double kDot = 2;

/// Colours and line of a symbol while it lives.
class Inks {
  public:
    Inks(Picture& pic, Colour line, Colour fill, double width)
        : pic_(pic), fore_(std::exchange(pic.ForeColor, line)),
          fill_(std::exchange(pic.FillColor, fill)),
          style_(std::exchange(pic.FillStyle, FillPattern::Solid)),
          width_(std::exchange(pic.DrawWidth, width))
    {}
    Inks(const Inks&) = delete;
    Inks& operator=(const Inks&) = delete;
    ~Inks()
    {
        pic_.ForeColor = fore_;
        pic_.FillColor = fill_;
        pic_.FillStyle = style_;
        pic_.DrawWidth = width_;
    }

  private:
    Picture& pic_;
    Colour fore_;
    Colour fill_;
    FillPattern style_;
    double width_;
};

/// The ground under a support, hatched away from the beam.
void DrawGround(Picture& pic, double x, double y)
{
    const double pixel = pic.UserWidth(1);
    pic.Line(x - kHalfGround * pixel, y, x + kHalfGround * pixel, y);
    pic.DrawWidth = 1;
    for (double at = -kHalfGround + kHatch; at <= kHalfGround; at += kHatch)
        pic.Line(x + at * pixel, y, x + (at - kHatch) * pixel, y - kHatch);
    pic.DrawWidth = kStroke;
}

} // namespace

void DrawBeamBand(Picture& pic, double length, double height)
{
    const Inks inks(pic, kSteel, kSteelFill, kStroke);
    const std::array<PicturePoint, 4> corners{
        {{0, 0}, {length, 0}, {length, -height}, {0, -height}}};
    pic.Polygon(corners);
}

void DrawPin(Picture& pic, double x, double y)
{
    const Inks inks(pic, kSteel, pic.BackColor, kStroke);
    const double half = pic.UserWidth(kHalfPin);
    const std::array<PicturePoint, 3> corners{
        {{x, y}, {x - half, y - kPinHeight}, {x + half, y - kPinHeight}}};
    pic.Polygon(corners);
    DrawGround(pic, x, y - kPinHeight);
}

void DrawRoller(Picture& pic, double x, double y)
{
    const Inks inks(pic, kSteel, pic.BackColor, kStroke);
    pic.Circle(x, y - kPinHeight / 2, pic.UserWidth(kPinHeight / 2));
    DrawGround(pic, x, y - kPinHeight);
}

void DrawWall(Picture& pic, double x, double bandHeight, int side)
{
    const Inks inks(pic, kSteel, kSteelFill, 1);
    const double deep = pic.UserWidth(kWallDepth) * side;
    const double top = kWallReach;
    const double bottom = -bandHeight - kWallReach;
    for (double y = top; y > bottom + kHatch; y -= kHatch)
        pic.Line(x, y, x + deep, y - kWallDepth + (side < 0 ? 0 : 2 * kWallDepth - kHatch * 2));
    pic.DrawWidth = 2 * kStroke;
    pic.Line(x, top, x, bottom);
}

void DrawUpright(Picture& pic, double x, double fromY, double toY, Colour colour)
{
    const Inks inks(pic, colour, colour, kStroke);
    DrawArrow(pic, {x, fromY}, {x, toY}, kHead);
}

void DrawMomentArc(Picture& pic, double x, double y, bool clockwise, Colour colour)
{
    const Inks inks(pic, colour, colour, kStroke);
    DrawArcArrow(pic, pic.UserWidth(kArcRadius), kArcRadius, 0, x, y, -0.25 * kPi, 1.25 * kPi,
                 clockwise, kArcHead);
    pic.DrawWidth = 1;
    pic.Circle(x, y, pic.UserWidth(kDot));
}

} // namespace forcelab::beams
