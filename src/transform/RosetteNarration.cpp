#include "transform/RosetteNarration.h"

#include "core/NumericText.h"
#include "core/Units.h"
#include "transform/MohrModes.h"
#include "transform/MohrTexts.h"
#include "transform/Rosette.h"
#include "transform/Workings.h"

#include <cmath>

namespace forcelab::transform {

namespace {

constexpr std::string_view kNumberMask = "##0.0#########";
constexpr std::string_view kModulusMask = "###,###,###,##0.0###";
constexpr int kMicrostrain = 5;
constexpr int kStressPlaces = 3;

/// Writes lines whose operands and result are values of the state, shown by the mask.
struct StateLines {
    Narration& Text;
    const StressState& State;
    const MohrEntry& Entry;

    [[nodiscard]] Operand Value(double value) const
    {
        return {value * State.ValueScale, MohrMask(Entry.Mode, Entry.Unit), ""};
    }
    void Write(const std::string& name, const std::string& symbols,
               const std::vector<Operand>& operands,
               const std::function<PrintedList(const PrintedList&, int)>& putIn, double exact) const
    {
        const std::string mask(MohrMask(Entry.Mode, Entry.Unit));
        Text.Line(WriteLine({name, symbols, operands, putIn, exact * State.ValueScale,
                             [mask](double value) { return Format(value, mask); },
                             std::string(kMohrUnits[Entry.Unit])}));
    }
};

std::string WithUnitOf(const StressState& state, const MohrEntry& entry, double value)
{
    return NormalText(state, entry, value);
}

PrintedList HalfOfNegative(const PrintedList& n, int)
{
    return {{"-" + n[0].Text + " ÷ 2", -n[0].Value / 2}};
}

void ExplainHalfShear(const StateLines& lines)
{
    const double gamma = -2 * lines.State.TauXY;
    lines.Text.Line("The circle carries half the shear strain, clockwise upward.");
    lines.Write("Tau", "-Gamma XY ÷ 2", {lines.Value(gamma)}, HalfOfNegative, lines.State.TauXY);
}

void ExplainRectangular(const StateLines& lines)
{
    const StressState& s = lines.State;
    lines.Text.Line("The gages A and C lie along the axes: Eps X = A, Eps Y = C.");
    lines.Write(
        "Gamma XY", "2 × B - (A + C)",
        {lines.Value(s.EntryA), lines.Value(s.EntryB), lines.Value(s.EntryC)},
        [](const PrintedList& n, int) -> PrintedList {
            return {{"2 × " + n[1].Text + " - (" + n[0].Text + " + " + n[2].Text + ")",
                     2 * n[1].Value - (n[0].Value + n[2].Value)}};
        },
        -2 * s.TauXY);
}

void ExplainDelta(const StateLines& lines)
{
    const StressState& s = lines.State;
    const std::vector<Operand> gages{lines.Value(s.EntryA), lines.Value(s.EntryB),
                                     lines.Value(s.EntryC)};
    lines.Text.Line("Gage A lies along the x axis: Eps X = A.");
    lines.Write(
        "Eps Y", "(2 × B + 2 × C - A) ÷ 3", gages,
        [](const PrintedList& n, int) -> PrintedList {
            return {{"(2 × " + n[1].Text + " + 2 × " + n[2].Text + " - " + n[0].Text + ") ÷ 3",
                     (2 * n[1].Value + 2 * n[2].Value - n[0].Value) / 3}};
        },
        s.SigmaY);
    lines.Write(
        "Gamma XY", "2 × (B - C) ÷ √3", gages,
        [](const PrintedList& n, int) -> PrintedList {
            return {{"2 × (" + n[1].Text + " - " + n[2].Text + ") ÷ √(3)",
                     2 * (n[1].Value - n[2].Value) / std::sqrt(3.0)}};
        },
        -2 * s.TauXY);
}

void ExplainRosette(const StateLines& lines)
{
    const StressState& s = lines.State;
    const auto gage = [&](double value) { return WithUnitOf(s, lines.Entry, value); };
    lines.Text.Sentence("The gages read A = " + gage(s.EntryA) + ", B = " + gage(s.EntryB) +
                        " and C = " + gage(s.EntryC) + "; elongation is positive.");
    s.Mode == MohrMode::Rosette45 ? ExplainRectangular(lines) : ExplainDelta(lines);
    ExplainHalfShear(lines);
}

std::string ShearSense(const StressState& state)
{
    if (state.TauXY == 0) return "";
    return state.TauXY > 0 ? " clockwise" : " counterclockwise";
}

void ExplainPlaneEntries(Narration& text, const StressState& state, const MohrEntry& entry)
{
    const bool strain = IsStrain(entry.Mode);
    const std::string letter = strain ? "Eps" : "Sigma";
    text.Sentence(letter + " X = " + WithUnitOf(state, entry, state.SigmaX) + ", " + letter +
                  " Y = " + WithUnitOf(state, entry, state.SigmaY) + ", " +
                  (strain ? "Gamma XY = " : "Tau XY = ") +
                  ShearText(state, entry, std::abs(state.TauXY)) + ShearSense(state) + ".");
}

/// E and Poisson's ratio as a line of Hooke's law needs them, and the strain unit.
struct HookeNumbers {
    Operand Modulus, Poisson;
    std::string_view StrainMask, StrainSuffix;
    std::string StressUnit;

    [[nodiscard]] Operand Strain(double value) const { return {value, StrainMask, StrainSuffix}; }
};

HookeNumbers NumbersFor(const StressState& state, const MohrEntry& entry)
{
    const int unit = entry.Stresses.StressUnit;
    return {{state.ModulusOfElasticity / StressFactor(unit), kModulusMask, ""},
            {state.PoissonRatio, kNumberMask, ""},
            MohrMask(entry.Mode, entry.Unit),
            entry.Unit == kMicrostrain ? "E-06" : "",
            std::string(kMohrUnits[unit])};
}

std::string ShownStress(double stress)
{
    return FormatValue(stress, kStressPlaces, false).Joined();
}

double StrainSize(const MohrEntry& entry)
{
    return entry.Unit == kMicrostrain ? 1e-6 : 1;
}

void ExplainPrincipalStress(Narration& text, const HookeNumbers& numbers, const std::string& which,
                            const std::string& other, double along, double across, double size)
{
    const double e = numbers.Modulus.Value;
    const double nu = numbers.Poisson.Value;
    text.Line(WriteLine(
        {"Sigma " + which,
         "E ÷ (1 - nu²) × (Eps " + which + " + nu × Eps " + other + ")",
         {numbers.Modulus, numbers.Poisson, numbers.Strain(along), numbers.Strain(across)},
         [](const PrintedList& n, int) -> PrintedList {
             return {{n[0].Text + " ÷ (1 - " + n[1].Text + "²) × (" + n[2].Text + " + " +
                          n[1].Text + " × " + n[3].Text + ")",
                      n[0].Value / (1 - n[1].Value * n[1].Value) *
                          (n[2].Value + n[1].Value * n[3].Value)}};
         },
         e / (1 - nu * nu) * (along + nu * across) * size,
         ShownStress,
         numbers.StressUnit}));
}

void ExplainShearStress(Narration& text, const HookeNumbers& numbers, double gamma, double size)
{
    text.Line(WriteLine({"Tau Max XY",
                         "E ÷ (2 × (1 + nu)) × Gamma Max XY",
                         {numbers.Modulus, numbers.Poisson, numbers.Strain(gamma)},
                         [](const PrintedList& n, int) -> PrintedList {
                             return {{n[0].Text + " ÷ (2 × (1 + " + n[1].Text + ")) × " + n[2].Text,
                                      n[0].Value / (2 * (1 + n[1].Value)) * n[2].Value}};
                         },
                         numbers.Modulus.Value / 2 / (1 + numbers.Poisson.Value) * gamma* size,
                         ShownStress,
                         numbers.StressUnit}));
}

} // namespace

void ExplainEntries(Narration& text, const StressState& state, const MohrEntry& entry)
{
    if (IsRosette(entry.Mode)) return ExplainRosette({text, state, entry});
    if (entry.Mode == MohrMode::MomentOfInertia) {
        text.Sentence("Iz = " + WithUnitOf(state, entry, state.SigmaX) +
                      ", Iy = " + WithUnitOf(state, entry, state.SigmaY) +
                      ", Iyz = " + WithUnitOf(state, entry, state.TauXY) + ".");
        return;
    }
    ExplainPlaneEntries(text, state, entry);
    if (IsStrain(entry.Mode)) ExplainHalfShear({text, state, entry});
}

void ExplainThird(Narration& text, const StressState& state, const MohrEntry& entry)
{
    const std::string third = IsStrain(entry.Mode) ? "Eps 3" : "Sigma 3";
    if (state.PrincipalThree == 0) {
        text.Line("The assumption of plane " +
                  std::string(IsStrain(entry.Mode) ? "strain" : "stress") +
                  " leaves nothing across the plane: " + third + " = " +
                  WithUnitOf(state, entry, 0) + ".");
        return;
    }
    const StateLines lines{text, state, entry};
    const Operand nu{state.PoissonRatio, kNumberMask, ""};
    text.Line("The assumption of plane stress leaves the surface free to strain across.");
    lines.Write(
        third, "-(nu ÷ (1 - nu)) × (Eps X + Eps Y)",
        {nu, lines.Value(state.SigmaX), lines.Value(state.SigmaY)},
        [](const PrintedList& n, int) -> PrintedList {
            return {{"-(" + n[0].Text + " ÷ (1 - " + n[0].Text + ")) × (" + n[1].Text + " + " +
                         n[2].Text + ")",
                     -(n[0].Value / (1 - n[0].Value)) * (n[1].Value + n[2].Value)}};
        },
        state.PrincipalThree);
}

void ExplainHookesLaw(Narration& text, const StressState& state, const MohrEntry& entry)
{
    StressState copy = state;
    const bool wanted = IsRosette(entry.Mode) && entry.Stresses.Wanted && state.ValueScale == 1;
    if (!wanted || !ReadModuli(copy, entry.Stresses)) return;
    const HookeNumbers numbers = NumbersFor(copy, entry);
    const double size = StrainSize(entry);
    text.Heading("Principal stresses");
    text.Sentence("By Hooke's law for plane stress, with E in " + numbers.StressUnit +
                  " and strains in their true size:");
    ExplainPrincipalStress(text, numbers, "1", "2", state.PrincipalOne, state.PrincipalTwo, size);
    ExplainPrincipalStress(text, numbers, "2", "1", state.PrincipalTwo, state.PrincipalOne, size);
    ExplainShearStress(text, numbers, 2 * state.CircleRadius, size);
}

} // namespace forcelab::transform
