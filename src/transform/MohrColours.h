#pragma once

#include "core/Picture.h"
#include "transform/StressState.h"

#include <array>

namespace forcelab::transform {

// Tones that read well on white and print well in grey.
inline constexpr Colour kAxisColour = Rgb(110, 110, 110);
inline constexpr Colour kFaintColour = Rgb(165, 165, 165);
inline constexpr Colour kTextColour = Rgb(20, 20, 20);
inline constexpr Colour kMainColour = Rgb(0, 0, 128); ///< the circle, normal values
inline constexpr Colour kDiameterColour = Rgb(70, 70, 70);
inline constexpr Colour kAngleColour = Rgb(150, 75, 0);
inline constexpr Colour kElementFill = Rgb(240, 244, 250);
inline constexpr Colour kCircleOneColour = Rgb(0, 110, 110);
inline constexpr Colour kCircleTwoColour = Rgb(110, 60, 130);

/// Shear arrows: principal values of opposite sign, else by which is the larger.
inline constexpr std::array<Colour, 3> kShearColours{Rgb(160, 0, 0), Rgb(0, 110, 0),
                                                     Rgb(128, 0, 128)};
constexpr Colour ShearColour(const StressState& state)
{
    return kShearColours[static_cast<std::size_t>(state.ShearArrowColour)];
}

} // namespace forcelab::transform
