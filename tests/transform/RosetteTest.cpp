#include "transform/Rosette.h"

#include "MohrStates.h"

using namespace forcelab;
using namespace forcelab::transform;
using namespace forcelab::transform::test;
using testing::ElementsAre;

namespace {

/// What a gauge at an angle reads in a strain state; the textbook transformation.
double GaugeReading(double x, double y, double gamma, double degrees)
{
    const double a = degrees * kDegrees;
    return x * std::cos(a) * std::cos(a) + y * std::sin(a) * std::sin(a) +
           gamma * std::sin(a) * std::cos(a);
}

struct Layout {
    MohrMode Mode;
    double Second, Third; ///< degrees
};
class Rosettes : public testing::TestWithParam<Layout> {};

TEST_P(Rosettes, GiveBackTheStrainsThatTheyMeasure)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> strain(-900, 900);
    for (int i = 0; i < 50; ++i) {
        const double x = strain(random);
        const double y = strain(random);
        const double gamma = strain(random);
        StressState state;
        state.Mode = GetParam().Mode;
        state.EntryA = GaugeReading(x, y, gamma, 0);
        state.EntryB = GaugeReading(x, y, gamma, GetParam().Second);
        state.EntryC = GaugeReading(x, y, gamma, GetParam().Third);
        ReduceRosette(state);
        EXPECT_NEAR(state.SigmaX, x, 1e-9);
        EXPECT_NEAR(state.SigmaY, y, 1e-9);
        EXPECT_NEAR(state.TauXY, -gamma / 2, 1e-9);
    }
}

INSTANTIATE_TEST_SUITE_P(Layouts, Rosettes,
                         testing::Values(Layout{MohrMode::Rosette45, 45, 90},
                                         Layout{MohrMode::Rosette60, 60, 120}));

std::array<std::string, 3> StressTexts(const std::string& e, const std::string& nu)
{
    Solved solved = Solve(Rosette(MohrMode::Rosette45, {"340", "315", "110"}));
    solved.Entry.Stresses.ElasticModulus = Local(e);
    solved.Entry.Stresses.Poisson = Local(nu);
    return PrincipalStressesFromStrains(solved.State, solved.Entry);
}

TEST(PrincipalStressesFromStrains, CaptionsCarryUnitAndSense)
{
    EXPECT_THAT(StressTexts("200", "0.3"),
                ElementsAre(Local("Sigma 1 = 86.752 MPa (T)"), Local("Sigma 2 = 41.819 MPa (T)"),
                            Local("Tau Max XY = 22.466 MPa")));
}

TEST(PrincipalStressesFromStrains, CompressionIsMarked)
{
    Solved solved = Solve(Rosette(MohrMode::Rosette45, {"-340", "-315", "-110"}));
    EXPECT_EQ(PrincipalStressesFromStrains(solved.State, solved.Entry)[1],
              Local("Sigma 2 = 86.752 MPa (C)"));
}

TEST(PrincipalStressesFromStrains, InchPerInchGivesTheSameStress)
{
    Solved solved = Solve(Rosette(MohrMode::Rosette45, {"340", "315", "110"}));
    MohrEntry entry = Rosette(MohrMode::Rosette45, {"0.00034", "0.000315", "0.00011"});
    entry.Unit = 4;
    Solved inch = Solve(entry);
    EXPECT_EQ(PrincipalStressesFromStrains(inch.State, inch.Entry),
              PrincipalStressesFromStrains(solved.State, solved.Entry));
}

TEST(PrincipalStressesFromStrains, SignsOfTheConstantsDoNotCount)
{
    EXPECT_EQ(StressTexts("-200", "-0.3"), StressTexts("200", "0.3"));
}

class BadModuli : public testing::TestWithParam<std::array<std::string, 2>> {};

TEST_P(BadModuli, GiveThePromptsAndKeepTheCircle)
{
    EXPECT_THAT(StressTexts(GetParam()[0], GetParam()[1]),
                ElementsAre("Input elastic modulus", "and Poisson's ratio", ""));
    MohrEntry entry = Rosette(MohrMode::Rosette45, {"340", "315", "110"});
    entry.Stresses.ElasticModulus = Local(GetParam()[0]);
    entry.Stresses.Poisson = Local(GetParam()[1]);
    const StressState state = Solve(entry).State;
    EXPECT_FALSE(state.CircleBad);
    EXPECT_TRUE(Near(state.PrincipalThree, 0));
    EXPECT_TRUE(Near(state.CircleCentre, 225));
}

INSTANTIATE_TEST_SUITE_P(Values, BadModuli,
                         testing::Values(std::array<std::string, 2>{"200", "1"},
                                         std::array<std::string, 2>{"200", "0.99995"},
                                         std::array<std::string, 2>{"200", "1.00005"},
                                         std::array<std::string, 2>{"200", "1.5"},
                                         std::array<std::string, 2>{"200", "0"},
                                         std::array<std::string, 2>{"200", ""},
                                         std::array<std::string, 2>{"0", "0.3"},
                                         std::array<std::string, 2>{"", "0.3"}));

TEST(PrincipalStressesFromStrains, OnlyTheShearCarriesTheScale)
{
    Solved solved = Solve(Rosette(MohrMode::Rosette45, {"3400000", "3150000", "1100000"}));
    ASSERT_TRUE(Near(solved.State.ValueScale, 1000));
    const auto texts = PrincipalStressesFromStrains(solved.State, solved.Entry);
    EXPECT_EQ(texts[0], Local("Sigma 1 = 867.520 MPa (T)"));
    EXPECT_EQ(texts[2], Local("Tau Max XY = 224,662.798 MPa"));
}

TEST(PrincipalThree, IsTheStrainAcrossTheSurface)
{
    MohrEntry entry = Rosette(MohrMode::Rosette45, {"340", "315", "110"});
    const StressState stress = Solve(entry).State;
    EXPECT_TRUE(Near(stress.PrincipalThree, -0.3 / 0.7 * 450));
    EXPECT_TRUE(Near(stress.AbsMaxShear, (stress.PrincipalOne - stress.PrincipalThree) / 2));
    entry.Stresses.StressOrStrain = 1;
    EXPECT_TRUE(Near(Solve(entry).State.PrincipalThree, 0));
    entry.Stresses.StressOrStrain = 0;
    entry.Stresses.Wanted = false;
    EXPECT_TRUE(Near(Solve(entry).State.PrincipalThree, 0));
}

} // namespace
