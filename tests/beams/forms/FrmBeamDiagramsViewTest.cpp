#include "BeamDiagramsFormTest.h"

#include <QMenuBar>

namespace forcelab::beams {
namespace {

using screen::Forms;
using test::Local;
using testing::Contains;
using testing::Not;

/// Views, units, life and what the entry asks for.
using DiagramView = BeamDiagramsFormTest;

constexpr const char* kStiffnessTitle = "Slope/Deflection Message";
constexpr const char* kStiffnessText =
    "A value of EI = 1 will be used for now, but you should\r\n"
    "define a shape from the Cross-Section menu.\r\n\r\n"
    "(Note:  Divide the displayed slopes and deflections by the\r\n"
    "actual EI to find the true slopes and deflections.)";

TEST_F(DiagramView, StandsAtTheRightEndOfTheWorkArea)
{
    Screen->Area = {0, 20, 1280, 880};
    Open("frmBeamDiagrams");
    EXPECT_EQ(TheForm().size(), QSize(1280 - 420, 880));
    EXPECT_EQ(TheForm().pos(), QPoint(420, 20));
    EXPECT_EQ(TheForm().windowTitle().toStdString(), "Beam Diagrams Module");
    EXPECT_TRUE(IsChosen("mnuShearMoment"));
    EXPECT_FALSE(IsChosen("mnuSlopeDeflection"));
}

TEST_F(DiagramView, IsNeverNarrowerThanItsLeastWidth)
{
    Screen->Area = {0, 0, 640, 900};
    Open("frmBeamDiagrams");
    EXPECT_EQ(TheForm().width(), 394);
    EXPECT_EQ(TheForm().x(), 640 - 394);
}

TEST_F(DiagramView, NothingIsClippedAtAnyWidth)
{
    UseSteelSection();
    MetreBeam();
    Trigger("mnuExplain");
    for (const bool slopes : {false, true}) {
        Trigger(slopes ? "mnuSlopeDeflection" : "mnuShearMoment");
        for (const int width : {394, 500, 604, 860, 939, 940, 1280}) {
            for (int move = 0; move < 2; ++move) { // past the width where the pane goes below
                TheForm().resize(width, 700);
                QCoreApplication::processEvents();
            }
            EXPECT_EQ(TheForm().size(), QSize(width, 700));
            for (auto* widget : TheForm().findChildren<QWidget*>()) {
                const bool wanted = dynamic_cast<QAbstractButton*>(widget) ||
                                    (dynamic_cast<screen::Label*>(widget) &&
                                     !dynamic_cast<screen::Label*>(widget)->wordWrap());
                if (!wanted || !widget->isVisible() || widget->objectName().startsWith(u"qt_"))
                    continue;
                EXPECT_GE(widget->width(), widget->minimumSizeHint().width())
                    << width << " " << widget->objectName().toStdString();
                const QRect place(widget->mapTo(&TheForm(), QPoint(0, 0)), widget->size());
                EXPECT_TRUE(TheForm().rect().contains(place))
                    << width << " " << widget->objectName().toStdString();
            }
        }
    }
}

TEST_F(DiagramView, UnitsStandApartWhereTheWidthChangesWithTheView)
{
    UseSteelSection();
    MetreBeam();
    TheForm().resize(1280, 800);
    QCoreApplication::processEvents();
    TheForm().findChild<QAction*>("mnuSlopeDeflection")->trigger(); // and no event before the next
    TheForm().resize(604, 700);
    QTest::qWait(1);
    const QRect length = Widget("picLengthUnits").geometry();
    const QRect slope = Widget("picSlopeUnits").geometry();
    const QRect deflection = Widget("picDeflectionUnits").geometry();
    EXPECT_FALSE(length.intersects(slope) || length.intersects(deflection) ||
                 slope.intersects(deflection));
    EXPECT_GE(slope.width(), Widget("picSlopeUnits").sizeHint().width());
}

TEST_F(DiagramView, PicturesAreOfOneWidth)
{
    MetreBeam();
    EXPECT_EQ(Picture("picLoadDiagram").width(), Picture("picShearDiagram").width());
    EXPECT_EQ(Picture("picLoadDiagram").width(), Picture("picMomentDiagram").width());
    const auto left = [this](const char* name) {
        return Picture(name).PixelOf(0, 0).x() + Picture(name).mapTo(&TheForm(), QPoint()).x();
    };
    for (const char* name : {"picLoadDiagram", "picShearDiagram", "picMomentDiagram"})
        Picture(name).PaintNow();
    EXPECT_EQ(left("picLoadDiagram"), left("picShearDiagram"));
    EXPECT_EQ(left("picLoadDiagram"), left("picMomentDiagram"));
}

TEST_F(DiagramView, LabelBoxesLeaveTheArrowsFree)
{
    Open("frmBeamDiagrams");
    EXPECT_EQ(Shown("txtComboLabels(0)"), "Loads");
    EXPECT_EQ(Shown("txtComboLabels(1)"), "Reactions");
    EXPECT_EQ(Widget("txtComboLabels(0)").width(), Widget("cboLoads").width() - 18);
    EXPECT_EQ(Widget("txtComboLabels(1)").width(), Widget("cboReactions").width() - 18);
    EXPECT_EQ(Find<screen::ComboBox>("cboLoads").itemText(0).toStdString(), "Loads");
    EXPECT_EQ(Find<screen::ComboBox>("cboReactions").itemText(0).toStdString(), "Reactions");
}

TEST_F(DiagramView, WithoutABeamThePicturesAreEmpty)
{
    Open("frmBeamDiagrams");
    EXPECT_EQ(Readout(), "Define a beam to see its diagrams.");
    for (const char* name : {"picLoadDiagram", "picShearDiagram", "picMomentDiagram"})
        EXPECT_EQ(Shown(name), "");
    for (const char* item : {"mnuPrintDiagrams", "mnuSpecificPoint", "mnuExplain"})
        EXPECT_FALSE(IsEnabled(item)) << item;
    EXPECT_FALSE(IsEnabled("hsbX"));
}

TEST_F(DiagramView, CaptionsComeWithTheFirstLoadAndGoWithTheLast)
{
    DefineSimple("10", "0", "10");
    Diagrams();
    EXPECT_FALSE(IsVisible("lblDiagram(0)"));
    EXPECT_FALSE(IsVisible("lblDiagram(1)"));
    EXPECT_EQ(Readout(), "Add a load to see what it does to the beam.");
    Entry();
    EnterPoint(kPointDown, "5", "1000");
    Diagrams();
    EXPECT_TRUE(IsVisible("lblDiagram(0)"));
    EXPECT_TRUE(IsEnabled("cmdDiscontinuity(0)"));
    Entry();
    Trigger("mnuUndoLoadEntry");
    Diagrams();
    EXPECT_FALSE(IsVisible("lblDiagram(0)"));
    EXPECT_EQ(Find<screen::ComboBox>("cboLoads").itemText(0).toStdString(), "Loads");
}

TEST_F(DiagramView, SlopesReplaceShears)
{
    FootBeam();
    ExpectBox(kInformation, kStiffnessTitle, kStiffnessText);
    Trigger("mnuSlopeDeflection");
    EXPECT_TRUE(IsChosen("mnuSlopeDeflection"));
    EXPECT_FALSE(IsChosen("mnuShearMoment"));
    for (const char* shown : {"picSlopeDiagram", "picDeflectionDiagram", "picSlopeUnits",
                              "picDeflectionUnits", "lblEIMessage(0)", "lblEIMessage(2)"})
        EXPECT_TRUE(IsVisible(shown)) << shown;
    for (const char* hidden : {"picShearDiagram", "picMomentDiagram", "picForceUnits",
                               "picMomentUnits", "lblEIMessage(1)", "lblEIMessage(3)"})
        EXPECT_FALSE(IsVisible(hidden)) << hidden;
    EXPECT_EQ(Shown("lblEIMessage(0)"), "Slopes calculated with EI = 1");
    EXPECT_EQ(Shown("lblEIMessage(2)"), "Deflections calculated with EI = 1");
    EXPECT_EQ(ShownDiagramUnits.BeamEI, 1);
    EXPECT_THAT(Lines("picSlopeDiagram"), Contains("(radians)"));
    Trigger("mnuShearMoment");
    EXPECT_TRUE(IsVisible("picShearDiagram"));
    EXPECT_TRUE(IsVisible("picMomentUnits"));
    EXPECT_FALSE(IsVisible("picSlopeDiagram"));
    EXPECT_FALSE(IsVisible("lblEIMessage(0)"));
}

TEST_F(DiagramView, TheStiffnessMessageComesOnceForEachStay)
{
    FootBeam();
    ExpectBox(kInformation, kStiffnessTitle, kStiffnessText);
    Trigger("mnuSlopeDeflection");
    Trigger("mnuShearMoment");
    Trigger("mnuSlopeDeflection"); // says nothing
    Entry();
    Trigger("mnuNew");
    FootBeam();
    ExpectBox(kInformation, kStiffnessTitle, kStiffnessText);
    Trigger("mnuSlopeDeflection");
}

TEST_F(DiagramView, ASectionThatComesLaterIsTakenUp)
{
    FootBeam();
    ExpectBox(kInformation, kStiffnessTitle, kStiffnessText);
    Trigger("mnuSlopeDeflection");
    UseSteelSection();
    EXPECT_THAT(Lines("picDeflectionDiagram"), Contains(Local("-0.00124")));
    QCoreApplication::processEvents();
    EXPECT_FALSE(IsVisible("lblEIMessage(0)"));
    sections::ForgetSection();
    Forms::Show("frmBeamStuf");
    Open("frmBeamDiagrams");
    EXPECT_TRUE(IsVisible("lblEIMessage(0)"));
    EXPECT_EQ(ShownDiagramUnits.BeamEI, 1);
}

TEST_F(DiagramView, AStiffnessOfOneOrLessIsNone)
{
    UseSteelSection();
    sections::CurrentSection.Record(sections::Row::Modulus, sections::Column::ZzInches) = 1e-3;
    FootBeam();
    ExpectBox(kInformation, kStiffnessTitle, kStiffnessText);
    Trigger("mnuSlopeDeflection");
    EXPECT_TRUE(IsVisible("lblEIMessage(2)"));
    EXPECT_EQ(ShownDiagramUnits.BeamEI, 1);
}

struct UnitRow {
    const char* Option;
    const char* Picture;
    const char* Text;
};
class DiagramUnitOptions : public BeamDiagramsFormTest,
                           public testing::WithParamInterface<UnitRow> {};

// 30.6 kN = 30600 N = 6.879 kips = 6879.2 lbs; 75.0760 kN-m = 55373.2 ft-lbs = 55.4 ft-kips.
TEST_P(DiagramUnitOptions, ShowThePictureInTheirUnit)
{
    const UnitRow& row = GetParam();
    UseSteelSection();
    MetreBeam();
    if (std::string(row.Option).find("optSlope") == 0 ||
        std::string(row.Option).find("optDefl") == 0)
        Trigger("mnuSlopeDeflection");
    Choose(row.Option);
    EXPECT_THAT(Lines(row.Picture), Contains(Local(row.Text)));
}

INSTANTIATE_TEST_SUITE_P(
    All, DiagramUnitOptions,
    testing::Values(UnitRow{"optForceUnits(0)", "picShearDiagram", "6,879.2"},
                    UnitRow{"optForceUnits(1)", "picShearDiagram", "6.9"},
                    UnitRow{"optForceUnits(2)", "picShearDiagram", "30,600.0"},
                    UnitRow{"optForceUnits(3)", "picLoadDiagram", "A = 30.6 kN"},
                    UnitRow{"optForceUnits(2)", "picLoadDiagram", "A = 30,600.0 N"},
                    UnitRow{"optMomentUnits(0)", "picMomentDiagram", "55,373.2"},
                    UnitRow{"optMomentUnits(1)", "picMomentDiagram", "55.4"},
                    UnitRow{"optMomentUnits(2)", "picMomentDiagram", "75,076.0"},
                    UnitRow{"optMomentUnits(3)", "picMomentDiagram", "75.1"},
                    UnitRow{"optLengthUnits(0)", "picShearDiagram", "393.7"},
                    UnitRow{"optLengthUnits(1)", "picMomentDiagram", "32.81"},
                    UnitRow{"optLengthUnits(2)", "picLoadDiagram", "10000.0"},
                    UnitRow{"optLengthUnits(2)", "picShearDiagram", "(mm)"},
                    UnitRow{"optSlopeUnits(1)", "picSlopeDiagram", "(degrees)"},
                    UnitRow{"optDeflectionUnits(1)", "picDeflectionDiagram", "(mm)"}));

TEST_F(DiagramView, ReactionsAreListedInTheUnitShown)
{
    MetreBeam();
    const auto& list = Find<screen::ComboBox>("cboReactions");
    EXPECT_EQ(list.itemText(1).toStdString(), Local("B = 27.4 kN (up)"));
    Choose("optForceUnits(2)");
    EXPECT_EQ(list.itemText(1).toStdString(), Local("B = 27,400.0 N (up)"));
    EXPECT_EQ(Find<screen::ComboBox>("cboLoads").itemText(1).toStdString(),
              Local("1P = 8. kN (down)"));
}

TEST_F(DiagramView, AnEntryBringsShearAndMomentBack)
{
    UseSteelSection();
    FootBeam();
    Trigger("mnuSlopeDeflection");
    Entry();
    EnterMoment(kMomentCw, "2", "30");
    Diagrams();
    EXPECT_TRUE(IsChosen("mnuShearMoment"));
    EXPECT_TRUE(IsVisible("picShearDiagram"));
    EXPECT_FALSE(CurrentPoint.SlopeView);
}

TEST_F(DiagramView, RequestsReachAHiddenForm)
{
    FootBeam();
    Trigger("mnuBack");
    EXPECT_TRUE(Forms::IsVisible("frmBeamStuf"));
    EXPECT_FALSE(Forms::IsVisible("frmBeamDiagrams"));
    Entry();
    Trigger("mnuUndoLoadEntry"); // shows them again
    EXPECT_TRUE(Forms::IsVisible("frmBeamDiagrams"));
    Diagrams();
    EXPECT_THAT(Lines("picLoadDiagram"), Not(Contains(Local("A = 500.0 lbs"))));
}

TEST_F(DiagramView, CloseBoxIsBack)
{
    FootBeam();
    TheForm().close();
    EXPECT_TRUE(Forms::IsLoaded("frmBeamDiagrams"));
    EXPECT_FALSE(Forms::IsVisible("frmBeamDiagrams"));
    EXPECT_TRUE(Forms::IsVisible("frmBeamStuf"));
}

TEST_F(DiagramView, UnloadingLetsGoOfTheSharedCalls)
{
    FootBeam();
    EXPECT_TRUE(OnDiagramRequest);
    EXPECT_TRUE(OnPointForDiagrams);
    Forms::Unload("frmBeamDiagrams");
    EXPECT_FALSE(OnDiagramRequest);
    EXPECT_FALSE(OnPointForDiagrams);
    Open("frmBeamDiagrams"); // the beam is still there, in its unit
    EXPECT_TRUE(IsChosen("optLengthUnits(1)"));
    EXPECT_THAT(Lines("picShearDiagram"), Contains(Local("-500.0")));
    EXPECT_EQ(Find<screen::ComboBox>("cboLoads").count(), 1);
}

TEST_F(DiagramView, TheSignConventionTurnsTheShear)
{
    FootBeam();
    CurrentPoint.XText = "2";
    CalculatePoint(CurrentPoint, CurrentBeam, ShownDiagramUnits);
    Trigger("mnuShearSignConvention");
    EXPECT_TRUE(Forms::IsVisible("frmReverseShear"));
    Use("frmReverseShear");
    Choose("optReverseShear(0)");
    Click("cmdOK");
    Diagrams();
    EXPECT_EQ(CurrentPoint.Texts[0], Local("-500.00"));
    EXPECT_THAT(Lines("picShearDiagram"), Contains(Local("-500.0")));
}

TEST_F(DiagramView, DetailsStartAtZero)
{
    FootBeam();
    EXPECT_EQ(CurrentPoint.XText, "");
    Trigger("mnuSpecificPoint");
    EXPECT_EQ(CurrentPoint.XText, "0");
    EXPECT_TRUE(Forms::IsVisible("frmDetails"));
    CurrentPoint.XText = "3";
    Use("frmBeamDiagrams");
    Trigger("mnuSpecificPoint");
    EXPECT_EQ(CurrentPoint.XText, "3");
}

TEST_F(DiagramView, HelpOpensItsTopic)
{
    Open("frmBeamDiagrams");
    Trigger("mnuHelp");
    ASSERT_EQ(Help->Opened.size(), 1U);
    EXPECT_EQ(Help->Opened[0].second, 4000);
}

TEST_F(DiagramView, MnemonicsDiffer)
{
    Open("frmBeamDiagrams");
    std::string letters;
    for (const QAction* action : TheForm().menuBar()->actions()) {
        const QString caption = action->text();
        const QChar letter = caption[caption.indexOf(u'&') + 1].toLower();
        EXPECT_EQ(letters.find(letter.toLatin1()), std::string::npos) << caption.toStdString();
        letters += letter.toLatin1();
    }
}

// The largest moment overflows, the load itself does not.
TEST_F(DiagramView, AFailedPlotTellsOnceForEachChange)
{
    Open("frmBeamStuf");
    CurrentBeam.SupportType = kTwoSupports;
    CurrentBeam.BeamLength = CurrentBeam.SupportB = 1e6;
    StoreBeamLoad(CurrentBeam, 1, {kPointDown, 5e5, 5e5, 0, 1e305, 0, 0});
    CurrentBeam.LoadCount = 1;
    Forms::Show("frmBeamDiagrams");
    Diagrams();
    ExpectBox(kStop, "Shear Diagram Error Message",
              "An error occurred in plotting the shear diagram.\r\nPlease check your input.");
    ExpectBox(kStop, "Moment Diagram Error Message",
              "An error occurred in plotting the moment diagram.\r\nPlease check your input.");
    RequestDiagrams(RequestAfterChange(CurrentBeam));
    QTest::qWait(30);
    for (int again = 0; again < 3; ++again) {
        Shown("picShearDiagram");
        Shown("picMomentDiagram");
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(Shown("picMomentDiagram"), "");
}

} // namespace
} // namespace forcelab::beams
