#include "transform/Rosette.h"

#include "core/ArithmeticFault.h"
#include "core/Modulus.h"
#include "core/NumericText.h"
#include "core/Units.h"
#include "transform/MohrModes.h"

#include <cmath>

namespace forcelab::transform {

namespace {

constexpr int kMicrostrain = 5;
constexpr int kPlaces = 3;

struct PlaneStresses {
    double One, Two, Shear; ///< in the chosen stress unit
};

/// Hooke's law in plane stress. The shear alone carries ValueScale: the scale leaves 1 only for
/// strains of 1000000 and more, where no material answers to Hooke's law.
PlaneStresses HookesLaw(const StressState& state, double perUnit)
{
    const double e = state.ModulusOfElasticity;
    const double nu = state.PoissonRatio;
    const double one = state.PrincipalOne;
    const double two = state.PrincipalTwo;
    return {Finite(e / (1 - nu * nu) * (nu * two + one) / perUnit),
            Finite(e / (1 - nu * nu) * (nu * one + two) / perUnit),
            Finite(e / 2 / (1 + nu) * (2 * state.CircleRadius * state.ValueScale) / perUnit)};
}

std::string Shown(double stress, std::string_view unit)
{
    return FormatValue(std::abs(stress), kPlaces, false).Joined() + " " + std::string(unit);
}

std::string Sense(double stress)
{
    return stress < 0 ? " (C)" : " (T)";
}

} // namespace

void ReduceRosette(StressState& state)
{
    const double a = state.EntryA;
    const double b = state.EntryB;
    const double c = state.EntryC;
    state.SigmaX = a;
    if (state.Mode == MohrMode::Rosette45) {
        state.SigmaY = c;
        state.TauXY = -(2 * b - (a + c)) / 2;
    } else {
        state.SigmaY = (2 * b + 2 * c - a) / 3;
        state.TauXY = -((b - c) * 2 / std::sqrt(3.0)) / 2;
    }
}

bool ReadModuli(StressState& state, const StrainToStress& stresses)
{
    const double e = std::abs(ParseNumber(stresses.ElasticModulus)) *
                     ElasticModulusFactor(stresses.ElasticModulusUnit);
    const double nu = std::abs(StringValue(stresses.Poisson));
    state.ModulusOfElasticity = Finite(e);
    state.PoissonRatio = nu;
    return e > 0 && nu > 0 && std::abs(nu - 1) >= 0.0001 && nu <= 1;
}

std::array<std::string, 3> PrincipalStressesFromStrains(StressState& state, const MohrEntry& entry)
{
    if (!ReadModuli(state, entry.Stresses))
        return {"Input elastic modulus", "and Poisson's ratio", ""};
    const int unit = entry.Stresses.StressUnit;
    const double strainUnit = entry.Unit == kMicrostrain ? 1000000 : 1;
    const PlaneStresses found = HookesLaw(state, StressFactor(unit) * strainUnit);
    const std::string_view caption = kMohrUnits[unit];
    return {"Sigma 1 = " + Shown(found.One, caption) + Sense(found.One),
            "Sigma 2 = " + Shown(found.Two, caption) + Sense(found.Two),
            "Tau Max XY = " + Shown(found.Shear, caption)};
}

} // namespace forcelab::transform
