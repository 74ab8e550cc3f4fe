#pragma once

#include "sections/SectionRecord.h"

#include <array>

namespace forcelab::sections {

/// Both plastic neutral axes and moduli. Index 0: the vertical axis, at an offset in z; index 1:
/// the horizontal axis, at an offset in y; both offsets from the centroid.
struct PlasticResult {
    std::array<double, 4> Bounds{}; ///< least z, greatest z, least y, greatest y from the centroid
    std::array<double, 2> PlasticNA{};
    std::array<double, 2> PlasticModulus{};
};

/// Moves the corners to the centroid and finds the axes that halve the area, by the closed form
/// for the box and otherwise by a secant search on the half-area balance, which stops within
/// 0.001 of area (entered unit squared), and by halving where the secant steps do not get there.
PlasticResult LocatePlasticNA(CrossSection& section, double zBar, double yBar, double halfArea);

/// Area beyond a line on the side away from the centroid; axis 0 a vertical line at z = position,
/// 1 a horizontal line at y = position, measured from the centroid.
double AreaBeyond(const CrossSection& section, int axis, double position);

} // namespace forcelab::sections
