#include "BeamStufFormTest.h"

namespace forcelab::beams {
namespace {

using screen::Forms;
using test::Local;
using test::Near;
using testing::ElementsAre;
using testing::IsEmpty;

class BeamLoads : public BeamStufFormTest {
  protected:
    BeamLoads() { DefineSimple("10", "0", "10"); }
};

constexpr const char* kOffBeam =
    "The x-coordinate entered for the load location\r\ndoes not fall within the specified beam "
    "length.";

TEST_F(BeamLoads, EveryTypeByTyping)
{
    EnterPoint(kPointUp, "1", "100");
    EnterPoint(kPointDown, "2.5", "200");
    EnterUniform(kUniformUp, "0", "4", "30");
    EnterUniform(kUniformDown, "4", "10", "40");
    EnterMoment(kMomentCcw, "5", "50");
    EnterMoment(kMomentCw, "6", "60");
    EXPECT_THAT(LoadLines(),
                ElementsAre(Local("1P = 100. lbs (up)"), Local("2P = 200. lbs (down)"),
                            Local("1w = 30. lbs/ft (up)"), Local("2w = 40. lbs/ft (down)"),
                            Local("1M = 50. ft-lbs (ccw)"), Local("2M = 60. ft-lbs (cw)")));
    const double expected[] = {-100, 200, -30.0 / 12, 40.0 / 12, 600, -720};
    for (int row = 1; row <= 6; ++row)
        EXPECT_TRUE(Near(CurrentBeam.LoadMagnitude[row][kUnfactored], expected[row - 1])) << row;
    EXPECT_TRUE(Near(CurrentBeam.LoadX[2][1], 30));
    EXPECT_TRUE(Near(CurrentBeam.LoadX[4][2], 120));
    EXPECT_EQ(CurrentBeam.DiagramEntry, 4000);
    EXPECT_TRUE(IsVisible("fraEditLoads"));
    EXPECT_FALSE(IsEnabled("cmdEditLoadSpin(1)"));
    EXPECT_TRUE(IsEnabled("cmdEditLoadSpin(0)"));
    EXPECT_TRUE(MenusAreOn());
}

TEST_F(BeamLoads, MenuItemsDoWhatThePicturesDo)
{
    for (int type = 0; type < kLoadKinds; ++type) {
        Trigger("mnuEnterLoads(" + std::to_string(type) + ")");
        EXPECT_TRUE(IsChosen("optLoadType(" + std::to_string(type) + ")"));
        EXPECT_TRUE(IsVisible(type < 2   ? "fraConcentrated"
                              : type < 4 ? "fraUniform"
                                         : "fraMoment"));
        EXPECT_FALSE(MenusAreOn());
        Click("cmdCancelLoad");
        EXPECT_FALSE(IsChosen("optLoadType(" + std::to_string(type) + ")"));
        EXPECT_TRUE(MenusAreOn());
    }
    EXPECT_EQ(CurrentBeam.LoadCount, 0);
}

TEST_F(BeamLoads, OffTheBeamIsRefused)
{
    ExpectBox(kStop, "Load Location Error", kOffBeam);
    EnterPoint(kPointDown, "10.01", "5");
    EXPECT_EQ(CurrentBeam.LoadCount, 0);
    EXPECT_FALSE(IsVisible("fraConcentrated"));
    EXPECT_TRUE(MenusAreOn());
    ExpectBox(kStop, "Load Location Error", kOffBeam);
    EnterUniform(kUniformDown, "1", "11", "5");
    ExpectBox(kStop, "Load Location Error", kOffBeam);
    EnterMoment(kMomentCw, "11", "5");
    EXPECT_EQ(CurrentBeam.LoadCount, 0);
    EXPECT_FALSE(IsVisible("fraEditLoads"));
}

TEST_F(BeamLoads, SignsAndLettersInTheBoxes)
{
    EnterPoint(kPointDown, "-4", "-5");
    EnterPoint(kPointDown, "4", "1e3");
    EnterPoint(kPointDown, "", "");
    EnterUniform(kUniformDown, "8", "2", "3"); // ends before it starts, and stays so
    EXPECT_TRUE(Near(CurrentBeam.LoadX[1][1], 48));
    EXPECT_TRUE(Near(CurrentBeam.LoadMagnitude[1][kUnfactored], 5));
    EXPECT_TRUE(Near(CurrentBeam.LoadMagnitude[2][kUnfactored], 1000));
    EXPECT_EQ(CurrentBeam.LoadMagnitude[3][kUnfactored], 0);
    EXPECT_GT(CurrentBeam.LoadX[4][1], CurrentBeam.LoadX[4][2]);
}

TEST_F(BeamLoads, TooLargeMagnitudeLeavesTheLoads)
{
    EnterPoint(kPointDown, "4", "5");
    Click("optLoadType(1)");
    Choose("optForceUnits(1)");
    Click("cmdCancelLoad");
    ExpectBox(kStop, "Forcelab",
              "A number in this calculation is too large. What is shown stays as it was; please "
              "check the input.");
    EnterPoint(kPointDown, "4", "9e+307");
    EXPECT_THAT(LoadLines(), ElementsAre(Local("1P = 5. lbs (down)")));
    EXPECT_EQ(CurrentBeam.LoadCount, 1);
    EXPECT_TRUE(IsVisible("fraConcentrated")); // the number can be mended
    Click("cmdCancelLoad");
    EXPECT_TRUE(MenusAreOn());
}

TEST_F(BeamLoads, FortyFirstIsRefused)
{
    for (int load = 1; load <= kMaxLoads; ++load)
        EnterPoint(kPointDown, Local(std::to_string(load) + "e-1"), std::to_string(load));
    ASSERT_EQ(CurrentBeam.LoadCount, kMaxLoads);
    ExpectBox(kStop, "Too Many Specified Loads",
              "Forcelab accepts only 40 loads on the determinate beam.  ");
    EnterPoint(kPointDown, "5", "1");
    EXPECT_EQ(CurrentBeam.LoadCount, kMaxLoads);
    EXPECT_FALSE(IsVisible("fraConcentrated"));
    EXPECT_TRUE(MenusAreOn());
    Trigger("mnuRedoLoadEntry"); // there is no row above
    EXPECT_EQ(CurrentBeam.LoadCount, kMaxLoads);
    EXPECT_EQ(LoadLines().size(), 40U);
}

TEST_F(BeamLoads, UnitIsTheOneThatTheFrameShows)
{
    Click("optLoadType(1)");
    Choose("optConcentratedX(0)");
    Choose("optForceUnits(1)");
    Click("cmdCancelLoad");
    EnterUniform(kUniformDown, "0", "10", "12"); // still in feet
    EnterPoint(kPointDown, "60", "8");
    EXPECT_TRUE(Near(CurrentBeam.LoadX[1][2], 120));
    EXPECT_TRUE(Near(CurrentBeam.LoadX[2][1], 60));
    EXPECT_TRUE(Near(CurrentBeam.LoadMagnitude[2][kUnfactored], 8000));
}

TEST_F(BeamLoads, EditPanelShowsALoadInTheUnitsOfItsEntry)
{
    Click("optLoadType(3)");
    Choose("optUniformLoadUnits(3)");
    Choose("optUniformX(3)");
    Click("cmdCancelLoad");
    EnterUniform(kUniformDown, "0.5", "2.25", "5");
    EnterPoint(kPointDown, "4", "100");
    Click("optLoadType(3)");
    Choose("optUniformLoadUnits(0)");
    Choose("optUniformX(1)");
    Click("cmdCancelLoad");
    Click("cmdEditLoadSpin(0)");
    Click("cmdEditLoadSpin(0)");
    EXPECT_EQ(CurrentBeam.CurrentLoad, 1);
    EXPECT_TRUE(IsVisible("fraUniform"));
    EXPECT_TRUE(IsChosen("optLoadType(3)"));
    EXPECT_TRUE(IsChosen("optUniformLoadUnits(3)"));
    EXPECT_TRUE(IsChosen("optUniformX(3)"));
    EXPECT_EQ(Shown("txtStartUniform"), Local("0.500"));
    EXPECT_EQ(Shown("txtEndUniform"), Local("2.250"));
    EXPECT_EQ(Shown("txtUniform(0)"), Local("5.000"));
    EXPECT_TRUE(IsVisible("cmdEditLoad(0)"));
    EXPECT_FALSE(IsVisible("cmdEnterLoad"));
    EXPECT_FALSE(IsVisible("cmdCancelLoad"));
    EXPECT_FALSE(IsEnabled("cmdEditLoadSpin(0)"));
    EXPECT_FALSE(MenusAreOn());
}

TEST_F(BeamLoads, EditingDeletingAndCancelling)
{
    EnterPoint(kPointDown, "1", "100");
    EnterPoint(kPointDown, "2", "200");
    EnterMoment(kMomentCw, "3", "300");
    Click("cmdEditLoadSpin(0)");
    Click("cmdEditLoadSpin(0)");
    Type("txtConcentrated(0)", "250");
    Click("cmdEditLoad(0)");
    EXPECT_THAT(LoadLines(),
                ElementsAre(Local("1P = 100. lbs (down)"), Local("2P = 250. lbs (down)"),
                            Local("1M = 300. ft-lbs (cw)")));
    EXPECT_TRUE(MenusAreOn());
    EXPECT_FALSE(IsVisible("cmdEditLoad(0)"));
    EXPECT_FALSE(IsChosen("optLoadType(1)"));
    Click("cmdEditLoadSpin(0)");
    Type("txtConcentrated(0)", "7");
    Click("cmdEditLoad(2)");
    EXPECT_EQ(LoadLines().front(), Local("1P = 100. lbs (down)"));
    Click("cmdEditLoadSpin(1)");
    Click("cmdEditLoad(1)");
    EXPECT_THAT(LoadLines(),
                ElementsAre(Local("1P = 100. lbs (down)"), Local("1M = 300. ft-lbs (cw)")));
}

TEST_F(BeamLoads, DeletingTheLastOneHidesThePanel)
{
    EnterPoint(kPointDown, "1", "100");
    Click("cmdEditLoadSpin(0)");
    Click("cmdEditLoad(1)");
    EXPECT_THAT(LoadLines(), IsEmpty());
    EXPECT_FALSE(IsVisible("fraEditLoads"));
    EXPECT_TRUE(PendingDiagrams.NoLoads);
}

TEST_F(BeamLoads, AnEditOffTheBeamIsRefusedAndCanBeMended)
{
    EnterPoint(kPointDown, "1", "100");
    Click("cmdEditLoadSpin(0)");
    Type("txtConcentratedX", "11");
    ExpectBox(kStop, "Load Location Error", kOffBeam);
    Click("cmdEditLoad(0)");
    EXPECT_EQ(FocusedControl(), "txtConcentratedX");
    EXPECT_TRUE(Near(CurrentBeam.LoadX[1][1], 12));
    Type("txtConcentratedX", "9");
    Click("cmdEditLoad(0)");
    EXPECT_TRUE(Near(CurrentBeam.LoadX[1][1], 108));
}

TEST_F(BeamLoads, ALineOfTheListOpensItsLoad)
{
    EnterPoint(kPointDown, "1", "100");
    EnterMoment(kMomentCcw, "3", "300");
    auto& list = Find<screen::ComboBox>("cboLoadBackup");
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Up); // from the load entered last to the first
    EXPECT_EQ(CurrentBeam.CurrentLoad, 1);
    EXPECT_EQ(Shown("txtConcentratedX"), Local("1.000"));
    EXPECT_TRUE(IsVisible("cmdEditLoad(1)"));
}

TEST_F(BeamLoads, DiagramsAskForALoadToBeEdited)
{
    EnterPoint(kPointDown, "1", "100");
    EnterMoment(kMomentCcw, "3", "300");
    CurrentBeam.CurrentLoad = 1;
    EditWanted = true;
    Open("frmBeamStuf");
    EXPECT_TRUE(IsVisible("fraConcentrated"));
    EXPECT_EQ(Shown("txtConcentrated(0)"), Local("100.000"));
    EXPECT_FALSE(EditWanted);
}

TEST_F(BeamLoads, UndoToZeroAndRedoInOrder)
{
    EnterPoint(kPointDown, "1", "100");
    EnterMoment(kMomentCcw, "3", "300");
    EnterUniform(kUniformUp, "0", "3", "5");
    const auto all = LoadLines();
    for (int left = 2; left >= 0; --left) {
        Trigger("mnuUndoLoadEntry");
        EXPECT_EQ(LoadLines().size(), std::size_t(left));
        EXPECT_EQ(IsVisible("fraEditLoads"), left > 0);
    }
    Trigger("mnuUndoLoadEntry");
    EXPECT_EQ(CurrentBeam.LoadCount, 0);
    for (int back = 1; back <= 3; ++back) {
        Trigger("mnuRedoLoadEntry");
        EXPECT_EQ(LoadLines(), std::vector(all.begin(), all.begin() + back));
        EXPECT_TRUE(IsVisible("fraEditLoads"));
    }
    Trigger("mnuRedoLoadEntry");
    EXPECT_EQ(CurrentBeam.LoadCount, 3);
}

TEST_F(BeamLoads, EntryAfterUndoOverwritesWhatRedoHad)
{
    EnterPoint(kPointDown, "1", "100");
    EnterPoint(kPointDown, "2", "200");
    Trigger("mnuUndoLoadEntry");
    EnterPoint(kPointUp, "3", "7");
    EXPECT_EQ(LoadLines().back(), Local("2P = 7. lbs (up)"));
}

TEST_F(BeamLoads, EnterKeyGoesRoundTheBoxes)
{
    Click("optLoadType(3)");
    EXPECT_EQ(FocusedControl(), "txtStartUniform");
    Press("txtStartUniform", Qt::Key_Return);
    EXPECT_EQ(FocusedControl(), "txtEndUniform");
    Press("txtEndUniform", Qt::Key_Return);
    EXPECT_EQ(FocusedControl(), "txtUniform(0)");
    Press("txtUniform(0)", Qt::Key_Return);
    EXPECT_EQ(FocusedControl(), "txtStartUniform");
    EXPECT_EQ(CurrentBeam.LoadCount, 0);
}

TEST_F(BeamLoads, EnterKeyGoesThroughDeadAndLive)
{
    Trigger("mnuLF(1)");
    Click("optLoadType(5)");
    for (const char* box : {"txtMoment(1)", "txtMoment(2)", "txtMomentX"}) {
        Press(FocusedControl(), Qt::Key_Return);
        EXPECT_EQ(FocusedControl(), box);
    }
    EXPECT_FALSE(IsVisible("txtMoment(0)"));
}

TEST_F(BeamLoads, TabGoesFromTheBoxesToTheButtons)
{
    Click("optLoadType(0)");
    std::vector<std::string> stops;
    int options = 0;
    for (int step = 0; step < 16 && FocusedControl() != "cmdCancelLoad"; ++step) {
        const std::string stop = FocusedControl();
        if (stop.starts_with("opt"))
            ++options;
        else
            stops.push_back(stop + " after " + std::to_string(options));
        Press(stop, Qt::Key_Tab);
    }
    EXPECT_EQ(FocusedControl(), "cmdCancelLoad");
    EXPECT_GE(options, 2);
    EXPECT_THAT(stops, ElementsAre("txtConcentratedX after 0", "txtConcentrated(0) after 0",
                                   "cmdEnterLoad after " + std::to_string(options)));
}

TEST_F(BeamLoads, DiagramsFollowTheUnitOfTheLastLoad)
{
    TakeDiagramRequest();
    Click("optLoadType(1)");
    Choose("optForceUnits(3)");
    Click("cmdCancelLoad");
    EnterPoint(kPointDown, "1", "8");
    EXPECT_EQ(PendingDiagrams.ForceUnit, 3);
    EXPECT_FALSE(PendingDiagrams.MomentUnit.has_value());
    EXPECT_TRUE(PendingDiagrams.ShearMomentView);
    EXPECT_TRUE(PendingDiagrams.ListsChanged);
    EXPECT_EQ(PendingDiagrams.Pictures, kAllPictures);
    TakeDiagramRequest();
    ShownDiagramUnits.Force = 3;
    EnterPoint(kPointDown, "2", "8");
    EXPECT_FALSE(TakeDiagramRequest().ForceUnit.has_value());
    Click("optLoadType(4)");
    Choose("optMomentUnits(1)");
    Click("cmdCancelLoad");
    EnterMoment(kMomentCcw, "3", "5");
    EXPECT_EQ(PendingDiagrams.MomentUnit, 1);
}

TEST_F(BeamLoads, DiagramsHearOfEveryChange)
{
    int heard = 0;
    OnDiagramRequest = [&heard] { ++heard; };
    EnterPoint(kPointDown, "1", "8");
    EXPECT_EQ(heard, 1);
    Trigger("mnuUndoLoadEntry");
    Trigger("mnuRedoLoadEntry");
    EXPECT_EQ(heard, 3);
    Click("cmdEditLoadSpin(0)");
    Click("cmdEditLoad(0)");
    EXPECT_EQ(heard, 4);
    OnDiagramRequest = nullptr;
}

class BeamFactors : public BeamLoads {
  protected:
    static constexpr const char* kTitle = "Load Data Warning";
    static constexpr const char* kToFactored =
        "If you change from unfactored loads to factored loads at this time, all previously "
        "entered loads will be deleted.";
    static constexpr const char* kToUnfactored =
        "If you change from factored loads to unfactored loads at this time, all previously "
        "entered loads will be deleted.";
};

TEST_F(BeamFactors, CancelChangesNothing)
{
    EnterPoint(kPointDown, "1", "100");
    ExpectBox(kStopOkCancel, kTitle, kToFactored, kAnswerCancel);
    Trigger("mnuLF(1)");
    EXPECT_FALSE(CurrentBeam.FactoredLoads);
    EXPECT_EQ(LoadLines().size(), 1U);
    EXPECT_TRUE(IsChosen("mnuLoadFac(0)"));
    EXPECT_FALSE(IsChosen("mnuLF(1)"));
}

TEST_F(BeamFactors, OkDeletesTheLoadsForGood)
{
    EnterPoint(kPointDown, "1", "100");
    ExpectBox(kStopOkCancel, kTitle, kToFactored);
    Trigger("mnuLF(1)");
    EXPECT_TRUE(CurrentBeam.FactoredLoads);
    EXPECT_THAT(LoadLines(), IsEmpty());
    EXPECT_FALSE(IsVisible("fraEditLoads"));
    EXPECT_EQ(Shown("txtConcentrated(0)"), "");
    EXPECT_TRUE(IsChosen("mnuLF(1)"));
    EXPECT_FALSE(IsChosen("mnuLoadFac(0)"));
    Trigger("mnuRedoLoadEntry");
    EXPECT_EQ(CurrentBeam.LoadCount, 0);
}

TEST_F(BeamFactors, SetsChangeWithoutAQuestionAndKeepTheLoads)
{
    Trigger("mnuLF(1)");
    EnterFactored("5", "2", "3");
    EXPECT_THAT(LoadLines(), ElementsAre(Local("1P = 2. lbs (D) + 3.lbs (L) (down)")));
    EXPECT_TRUE(Near(CurrentBeam.LoadMagnitude[1][kFactored], 1.2 * 2 + 1.6 * 3));
    Trigger("mnuLF(0)");
    EXPECT_TRUE(Near(CurrentBeam.LoadMagnitude[1][kFactored], 2.8));
    Trigger("mnuLF(2)");
    EXPECT_TRUE(Near(CurrentBeam.LoadMagnitude[1][kFactored], 1.4 * 2 + 1.7 * 3));
    EXPECT_EQ(CurrentBeam.LoadCount, 1);
    EXPECT_TRUE(IsChosen("mnuLF(2)"));
    EXPECT_FALSE(IsChosen("mnuLF(0)"));
    Click("cmdEditLoadSpin(0)");
    EXPECT_EQ(Shown("txtConcentrated(1)"), Local("2.000"));
    EXPECT_EQ(Shown("txtConcentrated(2)"), Local("3.000"));
}

TEST_F(BeamFactors, TheWayBackAsksToo)
{
    Trigger("mnuLF(0)");
    EnterFactored("5", "2", "3");
    ExpectBox(kStopOkCancel, kTitle, kToUnfactored, kAnswerCancel);
    Trigger("mnuLoadFac(0)");
    EXPECT_TRUE(CurrentBeam.FactoredLoads);
    EXPECT_EQ(CurrentBeam.LoadCount, 1);
    ExpectBox(kStopOkCancel, kTitle, kToUnfactored);
    Trigger("mnuLoadFac(0)");
    EXPECT_FALSE(CurrentBeam.FactoredLoads);
    EXPECT_EQ(CurrentBeam.LoadCount, 0);
    EXPECT_TRUE(IsChosen("mnuLoadFac(0)"));
}

TEST_F(BeamFactors, NothingIsAskedWithoutLoads)
{
    Trigger("mnuLF(2)");
    EXPECT_TRUE(CurrentBeam.FactoredLoads);
    Trigger("mnuLoadFac(0)");
    EXPECT_FALSE(CurrentBeam.FactoredLoads);
}

} // namespace
} // namespace forcelab::beams
