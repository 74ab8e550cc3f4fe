#include "beams/StressInput.h"

#include "core/NumericText.h"
#include "core/Units.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace forcelab::beams {

namespace {

constexpr double kPoundsPerNewton = 0.224808923;
constexpr std::array<double, 4> kForces{1, 1000, kPoundsPerNewton, 1000 * kPoundsPerNewton};
constexpr std::array<double, 4> kMoments{12, 1000.0 * 12, kPoundsPerNewton * 1000 / 25.4,
                                         1000 * kPoundsPerNewton * 1000 / 25.4};

constexpr std::string_view kLevelMask = "###,##0.000";
constexpr std::string_view kStressMask = "###,###,##0.000";
/// Stresses below 1 show at least three digits that tell.
constexpr std::string_view kSmallStressMask = "0.000#";
constexpr std::string_view kTinyStressMask = "0.000####"; // below 0.01

std::string_view MaskFor(double stress)
{
    const double size = std::abs(stress);
    if (size >= 1) return kStressMask;
    return size >= 0.01 ? kSmallStressMask : kTinyStressMask;
}

double FactorOf(const std::array<double, 4>& factors, int unit)
{
    return unit >= 0 && unit < static_cast<int>(factors.size()) ? factors[unit] : 1;
}

struct ForceRule {
    std::string_view Text;
    std::string_view Focus;
};
constexpr ForceRule kNormalRule{
    "Values for Axial Force, Bending Moment, or both must be entered before the normal stresses "
    "can be calculated.",
    "txtVM(2)"};
constexpr ForceRule kShearRule{
    "A value for Shear Force must be entered before the shear stresses can be calculated.",
    "txtVM(1)"};

Refusal RefusalOf(const ForceRule& rule)
{
    return {kStop, "Stress Calculation Error", std::string(rule.Text), std::string(rule.Focus)};
}

SectionBounds Divided(const SectionBounds& b, double unit)
{
    return {b.SectionLeft / unit, b.SectionRight / unit, b.SectionBottom / unit,
            b.SectionTop / unit};
}

} // namespace

double DetailsForceFactor(int unit)
{
    return FactorOf(kForces, unit);
}

double DetailsMomentFactor(int unit)
{
    return FactorOf(kMoments, unit);
}

double StressDetails::LengthUnit() const
{
    return LengthFactorInMm(ShapeUnitIndex);
}

double StressDetails::StressUnit() const
{
    return StressFactor(StressUnitIndex);
}

double StressDetails::YInches() const
{
    return 0 - PointY * LengthUnit(); // and not -0 at the centroid
}

StressDetails ReadDetails(const sections::CrossSection& section, const DetailsEntry& entry)
{
    StressDetails details;
    details.ForceUnitIndex = entry.ForceUnitIndex;
    details.MomentUnitIndex = entry.MomentUnitIndex;
    details.StressUnitIndex = entry.StressUnitIndex;
    details.ShapeUnitIndex = entry.ShapeUnitIndex;
    details.AxialForce = ParseNumber(entry.VM[0]) * DetailsForceFactor(entry.ForceUnitIndex);
    details.ShearForce = ParseNumber(entry.VM[1]) * DetailsForceFactor(entry.ForceUnitIndex);
    details.BendingMoment = ParseNumber(entry.VM[2]) * DetailsMomentFactor(entry.MomentUnitIndex);
    details.Bounds = Divided(SectionBoundsOf(section), details.LengthUnit());
    MovePoint(details, ParseNumber(entry.Coord[0]), ParseNumber(entry.Coord[1]));
    return details;
}

void MovePoint(StressDetails& details, double z, double y)
{
    const SectionBounds& b = details.Bounds;
    details.PointZ = std::clamp(z, b.SectionLeft, b.SectionRight);
    details.PointY = std::clamp(-y, -b.SectionTop, -b.SectionBottom);
}

std::array<std::string, 2> CoordTexts(const StressDetails& details)
{
    return {Format(details.PointZ, kLevelMask), Format(-details.PointY, kLevelMask)};
}

std::optional<Refusal> CheckForces(const StressDetails& details, int view)
{
    if (view == kNormalView && details.BendingMoment == 0 && details.AxialForce == 0)
        return RefusalOf(kNormalRule);
    if (view == kShearView && details.ShearForce == 0) return RefusalOf(kShearRule);
    return std::nullopt;
}

PointStress StressAtSpecifiedPoint(const sections::CrossSection& section,
                                   const StressDetails& details)
{
    return StressAtPoint(section, details.PointZ, 0 - details.PointY, details.Forces(),
                         details.LengthUnit(), details.StressUnit());
}

transform::MohrHandOver HandOverToMohr(const sections::CrossSection& section,
                                       const StressDetails& details)
{
    const PointStress stress = StressAtSpecifiedPoint(section, details);
    return {true,
            transform::MohrMode::PlaneStress,
            {stress.Normal, 0, stress.Shear},
            details.StressUnitIndex};
}

std::string LevelText(double inches, const StressDetails& details)
{
    return Format(inches / details.LengthUnit(), kLevelMask);
}

std::string StressText(double psi, const StressDetails& details)
{
    const double stress = psi / details.StressUnit();
    return Format(stress, MaskFor(stress));
}

std::string StressWithUnit(double psi, const StressDetails& details)
{
    return StressText(psi, details) + " " + std::string(StressUnitText(details));
}

std::string_view StressUnitText(const StressDetails& details)
{
    return kStressUnits[static_cast<std::size_t>(details.StressUnitIndex)];
}

std::string_view ShapeUnitText(const StressDetails& details)
{
    return kShapeUnits[static_cast<std::size_t>(details.ShapeUnitIndex)];
}

} // namespace forcelab::beams
