#include "truss/TrussNarration.h"

#include "TrussCases.h"
#include "support/NarrationProof.h"
#include "truss/JointWalk.h"

#include <algorithm>

using namespace forcelab;
using namespace forcelab::test;
using namespace forcelab::truss;
using namespace forcelab::truss::test;
using testing::AnyOf;
using testing::HasSubstr;
using testing::Not;

namespace {

std::string Explain(TrussModel model)
{
    const TrussAnalysis analysis = AnalyzeTruss(model);
    EXPECT_FALSE(analysis.Failure);
    return ExplainTruss(model, analysis.Results);
}

/// A truss whose loads are `factor` times as large.
TrussModel Loaded(TrussModel model, float factor)
{
    for (TrussGridPoint& point : model.GridPoints) {
        point.LoadX *= factor;
        point.LoadY *= factor;
    }
    return model;
}

/// Every member force stands in the text where its joint gives it, as the result list prints it.
void ExpectMemberResults(TrussModel model)
{
    const TrussAnalysis analysis = AnalyzeTruss(model);
    const TrussResults& results = analysis.Results;
    const std::string text = ExplainTruss(model, results);
    const auto walk =
        WalkJoints(model, results, ZeroMembers(model, results), results.ReactionLines.size() == 3);
    for (const JointStep& step : walk.Steps)
        for (const JointForce& force : step.Unknown) {
            const std::string shown = Format(force.Size, "###,##0.000");
            EXPECT_THAT(text, AnyOf(HasSubstr(" = " + shown), HasSubstr(force.Name + " is zero")))
                << force.Name;
        }
}

class Explained : public testing::TestWithParam<unsigned> {};

TEST_P(Explained, EveryLineFollowsFromItsOwnNumbers)
{
    const TrussModel model = RandomTruss(GetParam(), 3 + GetParam() % 12);
    EXPECT_GE(ProveText(Explain(model)), 10);
    ExpectMemberResults(model);
}

TEST_P(Explained, LinesOfLargeAndSmallLoadsToo)
{
    for (const float factor : {0.001F, 37.77F, 12345.6F, 1e7F}) {
        SCOPED_TRACE(factor);
        const TrussModel model = Loaded(RandomTruss(GetParam(), 3 + GetParam() % 12), factor);
        EXPECT_GE(ProveText(Explain(model)), 5);
    }
}

TEST_P(Explained, JointsHaveAtMostTwoUnknownsEach)
{
    TrussModel model = RandomTruss(GetParam(), 3 + GetParam() % 12);
    const TrussResults results = AnalyzeTruss(model).Results;
    const JointWalk walk = WalkJoints(model, results, {}, true);
    EXPECT_TRUE(walk.Left.empty()); // each joint was hung on two members
    std::size_t found = 0;
    for (const JointStep& step : walk.Steps) {
        EXPECT_LE(step.Unknown.size(), 2U);
        found += step.Unknown.size();
    }
    EXPECT_EQ(found, model.Members().size());
}

TEST_P(Explained, ZeroForceMembersAreThoseOfThePicture)
{
    TrussModel model = RandomTruss(GetParam(), 3 + GetParam() % 12);
    const TrussResults results = AnalyzeTruss(model).Results;
    const auto zeros = ZeroMembers(model, results);
    const auto wanted = std::count_if(results.MemberForce.begin() + 1, results.MemberForce.end(),
                                      [](double force) { return std::abs(force) <= 0.001; });
    EXPECT_EQ(static_cast<std::ptrdiff_t>(zeros.size()), wanted);
}

INSTANTIATE_TEST_SUITE_P(Seeds, Explained, testing::Range(1U, 31U));

TEST(ExplainTruss, WorksTheTriangle)
{
    const std::string text = Explain(Triangle());
    EXPECT_GE(ProveText(text), 10);
    EXPECT_THAT(text, HasSubstr("Members + reactions = 3 + 3 = 6"));
    EXPECT_THAT(text, HasSubstr(Local("Length AB = √(10.0² + 10.0²) = 14.142")));
    EXPECT_THAT(text, HasSubstr("Joint A"));
    EXPECT_THAT(text, HasSubstr(Local(" = -7.071 (C)")));
    EXPECT_THAT(text, HasSubstr(Local(" = 5.000 (T)")));
    EXPECT_THAT(text, Not(HasSubstr("Zero-force")));
    EXPECT_THAT(text, Not(HasSubstr("more than two unknowns")));
}

TEST(ExplainTruss, WorksTheKingPost)
{
    const std::string text = Explain(KingPost());
    for (const char* shown : {" = 6.667 (T)", " = -9.428 (C)", " = -7.454 (C)", " = 10.000 (T)",
                              "Dy = -(moment of the loads) ÷ arm = "})
        EXPECT_THAT(text, HasSubstr(Local(shown)));
}

TEST(ExplainTruss, NamesTheRuleOfAZeroForceMember)
{
    TrussModel model = KingPost();
    Load(model, {1, 0}, 0, 0);
    Load(model, {1, 1}, 0, -10);
    EXPECT_THAT(
        Explain(model),
        HasSubstr("BC carries nothing, as joint B shows: without load or support, AB and BD "
                  "in one line leave nothing there that could hold it."));
}

TEST(ExplainTruss, WalksAnArchWithItsReactionsAsUnknowns)
{
    TrussModel model = Grid(2, 1, 4, 3);
    Add(model, {0, 0}, {1, 1});
    Add(model, {1, 1}, {2, 0});
    Pin(model, {0, 0});
    Pin(model, {2, 0});
    Load(model, {1, 1}, 2, -15);
    const std::string text = Explain(model);
    EXPECT_GE(ProveText(text), 8);
    EXPECT_THAT(text, HasSubstr("more than three reactions"));
    EXPECT_THAT(text, HasSubstr("Unknown here: Ax and Ay."));
}

TEST(ExplainTruss, SaysWhereNoOrderExists)
{
    // Two triangles held together by three bars: every joint has three members.
    TrussModel model = Grid(6, 4);
    const At a{1, 0}, b{5, 0}, c{2, 4}, d{2, 1}, e{4, 1}, f{3, 3};
    for (const auto& [from, to] :
         {std::pair{a, b}, {b, c}, {a, c}, {d, e}, {e, f}, {d, f}, {a, d}, {b, e}, {c, f}})
        ASSERT_EQ(Add(model, from, to), MemberRefusal::None);
    Pin(model, a);
    PointOf(model, b).SupportY = 1;
    Load(model, f, 7, -9);
    const TrussAnalysis analysis = AnalyzeTruss(model);
    ASSERT_FALSE(analysis.Failure);
    const std::string text = ExplainTruss(model, analysis.Results);
    EXPECT_THAT(text, HasSubstr("Joints with more than two unknowns"));
    EXPECT_GE(ProveText(text), 10);
}

TEST(ExplainTruss, WorksTwentyFourBays)
{
    EXPECT_GE(ProveText(Explain(ParallelChords(24))), 150);
    ExpectMemberResults(ParallelChords(24));
}

TEST(ExplainTruss, TellsADirectionOnceAtTheJointThatNeedsItFirst)
{
    const std::string text = Explain(Triangle());
    const auto at = [&text](std::string_view part) { return text.find(part); };
    EXPECT_LT(at("Joint A"), at("Length AB = ")); // A is the first joint of the walk
    EXPECT_LT(at("Length AB = "), at("ABx = "));
    EXPECT_LT(at("ABy = "), at("Sum Fx: AC"));
    EXPECT_LT(at("Joint B"), at("Length BC = "));
    EXPECT_EQ(text.find("Length AB = ", at("Length AB = ") + 1), std::string::npos);
    EXPECT_EQ(at("Length AC"), std::string::npos); // level
}

TEST(ExplainTruss, HasNothingToSayWithoutResults)
{
    EXPECT_EQ(ExplainTruss(Triangle(), {}), "");
}

TEST(ExplainMotion, NamesTheJoints)
{
    TrussModel model = Square();
    EXPECT_THAT(ExplainMotion(*AnalyzeTruss(model).Motion), HasSubstr("Joints B and D can move"));
}

} // namespace
