#include "TrussCases.h"

#include <cmath>

using namespace forcelab::truss;
using namespace forcelab::truss::test;
using testing::ElementsAre;

namespace {

/// Proves that no member lengthens, no support gives way and the largest move is 1.
void ExpectRigidMotion(const TrussModel& model, const Mechanism& motion, double allowed = 1e-9)
{
    const JointList joints = BuildJointList(model);
    double largest = 0;
    for (int joint = 1; joint <= joints.JointCount; ++joint) {
        const TrussGridPoint& point = model.GridPoints[joints.JointGridPoint[joint]];
        if (point.SupportX == 1) {
            EXPECT_EQ(motion.MoveX[joint], 0);
        }
        if (point.SupportY == 1) {
            EXPECT_EQ(motion.MoveY[joint], 0);
        }
        largest = std::max(largest, std::hypot(motion.MoveX[joint], motion.MoveY[joint]));
    }
    EXPECT_TRUE(Near(largest, 1));
    for (const TrussMember& member : model.Members()) {
        const TrussGridPoint& a = model.GridPoints[member.FromPoint];
        const TrussGridPoint& b = model.GridPoints[member.ToPoint];
        const int from = joints.GridToJoint[member.FromPoint];
        const int to = joints.GridToJoint[member.ToPoint];
        const double length = std::hypot(b.X - a.X, b.Y - a.Y);
        const double longer = ((b.X - a.X) * (motion.MoveX[to] - motion.MoveX[from]) +
                               (b.Y - a.Y) * (motion.MoveY[to] - motion.MoveY[from])) /
                              length;
        EXPECT_NEAR(longer, 0, allowed);
    }
}

Mechanism MotionOf(TrussModel model)
{
    const auto analysis = AnalyzeTruss(model);
    EXPECT_TRUE(analysis.Motion);
    return analysis.Motion.value_or(Mechanism{});
}

TEST(Mechanism, SwaysTheSquare)
{
    const Mechanism motion = MotionOf(Square());
    ExpectRigidMotion(Square(), motion);
    EXPECT_THAT(motion.Moving, ElementsAre("B", "D")); // the two upper corners
    EXPECT_TRUE(Near(motion.MoveX[2], motion.MoveX[4]));
    EXPECT_EQ(motion.MoveY[2], 0);
}

TEST(Mechanism, MovesAWholeTrussWithoutASupportAcross)
{
    TrussModel model = Triangle();
    PointOf(model, {0, 0}).SupportX = 0;
    PointOf(model, {1, 1}).SupportY = 1;
    const Mechanism motion = MotionOf(model);
    ExpectRigidMotion(model, motion);
    EXPECT_THAT(motion.Moving, ElementsAre("A", "B", "C"));
    for (int joint = 1; joint <= 3; ++joint) EXPECT_TRUE(Near(std::abs(motion.MoveX[joint]), 1));
}

TEST(Mechanism, TurnsATrussAboutItsOnlyPin)
{
    TrussModel model = Triangle();
    PointOf(model, {2, 0}).SupportY = 0;
    PointOf(model, {2, 0}).SupportX = 1; // in line with the pin
    const Mechanism motion = MotionOf(model);
    ExpectRigidMotion(model, motion);
    EXPECT_THAT(motion.Moving, ElementsAre("B", "C"));
    EXPECT_TRUE(Near(motion.MoveX[2] / motion.MoveY[3], -0.5));
}

TEST(Mechanism, GivesOneOfSeveralMotions)
{
    TrussModel model = Square();
    PointOf(model, {1, 0}).SupportX = PointOf(model, {1, 0}).SupportY = 0;
    ExpectRigidMotion(model, MotionOf(model));
}

TEST(Mechanism, FindsTheBayWithoutADiagonal)
{
    TrussModel model = ParallelChords(6);
    const auto erased = EraseMember(model, model.PointAt(3, 0), model.PointAt(4, 1));
    ASSERT_TRUE(erased);
    ASSERT_EQ(Add(model, {1, 0}, {2, 1}), MemberRefusal::None); // one too many elsewhere
    const Mechanism motion = MotionOf(model);
    ExpectRigidMotion(model, motion);
}

TEST(Mechanism, GivesTheWeakestMotionWhereMembersBarelyResist)
{
    TrussModel model = Grid(2, 1, 10, 0.002F);
    Add(model, {0, 0}, {1, 1});
    Add(model, {1, 1}, {2, 0});
    Pin(model, {0, 0});
    Pin(model, {2, 0});
    Load(model, {1, 1}, 0, -1);
    const Mechanism motion = MotionOf(model);
    ExpectRigidMotion(model, motion, 1e-3);
    EXPECT_THAT(motion.Moving, ElementsAre("B"));
    EXPECT_TRUE(Near(std::abs(motion.MoveY[2]), 1, 1e-3));
}

} // namespace
