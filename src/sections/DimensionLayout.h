#pragma once

#include "sections/SectionDrawing.h"

#include <array>
#include <vector>

namespace forcelab::sections {

/// An upright rectangle in pixels of a picture; axis 0 runs to the right, axis 1 downward.
struct PixelRect {
    std::array<double, 2> Lo{};
    std::array<double, 2> Hi{};
    [[nodiscard]] double Length(int axis) const { return Hi[axis] - Lo[axis]; }
    [[nodiscard]] double Middle(int axis) const { return (Lo[axis] + Hi[axis]) / 2; }
};

/// True where two rectangles come nearer to each other than `gap`.
bool Meet(const PixelRect& a, const PixelRect& b, double gap);
PixelRect RectAround(PicturePoint middle, BoxSize size);

/// True for the circle and the pipes, whose corners hold a radius.
bool IsRound(int shapeIndex);
/// The pixels of the shown elements; of the round shapes, the squares about their circles.
std::vector<PixelRect> ElementRects(const Picture& pic, const CrossSection& section);

/// A dimension line along one axis of the picture, in pixels.
struct DimensionLine {
    int Box = 0;             ///< index of the txtShape that holds the dimension
    int Axis = 0;            ///< that along which it measures
    double From = 0, To = 0; ///< the measured length, From <= To
    double At = 0;           ///< where the line runs, on the other axis
    double Foot = 0;         ///< where its extension lines begin; at the line itself: it has none
    double LineFrom = 0;     ///< the drawn line with the tails that lead to the box
    double LineTo = 0;
    int BoxSide =
        0; ///< 0: the box stands on the line; -1, 1: it follows the line's low or high end
    bool HeadsOutside = false; ///< the length is too short to hold the arrowheads
    PicturePoint Wish;         ///< where the middle of the box would best stand
};

/// One line for each dimension that the shape shows, in the order of the boxes.
///
/// A line runs outside the section on the side that its element can see, in the nearest lane that
/// no other line of that side takes. ElementStyle says where the second dimension goes: 1 outside
/// like the first; 2 beside the element, across which it measures; 3 and 4 (doubled shapes, hat)
/// outside where the element can see a side of the section, else beside it.
std::vector<DimensionLine> LayDimensions(const Picture& pic, const CrossSection& section,
                                         BoxSize box);

inline constexpr double kHeadPixels = 8; ///< length of an arrowhead

} // namespace forcelab::sections
