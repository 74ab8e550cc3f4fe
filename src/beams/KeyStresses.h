#pragma once

#include "beams/StressInput.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace forcelab::beams {

/// What stands above the list of stresses: the first note while none is asked for.
inline constexpr std::array<std::string_view, 4> KeyStressNotes{
    "Normal stresses at key locations", "Normal stresses at key locations",
    "Shear stresses at key locations", "Stresses at the specified coordinates"};

/// A stress at a level that tells something, in psi and inches.
struct KeyStress {
    std::string Place; ///< "Top", "Border, just above", with the material in composite sections
    double Y = 0;
    double Stress = 0;
};
/// Top, bottom, neutral axis, then the borders of the elements from the top down.
std::vector<KeyStress> KeyNormalStresses(const sections::CrossSection& section,
                                         const SectionForces& forces);
/// Neutral axis, the largest where that is elsewhere, the borders on both sides from the top down,
/// top, bottom. Empty where the shear stress of the shape is not known.
std::vector<KeyStress> KeyShearStresses(const sections::CrossSection& section,
                                        const SectionForces& forces);

/// The lines of txtKeyStresses for the view of the form, in its units.
std::vector<std::string> KeyStressLines(const sections::CrossSection& section,
                                        const StressDetails& details);

} // namespace forcelab::beams
