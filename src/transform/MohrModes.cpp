#include "transform/MohrModes.h"

namespace forcelab::transform {

namespace {

using Pair = std::array<std::string_view, 2>;
using Pairs = std::array<Pair, 3>;
using Triple = std::array<std::string_view, 3>;

constexpr Triple kXyDirections{"X-direction", "Y-direction", "XY-direction"};
constexpr Triple kGauges{"Gage A Strain", "Gage B Strain", "Gage C Strain"};
constexpr Triple kStrainResults{"Epsilon X'", "Epsilon Y'", "Gamma X'Y'"};
constexpr Pair kStretch{"Elongation", "Contraction"};
constexpr Pair kStress{"Tension", "Compression"};
constexpr Pairs kGaugeSenses{kStretch, kStretch, kStretch};

constexpr std::string_view kStrainCheck = "Show Absolute Maximum Shear Strain";
constexpr std::string_view kStrainPrincipal = "Principal Strain Orientation";
constexpr std::string_view kStrainShear = "Max XY Shear Strain Orientation";
constexpr std::string_view kStrainRotation =
    "Compute Normal and Shear Strains at Arbitrary Orientation";
constexpr std::string_view kXAngle = "Angle from X-axis to X'-axis";
constexpr std::string_view kGaugeAngle = "Angle from A-axis to X'-axis";

constexpr std::string_view kStrainTitle = "Strain Transformation Warning";
constexpr std::string_view kStrainEqual =
    "The specified strains produce equal strains in all directions.";
constexpr std::string_view kStrainRadius =
    "The specified strains produce the same strain in every direction.";

constexpr ModeLabels RosetteLabels(std::string_view menu, const Triple& directions)
{
    return {menu,
            kGauges,
            directions,
            kGaugeSenses,
            kStrainCheck,
            kStrainPrincipal,
            kStrainShear,
            kStrainRotation,
            kGaugeAngle,
            kStrainResults,
            4,
            5,
            kStrainTitle,
            kStrainEqual,
            kStrainRadius};
}

constexpr std::array<ModeLabels, 5> kModes{{
    {"mnuPlaneStress",
     kXyDirections,
     {"Normal Stress", "Normal Stress", "Shear Stress"},
     {kStress, kStress, Pair{"CW on X-face", "CCW on X-face"}},
     "Show Absolute Maximum Shear Stress",
     "Principal Stress Orientation",
     "Max XY Shear Stress Orientation",
     "Compute Normal and Shear Stresses at Arbitrary Orientation",
     kXAngle,
     {"Sigma X'", "Sigma Y'", "Tau X'Y'"},
     0,
     3,
     "Stress Transformation Warning",
     "The stresses specified produce a hydrostatic pressure condition.",
     "The stresses specified produce the same stress in every direction."},
    {"mnuPlaneStrain",
     kXyDirections,
     {"Normal Strain", "Normal Strain", "Shear Strain"},
     {kStretch, kStretch, Pair{"CW from X-axis", "CCW from X-axis"}},
     kStrainCheck,
     kStrainPrincipal,
     kStrainShear,
     kStrainRotation,
     kXAngle,
     kStrainResults,
     4,
     5,
     kStrainTitle,
     kStrainEqual,
     kStrainRadius},
    RosetteLabels("mnuRosette45", {"0° Direction", "45° Direction", "90° Direction"}),
    RosetteLabels("mnuRosette60", {"0° Direction", "60° Direction", "120° Direction"}),
    {"mnuMomentOfInertia",
     {"Z-direction", "Y-direction", "YZ-direction"},
     {},
     {},
     "",
     "Orientation of Principal Axes",
     "",
     "Compute Moments of Inertia at Arbitrary Orientation",
     "Angle from Z-axis to Z'-axis",
     {"Iz'", "Iy'", "Iy'z'"},
     6,
     7,
     "Moments of Inertia Transformation Warning",
     "The moments of inertia are equal in all orientations.",
     "The specified moments of inertia produce a singularity."},
}};

constexpr int kInchPerInch = 4;
constexpr int kInchFourth = 6;

} // namespace

const ModeLabels& LabelsOf(MohrMode mode)
{
    return kModes[static_cast<int>(mode)];
}

std::string_view MohrMask(MohrMode mode, int unit)
{
    if (IsStrain(mode) && unit == kInchPerInch) return "##0.00000###";
    if (mode == MohrMode::MomentOfInertia && unit != kInchFourth) return "##0.0000E+00";
    return "###,###,###,##0.0###";
}

} // namespace forcelab::transform
