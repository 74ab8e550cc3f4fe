#pragma once

namespace forcelab::transform {

/// The five analyses, in the order of the menu.
enum class MohrMode { PlaneStress, PlaneStrain, Rosette45, Rosette60, MomentOfInertia };

/// True for plane strain and both rosettes.
constexpr bool IsStrain(MohrMode mode)
{
    return mode == MohrMode::PlaneStrain || mode == MohrMode::Rosette45 ||
           mode == MohrMode::Rosette60;
}
constexpr bool IsRosette(MohrMode mode)
{
    return mode == MohrMode::Rosette45 || mode == MohrMode::Rosette60;
}

/// A plane state of stress, strain or inertia and what follows from it.
///
/// SigmaX, SigmaY and TauXY share one unit, the one typed, and are divided by ValueScale: shown
/// values are these times ValueScale. Tension and elongation are positive. TauXY is positive
/// where it turns the x face clockwise; in strain it is half the engineering shear strain. For
/// inertia the three are Iz, Iy and Iyz. Angles are radians.
struct StressState {
    MohrMode Mode = MohrMode::PlaneStress;
    double SigmaX = 0;
    double SigmaY = 0;
    double TauXY = 0;
    double EntryA = 0; ///< gauge readings of a rosette, divided by ValueScale
    double EntryB = 0;
    double EntryC = 0;
    double CircleCentre = 0;
    double CircleRadius = 0;
    double PrincipalOne = 0; ///< centre + radius
    double PrincipalTwo = 0; ///< centre - radius
    double PrincipalThree = 0;
    double AbsMaxShear = 0; ///< radius of the largest of the three circles
    double AbsMaxCentre = 0;
    double CircleOneCentre = 0; ///< circle through principal one and three
    double CircleOneRadius = 0;
    double CircleTwoCentre = 0; ///< circle through principal two and three
    double CircleTwoRadius = 0;
    double PrincipalAngle = 0; ///< double angle from the X point to principal one, 0 to 2 pi
    double RotationAngle = 0;  ///< chosen by the user, counterclockwise, -pi / 2 to pi / 2
    double ValueScale = 1;     ///< a power of 1000
    double PoissonRatio = 0;
    double ModulusOfElasticity = 0; ///< psi
    int ShearArrowColour = 0;       ///< 0, 1, 2: which of the three colours the shear arrows take
    bool CircleBad = false;         ///< there is no circle to draw
};

/// The state that frmMohr works on.
inline StressState CurrentStress;

/// A state handed to frmMohr by another module, which also sets MainModule::MohrCaller and shows
/// the form. The form takes it up when it becomes active, fills its boxes and computes.
struct MohrHandOver {
    bool Pending = false;
    MohrMode Mode = MohrMode::PlaneStress;
    double Value[3] = {0, 0, 0}; ///< signed; the third positive clockwise on the x face, or Iyz
    int Unit = 0;                ///< index of optStressUnits
};
inline MohrHandOver CurrentHandOver;

} // namespace forcelab::transform
