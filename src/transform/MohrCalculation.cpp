#include "transform/MohrCalculation.h"

#include "core/ArithmeticFault.h"
#include "core/NumericText.h"
#include "core/Units.h"
#include "transform/MohrModes.h"
#include "transform/Rosette.h"

#include <algorithm>
#include <cmath>

namespace forcelab::transform {

namespace {

constexpr double kLargestUnscaled = 1000000;
constexpr double kScaleStep = 1000;
constexpr double kWindowMargin = 0.23;
constexpr double kNoise = 1e-12; // of the circle's size; below it a rotated value is 0

using Values = std::array<double, 3>;

bool IsInertia(const MohrEntry& entry)
{
    return entry.Mode == MohrMode::MomentOfInertia;
}

/// The three values with their signs; the boxes are rewritten, but for a product of inertia,
/// which stays as typed.
Values ReadBoxes(MohrEntry& entry)
{
    Values value{};
    for (int i = 0; i < 3; ++i) value[i] = ParseNumber(entry.Text[i]);
    for (int i = 0; i < 3; ++i) {
        if (IsInertia(entry) && i == 2) continue;
        value[i] = std::abs(value[i]);
        entry.Text[i] = Format(value[i], MohrMask(entry.Mode, entry.Unit));
        if (!IsInertia(entry) && entry.Negative[i]) value[i] = -value[i];
    }
    return value;
}

bool SameInAllDirections(MohrMode mode, const Values& value)
{
    if (IsRosette(mode)) return value[0] == value[1] && value[1] == value[2];
    return value[0] == value[1] && value[2] == 0;
}

Refusal Warning(MohrMode mode, std::string_view text)
{
    return {kExclamation, std::string(LabelsOf(mode).WarningTitle), std::string(text), ""};
}

/// Brings large values below 1000000; returns the power of 1000 that they were divided by.
double ScaleDown(Values& value)
{
    const auto largest = [&value] {
        return std::max({std::abs(value[0]), std::abs(value[1]), std::abs(value[2])});
    };
    double scale = 1;
    if (largest() <= kLargestUnscaled) return scale;
    do {
        scale *= kScaleStep;
        for (double& each : value) each /= kScaleStep;
    } while (largest() >= kLargestUnscaled);
    return scale;
}

StressState StateFrom(const StressState& before, MohrMode mode, Values value)
{
    StressState state;
    state.Mode = mode;
    state.RotationAngle = before.RotationAngle;
    if (mode == MohrMode::PlaneStrain) value[2] /= 2;
    state.ValueScale = ScaleDown(value);
    state.SigmaX = value[0];
    state.SigmaY = value[1];
    state.TauXY = value[2];
    if (!IsRosette(mode)) return state;
    state.EntryA = value[0];
    state.EntryB = value[1];
    state.EntryC = value[2];
    ReduceRosette(state);
    return state;
}

bool RosetteInPlaneStress(const MohrEntry& entry)
{
    return IsRosette(entry.Mode) && entry.Stresses.Wanted && entry.Stresses.StressOrStrain == 0;
}

/// The strain across the surface of a body in plane stress; 0 in all other cases.
double ThirdPrincipal(StressState& state, const MohrEntry& entry)
{
    if (!RosetteInPlaneStress(entry) || !ReadModuli(state, entry.Stresses)) return 0;
    const double nu = state.PoissonRatio;
    return Finite(-(nu / (1 - nu)) * (state.SigmaX + state.SigmaY));
}

int ArrowColour(const StressState& state)
{
    if (state.PrincipalOne * state.PrincipalTwo < 0) return 0;
    return std::abs(state.PrincipalTwo) < std::abs(state.PrincipalOne) ? 1 : 2;
}

/// Double angle from the X point to principal one, 0 to 2 pi.
double DoubleAngle(double half, double shear)
{
    if (half == 0) return shear >= 0 ? kPi / 2 : 3 * kPi / 2;
    const double acute = std::atan(std::abs(shear) / std::abs(half));
    if (shear >= 0) return half > 0 ? acute : kPi - acute;
    return half > 0 ? 2 * kPi - acute : kPi + acute;
}

void SetThreeCircles(StressState& state)
{
    const double one = state.PrincipalOne;
    const double two = state.PrincipalTwo;
    const double three = state.PrincipalThree;
    state.CircleOneCentre = (one + three) / 2;
    state.CircleOneRadius = std::abs(one - three) / 2;
    state.CircleTwoCentre = (two + three) / 2;
    state.CircleTwoRadius = std::abs(two - three) / 2;
    const auto [least, greatest] = std::minmax({one, two, three});
    state.AbsMaxShear = Finite((greatest - least) / 2);
    state.AbsMaxCentre = (greatest + least) / 2;
}

double HalfDifference(const StressState& state)
{
    return (state.SigmaX - state.SigmaY) / 2;
}

double WithoutNoise(const StressState& state, double value)
{
    const double size = std::abs(state.SigmaX) + std::abs(state.SigmaY) + std::abs(state.TauXY);
    return std::abs(Finite(value)) <= kNoise * size ? 0 : value;
}

} // namespace

std::optional<Refusal> ComputeMohr(StressState& state, MohrEntry& entry)
{
    const Values value = ReadBoxes(entry);
    if (SameInAllDirections(entry.Mode, value))
        return Warning(entry.Mode, LabelsOf(entry.Mode).EqualWarning);
    StressState next = StateFrom(state, entry.Mode, value);
    const auto refusal = CalculateCircle(next, entry);
    state = next;
    return refusal;
}

std::optional<Refusal> CalculateCircle(StressState& state, const MohrEntry& entry)
{
    state.CircleCentre = Finite((state.SigmaX + state.SigmaY) / 2);
    state.CircleRadius = Finite(
        std::sqrt(state.TauXY * state.TauXY + HalfDifference(state) * HalfDifference(state)));
    state.PrincipalOne = state.CircleCentre + state.CircleRadius;
    state.PrincipalTwo = state.CircleCentre - state.CircleRadius;
    state.PrincipalThree = ThirdPrincipal(state, entry);
    state.ShearArrowColour = ArrowColour(state);
    SetThreeCircles(state);
    state.PrincipalAngle = DoubleAngle(HalfDifference(state), state.TauXY);
    state.CircleBad = state.CircleRadius == 0;
    if (state.CircleBad) return Warning(entry.Mode, LabelsOf(entry.Mode).RadiusWarning);
    return std::nullopt;
}

CircleWindow MaxMinMohrCircle(StressState& state, double high, double low, double top,
                              double bottom)
{
    const double dx = (high - low) * kWindowMargin;
    const double dy = (top - bottom) * kWindowMargin;
    CircleWindow window{Finite(high + dx), Finite(low - dx), Finite(top + dy), Finite(bottom - dy),
                        0};
    window.Limit = -std::max({std::abs(window.High), std::abs(window.Low), std::abs(window.Top),
                              std::abs(window.Bottom)});
    if (window.High == window.Low) {
        window.High = 2 * window.High + 1;
        window.Low = -2 * window.Low - 1;
        state.CircleRadius = 0.1;
    }
    if (window.Top == window.Bottom) {
        window.Top = 2 * window.Top + 1;
        window.Bottom = -2 * window.Bottom - 1;
    }
    return window;
}

CircleWindow WindowOf(StressState& state, const MohrEntry& entry)
{
    if (!ShowsThreeCircles(entry))
        return MaxMinMohrCircle(state, state.PrincipalOne, state.PrincipalTwo, state.CircleRadius,
                                -state.CircleRadius);
    const auto [least, greatest] =
        std::minmax({state.PrincipalOne, state.PrincipalTwo, state.PrincipalThree});
    return MaxMinMohrCircle(state, greatest, least, state.AbsMaxShear, -state.AbsMaxShear);
}

bool ShowsThreeCircles(const MohrEntry& entry)
{
    return !IsInertia(entry) && (entry.ShowAbsMaxShear || RosetteInPlaneStress(entry));
}

bool AssumesPlaneStress(const MohrEntry& entry)
{
    if (!IsStrain(entry.Mode)) return true;
    StressState constants;
    return RosetteInPlaneStress(entry) && ReadModuli(constants, entry.Stresses);
}

RotatedState StateAt(const StressState& state, double angle)
{
    const double half = HalfDifference(state);
    const double centre = (state.SigmaX + state.SigmaY) / 2;
    const double turn = half * std::cos(2 * angle) - state.TauXY * std::sin(2 * angle);
    const double shear = -half * std::sin(2 * angle) - state.TauXY * std::cos(2 * angle);
    return {WithoutNoise(state, centre + turn), WithoutNoise(state, centre - turn),
            WithoutNoise(state, shear)};
}

double PrincipalDirection(const StressState& state)
{
    const double half = state.PrincipalAngle / 2;
    return state.PrincipalAngle <= kPi ? -half : kPi - half;
}

double MaxShearDirection(const StressState& state)
{
    const double principal = PrincipalDirection(state);
    return principal > 0 ? principal - kPi / 4 : principal + kPi / 4;
}

double RotationFromText(const std::string& text)
{
    return std::clamp(ParseNumber(text), -90.0, 90.0);
}

std::string MohrText(const StressState& state, const MohrEntry& entry, double value)
{
    return Format(value * state.ValueScale, MohrMask(entry.Mode, entry.Unit));
}

FailureInput FailureInputOf(const StressState& state, const MohrEntry& entry)
{
    return {Finite(state.PrincipalOne * state.ValueScale),
            Finite(state.PrincipalTwo * state.ValueScale), entry.Unit};
}

} // namespace forcelab::transform
