#include "TrussCases.h"

using namespace forcelab::truss;
using namespace forcelab::truss::test;

namespace {

struct Attempt {
    const char* Name;
    std::vector<std::pair<At, At>> Before;
    At From, To;
    MemberRefusal Refused;
};

void PrintTo(const Attempt& row, std::ostream* out)
{
    *out << row.Name;
}

class Attempts : public testing::TestWithParam<Attempt> {};

TEST_P(Attempts, MeetTheFirstBrokenRule)
{
    const Attempt& row = GetParam();
    for (const bool turned : {false, true}) {
        TrussModel model = Grid(10, 10, 1, 1);
        for (const auto& [from, to] : row.Before)
            ASSERT_EQ(Add(model, from, to), MemberRefusal::None);
        const int before = model.MemberCount;
        EXPECT_EQ(Add(model, turned ? row.To : row.From, turned ? row.From : row.To), row.Refused);
        EXPECT_EQ(model.MemberCount, before + (row.Refused == MemberRefusal::None ? 1 : 0));
    }
}

using enum MemberRefusal;
INSTANTIATE_TEST_SUITE_P(
    Rows, Attempts,
    testing::Values(
        Attempt{"first member", {}, {0, 0}, {1, 0}, None},
        Attempt{"a click", {}, {2, 2}, {2, 2}, SamePoint},
        Attempt{"a click on a blocked point", {{{0, 0}, {4, 4}}}, {2, 2}, {2, 2}, SamePoint},
        Attempt{"the same again", {{{0, 0}, {3, 2}}}, {0, 0}, {3, 2}, Duplicate},
        Attempt{"end inside another", {{{0, 0}, {4, 4}}}, {2, 2}, {5, 0}, EndBlocked},
        Attempt{"both ends inside", {{{0, 0}, {4, 4}}}, {1, 1}, {3, 3}, EndBlocked},
        Attempt{"partly along another", {{{0, 0}, {4, 4}}}, {2, 2}, {6, 6}, EndBlocked},
        Attempt{"over a joint", {{{1, 1}, {1, 4}}}, {0, 0}, {3, 3}, CoversJoint},
        Attempt{"over a whole member", {{{1, 1}, {2, 2}}}, {0, 0}, {3, 3}, CoversJoint},
        Attempt{"longer from the same end", {{{0, 0}, {2, 0}}}, {0, 0}, {3, 0}, CoversJoint},
        Attempt{"goes on in line", {{{0, 0}, {2, 0}}}, {2, 0}, {3, 0}, None},
        Attempt{"goes on upright", {{{3, 0}, {3, 2}}}, {3, 2}, {3, 5}, None},
        Attempt{"goes on along x = y", {{{0, 0}, {2, 2}}}, {2, 2}, {5, 5}, None},
        Attempt{"apart in line", {{{0, 1}, {2, 2}}}, {4, 3}, {6, 4}, None},
        Attempt{"parallel", {{{0, 0}, {4, 0}}}, {0, 1}, {4, 1}, None},
        Attempt{"crossing between joints", {{{0, 0}, {3, 2}}}, {0, 2}, {3, 0}, None}));

/// Two long members that leave one joint on the y axis at nearly one slope have equal constants:
/// they count as lying along each other.
TEST(MembersOverlap, RefusesAnotherMemberOfNearlyTheSameSlope)
{
    TrussModel model = Grid(50, 2, 10, 2);
    ASSERT_EQ(Add(model, {0, 0}, {50, 1}), None);
    EXPECT_EQ(Add(model, {0, 0}, {50, 2}), Overlaps);
    EXPECT_EQ(Add(model, {0, 1}, {50, 2}), None);
}

TEST(MembersOverlap, ComparesDistancesOnTheLineThroughItsOwnOrigin)
{
    TrussModel model = Grid(9, 9);
    const auto overlap = [&](int a, int b) {
        const TrussMember member{short(model.PointAt(3, 3)), short(model.PointAt(6, 6)), 0, 0};
        return MembersOverlap(model, model.PointAt(a, a), model.PointAt(b, b), member);
    };
    EXPECT_TRUE(overlap(2, 4));
    EXPECT_TRUE(overlap(4, 5));
    EXPECT_TRUE(overlap(5, 8));
    EXPECT_TRUE(overlap(1, 9));
    EXPECT_FALSE(overlap(1, 3)); // touching ends do not overlap
    EXPECT_FALSE(overlap(6, 9));
    EXPECT_FALSE(overlap(7, 9));
}

TEST(MembersOverlap, ComparesSlopesToItsOwnOrigin)
{
    TrussModel model = Grid(9, 9);
    const TrussMember member{short(model.PointAt(3, 0)), short(model.PointAt(6, 0)), 0, 0};
    const auto overlap = [&](At a, At b) {
        return MembersOverlap(model, model.PointAt(a.I, a.J), model.PointAt(b.I, b.J), member);
    };
    EXPECT_TRUE(overlap({4, 0}, {9, 0}));
    EXPECT_TRUE(overlap({0, 0}, {9, 0}));
    EXPECT_FALSE(overlap({0, 0}, {3, 0}));
    EXPECT_FALSE(overlap({6, 0}, {9, 0}));
    EXPECT_FALSE(overlap({3, 1}, {6, 1}));
    EXPECT_FALSE(overlap({3, 0}, {3, 5}));
}

TEST(MarkInteriorPoints, FollowsEveryEdit)
{
    TrussModel model = Grid(4, 4);
    const auto blocked = [&] {
        return std::count(model.GridPointBlocked.begin(), model.GridPointBlocked.end(), 1);
    };
    Add(model, {0, 0}, {4, 4});
    EXPECT_EQ(blocked(), 3);
    Add(model, {0, 0}, {4, 0});
    EXPECT_EQ(blocked(), 6);
    UndoMember(model);
    EXPECT_EQ(blocked(), 3);
    EXPECT_TRUE(EraseMember(model, model.PointAt(4, 4), model.PointAt(0, 0)));
    EXPECT_EQ(blocked(), 0);
}

TEST(MemberTable, HoldsAHundredMembers)
{
    TrussModel model = Grid(50, 50, 1, 1);
    for (int k = 0; k < 50; ++k) {
        EXPECT_EQ(Add(model, {k, 0}, {k + 1, 0}), None);
        EXPECT_EQ(Add(model, {k, 1}, {k + 1, 1}), None);
    }
    EXPECT_EQ(model.MemberCount, kMaxMembers);
    EXPECT_EQ(Add(model, {0, 5}, {1, 6}), TableFull);
    EXPECT_EQ(model.MemberCount, kMaxMembers);
    UndoMember(model);
    EXPECT_EQ(Add(model, {0, 5}, {1, 6}), None);
}

} // namespace
