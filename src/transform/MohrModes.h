#pragma once

#include "transform/StressState.h"

#include <array>
#include <string_view>

namespace forcelab::transform {

/// What the form calls things in one analysis. An empty text hides its control.
struct ModeLabels {
    std::string_view Menu;                     ///< object name of the menu item
    std::array<std::string_view, 3> Direction; ///< "X-direction"; rosettes: "Gage A Strain"
    std::array<std::string_view, 3> Kind;      ///< "Normal Stress"; rosettes: "0° Direction"
    std::array<std::array<std::string_view, 2>, 3> Sense; ///< captions of the sign options
    std::string_view AbsMaxShear;
    std::string_view Principal;
    std::string_view MaxShear;
    std::string_view RotationFrame;
    std::string_view Angle;
    std::array<std::string_view, 3> Rotated; ///< "Sigma X'", "Sigma Y'", "Tau X'Y'"
    int FirstUnit; ///< the indices of optStressUnits that this analysis offers
    int LastUnit;
    std::string_view WarningTitle;
    std::string_view EqualWarning; ///< two equal normal values and no shear, before any calculation
    std::string_view RadiusWarning; ///< a circle without radius
};

const ModeLabels& LabelsOf(MohrMode mode);

/// Captions of optStressUnits: 0 psi, 1 ksi, 2 kPa, 3 MPa, 4 in/in, 5 microstrain, 6 in^4, 7 mm^4.
inline constexpr std::array<std::string_view, 8> kMohrUnits{"psi",   "ksi",   "kPa",  "MPa",
                                                            "in/in", "micro", "in^4", "mm^4"};

/// The number mask of an analysis in a unit.
std::string_view MohrMask(MohrMode mode, int unit);

} // namespace forcelab::transform
