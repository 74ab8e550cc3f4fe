#include "transform/RosetteNarration.h"

#include "core/NumericText.h"
#include "core/Units.h"
#include "core/Workings.h"
#include "transform/MohrModes.h"
#include "transform/MohrTexts.h"
#include "transform/Rosette.h"

#include <cmath>

namespace forcelab::transform {

namespace {

constexpr NumberStyle kPoisson{"##0.0#########"};
constexpr NumberStyle kModulus{"###,###,###,##0.0###"};
constexpr int kMicrostrain = 5;
constexpr int kStressPlaces = 3;

/// Writes lines whose numbers and result are values of the state.
struct StateLines {
    Narration& Text;
    const StressState& State;
    const MohrEntry& Entry;

    [[nodiscard]] NumberStyle Style() const { return {MohrMask(Entry.Mode, Entry.Unit)}; }
    [[nodiscard]] Expression Value(double value) const
    {
        return Number(value * State.ValueScale, Style());
    }
    void Write(const std::string& name, const std::string& symbols, const Expression& putIn,
               double exact) const
    {
        Text.Line(WriteLine({name,
                             symbols,
                             {putIn},
                             Style(),
                             std::string(kMohrUnits[Entry.Unit]),
                             exact * State.ValueScale}));
    }
};

void ExplainHalfShear(const StateLines& lines)
{
    const double tau = lines.State.TauXY;
    lines.Text.Line("The circle carries half the shear strain, clockwise upward.");
    lines.Write("Tau", "-Gamma XY ÷ 2", -lines.Value(-2 * tau) / 2, tau);
}

/// The readings of the three gages as numbers put in.
struct Gages {
    Expression A, B, C;
};

void ExplainRectangular(const StateLines& lines, const Gages& gages)
{
    lines.Text.Line("The gages A and C lie along the axes: Eps X = A, Eps Y = C.");
    lines.Write("Gamma XY", "2 × B - (A + C)", 2 * gages.B - (gages.A + gages.C),
                -2 * lines.State.TauXY);
}

void ExplainDelta(const StateLines& lines, const Gages& gages)
{
    lines.Text.Line("Gage A lies along the x axis: Eps X = A.");
    lines.Write("Eps Y", "(2 × B + 2 × C - A) ÷ 3", (2 * gages.B + 2 * gages.C - gages.A) / 3,
                lines.State.SigmaY);
    lines.Write("Gamma XY", "2 × (B - C) ÷ √3", 2 * (gages.B - gages.C) / Root(3),
                -2 * lines.State.TauXY);
}

void ExplainRosette(const StateLines& lines)
{
    const StressState& s = lines.State;
    const auto gage = [&](double value) { return NormalText(s, lines.Entry, value); };
    lines.Text.Sentence("The gages read A = " + gage(s.EntryA) + ", B = " + gage(s.EntryB) +
                        " and C = " + gage(s.EntryC) + "; elongation is positive.");
    const auto explain = s.Mode == MohrMode::Rosette45 ? ExplainRectangular : ExplainDelta;
    explain(lines, {lines.Value(s.EntryA), lines.Value(s.EntryB), lines.Value(s.EntryC)});
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
    text.Sentence(letter + " X = " + NormalText(state, entry, state.SigmaX) + ", " + letter +
                  " Y = " + NormalText(state, entry, state.SigmaY) + ", " +
                  (strain ? "Gamma XY = " : "Tau XY = ") +
                  ShearText(state, entry, std::abs(state.TauXY)) + ShearSense(state) + ".");
}

std::string ShownStress(double stress)
{
    return FormatValue(stress, kStressPlaces, false).Joined();
}

/// Writes lines of Hooke's law: E in the unit of the stresses, strains in their true size.
struct HookeLines {
    Narration& Text;
    Expression Modulus, Poisson;
    NumberStyle StrainStyle;
    std::string StressUnit;

    [[nodiscard]] Expression Strain(double shown) const
    {
        return Number(shown * StrainStyle.One(), StrainStyle);
    }
    void Write(const std::string& name, const std::string& symbols, const Expression& putIn) const
    {
        Text.Line(WriteLine({name, symbols, {putIn}, ShownStress, StressUnit}));
    }
};

void ExplainPrincipalStress(const HookeLines& lines, const std::string& which,
                            const std::string& other, double along, double across)
{
    const Expression& nu = lines.Poisson;
    lines.Write("Sigma " + which, "E ÷ (1 - nu²) × (Eps " + which + " + nu × Eps " + other + ")",
                lines.Modulus / (1 - Raised(nu, 2)) *
                    (lines.Strain(along) + nu * lines.Strain(across)));
}

} // namespace

void ExplainEntries(Narration& text, const StressState& state, const MohrEntry& entry)
{
    if (IsRosette(entry.Mode)) return ExplainRosette({text, state, entry});
    if (entry.Mode == MohrMode::MomentOfInertia) {
        text.Sentence("Iz = " + NormalText(state, entry, state.SigmaX) +
                      ", Iy = " + NormalText(state, entry, state.SigmaY) +
                      ", Iyz = " + NormalText(state, entry, state.TauXY) + ".");
        return;
    }
    ExplainPlaneEntries(text, state, entry);
    if (IsStrain(entry.Mode)) ExplainHalfShear({text, state, entry});
}

void ExplainThird(Narration& text, const StressState& state, const MohrEntry& entry)
{
    const std::string third = IsStrain(entry.Mode) ? "Eps 3" : "Sigma 3";
    if (!IsStrain(entry.Mode) || !AssumesPlaneStress(entry)) {
        text.Line("The assumption of plane " +
                  std::string(IsStrain(entry.Mode) ? "strain" : "stress") +
                  " leaves nothing across the plane: " + third + " = " +
                  NormalText(state, entry, 0) + ".");
        return;
    }
    const StateLines lines{text, state, entry};
    const Expression nu = Number(state.PoissonRatio, kPoisson);
    text.Line("The assumption of plane stress leaves the surface free to strain across.");
    lines.Write(third, "-nu ÷ (1 - nu) × (Eps X + Eps Y)",
                -nu / (1 - nu) * (lines.Value(state.SigmaX) + lines.Value(state.SigmaY)),
                state.PrincipalThree);
}

void ExplainHookesLaw(Narration& text, const StressState& state, const MohrEntry& entry)
{
    StressState copy = state;
    const bool wanted = IsRosette(entry.Mode) && entry.Stresses.Wanted && state.ValueScale == 1;
    if (!wanted || !ReadModuli(copy, entry.Stresses)) return;
    const int unit = entry.Stresses.StressUnit;
    const HookeLines lines{
        text,
        Number(copy.ModulusOfElasticity / StressFactor(unit), kModulus),
        Number(copy.PoissonRatio, kPoisson),
        {MohrMask(entry.Mode, entry.Unit), entry.Unit == kMicrostrain ? "E-06" : ""},
        std::string(kMohrUnits[unit])};
    text.Heading("Principal stresses");
    text.Sentence("By Hooke's law for plane stress, with E in " + lines.StressUnit +
                  " and strains in their true size:");
    ExplainPrincipalStress(lines, "1", "2", state.PrincipalOne, state.PrincipalTwo);
    ExplainPrincipalStress(lines, "2", "1", state.PrincipalTwo, state.PrincipalOne);
    lines.Write("Tau Max XY", "E ÷ (2 × (1 + nu)) × Gamma Max XY",
                lines.Modulus / (2 * (1 + lines.Poisson)) * lines.Strain(2 * state.CircleRadius));
}

} // namespace forcelab::transform
