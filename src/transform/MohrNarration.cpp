#include "transform/MohrNarration.h"

#include "core/NumericText.h"
#include "core/Units.h"
#include "transform/MohrModes.h"
#include "transform/MohrTexts.h"
#include "transform/RosetteNarration.h"
#include "transform/Workings.h"

#include <algorithm>
#include <cmath>

namespace forcelab::transform {

namespace {

constexpr std::string_view kDegreeMask = "##0.0#";
constexpr std::string_view kRotationMask = "##0.0##";
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

std::string Degrees(double degrees)
{
    return Format(degrees, kDegreeMask) + "°";
}

/// A printed number as the argument of a function, which has parentheses of its own.
std::string Argument(const Printed& number)
{
    const std::string& text = number.Text;
    return text.front() == '(' ? text : "(" + text + ")";
}

/// The explanation in the making.
class MohrExplanation {
  public:
    MohrExplanation(const StressState& state, const MohrEntry& entry)
        : state_(state), entry_(entry), symbols_(SymbolsOf(entry.Mode)),
          mask_(MohrMask(entry.Mode, entry.Unit)), unit_(kMohrUnits[entry.Unit]),
          half_((state.SigmaX - state.SigmaY) / 2)
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
    [[nodiscard]] Operand Value(double value) const
    {
        return {value * state_.ValueScale, mask_, ""};
    }
    /// A value of a line whose result is a shear strain, in the unit of that.
    [[nodiscard]] Operand Strain(double value) const
    {
        const bool micro = IsStrain(entry_.Mode) && ShearStrainUnit(entry_) != " rad";
        return {value * state_.ValueScale, mask_, micro ? "E-06" : ""};
    }
    [[nodiscard]] std::string Shown(double value) const { return MohrText(state_, entry_, value); }
    [[nodiscard]] std::string ShownWithUnit(double value) const
    {
        return WithUnit(Shown(value), unit_);
    }

    /// A line whose result is a value of the circle.
    void ValueLine(const std::string& name, const std::string& symbols,
                   const std::vector<Operand>& operands,
                   const std::function<PrintedList(const PrintedList&, int)>& putIn, double exact)
    {
        const std::string mask(mask_);
        text_.Line(
            WriteLine({name, symbols, operands, putIn, exact * state_.ValueScale,
                       [mask](double value) { return Format(value, mask); }, std::string(unit_)}));
    }
    /// A line whose result is a shear, doubled in strain.
    void ShearLine(const std::string& name, const std::string& symbols,
                   const std::vector<Operand>& operands,
                   const std::function<PrintedList(const PrintedList&, int)>& putIn, double shear)
    {
        if (!IsStrain(entry_.Mode)) return ValueLine(name, symbols, operands, putIn, shear);
        const std::string mask(mask_);
        const bool micro = ShearStrainUnit(entry_) != " rad";
        const double exact = 2 * shear * state_.ValueScale * (micro ? 1e-6 : 1);
        const auto show = [mask, micro](double value) {
            return micro ? Format(value * 1e6, mask) + "E-06" : Format(value, mask);
        };
        text_.Line(WriteLine({name, symbols, operands, putIn, exact, show, "rad"}));
    }
    void AngleLine(const std::string& name, const std::string& symbols,
                   const std::vector<Operand>& operands,
                   const std::function<PrintedList(const PrintedList&, int)>& putIn, double degrees)
    {
        text_.Line(WriteLine({name, symbols, operands, putIn, degrees,
                              [](double value) { return Format(value, kDegreeMask) + "°"; }, ""}));
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
        const std::vector<Operand> ends{Value(state_.SigmaX), Value(state_.SigmaY)};
        ValueLine(
            "Center", "(" + symbols_.X + " + " + symbols_.Y + ") ÷ 2", ends,
            [](const PrintedList& n, int) -> PrintedList {
                return {
                    {"(" + n[0].Text + " + " + n[1].Text + ") ÷ 2", (n[0].Value + n[1].Value) / 2}};
            },
            state_.CircleCentre);
        ValueLine(
            "Half difference", "(" + symbols_.X + " - " + symbols_.Y + ") ÷ 2", ends,
            [](const PrintedList& n, int) -> PrintedList {
                return {
                    {"(" + n[0].Text + " - " + n[1].Text + ") ÷ 2", (n[0].Value - n[1].Value) / 2}};
            },
            half_);
        ExplainRadius();
    }

    void ExplainRadius()
    {
        text_.Line("The half difference and " + symbols_.Shear +
                   " are the sides of a right triangle whose hypotenuse is the radius.");
        const std::string_view mask = mask_;
        ValueLine(
            "Radius", "√(Half difference² + " + symbols_.Shear + "²)",
            {Value(half_), Value(state_.TauXY)},
            [mask](const PrintedList& n, int more) -> PrintedList {
                const double squares[] = {n[0].Value * n[0].Value, n[1].Value * n[1].Value};
                const Printed a = PrintOperand({squares[0], mask, ""}, more);
                const Printed b = PrintOperand({squares[1], mask, ""}, more);
                return {{"√(" + n[0].Text + "² + " + n[1].Text + "²)",
                         std::sqrt(squares[0] + squares[1])},
                        {"√(" + a.Text + " + " + b.Text + ")", std::sqrt(a.Value + b.Value)}};
            },
            state_.CircleRadius);
    }

    void ExplainPrincipals()
    {
        text_.Heading("Principal values");
        text_.Sentence("They lie where the circle crosses the axis, a radius to either side of "
                       "the center.");
        const std::vector<Operand> parts{Value(state_.CircleCentre), Value(state_.CircleRadius)};
        ValueLine(
            symbols_.One, "Center + Radius", parts,
            [](const PrintedList& n, int) -> PrintedList {
                return {{n[0].Text + " + " + n[1].Text, n[0].Value + n[1].Value}};
            },
            state_.PrincipalOne);
        ValueLine(
            symbols_.Two, "Center - Radius", parts,
            [](const PrintedList& n, int) -> PrintedList {
                return {{n[0].Text + " - " + n[1].Text, n[0].Value - n[1].Value}};
            },
            state_.PrincipalTwo);
    }

    void ExplainAngle()
    {
        text_.Heading("Principal direction");
        const double turn = PrincipalDirection(state_) * 180 / kPi;
        if (half_ == 0)
            text_.Line("The half difference is 0, so that the radius to the first point stands "
                       "upright: the double angle is " +
                       Degrees(90) + ".");
        else
            ExplainAcute();
        const double twice = 2 * std::abs(turn);
        AngleLine(
            "Theta p", "Double angle ÷ 2", {{twice, kDegreeMask, "°"}},
            [](const PrintedList& n, int) -> PrintedList {
                return {{n[0].Text + " ÷ 2", n[0].Value / 2}};
            },
            std::abs(turn));
        text_.Line("An angle on the circle is twice the angle on the element, in the same sense.");
        text_.Sentence("The axis of " + symbols_.One + " is found at " +
                       TurnText(PrincipalDirection(state_)) + " from the " + FirstAxis() + ".");
    }

    void ExplainAcute()
    {
        const double acute = std::atan(std::abs(state_.TauXY / half_)) / kDegree;
        const std::vector<Operand> sides{Value(std::abs(state_.TauXY)), Value(std::abs(half_))};
        AngleLine(
            "Acute angle", "atan(|" + symbols_.Shear + "| ÷ |Half difference|)", sides,
            [](const PrintedList& n, int) -> PrintedList {
                return {{"atan(" + n[0].Text + " ÷ " + n[1].Text + ")",
                         std::atan(n[0].Value / n[1].Value) / kDegree}};
            },
            acute);
        if (half_ > 0)
            return void(text_.Line("The half difference is positive: this is the double angle."));
        AngleLine(
            "Double angle", Degrees(180) + " - Acute angle", {{acute, kDegreeMask, "°"}},
            [](const PrintedList& n, int) -> PrintedList {
                return {{Degrees(180) + " - " + n[0].Text, 180 - n[0].Value}};
            },
            180 - acute);
    }

    void ExplainMaxShear()
    {
        text_.Heading("Maximum shear in the plane");
        if (IsStrain(entry_.Mode))
            ShearLine(
                symbols_.MaxShear, "2 × Radius", {Strain(state_.CircleRadius)},
                [](const PrintedList& n, int) -> PrintedList {
                    return {{"2 × " + n[0].Text, 2 * n[0].Value}};
                },
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
            ShearLine(
                symbols_.AbsMaxShear, "Greatest - least", {Strain(greatest), Strain(least)},
                [](const PrintedList& n, int) -> PrintedList {
                    return {{n[0].Text + " - " + n[1].Text, n[0].Value - n[1].Value}};
                },
                state_.AbsMaxShear);
        else
            ValueLine(
                symbols_.AbsMaxShear, "(Greatest - least) ÷ 2", {Value(greatest), Value(least)},
                [](const PrintedList& n, int) -> PrintedList {
                    return {{"(" + n[0].Text + " - " + n[1].Text + ") ÷ 2",
                             (n[0].Value - n[1].Value) / 2}};
                },
                state_.AbsMaxShear);
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
        AngleLine(
            "2 × Theta", "", {{degrees, kRotationMask, "°"}},
            [](const PrintedList& n, int) -> PrintedList {
                return {{"2 × " + n[0].Text, 2 * n[0].Value}};
            },
            2 * degrees);
        ExplainNormal(std::string(names[0]), 1, turned.NormalX, shown[0]);
        ExplainNormal(std::string(names[1]), -1, turned.NormalY, shown[1]);
        ExplainRotatedShear(std::string(names[2]), turned.ShearXY, shown[2]);
    }

    void ExplainNormal(const std::string& name, int side, double exact, const std::string& shown)
    {
        const std::string first = side > 0 ? " + " : " - ";
        const std::string second = side > 0 ? " - " : " + ";
        ValueLine(
            name,
            "Center" + first + "Half difference × cos(2 × Theta)" + second + symbols_.Shear +
                " × sin(2 × Theta)",
            TurnOperands(),
            [first, second, side](const PrintedList& n, int) -> PrintedList {
                const double twice = n[3].Value * kDegree;
                return {{n[0].Text + first + n[1].Text + " × cos" + Argument(n[3]) + second +
                             n[2].Text + " × sin" + Argument(n[3]),
                         n[0].Value +
                             side * (n[1].Value * std::cos(twice) - n[2].Value * std::sin(twice))}};
            },
            exact);
        text_.Line("Shown as " + shown + ".");
    }

    void ExplainRotatedShear(const std::string& name, double exact, const std::string& shown)
    {
        const bool strain = IsStrain(entry_.Mode);
        const std::string factor = strain ? "2 × (" : "";
        const std::string close = strain ? ")" : "";
        std::vector<Operand> operands = TurnOperands();
        operands[1] = Strain(half_);
        operands[2] = Strain(state_.TauXY);
        ShearLine(
            name,
            factor + "-Half difference × sin(2 × Theta) - " + symbols_.Shear + " × cos(2 × Theta)" +
                close,
            operands,
            [factor, close, strain](const PrintedList& n, int) -> PrintedList {
                const double twice = n[3].Value * kDegree;
                return {{factor + "-" + n[1].Text + " × sin" + Argument(n[3]) + " - " + n[2].Text +
                             " × cos" + Argument(n[3]) + close,
                         (strain ? 2 : 1) *
                             (-n[1].Value * std::sin(twice) - n[2].Value * std::cos(twice))}};
            },
            exact);
        text_.Line("Shown as " + shown +
                   (entry_.Mode == MohrMode::MomentOfInertia
                        ? "; by this formula the product counts opposite to Iyz."
                        : "; positive turns the face counterclockwise."));
    }

    [[nodiscard]] std::vector<Operand> TurnOperands() const
    {
        return {Value(state_.CircleCentre),
                Value(half_),
                Value(state_.TauXY),
                {2 * state_.RotationAngle / kDegree, kRotationMask, "°"}};
    }
    [[nodiscard]] std::string FirstAxis() const
    {
        if (entry_.Mode == MohrMode::MomentOfInertia) return "z axis";
        return IsRosette(entry_.Mode) ? "axis of gage A" : "x axis";
    }

    const StressState& state_;
    const MohrEntry& entry_;
    Symbols symbols_;
    std::string_view mask_;
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
