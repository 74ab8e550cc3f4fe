#include "BeamBuilders.h"

using namespace forcelab::beams;
using namespace forcelab::beams::test;

namespace {

TEST(StepAt, CountsThePointItself)
{
    EXPECT_EQ(StepAt(3, 3), 1);
    EXPECT_EQ(StepAt(2.99999, 3), 0);
    EXPECT_EQ(StepAt(4, 3), 1);
}

TEST(Factorial, MultipliesFromOne)
{
    EXPECT_EQ(Factorial(0), 1);
    EXPECT_EQ(Factorial(1), 1);
    EXPECT_EQ(Factorial(4), 24);
}

TEST(BeamReactions, AreZeroWithoutLoads)
{
    const Solved s = Solve(Simple(10, kFoot));
    EXPECT_EQ(s.Reactions.ReactionA[kUnfactored], 0);
    EXPECT_EQ(s.Reactions.ReactionB[kUnfactored], 0);
    EXPECT_EQ(s.Reactions.SlopeConstant[kUnfactored], 0);
}

/// P L / 4 and P L^3 / 48 at midspan.
TEST(BeamReactions, OfACentralPointLoad)
{
    BeamRecord beam = Simple(120, kInch);
    Add(beam, kPointDown, 60, 0, 1000, kLb);
    const Solved s = Solve(beam);
    EXPECT_TRUE(Near(s.Reactions.ReactionA[kUnfactored], 500));
    EXPECT_TRUE(Near(s.Reactions.ReactionB[kUnfactored], 500));
    EXPECT_TRUE(Near(s.At(60).Moment, 30000));
    EXPECT_TRUE(Near(s.At(60).Deflection, -1000.0 * 120 * 120 * 120 / 48));
    EXPECT_NEAR(s.At(60).Slope, 0, 1e-6);
    EXPECT_TRUE(Near(s.At(0).Slope, -1000.0 * 120 * 120 / 16)) << "P L^2 / 16";
    EXPECT_NEAR(s.At(120).Deflection, 0, 1e-5);
}

TEST(BeamReactions, OfALeftCantileverWithEndLoad)
{
    BeamRecord beam = Cantilever(kFixedLeft, 100, kInch);
    Add(beam, kPointDown, 100, 0, 30, kLb);
    const Solved s = Solve(beam);
    EXPECT_TRUE(Near(s.Reactions.ReactionA[kUnfactored], 30));
    EXPECT_TRUE(Near(s.Reactions.MomentA[kUnfactored], 3000)) << "P L";
    EXPECT_EQ(s.Reactions.SlopeConstant[kUnfactored], 0);
    EXPECT_EQ(s.Reactions.DeflectionConstant[kUnfactored], 0);
    EXPECT_TRUE(Near(s.At(0).Moment, -3000));
    EXPECT_TRUE(Near(s.At(100).Deflection, -30.0 * 1e6 / 3)) << "P L^3 / 3";
}

TEST(BeamReactions, OfARightCantileverWithEndLoad)
{
    BeamRecord beam = Cantilever(kFixedRight, 100, kInch);
    Add(beam, kPointDown, 0, 0, 30, kLb);
    const Solved s = Solve(beam);
    EXPECT_TRUE(Near(s.Reactions.ReactionB[kUnfactored], 30));
    EXPECT_TRUE(Near(s.Reactions.MomentB[kUnfactored], -3000));
    EXPECT_EQ(s.Reactions.ReactionA[kUnfactored], 0);
    EXPECT_NEAR(s.At(100).Slope, 0, 1e-6);
    EXPECT_NEAR(s.At(100).Deflection, 0, 1e-4);
    EXPECT_TRUE(Near(s.At(0).Deflection, -30.0 * 1e6 / 3));
    EXPECT_EQ(s.At(0).Shear, -30) << "the load itself counts at x = 0";
}

TEST(BeamReactions, OverhangsDeflect)
{
    BeamRecord beam = Beam(kTwoSupports, 100, 20, 80, kInch);
    Add(beam, kUniformDown, 0, 100, 12, kLb); // 1 lb/in
    const Solved s = Solve(beam);
    EXPECT_NE(s.Reactions.SlopeConstant[kUnfactored], 0);
    for (const double end : {0.0, 100.0}) EXPECT_GT(std::abs(s.At(end).Deflection), 1);
    for (const double support : {20.0, 80.0}) EXPECT_NEAR(s.At(support).Deflection, 0, 1e-5);
    EXPECT_TRUE(Near(s.At(0).Deflection, s.At(100).Deflection, 1e-9)) << "symmetry";
    EXPECT_TRUE(Near(s.At(20).Moment, -200)) << "w a^2 / 2";
}

TEST(BeamReactions, ASupportIsSeenFromTheRight)
{
    BeamRecord beam = Beam(kTwoSupports, 100, 20, 80, kInch);
    Add(beam, kPointDown, 0, 0, 60, kLb);
    const Solved s = Solve(beam);
    EXPECT_TRUE(Near(s.Reactions.ReactionA[kUnfactored], 80));
    EXPECT_TRUE(Near(s.At(20).Shear, 20));
    EXPECT_TRUE(Near(s.At(20 - kLeftOfJump).Shear, -60));
}

TEST(BeamReactions, UniformLoadBackwardsCountsNegative)
{
    BeamRecord forward = Simple(100, kInch);
    BeamRecord backward = forward;
    Add(forward, kUniformUp, 20, 60, 12, kLb);
    Add(backward, kUniformDown, 60, 20, 12, kLb);
    EXPECT_TRUE(Near(SumLoads(backward, kUnfactored).Force, -40));
    const Solved a = Solve(forward);
    const Solved b = Solve(backward);
    EXPECT_TRUE(Near(b.Reactions.ReactionA[kUnfactored], a.Reactions.ReactionA[kUnfactored]));
}

TEST(BeamReactions, ASpanOfNothingLeavesTheCaseAsItWas)
{
    BeamRecord beam = Beam(kTwoSupports, 100, 40, 40, kInch);
    Add(beam, kPointDown, 10, 0, 60, kLb);
    BeamReactions reactions;
    reactions.ReactionA[kUnfactored] = 7;
    reactions.MomentA[kUnfactored] = 8;
    CalculateReactions(beam, reactions);
    EXPECT_EQ(reactions.ReactionA[kUnfactored], 7);
    EXPECT_EQ(reactions.MomentA[kUnfactored], 0);
}

TEST(BeamReactions, CasesFollowTheFactors)
{
    BeamRecord beam = Simple(20, kFoot);
    UseLoadFactors(beam, 1);
    Add(beam, kUniformDown, 0, 20, 2, kKip, 3);
    BeamReactions r;
    r.ReactionA[kUnfactored] = 99;
    CalculateReactions(beam, r);
    EXPECT_EQ(r.ReactionA[kUnfactored], 99) << "case 1 is not computed with factors";
    EXPECT_TRUE(Near(r.ReactionA[kService], 50000));
    EXPECT_TRUE(Near(r.ReactionA[kDead], 20000));
    EXPECT_TRUE(Near(r.ReactionA[kLive], 30000));
    EXPECT_TRUE(Near(r.ReactionA[kFactored], 72000));
    EXPECT_EQ(ShearMomentCase(beam), kFactored);
    EXPECT_EQ(SlopeDeflectionCase(beam), kService);
}

TEST(BeamReactions, ReversedShearTurnsNothingElse)
{
    BeamRecord beam = RandomBeam(5, 6);
    const Solved plain = Solve(beam);
    beam.ReverseShearSign = true;
    const Solved reversed = Solve(beam);
    for (int k = 1; k <= kCurvePoints; ++k) {
        EXPECT_EQ(reversed.Curves.CurveShear[k], -plain.Curves.CurveShear[k]);
        EXPECT_EQ(reversed.Curves.CurveMoment[k], plain.Curves.CurveMoment[k]);
        EXPECT_EQ(reversed.Curves.CurveSlope[k], plain.Curves.CurveSlope[k]);
        EXPECT_EQ(reversed.Curves.CurveDeflection[k], plain.Curves.CurveDeflection[k]);
    }
    for (int i = 1; i <= plain.Curves.ShearLabelCount; ++i)
        EXPECT_EQ(reversed.Curves.ShearLabelValue[i], -plain.Curves.ShearLabelValue[i]);
    EXPECT_EQ(reversed.Curves.ShearLabelCount, plain.Curves.ShearLabelCount);
}

/// Sum of forces and of moments about x = 0, over the size of all that acts.
double Residual(const Solved& s, int c)
{
    const BeamReactions& r = s.Reactions;
    const LoadSums sums = SumLoads(s.Beam, c);
    double size = 0;
    for (int row = 1; row <= s.Beam.LoadCount; ++row) {
        const auto& x = s.Beam.LoadX[row];
        const double q = std::abs(s.Beam.LoadMagnitude[row][c]);
        const double arm = s.Beam.BeamLength;
        size += s.Beam.LoadClass[row] == kUniformLoad  ? q * (x[2] - x[1])
                : s.Beam.LoadClass[row] == kMomentLoad ? q / arm
                                                       : q;
    }
    const double force = r.ReactionA[c] + r.ReactionB[c] - sums.Force;
    const double moment = r.ReactionA[c] * s.Beam.SupportA + r.ReactionB[c] * s.Beam.SupportB +
                          r.MomentA[c] + r.MomentB[c] - sums.Moment;
    return std::max(std::abs(force), std::abs(moment) / s.Beam.BeamLength) / size;
}

class FortyLoads : public testing::TestWithParam<unsigned> {};

TEST_P(FortyLoads, AreInEquilibrium)
{
    const Solved s = Solve(RandomBeam(GetParam(), 40));
    ASSERT_EQ(s.Beam.LoadCount, 40);
    EXPECT_LT(Residual(s, kUnfactored), 1e-9);
    const BeamValues end = s.At(s.Beam.BeamLength);
    const double most = s.Curves.ShearMomentExtremes[2][1];
    EXPECT_NEAR(end.Shear, 0, 1e-9 * most) << "nothing is left at the right end";
    EXPECT_NEAR(end.Moment, 0, 1e-9 * s.Curves.ShearMomentExtremes[2][4]);
}

TEST_P(FortyLoads, AddUp)
{
    const BeamRecord both = RandomBeam(GetParam(), 12);
    BeamRecord first = both;
    BeamRecord second = both;
    first.LoadCount = 5;
    for (int i = 0; i < 5; ++i) DeleteLoad(second, 1, both.LoadCount);
    second.LoadCount = 7;
    const Solved sum = Solve(both);
    const Solved a = Solve(first);
    const Solved b = Solve(second);
    const double size = sum.Curves.SlopeDeflectionExtremes[2][4];
    for (int k = 0; k <= 10; ++k) {
        const double x = both.BeamLength * k / 10;
        EXPECT_NEAR(sum.At(x).Moment, a.At(x).Moment + b.At(x).Moment,
                    1e-9 * sum.Curves.ShearMomentExtremes[2][4]);
        EXPECT_NEAR(sum.At(x).Deflection, a.At(x).Deflection + b.At(x).Deflection, 1e-9 * size);
    }
}

/// The beam seen from behind: x from the other end, moments and shear turned.
TEST_P(FortyLoads, AreTheSameFromBehind)
{
    const BeamRecord beam = RandomBeam(GetParam(), 8);
    BeamRecord mirror = beam;
    constexpr int kMirrored[] = {0, 1, 3, 2};
    mirror.SupportType = kMirrored[beam.SupportType];
    mirror.SupportA = beam.BeamLength - beam.SupportB;
    mirror.SupportB = beam.BeamLength - beam.SupportA;
    for (int row = 1; row <= beam.LoadCount; ++row) {
        const bool uniform = beam.LoadClass[row] == kUniformLoad;
        mirror.LoadX[row][1] = beam.BeamLength - beam.LoadX[row][uniform ? 2 : 1];
        mirror.LoadX[row][2] = beam.BeamLength - beam.LoadX[row][1];
        if (beam.LoadClass[row] == kMomentLoad) mirror.LoadMagnitude[row][kUnfactored] *= -1;
    }
    const Solved a = Solve(beam);
    const Solved b = Solve(mirror);
    EXPECT_TRUE(Near(a.Reactions.ReactionA[kUnfactored], b.Reactions.ReactionB[kUnfactored], 1e-9));
    EXPECT_TRUE(Near(a.Reactions.MomentA[kUnfactored], -b.Reactions.MomentB[kUnfactored], 1e-9));
    for (int k = 0; k < 10; ++k) {
        const double x = beam.BeamLength * (k + 0.37) / 10;
        EXPECT_NEAR(a.At(x).Shear, -b.At(beam.BeamLength - x).Shear,
                    1e-9 * a.Curves.ShearMomentExtremes[2][1]);
        EXPECT_NEAR(a.At(x).Deflection, b.At(beam.BeamLength - x).Deflection,
                    1e-8 * a.Curves.SlopeDeflectionExtremes[2][4]);
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, FortyLoads, testing::Range(1U, 41U));

TEST(BeamReactions, DoNotDependOnTheUnitsOfEntry)
{
    BeamRecord feet = Simple(10, kFoot);
    Add(feet, kPointDown, 3, 0, 2, kKip);
    Add(feet, kUniformDown, 5, 10, 600, kLb);
    Add(feet, kMomentCw, 7, 0, 1, kKip);
    BeamRecord inches = Simple(120, kInch);
    Add(inches, kPointDown, 36, 0, 2000, kLb);
    Add(inches, kUniformDown, 60, 120, 0.6, kKip);
    Add(inches, kMomentCw, 84, 0, 1000, kLb);
    const Solved a = Solve(feet);
    const Solved b = Solve(inches);
    for (double x = 0; x <= 120; x += 5) {
        EXPECT_NEAR(a.At(x).Shear, b.At(x).Shear, 1e-9);
        EXPECT_NEAR(a.At(x).Deflection, b.At(x).Deflection, 1e-3);
    }
}

} // namespace
