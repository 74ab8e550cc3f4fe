#pragma once

#include "core/Picture.h"

#include <array>
#include <string>
#include <vector>

namespace forcelab {

/// Fills an ellipse of half axes a and b, turned by `rotation` (radians, counterclockwise in the
/// scale's own sense), about (cx, cy): 36 points at equal angles, with the picture's current fill.
void DrawEllipsePolygon(Picture& pic, double a, double b, double rotation, double cx, double cy);

/// An arc of an ellipse with an arrowhead at its start or its end, as for a moment or an angle.
/// `end` is taken above `start`; headSize is in pixels before its multiplication by 4.
void DrawArcArrow(Picture& pic, double a, double b, double rotation, double cx, double cy,
                  double start, double end, bool headAtStart, double headSize);

/// The kind of arrow whose tip stands at its given point; any other kind has its tail there.
inline constexpr int kArrowTipAtPoint = 4;

/// The four corners of an arrow of the given length, turned by `angle` (radians) about (x, y).
/// Corners 0 and 3 are the ends of the shaft, 1 and 2 the sides of the head, or where the tail is
/// at (x, y), of the other end, as the arrow is turned by pi.
std::array<PicturePoint, 4> ArrowPoints(double x, double y, double angle, int kind, double length,
                                        double headLength, double headHalfWidth);

/// A rectangle in whole pixels of a picture.
struct PixelRect {
    double Top = 0;
    double Left = 0;
    double Width = 0;
    double Height = 0;
};

/// Where a rectangle of a cross-section, given as left, bottom, right and top, lies on a picture
/// whose y runs upward. The section stands as it is where `rotation` is 0; 1 turns it by a quarter
/// turn counterclockwise about the origin, 3 clockwise.
PixelRect RectToPicture(const Picture& pic, int rotation, const std::array<double, 4>& corners);

/// A piece of a label: plain text, a Greek letter given as the font "Symbol" names it, or a
/// subscript or superscript.
struct LabelPart {
    enum class Kind { Plain, Greek, Subscript, Superscript };
    std::string Text;
    Kind What = Kind::Plain;
};
using Label = std::vector<LabelPart>;

enum class HAlign { Left, Centre, Right };
enum class VAlign { Top, Middle, Bottom };

double LabelWidth(Picture& pic, const Label& label); ///< units of x, positive

/// Prints a label with the given side, corner or middle of its box at (x, y). The label is one
/// text to Picture::Texts.
void PrintLabel(Picture& pic, double x, double y, const Label& label, HAlign across = HAlign::Left,
                VAlign along = VAlign::Top);

/// PrintLabel for plain text.
void PrintText(Picture& pic, double x, double y, const std::string& text,
               HAlign across = HAlign::Left, VAlign along = VAlign::Top);

/// A straight arrow from one point to another with a filled head of so many pixels at the end.
void DrawArrow(Picture& pic, PicturePoint from, PicturePoint to, double headPixels);

} // namespace forcelab
