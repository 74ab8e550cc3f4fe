#include "transform/MohrNarration.h"

#include "core/NumericText.h"
#include "core/Units.h"
#include "core/Workings.h"
#include "transform/MohrModes.h"
#include "transform/MohrTexts.h"
#include "transform/RosetteNarration.h"

#include <algorithm>
#include <cmath>

namespace forcelab::transform {

namespace {

constexpr NumberStyle kDegrees{"##0.0#", "°"};
constexpr NumberStyle kRotation{"##0.0##", "°"};
constexpr double kDegree = kPi / 180;

struct Symbols {
    std::string X, Y, Shear; ///< coordinates of the point X; shear is the ordinate
    std::string One, Two, Three;
    std::string MaxShear, AbsMaxShear;
};

Symbols SymbolsOf(MohrMode mode)
{
    if (mode == MohrMode::MomentOfInertia)
        return {"Iz", "Iy", "Iyz", "I1", "I2", "", "Iyz Max", ""};
    if (IsStrain(mode))
        return {"Eps X", "Eps Y", "Tau",          "Eps 1",
                "Eps 2", "Eps 3", "Gamma Max XY", "Gamma Abs Max"};
    return {"Sigma X", "Sigma Y", "Tau XY",     "Sigma 1",
            "Sigma 2", "Sigma 3", "Tau Max XY", "Tau Abs Max"};
}

/// The explanation in the making.
class MohrExplanation {
  public:
    MohrExplanation(const StressState& state, const MohrEntry& entry)
        : state_(state), entry_(entry),
          symbols_(SymbolsOf(entry.Mode)), style_{MohrMask(entry.Mode, entry.Unit)},
          unit_(kMohrUnits[entry.Unit]), half_((state.SigmaX - state.SigmaY) / 2)
    {}

    std::string Text()
    {
        ExplainGiven();
        ExplainCircle();
        ExplainPrincipals();
        ExplainAngle();
        ExplainMaxShear();
        if (ShowsThreeCircles(entry_)) ExplainAbsMaxShear();
        ExplainRotation();
        ExplainHookesLaw(text_, state_, entry_);
        return text_.Text();
    }

  private:
    [[nodiscard]] Expression Value(double value) const
    {
        return Number(value * state_.ValueScale, style_);
    }
    /// Shear strains in microstrain are in rad with their millionths.
    [[nodiscard]] bool IsMicro() const
    {
        return IsStrain(entry_.Mode) && ShearStrainUnit(entry_) != " rad";
    }
    [[nodiscard]] NumberStyle ShearStyle() const { return {style_.Mask, IsMicro() ? "E-06" : ""}; }
    /// A value of a line whose result is a shear, in the unit of that.
    [[nodiscard]] Expression Strain(double value) const
    {
        return Number(value * state_.ValueScale * ShearStyle().One(), ShearStyle());
    }
    [[nodiscard]] std::string Shown(double value) const { return MohrText(state_, entry_, value); }
    [[nodiscard]] std::string ShownWithUnit(double value) const
    {
        return WithUnit(Shown(value), unit_);
    }

    /// A line whose result is a value of the circle.
    void ValueLine(const std::string& name, const std::string& symbols,
                   const std::vector<Expression>& putIn, double exact)
    {
        text_.Line(WriteLine(
            {name, symbols, putIn, style_, std::string(unit_), exact * state_.ValueScale}));
    }
    /// A line whose result is a shear, doubled in strain.
    void ShearLine(const std::string& name, const std::string& symbols, const Expression& putIn,
                   double shear)
    {
        if (!IsStrain(entry_.Mode)) return ValueLine(name, symbols, {putIn}, shear);
        text_.Line(WriteLine({name,
                              symbols,
                              {putIn},
                              ShearStyle(),
                              "rad",
                              2 * shear * state_.ValueScale * ShearStyle().One()}));
    }
    void AngleLine(const std::string& name, const std::string& symbols, const Expression& putIn)
    {
        text_.Line(WriteLine({name, symbols, {putIn}, kDegrees}));
    }

    void ExplainGiven()
    {
        text_.Heading("Given");
        ExplainEntries(text_, state_, entry_);
        if (entry_.Mode == MohrMode::MomentOfInertia)
            text_.Sentence("Each pair of axes is a point of the circle: a moment of inertia along "
                           "the axis, the product of inertia across it.");
        else
            text_.Sentence("Tension and elongation plot to the right, shear that turns its face "
                           "clockwise plots upward.");
        const std::string ends[] = {Shown(state_.SigmaX), Shown(state_.TauXY), Shown(state_.SigmaY),
                                    Shown(-state_.TauXY)};
        const bool inertia = entry_.Mode == MohrMode::MomentOfInertia;
        text_.Sentence(std::string("The diameter ends at ") + (inertia ? "Z (" : "X (") + ends[0] +
                       "; " + ends[1] + ") and Y (" + ends[2] + "; " + ends[3] + ").");
    }

    void ExplainCircle()
    {
        text_.Heading("Center and radius");
        const Expression x = Value(state_.SigmaX), y = Value(state_.SigmaY);
        ValueLine("Center", "(" + symbols_.X + " + " + symbols_.Y + ") ÷ 2", {(x + y) / 2},
                  state_.CircleCentre);
        ValueLine("Half difference", "(" + symbols_.X + " - " + symbols_.Y + ") ÷ 2", {(x - y) / 2},
                  half_);
        ExplainRadius();
    }

    void ExplainRadius()
    {
        text_.Line("The half difference and " + symbols_.Shear +
                   " are the sides of a right triangle whose hypotenuse is the radius.");
        const Expression a = Raised(Value(half_), 2), b = Raised(Value(state_.TauXY), 2);
        ValueLine("Radius", "√(Half difference² + " + symbols_.Shear + "²)",
                  {Root(a + b), Root(Worked(a, style_) + Worked(b, style_))}, state_.CircleRadius);
    }

    void ExplainPrincipals()
    {
        text_.Heading("Principal values");
        text_.Sentence("They lie where the circle crosses the axis, a radius to either side of "
                       "the center.");
        const Expression centre = Value(state_.CircleCentre), radius = Value(state_.CircleRadius);
        ValueLine(symbols_.One, "Center + Radius", {centre + radius}, state_.PrincipalOne);
        ValueLine(symbols_.Two, "Center - Radius", {centre - radius}, state_.PrincipalTwo);
    }

    void ExplainAngle()
    {
        text_.Heading("Principal direction");
        const double turn = PrincipalDirection(state_) * 180 / kPi;
        if (half_ == 0)
            text_.Line("The half difference is 0, so that the radius to the first point stands "
                       "upright: the double angle is " +
                       kDegrees(90) + ".");
        else
            ExplainAcute();
        AngleLine("Theta p", "Double angle ÷ 2", Number(2 * std::abs(turn), kDegrees) / 2);
        text_.Line("An angle on the circle is twice the angle on the element, in the same sense.");
        text_.Sentence("The axis of " + symbols_.One + " is found at " +
                       TurnText(PrincipalDirection(state_)) + " from the " + FirstAxis() + ".");
    }

    void ExplainAcute()
    {
        const double acute = std::atan(std::abs(state_.TauXY / half_)) / kDegree;
        AngleLine("Acute angle", "atan(|" + symbols_.Shear + "| ÷ |Half difference|)",
                  Atan(Value(std::abs(state_.TauXY)) / Value(std::abs(half_))));
        if (half_ > 0)
            return void(text_.Line("The half difference is positive: this is the double angle."));
        AngleLine("Double angle", kDegrees(180) + " - Acute angle",
                  Number(180, kDegrees) - Number(acute, kDegrees));
    }

    void ExplainMaxShear()
    {
        text_.Heading("Maximum shear in the plane");
        if (IsStrain(entry_.Mode))
            ShearLine(symbols_.MaxShear, "2 × Radius", 2 * Strain(state_.CircleRadius),
                      state_.CircleRadius);
        else
            text_.Line(symbols_.MaxShear + " = Radius = " + ShownWithUnit(state_.CircleRadius));
        if (entry_.Mode == MohrMode::MomentOfInertia) return;
        text_.Line("It acts at 45 degrees to the principal axes, with the normal value of the "
                   "center, " +
                   ShownWithUnit(state_.CircleCentre) + ", on all faces.");
        text_.Sentence("The nearer of the two orientations is found at " +
                       TurnText(MaxShearDirection(state_)) + " from the " + FirstAxis() + ".");
    }

    void ExplainAbsMaxShear()
    {
        text_.Heading("Absolute maximum shear");
        ExplainThird(text_, state_, entry_);
        const auto [least, greatest] =
            std::minmax({state_.PrincipalOne, state_.PrincipalTwo, state_.PrincipalThree});
        text_.Line("The largest of the three circles spans the greatest and the least principal "
                   "value, " +
                   Shown(greatest) + " and " + Shown(least) + ": " + Governing() + ".");
        if (IsStrain(entry_.Mode))
            ShearLine(symbols_.AbsMaxShear, "Greatest - least", Strain(greatest) - Strain(least),
                      state_.AbsMaxShear);
        else
            ValueLine(symbols_.AbsMaxShear, "(Greatest - least) ÷ 2",
                      {(Value(greatest) - Value(least)) / 2}, state_.AbsMaxShear);
    }

    [[nodiscard]] std::string Governing() const
    {
        const double third = state_.PrincipalThree;
        if (third < state_.PrincipalTwo)
            return "the circle through " + symbols_.One + " and " + symbols_.Three + " governs";
        if (third > state_.PrincipalOne)
            return "the circle through " + symbols_.Two + " and " + symbols_.Three + " governs";
        return "the circle of the plane itself governs";
    }

    void ExplainRotation()
    {
        const double degrees = state_.RotationAngle / kDegree;
        const RotatedState turned = StateAt(state_, state_.RotationAngle);
        const auto shown = RotatedTexts(state_, entry_);
        const auto& names = LabelsOf(entry_.Mode).Rotated;
        text_.Heading("State at the chosen angle");
        text_.Sentence("Theta is the angle from the " + FirstAxis() +
                       ", counterclockwise positive.");
        AngleLine("2 × Theta", "", 2 * Number(degrees, kRotation));
        ExplainNormal(std::string(names[0]), 1, turned.NormalX, shown[0]);
        ExplainNormal(std::string(names[1]), -1, turned.NormalY, shown[1]);
        ExplainRotatedShear(std::string(names[2]), turned.ShearXY, shown[2]);
    }

    void ExplainNormal(const std::string& name, int side, double exact, const std::string& shown)
    {
        const std::string first = side > 0 ? " + " : " - ";
        const std::string second = side > 0 ? " - " : " + ";
        const Expression centre = Value(state_.CircleCentre);
        const Expression a = Value(half_) * Cos(Twice()), b = Value(state_.TauXY) * Sin(Twice());
        ValueLine(name,
                  "Center" + first + "Half difference × cos(2 × Theta)" + second + symbols_.Shear +
                      " × sin(2 × Theta)",
                  {side > 0 ? centre + a - b : centre - a + b}, exact);
        text_.Line("Shown as " + shown + ".");
    }

    void ExplainRotatedShear(const std::string& name, double exact, const std::string& shown)
    {
        const bool strain = IsStrain(entry_.Mode);
        const std::string symbols =
            "-Half difference × sin(2 × Theta) - " + symbols_.Shear + " × cos(2 × Theta)";
        const Expression putIn =
            -Strain(half_) * Sin(Twice()) - Strain(state_.TauXY) * Cos(Twice());
        ShearLine(name, strain ? "2 × (" + symbols + ")" : symbols, strain ? 2 * putIn : putIn,
                  exact);
        text_.Line("Shown as " + shown +
                   (entry_.Mode == MohrMode::MomentOfInertia
                        ? "; by this formula the product counts opposite to Iyz."
                        : "; positive turns the face counterclockwise."));
    }

    [[nodiscard]] Expression Twice() const
    {
        return Number(2 * state_.RotationAngle / kDegree, kRotation);
    }
    [[nodiscard]] std::string FirstAxis() const
    {
        if (entry_.Mode == MohrMode::MomentOfInertia) return "z axis";
        return IsRosette(entry_.Mode) ? "axis of gage A" : "x axis";
    }

    const StressState& state_;
    const MohrEntry& entry_;
    Symbols symbols_;
    NumberStyle style_;
    std::string_view unit_;
    double half_;
    Narration text_;
};

} // namespace

std::string ExplainMohr(const StressState& state, const MohrEntry& entry)
{
    if (state.CircleBad || state.CircleRadius <= 0) return {};
    return MohrExplanation(state, entry).Text();
}

} // namespace forcelab::transform
