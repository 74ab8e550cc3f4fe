#include "TrussCases.h"

#include "core/ArithmeticFault.h"

using namespace forcelab;
using namespace forcelab::truss;
using namespace forcelab::truss::test;

namespace {

ReleaseOutcome Gesture(TrussModel& model, int mode, double x1, double y1, double x2, double y2)
{
    DragState drag = PressPoint(model, mode, x1, y1, true);
    DragTo(model, mode, drag, x2, y2);
    return ReleasePoint(model, mode, drag, x2, y2);
}

TEST(MemberGestures, DrawAndTraceAMember)
{
    TrussModel model = Grid(3, 3);
    EXPECT_TRUE(Gesture(model, kCreateMembers, 21, 9, 1, 1).Redraw);
    ASSERT_EQ(model.MemberCount, 1);
    EXPECT_EQ(model.TrussMembers[1].FromPoint, model.PointAt(0, 0)); // put in order
    EXPECT_EQ(model.TrussMembers[1].ToPoint, model.PointAt(2, 1));
    EXPECT_EQ(Gesture(model, kCreateMembers, 9, 9, 9, 9).Refused, MemberRefusal::SamePoint);
    Gesture(model, kEraseMembers, 0, 0, 10, 10); // matches no member
    EXPECT_EQ(model.MemberCount, 1);
    Gesture(model, kEraseMembers, 0, 0, 20, 10);
    EXPECT_EQ(model.MemberCount, 0);
}

TEST(MemberGestures, BeyondTheGridSnapToItsBorder)
{
    TrussModel model = Grid(3, 3);
    Gesture(model, kCreateMembers, -1000, -1000, 1000, 11);
    EXPECT_EQ(model.TrussMembers[1].FromPoint, model.PointAt(0, 0));
    EXPECT_EQ(model.TrussMembers[1].ToPoint, model.PointAt(3, 1));
}

TEST(EraseMember, ShiftsTheRestAndFreesItsJoints)
{
    TrussModel model = Triangle();
    Load(model, {2, 0}, 4, 4);
    EXPECT_TRUE(EraseMember(model, model.PointAt(0, 0), model.PointAt(2, 0)));
    EXPECT_EQ(model.MemberCount, 2);
    EXPECT_EQ(model.TrussMembers[1].ToPoint, model.PointAt(1, 1));
    EXPECT_EQ(PointOf(model, {2, 0}).SupportY, 1); // the rafter is still there
    EXPECT_TRUE(EraseMember(model, model.PointAt(2, 0), model.PointAt(1, 1)));
    EXPECT_EQ(PointOf(model, {2, 0}).SupportY, 0);
    EXPECT_EQ(PointOf(model, {2, 0}).LoadX, 0);
    EXPECT_EQ(PointOf(model, {2, 0}).LoadY, 0);
    EXPECT_EQ(PointOf(model, {0, 0}).SupportX, 1);
    EXPECT_FALSE(EraseMember(model, model.PointAt(2, 0), model.PointAt(1, 1)));
}

TEST(SupportGestures, FollowTheStrongerAxis)
{
    TrussModel model = Triangle();
    TrussGridPoint& top = PointOf(model, {1, 1});
    Gesture(model, kCreateSupports, 10, 10, 17, 12);
    EXPECT_EQ(top.SupportX, 1);
    EXPECT_EQ(top.SupportY, 0);
    Gesture(model, kCreateSupports, 10, 10, 13, 7); // equal: upright
    EXPECT_EQ(top.SupportY, 1);
    Gesture(model, kEraseSupports, 10, 10, 2, 10);
    EXPECT_EQ(top.SupportX, 0);
    EXPECT_EQ(top.SupportY, 1);
    Gesture(model, kEraseSupports, 10, 10, 10, 10);
    EXPECT_EQ(top.SupportY, 0);
}

TEST(SupportGestures, ClickBesideAJointSupportsItUpright)
{
    TrussModel model = Triangle();
    Gesture(model, kCreateSupports, 12, 10.5, 12, 10.5);
    EXPECT_EQ(PointOf(model, {1, 1}).SupportY, 1);
    EXPECT_EQ(PointOf(model, {1, 1}).SupportX, 0);
}

// Far outside the grid the mouse counts as being at its border, on the press and on the release.
TEST(SupportGestures, CountFromTheBorderOfTheGrid)
{
    TrussModel model = Triangle();
    TrussGridPoint& corner = PointOf(model, {0, 0});
    corner.SupportX = corner.SupportY = 0;
    Gesture(model, kCreateSupports, -100, 0, -20, 1); // 1 up, and nothing across
    EXPECT_EQ(corner.SupportY, 1);
    EXPECT_EQ(corner.SupportX, 0);
    Gesture(model, kCreateSupports, 0, 0, -90, -4); // 4.5 across
    EXPECT_EQ(corner.SupportX, 1);
    Gesture(model, kEraseSupports, 0, 0, -90, -60); // both 4.5: upright
    EXPECT_EQ(corner.SupportY, 0);
    EXPECT_EQ(corner.SupportX, 1);
}

TEST(SupportGestures, CountOnJointsOnly)
{
    TrussModel model = Triangle();
    for (const int mode : {kCreateSupports, kCreateLoads, kEraseSupports, kEraseLoads}) {
        EXPECT_FALSE(PressPoint(model, mode, 30, 30, true).DragActive);
        EXPECT_TRUE(PressPoint(model, mode, 10, 10, true).DragActive);
        EXPECT_FALSE(PressPoint(model, mode, 10, 10, false).DragActive);
        EXPECT_FALSE(PressPoint(Grid(3, 3), mode, 10, 10, true).DragActive);
    }
    EXPECT_FALSE(Gesture(model, kCreateSupports, 30, 30, 30, 39).Redraw);
    EXPECT_EQ(PointOf(model, {3, 3}).SupportY, 0);
    EXPECT_FALSE(PressPoint(TrussModel{}, kCreateMembers, 0, 0, true).DragActive);
    EXPECT_FALSE(PressPoint(model, 7, 10, 10, true).DragActive);
}

struct LoadRow {
    double X, Y;
    const char* Prompt;
    float LoadX, LoadY;
};
class LoadGestures : public testing::TestWithParam<LoadRow> {};

TEST_P(LoadGestures, AskForTheSizeInTheirDirection)
{
    const LoadRow& row = GetParam();
    TrussModel model = Triangle();
    Load(model, {1, 1}, 0, 0);
    const auto outcome = Gesture(model, kCreateLoads, 10, 10, row.X, row.Y);
    ASSERT_TRUE(outcome.Question);
    EXPECT_EQ(outcome.Question->Prompt(), row.Prompt);
    EXPECT_EQ(PointOf(model, {1, 1}).LoadY, 0); // nothing before the answer
    EXPECT_EQ(StoreJointLoad(model, *outcome.Question, Local("-12.5")), Local("12.5"));
    EXPECT_EQ(PointOf(model, {1, 1}).LoadX, row.LoadX);
    EXPECT_EQ(PointOf(model, {1, 1}).LoadY, row.LoadY);
    EXPECT_EQ(StoreJointLoad(model, *outcome.Question, "3"), "3"); // replaces
    EXPECT_EQ(PointOf(model, {1, 1}).LoadX, row.LoadX / 12.5F * 3);
    Gesture(model, kEraseLoads, 10, 10, row.X, row.Y);
    EXPECT_EQ(PointOf(model, {1, 1}).LoadX, 0);
    EXPECT_EQ(PointOf(model, {1, 1}).LoadY, 0);
}

INSTANTIATE_TEST_SUITE_P(Directions, LoadGestures,
                         testing::Values(LoadRow{10, 10, "(upward direction)", 0, 12.5F},
                                         LoadRow{11, 14, "(upward direction)", 0, 12.5F},
                                         LoadRow{10, 3, "(downward direction)", 0, -12.5F},
                                         LoadRow{17, 3, "(downward direction)", 0, -12.5F},
                                         LoadRow{14, 9, "(left to right direction)", 12.5F, 0},
                                         LoadRow{3, 11, "(right to left direction)", -12.5F, 0}));

TEST(StoreJointLoad, RefusesWhatDoesNotFit)
{
    TrussModel model = Triangle();
    const LoadQuestion question{model.PointAt(1, 1), 0, -1};
    EXPECT_THROW(StoreJointLoad(model, question, "1e+39"), ArithmeticFault);
    EXPECT_THROW(StoreJointLoad(model, question, "1e+400"), ArithmeticFault);
    EXPECT_EQ(PointOf(model, {1, 1}).LoadY, -10);
    EXPECT_EQ(StoreJointLoad(model, question, "no number"), "0");
    EXPECT_EQ(PointOf(model, {1, 1}).LoadY, 0);
}

TEST(UndoMember, GoesOneBelowAnEmptyTable)
{
    TrussModel model = Grid(3, 3);
    Add(model, {0, 0}, {1, 0});
    for (int count : {0, -1, -1}) {
        UndoMember(model);
        EXPECT_EQ(model.MemberCount, count);
    }
    EXPECT_TRUE(model.Members().empty());
    EXPECT_EQ(Add(model, {0, 0}, {1, 1}), MemberRefusal::None); // goes to slot 0
    EXPECT_EQ(model.MemberCount, 0);
    EXPECT_EQ(model.TrussMembers[0].ToPoint, model.PointAt(1, 1));
    EXPECT_EQ(BuildJointList(model).JointCount, 0);
    EXPECT_EQ(Add(model, {0, 0}, {1, 1}), MemberRefusal::None); // not counted, so not a second
    EXPECT_EQ(model.MemberCount, 1);
    EXPECT_EQ(BuildJointList(model).JointCount, 2);
}

TEST(ComputeEnabled, WantsMembersThreeSupportsAndALoad)
{
    TrussModel model = Triangle();
    EXPECT_EQ(ComputeEnabled(model), true);
    PointOf(model, {1, 1}).LoadY = 0;
    EXPECT_EQ(ComputeEnabled(model), false);
    PointOf(model, {1, 1}).LoadX = 1;
    PointOf(model, {2, 0}).SupportY = 0;
    EXPECT_EQ(ComputeEnabled(model), false);
    EXPECT_EQ(ComputeEnabled(Grid(3, 3)), std::nullopt);
    EXPECT_EQ(ComputeEnabled(TrussModel{}), std::nullopt);
}

TEST(RubberBands, FollowTheMouseOrTheAxis)
{
    const TrussModel model = Triangle();
    const auto band = [&](int mode, double x, double y) {
        DragState drag = PressPoint(model, mode, 10, 10, true);
        DragTo(model, mode, drag, x, y);
        return BandOf(model, mode, drag);
    };
    const auto free = band(kEraseMembers, 17, 12);
    EXPECT_EQ(free.Width, 5);
    EXPECT_EQ(free.Strokes[0].X2, 17);
    EXPECT_EQ(free.Strokes[0].Y2, 12);
    const auto support = band(kCreateSupports, 3, 12);
    EXPECT_EQ(support.Width, 4);
    EXPECT_EQ(support.Strokes[0].X2, 5); // half a spacing to the left
    EXPECT_EQ(support.Strokes[0].Y2, 10);
    EXPECT_EQ(band(kEraseSupports, 10, 2).Width, 7);
    EXPECT_EQ(band(kEraseSupports, 10, 2).Strokes[0].Y2, 5);
    const auto load = band(kCreateLoads, 10, 2);
    EXPECT_EQ(load.Width, 3);
    ASSERT_EQ(load.Strokes.size(), 3U);
    EXPECT_TRUE(Near(load.Strokes[0].Y2, 10 - 3.9));
    for (const int side : {1, 2}) { // from the tip back up, a quarter of a head to either side
        EXPECT_TRUE(Near(load.Strokes[side].Y2, 10 - 3.9 + 1.56));
        EXPECT_TRUE(Near(std::abs(load.Strokes[side].X2 - 10), 1.3 / 4));
    }
    EXPECT_TRUE(BandOf(model, kCreateMembers, {}).Strokes.empty());
}

struct TextRow {
    int Mode;
    ChangedBy By;
    const char* Text;
};
class InstructionTexts : public testing::TestWithParam<TextRow> {};

TEST_P(InstructionTexts, FollowTheModeAndTheGroup)
{
    EXPECT_EQ(InstructionText(GetParam().Mode, GetParam().By), GetParam().Text);
}

constexpr const char* kMembersText =
    "To define a truss member, click on the desired starting grid point with the left mouse button "
    "and drag to the desired ending grid point.\r\n\r\nRemember, truss members can only be "
    "connected and loaded at their end points.";
constexpr const char* kLoadsText =
    "To specify a load, click on the desired truss joint with the left mouse button and drag "
    "either up, down, left, or right.\r\n\r\nAfter releasing the mouse button, a box will appear "
    "in which the force magnitude is entered.";
constexpr const char* kNoSupportText =
    "Using the left mouse button, click at the desired joint and drag in the direction for which "
    "the support is to be removed.";
constexpr const char* kNoLoadText = "Using the left mouse button, click at the desired joint and "
                                    "drag in the direction of the load to be removed.";
constexpr const char* kTraceText = "Using the mouse, trace over the member to be removed.";
INSTANTIATE_TEST_SUITE_P(
    All, InstructionTexts,
    testing::Values(
        TextRow{kCreateMembers, ChangedBy::Define, kMembersText},
        TextRow{kCreateMembers, ChangedBy::MakeOrTake, kMembersText},
        TextRow{kCreateSupports, ChangedBy::Define,
                "Click on the supported truss joint with the left mouse button and drag in either "
                "the X- or Y-direction.\r\n\r\nA statically determinate truss requires three "
                "support conditions.  Usually one joint is pinned while a second joint is "
                "supported with a roller."},
        TextRow{kCreateSupports, ChangedBy::MakeOrTake,
                "To define a support, click on the desired truss joint with the left mouse button "
                "and drag in either the X- or Y-direction.\r\n\r\nA statically determinate truss "
                "requires three support conditions.\r\n\r\nUsually one joint will be supported in "
                "both the X- and Y-directions while a second joint is supported in either the X- "
                "or Y-direction."},
        TextRow{kCreateLoads, ChangedBy::Define, kLoadsText},
        TextRow{kCreateLoads, ChangedBy::MakeOrTake, kLoadsText},
        TextRow{kEraseMembers, ChangedBy::Define, kTraceText},
        TextRow{kEraseMembers, ChangedBy::MakeOrTake, kTraceText},
        TextRow{kEraseSupports, ChangedBy::Define, kNoSupportText},
        TextRow{kEraseSupports, ChangedBy::MakeOrTake, kNoSupportText},
        TextRow{kEraseLoads, ChangedBy::Define, kNoLoadText},
        TextRow{kEraseLoads, ChangedBy::MakeOrTake, kNoLoadText},
        TextRow{5, ChangedBy::Define, ""}));

TEST(WelcomeText, NamesTheButton)
{
    EXPECT_EQ(WelcomeText(), "A grid of points will be defined to control layout of the truss "
                             "members, supports, and loads.\r\nClick the &New Truss button to "
                             "begin.");
}

} // namespace
