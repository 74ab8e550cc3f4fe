#pragma once

#include "core/Refusal.h"
#include "transform/StressState.h"

#include <array>
#include <optional>
#include <string>

namespace forcelab::transform {

/// What a rosette's frame of stresses says.
struct StrainToStress {
    bool Wanted = false;        ///< chkRosette
    int StressOrStrain = 0;     ///< optStressOrStrain: 0 plane stress, 1 plane strain
    std::string ElasticModulus; ///< txtElasticModulus
    int ElasticModulusUnit = 0; ///< optElasticModulus: 0 psi, 1 ksi, 2 MPa, 3 GPa
    std::string Poisson;        ///< txtPoisson
    int StressUnit = 0;         ///< optUnitsStress: 0 psi, 1 ksi, 2 kPa, 3 MPa
};

/// What the boxes and options of frmMohr say.
struct MohrEntry {
    MohrMode Mode = MohrMode::PlaneStress;
    std::array<std::string, 3> Text; ///< txtStress(0) to (2)
    std::array<bool, 3> Negative{};  ///< the second option of each sign pair is chosen
    int Unit = 0;                    ///< optStressUnits
    bool ShowAbsMaxShear = false;    ///< chkAbsMaxShear, where the analysis offers it
    StrainToStress Stresses;
};

/// The work of Compute: reads the boxes, which it rewrites in `entry.Text`, scales the values,
/// reduces a rosette and calculates the circle into `state`; the rotation angle stays.
/// Refuses equal values without shear, and a circle without radius, in the words of the analysis;
/// the first leaves everything but the boxes as it was. ArithmeticFault leaves `state` untouched.
std::optional<Refusal> ComputeMohr(StressState& state, MohrEntry& entry);

/// Centre, radius, principal values, the three circles, the absolute maximum shear and the double
/// angle, from SigmaX, SigmaY, TauXY of `state`. Refuses a circle without radius and sets
/// CircleBad. Source: O. Mohr's construction, as in any textbook of mechanics of materials.
std::optional<Refusal> CalculateCircle(StressState& state, const MohrEntry& entry);

/// The window of the circle picture in the state's values.
struct CircleWindow {
    double High, Low;   ///< of the normal values
    double Top, Bottom; ///< of the shear values
    double Limit;       ///< minus the largest absolute value of the four
};
/// Widens a window by 0.23 of its size on every side; an empty one gets a size, and the state's
/// radius is then set to 0.1.
CircleWindow MaxMinMohrCircle(StressState& state, double high, double low, double top,
                              double bottom);
/// The window that the state needs: all three circles where they are shown, else the first alone.
CircleWindow WindowOf(StressState& state, const MohrEntry& entry);
/// True where the two smaller circles and the third principal value are shown.
bool ShowsThreeCircles(const MohrEntry& entry);
/// True where the third principal value is that of a body free of stress across its surface:
/// plane stress, and a rosette on a body in plane stress whose elastic constants are known.
bool AssumesPlaneStress(const MohrEntry& entry);

/// The state on an element turned counterclockwise by `angle` radians. Shear is positive where it
/// turns the x' face counterclockwise (the opposite of TauXY), half the shear strain in strain.
/// In the state's scale, without ValueScale.
struct RotatedState {
    double NormalX, NormalY, ShearXY;
};
RotatedState StateAt(const StressState& state, double angle);

/// Turn from the x axis to the direction of principal one, radians, counterclockwise positive.
double PrincipalDirection(const StressState& state);
/// Turn from the x axis to the nearer orientation of maximum in-plane shear, counterclockwise
/// positive, at most pi / 4 in size.
double MaxShearDirection(const StressState& state);

/// The texts beside the rotated element, in the order of ModeLabels::Rotated: value, unit and
/// "(T)", "(C)" or the sense of the shear. Shear strain is shown whole, not halved.
std::array<std::string, 3> RotatedTexts(const StressState& state, const MohrEntry& entry);

/// Degrees from the text of the rotation box, held between -90 and 90.
double RotationFromText(const std::string& text);

/// A shown value: times ValueScale, by the mask of the analysis.
std::string MohrText(const StressState& state, const MohrEntry& entry, double value);

/// The boxes and options that show a state handed over by another module.
MohrEntry EntryOf(const MohrHandOver& handOver);

/// Principal stresses for the theories of failure: true values in the unit shown.
struct FailureInput {
    double Sigma1, Sigma2;
    int Unit;
};
FailureInput FailureInputOf(const StressState& state, const MohrEntry& entry);

} // namespace forcelab::transform
