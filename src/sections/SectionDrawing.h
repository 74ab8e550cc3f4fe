#pragma once

#include "core/Picture.h"
#include "sections/SectionInput.h"
#include "sections/SectionRecord.h"

#include <string_view>
#include <vector>

namespace forcelab::sections {

/// Half the width and half the height of the drawing in section units; the origin is its centre.
struct ShapeScale {
    double ZHalf = 1;
    double YHalf = 1;
    [[nodiscard]] std::string_view Note() const; ///< "To scale", "Zoom X" or "Zoom Y"
};
ShapeScale ScalePicture(const CrossSection& section);

/// Where a dimension box floats: the middle of the box, in pixels of the picture.
struct BoxPlace {
    int Box = 0; ///< index of txtShape
    PicturePoint Middle;
};

/// Size of a floating box, in pixels.
struct BoxSize {
    double Width = 64;
    double Height = 24;
};

/// Draws the section with its axes, dimension lines, note, element numbers, and after a compute
/// its principal axes; gives the places of the boxes, each beside the dimension that it sets,
/// inside the picture and never over one another. `colours` are the swatches.
std::vector<BoxPlace> DrawShape(Picture& pic, const CrossSection& section,
                                const SectionEntry& entry, BoxSize box);

/// The section of the report: elements, centroid, axes and the edge distances.
void DrawCrossSection(Picture& pic, const CrossSection& section, const SectionEntry& entry);

} // namespace forcelab::sections
