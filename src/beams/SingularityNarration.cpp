#include "beams/BeamTeller.h"

#include "core/NumericText.h"
#include "core/Units.h"

#include <array>
#include <cmath>

namespace forcelab::beams {

namespace {

constexpr int kHighestPower = 4;
constexpr double kNoise = 1e-9; // of a value, left by rounding

/// Coefficient × ⟨x - At⟩ to a power, over the power's factorial; consistent units.
struct BracketTerm {
    double Coefficient;
    double At; ///< in
    int Power; ///< 0 to 4
};

struct DiagramWords {
    std::string_view Function; ///< with its argument to follow
    std::string_view Quantity;
    double BeamValues::*Value;
    int Order; ///< how often a force has been integrated
    ExtremeTable BeamCurves::*Extremes;
    int Row;
};
constexpr std::array<DiagramWords, 4> kDiagrams{{
    {"V", "shear", &BeamValues::Shear, 0, &BeamCurves::ShearMomentExtremes, kFirstSize},
    {"M", "moment", &BeamValues::Moment, 1, &BeamCurves::ShearMomentExtremes, kSecondSize},
    {"EIθ", "slope", &BeamValues::Slope, 2, &BeamCurves::SlopeDeflectionExtremes, kFirstSize},
    {"EIy", "deflection", &BeamValues::Deflection, 3, &BeamCurves::SlopeDeflectionExtremes,
     kSecondSize},
}};

constexpr int kLastUsLength = 1; // in and ft, whose moments are named "ft-lbs"

/// With as many decimals as tell, up to three; small ones scaled.
std::string CoefficientText(double size)
{
    return size < 0.1 || size >= 1e6 ? SmallText(size) : Format(size, "###,##0.0##");
}

class SingularityTeller : public BeamTeller {
  public:
    SingularityTeller(Narration& text, const BeamView& view, Diagram diagram, int loadCase)
        : BeamTeller(text, view, loadCase), words_(kDiagrams.at(int(diagram))),
          lengthFactor_(LengthFactor(Units.Length))
    {}

    void Explain() const
    {
        if (Beam.SupportType == kNoBeam) return;
        if (Beam.FactoredLoads) ListLoads();
        Text.Heading("The " + std::string(words_.Quantity) + " as a function of x");
        Text.Line("A bracket ⟨x - a⟩ is zero as long as x is less than a; from there on it is an "
                  "ordinary parenthesis.");
        if (HasEndForces())
            Text.Line("What acts at the right end is left out: its bracket would begin where the "
                      "beam ends.");
        WriteFunction();
        if (words_.Order >= 2) ExplainConstants();
        EvaluateAtLargest();
    }

  private:
    [[nodiscard]] std::string UnitOf(int order) const
    {
        constexpr std::array<std::string_view, 4> kPowers{"", "-", "-", "-"};
        constexpr std::array<std::string_view, 4> kRaised{"", "", "²", "³"};
        if (order == 0) return ForceUnit();
        if (order == 1 && Units.Length <= kLastUsLength) return LengthUnit() + "-" + ForceUnit();
        return ForceUnit() + std::string(kPowers[order]) + LengthUnit() +
               std::string(kRaised[order]);
    }
    [[nodiscard]] double SignFor(int order) const { return order == 0 ? ShearSign : 1; }

    /// What acts at the right end never comes into its own, since x ends there.
    [[nodiscard]] bool BeginsBeforeEnd(double x) const { return x < Beam.BeamLength; }
    [[nodiscard]] bool HasEndForces() const
    {
        if (Beam.SupportType != kFixedLeft && !BeginsBeforeEnd(Beam.SupportB)) return true;
        for (int row = 1; row <= Beam.LoadCount; ++row)
            if (Beam.LoadClass[row] != kUniformLoad && !BeginsBeforeEnd(Beam.LoadX[row][1]))
                return true;
        return false;
    }

    void AddReactions(std::vector<BracketTerm>& terms, int order) const
    {
        const auto add = [&](double force, double moment, double x) {
            if (force != 0) terms.push_back({SignFor(order) * Consistent(force, 0), x, order});
            if (moment != 0 && order > 0) terms.push_back({-Consistent(moment, 1), x, order - 1});
        };
        if (Beam.SupportType != kFixedRight)
            add(Reactions.ReactionA[Case], Reactions.MomentA[Case], Beam.SupportA);
        if (Beam.SupportType == kTwoSupports && BeginsBeforeEnd(Beam.SupportB))
            add(Reactions.ReactionB[Case], 0, Beam.SupportB);
    }

    /// All terms without the constants, `order` integrations up from the forces.
    [[nodiscard]] std::vector<BracketTerm> TermsOf(int order) const
    {
        std::vector<BracketTerm> terms;
        AddReactions(terms, order);
        for (int row = 1; row <= Beam.LoadCount; ++row) {
            const auto& x = Beam.LoadX[row];
            const double q = Magnitude(row);
            const int power = order + Beam.LoadClass[row] - 1;
            const double coefficient =
                -SignFor(order) * Consistent(q, 1 - int(Beam.LoadClass[row]));
            if (power < 0) continue; // a moment leaves the shear alone
            if (BeginsBeforeEnd(x[1])) terms.push_back({coefficient, x[1], power});
            if (Beam.LoadClass[row] == kUniformLoad && BeginsBeforeEnd(x[2]))
                terms.push_back({-coefficient, x[2], power});
        }
        return terms;
    }

    [[nodiscard]] std::string Bracket(const BracketTerm& term) const
    {
        constexpr std::array<std::string_view, kHighestPower + 1> kPowers{"⁰", "¹", "²", "³", "⁴"};
        constexpr std::array<std::string_view, kHighestPower + 1> kOver{"", "", " ÷ 2", " ÷ 6",
                                                                        " ÷ 24"};
        return CoefficientText(std::abs(term.Coefficient)) + "⟨x - " + LengthText(term.At, Units) +
               "⟩" + std::string(kPowers.at(term.Power)) + std::string(kOver.at(term.Power));
    }

    static void Append(std::string& text, double sign, const std::string& term)
    {
        if (text.empty())
            text = sign < 0 ? "-" : "";
        else
            text += sign < 0 ? " - " : " + ";
        text += term;
    }

    void WriteFunction() const
    {
        std::string function;
        for (const BracketTerm& term : TermsOf(words_.Order))
            Append(function, term.Coefficient, Bracket(term));
        const double c1 = Consistent(Reactions.SlopeConstant[Case], 2);
        const double c2 = Consistent(Reactions.DeflectionConstant[Case], 3);
        if (words_.Order == 2 && c1 != 0) Append(function, c1, PlainText(std::abs(c1)));
        if (words_.Order == 3 && c1 != 0) Append(function, c1, PlainText(std::abs(c1)) + "x");
        if (words_.Order == 3 && c2 != 0) Append(function, c2, PlainText(std::abs(c2)));
        if (function.empty()) function = PlainText(0);
        Text.Line(std::string(words_.Function) + "(x) = " + function + ", in " +
                  UnitOf(words_.Order));
    }

    /// Without its sign.
    [[nodiscard]] Expression PutIn(const BracketTerm& term, double x) const
    {
        const Expression coefficient = Number(std::abs(term.Coefficient));
        if (term.Power == 0) return coefficient;
        const Expression product = coefficient * Raised(Distance(term.At, x), term.Power);
        return term.Power == 1 ? product : product / static_cast<int>(Factorial(term.Power));
    }

    /// The terms at x; those that have not begun are left out.
    [[nodiscard]] std::vector<SignedTerm> Evaluate(int order, double x) const
    {
        std::vector<SignedTerm> sum;
        for (const BracketTerm& term : TermsOf(order))
            if (x > term.At || (x == term.At && term.Power == 0))
                sum.push_back({term.Coefficient < 0, PutIn(term, x)});
        if (sum.empty()) sum.push_back({false, Number(0)});
        return sum;
    }

    void Line(const std::string& name, const std::string& symbols, const Expression& putIn,
              int order, Exact exact = {}) const
    {
        Text.Line(WriteLine({name, symbols, {putIn}, PlainText, UnitOf(order), exact}));
    }

    double TellSum(const std::string& name, int order, double x) const
    {
        const Expression sum = Sum(Evaluate(order, x));
        Line(name, "", sum, order);
        return sum.Unrounded().Value;
    }

    void ExplainConstants() const
    {
        Text.Heading("The constants of integration");
        if (Beam.SupportType == kFixedLeft)
            return void(Text.Sentence("At the wall, where x is zero, slope and deflection are "
                                      "zero, and so is every bracket: both constants are 0."));
        Beam.SupportType == kTwoSupports ? ConstantsOfSupports() : ConstantsOfWall();
    }

    void ConstantsOfSupports() const
    {
        Text.Sentence("The deflection EIy is the sum Y of the brackets, plus C1 × x + C2. It is "
                      "zero at the supports, which stand at a = " +
                      Position(Beam.SupportA) + " and b = " + Position(Beam.SupportB) + ".");
        const double a = Beam.SupportA / lengthFactor_;
        const double b = Beam.SupportB / lengthFactor_;
        const double ya = TellSum("Y(a)", 3, Beam.SupportA);
        const double yb = TellSum("Y(b)", 3, Beam.SupportB);
        const double c1 = (ya - yb) / (b - a);
        Line("C1", "(Y(a) - Y(b)) ÷ (b - a)",
             (Number(ya) - Number(yb)) / Distance(Beam.SupportA, Beam.SupportB), 2);
        TellSecondConstant("a", ya, c1, a);
    }

    void ConstantsOfWall() const
    {
        Text.Sentence("The slope EIθ is the sum T of its brackets plus C1, the deflection EIy the "
                      "sum Y of its brackets plus C1 × x + C2. Both are zero at the wall, b = " +
                      Position(Beam.SupportB) + ".");
        const double t = TellSum("T(b)", 2, Beam.SupportB);
        Line("C1", "-T(b)", Number(-t), 2);
        const double y = TellSum("Y(b)", 3, Beam.SupportB);
        TellSecondConstant("b", y, -t, Beam.SupportB / lengthFactor_);
    }

    void TellSecondConstant(const std::string& where, double y, double c1, double x) const
    {
        Line("C2", "-Y(" + where + ") - C1 × " + where, Number(-y) - Number(c1) * Number(x), 3);
    }

    /// Where the curve first has its largest size, which it may keep from there on.
    [[nodiscard]] double FirstOfSize(double size, double found) const
    {
        const double least = size * (1 - kNoise);
        for (int i = 1; i <= kCurvePoints; ++i) {
            const double x = Curves.CurveX[i];
            if (x < found && std::abs(At(x).*words_.Value) >= least) return x;
        }
        return found;
    }

    /// The value of largest size, computed from the function.
    void EvaluateAtLargest() const
    {
        const ExtremeTable& table = Curves.*words_.Extremes;
        if (table[2][words_.Row] == 0) return;
        const double x = FirstOfSize(table[2][words_.Row], table[1][words_.Row]);
        const double exact = At(x).*words_.Value;
        Text.Heading("Its largest value in size, at " + Position(x));
        std::vector<SignedTerm> sum = Evaluate(words_.Order, x);
        const double c1 = Consistent(Reactions.SlopeConstant[Case], 2);
        const double c2 = Consistent(Reactions.DeflectionConstant[Case], 3);
        const auto add = [&](double constant, int power) {
            const Expression size = Number(std::abs(constant));
            if (constant != 0) sum.push_back({constant < 0, power == 0 ? size : size * Length(x)});
        };
        if (words_.Order >= 2) add(c1, words_.Order - 2);
        if (words_.Order == 3) add(c2, 0);
        const std::string name = std::string(words_.Function) + "(" + LengthText(x, Units) + ")";
        if (words_.Order == 1) return MomentLine(name, "", Sum(sum), exact);
        Line(name, "", Sum(sum), words_.Order, Consistent(exact, words_.Order));
        if (words_.Order >= 2) DivideByEI(exact);
    }

    /// From EI times the value to the value shown.
    void DivideByEI(double exact) const
    {
        const bool slope = words_.Order == 2;
        const double scale = slope ? SlopeScale(Units) : DeflectionScale(Units);
        const std::string unit(slope ? kSlopeUnits.at(Units.Slope)
                                     : kDeflectionUnits.at(Units.Deflection));
        const double value = Consistent(exact, words_.Order);
        const double k = exact / value * scale * Units.BeamEI;
        Text.Line("EI is " + PlainText(Units.BeamEI) + " lb-in²; the factor k takes " +
                  UnitOf(words_.Order) + " to the pounds and inches of EI and the result to " +
                  unit + ".");
        Text.Line(WriteLine({slope ? "θ" : "y",
                             std::string(words_.Function) + " × k ÷ EI",
                             {Number(value) * Number(k) / Number(Units.BeamEI)},
                             SmallText,
                             unit,
                             exact * scale}));
    }

    const DiagramWords& words_;
    double lengthFactor_;
};

} // namespace

std::string DisplaySingularity(const BeamView& view, Diagram diagram)
{
    const bool shearOrMoment = diagram == Diagram::Shear || diagram == Diagram::Moment;
    Narration text;
    SingularityTeller(text, view, diagram,
                      shearOrMoment ? ShearMomentCase(view.Beam) : SlopeDeflectionCase(view.Beam))
        .Explain();
    return text.Text();
}

} // namespace forcelab::beams
