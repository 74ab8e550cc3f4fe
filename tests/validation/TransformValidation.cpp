// Figures worked by hand from the equations that every textbook of mechanics of materials derives.
// Each tolerance is half a unit of the last figure given.

#include "transform/Failure.h"
#include "transform/MohrStates.h"
#include "transform/Rosette.h"

using namespace forcelab;
using namespace forcelab::transform;
using namespace forcelab::transform::test;

namespace {

constexpr double kTwoPlaces = 0.005;

/// 50 tension, 10 compression, 40 clockwise: half difference 30, radius sqrt(900 + 1600) = 50.
TEST(HandCalculation, TensionAndCompressionWithShear)
{
    const StressState s = PlaneStress(50, -10, 40).State;
    EXPECT_TRUE(Near(s.CircleCentre, 20));
    EXPECT_TRUE(Near(s.CircleRadius, 50));
    EXPECT_TRUE(Near(s.PrincipalOne, 70));
    EXPECT_TRUE(Near(s.PrincipalTwo, -30));
    EXPECT_NEAR(s.PrincipalAngle / kDegrees, 53.13, kTwoPlaces);
    EXPECT_NEAR(PrincipalDirection(s) / kDegrees, -26.57, kTwoPlaces); // clockwise
}

/// By direction cosines at 30 degrees: 50 x 3/4 - 10 x 1/4 -/+ 2 x 40 x sin 30 cos 30.
TEST(HandCalculation, ElementTurnedByThirtyDegrees)
{
    const double mixed = 2 * 40 * 0.5 * std::sqrt(3.0) / 2; // 34.641
    const RotatedState cw = StateAt(PlaneStress(50, -10, 40).State, 30 * kDegrees);
    EXPECT_NEAR(cw.NormalX, 35 - mixed, 1e-9);
    EXPECT_NEAR(cw.NormalX, 0.36, kTwoPlaces);
    EXPECT_NEAR(cw.NormalY, 39.64, kTwoPlaces);
    EXPECT_NEAR(cw.ShearXY, -60 * 0.5 * std::sqrt(3.0) / 2 - 40 * 0.5, 1e-9);
    const RotatedState ccw = StateAt(PlaneStress(50, -10, -40).State, 30 * kDegrees);
    EXPECT_NEAR(ccw.NormalX, 69.64, kTwoPlaces);
    EXPECT_NEAR(ccw.NormalY, -29.64, kTwoPlaces);
}

/// Both principal stresses compressive: the third, 0, is the greatest.
TEST(HandCalculation, AbsoluteMaximumShearOutOfThePlane)
{
    const StressState s = PlaneStress(-60, -60, 30).State;
    EXPECT_TRUE(Near(s.PrincipalOne, -30));
    EXPECT_TRUE(Near(s.PrincipalTwo, -90));
    EXPECT_TRUE(Near(s.CircleRadius, 30));
    EXPECT_TRUE(Near(s.AbsMaxShear, 45));
    EXPECT_TRUE(Near(s.AbsMaxCentre, -45));
}

struct Gauges {
    MohrMode Mode;
    std::array<std::string, 3> Readings;
    double Tolerance; ///< the delta readings are given to four decimals
};
class RosetteByHand : public testing::TestWithParam<Gauges> {};

/// Gamma = 2 x 315 - (340 + 110) = 180, radius sqrt(115^2 + 90^2) = 146.031; the delta readings
/// are those of the same strain state at 60 and 120 degrees. E = 200 GPa, nu = 0.3.
TEST_P(RosetteByHand, StrainsAndStresses)
{
    Solved solved = Solve(Rosette(GetParam().Mode, GetParam().Readings));
    const StressState& s = solved.State;
    EXPECT_NEAR(s.SigmaX, 340, GetParam().Tolerance);
    EXPECT_NEAR(s.SigmaY, 110, GetParam().Tolerance);
    EXPECT_NEAR(s.TauXY, -90, GetParam().Tolerance);
    EXPECT_NEAR(s.PrincipalOne, 371.03, kTwoPlaces);
    EXPECT_NEAR(s.PrincipalTwo, 78.97, kTwoPlaces);
    EXPECT_NEAR(2 * s.CircleRadius, 292.06, kTwoPlaces);
    const auto texts = PrincipalStressesFromStrains(solved.State, solved.Entry);
    EXPECT_THAT(texts[0], testing::StartsWith(Local("Sigma 1 = 86.75")));
    EXPECT_THAT(texts[1], testing::StartsWith(Local("Sigma 2 = 41.8")));
}

INSTANTIATE_TEST_SUITE_P(
    Layouts, RosetteByHand,
    testing::Values(Gauges{MohrMode::Rosette45, {"340", "315", "110"}, 1e-9},
                    Gauges{MohrMode::Rosette60, {"340", "245.4423", "89.5577"}, 1e-4}));

/// Principal moments of an unequal angle's axes; roots of I^2 - 94.14597 I + 1280.077 = 0.
TEST(HandCalculation, PrincipalMomentsOfInertia)
{
    const StressState s =
        Solve(Entry(MohrMode::MomentOfInertia, {"63.42455", "30.72142", "-25.85377"}, 6)).State;
    EXPECT_NEAR(s.PrincipalOne, 77.6637, 5e-5);
    EXPECT_NEAR(s.PrincipalTwo, 16.4823, 5e-5);
    EXPECT_NEAR(PrincipalDirection(s) / kDegrees, 28.84, kTwoPlaces);
}

/// 70 and -30 against 90: equivalent stress sqrt(4900 + 900 + 2100) = 88.88, difference 100.
TEST(HandCalculation, TheoriesDisagreeOnTheSameState)
{
    EXPECT_TRUE(MaterialFails({0, 70, -30, 90, 0}));
    EXPECT_FALSE(MaterialFails({1, 70, -30, 90, 0}));
    EXPECT_FALSE(MaterialFails({1, 70, -30, 88.89, 0}));
    EXPECT_TRUE(MaterialFails({1, 70, -30, 88.88, 0}));
    EXPECT_FALSE(MaterialFails({2, 70, -30, 90, 0}));
}

} // namespace
