#include "TrussFormTest.h"

namespace forcelab::truss {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::UnorderedElementsAre;

using FrmTruss = TrussFormTest;

constexpr const char* kIndeterminate =
    "Truss is statically indeterminate.  Make sure that there\r"
    "are three support conditions (e.g., one pin and one roller).\r"
    "If there are three supports, erase one truss member and\r"
    "analyze the truss again.";
constexpr const char* kUnstable = "Truss is unstable.  Remember that all truss joints\r"
                                  "are assumed to be pin connections (i.e., no moment).\r"
                                  "Check to make sure that at least two truss members are\r"
                                  "connected to each joint and that the members form\r"
                                  "triangles throughout the truss.";
constexpr const char* kUnsuccessful = "Sorry, the analysis was unsuccessful.  The\r"
                                      "truss appears to be geometrically unstable.\r"
                                      "Check the truss input data.";

TEST_F(FrmTruss, StartsWithoutAGrid)
{
    EXPECT_EQ(TheForm().windowTitle(), "Truss Analysis Module");
    EXPECT_EQ(Shown("cmdGridMake"), "&New Truss");
    EXPECT_THAT(Shown("lblInstruct"), HasSubstr("Click the &New Truss button to begin."));
    for (const char* hidden : {"fraDefineOptions(0)", "fraDefineOptions(1)", "cboTrussResults(0)",
                               "cboTrussResults(2)", "txtTrussResults(0)", "txtExplain"})
        EXPECT_FALSE(IsVisible(hidden)) << hidden;
    for (const char* off : {"cmdSpacing(0)", "cmdSpacing(1)", "mnuTrussStress", "mnuPrintResults"})
        EXPECT_FALSE(IsEnabled(off)) << off;
    EXPECT_TRUE(IsEnabled("cmdSpacing(2)"));
    Drag({0.2, 0.2}, {0.8, 0.8});
    EXPECT_EQ(CurrentTruss.MemberCount, 0);
}

TEST_F(FrmTruss, TriangleDrawnWithTheMouse)
{
    DrawTriangle();
    Click("cmdSpacing(1)");
    EXPECT_THAT(List(0),
                UnorderedElementsAre(Local("AB = 7.071 Compression"), Local("AC = 5.000 Tension"),
                                     Local("BC = 7.071 Compression")));
    EXPECT_THAT(List(1), ElementsAre(Local("Ax = 0.000 Right to Left"), Local("Ay = 5.000 Upward"),
                                     Local("Cy = 5.000 Upward")));
    EXPECT_EQ(Shown("cmdGridMake"), "E&dit");
    EXPECT_TRUE(IsVisible("cboTrussResults(0)") && IsVisible("cboTrussResults(1)"));
    EXPECT_FALSE(IsVisible("cboTrussResults(2)") || IsVisible("cboTrussResults(3)"));
    EXPECT_TRUE(IsEnabled("mnuTrussStress") && IsEnabled("mnuPrintResults"));
    EXPECT_THAT(Shown("picTruss"), HasSubstr(Local("7.07 (C)")));
    EXPECT_THAT(Shown("txtExplain"), HasSubstr(Local("7.071")));
}

TEST_F(FrmTruss, KingPostWithAPostInTension)
{
    LayGrid(3, 1, "2", "2");
    DrawMembers(
        {{{0, 0}, {2, 0}}, {{2, 0}, {6, 0}}, {{0, 0}, {2, 2}}, {{2, 2}, {6, 0}}, {{2, 0}, {2, 2}}});
    Support({0, 0}, true, true);
    Support({6, 0}, false, true);
    Load({2, 0}, {2, -1}, "10");
    Click("cmdSpacing(1)");
    EXPECT_THAT(List(0), UnorderedElementsAre(
                             Local("AB = 6.667 Tension"), Local("BD = 6.667 Tension"),
                             Local("AC = 9.428 Compression"), Local("CD = 7.454 Compression"),
                             Local("BC = 10.000 Tension")));
    // The unit vectors in single precision leave a trace in Ax, of either sign.
    EXPECT_THAT(List(1), ElementsAre(HasSubstr(Local("Ax = 0.000 ")), Local("Ay = 6.667 Upward"),
                                     Local("Dy = 3.333 Upward")));
}

TEST_F(FrmTruss, TwentyFourBaysThroughTheMouse)
{
    LayGrid(24, 1);
    std::vector<std::pair<Place, Place>> members;
    for (int bay = 0; bay < 24; ++bay) {
        const double x = 10.0 * bay;
        members.insert(members.end(), {{{x, 0}, {x, 10}},
                                       {{x, 0}, {x + 10, 0}},
                                       {{x, 10}, {x + 10, 10}},
                                       {{x, bay < 12 ? 10.0 : 0}, {x + 10, bay < 12 ? 0 : 10.0}}});
    }
    members.push_back({{240, 0}, {240, 10}});
    DrawMembers(members);
    ASSERT_EQ(CurrentTruss.MemberCount, 97);
    Support({0, 0}, true, true);
    Support({240, 0}, false, true);
    Load({120, 10}, {120, 5}, "100");
    Click("cmdSpacing(1)");
    EXPECT_THAT(List(1), ElementsAre(Local("Ax = 0.000 Right to Left"), Local("Ay = 50.000 Upward"),
                                     Local("wy = 50.000 Upward")));
    // Moment of 50 at the support about the middle, over the height, for the middle of a chord.
    EXPECT_THAT(List(0), Contains(Local("WY = 550.000 Tension")));
    EXPECT_EQ(List(0).size(), 97U);
}

TEST_F(FrmTruss, FourthSupportIsRefused)
{
    DrawTriangle();
    Support({20, 0}, true, false);
    Expect(MsgBox{kStop, "Statically Indeterminate Truss", kIndeterminate});
    Click("cmdSpacing(1)");
    EXPECT_EQ(Shown("cmdGridMake"), "&New Truss");
    EXPECT_FALSE(IsEnabled("mnuTrussStress") || IsEnabled("mnuPrintResults"));
    EXPECT_FALSE(IsVisible("cboTrussResults(0)"));
}

TEST_F(FrmTruss, TooFewMembersAreRefusedAndMove)
{
    DrawSquare();
    Choose("optMakeOrTake(1)");
    Choose("optTrussDefine(1)");
    Drag({10, 0}, {14, 0}); // the pin becomes a roller
    EXPECT_EQ(CurrentTruss.GridPoints[CurrentTruss.PointAt(1, 0)].SupportX, 0);
    Expect(MsgBox{kStop, "Unstable Truss", kUnstable});
    Click("cmdSpacing(1)");
    EXPECT_THAT(Shown("lblInstruct"), HasSubstr("can move"));
}

TEST_F(FrmTruss, ComputeNeedsThreeSupportsAndALoad)
{
    LayGrid(3, 3);
    DrawMembers({{{0, 0}, {20, 0}}, {{0, 0}, {10, 10}}, {{20, 0}, {10, 10}}});
    EXPECT_FALSE(IsEnabled("cmdSpacing(1)"));
    Support({0, 0}, true, true);
    Support({20, 0}, false, true);
    EXPECT_FALSE(IsEnabled("cmdSpacing(1)"));
    Load({10, 10}, {10, 5}, "10");
    EXPECT_TRUE(IsEnabled("cmdSpacing(1)"));
    Choose("optMakeOrTake(1)");
    Drag({10, 10}, {10, 5});
    EXPECT_FALSE(IsEnabled("cmdSpacing(1)"));
}

TEST_F(FrmTruss, UndoTakesTheLastMemberAndGoesBelowNone)
{
    LayGrid(3, 3);
    DrawMembers({{{0, 0}, {20, 0}}, {{0, 0}, {10, 10}}});
    Click("cmdSpacing(0)");
    ASSERT_EQ(CurrentTruss.MemberCount, 1);
    EXPECT_TRUE(CurrentTruss.IsJoint(CurrentTruss.PointAt(2, 0)));
    for (int i = 0; i < 3; ++i) Click("cmdSpacing(0)");
    EXPECT_EQ(CurrentTruss.MemberCount, -1);
    Drag({0, 0}, {10, 0}); // into slot 0, not counted
    EXPECT_EQ(CurrentTruss.MemberCount, 0);
    Drag({0, 0}, {10, 0});
    EXPECT_EQ(CurrentTruss.MemberCount, 1);
}

struct ModeRow {
    const char* Name;
    int Define, Make;
    const char* Text;
    bool Undo;
};
void PrintTo(const ModeRow& row, std::ostream* out)
{
    *out << row.Name;
}
class Modes : public TrussFormTest, public testing::WithParamInterface<ModeRow> {};

TEST_P(Modes, TellWhatToDo)
{
    LayGrid(3, 3);
    const ModeRow& row = GetParam();
    Choose("optTrussDefine(" + std::to_string(row.Define) + ")");
    Choose("optMakeOrTake(" + std::to_string(row.Make) + ")");
    EXPECT_THAT(Shown("lblInstruct"), HasSubstr(row.Text));
    EXPECT_EQ(IsEnabled("cmdSpacing(0)"), row.Undo);
}
INSTANTIATE_TEST_SUITE_P(
    All, Modes,
    testing::Values(ModeRow{"Members", 0, 0, "To define a truss member, click on", true},
                    ModeRow{"Supports", 1, 0, "Usually one joint is pinned while", false},
                    ModeRow{"Loads", 2, 0, "a box will appear in which", false},
                    ModeRow{"EraseMembers", 0, 1, "trace over the member to be removed", false},
                    ModeRow{"EraseSupports", 1, 1, "for which the support is to be", false},
                    ModeRow{"EraseLoads", 2, 1, "direction of the load to be removed", false}));

TEST_F(FrmTruss, BackToCreatingSupportsTellsItAnotherWay)
{
    LayGrid(3, 3);
    Choose("optTrussDefine(1)");
    Choose("optMakeOrTake(1)");
    Choose("optMakeOrTake(0)");
    EXPECT_THAT(Shown("lblInstruct"), HasSubstr("Usually one joint will be supported in both"));
}

TEST_F(FrmTruss, ModesEraseWhatIsDrawn)
{
    DrawTriangle();
    TrussGridPoint& top = CurrentTruss.GridPoints[CurrentTruss.PointAt(1, 1)];
    EXPECT_EQ(top.LoadY, -10);
    Choose("optMakeOrTake(1)");
    Drag({10, 10}, {10, 15});
    EXPECT_EQ(top.LoadY, 0);
    Choose("optTrussDefine(0)");
    Drag({20, 0}, {0, 0});
    EXPECT_EQ(CurrentTruss.MemberCount, 2);
    Drag({10, 10}, {20, 0});
    EXPECT_EQ(CurrentTruss.GridPoints[CurrentTruss.PointAt(2, 0)].SupportY, 0);
}

TEST_F(FrmTruss, MembersThatTouchBetweenTheirEndsAreSilentlyRefused)
{
    LayGrid(3, 3);
    DrawMembers({{{0, 0}, {20, 0}}});
    Drag({0, 0}, {20, 0});
    Drag({20, 0}, {0, 0});
    Drag({10, 0}, {10, 10});
    Drag({0, 0}, {30, 0});
    Drag({5, 9}, {5, 9});
    EXPECT_EQ(CurrentTruss.MemberCount, 1);
}

TEST_F(FrmTruss, ClicksWithoutADrag)
{
    DrawTriangle();
    TrussGridPoint& top = CurrentTruss.GridPoints[CurrentTruss.PointAt(1, 1)];
    Choose("optTrussDefine(0)");
    Drag({0, 20}, {0, 20});
    EXPECT_EQ(CurrentTruss.MemberCount, 3);
    Choose("optTrussDefine(1)");
    Drag({11, 10.5}, {11, 10.5});
    EXPECT_EQ(top.SupportY, 1);
    EXPECT_EQ(top.SupportX, 0);
    Load({11, 10.5}, {11, 10.5}, "4");
    EXPECT_EQ(top.LoadY, 4) << "upward, in place of the earlier load";
}

TEST_F(FrmTruss, OnlyTheLeftButtonDraws)
{
    LayGrid(3, 3);
    Drag({0, 0}, {20, 0}, Qt::MiddleButton);
    EXPECT_EQ(CurrentTruss.MemberCount, 0);
}

TEST_F(FrmTruss, EditKeepsTheModelAndItsResults)
{
    DrawTriangle();
    Click("cmdSpacing(1)");
    Click("cmdGridMake");
    EXPECT_EQ(Shown("cmdGridMake"), "&New Truss");
    EXPECT_EQ(CurrentTruss.MemberCount, 3);
    EXPECT_FALSE(IsVisible("txtExplain"));
    EXPECT_THAT(Shown("picTruss"), HasSubstr(Local("45.000°")));
    EXPECT_TRUE(IsVisible("cboTrussResults(0)"));
    Choose("optTrussDefine(0)");
    Drag({0, 0}, {0, 10}); // the results hold no longer
    EXPECT_FALSE(IsVisible("cboTrussResults(0)"));
    EXPECT_FALSE(IsEnabled("mnuTrussStress"));
}

TEST_F(FrmTruss, DrawingGoesOnFromTheResults)
{
    DrawTriangle();
    Choose("optTrussDefine(0)");
    Click("cmdSpacing(1)");
    Drag({10, 10}, {20, 20});
    EXPECT_EQ(CurrentTruss.MemberCount, 4);
    EXPECT_EQ(Shown("cmdGridMake"), "&New Truss");
}

TEST_F(FrmTruss, ExplanationCanBePutAway)
{
    DrawTriangle();
    Click("cmdSpacing(1)");
    ASSERT_TRUE(IsVisible("txtExplain"));
    Click("cmdExplain");
    EXPECT_FALSE(IsVisible("txtExplain"));
    Click("cmdGridMake");
    Click("cmdSpacing(1)");
    EXPECT_FALSE(IsVisible("txtExplain"));
    Click("cmdExplain");
    EXPECT_TRUE(IsVisible("txtExplain"));
}

TEST_F(FrmTruss, HeadingsRestoreTheirText)
{
    Find<screen::TextBox>("txtTrussResults(0)").SetText("x");
    Find<screen::TextBox>("txtTrussResults(1)").SetText("");
    EXPECT_EQ(Shown("txtTrussResults(0)"), "Member Forces");
    EXPECT_EQ(Shown("txtTrussResults(1)"), "Reactions");
}

TEST_F(FrmTruss, BackEndAndTheCloseBoxKeepTheTruss)
{
    DrawTriangle();
    const auto leave = [this](int way) {
        if (way == 0) Trigger("mnuBack");
        if (way == 1) Click("cmdSpacing(2)");
        if (way == 2) TheForm().close();
    };
    for (int way = 0; way < 3; ++way) {
        Click("cmdSpacing(1)");
        leave(way);
        EXPECT_FALSE(screen::Forms::IsVisible("frmTruss"));
        EXPECT_TRUE(screen::Forms::IsVisible("frmMainMenu"));
        Open("frmTruss");
        EXPECT_EQ(Shown("cmdGridMake"), "&New Truss");
        EXPECT_EQ(CurrentTruss.MemberCount, 3);
    }
}

TEST_F(FrmTruss, HelpOpensItsTopic)
{
    Trigger("mnuHelpTruss");
    ASSERT_EQ(Help->Opened.size(), 1U);
    EXPECT_EQ(Help->Opened.front().second, 2000);
}

} // namespace
} // namespace forcelab::truss
