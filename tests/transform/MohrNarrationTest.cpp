#include "transform/MohrNarration.h"

#include "MohrStates.h"
#include "support/NarrationProof.h"
#include "transform/MohrTexts.h"
#include "transform/Rosette.h"

using namespace forcelab;
using namespace forcelab::test;
using namespace forcelab::transform;
using namespace forcelab::transform::test;
using testing::HasSubstr;

namespace {

class Explanations : public testing::TestWithParam<MohrMode> {};

TEST_P(Explanations, EveryLineFollowsFromItsOwnNumbers)
{
    for (unsigned seed = 1; seed <= 50; ++seed) {
        SCOPED_TRACE(seed);
        const Solved solved = RandomState(GetParam(), seed);
        const std::string text = ExplainMohr(solved.State, solved.Entry);
        EXPECT_GE(ProveText(text), 10) << text;
    }
}

TEST_P(Explanations, CarryTheNumbersThatThePicturesShow)
{
    for (unsigned seed = 1; seed <= 20; ++seed) {
        const Solved solved = RandomState(GetParam(), seed);
        const std::string text = ExplainMohr(solved.State, solved.Entry);
        for (const Quantity quantity : {Quantity::One, Quantity::Two, Quantity::MaxShear})
            EXPECT_THAT(text,
                        HasSubstr(" = " + QuantityText(solved.State, solved.Entry, quantity)));
        for (const std::string& shown : RotatedTexts(solved.State, solved.Entry))
            EXPECT_THAT(text, HasSubstr("Shown as " + shown));
        EXPECT_THAT(text, HasSubstr(TurnText(PrincipalDirection(solved.State)) + " from the "));
    }
}

INSTANTIATE_TEST_SUITE_P(Modes, Explanations, testing::ValuesIn(kAllModes));

TEST(ExplainMohr, WorksTheFirstExample)
{
    const Solved solved = PlaneStress(50, -10, 40, 30);
    const std::string text = ExplainMohr(solved.State, solved.Entry);
    EXPECT_THAT(text, HasSubstr(Local("(50.0 + (-10.0)) ÷ 2 = 20.0 MPa")));
    EXPECT_THAT(text, HasSubstr(Local("√(30.0² + 40.0²) = √(900.0 + 1,600.0) = 50.0 MPa")));
    EXPECT_THAT(text, HasSubstr(Local("atan(40.0 ÷ 30.0) = 53.13°")));
    EXPECT_THAT(text, HasSubstr(Local("26.57° CW from the x axis")));
    EXPECT_THAT(text, Not(HasSubstr("Absolute maximum shear")));
}

TEST(ExplainMohr, TellsWhichCircleGoverns)
{
    Solved solved = PlaneStress(-60, -60, 30);
    solved.Entry.ShowAbsMaxShear = true;
    EXPECT_THAT(ExplainMohr(solved.State, solved.Entry),
                HasSubstr("the circle through Sigma 2 and Sigma 3 governs"));
    solved = PlaneStress(50, 30, 5);
    solved.Entry.ShowAbsMaxShear = true;
    EXPECT_THAT(ExplainMohr(solved.State, solved.Entry),
                HasSubstr("the circle through Sigma 1 and Sigma 3 governs"));
    solved = PlaneStress(50, -10, 40);
    solved.Entry.ShowAbsMaxShear = true;
    EXPECT_THAT(ExplainMohr(solved.State, solved.Entry),
                HasSubstr("the circle of the plane itself governs"));
}

/// The stresses of the explanation are those of the captions beside the rosette.
TEST(ExplainMohr, ARosetteWithoutMeanStrainIsStillInPlaneStress)
{
    MohrEntry entry = Rosette(MohrMode::Rosette45, {"100", "40", "100"});
    entry.Negative[2] = true;
    const Solved solved = Solve(entry);
    EXPECT_THAT(ExplainMohr(solved.State, solved.Entry),
                HasSubstr("The assumption of plane stress leaves the surface free to strain"));
}

TEST(ExplainMohr, ReducesARosetteToStresses)
{
    Solved solved = Solve(Rosette(MohrMode::Rosette45, {"340", "315", "110"}));
    const std::string text = ExplainMohr(solved.State, solved.Entry);
    EXPECT_THAT(text, HasSubstr(Local("2 × 315.0 - (340.0 + 110.0) = 180.0 micro")));
    EXPECT_THAT(text, HasSubstr(Local(" = -192.8571 micro")));
    EXPECT_THAT(text, HasSubstr(Local(" = 86.752 MPa")));
    EXPECT_THAT(text, HasSubstr(Local(" = 41.819 MPa")));
    solved.Entry.Stresses.Poisson = "1";
    EXPECT_THAT(ExplainMohr(solved.State, solved.Entry), Not(HasSubstr("Hooke")));
}

TEST(ExplainMohr, HasNothingToSayOfNoCircle)
{
    EXPECT_EQ(ExplainMohr({}, {}), "");
}

} // namespace
