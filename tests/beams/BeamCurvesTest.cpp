#include "BeamBuilders.h"

#include <algorithm>

using namespace forcelab::beams;
using namespace forcelab::beams::test;
using testing::ElementsAre;

namespace {

std::vector<double> Values(const PointList& list)
{
    return {list.At.begin() + 1, list.At.begin() + 1 + list.Count};
}
std::vector<double> Values(const CurveList& list, int count)
{
    return {list.begin() + 1, list.begin() + 1 + count};
}
bool Has(const CurveList& list, int count, double x)
{
    const auto values = Values(list, count);
    return std::any_of(values.begin(), values.end(),
                       [x](double v) { return std::abs(v - x) < 1e-9; });
}

TEST(DropDuplicates, KeepsWhatIsFarEnoughAboveItsPredecessor)
{
    PointList list;
    for (const double x : {0.0, 0.000005, 1.0, 1.000006, 2.0, 2.0}) list.Add(x);
    EXPECT_THAT(Values(DropDuplicates(list)), ElementsAre(0, 1, 1.000006, 2));
    EXPECT_EQ(DropDuplicates({}).Count, 0);
}

TEST(BuildKeyPoints, AreSortedAndDistinct)
{
    BeamRecord beam = Beam(kTwoSupports, 100, 20, 80, kInch);
    Add(beam, kUniformDown, 30, 100, 12, kLb);
    Add(beam, kPointDown, 20, 0, 1, kLb);
    Add(beam, kMomentCcw, 10, 0, 1, kLb);
    EXPECT_THAT(Values(BuildKeyPoints(beam)), ElementsAre(0, 10, 20, 30, 80, 100));
}

TEST(BuildKeyPoints, LeaveOutWhatIsNotOnTheBeam)
{
    BeamRecord beam = Simple(100, kInch);
    Add(beam, kPointDown, 120, 0, 1, kLb);
    EXPECT_THAT(Values(BuildKeyPoints(beam)), ElementsAre(0, 100));
}

TEST(BeamCurves, WithoutLoadsAreZeroAndEvenlySpaced)
{
    const Solved s = Solve(Simple(100, kInch));
    const BeamCurves& c = s.Curves;
    for (int k = 1; k <= kCurvePoints; ++k) {
        EXPECT_EQ(c.CurveShear[k], 0);
        EXPECT_EQ(c.CurveDeflection[k], 0);
    }
    EXPECT_EQ(c.CurveX[1], 0);
    EXPECT_EQ(c.CurveX[kCurvePoints], 100);
    // 0, 100 and the point left of the right support, then 197 even steps.
    EXPECT_EQ(c.ShearLabelCount, 3);
    EXPECT_TRUE(Near(c.CurveX[2], 100.0 / 197));
    EXPECT_TRUE(Near(c.CurveX[100] - c.CurveX[99], 100.0 / 197, 1e-9));
    for (int row = 1; row <= 6; ++row) {
        EXPECT_EQ(c.ShearMomentExtremes[2][row], 0);
        EXPECT_EQ(c.SlopeDeflectionExtremes[2][row], 0);
    }
}

TEST(BeamCurves, HaveBothSidesOfEveryJump)
{
    BeamRecord beam = Beam(kTwoSupports, 100, 20, 80, kInch);
    Add(beam, kPointDown, 50, 0, 60, kLb);
    Add(beam, kMomentCw, 60, 0, 10, kLb);
    const BeamCurves c = Solve(beam).Curves;
    for (const double x : {20.0, 50.0, 60.0, 80.0}) {
        EXPECT_TRUE(Has(c.ShearLabelX, c.ShearLabelCount, x)) << x;
        EXPECT_TRUE(Has(c.ShearLabelX, c.ShearLabelCount, x - kLeftOfJump)) << x;
        EXPECT_TRUE(Has(c.CurveX, kCurvePoints, x - kLeftOfJump)) << x;
        EXPECT_EQ(Has(c.MomentLabelX, c.MomentLabelCount, x - kLeftOfJump), x == 60) << x;
    }
}

TEST(BeamCurves, OfARightCantileverLabelTheMomentBeforeTheWall)
{
    BeamRecord beam = Cantilever(kFixedRight, 100, kInch);
    Add(beam, kPointDown, 0, 0, 60, kLb);
    const BeamCurves c = Solve(beam).Curves;
    ASSERT_TRUE(Has(c.MomentLabelX, c.MomentLabelCount, 100 - kLeftOfJump));
    EXPECT_NEAR(c.MomentLabelValue[c.MomentLabelCount - 1], -6000, 0.001);
    EXPECT_NEAR(c.MomentLabelValue[c.MomentLabelCount], 0, 1e-9) << "behind the wall";
    EXPECT_EQ(c.CurveX[1], 0) << "no sample left of a load at x = 0";
    EXPECT_EQ(c.ShearLabelX[1], 0);
}

TEST(BeamCurves, AreSortedWithinTheBeam)
{
    for (unsigned seed = 1; seed <= 40; ++seed) {
        const Solved s = Solve(RandomBeam(seed, 40));
        const auto x = Values(s.Curves.CurveX, kCurvePoints);
        EXPECT_TRUE(std::is_sorted(x.begin(), x.end()));
        EXPECT_EQ(x.front(), 0);
        EXPECT_EQ(x.back(), s.Beam.BeamLength);
        for (int i = 1; i <= s.Curves.MomentLabelCount; ++i)
            EXPECT_TRUE(Has(s.Curves.CurveX, kCurvePoints, s.Curves.MomentLabelX[i]));
    }
}

TEST(BeamCurves, HoldFortyUniformLoads)
{
    BeamRecord beam = Simple(100, kFoot);
    for (int i = 0; i < 40; ++i)
        Add(beam, i % 2 == 0 ? kUniformDown : kUniformUp, 2.4 * i, 2.4 * i + 1.7, 5 + i, kKip);
    const Solved s = Solve(beam);
    EXPECT_GE(s.Curves.ShearLabelCount, 82);
    EXPECT_LE(s.Curves.ShearLabelCount, kCurvePoints);
    EXPECT_EQ(s.Curves.CurveX[kCurvePoints], beam.BeamLength);
}

TEST(BeamCurves, FindZeroShearAndTheLargestMoment)
{
    BeamRecord beam = Simple(10, kMetre);
    Add(beam, kUniformDown, 0, 10, 5, kKn);
    Add(beam, kPointDown, 3, 0, 8, kKn);
    const Solved s = Solve(beam);
    const double metre = beam.BeamLengthFactor;
    ASSERT_EQ(s.Curves.ZeroShearCount, 1);
    EXPECT_TRUE(Near(s.Curves.ZeroShearX[1] / metre, 4.52, 1e-9));
    const auto& extremes = s.Curves.ShearMomentExtremes;
    EXPECT_TRUE(Near(extremes[1][kSecondLargest] / metre, 4.52, 1e-9));
    EXPECT_TRUE(
        Near(extremes[2][kSecondLargest] / MagnitudeFactor(kMomentLoad, kKn), 75.076, 1e-9));
}

TEST(BeamCurves, OfEqualValuesTheFirstStays)
{
    BeamRecord beam = Simple(120, kInch);
    Add(beam, kPointDown, 60, 0, 1000, kLb);
    const auto& e = Solve(beam).Curves.ShearMomentExtremes;
    EXPECT_EQ(e[1][kFirstSize], 0) << "500 to the left, -500 to the right";
    EXPECT_EQ(e[2][kFirstSize], 500);
    EXPECT_EQ(e[2][kFirstSmallest], -500);
    EXPECT_EQ(e[1][kFirstSmallest], 60);
    EXPECT_EQ(e[2][kSecondSmallest], 0) << "a smallest value is never above 0";
}

TEST(BeamCurves, DeflectMostWhereTheSlopeIsZero)
{
    BeamRecord beam = Simple(120, kInch);
    Add(beam, kPointDown, 40, 0, 900, kLb);
    const Solved s = Solve(beam);
    ASSERT_EQ(s.Curves.ZeroSlopeCount, 1);
    // From the far support: sqrt((L^2 - b^2) / 3) with the load at b = 40 from the near one.
    const double expected = 120 - std::sqrt((120.0 * 120 - 40 * 40) / 3);
    EXPECT_TRUE(Near(s.Curves.ZeroSlopeX[1], expected, 1e-7));
    EXPECT_TRUE(Near(s.Curves.SlopeDeflectionExtremes[1][kSecondSmallest], s.Curves.ZeroSlopeX[1]));
    EXPECT_TRUE(
        Has(s.Curves.DeflectionLabelX, s.Curves.DeflectionLabelCount, s.Curves.ZeroSlopeX[1]));
}

/// The moment changes its sign in a jump at midspan, which is no zero point of a curve.
TEST(BeamCurves, AMomentJumpIsNotSearched)
{
    BeamRecord beam = Simple(100, kInch);
    Add(beam, kMomentCw, 50, 0, 10, kLb);
    const Solved s = Solve(beam);
    EXPECT_EQ(s.Curves.ZeroMomentCount, 0);
    EXPECT_THAT(Values(s.Curves.SlopeLabelX, s.Curves.SlopeLabelCount), ElementsAre(0, 50, 100))
        << "the point left of the jump folds into the start";
    EXPECT_EQ(s.Curves.ZeroSlopeCount, 2) << "one in either half";
}

TEST(BeamCurves, OverhangHasAZeroMoment)
{
    BeamRecord beam = Beam(kTwoSupports, 100, 20, 100, kInch);
    Add(beam, kUniformDown, 0, 100, 12, kLb);
    const Solved s = Solve(beam);
    ASSERT_EQ(s.Curves.ZeroMomentCount, 1);
    const double x = s.Curves.ZeroMomentX[1];
    EXPECT_NEAR(s.At(x).Moment, 0, 1e-5);
    EXPECT_TRUE(Has(s.Curves.SlopeLabelX, s.Curves.SlopeLabelCount, x));
}

TEST(RecomputeBeam, TakesTheCasesOfTheView)
{
    BeamRecord beam = Simple(20, kFoot);
    UseLoadFactors(beam, 1);
    Add(beam, kUniformDown, 0, 20, 2, kKip, 3);
    BeamReactions r;
    BeamCurves c;
    RecomputeBeam(beam, false, r, c);
    EXPECT_TRUE(Near(c.ShearMomentExtremes[2][kFirstLargest], 72000));
    EXPECT_TRUE(Near(c.ShearMomentExtremes[2][kSecondLargest], 360.0 * 12000));
    RecomputeBeam(beam, true, r, c);
    const double w = 5000.0 / 12;
    EXPECT_TRUE(Near(c.SlopeDeflectionExtremes[2][kSecondSmallest],
                     -5 * w * std::pow(240.0, 4) / 384, 1e-9))
        << "5 w L^4 / 384 of the service load";
}

} // namespace
