#pragma once

#include "sections/BoxPlacement.h"

#include <span>

/// The texts that stand on the drawing of a shape.
namespace forcelab::sections {

/// What a text or a box takes, in pixels.
PixelRect TextRect(const Picture& pic, PicturePoint topLeft, std::string_view text);
/// Prints a text with its upper left corner at a pixel.
void PrintAt(Picture& pic, PicturePoint topLeft, std::string_view text);

/// The number of each element, in black: in a corner of the element, or beside one that is too
/// small for it, with a short rule to it; of circles at 45 degrees. Keeps clear of `boxes`.
void WriteNumbersByShapes(Picture& pic, const CrossSection& section,
                          std::span<const PixelRect> boxes);

/// Height of the strip at the top that the properties of the specified shape take, pixels.
double PropertyStripHeight(BoxSize box);
/// The wished places of the boxes 6, 4 and 5, which hold properties.
std::vector<BoxPlace> PropertyWishes(const Picture& pic, BoxSize box);
/// The captions and units of those boxes at the places that they got.
void PrintPropertyTexts(Picture& pic, std::span<const BoxPlace> places, BoxSize box,
                        int lengthUnit);

} // namespace forcelab::sections
