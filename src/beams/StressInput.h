#pragma once

#include "beams/SectionStress.h"
#include "core/Refusal.h"
#include "transform/StressState.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace forcelab::beams {

inline constexpr std::array<std::string_view, 4> kStressUnits{"psi", "ksi", "kPa", "MPa"};
inline constexpr std::array<std::string_view, 2> kShapeUnits{"in", "mm"};

// Factors of the unit options of frmDetails, to lb and lb-in. They carry three digits more than
// those of the loads, and stay its own.
double DetailsForceFactor(int unit);
double DetailsMomentFactor(int unit);

/// Which list txtKeyStresses shows.
enum KeyStressViews : int { kNoKeyStresses = 0, kNormalView = 1, kShearView = 2, kPointView = 3 };

/// What the boxes and options of frmDetails say.
struct DetailsEntry {
    std::array<std::string, 3> VM;    ///< txtVM: axial force, shear force, bending moment
    std::array<std::string, 2> Coord; ///< txtCoord: z and y, y upward
    int ForceUnitIndex = 0;           ///< optForceUnits: lbs, kips, N, kN
    int MomentUnitIndex = 0;          ///< optMomentUnits: ft-lbs, ft-kips, N-m, kN-m
    int StressUnitIndex = 0;          ///< optStressUnits: psi, ksi, kPa, MPa
    int ShapeUnitIndex = 0;           ///< optShapeUnits: in, mm
};

/// The variables of frmDetails.
struct StressDetails {
    double AxialForce = 0; ///< lb
    double ShearForce = 0;
    double BendingMoment = 0; ///< lb-in
    double PointZ = 0;        ///< unit of optShapeUnits
    double PointY = 0;    ///< the same, but downward as vsbY runs: a typed y with its sign turned
    SectionBounds Bounds; ///< unit of optShapeUnits, upward
    int ForceUnitIndex = 0;
    int MomentUnitIndex = 0;
    int StressUnitIndex = 0;
    int ShapeUnitIndex = 0;
    int KeyStressView = kNoKeyStresses;

    [[nodiscard]] SectionForces Forces() const { return {AxialForce, ShearForce, BendingMoment}; }
    [[nodiscard]] double LengthUnit() const; ///< inches
    [[nodiscard]] double StressUnit() const; ///< psi
    [[nodiscard]] double ZInches() const { return PointZ * LengthUnit(); }
    [[nodiscard]] double YInches() const; ///< upward
};

/// Reads the boxes: forces to lb and lb-in, the point held inside the bounds of the section.
/// Throws ArithmeticFault where a number overflows.
StressDetails ReadDetails(const sections::CrossSection& section, const DetailsEntry& entry);

/// Moves the point, y upward, as far as the section reaches; by box, scroll bar or click.
void MovePoint(StressDetails& details, double z, double y);
/// The boxes txtCoord for the point.
std::array<std::string, 2> CoordTexts(const StressDetails& details);

/// Whether the stresses of a view (kNormalView or kShearView) can be calculated.
/// Title "Stress Calculation Error".
std::optional<Refusal> CheckForces(const StressDetails& details, int view);

/// StressAtPoint at the point of the form, in its units.
PointStress StressAtSpecifiedPoint(const sections::CrossSection& section,
                                   const StressDetails& details);
/// The state at the point for Mohr's circle: no stress in the Y direction.
transform::MohrHandOver HandOverToMohr(const sections::CrossSection& section,
                                       const StressDetails& details);

// Numbers as frmDetails shows them, without their unit.
std::string LevelText(double inches, const StressDetails& details);
std::string StressText(double psi, const StressDetails& details);
std::string StressWithUnit(double psi, const StressDetails& details); ///< the one with its unit
std::string_view StressUnitText(const StressDetails& details);
std::string_view ShapeUnitText(const StressDetails& details);

} // namespace forcelab::beams
