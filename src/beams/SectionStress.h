#pragma once

#include "sections/SectionRecord.h"

#include <array>
#include <optional>
#include <vector>

namespace forcelab::beams {

/// Forces at a section of the beam, in lb and lb-in. Positive: tension, a moment that compresses
/// the top, and a shear force that turns a slice of the beam clockwise.
struct SectionForces {
    double Axial = 0;
    double Shear = 0;
    double Moment = 0;
};

/// Stresses on the x face. Positive: tension, and shear that turns the face clockwise.
struct PointStress {
    double Normal = 0;
    double Shear = 0;
};

/// What the stress formulas take from the record: inches, and for two materials the section
/// transformed to Material A.
struct StressProperties {
    double Area = 0;
    double Inertia = 0;
    double ModularRatio = 1; ///< E of Material B to E of Material A; 1 for one material
};
StressProperties StressPropertiesOf(const sections::CrossSection& section);

/// True where the element of a composite section is of Material B.
bool IsMaterialB(const sections::CrossSection& section, int element);

/// Extreme coordinates of the section from its centroid: y upward, z to the right.
struct SectionBounds {
    double SectionLeft = 0;
    double SectionRight = 0;
    double SectionBottom = 0;
    double SectionTop = 0;
    [[nodiscard]] double Depth() const { return SectionTop - SectionBottom; }
};
SectionBounds SectionBoundsOf(const sections::CrossSection& section); ///< inches

/// Where the width changes at a level, the side of it whose width is meant.
enum class Side { Below, Above };

/// The part of the section above a level, with Material B widened by the modular ratio.
struct PartAbove {
    double Q = 0;     ///< first moment about the centroidal axis, in^3
    double Area = 0;  ///< in^2
    double Width = 0; ///< at the level, in
};
/// The hole of a tube takes its width away; what fills it in a composite section comes instead.
/// For sections of rectangles; `y` in inches from the centroid.
PartAbove SectionPartAbove(const sections::CrossSection& section, double y,
                           Side side = Side::Below);

/// Stresses at (z, y), which are typed in a unit of `lengthUnit` inches; y upward. The results
/// are in a unit of `stressUnit` psi.
///
/// Normal stress N / A - M y / I, times the modular ratio in Material B, and 0 off the section;
/// the circle asks for no place, the pipe for y alone. Shear stress V Q / I t, at a border of two
/// elements with the width of the later one; circle and pipe have it at y = 0 exactly and nowhere
/// else, specified properties have none.
/// Source: flexure and shear formulas, e.g. Gere and Goodno, Mechanics of Materials, beams.
/// Throws ArithmeticFault where a result is not finite.
PointStress StressAtPoint(const sections::CrossSection& section, double z, double y,
                          const SectionForces& forces, double lengthUnit, double stressUnit);

// What keys, limits and drawings need beyond a single point: psi and inches.

/// How the shear stress of a shape is known.
enum class ShearLaw { ByElements, RoundAtCentre, Unknown };
ShearLaw ShearLawOf(const sections::CrossSection& section);

/// A part of the height over which the width does not change.
struct SectionBand {
    double Bottom = 0;
    double Top = 0;
    double Width = 0;               ///< transformed to Material A
    std::array<bool, 2> Material{}; ///< has Material A, has Material B
    [[nodiscard]] double NearestToCentroid() const;
};
/// From the bottom to the top; round shapes and specified properties are one band without width.
std::vector<SectionBand> BandsOf(const sections::CrossSection& section);

double NormalStressIn(const sections::CrossSection& section, const SectionForces& forces,
                      int material, double y);
/// 0 where the band has no width. For shapes whose law is ByElements.
double ShearStressIn(const sections::CrossSection& section, const SectionForces& forces,
                     const SectionBand& band, int material, double y);
/// The shear stress of a circle or a pipe at its centre.
double RoundShearStress(const sections::CrossSection& section, double shearForce);

/// The shear stress that is largest in size; nothing where the law is unknown.
struct LargestShear {
    double Y = 0;
    double Stress = 0;
    int Material = 0;
};
std::optional<LargestShear> LargestShearOf(const sections::CrossSection& section,
                                           const SectionForces& forces);

/// The level without normal stress; nothing where there is no moment, or where it lies off the
/// section.
std::optional<double> NeutralAxisOf(const sections::CrossSection& section,
                                    const SectionForces& forces);

} // namespace forcelab::beams
