// The worked examples of help page 4000: what the page says that the program shows. The page works
// each of them by hand, from equilibrium, areas and the tables of deflections.

#include "beams/AllowableForces.h"
#include "beams/BeamBuilders.h"
#include "beams/BeamTexts.h"
#include "beams/KeyStresses.h"
#include "beams/PointReadout.h"
#include "beams/StressCases.h"
#include "transform/MohrCalculation.h"

using namespace forcelab;
using namespace forcelab::beams;
using namespace forcelab::beams::test;
using testing::Contains;
using testing::ElementsAre;

namespace {

constexpr double kW14X90 = 29e6 * 999; // EI, lb-in^2
constexpr DiagramUnits kMetric{kMetre, kKn, kKn, 0, 0, 1};
constexpr DiagramUnits kUs{kFoot, kKip, kKip, 0, 0, kW14X90};

using Lines = std::vector<std::string>;

/// The labels of a diagram, "x: value"; those at one x in the order of the walk.
using Printing = std::string (*)(double, const DiagramUnits&);
Lines Labels(const CurveList& x, const CurveList& value, int count, Printing print,
             const DiagramUnits& units)
{
    Lines lines;
    for (int i = 1; i <= count; ++i)
        lines.push_back(LengthText(x[i], units) + ": " + print(value[i], units));
    return lines;
}
Lines ShearLabels(const Solved& s, const DiagramUnits& units)
{
    const BeamCurves& c = s.Curves;
    return Labels(c.ShearLabelX, c.ShearLabelValue, c.ShearLabelCount, ForceText, units);
}
Lines MomentLabels(const Solved& s, const DiagramUnits& units)
{
    const BeamCurves& c = s.Curves;
    return Labels(c.MomentLabelX, c.MomentLabelValue, c.MomentLabelCount, MomentText, units);
}
Lines Reactions(const Solved& s, const DiagramUnits& units)
{
    return FillReactionList(s.Beam, s.Reactions, units, ShearMomentCase(s.Beam));
}
Lines In(Lines lines)
{
    for (std::string& line : lines) line = Local(line);
    return lines;
}

BeamRecord Span()
{
    BeamRecord beam = Simple(10, kMetre);
    Add(beam, kUniformDown, 0, 10, 5, kKn);
    Add(beam, kPointDown, 3, 0, 8, kKn);
    return beam;
}

TEST(BeamHelp, AFirstBeam)
{
    const Solved s = Solve(Span());
    EXPECT_EQ(Reactions(s, kMetric), In({"A = 30.6 kN (up)", "B = 27.4 kN (up)"}));
    EXPECT_EQ(ShearLabels(s, kMetric),
              In({"0.0: 30.6", "3.0: 15.6", "3.0: 7.6", "4.52: 0.0", "10.0: -27.4", "10.0: 0.0"}));
    EXPECT_EQ(MomentLabels(s, kMetric), In({"0.0: 0.0", "3.0: 69.3", "4.52: 75.1", "10.0: 0.0"}));
    const double largest = s.Curves.ShearMomentExtremes[2][kSecondLargest];
    EXPECT_TRUE(Near(largest / MagnitudeFactor(kMomentLoad, kKn), 75.076));
}

TEST(BeamHelp, ThePoint)
{
    struct Row {
        const char *X, *Shear, *Moment;
    };
    for (const Row& row : {Row{"2", "20.60", "51.20"}, Row{"3", "7.60", "69.30"},
                           Row{"4.52", "0.00", "75.08"}, Row{"6", "-7.40", "69.60"}}) {
        PointReadout point;
        point.XText = Local(row.X);
        CalculatePoint(point, Span(), kMetric);
        EXPECT_THAT(point.Texts, ElementsAre(Local(row.Shear), Local(row.Moment))) << row.X;
    }
}

/// C1 = -(30.6 x 10^3 / 6 - 5 x 10^4 / 24 - 8 x 7^3 / 6) / 10 = -255.933 kN-m^2.
TEST(BeamHelp, DiscontinuityFunctions)
{
    const Solved s = Solve(Span());
    const double unit = MagnitudeFactor(kMomentLoad, kKn) / 0.0254; // lb-in^2 to the kN-m^2
    EXPECT_TRUE(Near(s.Reactions.SlopeConstant[kUnfactored] / unit, -2559.0 / 10 - 1.0 / 30));
    EXPECT_NEAR(s.Reactions.DeflectionConstant[kUnfactored], 0, 1e-3);
}

TEST(BeamHelp, DeadAndLiveLoad)
{
    BeamRecord beam = Simple(20, kFoot);
    UseLoadFactors(beam, 1);
    Add(beam, kUniformDown, 0, 20, 2, kKip, 3);
    const Solved s = Solve(beam);
    EXPECT_EQ(Reactions(s, kUs), In({"A = 72.0 kips (up)", "B = 72.0 kips (up)"}));
    EXPECT_THAT(ShearLabels(s, kUs), Contains(Local("20.0: -72.0")));
    EXPECT_THAT(MomentLabels(s, kUs), Contains(Local("10.0: 360.0")));
    EXPECT_EQ(DeflectionText(s.At(120, kService).Deflection, kUs), Local("-0.62131"));
}

TEST(BeamHelp, SlopeAndDeflection)
{
    BeamRecord beam = Simple(10, kFoot);
    Add(beam, kPointDown, 5, 0, 1000, kLb);
    const Solved s = Solve(beam);
    const DiagramUnits units{kFoot, kLb, kLb, 0, 0, kW14X90};
    EXPECT_EQ(Reactions(s, units), In({"A = 500.0 lbs (up)", "B = 500.0 lbs (up)"}));
    EXPECT_THAT(MomentLabels(s, units), Contains(Local("5.0: 2,500.0")));
    EXPECT_EQ(DeflectionText(s.At(60).Deflection, units), Local("-0.00124"));
    EXPECT_EQ(SlopeText(s.At(0).Slope, units), Local("-31.07E-06"));
}

TEST(BeamHelp, AnOverhang)
{
    BeamRecord beam = Beam(kTwoSupports, 11, 0, 8, kMetre);
    Add(beam, kUniformDown, 2, 6, 2, kKn);
    Add(beam, kMomentCcw, 11, 0, 5, kKn);
    const Solved s = Solve(beam);
    EXPECT_EQ(Reactions(s, kMetric), In({"A = 4.6 kN (up)", "B = 3.4 kN (up)"}));
    EXPECT_TRUE(Near(s.Curves.ZeroShearX[1] * 0.0254, 4.3125));
    EXPECT_EQ(MomentLabels(s, kMetric), In({"0.0: 0.0", "2.0: 9.3", "4.31: 14.6", "6.0: 11.8",
                                            "8.0: 5.0", "11.0: 5.0", "11.0: 0.0"}));
    const double largest = s.Curves.ShearMomentExtremes[2][kSecondLargest];
    EXPECT_NEAR(largest / MagnitudeFactor(kMomentLoad, kKn), 14.598, 0.0005);
}

TEST(BeamHelp, CantileverFixedAtTheLeft)
{
    BeamRecord beam = Cantilever(kFixedLeft, 9, kMetre);
    Add(beam, kUniformDown, 0, 5, 8, kKn);
    Add(beam, kMomentCcw, 5, 0, 50, kKn);
    Add(beam, kPointDown, 9, 0, 12, kKn);
    const Solved s = Solve(beam);
    EXPECT_EQ(Reactions(s, kMetric), In({"A = 52.0 kN (up)", "MA = 158.0 kN-m (ccw)"}));
    EXPECT_THAT(ShearLabels(s, kMetric), Contains(Local("5.0: 12.0")));
    EXPECT_EQ(MomentLabels(s, kMetric), In({"0.0: -158.0", "5.0: 2.0", "5.0: -48.0", "9.0: 0.0"}));
}

TEST(BeamHelp, CantileverFixedAtTheRight)
{
    BeamRecord beam = Cantilever(kFixedRight, 8, kFoot);
    Add(beam, kPointDown, 0, 0, 2, kKip);
    Add(beam, kUniformDown, 4, 8, 0.5, kKip);
    const Solved s = Solve(beam);
    EXPECT_EQ(Reactions(s, kUs), In({"B = 4.0 kips (up)", "MB = 20.0 ft-kips (cw)"}));
    EXPECT_EQ(ShearLabels(s, kUs), In({"0.0: -2.0", "4.0: -2.0", "8.0: -4.0", "8.0: 0.0"}));
    EXPECT_EQ(MomentLabels(s, kUs), In({"0.0: 0.0", "4.0: -8.0", "8.0: -20.0", "8.0: 0.0"}));
    const double kipFoot2 = 1000 * 144;
    EXPECT_NEAR(s.Reactions.SlopeConstant[kUnfactored] / kipFoot2, 69.33, 0.005);
    EXPECT_NEAR(s.Reactions.DeflectionConstant[kUnfactored] / kipFoot2 / 12, -378.67, 0.005);
    EXPECT_EQ(DeflectionText(s.At(0).Deflection, kUs), Local("-0.02259"));
}

/// The T of the page: 10 kips and 8.3333 ft-kips.
StressDetails TeeDetails(const Worked& tee, int stressUnit = 1)
{
    DetailsEntry entry = TeeEntry();
    entry.VM[2] = Local("8.3333");
    entry.Coord[1] = Local("2.0");
    entry.StressUnitIndex = stressUnit;
    return ReadDetails(tee.Section, entry);
}

std::string Key(const std::string& place, const std::string& y, const std::string& stress)
{
    return place + ", y = " + Local(y) + " in:  " + Local(stress);
}

TEST(BeamHelp, StressesAtASection)
{
    const Worked tee = Tee();
    StressDetails details = TeeDetails(tee);
    details.KeyStressView = kNormalView;
    const Lines normal = KeyStressLines(tee.Section, details);
    EXPECT_THAT(normal, Contains(Key("Top", "3.147", "-1.881 ksi (compression)")));
    EXPECT_THAT(normal, Contains(Key("Bottom", "-6.853", "4.096 ksi (tension)")));
    details.KeyStressView = kShearView;
    const Lines shear = KeyStressLines(tee.Section, details);
    EXPECT_THAT(shear, Contains(Key("Neutral axis", "0.000", "1.404 ksi")));
    EXPECT_THAT(shear, Contains(Key("Border, just below", "2.147", "1.266 ksi")));
    EXPECT_THAT(shear, Contains(Key("Border, just above", "2.147", "0.1582 ksi")));
}

TEST(BeamHelp, AllowableForces)
{
    const Worked tee = Tee();
    LimitsEntry entry;
    entry.Box.fill(Local("0.0"));
    entry.Box[kTensionLimit] = "24";
    entry.Box[kShearLimit] = Local("14.4");
    entry.StressUnit = 1;
    StressLimits limits;
    SetLimits(limits, entry, false);
    const StressDetails details = TeeDetails(tee);
    EXPECT_EQ(
        AllowableLines(AllowableForcesOf(tee.Section, limits, details), details),
        In({"Allowable Axial Tension = 408.000 kips", "Allowable Axial Compression = 408.000 kips",
            "Allowable Shear Force = 102.596 kips", "Allowable Positive Moment = 48.825 ft-kips",
            "Allowable Negative Moment = -48.825 ft-kips"}));
}

TEST(BeamHelp, OnToTheCircle)
{
    const Worked tee = Tee();
    const auto over = HandOverToMohr(tee.Section, TeeDetails(tee, 0));
    EXPECT_NEAR(over.Value[0], -1195.5, 0.05);
    EXPECT_EQ(over.Value[1], 0);
    EXPECT_NEAR(over.Value[2], 1284.0, 0.05);
    transform::StressState state;
    state.SigmaX = over.Value[0];
    state.TauXY = over.Value[2];
    EXPECT_FALSE(transform::CalculateCircle(state, {}));
    EXPECT_NEAR(state.CircleCentre, -597.7, 0.05);
    EXPECT_NEAR(state.CircleRadius, 1416.3, 0.05);
    EXPECT_NEAR(state.PrincipalOne, 818.6, 0.05);
    EXPECT_NEAR(state.PrincipalTwo, -2014.1, 0.05);
}

} // namespace
