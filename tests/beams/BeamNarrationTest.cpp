#include "beams/BeamNarration.h"

#include "BeamBuilders.h"
#include "support/NarrationProof.h"

using namespace forcelab;
using namespace forcelab::test;
using namespace forcelab::beams;
using namespace forcelab::beams::test;
using testing::HasSubstr;
using testing::Not;

namespace {

/// A beam in units of the diagrams that differ from those of its entry.
struct Told {
    Solved Beam;
    DiagramUnits Units;
    [[nodiscard]] BeamView View() const { return {Beam.Beam, Beam.Reactions, Beam.Curves, Units}; }
};

Told Tell(const BeamRecord& beam, const DiagramUnits& units)
{
    return {Solve(beam), units};
}

Told RandomTold(unsigned seed)
{
    constexpr double kStiffness[] = {1, 29e6 * 999, 1.2e8};
    Dice dice(seed + 1000);
    BeamRecord beam = RandomBeam(seed, dice.Whole(1, seed % 10 == 0 ? 40 : 7), seed % 4 == 0);
    beam.ReverseShearSign = seed % 3 == 0;
    return Tell(beam, {dice.Whole(0, 3), dice.Whole(0, 3), dice.Whole(0, 3), dice.Whole(0, 1),
                       dice.Whole(0, 1), kStiffness[seed % 3]});
}

constexpr std::array kDiagrams{Diagram::Shear, Diagram::Moment, Diagram::Slope,
                               Diagram::Deflection};

/// Just left of a moment load the shear has a label of its own, though nothing happens to it.
bool IsLeftOfMoment(const BeamRecord& beam, double x)
{
    for (int row = 1; row <= beam.LoadCount; ++row)
        if (beam.LoadClass[row] == kMomentLoad &&
            std::abs(beam.LoadX[row][1] - kLeftOfJump - x) < 1e-9)
            return true;
    return false;
}

class FiftyBeams : public testing::TestWithParam<unsigned> {};

TEST_P(FiftyBeams, EveryLineFollowsFromItsOwnNumbers)
{
    const Told told = RandomTold(GetParam());
    const BeamView view = told.View();
    const BeamRecord& beam = view.Beam;
    EXPECT_GE(ProveText(BeamExplanations(view)), 2 + beam.LoadCount);
    EXPECT_GE(ProveText(ExplainReactions(view, ShearMomentCase(beam))),
              beam.SupportType == kTwoSupports ? 4 : 0);
    for (int row = 1; row <= beam.LoadCount; ++row)
        EXPECT_GE(ProveText(ExplainLoadDiagram(view, row)), 1) << row;
    for (int k = 0; k < 20; ++k) ProveText(ExplainShearDiagram(view, beam.BeamLength * k / 19));
    int proved = 0;
    for (const Diagram diagram : kDiagrams) proved += ProveText(DisplaySingularity(view, diagram));
    EXPECT_GE(proved, 4);
}

/// Labels of the diagrams stand in the explanation as results, with their unit.
TEST_P(FiftyBeams, CarryTheNumbersOfTheDiagrams)
{
    const Told told = RandomTold(GetParam());
    const BeamView view = told.View();
    const std::string text = BeamExplanations(view);
    const int c = ShearMomentCase(view.Beam);
    const std::string force(kForceUnits.at(view.Units.Force));
    const std::string moment(kMomentUnits.at(view.Units.Moment));
    if (view.Beam.SupportType != kFixedRight) {
        const std::string a = ForceText(view.Reactions.ReactionA[c], view.Units);
        EXPECT_THAT(text, HasSubstr(" = " + a + " " + force));
    }
    const BeamCurves& curves = view.Curves;
    for (int i = 1; i <= curves.ShearLabelCount; ++i) {
        if (IsLeftOfMoment(view.Beam, curves.ShearLabelX[i])) continue;
        EXPECT_THAT(text, HasSubstr(ForceText(curves.ShearLabelValue[i], view.Units) + " " + force))
            << curves.ShearLabelX[i];
    }
    for (int i = 1; i <= curves.MomentLabelCount; ++i)
        EXPECT_THAT(text,
                    HasSubstr(MomentText(curves.MomentLabelValue[i], view.Units) + " " + moment))
            << curves.MomentLabelX[i];
    const auto& largest = curves.SlopeDeflectionExtremes;
    const double x = largest[1][kSecondSize];
    const double deflection = told.Beam.At(x, SlopeDeflectionCase(view.Beam)).Deflection;
    EXPECT_THAT(DisplaySingularity(view, Diagram::Deflection),
                HasSubstr(" = " + DeflectionText(deflection, view.Units) + " "));
}

INSTANTIATE_TEST_SUITE_P(Seeds, FiftyBeams, testing::Range(1U, 51U));

/// Loads at the same places, at the ends and supports, backwards, very large and very small.
BeamRecord AwkwardBeam(unsigned seed)
{
    Dice dice(seed);
    BeamRecord beam = Beam(kTwoSupports, 10, 2, 10, kFoot);
    if (seed % 3 != 0) beam = Cantilever(1 + int(seed % 3), 10, kFoot);
    const double size = std::pow(10.0, dice.Whole(-6, 7));
    for (int i = 0; i < 9; ++i) {
        const bool metric = dice.Whole(0, 1) == 1; // 3.048 m is 10 ft, but for the last bit
        const double place = metric ? 0.3048 : 1;
        Add(beam, {dice.Whole(0, 5), place * dice.Whole(0, 5) * 2, place * dice.Whole(0, 5) * 2,
                   metric ? kMetre : kFoot, size * dice.Whole(0, 9), 0, dice.Whole(0, 3)});
    }
    return beam;
}

TEST(BeamExplanations, HoldForAwkwardBeams)
{
    for (unsigned seed = 1; seed <= 60; ++seed) {
        SCOPED_TRACE(seed);
        const int unit = int(seed % 4);
        const Told told = Tell(AwkwardBeam(seed), {unit, unit, unit, 0, 0, 1});
        EXPECT_GT(ProveText(BeamExplanations(told.View())), 4);
        for (const Diagram diagram : kDiagrams) ProveText(DisplaySingularity(told.View(), diagram));
    }
}

/// Redo may bring back a load that lies beyond a beam that has since become shorter.
TEST(BeamExplanations, StandALoadOffTheBeam)
{
    BeamRecord beam = Simple(10, kFoot);
    Add(beam, kPointDown, 15, 0, 100, kLb);
    const Told told = Tell(beam, {kFoot, kLb, 0, 0, 0, 1});
    EXPECT_THAT(BeamExplanations(told.View()), HasSubstr(Local("A = Sum ÷ (b - a)")));
    EXPECT_EQ(told.Beam.Curves.CurveX[kCurvePoints], 120);
    EXPECT_NE(ExplainLoadDiagram(told.View(), 1), "");
}

Told FirstExample()
{
    BeamRecord beam = Simple(10, kMetre);
    Add(beam, kUniformDown, 0, 10, 5, kKn);
    Add(beam, kPointDown, 3, 0, 8, kKn);
    return Tell(beam, {kMetre, kKn, kKn, 0, 1, 1});
}

TEST(ExplainReactions, WritesTheEquations)
{
    const Told told = FirstExample();
    const std::string text = ExplainReactions(told.View(), kUnfactored);
    for (const std::string line : {"W of 1w = 1w × length = 5.0 × (10.0 - 0.0) = 50.0 kN",
                                   "Moment of 1P = 1P × (b - x) = 8.0 × (10.0 - 3.0) = 56.0 kN-m",
                                   "Sum about B = 250.0 + 56.0 = 306.0 kN-m",
                                   "A = Sum ÷ (b - a) = 306.0 ÷ (10.0 - 0.0) = 30.6 kN",
                                   "B = Sum ÷ (b - a) = 274.0 ÷ (10.0 - 0.0) = 27.4 kN",
                                   "A + B - Sum of loads = 30.6 + 27.4 - 58.0 = 0.0 kN"})
        EXPECT_THAT(text, HasSubstr(Local(line) + "\r\n"));
}

TEST(BeamExplanations, TellTheStretchAlongWhichAnExtremeStays)
{
    // Reactions 4.625 and 3.375 by hand; the shear is -3.375 from the load's end to the support.
    BeamRecord beam = Beam(kTwoSupports, 11, 0, 8, kMetre);
    Add(beam, kUniformDown, 2, 6, 2, kKn);
    Add(beam, kMomentCcw, 11, 0, 5, kKn);
    const Told told = Tell(beam, {kMetre, kKn, kKn, 0, 0, 1});
    const std::string text = BeamExplanations(told.View());
    EXPECT_THAT(text, HasSubstr(Local("The largest shear is 4.6 kN from 0.0 to 2.0 m: ")));
    EXPECT_THAT(text, HasSubstr(Local("The smallest shear is -3.4 kN from 6.0 to 8.0 m: ")));
    EXPECT_THAT(text, HasSubstr(Local("The largest moment is 14.6 kN-m at 4.31 m: ")));
}

TEST(ExplainReactions, OfACantilever)
{
    BeamRecord beam = Cantilever(kFixedLeft, 9, kMetre);
    Add(beam, kUniformDown, 0, 5, 8, kKn);
    Add(beam, kMomentCcw, 5, 0, 50, kKn);
    Add(beam, kPointDown, 9, 0, 12, kKn);
    const Told told = Tell(beam, {kMetre, kKn, kKn, 0, 0, 1});
    const std::string text = ExplainReactions(told.View(), kUnfactored);
    EXPECT_THAT(text, HasSubstr(Local("A = Sum of loads = 52.0 kN")));
    EXPECT_THAT(text, HasSubstr(Local("Sum about A = 100.0 + 108.0 + (-50.0) = 158.0 kN-m")));
    EXPECT_THAT(text, HasSubstr(Local("counterclockwise with 158.0 kN-m")));
    const auto lines = FillReactionList(beam, told.Beam.Reactions, told.Units, kUnfactored);
    EXPECT_THAT(lines,
                testing::ElementsAre(Local("A = 52.0 kN (up)"), Local("MA = 158.0 kN-m (ccw)")));
}

TEST(ExplainReactions, HasLittleToSayWithoutLoads)
{
    const Told told = Tell(Simple(10, kFoot), {});
    EXPECT_THAT(ExplainReactions(told.View(), kUnfactored), HasSubstr("all reactions are 0"));
    EXPECT_EQ(BeamExplanations(Tell({}, {}).View()), "");
    EXPECT_EQ(ExplainLoadDiagram(told.View(), 1), "") << "there is no such load";
    EXPECT_THAT(DisplaySingularity(told.View(), Diagram::Shear), HasSubstr(Local("V(x) = 0.0")));
}

TEST(ExplainLoadDiagram, TellsOfTheJumpAndOfTheSlope)
{
    const Told told = FirstExample();
    EXPECT_THAT(ExplainLoadDiagram(told.View(), 2),
                HasSubstr(Local("V at 3.0 = V just left of 3.0 - 1P = 15.6 - 8.0 = 7.6 kN")));
    const std::string uniform = ExplainLoadDiagram(told.View(), 1);
    EXPECT_THAT(uniform,
                HasSubstr(Local("V at 0.0 - w × length = 30.6 - 5.0 × (3.0 - 0.0) = 15.6 kN")));
    EXPECT_THAT(uniform, HasSubstr(Local("7.6 - 5.0 × (10.0 - 3.0) = -27.4 kN")));
}

TEST(ExplainLoadDiagram, FollowsTheSignOfTheDiagram)
{
    Told told = FirstExample();
    told.Beam.Beam.ReverseShearSign = true;
    told.Beam = Solve(told.Beam.Beam);
    EXPECT_THAT(ExplainLoadDiagram(told.View(), 2),
                HasSubstr(Local("V just left of 3.0 + 1P = -15.6 + 8.0 = -7.6 kN")));
    EXPECT_THAT(ExplainShearDiagram(told.View(), 50),
                HasSubstr(Local("M at 3.0 = M at 0.0 - Area = 0.0 - (-69.3) = 69.3 kN-m")));
}

TEST(ExplainShearDiagram, SplitsThePieceWhereTheShearIsZero)
{
    const Told told = FirstExample();
    const std::string text = ExplainShearDiagram(told.View(), 200);
    EXPECT_THAT(text, HasSubstr(Local("x = start + V ÷ w = 3.0 + 7.6 ÷ 5.0 = 4.52 m")));
    EXPECT_THAT(text, HasSubstr(Local("M at 4.52 = M at 3.0 + Area = 69.3 + 5.8 = 75.1 kN-m")));
    EXPECT_THAT(text, HasSubstr("The moment falls along a parabola"));
    EXPECT_THAT(text, Not(HasSubstr(Local("From 0.0 to"))));
    EXPECT_EQ(ExplainShearDiagram(told.View(), -1), "");
}

TEST(ExplainShearDiagram, ConvertsWhereTheUnitsDoNotFit)
{
    BeamRecord beam = Simple(120, kInch);
    Add(beam, kPointDown, 60, 0, 1000, kLb);
    const Told told = Tell(beam, {kInch, kLb, 0, 0, 0, 1});
    EXPECT_THAT(
        ExplainShearDiagram(told.View(), 30),
        HasSubstr(Local("Area = V × length = 500.0 × (60.0 - 0.0) ÷ 12.0 = 2,500.0 ft-lbs")));
}

TEST(BeamExplanations, SayWhereTheLargestValuesLie)
{
    const std::string text = BeamExplanations(FirstExample().View());
    EXPECT_THAT(text, HasSubstr(Local("largest moment is 75.1 kN-m at 4.52 m: the shear is zero")));
    BeamRecord beam = Simple(10, kFoot);
    Add(beam, kPointDown, 5, 0, 1000, kLb);
    EXPECT_THAT(BeamExplanations(Tell(beam, {kFoot, kLb, 0, 0, 0, 1}).View()),
                HasSubstr(Local("2,500.0 ft-lbs at 5.0 ft: the shear jumps through zero there")));
}

TEST(BeamExplanations, ApplyTheLoadFactors)
{
    BeamRecord beam = Simple(20, kFoot);
    UseLoadFactors(beam, 1);
    Add(beam, kUniformDown, 0, 20, 2, kKip, 3);
    const Told told = Tell(beam, {kFoot, kKip, kKip, 0, 0, 1});
    EXPECT_THAT(BeamExplanations(told.View()),
                HasSubstr(Local("1w = 1.2 × 2.0 + 1.6 × 3.0 = 7.2 kips/ft")));
    const std::string deflection = DisplaySingularity(told.View(), Diagram::Deflection);
    EXPECT_THAT(deflection, HasSubstr(Local("1w = 2.0 + 3.0 = 5.0 kips/ft")));
    EXPECT_THAT(deflection, HasSubstr("service loads"));
}

TEST(DisplaySingularity, WritesTheFourFunctions)
{
    const Told told = FirstExample();
    const auto text = [&](Diagram diagram) { return DisplaySingularity(told.View(), diagram); };
    EXPECT_THAT(
        text(Diagram::Shear),
        HasSubstr(Local("V(x) = 30.6⟨x - 0.0⟩⁰ - 5.0⟨x - 0.0⟩¹ - 8.0⟨x - 3.0⟩⁰") + ", in kN"));
    EXPECT_THAT(text(Diagram::Moment), HasSubstr(Local("- 5.0⟨x - 0.0⟩² ÷ 2 - 8.0⟨x - 3.0⟩¹")));
    EXPECT_THAT(text(Diagram::Slope),
                HasSubstr(Local("- 8.0⟨x - 3.0⟩² ÷ 2 - 255.9") + ", in kN-m²"));
    EXPECT_THAT(text(Diagram::Deflection), HasSubstr(Local("÷ 6 - 255.9x") + ", in kN-m³"));
    EXPECT_THAT(text(Diagram::Deflection),
                HasSubstr(Local("C1 = (Y(a) - Y(b)) ÷ (b - a) = (0.0 - 2,559.3) ÷ (10.0 - 0.0) = "
                                "-255.9 kN-m²")));
}

TEST(DisplaySingularity, LeavesOutWhatActsAtTheRightEnd)
{
    BeamRecord beam = Cantilever(kFixedRight, 8, kFoot);
    Add(beam, kPointDown, 0, 0, 2, kKip);
    Add(beam, kMomentCw, 8, 0, 6, kKip);
    const Told told = Tell(beam, {kFoot, kKip, kKip, 0, 0, 1});
    const std::string moment = DisplaySingularity(told.View(), Diagram::Moment);
    EXPECT_THAT(moment, HasSubstr("What acts at the right end is left out"));
    EXPECT_THAT(moment, HasSubstr(Local("M(x) = -2.0⟨x - 0.0⟩¹") + ", in "));
    EXPECT_THAT(moment, HasSubstr(Local("M(8.0) = -2.0 × (8.0 - 0.0) = -16.0")));
    beam = Beam(kTwoSupports, 10, 0, 8, kFoot);
    Add(beam, kPointDown, 4, 0, 2, kKip);
    const Told within = Tell(beam, {kFoot, kKip, kKip, 0, 0, 1});
    EXPECT_THAT(DisplaySingularity(within.View(), Diagram::Moment),
                Not(HasSubstr("What acts at the right end")));
}

TEST(ExplainLoadDiagram, SaysHowAUniformLoadLeadsTheShear)
{
    BeamRecord beam = Simple(10, kMetre);
    Add(beam, kUniformDown, 0, 10, 5, kKn);
    const auto text = [&] {
        return ExplainLoadDiagram(Tell(beam, {kMetre, kKn, kKn, 0, 0, 1}).View(), 1);
    };
    EXPECT_THAT(text(), HasSubstr("falls under a downward load"));
    beam.ReverseShearSign = true;
    EXPECT_THAT(text(), HasSubstr("rises under a downward load"));
}

/// An upward load takes the shear to 5.2 kN at 3 m, where it stays.
TEST(DisplaySingularity, TakesTheFirstOfEqualLargestValues)
{
    BeamRecord beam = Beam(kTwoSupports, 6, 1, 6, kMetre);
    Add(beam, kUniformUp, 0, 3, 4, kKn);
    Add(beam, kPointDown, 4, 0, 10, kKn);
    const Told told = Tell(beam, {kMetre, kKn, kKn, 0, 1, 1});
    EXPECT_THAT(DisplaySingularity(told.View(), Diagram::Shear),
                HasSubstr(Local("V(3.0) = -6.8 + 4.0 × (3.0 - 0.0) = 5.2 kN")));
}

TEST(DisplaySingularity, OfACantileverHasNoConstantsAtTheLeftWall)
{
    BeamRecord beam = Cantilever(kFixedLeft, 100, kInch);
    Add(beam, kPointDown, 100, 0, 30, kLb);
    const Told told = Tell(beam, {kInch, kLb, 0, 0, 0, 29e6 * 999});
    const std::string text = DisplaySingularity(told.View(), Diagram::Deflection);
    EXPECT_THAT(text, HasSubstr("both constants are 0"));
    EXPECT_THAT(text, HasSubstr(Local("-345.17E-06 in"))) << "P L^3 / 3 E I";
}

/// A beam as stiff as W14X90 in E = 29,000,000 psi: 0.00124 in.
TEST(DiagramTexts, ShowSmallDeflections)
{
    BeamRecord beam = Simple(120, kInch);
    Add(beam, kPointDown, 60, 0, 1000, kLb);
    const DiagramUnits units{kInch, kLb, 0, 0, 0, 29e6 * 999};
    EXPECT_EQ(DeflectionText(Solve(beam).At(60).Deflection, units), Local("-0.00124"));
    EXPECT_EQ(SmallText(0), Local("0.0"));
    EXPECT_EQ(SmallText(12.3456), Local("12.346"));
    EXPECT_EQ(SmallText(-1234.56), Local("-1,234.6"));
    EXPECT_EQ(SmallText(12345678), Local("12.346E+06"));
    EXPECT_EQ(LengthText(54.24, {kFoot, 0, 0, 0, 0, 1}), Local("4.52"));
}

} // namespace
