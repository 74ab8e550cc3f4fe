#include "beams/PointReadout.h"

#include "BeamBuilders.h"
#include "core/ArithmeticFault.h"

#include <gmock/gmock.h>

namespace forcelab::beams {

namespace {

using namespace forcelab::beams::test;
using testing::ElementsAre;

/// 10 m, 5 kN/m throughout and 8 kN at 3 m: reactions 30.6 and 27.4 by hand.
BeamRecord LoadedSpan()
{
    BeamRecord beam = Simple(10, kMetre);
    Add(beam, kUniformDown, 0, 10, 5, kKn);
    Add(beam, kPointDown, 3, 3, 8, kKn);
    return beam;
}

DiagramUnits Metric()
{
    DiagramUnits units;
    units.Length = kMetre;
    units.Force = units.Moment = kKn;
    return units;
}

PointReadout PointAt(const std::string& x, const BeamRecord& beam, const DiagramUnits& units,
                     bool slopeView = false)
{
    PointReadout point;
    point.XText = Local(x);
    point.SlopeView = slopeView;
    CalculatePoint(point, beam, units);
    return point;
}

TEST(PointReadout, GivesShearAndMomentInTheUnitsOfTheDiagrams)
{
    // V = 30.6 - 5 x 2 = 20.6; M = 30.6 x 2 - 5 x 2 = 51.2
    const PointReadout point = PointAt("2", LoadedSpan(), Metric());
    EXPECT_THAT(point.Texts, ElementsAre(Local("20.60"), Local("51.20")));
    EXPECT_THAT(point.Finer, ElementsAre("", ""));
    EXPECT_TRUE(point.X.has_value());
}

TEST(PointReadout, ReadsWhatATextBoxReads)
{
    EXPECT_THAT(PointAt("2e0", LoadedSpan(), Metric()).Texts,
                ElementsAre(Local("20.60"), Local("51.20")));
}

TEST(PointReadout, HoldsThePointInsideTheBeam)
{
    const PointReadout beyond = PointAt("12", LoadedSpan(), Metric());
    EXPECT_EQ(beyond.XText, Local("10.00"));
    EXPECT_THAT(beyond.Texts, ElementsAre(Local("0.00"), Local("0.00")));
    EXPECT_EQ(PointAt("-1", LoadedSpan(), Metric()).XText, Local("0.00"));
}

TEST(PointReadout, StaysWhereItStandsThoughItsTextIsRounded)
{
    const BeamRecord beam = LoadedSpan();
    PointReadout point = PointAt("10", beam, Metric());
    DiagramUnits feet = Metric();
    feet.Length = kFoot;
    point.XText = PointText(*point.X, feet);
    EXPECT_EQ(point.XText, Local("32.808")); // the end is at 32.8084 ft
    RenewPoint(point, beam, feet);
    EXPECT_EQ(*point.X, beam.BeamLength);
    EXPECT_EQ(point.XText, Local("32.808"));
}

TEST(PointReadout, MovesToTheEndOfABeamThatBecameShorter)
{
    PointReadout point = PointAt("9", LoadedSpan(), Metric());
    BeamRecord shorter = Simple(4, kMetre);
    Add(shorter, kPointDown, 2, 2, 8, kKn);
    RenewPoint(point, shorter, Metric());
    EXPECT_EQ(*point.X, shorter.BeamLength);
    EXPECT_EQ(point.XText, Local("4.00"));
}

TEST(PointReadout, WithoutAPlaceHasNothingToRenew)
{
    PointReadout point;
    RenewPoint(point, LoadedSpan(), Metric());
    EXPECT_EQ(point.Texts[0], kNotCalculated);
}

TEST(PointReadout, TellsTheDigitsOfASlopeThatTheMaskHides)
{
    // 10 ft, 1000 lb at midspan on EI = 29e6 x 999: P L^3 / 48 E I = 0.00124 in downward.
    BeamRecord beam = Simple(10, kFoot);
    Add(beam, kPointDown, 5, 5, 1000, kLb);
    DiagramUnits units;
    units.Length = kFoot;
    units.BeamEI = 29e6 * 999;
    const PointReadout point = PointAt("5", beam, units, true);
    EXPECT_EQ(point.Texts[1], Local("0.00"));
    EXPECT_EQ(point.Finer[1], Local("-0.00124"));
    EXPECT_EQ(point.Finer[0], "") << "the slope at midspan is 0";
    EXPECT_EQ(PointAt("0", beam, units, true).Finer[1], "") << "no deflection at a support";
}

TEST(PointReadout, WithoutABeamHasNoValues)
{
    const PointReadout point = PointAt("2", {}, Metric());
    EXPECT_FALSE(point.X);
    EXPECT_THAT(point.Texts, ElementsAre("Not calculated", "Not calculated"));
}

TEST(PointReadout, IsClearedButForItsPlace)
{
    PointReadout point = PointAt("2", LoadedSpan(), Metric());
    ClearPoint(point);
    EXPECT_EQ(point.XText, "2");
    EXPECT_FALSE(point.X);
    EXPECT_THAT(point.Texts, ElementsAre("Not calculated", "Not calculated"));
}

TEST(PointReadout, ATooLargeXIsAFaultAndLeavesThePoint)
{
    PointReadout point = PointAt("2", LoadedSpan(), Metric());
    point.XText = "1" + std::string(400, '0');
    EXPECT_THROW(CalculatePoint(point, LoadedSpan(), Metric()), ArithmeticFault);
    EXPECT_TRUE(point.X.has_value());
    EXPECT_EQ(point.Texts[0], Local("20.60"));
}

TEST(PointReadout, IsToldInOneLineWithTheDigitsThatTell)
{
    const BeamRecord beam = LoadedSpan();
    EXPECT_EQ(PointSentence(PointAt("2", beam, Metric()), Metric()),
              "At X = 2 m: shear force " + Local("20.60") + " kN, bending moment " +
                  Local("51.20") + " kN-m");
    DiagramUnits stiff = Metric();
    stiff.BeamEI = 29e6 * 999;
    const PointReadout slope = PointAt("2", beam, stiff, true);
    ASSERT_NE(slope.Finer[0], "");
    EXPECT_EQ(PointSentence(slope, stiff), "At X = 2 m: slope " + slope.Finer[0] +
                                               " radians, deflection " + slope.Finer[1] + " in");
}

TEST(PointReadout, HasTheCaptionsOfItsView)
{
    const PointCaptions shear = CaptionsOfPoint(false, Metric());
    EXPECT_EQ(shear.Frame, "Shear/Moment Along the Beam");
    EXPECT_EQ(shear.Button, "&Shear/Moment");
    EXPECT_THAT(shear.Names, ElementsAre("Shear Force", "Bending Moment"));
    EXPECT_THAT(shear.Units, ElementsAre("(kN)", "(kN-m)"));
    const PointCaptions slope = CaptionsOfPoint(true, Metric());
    EXPECT_EQ(slope.Frame, "Slope/Deflection Along the Beam");
    EXPECT_EQ(slope.Button, "&Slope/Deflect");
    EXPECT_THAT(slope.Names, ElementsAre("Slope", "Deflection"));
    EXPECT_THAT(slope.Units, ElementsAre("(radians)", "(in)"));
}

TEST(PointReadout, HandsOverTheUsualSignOfAShearPlottedTheOtherWay)
{
    BeamRecord beam = LoadedSpan();
    beam.ReverseShearSign = true;
    const PointReadout point = PointAt("2", beam, Metric());
    EXPECT_EQ(point.Texts[0], Local("-20.60"));
    EXPECT_THAT(*ForcesOfPoint(point, beam, Metric()), ElementsAre(Local("20.60"), Local("51.20")));
    EXPECT_FALSE(ForcesOfPoint(PointAt("2", beam, Metric(), true), beam, Metric()));
}

struct BarRow {
    const char* Name;
    double Length;
    double Step;
    int End;
};
class PointBar : public testing::TestWithParam<BarRow> {};

TEST_P(PointBar, HasRoundSteps)
{
    const BarRow& row = GetParam();
    const BeamRecord beam = Simple(row.Length, kMetre);
    EXPECT_TRUE(Near(PointStepOf(beam, Metric()), row.Step, 1e-12));
    EXPECT_EQ(PointBarEnd(beam, Metric()), row.End);
}

INSTANTIATE_TEST_SUITE_P(PointReadout, PointBar,
                         testing::Values(BarRow{"ten", 10, 1000, 10000},
                                         BarRow{"odd", 12.3456, 100, 1235},
                                         BarRow{"short", 0.3, 1000, 300},
                                         BarRow{"long", 2e6, 0.001, 2000}, BarRow{"none", 0, 1, 0}),
                         [](const auto& row) { return std::string(row.param.Name); });

TEST(PointReadout, BarAndBoxAgree)
{
    const BeamRecord beam = LoadedSpan();
    EXPECT_EQ(PointBarValue(0.3 / 0.0254, beam, Metric()), 300);
    EXPECT_EQ(PointBarText(300, beam, Metric()), Local("0.30"));
    EXPECT_EQ(PointBarText(4525, beam, Metric()), Local("4.525"));
    EXPECT_EQ(PointClickText(beam.BeamLength / 3, Metric()), Local("3.33"));
    EXPECT_EQ(PointBarValue(1e9, beam, Metric()), 10000);
}

} // namespace

} // namespace forcelab::beams
