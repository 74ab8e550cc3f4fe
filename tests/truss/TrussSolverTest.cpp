#include "JointEquations.h"
#include "TrussCases.h"

#include <algorithm>
#include <cmath>
#include <set>

using namespace forcelab;
using namespace forcelab::truss;
using namespace forcelab::truss::test;
using testing::Contains;
using testing::ElementsAre;

namespace {

TEST(SortUniqueJoints, SortsAndKeepsOneOfEach)
{
    std::mt19937 random(5);
    for (int n = 0; n <= 60; ++n) {
        std::vector<short> list(n);
        for (short& x : list) x = static_cast<short>(random() % 25);
        const std::set<short> wanted(list.begin(), list.end());
        const int count = SortUniqueJoints(list, n);
        EXPECT_EQ(std::vector<short>(list.begin(), list.begin() + count),
                  std::vector<short>(wanted.begin(), wanted.end()));
    }
}

TEST(BuildJointList, NumbersJointsByTheirGridPoints)
{
    const TrussModel model = Triangle();
    const JointList joints = BuildJointList(model);
    EXPECT_EQ(joints.JointCount, 3);
    EXPECT_THAT(joints.JointGridPoint, ElementsAre(0, 0, 5, 8));
    EXPECT_EQ(joints.GridToJoint[8], 3);
    EXPECT_EQ(joints.GridToJoint[1], 0);
}

TEST(BuildJointList, TalliesTheSidesOfTheMembers)
{
    const JointList joints = BuildJointList(Triangle());
    // Both supports are upright: the tally of y counts three times, x stays.
    EXPECT_THAT(joints.JointSense[0], ElementsAre(0, 2, 0, -2));
    EXPECT_THAT(joints.JointSense[1], ElementsAre(0, 3, -2, 3));
    TrussModel third = Triangle();
    PointOf(third, {1, 1}).SupportY = 1;
    EXPECT_THAT(BuildJointList(third).JointSense[1], ElementsAre(0, 9, -18, 9));
}

TEST(BuildJointList, KeepsTheTallyInsideSixteenBits)
{
    TrussModel model = ParallelChords(24);
    for (TrussGridPoint& point : model.GridPoints) point.SupportY = 1;
    const JointList joints = BuildJointList(model);
    for (int joint = 1; joint <= joints.JointCount; ++joint) {
        const bool upper = joints.JointGridPoint[joint] % 2 == 1;
        EXPECT_EQ(joints.JointSense[1][joint] < 0, upper); // the sign still tells the side
    }
}

TEST(JointNameOf, RunsFromCapitalsToSmallLetters)
{
    EXPECT_EQ(JointNameOf(1), "A");
    EXPECT_EQ(JointNameOf(26), "Z");
    EXPECT_EQ(JointNameOf(27), "a");
    EXPECT_EQ(JointNameOf(50), "x");
    EXPECT_EQ(JointNameOf(52), "z");
    EXPECT_EQ(JointNameOf(56), "~");
    std::set<std::string> names;
    for (int joint = 1; joint <= 200; ++joint) names.insert(JointNameOf(joint));
    EXPECT_EQ(names.size(), 200U);
}

TEST(AnalyzeTruss, ListsForcesAndReactions)
{
    TrussModel model = Triangle();
    const TrussAnalysis analysis = AnalyzeTruss(model);
    ASSERT_FALSE(analysis.Failure);
    EXPECT_TRUE(analysis.Results.TrussSolved);
    EXPECT_FALSE(analysis.Motion);
    EXPECT_THAT(analysis.Results.MemberLines,
                ElementsAre(Local("AC = 5.000 Tension"), Local("AB = 7.071 Compression"),
                            Local("BC = 7.071 Compression")));
    EXPECT_THAT(analysis.Results.ReactionLines,
                ElementsAre("Ax = " + Local("0.000") + " Right to Left", Local("Ay = 5.000 Upward"),
                            Local("Cy = 5.000 Upward")));
    EXPECT_THAT(analysis.Results.MemberNames, ElementsAre("AC", "AB", "BC"));
    EXPECT_TRUE(Near(StringValue(analysis.Results.MemberForces[1]), -7.0710678, 1e-6));
    EXPECT_EQ(model.TrussMembers[2].CosX, static_cast<float>(std::sqrt(0.5)));
}

TEST(AnalyzeTruss, PutsALoadOnASupportIntoItsReactionOnly)
{
    TrussModel model = Triangle();
    Load(model, {2, 0}, 0, -40);
    Load(model, {0, 0}, 2500, 0);
    const TrussAnalysis analysis = AnalyzeTruss(model);
    EXPECT_THAT(analysis.Results.MemberLines, Contains(Local("AC = 5.000 Tension")));
    EXPECT_THAT(analysis.Results.ReactionLines, Contains(Local("Cy = 45.000 Upward")));
    EXPECT_THAT(analysis.Results.ReactionLines, Contains(Local("Ax = 2,500.000 Right to Left")));
}

TEST(AnalyzeTruss, ListsAnIdleMemberAsCompression)
{
    TrussModel model = KingPost();
    Load(model, {1, 0}, 0, 0);
    Load(model, {1, 1}, 0, -10);
    const TrussAnalysis analysis = AnalyzeTruss(model);
    EXPECT_THAT(analysis.Results.MemberLines, Contains(Local("BC = 0.000 Compression")));
}

struct Refused {
    const char* Name;
    TrussModel Model;
    const char* Title;
    const char* Text;
};
void PrintTo(const Refused& row, std::ostream* out)
{
    *out << row.Name;
}
class Refusals : public testing::TestWithParam<Refused> {};

TEST_P(Refusals, TellWhy)
{
    TrussModel model = GetParam().Model;
    const TrussAnalysis analysis = AnalyzeTruss(model);
    ASSERT_TRUE(analysis.Failure);
    EXPECT_EQ(analysis.Failure->Icon, kStop);
    EXPECT_EQ(analysis.Failure->Title, GetParam().Title);
    EXPECT_EQ(analysis.Failure->Text, GetParam().Text);
    EXPECT_FALSE(analysis.Results.TrussSolved);
    EXPECT_EQ(analysis.Motion.has_value(),
              analysis.Failure->Title != "Statically Indeterminate Truss");
}

constexpr auto kIndeterminateText =
    "Truss is statically indeterminate.  Make sure that there\rare three support conditions "
    "(e.g., one pin and one roller).\rIf there are three supports, erase one truss member "
    "and\ranalyze the truss again.";
constexpr auto kUnstableText =
    "Truss is unstable.  Remember that all truss joints\rare assumed to be pin connections (i.e., "
    "no moment).\rCheck to make sure that at least two truss members are\rconnected to each joint "
    "and that the members form\rtriangles throughout the truss.";
constexpr auto kErrorText = "Sorry, the analysis was unsuccessful.  The\rtruss appears to be "
                            "geometrically unstable.\rCheck the truss input data.";

TrussModel With(TrussModel model, const std::function<void(TrussModel&)>& change)
{
    change(model);
    return model;
}

/// Two bars that meet in a joint so flat that it hardly resists.
TrussModel FlatTruss(float rise)
{
    TrussModel model = Grid(2, 1, 10, rise);
    Add(model, {0, 0}, {1, 1});
    Add(model, {1, 1}, {2, 0});
    Pin(model, {0, 0});
    Pin(model, {2, 0});
    Load(model, {1, 1}, 0, -1);
    return model;
}

INSTANTIATE_TEST_SUITE_P(Rows, Refusals,
                         testing::Values(Refused{"fourth support",
                                                 With(Triangle(),
                                                      [](auto& m) {
                                                          Pin(m, {2, 0});
                                                      }),
                                                 "Statically Indeterminate Truss",
                                                 kIndeterminateText},
                                         Refused{"too few supports",
                                                 With(Triangle(),
                                                      [](auto& m) {
                                                          PointOf(m, {2, 0}).SupportY = 0;
                                                      }),
                                                 "Unstable Truss", kUnstableText},
                                         Refused{"square with three supports",
                                                 With(Square(),
                                                      [](auto& m) {
                                                          PointOf(m, {1, 0}).SupportX = 0;
                                                      }),
                                                 "Unstable Truss", kUnstableText},
                                         Refused{"square with four supports", Square(),
                                                 "Truss Analysis Error", kErrorText},
                                         Refused{"three upright supports",
                                                 With(Triangle(),
                                                      [](auto& m) {
                                                          PointOf(m, {0, 0}).SupportX = 0;
                                                          PointOf(m, {1, 1}).SupportY = 1;
                                                      }),
                                                 "Truss Analysis Error", kErrorText},
                                         Refused{"slope of 1 in 5000", FlatTruss(0.002F),
                                                 "Truss Analysis Error", kErrorText}));

TEST(AnalyzeTruss, SolvesASlopeOfOneInFiveHundred)
{
    TrussModel model = FlatTruss(0.02F);
    EXPECT_FALSE(AnalyzeTruss(model).Failure);
}

TEST(AnalyzeTruss, DoesNotCountTheSupportOfAPointThatIsNoJoint)
{
    TrussModel model = Triangle();
    Pin(model, {3, 3});
    EXPECT_FALSE(AnalyzeTruss(model).Failure);
}

TEST(AnalyzeTruss, GivesOneVerdictAtEverySpacing)
{
    for (const float spacing : {0.01F, 1.0F, 250.0F, 1e6F}) {
        TrussModel good = Grid(2, 1, spacing, spacing);
        Add(good, {0, 0}, {2, 0});
        Add(good, {0, 0}, {1, 1});
        Add(good, {1, 1}, {2, 0});
        Pin(good, {0, 0});
        PointOf(good, {2, 0}).SupportY = 1;
        Load(good, {1, 1}, 0, -10);
        const TrussAnalysis analysis = AnalyzeTruss(good);
        ASSERT_FALSE(analysis.Failure) << spacing;
        EXPECT_TRUE(Near(analysis.Results.MemberForce[1], 5, 1e-6));
    }
}

TEST(AnalyzeTruss, TakesAnEmptyTableForSolved)
{
    TrussModel model = Grid(3, 3);
    UndoMember(model);
    const TrussAnalysis analysis = AnalyzeTruss(model);
    EXPECT_TRUE(analysis.Results.TrussSolved);
    EXPECT_TRUE(analysis.Results.MemberLines.empty());
}

/// Largest sum of forces at a joint that does not vanish.
double LargestResidual(const TrussModel& model, const TrussResults& results)
{
    std::vector<double> x(results.Joints.JointCount + 1, 0.0);
    std::vector<double> y = x;
    int m = 0;
    for (const TrussMember& member : model.Members()) {
        const double force = results.MemberForce[++m];
        const auto& a = model.GridPoints[member.FromPoint];
        const auto& b = model.GridPoints[member.ToPoint];
        const double length = std::hypot(b.X - a.X, b.Y - a.Y);
        const int from = results.Joints.GridToJoint[member.FromPoint];
        const int to = results.Joints.GridToJoint[member.ToPoint];
        x[from] += force * (b.X - a.X) / length;
        y[from] += force * (b.Y - a.Y) / length;
        x[to] -= force * (b.X - a.X) / length;
        y[to] -= force * (b.Y - a.Y) / length;
    }
    double largest = 0;
    for (int joint = 1; joint <= results.Joints.JointCount; ++joint) {
        const auto& point = model.GridPoints[results.Joints.JointGridPoint[joint]];
        largest = std::max({largest, std::abs(x[joint] + point.LoadX + results.ReactionX[joint]),
                            std::abs(y[joint] + point.LoadY + results.ReactionY[joint])});
    }
    return largest;
}

TEST(AnalyzeTruss, SolvesTwentyFourBays)
{
    TrussModel model = ParallelChords(24);
    EXPECT_EQ(model.MemberCount, 97);
    const TrussAnalysis analysis = AnalyzeTruss(model);
    ASSERT_FALSE(analysis.Failure);
    EXPECT_EQ(analysis.Results.Joints.JointCount, 50);
    EXPECT_LT(LargestResidual(model, analysis.Results), 1e-6 * 23 * 10);
    EXPECT_EQ(analysis.Results.JointName[26], "Z");
    EXPECT_EQ(analysis.Results.JointName[27], "a");
    EXPECT_EQ(analysis.Results.JointName[50], "x");
    EXPECT_THAT(analysis.Results.MemberNames, Contains("Ya")); // the smaller code first
    EXPECT_THAT(analysis.Results.ReactionLines, Contains(Local("wy = 115.000 Upward")));
}

class RandomTrusses : public testing::TestWithParam<unsigned> {};

TEST_P(RandomTrusses, AgreeWithAllJointEquationsAtOnce)
{
    TrussModel model = RandomTruss(GetParam(), 4 + GetParam() % 14);
    const auto wanted = SolveJoints(model);
    ASSERT_TRUE(wanted);
    const TrussAnalysis analysis = AnalyzeTruss(model);
    ASSERT_FALSE(analysis.Failure);
    double size = 1;
    for (const double force : wanted->Forces) size = std::max(size, std::abs(force));
    const double allowed = 2e-5 * size; // unit vectors are singles, and some trusses are flat
    for (std::size_t m = 0; m < wanted->Forces.size(); ++m)
        EXPECT_NEAR(analysis.Results.MemberForce[m + 1], wanted->Forces[m], allowed);
    const auto& joints = analysis.Results.Joints;
    for (const auto& [point, value] : wanted->ReactionX)
        EXPECT_NEAR(analysis.Results.ReactionX[joints.GridToJoint[point]], value, allowed);
    for (const auto& [point, value] : wanted->ReactionY)
        EXPECT_NEAR(analysis.Results.ReactionY[joints.GridToJoint[point]], value, allowed);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomTrusses, testing::Range(1U, 31U));

} // namespace
