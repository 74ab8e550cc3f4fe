#include "beams/AllowableForces.h"

#include "beams/BeamRecord.h"
#include "core/ArithmeticFault.h"
#include "core/Materials.h"
#include "core/NumericText.h"
#include "core/Units.h"
#include "sections/ShapeCatalogue.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace forcelab::beams {

using namespace sections;

namespace {

constexpr std::string_view kMask = "###,###,##0.000";
constexpr std::string_view kUserDefined = "User Defined";
constexpr std::string_view kNotKnown = "further data are required";
constexpr double kNone = std::numeric_limits<double>::infinity();

double LimitOf(const StressLimits& limits, StressLimit ofMaterialA, int material)
{
    return limits.AllowableStress[ofMaterialA + material];
}

/// Material B is stressed the modular ratio times as much as Material A at the same level.
double FactorOf(const CrossSection& section, int material)
{
    return material == 1 ? StressPropertiesOf(section).ModularRatio : 1;
}

bool HasMaterial(const CrossSection& section, int material)
{
    const auto bands = BandsOf(section);
    return std::any_of(bands.begin(), bands.end(),
                       [&](const SectionBand& band) { return band.Material[material]; });
}

double AxialForceFor(const CrossSection& section, const StressLimits& limits, StressLimit limit)
{
    double force = kNone;
    for (const int material : {0, 1}) {
        if (!HasMaterial(section, material)) continue;
        const double stress = LimitOf(limits, limit, material) / FactorOf(section, material);
        force = std::min(force, stress * StressPropertiesOf(section).Area);
    }
    return force;
}

/// The moment at which the stress of one fibre reaches the limit, in size.
double MomentOfFibre(const CrossSection& section, const StressLimits& limits, int material,
                     double y, bool positive)
{
    if (y == 0) return kNone;
    const StressLimit limit = positive == (y > 0) ? kCompressionLimit : kTensionLimit;
    return LimitOf(limits, limit, material) * StressPropertiesOf(section).Inertia / std::abs(y) /
           FactorOf(section, material);
}

double MomentFor(const CrossSection& section, const StressLimits& limits, bool positive)
{
    double moment = kNone;
    for (const SectionBand& band : BandsOf(section))
        for (const int material : {0, 1})
            for (const double y : {band.Bottom, band.Top})
                if (band.Material[material])
                    moment =
                        std::min(moment, MomentOfFibre(section, limits, material, y, positive));
    return moment;
}

double RoundMoment(const CrossSection& section, const StressLimits& limits)
{
    return std::min(limits.AllowableStress[kTensionLimit],
                    limits.AllowableStress[kCompressionLimit]) *
           section.Record(Row::SmallestSectionModulus, Column::ZzInches);
}

/// The force whose shear stress reaches the limit where Q / t is largest.
double ShearForceByElements(const CrossSection& section, const StressLimits& limits)
{
    double force = kNone;
    for (const SectionBand& band : BandsOf(section))
        for (const int material : {0, 1}) {
            const double stress = ShearStressIn(section, {0, 1, 0}, band, material,
                                                band.NearestToCentroid()); // of a unit force
            if (band.Material[material] && stress != 0)
                force = std::min(force, LimitOf(limits, kShearLimit, material) / std::abs(stress));
        }
    return force;
}

std::optional<double> ShearForceFor(const CrossSection& section, const StressLimits& limits)
{
    switch (ShearLawOf(section)) {
    case ShearLaw::ByElements:
        return ShearForceByElements(section, limits);
    case ShearLaw::RoundAtCentre:
        return limits.AllowableStress[kShearLimit] / RoundShearStress(section, 1);
    case ShearLaw::Unknown:
        break;
    }
    return std::nullopt;
}

void CopyLimit(StressLimits& limits, int from, int to)
{
    limits.AllowableStress[to] = limits.AllowableStress[from];
    limits.AllowableEntered[to] = limits.AllowableEntered[from];
}

std::string Line(std::string_view label, double value, std::string_view unit)
{
    return std::string(label) + Format(value, kMask) + " " + std::string(unit);
}

} // namespace

void ReadAllowableBoxes(StressLimits& limits, const LimitsEntry& entry)
{
    for (std::size_t i = 0; i < entry.Box.size(); ++i) {
        limits.AllowableEntered[i] = std::abs(ParseNumber(entry.Box[i]));
        limits.AllowableStress[i] = limits.AllowableEntered[i] * StressFactor(entry.StressUnit);
    }
}

void SetLimits(StressLimits& limits, const LimitsEntry& entry, bool compositeSection)
{
    ReadAllowableBoxes(limits, entry);
    limits.AllowableSet = true;
    if (entry.Same)
        for (const int row : {kTensionLimit, kTensionLimitB})
            CopyLimit(limits, row, row + kCompressionLimit);
    if (!compositeSection)
        for (const int row : {kTensionLimit, kCompressionLimit, kShearLimit})
            CopyLimit(limits, row, row + 1);
}

std::vector<std::string_view> LimitHeads(bool same)
{
    if (same) return {"Tension and Compression"};
    return {"Tension", "Compression"};
}

std::vector<std::string_view> LimitMaterials()
{
    const auto names = MaterialNames();
    std::vector<std::string_view> rows(names.begin(), names.end());
    rows.push_back(kUserDefined);
    return rows;
}

std::optional<double> YieldOf(int materialRow, int stressUnit)
{
    if (materialRow < 0 || materialRow >= static_cast<int>(MaterialNames().size()))
        return std::nullopt;
    const auto& row = MaterialStrengths[materialRow];
    const bool metric = stressUnit >= 2;
    const double strength = row[metric ? kYieldKPa : kYieldPsi];
    if (strength == 0) return std::nullopt;
    return strength / (stressUnit % 2 == 1 ? 1000 : 1); // ksi and MPa
}

AllowableForces AllowableForcesOf(const CrossSection& section, const StressLimits& limits,
                                  const StressDetails& details)
{
    const double force = DetailsForceFactor(details.ForceUnitIndex);
    const double moment = DetailsMomentFactor(details.MomentUnitIndex);
    const bool round = ShearLawOf(section) == ShearLaw::RoundAtCentre;
    const auto momentOf = [&](bool positive) {
        return Finite(round ? RoundMoment(section, limits) : MomentFor(section, limits, positive));
    };
    AllowableForces allowable;
    allowable.AxialTension = Finite(AxialForceFor(section, limits, kTensionLimit)) / force;
    allowable.AxialCompression = Finite(AxialForceFor(section, limits, kCompressionLimit)) / force;
    if (const auto shear = ShearForceFor(section, limits))
        allowable.ShearForce = Finite(*shear) / force;
    allowable.PositiveMoment = momentOf(true) / moment;
    allowable.NegativeMoment = -momentOf(false) / moment;
    return allowable;
}

std::vector<std::string> AllowableLines(const AllowableForces& forces, const StressDetails& details)
{
    const std::string_view force = kForceUnits[details.ForceUnitIndex];
    const std::string_view moment = kMomentUnits[details.MomentUnitIndex];
    constexpr std::string_view kShear = "Allowable Shear Force = ";
    return {Line("Allowable Axial Tension = ", forces.AxialTension, force),
            Line("Allowable Axial Compression = ", forces.AxialCompression, force),
            forces.ShearForce ? Line(kShear, *forces.ShearForce, force)
                              : std::string(kShear) + std::string(kNotKnown),
            Line("Allowable Positive Moment = ", forces.PositiveMoment, moment),
            Line("Allowable Negative Moment = ", forces.NegativeMoment, moment)};
}

} // namespace forcelab::beams
