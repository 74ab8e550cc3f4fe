#include "TrussCases.h"

#include "core/ArithmeticFault.h"

using namespace forcelab;
using namespace forcelab::truss;
using namespace forcelab::truss::test;

namespace {

TEST(DefineGrid, LaysPointsColumnByColumn)
{
    TrussModel model;
    EXPECT_FALSE(model.HasGrid());
    EXPECT_TRUE(DefineGrid(model, {4, 2, Local("2.5"), Local("-10.0")}));
    EXPECT_EQ(model.GridPointCount, 15);
    EXPECT_EQ(model.GridPoints.size(), 16U);
    EXPECT_EQ(model.PointAt(3, 1), 10);
    EXPECT_EQ(model.GridPoints[10].X, 7.5F);
    EXPECT_EQ(model.GridPoints[10].Y, 10.0F);
    EXPECT_EQ(model.GridPoints[14].X, 10.0F);
}

TEST(DefineGrid, RemovesMembersSupportsAndLoads)
{
    TrussModel model = Triangle();
    EXPECT_TRUE(DefineGrid(model, {3, 3, "10", "10"}));
    EXPECT_EQ(model.MemberCount, 0);
    EXPECT_EQ(PointOf(model, {0, 0}).SupportX, 0);
    EXPECT_EQ(PointOf(model, {1, 1}).LoadY, 0);
    EXPECT_EQ(model.GridPointBlocked[model.PointAt(1, 0)], 0);
}

class AbsurdSpacings : public testing::TestWithParam<const char*> {};

TEST_P(AbsurdSpacings, KeepTheOldGrid)
{
    TrussModel model = Triangle();
    EXPECT_FALSE(DefineGrid(model, {9, 9, Local(GetParam()), "10"}));
    EXPECT_FALSE(DefineGrid(model, {9, 9, "10", Local(GetParam())}));
    EXPECT_EQ(model.MemberCount, 3);
    EXPECT_EQ(model.GridSpacesX, 3);
    EXPECT_EQ(model.GridPointCount, 16);
}

INSTANTIATE_TEST_SUITE_P(Texts, AbsurdSpacings,
                         testing::Values("0", "", "abc", "0.0001", "1e-30", "1e+12", "1e+300"));

TEST(DefineGrid, KeepsTheOldGridOnOverflow)
{
    TrussModel model = Triangle();
    EXPECT_THROW(DefineGrid(model, {9, 9, "1e+400", "10"}), ArithmeticFault);
    EXPECT_EQ(model.MemberCount, 3);
    EXPECT_EQ(model.GridSpacesX, 3);
}

TEST(DefineGrid, HoldsTheSpacesToFifty)
{
    TrussModel model;
    EXPECT_TRUE(DefineGrid(model, {0, 51, "1", "1"}));
    EXPECT_EQ(model.GridSpacesX, 1);
    EXPECT_EQ(model.GridSpacesY, 50);
}

TEST(SetGridScale, LeavesMarginsOfNearlyHalfASpacing)
{
    const TrussScale scale = SetGridScale(Grid(3, 3));
    // 0.45 x 10 = 4.5 is more than (30 + 9) / 9.
    EXPECT_TRUE(Near(scale.Left, -4.5));
    EXPECT_TRUE(Near(scale.Top, 34.5));
    EXPECT_TRUE(Near(scale.Right, 34.5));
    EXPECT_TRUE(Near(scale.Bottom, -4.5));
    EXPECT_TRUE(Near(scale.LoadArrowX, 3.9));
    EXPECT_TRUE(Near(scale.ArrowHeadX, 1.3));
    EXPECT_TRUE(Near(scale.ArrowHeadY, 1.56));
}

TEST(SetGridScale, WidensTheMarginsOfManySpaces)
{
    const TrussScale scale = SetGridScale(Grid(50, 1, 2, 10));
    const double margin = (100 + 2 * 0.9) / 9;
    EXPECT_TRUE(Near(scale.Left, -margin));
    EXPECT_TRUE(Near(scale.Right, 100 + margin));
    EXPECT_TRUE(Near(scale.LoadArrowX, (100 + 2 * margin) / 10));
    EXPECT_TRUE(Near(scale.Top, 14.5));
    EXPECT_TRUE(Near(scale.LoadArrowY, 1.9));
    EXPECT_TRUE(Near(scale.ArrowHeadY, 0.76));
}

struct Snap {
    double X, Y;
    At Point;
};
class Snapping : public testing::TestWithParam<Snap> {};

TEST_P(Snapping, TakesTheNearestPoint)
{
    const TrussModel model = Grid(3, 4);
    const Snap& snap = GetParam();
    EXPECT_EQ(SnapToGrid(model, snap.X, snap.Y), model.PointAt(snap.Point.I, snap.Point.J));
}

INSTANTIATE_TEST_SUITE_P(Places, Snapping,
                         testing::Values(Snap{0, 0, {0, 0}}, Snap{14.9, 15.1, {1, 2}},
                                         Snap{5, 15, {0, 2}},  // halves to even
                                         Snap{25, 25, {2, 2}}, // both halves
                                         Snap{-100, 500, {0, 4}}, Snap{1e9, -1e9, {3, 0}},
                                         Snap{34.6, 44.4, {3, 4}}));

TEST(TrussModel, TellsJointsByTheMembersInUse)
{
    TrussModel model = Triangle();
    EXPECT_TRUE(model.IsJoint(model.PointAt(1, 1)));
    EXPECT_FALSE(model.IsJoint(model.PointAt(1, 0)));
    UndoMember(model);
    UndoMember(model);
    EXPECT_FALSE(model.IsJoint(model.PointAt(1, 1)));
}

} // namespace
