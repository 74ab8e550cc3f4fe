#pragma once

#include <vector>

/// Section properties by integration over closed outlines (Green's theorem, or the surveyor's
/// formula). It shares nothing with the program's own sums over rectangles.
namespace forcelab::validation {

struct Vertex {
    double X = 0;
    double Y = 0;
};
using Outline = std::vector<Vertex>; ///< counterclockwise; clockwise for a hole
using Figure = std::vector<Outline>;

struct Moments {
    double Area = 0;
    double FirstX = 0; ///< integral of x
    double FirstY = 0;
    double SecondX = 0; ///< integral of x squared
    double SecondY = 0;
    double Product = 0;
};
/// About the origin. Source: the standard line integrals of a polygon; e.g. C. Steger, "On the
/// calculation of arbitrary moments of polygons", 1996.
Moments Integrate(const Figure& figure);

/// The part of a figure above y = level. The cut may leave edges of no area along the level.
Figure Above(const Figure& figure, double level);
/// Turned counterclockwise by quarters of a turn.
Figure Turned(const Figure& figure, int quarters);
Figure Moved(const Figure& figure, double dx, double dy);

struct Box {
    double Left, Bottom, Right, Top;
};
Box BoundsOf(const Figure& figure);
Outline Rectangle(double left, double bottom, double width, double height);
Outline Hole(Outline outline); ///< the same outline the other way round
/// A polygon of so many sides in place of a circle, with the circle's area.
Outline Round(double diameter, int sides);

/// Level with half of the area above it, by bisection, and the integral of |y - level|. Where a gap
/// gives many such levels, the middle of the gap.
struct PlasticFigure {
    double Level = 0;
    double Modulus = 0;
};
PlasticFigure PlasticOf(const Figure& figure);

} // namespace forcelab::validation
