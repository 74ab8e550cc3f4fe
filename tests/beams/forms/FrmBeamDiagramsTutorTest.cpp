#include "BeamDiagramsFormTest.h"
#include "beams/HotSpots.h"

#include <QFile>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <QTimer>

namespace forcelab::beams {
namespace {

using screen::Forms;
using test::Local;
using test::Near;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// Mouse, explanations and printing.
class DiagramTutor : public BeamDiagramsFormTest {
  protected:
    // Heights on the load diagram, where y runs from the upper edge of the beam.
    static constexpr double kAboveBeam = 12; // pixels
    static constexpr double kInBand = -5;
    static constexpr double kAtReaction = -40;

    void DoubleClickAt(const std::string& picture, QPoint at)
    {
        QTest::mouseDClick(&Picture(picture), Qt::LeftButton, Qt::NoModifier, at);
        QCoreApplication::processEvents();
    }
    std::string Tip(const std::string& picture) { return Picture(picture).toolTip().toStdString(); }
};

TEST_F(DiagramTutor, HintsTellWhatAClickWillDo)
{
    MetreBeam();
    MoveTo("picLoadDiagram", 4 * kInchesOfMetre, kInBand);
    EXPECT_EQ(Hint(), Local("Click for details at X = 4.0 m"));
    EXPECT_EQ(Tip("picLoadDiagram"), Hint());
    MoveTo("picLoadDiagram", 0, kAtReaction);
    EXPECT_EQ(Hint(), "Click for equilibrium equations");
    MoveTo("picLoadDiagram", 10 * kInchesOfMetre, kAtReaction);
    EXPECT_EQ(Hint(), "Click for equilibrium equations");
    MoveTo("picLoadDiagram", 7 * kInchesOfMetre, kAboveBeam);
    EXPECT_EQ(Hint(), "Left click = Shear diagram tips, Right click = Edit load data");
    CurrentBeam.DiagramEntry = 1;
    MoveTo("picLoadDiagram", 7 * kInchesOfMetre, kAboveBeam);
    EXPECT_EQ(Hint(), "Tips on constructing the shear diagram");
    MoveTo("picLoadDiagram", 5 * kInchesOfMetre, -80);
    EXPECT_EQ(Tip("picLoadDiagram"), "");
}

TEST_F(DiagramTutor, HintsInTheSlopeView)
{
    UseSteelSection();
    FootBeam();
    Trigger("mnuSlopeDeflection");
    MoveTo("picLoadDiagram", 30, kInBand);
    EXPECT_EQ(Hint(), Local("Double click for details at X = 2.5 ft"));
}

TEST_F(DiagramTutor, MomentsHaveTheirOwnHint)
{
    DefineSimple("10", "0", "10");
    EnterMoment(kMomentCcw, "4", "100");
    Diagrams();
    MoveTo("picLoadDiagram", 48, kAboveBeam / 2);
    EXPECT_EQ(Hint(), "Tips on constructing the moment diagram");
}

TEST_F(DiagramTutor, AClickOnTheBeamReadsThePoint)
{
    MetreBeam();
    for (const auto button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        ClearPoint(CurrentPoint);
        ClickAt("picLoadDiagram", 6 * kInchesOfMetre, kInBand, button);
        ASSERT_TRUE(CurrentPoint.X);
        EXPECT_TRUE(Near(*CurrentPoint.X, 6 * kInchesOfMetre, 0.005));
        EXPECT_EQ(Find<QScrollBar>("hsbX").value(),
                  PointBarValue(*CurrentPoint.X, CurrentBeam, ShownDiagramUnits));
        EXPECT_THAT(Readout(), HasSubstr("shear force"));
    }
}

TEST_F(DiagramTutor, ALeftClickOnALoadExplainsIt)
{
    MetreBeam();
    ClickAt("picLoadDiagram", 7 * kInchesOfMetre, kAboveBeam);
    EXPECT_THAT(OpenPanes(), ElementsAre("fraExplainLoad"));
    EXPECT_THAT(Shown("txtExplainLoad"), HasSubstr("Load 1w"));
    EXPECT_THAT(Shown("txtExplainLoad"), HasSubstr(Local("27.4")));
    ClickAt("picLoadDiagram", 3 * kInchesOfMetre, 2.5 * kAboveBeam, Qt::MiddleButton);
    EXPECT_THAT(Shown("txtExplainLoad"), HasSubstr("Load 1P"));
}

TEST_F(DiagramTutor, ARightClickEditsTheLoad)
{
    MetreBeam();
    ClickAt("picLoadDiagram", 7 * kInchesOfMetre, kAboveBeam, Qt::RightButton);
    EXPECT_EQ(CurrentBeam.CurrentLoad, 1);
    EXPECT_THAT(OpenPanes(), IsEmpty());
    Entry();
    EXPECT_TRUE(IsVisible("fraUniform"));
    EXPECT_TRUE(IsVisible("cmdEditLoad(0)"));
    EXPECT_EQ(Shown("txtEndUniform"), Local("10.000"));
    EXPECT_FALSE(EditWanted);
}

TEST_F(DiagramTutor, ARightClickOnAnExampleExplains)
{
    MetreBeam();
    CurrentBeam.DiagramEntry = 1;
    ClickAt("picLoadDiagram", 7 * kInchesOfMetre, kAboveBeam, Qt::RightButton);
    EXPECT_THAT(OpenPanes(), ElementsAre("fraExplainLoad"));
    EXPECT_FALSE(EditWanted);
}

TEST_F(DiagramTutor, AClickOnAReactionExplainsTheEquilibrium)
{
    MetreBeam();
    ClickAt("picLoadDiagram", 0, kAtReaction);
    EXPECT_THAT(OpenPanes(), ElementsAre("fraExplainReactions"));
    EXPECT_THAT(Shown("txtExplainReactions"), HasSubstr(Local("30.6 kN")));
    Trigger("mnuExplain");
    EXPECT_THAT(OpenPanes(), ElementsAre("fraExplainLoad")); // one at a time
}

TEST_F(DiagramTutor, ADoubleClickOpensTheDetails)
{
    MetreBeam();
    auto& picture = Picture("picLoadDiagram");
    picture.PaintNow();
    EntryFrameOpen = true;
    DoubleClickAt("picLoadDiagram", picture.PixelOf(4 * kInchesOfMetre, kInBand));
    EXPECT_FALSE(Forms::IsVisible("frmDetails"));
    EntryFrameOpen = false;
    DoubleClickAt("picLoadDiagram", picture.PixelOf(4 * kInchesOfMetre, kInBand));
    EXPECT_TRUE(Forms::IsVisible("frmDetails"));
}

TEST_F(DiagramTutor, WithoutLoadsADoubleClickOpensNothing)
{
    DefineSimple("10", "0", "10");
    Diagrams();
    auto& picture = Picture("picLoadDiagram");
    picture.PaintNow();
    DoubleClickAt("picLoadDiagram", picture.PixelOf(60, kInBand));
    EXPECT_FALSE(Forms::IsVisible("frmDetails"));
}

TEST_F(DiagramTutor, TheAreaUnderTheShearExplainsTheMoment)
{
    FootBeam(); // 500 lb to midspan
    MoveTo("picShearDiagram", 30, 250);
    EXPECT_EQ(Hint(), "Tips for constructing the moment diagram");
    MoveTo("picShearDiagram", 30, -250);
    EXPECT_EQ(Tip("picShearDiagram"), "");
    ClickAt("picShearDiagram", 30, -250);
    EXPECT_THAT(OpenPanes(), IsEmpty());
    ClickAt("picShearDiagram", 90, -250);
    EXPECT_THAT(OpenPanes(), ElementsAre("fraExplainShear"));
    EXPECT_THAT(Shown("txtExplainShear"), HasSubstr(Local("between 5.0 ft and 10.0 ft")));
}

TEST_F(DiagramTutor, TheSignSketchChangesTheConvention)
{
    FootBeam();
    auto& picture = Picture("picShearDiagram");
    picture.PaintNow();
    QTest::mouseMove(&picture, QPoint(21, 20));
    QTest::mouseMove(&picture, QPoint(20, 20));
    EXPECT_EQ(Hint(), "Double click to change sign convention");
    DoubleClickAt("picShearDiagram", QPoint(300, 20));
    EXPECT_FALSE(Forms::IsVisible("frmReverseShear"));
    DoubleClickAt("picShearDiagram", QPoint(20, 20));
    EXPECT_TRUE(Forms::IsVisible("frmReverseShear"));
    EXPECT_THAT(OpenPanes(), IsEmpty());
}

TEST_F(DiagramTutor, LeavingAPictureTakesItsHintAway)
{
    FootBeam();
    MoveTo("picLoadDiagram", 30, kInBand);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&Picture("picLoadDiagram"), &leave);
    EXPECT_EQ(Tip("picLoadDiagram"), "");
    EXPECT_EQ(Hint(), "Point at the diagrams: a click explains what lies there.");
}

TEST_F(DiagramTutor, TheListsReachTheTutorByKeyboard)
{
    MetreBeam();
    auto& loads = Find<screen::ComboBox>("cboLoads");
    loads.setFocus();
    Press("cboLoads", Qt::Key_Down);
    EXPECT_THAT(Shown("txtExplainLoad"), HasSubstr("Load 1w"));
    Press("cboLoads", Qt::Key_Down);
    EXPECT_THAT(Shown("txtExplainLoad"), HasSubstr("Load 1P"));
    EXPECT_EQ(FocusedControl(), "cboLoads");
    Press("cboReactions", Qt::Key_Down);
    EXPECT_THAT(OpenPanes(), ElementsAre("fraExplainReactions"));
}

TEST_F(DiagramTutor, HeadingsExplainNothing)
{
    DefineSimple("10", "0", "10");
    Diagrams();
    Press("cboLoads", Qt::Key_Down);
    Press("cboReactions", Qt::Key_Down);
    EXPECT_THAT(OpenPanes(), IsEmpty());
}

TEST_F(DiagramTutor, TheBarReachesTheMomentOfItsPiece)
{
    FootBeam();
    Trigger("mnuExplainShear");
    EXPECT_THAT(Shown("txtExplainShear"), HasSubstr(Local("between 0.0 ft and 5.0 ft")));
    EXPECT_EQ(CurrentPoint.XText, Local("0.00"));
    EXPECT_EQ(FocusedControl(), "txtExplainShear");
    Press("hsbX", Qt::Key_End);
    Trigger("mnuExplainShear");
    EXPECT_THAT(Shown("txtExplainShear"), HasSubstr(Local("between 5.0 ft and 10.0 ft")));
}

TEST_F(DiagramTutor, EachCurveHasItsDiscontinuityFunction)
{
    UseSteelSection();
    MetreBeam();
    Click("cmdDiscontinuity(0)");
    EXPECT_THAT(Shown("txtExplainShear"), HasSubstr("V(x) = "));
    Click("cmdDiscontinuity(1)");
    EXPECT_THAT(Shown("txtExplainShear"), HasSubstr("M(x) = "));
    Trigger("mnuSlopeDeflection");
    Click("cmdDiscontinuity(2)");
    EXPECT_THAT(Shown("txtExplainShear"), HasSubstr("slope as a function"));
    Click("cmdDiscontinuity(3)");
    EXPECT_THAT(Shown("txtExplainShear"), HasSubstr("deflection as a function"));
    EXPECT_THAT(OpenPanes(), ElementsAre("fraExplainShear"));
}

TEST_F(DiagramTutor, TheWholeBeamHasTheNumbersOfTheDiagrams)
{
    MetreBeam();
    Choose("optMomentUnits(3)");
    Trigger("mnuExplain");
    for (const char* number : {"30.6 kN", "27.4 kN", "4.52", "75.1 kN-m"})
        EXPECT_THAT(Shown("txtExplainLoad"), HasSubstr(Local(number)));
}

TEST_F(DiagramTutor, AnOpenExplanationFollowsChanges)
{
    MetreBeam();
    Trigger("mnuExplain");
    Choose("optForceUnits(2)");
    EXPECT_THAT(Shown("txtExplainLoad"), HasSubstr(Local("27,400.0 N")));
    Entry();
    EnterPoint(kPointDown, "1", "10");
    Diagrams();
    Select("cboLoads", Local("2P = 10. kN (down)"));
    Press("cboLoads", Qt::Key_Up);
    Press("cboLoads", Qt::Key_Down);
    EXPECT_THAT(Shown("txtExplainLoad"), HasSubstr("Load 2P"));
    RequestDiagrams((CurrentBeam.LoadCount = 2, RequestAfterChange(CurrentBeam)));
    EXPECT_THAT(OpenPanes(), IsEmpty()); // the load is gone
}

TEST_F(DiagramTutor, EscapeAndButtonsClose)
{
    MetreBeam();
    Trigger("mnuExplain");
    Activate();
    Press("txtExplainLoad", Qt::Key_Escape);
    EXPECT_THAT(OpenPanes(), IsEmpty());
    EXPECT_EQ(FocusedControl(), "hsbX");
    ClickAt("picLoadDiagram", 0, kAtReaction);
    Click("cmdCloseExplain(2)");
    EXPECT_THAT(OpenPanes(), IsEmpty());
}

TEST_F(DiagramTutor, ComingBackClosesTheExplanation)
{
    MetreBeam();
    Trigger("mnuExplain");
    Forms::Show("frmBeamStuf");
    Open("frmBeamDiagrams");
    EXPECT_THAT(OpenPanes(), IsEmpty());
}

class DiagramPage : public DiagramTutor {
  protected:
    /// Prints with that title into a PDF file; hands back its size, 0 without a file.
    qint64 PrintTo(const QString& path, const std::string& button = "cmdOK")
    {
        Printers->PdfFile = path;
        QTimer::singleShot(0, &TheForm(), [this, button] {
            Use("frmStiffPrint");
            Type("txtTitle", "Beam of problem 4");
            Click(button);
        });
        Trigger("mnuPrintDiagrams");
        Diagrams();
        return QFile(path).size();
    }
    QTemporaryDir folder_;
};

TEST_F(DiagramPage, HasTitleNotesAndDiagrams)
{
    UseSteelSection();
    MetreBeam();
    EXPECT_GT(PrintTo(folder_.filePath("shear.pdf")), 4000);
    EXPECT_EQ(Printers->Asked, 1);
    Trigger("mnuSlopeDeflection");
    EXPECT_GT(PrintTo(folder_.filePath("slope.pdf")), 4000);
    const char* kept = std::getenv("FORCELAB_PAGES");
    for (const char* name : {"shear.pdf", "slope.pdf"})
        if (kept) QFile::copy(folder_.filePath(name), QString::fromUtf8(kept) + "/" + name);
}

TEST_F(DiagramPage, LeavesTheScreenAsItWas)
{
    MetreBeam();
    const std::string before = Shown("picShearDiagram");
    MoveTo("picLoadDiagram", 4 * kInchesOfMetre, kInBand);
    const std::string hint = Hint();
    PrintTo(folder_.filePath("page.pdf"));
    EXPECT_EQ(Shown("picShearDiagram"), before);
    ClickAt("picLoadDiagram", 4 * kInchesOfMetre, kInBand);
    EXPECT_EQ(Hint(), hint);
}

TEST_F(DiagramPage, AFailedPlotIsNotPrinted)
{
    MetreBeam();
    QTest::qWait(10);
    CurrentBeam.LoadMagnitude[2][kUnfactored] = 1e308; // its moments overflow
    CurrentBeam.BeamLength = CurrentBeam.SupportB = 1e6;
    Messages->AcceptAny = true; // the pictures on the screen tell of it too
    PrintTo(folder_.filePath("page.pdf"));
    ASSERT_FALSE(Messages->Shown.empty());
    EXPECT_EQ(Messages->Shown.back().Title, "Shear Diagram Error Message");
}

TEST_F(DiagramPage, CancelPrintsNothing)
{
    MetreBeam();
    EXPECT_EQ(PrintTo(folder_.filePath("page.pdf"), "cmdCancel"), 0);
    EXPECT_EQ(Printers->Asked, 0);
    PrintTo(""); // no printer is chosen
    EXPECT_EQ(Printers->Asked, 1);
}

} // namespace
} // namespace forcelab::beams
