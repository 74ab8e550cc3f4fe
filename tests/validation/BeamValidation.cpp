// Beams worked by hand from statics, deflections from the tables that every textbook of mechanics
// of materials carries, and forty random beams against an integration of our own by small steps,
// which shares nothing with the closed form: loads summed to shear, shear to moment, moment twice.

#include "beams/BeamBuilders.h"

#include <algorithm>
#include <vector>

using namespace forcelab;
using namespace forcelab::beams;
using namespace forcelab::beams::test;

namespace {

constexpr double kKnM = 1000 * 0.224809 * 1000 / 25.4; // lb-in to the kN-m
constexpr double kKnLb = 1000 * 0.224809;

double A(const Solved& s, int c = kUnfactored)
{
    return s.Reactions.ReactionA[c];
}
double B(const Solved& s, int c = kUnfactored)
{
    return s.Reactions.ReactionB[c];
}

TEST(HandCalculation, CentralPointLoad)
{
    BeamRecord beam = Simple(10, kFoot);
    Add(beam, kPointDown, 5, 0, 1000, kLb);
    const Solved s = Solve(beam);
    EXPECT_TRUE(Near(A(s), 500));
    EXPECT_TRUE(Near(B(s), 500));
    EXPECT_TRUE(Near(s.Curves.ShearMomentExtremes[2][kFirstLargest], 500));
    EXPECT_TRUE(Near(s.Curves.ShearMomentExtremes[2][kFirstSmallest], -500));
    EXPECT_TRUE(Near(s.Curves.ShearMomentExtremes[2][kSecondLargest] / 12, 2500));
    // W14X90: I = 999 in^4, E = 29,000,000 psi. P L^3 / 48 E I = 0.0012426 in.
    EXPECT_NEAR(s.At(60).Deflection / (29e6 * 999), -0.00124, 0.000005);
}

/// B = (5 x 10 x 5 + 8 x 3) / 10 = 27.4, A = 58 - 27.4 = 30.6. V = 30.6 - 8 - 5 x is 0 at 4.52.
/// M = 30.6 x 4.52 - 8 x 1.52 - 5 x 4.52^2 / 2 = 75.076.
TEST(HandCalculation, UniformLoadWithPointLoad)
{
    BeamRecord beam = Simple(10, kMetre);
    Add(beam, kUniformDown, 0, 10, 5, kKn);
    Add(beam, kPointDown, 3, 0, 8, kKn);
    const Solved s = Solve(beam);
    EXPECT_TRUE(Near(A(s) / kKnLb, 30.6));
    EXPECT_TRUE(Near(B(s) / kKnLb, 27.4));
    EXPECT_TRUE(Near(s.Curves.ZeroShearX[1] * 0.0254, 4.52));
    EXPECT_TRUE(Near(s.Curves.ShearMomentExtremes[2][kSecondLargest] / kKnM, 75.076));
}

/// Moments about A: 8 B = 2 x 4 x 4 - 5 = 27, B = 3.375 and A = 8 - 3.375 = 4.625, both upward:
/// a counterclockwise moment at the right tip helps the right support to hold the load.
TEST(HandCalculation, OverhangWithMoment)
{
    BeamRecord beam = Beam(kTwoSupports, 11, 0, 8, kMetre);
    Add(beam, kUniformDown, 2, 6, 2, kKn);
    Add(beam, kMomentCcw, 11, 0, 5, kKn);
    const Solved s = Solve(beam);
    EXPECT_TRUE(Near(A(s) / kKnLb, 4.625));
    EXPECT_TRUE(Near(B(s) / kKnLb, 3.375));
    EXPECT_TRUE(Near(s.At(9 / 0.0254).Moment / kKnM, 5, 1e-9)) << "the tip's moment to the support";
}

/// 8 x 5 + 12 = 52; 40 x 2.5 + 12 x 9 - 50 = 158.
TEST(HandCalculation, LeftCantilever)
{
    BeamRecord beam = Cantilever(kFixedLeft, 9, kMetre);
    Add(beam, kUniformDown, 0, 5, 8, kKn);
    Add(beam, kMomentCcw, 5, 0, 50, kKn);
    Add(beam, kPointDown, 9, 0, 12, kKn);
    const Solved s = Solve(beam);
    EXPECT_TRUE(Near(A(s) / kKnLb, 52));
    EXPECT_TRUE(Near(s.Reactions.MomentA[kUnfactored] / kKnM, 158));
    EXPECT_TRUE(Near(s.At(0).Moment / kKnM, -158));
}

/// 1.2 x 2 + 1.6 x 3 = 7.2 kips/ft: 7.2 x 20 / 2 = 72 kips, 7.2 x 20^2 / 8 = 360 ft-kips.
TEST(HandCalculation, DeadAndLiveLoad)
{
    BeamRecord beam = Simple(20, kFoot);
    UseLoadFactors(beam, 1);
    Add(beam, kUniformDown, 0, 20, 2, kKip, 3);
    const Solved s = Solve(beam);
    EXPECT_TRUE(Near(A(s, kFactored), 72000));
    EXPECT_TRUE(Near(s.Curves.ShearMomentExtremes[2][kSecondLargest] / 12000, 360));
    const double w = 5000.0 / 12; // the service load, lb/in
    EXPECT_TRUE(Near(s.At(120, kService).Deflection, -5 * w * std::pow(240.0, 4) / 384));
}

struct Standard {
    const char* Name;
    int Type;
    LoadNumbers Load; ///< on 100 in
    double X;
    double Slope, Deflection; ///< EI times, upward positive
};
class StandardCases : public testing::TestWithParam<Standard> {};

TEST_P(StandardCases, AgreeWithTheTables)
{
    const Standard& row = GetParam();
    BeamRecord beam = Beam(row.Type, 100, 0, 100, kInch);
    Add(beam, row.Load);
    const BeamValues v = Solve(beam).At(row.X);
    EXPECT_NEAR(v.Slope, row.Slope, 1e-9 * std::abs(row.Slope) + 1e-6);
    EXPECT_NEAR(v.Deflection, row.Deflection, 1e-9 * std::abs(row.Deflection) + 1e-4);
}

// P = 60 lb, w = 1 lb/in, M = 12 lb-in, L = 100 in.
INSTANTIATE_TEST_SUITE_P(Tables, StandardCases,
                         testing::Values(Standard{"cantilever, end load: P L^2 / 2, P L^3 / 3",
                                                  kFixedLeft,
                                                  {kPointDown, 100, 0, kInch, 60, 0, kLb},
                                                  100,
                                                  -60e4 / 2,
                                                  -60e6 / 3},
                                         Standard{"cantilever, uniform: w L^3 / 6, w L^4 / 8",
                                                  kFixedLeft,
                                                  {kUniformDown, 0, 100, kInch, 12, 0, kLb},
                                                  100,
                                                  -1e6 / 6,
                                                  -1e8 / 8},
                                         Standard{"cantilever, end moment: M L, M L^2 / 2",
                                                  kFixedLeft,
                                                  {kMomentCcw, 100, 0, kInch, 1, 0, kLb},
                                                  100,
                                                  12e2,
                                                  12e4 / 2},
                                         Standard{"fixed right, uniform, at the free end",
                                                  kFixedRight,
                                                  {kUniformDown, 0, 100, kInch, 12, 0, kLb},
                                                  0,
                                                  1e6 / 6,
                                                  -1e8 / 8},
                                         Standard{"fixed right, end moment",
                                                  kFixedRight,
                                                  {kMomentCcw, 0, 0, kInch, 1, 0, kLb},
                                                  0,
                                                  12e2,
                                                  -12e4 / 2},
                                         Standard{"simple, uniform at midspan: 5 w L^4 / 384",
                                                  kTwoSupports,
                                                  {kUniformDown, 0, 100, kInch, 12, 0, kLb},
                                                  50,
                                                  0,
                                                  -5e8 / 384},
                                         Standard{"simple, uniform at the end: w L^3 / 24",
                                                  kTwoSupports,
                                                  {kUniformDown, 0, 100, kInch, 12, 0, kLb},
                                                  0,
                                                  -1e6 / 24,
                                                  0},
                                         Standard{
                                             "simple, moment at the right end: M L / 6 at the left",
                                             kTwoSupports,
                                             {kMomentCcw, 100, 0, kInch, 1, 0, kLb},
                                             0,
                                             -12e2 / 6,
                                             0}));

/// A beam integrated by steps from left to right. Jumps lie on the borders of the steps.
class StepByStep {
  public:
    StepByStep(const Solved& solved, int loadCase) : s_(solved), case_(loadCase) { Integrate(); }

    struct Station {
        double X, Shear, Moment, Slope, Deflection; ///< just left of what jumps at X
    };
    [[nodiscard]] std::vector<Station> Stations() const { return stations_; }
    /// What is left behind all that acts at the right end.
    [[nodiscard]] Station Rest() const { return rest_; }

  private:
    static constexpr int kSteps = 400; // in every piece between two borders

    /// Force (downward) and moment (counterclockwise) that act at a border.
    void Jump(double at)
    {
        const auto here = [at](double x) { return std::abs(x - at) < 1e-7; };
        const BeamRecord& beam = s_.Beam;
        const BeamReactions& r = s_.Reactions;
        if (here(beam.SupportA)) now_.Shear += r.ReactionA[case_];
        if (here(beam.SupportA)) now_.Moment -= r.MomentA[case_];
        if (here(beam.SupportB)) now_.Shear += r.ReactionB[case_];
        if (here(beam.SupportB)) now_.Moment -= r.MomentB[case_];
        for (int row = 1; row <= beam.LoadCount; ++row) {
            if (!here(beam.LoadX[row][1])) continue;
            const double q = beam.LoadMagnitude[row][case_];
            if (beam.LoadClass[row] == kPointLoad) now_.Shear -= q;
            if (beam.LoadClass[row] == kMomentLoad) now_.Moment -= q;
        }
    }
    /// A load that ends before it starts counts the other way.
    [[nodiscard]] double Intensity(double x) const
    {
        double w = 0;
        for (int row = 1; row <= s_.Beam.LoadCount; ++row) {
            if (s_.Beam.LoadClass[row] != kUniformLoad) continue;
            const double q = s_.Beam.LoadMagnitude[row][case_];
            const auto& at = s_.Beam.LoadX[row];
            if (at[1] < x && x < at[2]) w += q;
            if (at[2] < x && x < at[1]) w -= q;
        }
        return w;
    }
    /// One step by the midpoint of every derivative, exact to the square of the step.
    void Step(double h, double w)
    {
        const double shearMid = now_.Shear - w * h / 2;
        const double momentMid = now_.Moment + now_.Shear * h / 2;
        const double slopeMid = now_.Slope + now_.Moment * h / 2;
        now_.Shear -= w * h;
        now_.Moment += shearMid * h;
        now_.Slope += momentMid * h;
        now_.Deflection += slopeMid * h;
        now_.X += h;
    }
    void Integrate()
    {
        const PointList keys = BuildKeyPoints(s_.Beam);
        stations_.push_back(now_);
        for (int i = 1; i < keys.Count; ++i) {
            Jump(keys.At[i]);
            const double h = (keys.At[i + 1] - keys.At[i]) / kSteps;
            const double w = Intensity((keys.At[i] + keys.At[i + 1]) / 2);
            for (int k = 0; k < kSteps; ++k) Step(h, w);
            stations_.push_back(now_);
        }
        Jump(keys.At[keys.Count]);
        rest_ = now_;
        BoundaryConditions();
    }
    [[nodiscard]] const Station& At(double x) const
    {
        return *std::find_if(stations_.begin(), stations_.end(), [x](const Station& station) {
            return std::abs(station.X - x) < 1e-6;
        });
    }
    /// Adds the straight line that makes the supports hold.
    void BoundaryConditions()
    {
        const Station& a = At(s_.Beam.SupportA);
        const Station& b = At(s_.Beam.SupportB);
        double turn = 0;
        double shift = 0;
        if (s_.Beam.SupportType == kTwoSupports) {
            turn = (a.Deflection - b.Deflection) / (b.X - a.X);
            shift = -a.Deflection - turn * a.X;
        } else {
            const Station& wall = s_.Beam.SupportType == kFixedLeft ? a : b;
            turn = -wall.Slope;
            shift = -wall.Deflection - turn * wall.X;
        }
        for (Station& station : stations_) {
            station.Slope += turn;
            station.Deflection += turn * station.X + shift;
        }
    }

    const Solved& s_;
    int case_;
    Station now_{};
    Station rest_{};
    std::vector<Station> stations_;
};

class RandomBeams : public testing::TestWithParam<unsigned> {};

/// The tolerance is a part in a hundred thousand of the largest value: 400 steps a piece leave an
/// error of that square.
void CompareWithIntegration(const Solved& s, int shearCase, int slopeCase)
{
    constexpr double kShare = 1e-5;
    const auto& sm = s.Curves.ShearMomentExtremes;
    const auto& sd = s.Curves.SlopeDeflectionExtremes;
    const auto shearStations = StepByStep(s, shearCase).Stations();
    for (const auto& station : shearStations) {
        const BeamValues v = s.At(station.X - kLeftOfJump, shearCase);
        EXPECT_NEAR(v.Shear, station.Shear, kShare * sm[2][kFirstSize]) << station.X;
        EXPECT_NEAR(v.Moment, station.Moment, kShare * sm[2][kSecondSize]) << station.X;
    }
    const auto slopeStations = StepByStep(s, slopeCase).Stations();
    for (const auto& station : slopeStations) {
        const BeamValues v = s.At(station.X, slopeCase);
        EXPECT_NEAR(v.Slope, station.Slope, kShare * sd[2][kFirstSize]) << station.X;
        EXPECT_NEAR(v.Deflection, station.Deflection, kShare * sd[2][kSecondSize]) << station.X;
    }
}

TEST_P(RandomBeams, AgreeWithAnIntegrationByStep)
{
    const int loads = 1 + int(GetParam()) % 40;
    CompareWithIntegration(Solve(RandomBeam(GetParam(), loads)), kUnfactored, kUnfactored);
    CompareWithIntegration(Solve(RandomBeam(GetParam(), loads, true)), kFactored, kService);
}

TEST_P(RandomBeams, AgreeWhereUniformLoadsRunBackwards)
{
    BeamRecord beam = RandomBeam(GetParam(), 20);
    for (int row = 1; row <= beam.LoadCount; row += 2)
        if (beam.LoadClass[row] == kUniformLoad) std::swap(beam.LoadX[row][1], beam.LoadX[row][2]);
    CompareWithIntegration(Solve(beam), kUnfactored, kUnfactored);
}

/// The reactions hold the beam: behind the right end neither shear nor moment is left over.
TEST_P(RandomBeams, EndWithoutShearAndMoment)
{
    const Solved s = Solve(RandomBeam(GetParam(), 40));
    const auto rest = StepByStep(s, kUnfactored).Rest();
    const auto& extremes = s.Curves.ShearMomentExtremes;
    EXPECT_NEAR(rest.Shear, 0, 1e-9 * extremes[2][kFirstSize]);
    EXPECT_NEAR(rest.Moment, 0, 1e-9 * extremes[2][kSecondSize]);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomBeams, testing::Range(1U, 41U));

} // namespace
