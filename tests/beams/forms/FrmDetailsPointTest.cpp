#include "DetailsFormTest.h"

#include <QMenuBar>

namespace forcelab::beams {
namespace {

using screen::Forms;
using test::Local;
using test::Near;
using testing::HasSubstr;

class PointForm : public DetailsFormTest {};

TEST_F(PointForm, ShowsShearAndMomentAtAPoint)
{
    UseSimpleBeam(); // reactions 500 lb; at 3 ft V = 500 lb, M = 1500 ft-lb
    Open("frmDetails");
    EXPECT_EQ(TheForm().windowTitle().toStdString(), "Beam Details");
    EXPECT_EQ(Shown("fraPoint"), "Shear/Moment Along the Beam");
    EXPECT_EQ(Shown("cmdSpecificPoint"), "&Shear/Moment");
    EXPECT_EQ(Shown("lblSpecificPoint"), "x (ft)");
    for (const char* value : {"lblPointValue(0)", "lblPointValue(1)"})
        EXPECT_EQ(Shown(value), "Not calculated");
    Type("txtSpecificPoint", "3");
    Click("cmdSpecificPoint");
    EXPECT_EQ(Shown("lblPointName(0)"), "Shear Force");
    EXPECT_EQ(Shown("lblPointValue(0)"), Local("500.00"));
    EXPECT_EQ(Shown("lblPointUnit(0)"), "(lbs)");
    EXPECT_EQ(Shown("lblPointName(1)"), "Bending Moment");
    EXPECT_EQ(Shown("lblPointValue(1)"), Local("1,500.00"));
    EXPECT_EQ(Shown("lblPointUnit(1)"), "(ft-lbs)");
}

TEST_F(PointForm, EnterRunsTheButtonAndTypingClears)
{
    UseSimpleBeam();
    Open("frmDetails");
    Type("txtSpecificPoint", "3");
    Press("txtSpecificPoint", Qt::Key_Return);
    EXPECT_EQ(Shown("lblPointValue(0)"), Local("500.00"));
    ASSERT_TRUE(CurrentPoint.X.has_value());
    QTest::keyClicks(&Widget("txtSpecificPoint"), QStringLiteral("1"));
    EXPECT_EQ(Shown("lblPointValue(0)"), "Not calculated");
    EXPECT_FALSE(CurrentPoint.X.has_value());
}

TEST_F(PointForm, TheDiagramsAreTold)
{
    UseSimpleBeam();
    Open("frmDetails");
    int told = 0;
    OnPointForDiagrams = [&told] { ++told; };
    Type("txtSpecificPoint", "3");
    EXPECT_GE(told, 1);
    told = 0;
    Click("cmdSpecificPoint");
    EXPECT_EQ(told, 1);
    EXPECT_TRUE(Near(*CurrentPoint.X, 36, 1e-12));
}

TEST_F(PointForm, TheDiagramsMayMoveThePoint)
{
    UseSimpleBeam();
    Open("frmDetails");
    CurrentPoint.XText = Local("2.00");
    CalculatePoint(CurrentPoint, CurrentBeam, ShownDiagramUnits);
    TellPointChanged();
    EXPECT_EQ(Shown("txtSpecificPoint"), Local("2.00"));
    EXPECT_EQ(Shown("lblPointValue(1)"), Local("1,000.00"));
    ClearPoint(CurrentPoint);
    TellPointChanged();
    EXPECT_EQ(Shown("lblPointValue(1)"), "Not calculated");
    Forms::Unload("frmDetails");
    EXPECT_FALSE(OnPointForDetails);
    TellPointChanged();
}

// P L^3 / 48 E I = 1000 x 120^3 / (48 x 29,000,000 x 999) = 0.001243 in.
TEST_F(PointForm, SmallDeflectionsShowTheirDigits)
{
    UseSimpleBeam();
    Open("frmDetails");
    ShownDiagramUnits.BeamEI = 29e6 * 999;
    CurrentPoint.SlopeView = true;
    TellPointChanged();
    EXPECT_EQ(Shown("fraPoint"), "Slope/Deflection Along the Beam");
    EXPECT_EQ(Shown("cmdSpecificPoint"), "&Slope/Deflect");
    EXPECT_EQ(Shown("lblPointName(1)"), "Deflection");
    EXPECT_EQ(Shown("lblPointUnit(0)"), "(radians)");
    Type("txtSpecificPoint", "5");
    Click("cmdSpecificPoint");
    EXPECT_EQ(Shown("lblPointValue(1)"), Local("0.00"));
    EXPECT_EQ(Shown("lblPointFiner(1)"), Local("= -0.00124"));
    EXPECT_EQ(Shown("lblPointFiner(0)"), "");
}

TEST_F(PointForm, AnyTextAndNoBeamAreCalm)
{
    Open("frmDetails");
    Type("txtSpecificPoint", "3");
    Click("cmdSpecificPoint");
    EXPECT_EQ(Shown("lblPointValue(0)"), "Not calculated");
    UseSimpleBeam();
    Type("txtSpecificPoint", "abc");
    Click("cmdSpecificPoint");
    EXPECT_EQ(Shown("lblPointValue(0)"), Local("500.00")); // x = 0
    Type("txtSpecificPoint", "99");
    Click("cmdSpecificPoint");
    EXPECT_EQ(Shown("txtSpecificPoint"), Local("10.00"));
}

TEST_F(PointForm, WithoutASectionItSaysWhereToGetOne)
{
    Open("frmDetails");
    EXPECT_TRUE(IsVisible("lblNoSection"));
    EXPECT_THAT(Shown("lblNoSection"), HasSubstr("Cross-Section menu"));
    for (const char* part : {"fraVM", "fraCoord", "fraStressUnits", "cmdVM(0)", "picST(0)"})
        EXPECT_FALSE(IsVisible(part)) << part;
    EXPECT_LE(TheForm().width(), 440);
    const auto& area = *TheForm().findChild<QScrollArea*>();
    EXPECT_EQ(area.verticalScrollBar()->maximum(), 0); // nothing is cut off
    Forms::Hide("frmDetails");
    TakeSection(test::Tee());
    Open("frmDetails");
    EXPECT_FALSE(IsVisible("lblNoSection"));
    EXPECT_TRUE(IsVisible("fraVM"));
    EXPECT_GE(TheForm().width(), 620);
    EXPECT_LE(TheForm().width(), 760);
    Forms::Hide("frmDetails");
    sections::ForgetSection();
    Open("frmDetails");
    EXPECT_FALSE(IsVisible("fraVM"));
}

TEST_F(PointForm, AShapeWithoutPropertiesIsNoSection)
{
    sections::TakeShape(sections::CurrentSection, sections::kTShape);
    Open("frmDetails");
    EXPECT_TRUE(IsVisible("lblNoSection"));
    EXPECT_FALSE(IsVisible("cmdVM(0)"));
}

TEST_F(PointForm, ForcesComeFromThePoint)
{
    UseSimpleBeam();
    TakeSection(test::Tee());
    Open("frmDetails");
    ShownDiagramUnits.Force = 1;
    ShownDiagramUnits.Moment = 3;
    Type("txtVM(0)", "7");
    Type("txtSpecificPoint", "3");
    Click("cmdSpecificPoint");
    EXPECT_EQ(Shown("txtVM(0)"), "7");
    EXPECT_EQ(Shown("txtVM(1)"), Local("0.50")); // kips
    EXPECT_EQ(Shown("txtVM(2)"), Local("2.03")); // 1500 ft-lb are 2.0337 kN-m
    EXPECT_TRUE(IsChosen("optForceUnits(1)"));
    EXPECT_TRUE(IsChosen("optMomentUnits(3)"));
}

TEST_F(PointForm, ShearKeepsItsSignWhereTheDiagramIsReversed)
{
    UseSimpleBeam();
    CurrentBeam.ReverseShearSign = true;
    TakeSection(test::Tee());
    Open("frmDetails");
    Type("txtSpecificPoint", "3");
    Click("cmdSpecificPoint");
    EXPECT_EQ(Shown("lblPointValue(0)"), Local("-500.00"));
    EXPECT_EQ(Shown("txtVM(1)"), Local("500.00"));
}

TEST_F(PointForm, AForceTypedSinceThenStays)
{
    UseSimpleBeam();
    TakeSection(test::Tee());
    Open("frmDetails");
    Type("txtSpecificPoint", "3");
    Click("cmdSpecificPoint");
    Type("txtVM(1)", "42");
    TellPointChanged();
    Forms::Hide("frmDetails");
    Open("frmDetails");
    EXPECT_EQ(Shown("txtVM(1)"), "42");
    Click("cmdSpecificPoint"); // asked for anew
    EXPECT_EQ(Shown("txtVM(1)"), Local("500.00"));
}

TEST_F(PointForm, SlopesGiveNoForces)
{
    UseSimpleBeam();
    TakeSection(test::Tee());
    Open("frmDetails");
    CurrentPoint.SlopeView = true;
    Type("txtSpecificPoint", "3");
    Click("cmdSpecificPoint");
    EXPECT_EQ(Shown("txtVM(1)"), Local("0.00"));
}

TEST_F(PointForm, AnOpenViewFollowsThePoint)
{
    UseSimpleBeam();
    TakeSection(test::Tee());
    Open("frmDetails");
    Type("txtSpecificPoint", "3");
    Click("cmdSpecificPoint");
    Click("cmdVM(0)"); // M = 18000 lb-in, M c / I = 737.32 psi
    EXPECT_TRUE(Near(KeyStressOf("Bottom"), 737.320, 1e-5));
    Type("txtSpecificPoint", "5");
    Press("txtSpecificPoint", Qt::Key_Return);
    EXPECT_TRUE(Near(KeyStressOf("Bottom"), 737.320 * 5 / 3, 1e-5));
}

TEST_F(PointForm, EndGivesTheBeamFormItsPlaceBack)
{
    TakeSection(test::Tee());
    Open("frmBeamStuf");
    TheForm().move(30, 40);
    OpenWith("0", "10", "1");
    Click("cmdVM(0)");
    Forms::Load("frmBeamStuf")->move(300, 200);
    Click("cmdVM(3)");
    EXPECT_FALSE(Forms::IsVisible("frmDetails"));
    EXPECT_TRUE(Forms::IsLoaded("frmDetails"));
    EXPECT_TRUE(Forms::IsVisible("frmBeamStuf"));
    EXPECT_EQ(Forms::Load("frmBeamStuf")->pos(), QPoint(30, 40));
    EXPECT_TRUE(Find<screen::PictureBox>("picST(1)").isHidden());
    EXPECT_TRUE(Find<screen::PictureBox>("picST(0)").isHidden());
    EXPECT_EQ(Shown("lblKeyStresses"), "Normal stresses at key locations");
    Open("frmDetails");
    EXPECT_TRUE(IsVisible("picST(0)"));
    EXPECT_FALSE(IsVisible("picST(1)"));
    EXPECT_EQ(Shown("txtVM(1)"), "10");
}

TEST_F(PointForm, EndHidesMohrWhereItWasOpenedFromHere)
{
    OpenTee("10", "1");
    Click("cmdVM(2)");
    EXPECT_TRUE(Forms::IsVisible("frmMohr"));
    Use("frmDetails");
    Click("cmdVM(3)");
    EXPECT_FALSE(Forms::IsVisible("frmMohr"));
    MainModule::MohrCaller = 1;
    Open("frmMohr");
    Open("frmDetails");
    Click("cmdVM(3)");
    EXPECT_TRUE(Forms::IsVisible("frmMohr"));
}

TEST_F(PointForm, BackAndTheCloseBoxEnd)
{
    for (const bool byBox : {false, true}) {
        Open("frmDetails");
        byBox ? static_cast<void>(TheForm().close()) : Trigger("mnuBack");
        EXPECT_FALSE(Forms::IsVisible("frmDetails"));
        EXPECT_TRUE(Forms::IsLoaded("frmDetails"));
        EXPECT_TRUE(Forms::IsVisible("frmBeamStuf"));
        Forms::Hide("frmBeamStuf");
    }
}

TEST_F(PointForm, HelpOpensTheBeams)
{
    Open("frmDetails");
    Trigger("mnuHelp");
    ASSERT_EQ(Help->Opened.size(), 1U);
    EXPECT_EQ(Help->Opened[0].second, 4000);
}

TEST_F(PointForm, AnotherSectionResetsTheViewsAndHoldsThePointInside)
{
    OpenTee("10", "8");
    Type("txtCoord(0)", "4");
    Click("cmdVM(0)");
    Forms::Hide("frmDetails");
    Open("frmDetails");
    EXPECT_TRUE(IsVisible("picST(1)")); // the same section
    Forms::Hide("frmDetails");
    TakeSection(test::Computed(sections::kRectangle, {2, 4}));
    Open("frmDetails");
    EXPECT_FALSE(IsVisible("picST(1)"));
    EXPECT_EQ(Shown("txtCoord(0)"), Local("1.000"));
    EXPECT_EQ(Shown("txtKeyStresses(0)"), "");
    auto& across = Find<QScrollBar>("hsbZ");
    EXPECT_EQ(across.value(), across.maximum());
    Click("cmdVM(0)"); // M c / I = 96 x 2 / (2 x 4^3 / 12) = 18 ksi
    EXPECT_TRUE(Near(KeyStressOf("Bottom"), 18, 1e-4));
}

// Two captions name S; without a section it is the point's, with one it is the shear stress's.
TEST_F(PointForm, LettersAreUnique)
{
    TakeSection(test::Tee());
    Open("frmDetails");
    std::vector<QString> letters;
    for (QAbstractButton* button : TheForm().findChildren<QAbstractButton*>())
        if (button->isVisible() && !button->shortcut().isEmpty())
            letters.push_back(button->shortcut().toString());
    for (QAction* item : TheForm().menuBar()->actions())
        letters.push_back(QKeySequence::mnemonic(item->text()).toString());
    std::sort(letters.begin(), letters.end());
    EXPECT_EQ(std::adjacent_find(letters.begin(), letters.end()), letters.end());
    EXPECT_GE(letters.size(), 8U);
}

TEST_F(PointForm, EverythingHasANameAndIsReached)
{
    OpenTee("10", "8");
    Click("cmdVM(1)");
    for (QWidget* widget : TheForm().findChildren<QWidget*>()) {
        const bool takesFocus = widget->isVisible() && (widget->focusPolicy() & Qt::TabFocus) &&
                                !widget->objectName().isEmpty() &&
                                !widget->objectName().startsWith(QLatin1String("qt_"));
        const auto* button = qobject_cast<QAbstractButton*>(widget);
        if (!takesFocus || (button && !button->text().isEmpty())) continue;
        EXPECT_FALSE(widget->accessibleName().isEmpty()) << widget->objectName().toStdString();
    }
}

} // namespace
} // namespace forcelab::beams
