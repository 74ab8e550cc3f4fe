#include "transform/MohrCalculation.h"

#include "MohrStates.h"
#include "core/ArithmeticFault.h"
#include "core/Modulus.h"
#include "transform/MohrModes.h"

using namespace forcelab;
using namespace forcelab::transform;
using namespace forcelab::transform::test;

namespace {

constexpr double kExact = 1e-12;

TEST(ComputeMohr, RewritesTheBoxesWithoutSign)
{
    MohrEntry entry = Entry(MohrMode::PlaneStress, {"-1234.56789", "10", "-40"}, 1);
    const Solved solved = Solve(entry);
    EXPECT_EQ(solved.Entry.Text[0], Local("1,234.5679"));
    EXPECT_EQ(solved.Entry.Text[1], Local("10.0"));
    EXPECT_EQ(solved.Entry.Text[2], Local("40.0"));
    EXPECT_TRUE(Near(solved.State.SigmaX, -1234.56789));
    EXPECT_TRUE(Near(solved.State.TauXY, -40));
}

TEST(ComputeMohr, TheOptionAndNotTheTypedSignDecides)
{
    MohrEntry entry = Entry(MohrMode::PlaneStress, {"-50", "10", "40"}, 0);
    entry.Negative[0] = false;
    EXPECT_TRUE(Near(Solve(entry).State.SigmaX, 50));
}

TEST(ComputeMohr, AProductOfInertiaKeepsTheSignTyped)
{
    const Solved solved = Solve(Entry(MohrMode::MomentOfInertia, {"-60", "30", "-25.85377"}, 6));
    EXPECT_TRUE(Near(solved.State.SigmaX, 60));
    EXPECT_TRUE(Near(solved.State.TauXY, -25.85377));
    EXPECT_EQ(solved.Entry.Text[2], Local("-25.85377"));
}

TEST(ComputeMohr, HalvesTheShearOfPlaneStrain)
{
    const Solved solved = Solve(Entry(MohrMode::PlaneStrain, {"340", "110", "-180"}, 5));
    EXPECT_TRUE(Near(solved.State.TauXY, -90));
}

TEST(ComputeMohr, KeepsTheRotation)
{
    StressState state;
    state.RotationAngle = 0.5;
    MohrEntry entry = Entry(MohrMode::PlaneStress, {"50", "10", "40"}, 0);
    ASSERT_FALSE(ComputeMohr(state, entry));
    EXPECT_TRUE(Near(state.RotationAngle, 0.5));
}

struct EqualRow {
    const char* Name;
    MohrMode Mode;
    std::array<std::string, 3> Typed;
    const char* Title;
    const char* Text;
};
class EqualValues : public testing::TestWithParam<EqualRow> {};

TEST_P(EqualValues, AreRefusedBeforeAnyCalculation)
{
    const EqualRow& row = GetParam();
    StressState state;
    state.SigmaX = 7;
    state.CircleRadius = 3;
    MohrEntry entry = Entry(row.Mode, row.Typed, LabelsOf(row.Mode).FirstUnit);
    const auto refusal = ComputeMohr(state, entry);
    ASSERT_TRUE(refusal);
    EXPECT_EQ(refusal->Icon, kExclamation);
    EXPECT_EQ(refusal->Title, row.Title);
    EXPECT_EQ(refusal->Text, row.Text);
    EXPECT_TRUE(Near(state.SigmaX, 7));
    EXPECT_TRUE(Near(state.CircleRadius, 3));
    EXPECT_FALSE(state.CircleBad);
}

constexpr const char* kStressTitle = "Stress Transformation Warning";
constexpr const char* kStrainTitle = "Strain Transformation Warning";
constexpr const char* kInertiaTitle = "Moments of Inertia Transformation Warning";
constexpr const char* kHydrostatic =
    "The stresses specified produce a hydrostatic pressure condition.";
constexpr const char* kEqualStrains =
    "The specified strains produce equal strains in all directions.";
constexpr const char* kEqualInertia = "The moments of inertia are equal in all orientations.";

INSTANTIATE_TEST_SUITE_P(
    Analyses, EqualValues,
    testing::Values(
        EqualRow{"Stress", MohrMode::PlaneStress, {"5", "5", "0"}, kStressTitle, kHydrostatic},
        EqualRow{"NoStress", MohrMode::PlaneStress, {"0", "0", "0"}, kStressTitle, kHydrostatic},
        EqualRow{"Strain", MohrMode::PlaneStrain, {"-4", "-4", "0"}, kStrainTitle, kEqualStrains},
        EqualRow{"Gages45", MohrMode::Rosette45, {"9", "9", "9"}, kStrainTitle, kEqualStrains},
        EqualRow{"Gages60", MohrMode::Rosette60, {"-9", "-9", "-9"}, kStrainTitle, kEqualStrains},
        EqualRow{
            "Inertia", MohrMode::MomentOfInertia, {"5", "-5", "0"}, kInertiaTitle, kEqualInertia}),
    [](const auto& row) { return std::string(row.param.Name); });

struct RadiusRow {
    const char* Name;
    MohrMode Mode;
    const char* Title;
    const char* Text;
};
class NoRadius : public testing::TestWithParam<RadiusRow> {};

TEST_P(NoRadius, GetsTheSecondWording)
{
    StressState state;
    state.Mode = GetParam().Mode;
    state.SigmaX = state.SigmaY = 12;
    MohrEntry entry;
    entry.Mode = state.Mode;
    const auto refusal = CalculateCircle(state, entry);
    ASSERT_TRUE(refusal);
    EXPECT_EQ(refusal->Icon, kExclamation);
    EXPECT_EQ(refusal->Title, GetParam().Title);
    EXPECT_EQ(refusal->Text, GetParam().Text);
    EXPECT_TRUE(state.CircleBad);
}

INSTANTIATE_TEST_SUITE_P(
    Analyses, NoRadius,
    testing::Values(RadiusRow{"Stress", MohrMode::PlaneStress, kStressTitle,
                              "The stresses specified produce the same stress in every direction."},
                    RadiusRow{"Strain", MohrMode::Rosette60, kStrainTitle,
                              "The specified strains produce the same strain in every direction."},
                    RadiusRow{"Inertia", MohrMode::MomentOfInertia, kInertiaTitle,
                              "The specified moments of inertia produce a singularity."}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(ComputeMohr, ARadiusLostToArithmeticIsRefusedToo)
{
    StressState state;
    MohrEntry entry = Entry(MohrMode::PlaneStress, {"5", "5", "1e-200"}, 0);
    const auto refusal = ComputeMohr(state, entry);
    ASSERT_TRUE(refusal);
    EXPECT_EQ(refusal->Text, "The stresses specified produce the same stress in every direction.");
    EXPECT_TRUE(state.CircleBad);
}

TEST(ComputeMohr, GagesThatAgreeInPartAreSound)
{
    const Solved solved = Solve(Entry(MohrMode::Rosette45, {"100", "100", "0"}, 5));
    EXPECT_TRUE(Near(solved.State.CircleCentre, 50));
    EXPECT_TRUE(Near(solved.State.CircleRadius, std::sqrt(5000.0)));
}

TEST(ComputeMohr, OverflowLeavesTheStateAlone)
{
    StressState state = PlaneStress(50, -10, 40).State;
    MohrEntry entry = Entry(MohrMode::PlaneStress, {"1e+400", "0", "0"}, 0);
    EXPECT_THROW(ComputeMohr(state, entry), ArithmeticFault);
    EXPECT_TRUE(Near(state.PrincipalOne, 70));
}

TEST(ComputeMohr, LargeValuesAreScaled)
{
    const Solved solved = Solve(Entry(MohrMode::PlaneStress, {"5000000", "1000000", "2000000"}, 0));
    EXPECT_TRUE(Near(solved.State.ValueScale, 1000));
    EXPECT_TRUE(Near(solved.State.SigmaX, 5000));
    EXPECT_EQ(MohrText(solved.State, solved.Entry, solved.State.PrincipalOne),
              Local("5,828,427.1247"));
    EXPECT_TRUE(Near(FailureInputOf(solved.State, solved.Entry).Sigma1, 5828427.12474619));
}

TEST(ComputeMohr, OneMillionItselfIsNotScaled)
{
    EXPECT_TRUE(Near(PlaneStress(1000000, 0, 10).State.ValueScale, 1));
    EXPECT_TRUE(Near(PlaneStress(1000001, 0, 10).State.ValueScale, 1000));
    EXPECT_TRUE(Near(PlaneStress(1e9, 0, 10).State.ValueScale, 1e6));
}

struct AngleRow {
    const char* Name;
    double X, Y, Tau;
    double DoubleAngle; ///< degrees
    double Principal;   ///< degrees, counterclockwise
    double MaxShear;    ///< degrees, counterclockwise
};
class Angles : public testing::TestWithParam<AngleRow> {};

TEST_P(Angles, FollowTheQuadrant)
{
    const AngleRow& row = GetParam();
    const StressState state = PlaneStress(row.X, row.Y, row.Tau).State;
    EXPECT_TRUE(Near(state.PrincipalAngle / kDegrees, row.DoubleAngle, 1e-9));
    EXPECT_TRUE(Near(PrincipalDirection(state) / kDegrees, row.Principal, 1e-9));
    EXPECT_TRUE(Near(MaxShearDirection(state) / kDegrees, row.MaxShear, 1e-9));
    EXPECT_TRUE(Near(StateAt(state, PrincipalDirection(state)).NormalX, state.PrincipalOne));
    EXPECT_TRUE(Near(StateAt(state, PrincipalDirection(state)).ShearXY, 0));
    EXPECT_TRUE(
        Near(std::abs(StateAt(state, MaxShearDirection(state)).ShearXY), state.CircleRadius));
}

INSTANTIATE_TEST_SUITE_P(
    Quadrants, Angles,
    testing::Values(
        AngleRow{"First", 50, -10, 40, 53.1301023541560, -26.5650511770780, 18.4349488229220},
        AngleRow{"Second", -10, 50, 40, 126.869897645844, -63.4349488229220, -18.4349488229220},
        AngleRow{"Third", -10, 50, -40, 233.130102354156, 63.4349488229220, 18.4349488229220},
        AngleRow{"Fourth", 50, -10, -40, 306.869897645844, 26.5650511770780, -18.4349488229220},
        AngleRow{"PureClockwise", -60, -60, 30, 90, -45, 0},
        AngleRow{"PureCounterclockwise", 0, 0, -30, 270, 45, 0},
        AngleRow{"AlreadyPrincipal", 50, 10, 0, 0, 0, 45},
        AngleRow{"Crosswise", 10, 50, 0, 180, -90, -45}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(CalculateCircle, SignsOfThePrincipalValuesChooseTheArrowColour)
{
    EXPECT_EQ(PlaneStress(50, -10, 40).State.ShearArrowColour, 0);
    EXPECT_EQ(PlaneStress(50, 30, 5).State.ShearArrowColour, 1);
    EXPECT_EQ(PlaneStress(-50, -30, 5).State.ShearArrowColour, 2);
}

TEST(CalculateCircle, InvariantsHoldInEveryAnalysis)
{
    for (const MohrMode mode : kAllModes)
        for (unsigned seed = 1; seed <= 20; ++seed) {
            const StressState s = RandomState(mode, seed).State;
            EXPECT_TRUE(Near(s.PrincipalOne + s.PrincipalTwo, s.SigmaX + s.SigmaY, 1e-9));
            const double determinant = s.SigmaX * s.SigmaY - s.TauXY * s.TauXY;
            const double size = s.SigmaX * s.SigmaX + s.SigmaY * s.SigmaY + s.TauXY * s.TauXY;
            EXPECT_LE(std::abs(s.PrincipalOne * s.PrincipalTwo - determinant), 1e-12 * size);
            const RotatedState r = StateAt(s, s.RotationAngle);
            EXPECT_LE(std::abs(r.NormalX * r.NormalY - r.ShearXY * r.ShearXY - determinant),
                      1e-11 * size);
        }
}

TEST(StateAt, AQuarterTurnSwapsTheFaces)
{
    const Solved solved = PlaneStress(50, -10, 40, 90);
    const RotatedState turned = StateAt(solved.State, solved.State.RotationAngle);
    EXPECT_TRUE(Near(turned.NormalX, -10, kExact));
    EXPECT_TRUE(Near(turned.NormalY, 50, kExact));
    EXPECT_TRUE(Near(turned.ShearXY, 40, kExact));
}

TEST(StateAt, NoTurnShowsWhatWasTyped)
{
    const Solved solved = PlaneStress(50, -10, 40);
    EXPECT_THAT(RotatedTexts(solved.State, solved.Entry),
                testing::ElementsAre(Local("50.0 MPa (T)"), Local("10.0 MPa (C)"),
                                     Local("40.0 MPa CW on X'-face")));
}

TEST(RotatedTexts, StrainShowsTheWholeShear)
{
    const Solved micro = Solve(Entry(MohrMode::PlaneStrain, {"340", "-110", "-180"}, 5));
    EXPECT_THAT(RotatedTexts(micro.State, micro.Entry),
                testing::ElementsAre(Local("340.0 micro (T)"), Local("110.0 micro (C)"),
                                     Local("180.0E-06 rad CCW from X'-axis")));
    const Solved inch = Solve(Entry(MohrMode::PlaneStrain, {"0.00034", "0.0001", "0.00025"}, 4));
    EXPECT_EQ(RotatedTexts(inch.State, inch.Entry)[2], Local("0.00025 rad CW from X'-axis"));
}

TEST(RotatedTexts, InertiaKeepsTheSignOfTheFormula)
{
    const Solved solved = Solve(Entry(MohrMode::MomentOfInertia, {"60", "30", "25"}, 6));
    EXPECT_THAT(RotatedTexts(solved.State, solved.Entry),
                testing::ElementsAre(Local("60.0 in^4"), Local("30.0 in^4"), Local("-25.0 in^4")));
}

TEST(RotatedTexts, NothingHasNoSense)
{
    const Solved solved = PlaneStress(50, 0, 0, 90);
    EXPECT_THAT(RotatedTexts(solved.State, solved.Entry),
                testing::ElementsAre(Local("0.0 MPa"), Local("50.0 MPa (T)"), Local("0.0 MPa")));
}

TEST(RotationFromText, HoldsTheAngleWithinAQuarterTurn)
{
    EXPECT_TRUE(Near(RotationFromText("-91"), -90));
    EXPECT_TRUE(Near(RotationFromText("123"), 90));
    EXPECT_TRUE(Near(RotationFromText(Local("30.5")), 30.5));
    EXPECT_TRUE(Near(RotationFromText(""), 0));
}

TEST(MaxMinMohrCircle, WidensByAShareOfTheSize)
{
    StressState state = PlaneStress(50, -10, 40).State;
    const CircleWindow window = MaxMinMohrCircle(state, 70, -30, 50, -50);
    EXPECT_TRUE(Near(window.High, 93));
    EXPECT_TRUE(Near(window.Low, -53));
    EXPECT_TRUE(Near(window.Top, 73));
    EXPECT_TRUE(Near(window.Bottom, -73));
    EXPECT_TRUE(Near(window.Limit, -93));
    EXPECT_TRUE(Near(state.CircleRadius, 50));
}

TEST(MaxMinMohrCircle, GivesAnEmptyWindowASize)
{
    StressState state;
    const CircleWindow window = MaxMinMohrCircle(state, 4, 4, 0, 0);
    EXPECT_TRUE(Near(window.High, 9));
    EXPECT_TRUE(Near(window.Low, -9));
    EXPECT_TRUE(Near(window.Top, 1));
    EXPECT_TRUE(Near(window.Bottom, -1));
    EXPECT_TRUE(Near(state.CircleRadius, 0.1));
}

TEST(WindowOf, HoldsAllThreeCirclesWhereTheyShow)
{
    Solved solved = PlaneStress(-60, -60, 30);
    EXPECT_TRUE(Near(WindowOf(solved.State, solved.Entry).High, -30 + 0.23 * 60));
    solved.Entry.ShowAbsMaxShear = true;
    const CircleWindow window = WindowOf(solved.State, solved.Entry);
    EXPECT_TRUE(Near(window.High, 0.23 * 90));
    EXPECT_TRUE(Near(window.Low, -90 - 0.23 * 90));
    EXPECT_TRUE(Near(window.Top, 45 + 0.23 * 90));
}

TEST(EntryOf, LosesNothingOfAStateHandedOver)
{
    MohrHandOver handOver{true, MohrMode::MomentOfInertia, {63.424551, 30.721423, -25.853771}, 6};
    const Solved solved = Solve(EntryOf(handOver));
    EXPECT_TRUE(Near(solved.State.SigmaX, 63.424551));
    EXPECT_TRUE(Near(solved.State.TauXY, -25.853771));
    handOver = {true, MohrMode::PlaneStress, {-50, 10, -40}, 3};
    const Solved stress = Solve(EntryOf(handOver));
    EXPECT_TRUE(Near(stress.State.SigmaX, -50));
    EXPECT_TRUE(Near(stress.State.TauXY, -40));
}

struct MaskRow {
    MohrMode Mode;
    int Unit;
    double Value;
    const char* Text;
};
class Masks : public testing::TestWithParam<MaskRow> {};

TEST_P(Masks, SuitTheUnit)
{
    StressState state;
    MohrEntry entry;
    entry.Mode = GetParam().Mode;
    entry.Unit = GetParam().Unit;
    EXPECT_EQ(MohrText(state, entry, GetParam().Value), Local(GetParam().Text));
}

INSTANTIATE_TEST_SUITE_P(
    Units, Masks,
    testing::Values(MaskRow{MohrMode::PlaneStress, 0, 12345.67891, "12,345.6789"},
                    MaskRow{MohrMode::PlaneStrain, 4, 0.00034, "0.00034"},
                    MaskRow{MohrMode::Rosette45, 5, -78.9, "-78.9"},
                    MaskRow{MohrMode::MomentOfInertia, 6, 77.66369, "77.6637"},
                    MaskRow{MohrMode::MomentOfInertia, 7, 26399000, "26.3990E+06"}));

TEST(Modulus, ReadsTheTableInEveryUnit)
{
    EXPECT_TRUE(Near(ElasticModulusFactor(3), 1000000 / 6.894757));
    EXPECT_TRUE(Near(ElasticModulusFactor(9), 1));
    EXPECT_EQ(MaterialModulusText(2, 0), Local("16,000,000.00")); // hard brass
    EXPECT_EQ(MaterialModulusText(2, 1), Local("16,000.00"));
    EXPECT_EQ(MaterialModulusText(2, 2), Local("110,000.00"));
    EXPECT_EQ(MaterialModulusText(2, 3), Local("110.00"));
    EXPECT_EQ(MaterialModulusText(-1, 0), "");
}

TEST(Modulus, ConvertsBetweenUnits)
{
    EXPECT_EQ(ConvertModulusText(Local("29,000.00"), 1, 0), Local("29,000,000.00"));
    EXPECT_EQ(ConvertModulusText(Local("29,000,000"), 0, 3), Local("199.95"));
    EXPECT_EQ(ConvertModulusText(Local("200"), 3, 2), Local("200,000.00"));
}

} // namespace
