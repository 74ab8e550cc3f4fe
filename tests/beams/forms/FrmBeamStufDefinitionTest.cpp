#include "BeamStufFormTest.h"

#include <QAction>
#include <QMenuBar>

namespace forcelab::beams {
namespace {

using screen::Forms;
using test::Local;
using test::Near;
using testing::ElementsAre;

using BeamDefinition = BeamStufFormTest;

constexpr const char* kTitle = "Beam Definition Error";
constexpr const char* kOffBeam =
    "The location specified for the support\r\nis not within the length of the beam.";

TEST_F(BeamDefinition, StartsWithTheThreeTypesAlone)
{
    Open("frmBeamStuf");
    EXPECT_EQ(TheForm().windowTitle().toStdString(), "Determinate Beam Module");
    EXPECT_FALSE(MenusAreOn());
    for (const char* hidden : {"fraBeamLength", "fraSimpleSupports", "fraConcentrated",
                               "fraUniform", "fraMoment", "cmdBeamDefineOK", "cmdEnterLoad",
                               "cmdEditLoad(0)", "fraEditLoads", "cmdRefreshDiagrams"})
        EXPECT_FALSE(IsVisible(hidden)) << hidden;
    EXPECT_TRUE(IsVisible("lblPrompt"));
    EXPECT_TRUE(Forms::IsLoaded("frmBeamDiagrams"));
    EXPECT_FALSE(Forms::IsVisible("frmBeamDiagrams"));
    EXPECT_EQ(TheForm().pos(), QPoint(0, 0));
}

TEST_F(BeamDefinition, MenusReadAsTheyShould)
{
    Open("frmBeamStuf");
    std::vector<std::string> bar;
    for (const QAction* item : TheForm().menuBar()->actions())
        bar.push_back(item->text().toStdString());
    EXPECT_THAT(bar, ElementsAre("&Back", "&New", "&Loads", "&Cross-Section", "S&tresses",
                                 "&Mohr's Circle"));
    std::vector<std::string> loads;
    for (const QAction* item : Find<QMenu>("mnuLoadsMoments").actions())
        loads.push_back(item->text().toStdString());
    EXPECT_THAT(loads,
                ElementsAre("&Undo Load", "&Redo Load", "", "Poi&nt Load:  up ",
                            "Poin&t Load: down", "Uniform Lo&ad: up ", "Uniform Load: do&wn ",
                            "Moment: &counterclockwise ", "Moment: cloc&kwise ", "",
                            "Unfact&ored Loads", "&Factored Loads"));
    EXPECT_EQ(Shown("mnuLF(0)"), "1.4D");
    EXPECT_EQ(Shown("mnuLF(1)"), "1.2D + 1.6L");
    EXPECT_EQ(Shown("mnuLF(2)"), "1.4D + 1.7L");
    EXPECT_EQ(Shown("mnuStress"), "&Normal and Shear");
    EXPECT_EQ(Shown("mnuAllowable"), "&Allowable Stresses");
    EXPECT_EQ(Shown("cmdRefreshDiagrams"), "&Refresh Beam Diagrams");
    EXPECT_EQ(Shown("cmdEditLoad(0)"), "&Enter");
    EXPECT_EQ(Shown("cmdEditLoad(1)"), "&Delete");
    EXPECT_EQ(Shown("cmdEditLoad(2)"), "&Cancel");
}

TEST_F(BeamDefinition, StoresLengthAndSupportsAndShowsTheDiagrams)
{
    DefineSimple("10", "1.5", "9");
    EXPECT_EQ(CurrentBeam.SupportType, kTwoSupports);
    EXPECT_TRUE(Near(CurrentBeam.BeamLength, 120));
    EXPECT_TRUE(Near(CurrentBeam.SupportA, 18));
    EXPECT_TRUE(Near(CurrentBeam.SupportB, 108));
    EXPECT_EQ(CurrentBeam.BeamLengthUnit, 1);
    EXPECT_EQ(Shown("txtBeamLength"), Local("10.00"));
    EXPECT_TRUE(Forms::IsVisible("frmBeamDiagrams"));
    EXPECT_TRUE(MenusAreOn());
    EXPECT_FALSE(IsVisible("fraBeamLength"));
    EXPECT_FALSE(IsVisible("cmdRefreshDiagrams"));
    EXPECT_EQ(PendingDiagrams.LengthUnit, 1);
    EXPECT_EQ(Forms::Active()->objectName().toStdString(), "frmBeamDiagrams");
}

TEST_F(BeamDefinition, FramesAndMenusOfTheTypeChoice)
{
    Open("frmBeamStuf");
    Click("cmdBeamType(0)");
    EXPECT_TRUE(IsVisible("fraBeamLength"));
    EXPECT_TRUE(IsVisible("fraSimpleSupports"));
    EXPECT_EQ(FocusedControl(), "txtBeamLength");
    EXPECT_FALSE(IsVisible("lblPrompt"));
    EXPECT_FALSE(MenusAreOn());
    EXPECT_TRUE(EntryFrameOpen);
    Click("cmdBeamType(1)");
    EXPECT_FALSE(IsVisible("fraSimpleSupports"));
    EXPECT_EQ(CurrentBeam.SupportType, kFixedLeft);
    Click("cmdBeamDefineCancel");
    EXPECT_FALSE(IsVisible("fraBeamLength"));
    EXPECT_TRUE(MenusAreOn());
    EXPECT_FALSE(EntryFrameOpen);
}

TEST_F(BeamDefinition, CantileversHaveTheirSupportsAtTheEnds)
{
    for (const int type : {kFixedLeft, kFixedRight}) {
        Open("frmBeamStuf");
        Click("cmdBeamType(" + std::to_string(type - 1) + ")");
        Type("txtBeamLength", "9");
        Choose("optBeamLength(3)");
        Click("cmdBeamDefineOK");
        EXPECT_EQ(CurrentBeam.SupportType, type);
        EXPECT_TRUE(Near(CurrentBeam.SupportB, 9000 / 25.4));
        EXPECT_EQ(CurrentBeam.SupportA, 0);
    }
}

TEST_F(BeamDefinition, SupportsInReverseOrderAreExchanged)
{
    DefineSimple("10", "8", "2");
    EXPECT_TRUE(Near(CurrentBeam.SupportA, 24));
    EXPECT_TRUE(Near(CurrentBeam.SupportB, 96));
    EXPECT_EQ(Shown("txtLeftSimple"), Local("8.00"));
    EXPECT_EQ(Shown("txtRightSimple"), Local("8.00"));
}

struct BadDefinition {
    const char* Name;
    const char* Length;
    const char* Left;
    const char* Right;
    const char* Text;
    const char* Focus;
};
void PrintTo(const BadDefinition& row, std::ostream* out)
{
    *out << row.Name;
}

class RefusedDefinition : public BeamStufFormTest,
                          public testing::WithParamInterface<BadDefinition> {};

TEST_P(RefusedDefinition, SaysWhyAndKeepsTheFrameOpen)
{
    const BadDefinition& row = GetParam();
    ExpectBox(kStop, kTitle, row.Text);
    DefineSimple(row.Length, row.Left, row.Right);
    EXPECT_EQ(FocusedControl(), row.Focus);
    EXPECT_TRUE(IsVisible("fraBeamLength"));
    EXPECT_FALSE(MenusAreOn());
    EXPECT_FALSE(Forms::IsVisible("frmBeamDiagrams"));
}

INSTANTIATE_TEST_SUITE_P(
    Definitions, RefusedDefinition,
    testing::Values(
        BadDefinition{"zero length", "0", "0", "5", "Enter a non-zero length for the beam.",
                      "txtBeamLength"},
        BadDefinition{"no length", "", "0", "5", "Enter a non-zero length for the beam.",
                      "txtBeamLength"},
        BadDefinition{"letters", "abc", "0", "5", "Enter a non-zero length for the beam.",
                      "txtBeamLength"},
        BadDefinition{"equal supports", "10", "5", "5",
                      "Both supports cannot be at the same location.", "txtRightSimple"},
        BadDefinition{"right beyond", "10", "5", "11", kOffBeam, "txtRightSimple"},
        BadDefinition{"both beyond", "10", "11", "12", kOffBeam, "txtLeftSimple"},
        BadDefinition{"beyond, reversed", "10", "11", "5", kOffBeam, "txtRightSimple"}));

TEST_F(BeamDefinition, RefusedNumbersStayInTheRecordAsTyped)
{
    ExpectBox(kStop, kTitle, "Both supports cannot be at the same location.");
    DefineSimple("10", "5", "5");
    EXPECT_TRUE(Near(CurrentBeam.BeamLength, 10));
    Click("cmdBeamDefineCancel");
    EXPECT_TRUE(Near(CurrentBeam.BeamLength, 10));
}

TEST_F(BeamDefinition, ShorterBeamLosesTheLoadsBeyondIt)
{
    DefineSimple("10", "0", "10");
    Use("frmBeamStuf");
    EnterPoint(kPointDown, "9", "1");
    EnterPoint(kPointDown, "2", "2");
    EnterUniform(kUniformDown, "1", "8", "3");
    EnterMoment(kMomentCcw, "5", "4");
    ExpectBox(kStop, kTitle,
              "Some of the previously specified loads do\r\nnot fall within the specified beam "
              "length.\r\n\r\nThese loads will be deleted.");
    DefineSimple("6", "0", "6");
    EXPECT_EQ(CurrentBeam.LoadCount, 2);
    EXPECT_THAT(LoadLines(),
                ElementsAre(Local("1P = 2. lbs (down)"), Local("1M = 4. ft-lbs (ccw)")));
}

TEST_F(BeamDefinition, TooLargeLengthLeavesTheBeam)
{
    DefineSimple("10", "0", "10");
    ExpectBox(kStop, "Forcelab",
              "A number in this calculation is too large. What is shown stays as it was; please "
              "check the input.");
    DefineSimple("1" + std::string(308, '0'), "0", "5", 3);
    EXPECT_TRUE(Near(CurrentBeam.BeamLength, 120));
}

TEST_F(BeamDefinition, EnterKeyGoesBetweenTheSupports)
{
    Open("frmBeamStuf");
    Click("cmdBeamType(0)");
    Press("txtLeftSimple", Qt::Key_Return);
    EXPECT_EQ(FocusedControl(), "txtRightSimple");
    Press("txtRightSimple", Qt::Key_Return);
    EXPECT_EQ(FocusedControl(), "txtLeftSimple");
}

TEST_F(BeamDefinition, TabGoesFromTheLengthToTheButtons)
{
    Open("frmBeamStuf");
    Click("cmdBeamType(0)");
    std::vector<std::string> order{FocusedControl()};
    for (int step = 0; step < 5; ++step) {
        Press(order.back(), Qt::Key_Tab);
        order.push_back(FocusedControl());
    }
    // One stop for the four options, as everywhere.
    EXPECT_THAT(order, ElementsAre("txtBeamLength", "txtLeftSimple", "txtRightSimple",
                                   "optBeamLength(0)", "cmdBeamDefineOK", "cmdBeamDefineCancel"));
}

TEST_F(BeamDefinition, UnitOfTheBeamGoesToTheLoadFrames)
{
    Open("frmBeamStuf");
    Click("cmdBeamType(1)");
    Choose("optBeamLength(2)");
    for (const char* option : {"optConcentratedX(2)", "optUniformX(2)", "optMomentX(2)"})
        EXPECT_TRUE(IsChosen(option)) << option;
}

} // namespace
} // namespace forcelab::beams
