#pragma once

#include "sections/DimensionLayout.h"

#include <span>
#include <vector>

namespace forcelab::sections {

/// What a floating box had better not cover, and how many pixels of distance that is worth.
struct Obstacle {
    PixelRect Where;
    double Cost = 0;
    int Owner = -1; ///< the box that may cover it
};

/// Finds a place for each box near to its wish: inside a picture of the given size and never over
/// another box, and off the obstacles where going round them is shorter. The same wishes always
/// give the same places; earlier boxes choose first.
std::vector<BoxPlace> PlaceBoxes(std::span<const BoxPlace> wishes, BoxSize box, double width,
                                 double height, std::span<const Obstacle> obstacles);

} // namespace forcelab::sections
