#pragma once

#include "core/Refusal.h"
#include "sections/SectionRecord.h"
#include "sections/SteelShapes.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace forcelab::sections {

/// How a dimension is written back into its box.
inline constexpr std::string_view kDimensionMask = "####0.0#####";

/// What the boxes and options of frmProperties say.
struct SectionEntry {
    std::array<std::string, kBoxes> Box;                     ///< txtShape; Compute rewrites them
    std::array<std::string, 3> Modulus{"0.0", "0.0", "0.0"}; ///< txtElasticModulus: single, A, B
    int ModulusUnit = 0;                    ///< optElasticModulus: 0 psi, 1 ksi, 2 MPa, 3 GPa
    int LengthUnit = 0;                     ///< optShapeUnits: 0 in, 1 mm
    bool Composite = false;                 ///< chkElasticModulus
    std::array<Colour, kElements> Swatch{}; ///< picShape: indexed 8 none, 9 Material A, 10 B
    std::array<std::string, 2> Material;    ///< lblMaterial(1) and (2): captions of A and B
    std::optional<SteelShape> Steel;        ///< the selected row of a steel table
};

/// The entry from which CurrentSection was computed; the report reads it.
inline SectionEntry CurrentEntry;

/// The checks of Compute in their order. On success the dimensions are made positive, rewritten
/// in `entry.Box` and stored in section.ElementDims. Title "Section Properties Error".
std::optional<Refusal> CheckEntry(CrossSection& section, SectionEntry& entry);

/// The work of Compute after CheckEntry: lays out the elements and computes. Refuses nothing more;
/// throws ArithmeticFault, and leaves `section` as it was, where a number is not finite.
void ComputeShape(CrossSection& section, SectionEntry& entry);

/// The boxes and the option with the other length unit; shape 27 converts its properties by their
/// powers.
void ConvertLengthUnit(const CrossSection& section, SectionEntry& entry);

} // namespace forcelab::sections
