#pragma once

#include "beams/StressInput.h"

namespace forcelab::beams {

/// True where stresses can be worked out: a shape was chosen and its properties computed.
bool HasStressSection(const sections::CrossSection& section);
/// True where both have one shape, size, material and properties.
bool IsSameSection(const sections::CrossSection& one, const sections::CrossSection& other);

/// ReadDetails for a form that shows the point of `before`: a box that still holds its rounded text
/// stands for the point itself, which keeps its place where the unit of the shape is another one.
/// Throws ArithmeticFault where a number overflows.
StressDetails ReadDetailsAgain(const sections::CrossSection& section, const DetailsEntry& entry,
                               const StressDetails& before);

/// A scroll bar over one coordinate of the section: 100 to 1000 steps, each a round part of the
/// unit. One of its places is the centroid, where the shear stress of round shapes is known.
struct CoordinateBar {
    double Step = 1; ///< unit of optShapeUnits
    int First = 0;   ///< at or beyond `low`
    int Last = 0;    ///< at or beyond `high`
    [[nodiscard]] int PlaceOf(double coordinate) const;
    [[nodiscard]] double CoordinateAt(int place) const { return place * Step; }
};
CoordinateBar CoordinateBarOf(double low, double high);

} // namespace forcelab::beams
