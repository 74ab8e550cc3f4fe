#include "beams/SectionStress.h"

#include "beams/StressCases.h"
#include "core/ArithmeticFault.h"

using namespace forcelab;
using namespace forcelab::beams;
using namespace forcelab::beams::test;
using namespace forcelab::sections;
using forcelab::test::Near;

namespace {

constexpr double kMoment = 100000; // 100 in-kips
constexpr double kShear = 10000;

PointStress At(const Worked& worked, double z, double y, const SectionForces& forces)
{
    return StressAtPoint(worked.Section, z, y, forces, 1, 1);
}
double NormalAt(const Worked& worked, double z, double y)
{
    return At(worked, z, y, {0, 0, kMoment}).Normal;
}
double ShearAt(const Worked& worked, double z, double y)
{
    return At(worked, z, y, {0, kShear, 0}).Shear;
}

// --- a T-section by hand

TEST(TeeStress, PositiveMomentCompressesTheTop)
{
    const Worked t = Tee();
    EXPECT_TRUE(Near(NormalAt(t, 0, tee::kTop), -kMoment * tee::kTop / tee::kInertia));
    EXPECT_TRUE(Near(NormalAt(t, 0, -tee::kBottom), kMoment * tee::kBottom / tee::kInertia));
    EXPECT_TRUE(Near(NormalAt(t, 0, tee::kTop), -1881.1, 1e-4));
    EXPECT_TRUE(Near(NormalAt(t, 0, -tee::kBottom), 4096.2, 1e-4));
    EXPECT_TRUE(Near(NormalAt(t, 0, 0), 0));
}

TEST(TeeStress, AxialForceAddsItself)
{
    const Worked t = Tee();
    const double both = At(t, 0, tee::kTop, {34000, 0, kMoment}).Normal;
    EXPECT_TRUE(Near(both, 2000 - kMoment * tee::kTop / tee::kInertia));
    EXPECT_TRUE(Near(At(t, 3, tee::kTop - 0.5, {-17000, 0, 0}).Normal, -1000));
}

TEST(TeeStress, ShearAtTheNeutralAxis)
{
    const double q = tee::kBottom * tee::kBottom / 2; // of the stem below
    EXPECT_TRUE(Near(ShearAt(Tee(), 0, 0), kShear * q / (tee::kInertia * 1)));
    EXPECT_TRUE(Near(ShearAt(Tee(), 0, 0), 1403.56, 1e-5));
}

/// 8 in^2 of flange at 0.5 in above the junction; the stem comes after the flange.
TEST(TeeStress, BorderTakesTheLaterElement)
{
    const Worked t = Tee();
    const double junction = tee::kTop - 1;
    const double q = 8 * (junction + 0.5);
    EXPECT_TRUE(Near(ShearAt(t, 0, junction), kShear * q / (tee::kInertia * 1)));
    EXPECT_TRUE(Near(ShearAt(t, 0, junction - 1e-7), kShear * q / (tee::kInertia * 1), 1e-6));
    EXPECT_TRUE(Near(ShearAt(t, 0, junction + 1e-7), kShear * q / (tee::kInertia * 8), 1e-6));
    EXPECT_TRUE(Near(ShearAt(t, 3, junction), kShear * q / (tee::kInertia * 8))) << "in the flange";
}

TEST(TeeStress, EndsHaveNoShear)
{
    EXPECT_TRUE(Near(ShearAt(Tee(), 0, tee::kTop), 0));
    EXPECT_TRUE(Near(ShearAt(Tee(), 0, -tee::kBottom), 0, 1e-8));
}

TEST(TeeStress, NothingBesideTheStem)
{
    const PointStress beside = At(Tee(), 0.51, 0, {1000, kShear, kMoment});
    EXPECT_EQ(beside.Normal, 0);
    EXPECT_EQ(beside.Shear, 0);
    EXPECT_NE(NormalAt(Tee(), 0.5, 1), 0) << "the edge belongs to the stem";
}

TEST(TeeStress, UnitsOfTheForm)
{
    const PointStress si = StressAtPoint(Tee().Section, 0, -tee::kBottom * 25.4, {0, 0, kMoment},
                                         1 / 25.4, 1000 / 6.894757);
    EXPECT_TRUE(Near(si.Normal, kMoment * tee::kBottom / tee::kInertia * 6.894757 / 1000));
}

TEST(TeeStress, MillimetresAreTheSameSection)
{
    Worked mm = Entered(kTShape, {203.2, 25.4, 228.6, 25.4});
    mm.Entry.LengthUnit = 1;
    ASSERT_FALSE(mm.Compute().has_value());
    EXPECT_TRUE(Near(NormalAt(mm, 0, -tee::kBottom), kMoment * tee::kBottom / tee::kInertia));
    EXPECT_TRUE(Near(ShearAt(mm, 0, 0), ShearAt(Tee(), 0, 0)));
}

// --- the part above a level

TEST(SectionPartAbove, OfTheTee)
{
    const CrossSection section = Tee().Section;
    const double junction = tee::kTop - 1;
    const PartAbove flange = SectionPartAbove(section, junction, Side::Above);
    EXPECT_TRUE(Near(flange.Area, 8));
    EXPECT_TRUE(Near(flange.Q, 8 * (junction + 0.5)));
    EXPECT_TRUE(Near(flange.Width, 8));
    EXPECT_TRUE(Near(SectionPartAbove(section, junction, Side::Below).Width, 1));
    EXPECT_TRUE(Near(SectionPartAbove(section, 0).Area, 8 + junction));
    EXPECT_TRUE(Near(SectionPartAbove(section, -tee::kBottom).Q, 0, 1e-9));
    EXPECT_TRUE(Near(SectionPartAbove(section, -tee::kBottom).Area, 17));
}

/// 6 x 10 outside, 5 x 8.5 inside.
TEST(SectionPartAbove, HoleTakesItsWidthAway)
{
    const CrossSection section = Computed(kBox, {6, 10, 5, 8.5}).Section;
    const PartAbove part = SectionPartAbove(section, 0);
    EXPECT_TRUE(Near(part.Width, 1));
    EXPECT_TRUE(Near(part.Q, 6 * 5 * 2.5 - 5 * 4.25 * 2.125));
    EXPECT_TRUE(Near(SectionPartAbove(section, 4.5).Width, 6));
}

TEST(SectionPartAbove, FillingOfATubeReplacesTheHole)
{
    const CrossSection section = Composite(kBox, {6, 10, 5, 8.5}, {9, 10}, 3).Section;
    const PartAbove part = SectionPartAbove(section, 0);
    EXPECT_TRUE(Near(part.Width, 1 + 3 * 5));
    EXPECT_TRUE(Near(part.Q, 6 * 5 * 2.5 + (3 - 1) * 5 * 4.25 * 2.125));
}

// --- two materials

/// The tee with a flange of twice the modulus: area 9 + 2 x 8 = 25, centroid
/// (9 x 4.5 + 16 x 9.5) / 25 = 7.7, I = 60.75 + 9 x 3.2^2 + 2 (8 / 12 + 8 x 1.8^2).
struct TwoMaterials {
    Worked T = Composite(kTShape, {8, 1, 9, 1}, {10, 9}, 2);
    double Inertia = 60.75 + 9 * 3.2 * 3.2 + 2 * (8.0 / 12 + 8 * 1.8 * 1.8);
};

TEST(CompositeStress, MaterialBTakesTheModularRatio)
{
    const TwoMaterials of;
    EXPECT_TRUE(Near(NormalAt(of.T, 0, 2.3), -2 * kMoment * 2.3 / of.Inertia));
    EXPECT_TRUE(Near(NormalAt(of.T, 0, -7.7), kMoment * 7.7 / of.Inertia));
    EXPECT_TRUE(Near(At(of.T, 3, 2, {25000, 0, 0}).Normal, 2000));
    EXPECT_TRUE(Near(At(of.T, 0, -2, {25000, 0, 0}).Normal, 1000));
}

TEST(CompositeStress, BorderIsOfTheLaterMaterial)
{
    const TwoMaterials of;
    EXPECT_TRUE(Near(NormalAt(of.T, 0, 1.3), -kMoment * 1.3 / of.Inertia)) << "the stem, A";
    EXPECT_TRUE(Near(NormalAt(of.T, 3, 1.3), -2 * kMoment * 1.3 / of.Inertia)) << "the flange, B";
}

TEST(CompositeStress, ShearOverTheTransformedWidth)
{
    const TwoMaterials of;
    const double q = 2 * 8 * 1.8;
    EXPECT_TRUE(Near(ShearAt(of.T, 0, 1.3), kShear * q / of.Inertia / 1));
    EXPECT_TRUE(Near(ShearAt(of.T, 3, 1.3), kShear * q / of.Inertia / 16 * 2));
    EXPECT_TRUE(Near(ShearAt(of.T, 0, 0), kShear * (7.7 * 7.7 / 2) / of.Inertia));
}

TEST(CompositeStress, FilledTube)
{
    const Worked tube = Composite(kBox, {6, 10, 5, 8.5}, {9, 10}, 3);
    const double inertia = 6 * 1000 / 12.0 + 2 * 5 * 8.5 * 8.5 * 8.5 / 12;
    EXPECT_TRUE(Near(NormalAt(tube, 0, 4), -3 * kMoment * 4 / inertia));
    EXPECT_TRUE(Near(NormalAt(tube, 2.75, 4), -kMoment * 4 / inertia)) << "the wall";
    EXPECT_EQ(NormalAt(tube, 3.01, 4), 0);
}

// --- tubes, circles, specified properties

TEST(TubeStress, IsKnownInTheHoleAndNotOutside)
{
    const Worked tube = Computed(kBox, {6, 10, 5, 8.5});
    const double inertia = (6 * 1000.0 - 5 * 8.5 * 8.5 * 8.5) / 12;
    EXPECT_TRUE(Near(NormalAt(tube, 0, 5), -kMoment * 5 / inertia));
    EXPECT_TRUE(Near(NormalAt(tube, 0, 1), -kMoment * 1 / inertia));
    EXPECT_EQ(NormalAt(tube, 0, 5.01), 0);
    EXPECT_EQ(NormalAt(tube, 3.01, 1), 0);
    const double q = 6 * 5 * 2.5 - 5 * 4.25 * 2.125;
    EXPECT_TRUE(Near(ShearAt(tube, 0, 0), kShear * q / inertia / 1));
}

TEST(CircleStress, AsksForNoPlace)
{
    const Worked circle = Computed(kCircle, {5});
    const double inertia = 3.14159265358979 / 64 * 625;
    EXPECT_TRUE(Near(NormalAt(circle, 0, 2.5), -kMoment * 2.5 / inertia));
    EXPECT_TRUE(Near(NormalAt(circle, 7, 3), -kMoment * 3 / inertia));
}

TEST(CircleStress, ShearAtTheCentreAlone)
{
    const Worked circle = Computed(kCircle, {5});
    const double average = kShear / (3.14159265358979 / 4 * 25);
    EXPECT_TRUE(Near(ShearAt(circle, 0, 0), 4.0 / 3 * average));
    EXPECT_TRUE(Near(ShearAt(circle, 2, 0), 4.0 / 3 * average));
    EXPECT_EQ(ShearAt(circle, 0, 0.001), 0);
    EXPECT_EQ(ShearAt(circle, 0, -0.001), 0);
}

TEST(PipeStress, EndsAtTheOuterCircle)
{
    const Worked pipe = Computed(kPipe, {5, 3.5});
    const double inertia = 3.14159265358979 / 64 * (625 - 3.5 * 3.5 * 3.5 * 3.5);
    EXPECT_TRUE(Near(NormalAt(pipe, 0, -2.5), kMoment * 2.5 / inertia));
    EXPECT_TRUE(Near(NormalAt(pipe, 0, 1), -kMoment / inertia));
    EXPECT_EQ(NormalAt(pipe, 0, 2.51), 0);
}

TEST(PipeStress, ShearAtTheCentreAlone)
{
    const Worked pipe = Computed(kPipe, {5, 3.5});
    const double area = 3.14159265358979 / 4 * (25 - 12.25);
    const double expected = 4.0 / 3 * kShear / area * (12.25 + 17.5 + 25) / (12.25 + 25);
    EXPECT_TRUE(Near(ShearAt(pipe, 0, 0), expected));
    EXPECT_EQ(ShearAt(pipe, 0, 0.001), 0);
}

/// The steel shapes of these outlines follow the laws of a tube and of a pipe, at every place.
TEST(SteelStress, TubesAndPipesAsTheGeneralShapes)
{
    struct Row {
        Worked General;
        int Steel;
        std::vector<std::array<double, 2>> Points; ///< z and y
    };
    const std::vector<std::array<double, 2>> inTube{{0, 0}, {0, 1}, {2.75, 3}, {0, 4.25}, {0, 5}};
    for (const Row& row :
         {Row{Computed(kBox, {6, 10, 5, 8.5}), kSteelTS, inTube},
          Row{Computed(kPipe, {5, 3.5}), kSteelPipe, {{0, 0}, {0, 1}, {2, 2.5}}}}) {
        Worked steel = row.General;
        steel.Section.ShapeIndex = row.Steel;
        for (const auto& [z, y] : row.Points) {
            const PointStress expected = At(row.General, z, y, {900, kShear, kMoment});
            const PointStress stress = At(steel, z, y, {900, kShear, kMoment});
            EXPECT_NE(expected.Normal, 0) << z << ", " << y;
            EXPECT_EQ(stress.Normal, expected.Normal) << z << ", " << y;
            EXPECT_EQ(stress.Shear, expected.Shear) << z << ", " << y;
        }
        EXPECT_EQ(NormalAt(steel, 0, 5.01), 0) << "above the section";
        EXPECT_NE(ShearAt(steel, 0, 0), 0);
    }
}

/// c right 3, top 4, left 3, bottom 5; Iz 100, Iy 60, A 30.
TEST(SpecifiedStress, NormalButNoShear)
{
    const Worked specified = Computed(kSpecified, {3, 4, 3, 5, 100, 60, 30});
    EXPECT_TRUE(Near(NormalAt(specified, 0, 4), -kMoment * 4 / 100));
    EXPECT_TRUE(Near(NormalAt(specified, 0, -5), kMoment * 5 / 100));
    EXPECT_TRUE(Near(At(specified, 1, 1, {3000, 0, 0}).Normal, 100));
    EXPECT_EQ(ShearAt(specified, 0, 0), 0);
    EXPECT_EQ(NormalAt(specified, 0, 4.1), 0);
}

TEST(UnknownStress, IsZero)
{
    Worked none;
    EXPECT_EQ(At(none, 0, 0, {1, 1, 1}).Normal, 0);
    EXPECT_EQ(At(none, 0, 0, {1, 1, 1}).Shear, 0);
}

TEST(UnknownStress, OverflowIsAFault)
{
    EXPECT_THROW(At(Tee(), 0, 1, {0, 0, 1e308 * 10}), ArithmeticFault);
}

// --- bands, extremes, bounds

TEST(Bands, OfTheTee)
{
    const auto bands = BandsOf(Tee().Section);
    ASSERT_EQ(bands.size(), 2u);
    EXPECT_TRUE(Near(bands[0].Bottom, -tee::kBottom));
    EXPECT_TRUE(Near(bands[0].Width, 1));
    EXPECT_TRUE(Near(bands[1].Top, tee::kTop));
    EXPECT_TRUE(Near(bands[1].Width, 8));
}

TEST(Bands, KnowTheirMaterials)
{
    const auto bands = BandsOf(Composite(kBox, {6, 10, 5, 8.5}, {9, 10}, 3).Section);
    ASSERT_EQ(bands.size(), 3u);
    EXPECT_EQ(bands[0].Material, (std::array<bool, 2>{true, false}));
    EXPECT_EQ(bands[1].Material, (std::array<bool, 2>{true, true}));
    const auto full = BandsOf(Composite(kBox, {6, 10, 6, 8}, {9, 10}, 3).Section);
    EXPECT_EQ(full[1].Material, (std::array<bool, 2>{false, true})) << "no wall beside the inside";
}

TEST(LargestShear, LiesWhereTheWidthIsSmall)
{
    const auto tee = LargestShearOf(Tee().Section, {0, kShear, 0});
    ASSERT_TRUE(tee.has_value());
    EXPECT_TRUE(Near(tee->Y, 0));
    EXPECT_TRUE(Near(tee->Stress, 1403.56, 1e-5));
    EXPECT_FALSE(
        LargestShearOf(Computed(kSpecified, {3, 4, 3, 5, 100, 60, 30}).Section, {}).has_value());
}

/// An I-shape on its side: flanges 2 x 0.5 wide, and the web 9 x 0.375 between them at the middle,
/// where it makes the section wide. The largest stress is at its edge.
TEST(LargestShear, BesideTheNeutralAxisOfALyingShape)
{
    const Worked lying = Computed(kIShape, {6, 0.5, 9, 0.375}, 1);
    const double inertia = 2 * 0.5 * 216 / 12 + 9 * 0.375 * 0.375 * 0.375 / 12;
    const double q = 2 * 0.5 * (3 * 3 - 0.1875 * 0.1875) / 2;
    const auto largest = LargestShearOf(lying.Section, {0, kShear, 0});
    EXPECT_TRUE(Near(std::abs(largest->Y), 0.1875));
    EXPECT_TRUE(Near(largest->Stress, kShear * q / inertia / 1));
}

TEST(NeutralAxis, MovesWithTheAxialForce)
{
    const CrossSection section = Tee().Section;
    EXPECT_TRUE(Near(*NeutralAxisOf(section, {0, 0, kMoment}), 0));
    EXPECT_TRUE(Near(*NeutralAxisOf(section, {17000, 0, kMoment}), 1000 * tee::kInertia / kMoment));
    EXPECT_FALSE(NeutralAxisOf(section, {17000, 0, 0}).has_value());
    EXPECT_FALSE(NeutralAxisOf(section, {170000, 0, kMoment}).has_value()) << "above the top";
}

TEST(SectionBoundsOf, RoundShapesAreSquare)
{
    const SectionBounds b = SectionBoundsOf(Computed(kPipe, {5, 3.5}).Section);
    EXPECT_TRUE(Near(b.SectionLeft, -2.5));
    EXPECT_TRUE(Near(b.SectionTop, 2.5));
}

} // namespace
