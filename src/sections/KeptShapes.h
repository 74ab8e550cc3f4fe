#pragma once

#include "sections/SectionInput.h"
#include "sections/SectionRecord.h"
#include "sections/ShapeCatalogue.h"

#include <array>
#include <string>
#include <string_view>

namespace forcelab::sections {

/// Indexed colours of the swatches: what an element is made of.
enum SwatchColour : int { kUnassigned = 8, kMaterialA = 9, kMaterialB = 10, kHollow = 15 };

/// Captions of the materials before one is chosen from the lists.
inline constexpr std::array<std::string_view, 2> kMaterialCaptions{"Material A", "Material B"};

using Swatches = std::array<Colour, kElements>;

/// No element has a material yet.
Swatches UnassignedSwatches();
/// The swatches of a shape of one material: all alike, the hollow of a box or a tube white, and
/// the four quadrants of shape 27 in colours of their own.
Swatches PlainSwatches(int shapeIndex);

/// Saves the entries of the current shape. `assigned` are the materials that its elements have as
/// a composite section, which are kept while the section is of one material, too.
KeptShape CollectKeepData(const CrossSection& section, const SectionEntry& entry,
                          const Swatches& assigned);

/// Makes a shape current: its catalogue entry, and its kept entries or, where it has none, the
/// default outline and zero dimensions. The properties of the last computation stay.
void RestoreShape(int shapeIndex, const KeptShape& kept, CrossSection& section,
                  SectionEntry& entry);

/// What a person calls a dimension box: "Dimension 1 of element 2: web height".
std::string DimensionName(int shapeIndex, int box);

} // namespace forcelab::sections
