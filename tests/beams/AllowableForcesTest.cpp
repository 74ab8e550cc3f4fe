#include "beams/AllowableForces.h"

#include "beams/StressCases.h"

#include <algorithm>

using namespace forcelab;
using namespace forcelab::beams;
using namespace forcelab::beams::test;
using namespace forcelab::sections;
using forcelab::test::Local;
using forcelab::test::Near;
using testing::ElementsAre;

namespace {

LimitsEntry Entry(bool same, int unit = 1)
{
    LimitsEntry entry;
    entry.Box = {Local("24.0"), Local("20.0"), Local("-10.0"),
                 Local("12.0"), Local("14.0"), Local("8.0")};
    entry.Same = same;
    entry.StressUnit = unit;
    return entry;
}
StressLimits Limits(bool same, bool composite)
{
    StressLimits limits;
    SetLimits(limits, Entry(same), composite);
    return limits;
}
AllowableForces Of(const Worked& worked, const StressLimits& limits)
{
    return AllowableForcesOf(worked.Section, limits, ReadDetails(worked.Section, {}));
}

// --- the limits

TEST(StressLimits, AreReadWithoutSign)
{
    StressLimits limits;
    ReadAllowableBoxes(limits, Entry(false));
    EXPECT_THAT(limits.AllowableEntered, ElementsAre(24, 20, 10, 12, 14, 8));
    EXPECT_THAT(limits.AllowableStress, ElementsAre(24000, 20000, 10000, 12000, 14000, 8000));
    EXPECT_FALSE(limits.AllowableSet);
}

TEST(StressLimits, TakeTheUnit)
{
    StressLimits limits;
    ReadAllowableBoxes(limits, Entry(false, 3));
    EXPECT_TRUE(Near(limits.AllowableStress[kTensionLimit], 24000 / 6.894757));
    EXPECT_EQ(limits.AllowableEntered[kTensionLimit], 24);
}

TEST(StressLimits, EachOfTwoMaterials)
{
    const StressLimits limits = Limits(false, true);
    EXPECT_TRUE(limits.AllowableSet);
    EXPECT_THAT(limits.AllowableEntered, ElementsAre(24, 20, 10, 12, 14, 8));
}

TEST(StressLimits, SameForCompression)
{
    const StressLimits limits = Limits(true, true);
    EXPECT_THAT(limits.AllowableEntered, ElementsAre(24, 20, 24, 20, 14, 8));
    EXPECT_THAT(limits.AllowableStress, ElementsAre(24000, 20000, 24000, 20000, 14000, 8000));
}

TEST(StressLimits, OneMaterialFillsBoth)
{
    EXPECT_THAT(Limits(false, false).AllowableEntered, ElementsAre(24, 24, 10, 10, 14, 14));
    EXPECT_THAT(Limits(true, false).AllowableEntered, ElementsAre(24, 24, 24, 24, 14, 14));
}

TEST(StressLimits, Heads)
{
    EXPECT_THAT(LimitHeads(true), ElementsAre("Tension and Compression"));
    EXPECT_THAT(LimitHeads(false), ElementsAre("Tension", "Compression"));
}

TEST(StressLimits, MaterialsEndWithUserDefined)
{
    const auto names = LimitMaterials();
    EXPECT_EQ(names.back(), "User Defined");
    const auto last = static_cast<int>(names.size()) - 1;
    EXPECT_FALSE(YieldOf(last, 0).has_value());
    EXPECT_FALSE(YieldOf(-1, 0).has_value()) << "nothing chosen";
    const auto found = std::find(names.begin(), names.end(), "Brass-C36000, Hard");
    const auto brass = static_cast<int>(found - names.begin());
    ASSERT_LT(brass, last);
    EXPECT_EQ(*YieldOf(brass, 0), 45000);
    EXPECT_EQ(*YieldOf(brass, 1), 45);
    EXPECT_EQ(*YieldOf(brass, 2), 310000);
    EXPECT_EQ(*YieldOf(brass, 3), 310);
}

// --- one material

TEST(AllowableForces, OfTheTee)
{
    const AllowableForces forces = Of(Tee(), Limits(false, false));
    EXPECT_TRUE(Near(forces.AxialTension, 24000 * 17));
    EXPECT_TRUE(Near(forces.AxialCompression, 10000 * 17));
    EXPECT_TRUE(
        Near(*forces.ShearForce, 14000 * tee::kInertia / (tee::kBottom * tee::kBottom / 2)));
    const double bottomInTension = 24000 * tee::kInertia / tee::kBottom;
    const double topInCompression = 10000 * tee::kInertia / tee::kTop;
    EXPECT_TRUE(Near(forces.PositiveMoment, std::min(bottomInTension, topInCompression) / 12));
    EXPECT_TRUE(Near(forces.NegativeMoment, -10000 * tee::kInertia / tee::kBottom / 12));
}

/// Each allowable force by itself brings the largest stress to its limit.
TEST(AllowableForces, ReachTheirLimits)
{
    const StressLimits limits = Limits(false, false);
    for (int shape = kGeneralFlanged; shape <= kBox; ++shape) {
        const Worked worked = Computed(shape, SampleDimensions(shape));
        const AllowableForces forces = Of(worked, limits);
        const auto bounds = SectionBoundsOf(worked.Section);
        const auto normal = [&](double moment, double y) {
            return NormalStressIn(worked.Section, {0, 0, moment * 12}, 0, y);
        };
        for (const double moment : {forces.PositiveMoment, forces.NegativeMoment}) {
            const double top = normal(moment, bounds.SectionTop);
            const double bottom = normal(moment, bounds.SectionBottom);
            const double tension = std::max(top, bottom) / 24000;
            const double compression = -std::min(top, bottom) / 10000;
            EXPECT_TRUE(Near(std::max(tension, compression), 1)) << shape;
        }
        const auto shear = LargestShearOf(worked.Section, {0, *forces.ShearForce, 0});
        EXPECT_TRUE(Near(shear->Stress, 14000)) << shape;
    }
}

TEST(AllowableForces, OfACircle)
{
    const AllowableForces forces = Of(Computed(kCircle, {5}), Limits(false, false));
    const double pi = 3.14159265358979;
    EXPECT_TRUE(Near(forces.AxialTension, 24000 * pi * 6.25));
    EXPECT_TRUE(Near(*forces.ShearForce, 0.75 * 14000 * pi * 6.25));
    EXPECT_TRUE(Near(forces.PositiveMoment, 10000 * pi * 125 / 32 / 12));
    EXPECT_TRUE(Near(forces.NegativeMoment, -forces.PositiveMoment));
}

TEST(AllowableForces, OfAPipe)
{
    const AllowableForces forces = Of(Computed(kPipe, {5, 3.5}), Limits(false, false));
    const double area = 3.14159265358979 / 4 * (25 - 12.25);
    EXPECT_TRUE(Near(*forces.ShearForce, 0.75 * 14000 * area / (25 + 17.5 + 12.25) * (25 + 12.25)));
    EXPECT_TRUE(Near(forces.AxialCompression, 10000 * area));
}

TEST(AllowableForces, OfSpecifiedPropertiesKnowNoShear)
{
    const Worked specified = Computed(kSpecified, {3, 4, 3, 5, 100, 60, 30});
    const AllowableForces forces = Of(specified, Limits(false, false));
    EXPECT_FALSE(forces.ShearForce.has_value());
    EXPECT_TRUE(Near(forces.PositiveMoment, 10000 * 100 / 4.0 / 12));
    EXPECT_TRUE(Near(forces.NegativeMoment, -10000 * 100 / 5.0 / 12));
}

// --- two materials

/// The tee with a flange of twice the modulus: area 25, centroid 7.7 above the bottom.
TEST(AllowableForces, OfTwoMaterials)
{
    const AllowableForces forces =
        Of(Composite(kTShape, {8, 1, 9, 1}, {10, 9}, 2), Limits(false, true));
    const double inertia = 60.75 + 9 * 3.2 * 3.2 + 2 * (8.0 / 12 + 8 * 1.8 * 1.8);
    EXPECT_TRUE(Near(forces.AxialTension, 20000 / 2.0 * 25)) << "B is the weaker one";
    EXPECT_TRUE(Near(forces.AxialCompression, 12000 / 2.0 * 25));
    const double bottomInTension = 24000 * inertia / 7.7;
    const double topInCompression = 12000 * inertia / 2.3 / 2;
    EXPECT_TRUE(Near(forces.PositiveMoment, std::min(bottomInTension, topInCompression) / 12));
    const double bottomInCompression = 10000 * inertia / 7.7;
    EXPECT_TRUE(Near(forces.NegativeMoment, -bottomInCompression / 12));
    EXPECT_TRUE(Near(*forces.ShearForce, 14000 * inertia / (7.7 * 7.7 / 2)));
}

// --- the lines

TEST(AllowableLines, LabelsMaskAndUnits)
{
    DetailsEntry entry;
    entry.ForceUnitIndex = 0;
    entry.MomentUnitIndex = 1;
    const StressDetails details = ReadDetails(Tee().Section, entry);
    const auto forces = AllowableForcesOf(Tee().Section, Limits(true, false), details);
    EXPECT_THAT(AllowableLines(forces, details),
                ElementsAre("Allowable Axial Tension = " + Local("408,000.000") + " lbs",
                            "Allowable Axial Compression = " + Local("408,000.000") + " lbs",
                            "Allowable Shear Force = " + Local("99,746.443") + " lbs",
                            "Allowable Positive Moment = " + Local("48.825") + " ft-kips",
                            "Allowable Negative Moment = " + Local("-48.825") + " ft-kips"));
}

TEST(AllowableLines, MissingShear)
{
    EXPECT_THAT(AllowableLines({}, {}),
                testing::Contains("Allowable Shear Force = further data are required"));
}

} // namespace
