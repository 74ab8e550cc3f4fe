#include "beams/EntrySketches.h"

#include "beams/BeamRecord.h"
#include "core/DrawingHelpers.h"

#include <array>

namespace forcelab::beams {

namespace {

constexpr Colour kSteelLine = Rgb(0x1f, 0x4e, 0x79);
constexpr Colour kSteelFill = Rgb(0xdc, 0xe9, 0xf5);
constexpr Colour kLoadLine = Rgb(0xd2, 0x69, 0x1e);
constexpr double kStroke = 2;
constexpr double kHead = 9; // pixels
constexpr double kPi = 3.14159265358979;

/// A sketch is 100 wide and 60 high, y upward.
void Prepare(Picture& pic)
{
    pic.Scale(0, 60, 100, 0);
    pic.DrawWidth = kStroke;
    pic.ForeColor = kSteelLine;
    pic.FillColor = kSteelFill;
    pic.FillStyle = FillPattern::Solid;
}

void DrawBand(Picture& pic, double left, double right, double bottom, double top)
{
    const std::array<PicturePoint, 4> corners{
        {{left, bottom}, {right, bottom}, {right, top}, {left, top}}};
    pic.Polygon(corners);
}

/// The ground: a line with hatching on the side away from the beam.
void DrawGround(Picture& pic, double left, double right, double y)
{
    pic.Line(left, y, right, y);
    pic.DrawWidth = 1;
    for (double x = left + 2; x <= right; x += 4) pic.Line(x, y, x - 4, y - 5);
    pic.DrawWidth = kStroke;
}

void DrawPin(Picture& pic, double x, double y)
{
    const std::array<PicturePoint, 3> corners{{{x, y}, {x - 8, y - 13}, {x + 8, y - 13}}};
    pic.Polygon(corners);
    DrawGround(pic, x - 11, x + 11, y - 13);
}

void DrawRoller(Picture& pic, double x, double y)
{
    pic.Circle(x, y - 6.5, 6.2);
    DrawGround(pic, x - 11, x + 11, y - 13);
}

/// A wall at the left (side -1) or right (side 1) end of a beam.
void DrawWall(Picture& pic, double x, int side)
{
    pic.Line(x, 12, x, 52);
    pic.DrawWidth = 1;
    for (double y = 14; y <= 50; y += 5) pic.Line(x, y, x + side * 6, y - 5);
    pic.DrawWidth = kStroke;
}

void TakeLoadColour(Picture& pic)
{
    pic.ForeColor = kLoadLine;
    pic.FillColor = kLoadLine;
}

void DrawPointSketch(Picture& pic, bool up)
{
    TakeLoadColour(pic);
    const PicturePoint far{50, up ? 4.0 : 56.0};
    const PicturePoint near{50, up ? 36.0 : 24.0};
    DrawArrow(pic, far, near, kHead);
}

void DrawUniformSketch(Picture& pic, bool up)
{
    TakeLoadColour(pic);
    const double far = up ? 6 : 54;
    const double near = up ? 36 : 24;
    pic.Line(20, far, 80, far);
    for (double x = 20; x <= 80; x += 15) DrawArrow(pic, {x, far}, {x, near}, kHead - 1);
}

void DrawMomentSketch(Picture& pic, bool clockwise)
{
    TakeLoadColour(pic);
    DrawArcArrow(pic, 21, 21, 0, 50, 30, -0.25 * kPi, 1.25 * kPi, clockwise, 2.2);
}

} // namespace

void DrawBeamTypeSketch(Picture& pic, int supportType)
{
    Prepare(pic);
    const bool simple = supportType == kTwoSupports;
    DrawBand(pic, simple ? 8 : 12, simple ? 92 : 88, simple ? 32 : 28, simple ? 40 : 36);
    if (simple) {
        DrawPin(pic, 22, 32);
        DrawRoller(pic, 78, 32);
    } else {
        const bool left = supportType == kFixedLeft;
        DrawWall(pic, left ? 12 : 88, left ? -1 : 1);
    }
}

void DrawLoadTypeSketch(Picture& pic, int loadType)
{
    Prepare(pic);
    const int family = FamilyOf(loadType);
    const bool up = loadType == kPointUp || loadType == kUniformUp;
    // The beam lies on the side of the arrowheads.
    const double bottom = family == kMomentLoad ? 26 : up ? 38 : 14;
    DrawBand(pic, 8, 92, bottom, bottom + 8);
    if (family == kPointLoad) DrawPointSketch(pic, up);
    if (family == kUniformLoad) DrawUniformSketch(pic, up);
    if (family == kMomentLoad) DrawMomentSketch(pic, loadType == kMomentCw);
}

void DrawShearSignSketch(Picture& pic, bool reversed)
{
    Prepare(pic);
    DrawBand(pic, 34, 66, 18, 42);
    TakeLoadColour(pic);
    const double high = 50;
    const double low = 10;
    DrawArrow(pic, {26, reversed ? high : low}, {26, reversed ? low : high}, kHead);
    DrawArrow(pic, {74, reversed ? low : high}, {74, reversed ? high : low}, kHead);
    pic.FontSize = 12;
    PrintText(pic, 14, 30, "V", HAlign::Centre, VAlign::Middle);
    PrintText(pic, 86, 30, "V", HAlign::Centre, VAlign::Middle);
    pic.ForeColor = kSteelLine;
    pic.FontBold = true;
    PrintText(pic, 50, 30, "+", HAlign::Centre, VAlign::Middle);
    pic.FontBold = false;
}

} // namespace forcelab::beams
