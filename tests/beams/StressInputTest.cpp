#include "beams/StressInput.h"

#include "beams/KeyStresses.h"
#include "beams/StressCases.h"

using namespace forcelab;
using namespace forcelab::beams;
using namespace forcelab::beams::test;
using namespace forcelab::sections;
using forcelab::test::Local;
using forcelab::test::Near;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

StressDetails Read(const Worked& worked, const DetailsEntry& entry, int view = kNoKeyStresses)
{
    StressDetails details = ReadDetails(worked.Section, entry);
    details.KeyStressView = view;
    return details;
}

/// The numbers of sentences in the separators of the setting; their commas stay.
std::vector<std::string> LocalLines(std::vector<std::string> lines)
{
    for (std::string& line : lines)
        for (std::size_t i = 1; i + 1 < line.size(); ++i)
            if (line[i] == '.' && line[i + 1] >= '0' && line[i + 1] <= '9')
                line[i] = Regional::Current.DecimalPoint;
    return lines;
}

// --- reading

struct ForceRow {
    const char* Name;
    int Unit;
    double Force;
    double Moment;
};
class DetailsFactors : public testing::TestWithParam<ForceRow> {};

TEST_P(DetailsFactors, BringToPoundsAndPoundInches)
{
    DetailsEntry entry;
    entry.VM = {Local("2.0"), Local("-3.0"), Local("4.0")};
    entry.Coord = {"0", "0"};
    entry.ForceUnitIndex = entry.MomentUnitIndex = GetParam().Unit;
    const StressDetails details = Read(Tee(), entry);
    EXPECT_TRUE(Near(details.AxialForce, 2 * GetParam().Force, 1e-15));
    EXPECT_TRUE(Near(details.ShearForce, -3 * GetParam().Force, 1e-15));
    EXPECT_TRUE(Near(details.BendingMoment, 4 * GetParam().Moment, 1e-15));
}

INSTANTIATE_TEST_SUITE_P(Units, DetailsFactors,
                         testing::Values(ForceRow{"lbs", 0, 1, 12},
                                         ForceRow{"kips", 1, 1000, 12000},
                                         ForceRow{"N", 2, 0.224808923, 224.808923 / 25.4},
                                         ForceRow{"kN", 3, 224.808923, 224808.923 / 25.4}),
                         [](const auto& row) { return row.param.Name; });

TEST(SpecifiedPoint, StaysWhereItLies)
{
    DetailsEntry entry = TeeEntry();
    entry.Coord = {Local("-0.25"), Local("1.5")};
    const StressDetails details = Read(Tee(), entry);
    EXPECT_TRUE(Near(details.PointZ, -0.25));
    EXPECT_TRUE(Near(details.PointY, -1.5)) << "downward, as the scroll bar runs";
    EXPECT_TRUE(Near(details.YInches(), 1.5));
    EXPECT_THAT(CoordTexts(details), ElementsAre(Local("-0.250"), Local("1.500")));
}

TEST(SpecifiedPoint, IsHeldAtTheTop)
{
    DetailsEntry entry = TeeEntry();
    entry.Coord = {Local("9.0"), Local("50.0")};
    const StressDetails details = Read(Tee(), entry);
    EXPECT_TRUE(Near(details.YInches(), tee::kTop));
    EXPECT_TRUE(Near(details.ZInches(), 4));
    EXPECT_TRUE(Near(StressAtSpecifiedPoint(Tee().Section, details).Normal,
                     -100 * tee::kTop / tee::kInertia));
}

TEST(SpecifiedPoint, IsHeldAtTheBottom)
{
    DetailsEntry entry = TeeEntry();
    entry.Coord = {Local("-9.0"), Local("-50.0")};
    const StressDetails details = Read(Tee(), entry);
    EXPECT_TRUE(Near(details.YInches(), -tee::kBottom));
    EXPECT_TRUE(Near(details.ZInches(), -4));
}

/// The bounds in mm come back to inches with other last bits; the top fibre must not be lost.
TEST(SpecifiedPoint, TopFibreInMillimetres)
{
    DetailsEntry entry = TeeEntry();
    entry.ShapeUnitIndex = 1;
    entry.Coord = {"0", "9999"};
    const StressDetails details = Read(Tee(), entry);
    EXPECT_TRUE(Near(-details.PointY, tee::kTop * 25.4));
    EXPECT_TRUE(Near(StressAtSpecifiedPoint(Tee().Section, details).Normal,
                     -100 * tee::kTop / tee::kInertia));
}

TEST(SpecifiedPoint, CentreOfACircleIsExactlyZero)
{
    DetailsEntry entry = TeeEntry();
    entry.Coord = {"", ""};
    const Worked circle = Computed(kCircle, {5});
    EXPECT_TRUE(Near(StressAtSpecifiedPoint(circle.Section, Read(circle, entry)).Shear,
                     40.0 / 3 / (3.14159265358979 * 6.25)));
    entry.Coord[1] = Local("0.001");
    EXPECT_EQ(StressAtSpecifiedPoint(circle.Section, Read(circle, entry)).Shear, 0);
}

// --- refusals

TEST(CheckForces, NormalStressesAskForAForce)
{
    const auto refusal = CheckForces(StressDetails{}, kNormalView);
    ASSERT_TRUE(refusal.has_value());
    EXPECT_EQ(refusal->Icon, 16);
    EXPECT_EQ(refusal->Title, "Stress Calculation Error");
    EXPECT_EQ(refusal->Text, "Values for Axial Force, Bending Moment, or both must be entered "
                             "before the normal stresses can be calculated.");
    StressDetails axial;
    axial.AxialForce = -1;
    EXPECT_FALSE(CheckForces(axial, kNormalView).has_value());
    StressDetails bent;
    bent.BendingMoment = 1;
    EXPECT_FALSE(CheckForces(bent, kNormalView).has_value());
}

TEST(CheckForces, ShearStressesAskForAShearForce)
{
    StressDetails details;
    details.BendingMoment = 1;
    const auto refusal = CheckForces(details, kShearView);
    ASSERT_TRUE(refusal.has_value());
    EXPECT_EQ(refusal->Icon, 16);
    EXPECT_EQ(refusal->Title, "Stress Calculation Error");
    EXPECT_EQ(refusal->Text, "A value for Shear Force must be entered before the shear stresses "
                             "can be calculated.");
    details.ShearForce = -2;
    EXPECT_FALSE(CheckForces(details, kShearView).has_value());
    EXPECT_FALSE(CheckForces(StressDetails{}, kPointView).has_value());
}

// --- Mohr's circle

TEST(HandOverToMohr, CarriesTheStateAtThePoint)
{
    DetailsEntry entry = TeeEntry();
    entry.Coord = {"0", Local("2.0")};
    const auto state = HandOverToMohr(Tee().Section, Read(Tee(), entry));
    EXPECT_TRUE(state.Pending);
    EXPECT_EQ(state.Mode, transform::MohrMode::PlaneStress);
    EXPECT_EQ(state.Unit, 1) << "ksi";
    EXPECT_TRUE(Near(state.Value[0], -100 * 2 / tee::kInertia));
    EXPECT_EQ(state.Value[1], 0);
    const double q = 8 * (tee::kTop - 0.5) + (tee::kTop - 1 + 2) * (tee::kTop - 1 - 2) / 2;
    EXPECT_TRUE(Near(state.Value[2], 10 * q / tee::kInertia));
}

// --- key stresses

TEST(KeyStresses, NormalStressesOfTheTee)
{
    const auto lines = KeyStressLines(Tee().Section, Read(Tee(), TeeEntry(), kNormalView));
    EXPECT_THAT(lines, testing::ElementsAreArray(
                           LocalLines({"Top, y = 3.147 in:  -1.881 ksi (compression)",
                                       "Bottom, y = -6.853 in:  4.096 ksi (tension)",
                                       "Neutral axis, y = 0.000 in:  0.000 ksi",
                                       "Border, y = 2.147 in:  -1.283 ksi (compression)"})));
}

TEST(KeyStresses, ShearStressesOfTheTee)
{
    const auto lines = KeyStressLines(Tee().Section, Read(Tee(), TeeEntry(), kShearView));
    EXPECT_THAT(lines,
                testing::ElementsAreArray(LocalLines(
                    {"Neutral axis, y = 0.000 in:  1.404 ksi",
                     "Border, just above, y = 2.147 in:  0.1582 ksi",
                     "Border, just below, y = 2.147 in:  1.266 ksi",
                     "Top, y = 3.147 in:  0.000 ksi", "Bottom, y = -6.853 in:  0.000 ksi"})));
}

TEST(KeyStresses, OfThePoint)
{
    const auto lines = KeyStressLines(Tee().Section, Read(Tee(), TeeEntry(), kPointView));
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[1], "Normal stress:  " + Local("0.000") + " ksi");
    EXPECT_EQ(lines[2], "Shear stress:  " + Local("1.404") + " ksi");
    EXPECT_TRUE(KeyStressLines(Tee().Section, Read(Tee(), TeeEntry())).empty());
}

TEST(KeyStresses, SayWhyThereIsNoNeutralAxis)
{
    DetailsEntry entry = TeeEntry();
    entry.VM = {"500", "0", "1"};
    EXPECT_EQ(KeyStressLines(Tee().Section, Read(Tee(), entry, kNormalView)).back(),
              "The neutral axis lies outside the section.");
    entry.VM[2] = "0";
    EXPECT_THAT(KeyStressLines(Tee().Section, Read(Tee(), entry, kNormalView)).back(),
                HasSubstr("No neutral axis"));
}

TEST(KeyStresses, NameTheMaterials)
{
    const Worked t = Composite(kTShape, {8, 1, 9, 1}, {10, 9}, 2);
    const auto keys = KeyNormalStresses(t.Section, {0, 0, 1000});
    ASSERT_EQ(keys.size(), 5u);
    EXPECT_EQ(keys[0].Place, "Top (Material B)");
    EXPECT_EQ(keys[3].Place, "Border (Material A)");
    EXPECT_EQ(keys[4].Place, "Border (Material B)");
    EXPECT_TRUE(Near(keys[4].Stress, 2 * keys[3].Stress));
}

TEST(KeyStresses, RoundAndSpecifiedShapes)
{
    const auto circle = KeyShearStresses(Computed(kCircle, {5}).Section, {0, 10, 0});
    ASSERT_EQ(circle.size(), 3u);
    EXPECT_TRUE(Near(circle[0].Stress, 40.0 / 3 / (3.14159265358979 * 6.25)));
    const Worked specified = Computed(kSpecified, {3, 4, 3, 5, 100, 60, 30});
    EXPECT_THAT(KeyStressLines(specified.Section, Read(specified, TeeEntry(), kShearView)),
                ElementsAre("Max shear stress cannot be computed.", "Further data are required."));
}

/// Key stresses are the stresses at their points.
TEST(KeyStresses, AgreeWithTheStressAtThePoint)
{
    for (int shape = kGeneralFlanged; shape <= kRectangle; ++shape) {
        const Worked worked = Computed(shape, SampleDimensions(shape));
        for (const KeyStress& key : KeyNormalStresses(worked.Section, {500, 0, 7000})) {
            if (key.Place != "Top" && key.Place != "Bottom") continue;
            for (const Corners& e : worked.Section.ElementCornersInches) {
                if (e.Bottom > key.Y || key.Y > e.Top) continue;
                const double z = (e.Left + e.Right) / 2;
                const double at =
                    StressAtPoint(worked.Section, z, key.Y, {500, 0, 7000}, 1, 1).Normal;
                EXPECT_TRUE(at == 0 || Near(key.Stress, at)) << shape;
            }
        }
    }
}

TEST(StressText, ShowsAtLeastThreeDigits)
{
    StressDetails details;
    EXPECT_EQ(StressText(1234567.89, details), Local("1,234,567.890"));
    EXPECT_EQ(StressText(0.123456, details), Local("0.1235"));
    EXPECT_EQ(StressText(0.00123456, details), Local("0.0012346"));
    EXPECT_EQ(StressText(-1e-12, details), Local("0.000"));
}

} // namespace
