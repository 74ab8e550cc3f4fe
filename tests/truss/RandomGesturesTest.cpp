#include "TrussCases.h"

#include <set>

using namespace forcelab;
using namespace forcelab::truss;
using namespace forcelab::truss::test;

namespace {

/// What holds of a model after any gesture.
void ExpectValid(const TrussModel& model)
{
    ASSERT_GE(model.MemberCount, -1);
    ASSERT_LE(model.MemberCount, kMaxMembers);
    std::set<std::pair<int, int>> pairs;
    std::set<int> ends;
    for (const TrussMember& member : model.Members()) {
        ASSERT_GE(member.FromPoint, 0);
        ASSERT_LT(member.FromPoint, member.ToPoint);
        ASSERT_LT(member.ToPoint, model.GridPointCount);
        ASSERT_TRUE(pairs.emplace(member.FromPoint, member.ToPoint).second);
        ends.insert({member.FromPoint, member.ToPoint});
    }
    for (const int end : ends) ASSERT_EQ(model.GridPointBlocked[end], 0); // they only meet at ends
    const JointList joints = BuildJointList(model);
    ASSERT_EQ(joints.JointCount, static_cast<int>(ends.size()));
    for (int joint = 1; joint <= joints.JointCount; ++joint)
        ASSERT_TRUE(ends.contains(joints.JointGridPoint[joint]));
    for (const TrussGridPoint& point : model.GridPoints) {
        ASSERT_TRUE(point.SupportX == 0 || point.SupportX == 1);
        ASSERT_TRUE(point.SupportY == 0 || point.SupportY == 1);
        ASSERT_TRUE(std::isfinite(point.LoadX) && std::isfinite(point.LoadY));
    }
}

/// A person who does not know what the program wants.
class Fumbler {
  public:
    explicit Fumbler(unsigned seed) : random_(seed), model_(Grid(4, 3)) {}

    void Act()
    {
        switch (random_() % 12) {
        case 0:
            return UndoMember(model_);
        case 1:
            if (random_() % 40 == 0)
                DefineGrid(model_, {Pick(52) - 1, Pick(12), std::to_string(Pick(20)), "7"});
            return;
        case 2:
            (void)AnalyzeTruss(model_);
            return;
        default:
            return Drag();
        }
    }
    [[nodiscard]] const TrussModel& Model() const { return model_; }

  private:
    int Pick(int count) { return static_cast<int>(random_() % count); }
    double Anywhere(int spaces, float spacing)
    {
        return std::uniform_real_distribution<double>(-0.3, 1.3)(random_) * spaces * spacing;
    }
    int AnyMode()
    {
        constexpr std::array kModes{0, 0, 0, 0, 0, 0, 1, 2, 10, 11, 12, 3};
        return kModes[Pick(static_cast<int>(kModes.size()))];
    }
    void Drag()
    {
        const int mode = AnyMode();
        const auto x = [this] { return Anywhere(model_.GridSpacesX, model_.GridSpacingX); };
        const auto y = [this] { return Anywhere(model_.GridSpacesY, model_.GridSpacingY); };
        DragState drag = PressPoint(model_, mode, x(), y(), Pick(10) != 0);
        for (int moves = Pick(3); moves > 0; --moves) DragTo(model_, mode, drag, x(), y());
        (void)BandOf(model_, mode, drag);
        // Sometimes the mode is changed by a key while the button is held.
        const auto outcome = ReleasePoint(model_, Pick(20) ? mode : AnyMode(), drag, x(), y());
        if (outcome.Question) StoreJointLoad(model_, *outcome.Question, std::to_string(Pick(99)));
        EXPECT_FALSE(drag.DragActive);
    }

    std::mt19937 random_;
    TrussModel model_;
};

class Fumbling : public testing::TestWithParam<unsigned> {};

TEST_P(Fumbling, TenThousandGesturesLeaveAValidModel)
{
    Fumbler fumbler(GetParam());
    int most = 0;
    for (int gesture = 0; gesture < 10000; ++gesture) {
        fumbler.Act();
        ExpectValid(fumbler.Model());
        if (HasFatalFailure()) FAIL() << "after gesture " << gesture;
        most = std::max(most, fumbler.Model().MemberCount);
    }
    EXPECT_GT(most, 5);
}

INSTANTIATE_TEST_SUITE_P(Seeds, Fumbling, testing::Values(1U, 2U, 3U));

TEST(Fumbling, FillsTheTableAndNoMore)
{
    TrussModel model = Grid(20, 20);
    std::mt19937 random(9);
    for (int gesture = 0; gesture < 10000; ++gesture)
        AddMember(model, static_cast<int>(random() % 441), static_cast<int>(random() % 441));
    EXPECT_EQ(model.MemberCount, kMaxMembers);
    ExpectValid(model);
}

} // namespace
