#include "BeamStufFormTest.h"
#include "beams/forms/DetailsWidth.h"

#include "core/MainModule.h"

namespace forcelab::beams {
namespace {

using screen::Forms;
using test::Local;
using test::Near;

using BeamLife = BeamStufFormTest;

TEST_F(BeamLife, BackKeepsEverythingAndOffersTheDiagrams)
{
    DefineSimple("10", "0", "10");
    EnterPoint(kPointDown, "5", "1000");
    Trigger("mnuBack");
    EXPECT_FALSE(Forms::IsVisible("frmBeamStuf"));
    EXPECT_FALSE(Forms::IsVisible("frmBeamDiagrams"));
    EXPECT_TRUE(Forms::IsVisible("frmMainMenu"));
    Open("frmBeamStuf");
    EXPECT_TRUE(IsVisible("cmdRefreshDiagrams"));
    EXPECT_EQ(Shown("txtBeamLength"), Local("10.00"));
    EXPECT_EQ(LoadLines().size(), 1U);
    Click("cmdRefreshDiagrams");
    EXPECT_TRUE(Forms::IsVisible("frmBeamDiagrams"));
    EXPECT_FALSE(IsVisible("cmdRefreshDiagrams"));
}

TEST_F(BeamLife, CloseBoxIsBack)
{
    DefineSimple("10", "0", "10");
    TheForm().close();
    EXPECT_TRUE(Forms::IsLoaded("frmBeamStuf"));
    EXPECT_FALSE(Forms::IsVisible("frmBeamStuf"));
    EXPECT_FALSE(Forms::IsVisible("frmBeamDiagrams"));
    EXPECT_TRUE(Forms::IsVisible("frmMainMenu"));
}

TEST_F(BeamLife, BackWithoutABeamOffersNothing)
{
    Open("frmBeamStuf");
    Trigger("mnuBack");
    Open("frmBeamStuf");
    EXPECT_FALSE(IsVisible("cmdRefreshDiagrams"));
}

TEST_F(BeamLife, ReturnFromTheDiagramsOffersThem)
{
    DefineSimple("10", "0", "10");
    Forms::Hide("frmBeamDiagrams");
    Open("frmBeamStuf");
    EXPECT_TRUE(IsVisible("cmdRefreshDiagrams"));
    Click("optLoadType(0)");
    EXPECT_FALSE(IsVisible("cmdRefreshDiagrams"));
    Click("cmdCancelLoad");
    EXPECT_TRUE(IsVisible("cmdRefreshDiagrams"));
    EnterPoint(kPointDown, "5", "1");
    EXPECT_FALSE(IsVisible("cmdRefreshDiagrams"));
    EXPECT_TRUE(Forms::IsVisible("frmBeamDiagrams"));
}

TEST_F(BeamLife, NewKeepsTheRowsForRedo)
{
    DefineSimple("10", "0", "10");
    EnterPoint(kPointDown, "5", "1000");
    EnterMoment(kMomentCw, "2", "30");
    const auto lines = LoadLines();
    CurrentBeam.ReverseShearSign = true;
    Open("frmReverseShear");
    Use("frmBeamStuf");
    Trigger("mnuNew");
    EXPECT_EQ(MainModule::CurrentModule, 4000);
    EXPECT_FALSE(CurrentBeam.ReverseShearSign);
    EXPECT_FALSE(Forms::IsLoaded("frmReverseShear"));
    EXPECT_TRUE(Forms::IsVisible("frmBeamStuf"));
    EXPECT_FALSE(Forms::IsVisible("frmBeamDiagrams"));
    Use("frmBeamStuf");
    EXPECT_EQ(CurrentBeam.LoadCount, 0);
    EXPECT_EQ(CurrentBeam.SupportType, kTwoSupports); // until a type is clicked
    EXPECT_EQ(Shown("txtBeamLength"), "");
    EXPECT_FALSE(MenusAreOn());
    DefineSimple("12", "0", "12");
    Trigger("mnuRedoLoadEntry");
    EXPECT_EQ(LoadLines(), std::vector(lines.begin(), lines.begin() + 1));
    Trigger("mnuRedoLoadEntry");
    EXPECT_EQ(LoadLines(), lines);
}

TEST_F(BeamLife, NewForgetsLoadFactors)
{
    DefineSimple("10", "0", "10");
    Trigger("mnuLF(1)");
    Trigger("mnuNew");
    Use("frmBeamStuf");
    EXPECT_FALSE(CurrentBeam.FactoredLoads);
    EXPECT_TRUE(IsChosen("mnuLoadFac(0)"));
    EXPECT_FALSE(IsChosen("mnuLF(1)"));
}

TEST_F(BeamLife, LoadSetsTheSharedFlags)
{
    MainModule::MohrInputKind = 0;
    MainModule::FirstSectionUse = false;
    Open("frmBeamStuf");
    EXPECT_EQ(MainModule::MohrInputKind, 1);
    EXPECT_TRUE(MainModule::FirstSectionUse);
}

TEST_F(BeamLife, SectionPropertiesComeBackHere)
{
    DefineSimple("10", "0", "10");
    Trigger("mnuSectionProperties");
    EXPECT_EQ(MainModule::SectionCaller, 1);
    EXPECT_TRUE(Forms::IsVisible("frmProperties"));
}

TEST_F(BeamLife, MohrOpensWithoutAState)
{
    Open("frmBeamStuf");
    MainModule::MohrInputKind = 0;
    transform::CurrentHandOver.Value[0] = 7;
    Trigger("mnuMohr");
    EXPECT_EQ(MainModule::MohrCaller, 4000);
    EXPECT_EQ(MainModule::MohrInputKind, 1);
    EXPECT_TRUE(transform::CurrentHandOver.Pending);
    EXPECT_EQ(transform::CurrentHandOver.Value[0], 0);
    EXPECT_TRUE(Forms::IsVisible("frmMohr"));
}

TEST_F(BeamLife, StressesNeedASection)
{
    RegisterEmpty("frmDetails");
    DefineSimple("10", "0", "10");
    Open("frmBeamStuf");
    Find<QMenu>("mnuStressForm").aboutToShow();
    EXPECT_FALSE(IsEnabled("mnuStress"));
    sections::CurrentSection.ShapeIndex = 1;
    Find<QMenu>("mnuStressForm").aboutToShow();
    ASSERT_TRUE(IsEnabled("mnuStress"));
    MainModule::MohrInputKind = 0;
    Trigger("mnuStress");
    EXPECT_EQ(MainModule::MohrInputKind, 1);
    EXPECT_TRUE(Forms::IsVisible("frmDetails"));
}

/// Hides itself as soon as it is shown, as a person would close it.
class Passing : public screen::Form {
  public:
    Passing() : Form("frmAllowable", "") {}
    void Form_Activate() override
    {
        WasModal = WasModal || isModal(); // it may become active once more
        Forms::Hide("frmAllowable");
    }
    inline static bool WasModal = false;
};

TEST_F(BeamLife, AllowableStressesAreModal)
{
    Forms::Register("frmAllowable", [] { return new Passing; });
    DefineSimple("10", "0", "10");
    Trigger("mnuAllowable");
    EXPECT_EQ(MainModule::SectionCaller, 1);
    EXPECT_TRUE(Passing::WasModal);
}

// The letter of a button that stands on the form while its menu is off is the button's.
TEST_F(BeamLife, CancelAnswersToItsLetter)
{
    DefineSimple("10", "0", "10");
    EnterPoint(kPointDown, "5", "1");
    Open("frmBeamStuf");
    Click("optLoadType(0)");
    Activate();
    Press("txtConcentratedX", Qt::Key_C, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !IsVisible("fraConcentrated"); }));
    Click("cmdEditLoadSpin(0)");
    Press("txtConcentratedX", Qt::Key_D, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([] { return CurrentBeam.LoadCount == 0; }));
}

TEST_F(BeamLife, PicturesAnswerToTheKeyboard)
{
    Open("frmBeamStuf");
    Press("cmdBeamType(2)", Qt::Key_Return);
    EXPECT_EQ(CurrentBeam.SupportType, kFixedRight);
    EXPECT_TRUE(IsChosen("cmdBeamType(2)"));
    Press("cmdBeamType(0)", Qt::Key_Space);
    EXPECT_TRUE(IsVisible("fraSimpleSupports"));
    EXPECT_FALSE(IsChosen("cmdBeamType(2)"));
}

TEST_F(BeamLife, EveryPictureIsAnother)
{
    Open("frmBeamStuf");
    std::vector<QImage> pictures;
    for (const std::string name :
         {"cmdBeamType(0)", "cmdBeamType(1)", "cmdBeamType(2)", "optLoadType(0)", "optLoadType(1)",
          "optLoadType(2)", "optLoadType(3)", "optLoadType(4)", "optLoadType(5)"}) {
        const QImage picture = Find<PictureButton>(name).icon().pixmap(85, 51).toImage();
        ASSERT_FALSE(picture.isNull()) << name;
        for (const QImage& other : pictures) EXPECT_NE(picture, other) << name;
        pictures.push_back(picture);
    }
}

TEST_F(BeamLife, FitsTheSmallestScreen)
{
    Screen->Area = {0, 0, 1024, 700};
    DefineSimple("10", "0", "10");
    Trigger("mnuLF(1)"); // the largest frame: four boxes and two rows of units
    Click("optLoadType(3)");
    EXPECT_LE(TheForm().minimumSizeHint().height(), 660);
    EXPECT_LE(TheForm().width(), kDetailsWidth) << "the diagrams would lie on it";
    EXPECT_GE(TheForm().height(), TheForm().minimumSizeHint().height());
}

} // namespace
} // namespace forcelab::beams
