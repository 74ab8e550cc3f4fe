// Trusses worked by hand with the method of joints, as every textbook of statics does it. Printed
// results are compared to the last digit.

#include "truss/TrussCases.h"

#include <cmath>

using namespace forcelab;
using namespace forcelab::truss;
using namespace forcelab::truss::test;

namespace {

TrussResults Solve(TrussModel model)
{
    TrussAnalysis analysis = AnalyzeTruss(model);
    EXPECT_FALSE(analysis.Failure);
    return analysis.Results;
}

std::vector<std::string> LocalLines(std::vector<std::string> lines)
{
    for (std::string& line : lines) line = Local(line);
    return lines;
}

/// Each support takes half; the rafters stand at 45 degrees: 5 / sin 45 = 7.071, chord 5.
TEST(TrussByHand, Triangle)
{
    const TrussResults results = Solve(Triangle());
    EXPECT_EQ(results.MemberLines, LocalLines({"AC = 5.000 Tension", "AB = 7.071 Compression",
                                               "BC = 7.071 Compression"}));
    EXPECT_EQ(results.ReactionLines,
              LocalLines({"Ax = 0.000 Right to Left", "Ay = 5.000 Upward", "Cy = 5.000 Upward"}));
}

/// Moments about the pin: 10 x 2 / 6 = 3.333. Rafters 6.667 x sqrt 2 and 3.333 x sqrt 5, both
/// chords 6.667, the post carries the load.
TEST(TrussByHand, KingPostOffCentre)
{
    const TrussResults results = Solve(KingPost());
    EXPECT_EQ(results.MemberLines,
              LocalLines({"AB = 6.667 Tension", "BD = 6.667 Tension", "AC = 9.428 Compression",
                          "CD = 7.454 Compression", "BC = 10.000 Tension"}));
    // Nothing pushes across: what is left of the rounding decides between the two directions.
    ASSERT_EQ(results.ReactionLines.size(), 3U);
    EXPECT_THAT(results.ReactionLines[0], testing::StartsWith(Local("Ax = 0.000 ")));
    EXPECT_EQ(results.ReactionLines[1], Local("Ay = 6.667 Upward"));
    EXPECT_EQ(results.ReactionLines[2], Local("Dy = 3.333 Upward"));
}

/// Two bars from a wall, 3 apart and 4 long: 12 down at the tip. The lower, level bar takes
/// 12 x 4 / 3 = 16, the upper 12 x 5 / 3 = 20. The pins take 16 each way and 12 upward.
TEST(TrussByHand, WallBracket)
{
    TrussModel model = Grid(4, 3, 1, 1);
    Add(model, {0, 0}, {4, 0});
    Add(model, {0, 3}, {4, 0});
    Pin(model, {0, 0});
    Pin(model, {0, 3});
    Load(model, {4, 0}, 0, -12);
    const TrussResults results = Solve(model);
    EXPECT_EQ(results.MemberLines, LocalLines({"AC = 16.000 Compression", "BC = 20.000 Tension"}));
    ASSERT_EQ(results.ReactionLines.size(), 4U);
    EXPECT_EQ(results.ReactionLines[0], Local("Ax = 16.000 Left to Right"));
    EXPECT_EQ(results.ReactionLines[2], Local("Bx = 16.000 Right to Left"));
    EXPECT_EQ(results.ReactionLines[3], Local("By = 12.000 Upward"));
}

/// Parallel chords of n square bays and unit side: by the method of sections the chord over a bay
/// carries the beam's moment at the opposite joint over the height, the diagonal its shear times
/// the square root of 2.
TEST(TrussByHand, ParallelChordsAgainstTheBeam)
{
    constexpr int kBays = 8;
    const TrussModel model = ParallelChords(kBays);
    const TrussResults results = Solve(model);
    const double reaction = (kBays - 1) * 10.0 / 2;
    int m = 0;
    for (const TrussMember& member : model.Members()) {
        ++m;
        const TrussGridPoint& a = model.GridPoints[member.FromPoint];
        const TrussGridPoint& b = model.GridPoints[member.ToPoint];
        const int bay = static_cast<int>(a.X / 10);
        if (b.X == a.X || 2 * bay >= kBays) continue; // the left half, without posts
        const auto moment = [&](int joint) {
            return reaction * 10 * joint - 10.0 * 10 * joint * (joint - 1) / 2;
        };
        const double chord = a.Y == 0 ? moment(bay) / 10 : -moment(bay + 1) / 10;
        const double diagonal = (reaction - 10 * bay) * std::sqrt(2.0);
        EXPECT_NEAR(results.MemberForce[m], a.Y != b.Y ? diagonal : chord, 1e-4);
    }
}

/// Three-hinged arch of two bars over a span of 8 and a rise of 3: 15 down at the crown. Each bar
/// 15 / 2 x 5 / 3 = 12.5, thrust 10.
TEST(TrussByHand, ThreeHingedArch)
{
    TrussModel model = Grid(2, 1, 4, 3);
    Add(model, {0, 0}, {1, 1});
    Add(model, {1, 1}, {2, 0});
    Pin(model, {0, 0});
    Pin(model, {2, 0});
    Load(model, {1, 1}, 0, -15);
    const TrussResults results = Solve(model);
    EXPECT_EQ(results.MemberLines,
              LocalLines({"AB = 12.500 Compression", "BC = 12.500 Compression"}));
    EXPECT_EQ(results.ReactionLines,
              LocalLines({"Ax = 10.000 Left to Right", "Ay = 7.500 Upward",
                          "Cx = 10.000 Right to Left", "Cy = 7.500 Upward"}));
}

} // namespace
