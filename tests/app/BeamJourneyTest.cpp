// Beams from the main menu on: through entry, diagrams, section, stresses, circle, and all the way
// back, with nothing but what a person types and clicks.

#include "app/FormList.h"
#include "beams/BeamRecord.h"
#include "core/MainModule.h"
#include "sections/SectionRecord.h"
#include "support/FormTest.h"

#include <QListWidget>

namespace forcelab::test {
namespace {

using screen::Forms;
using testing::AllOf;
using testing::HasSubstr;

class BeamJourney : public FormTest {
  protected:
    BeamJourney()
    {
        sections::CurrentSection = {};
        beams::CurrentBeam = {};
        RegisterForms();
        Open("frmMainMenu");
        MainModule::DataPath = STEEL_FOLDER;
        Trigger("mnuBeams");
        Use("frmBeamStuf");
    }

    /// A span of 10 ft with 1000 lb down at its middle.
    void EnterSpan()
    {
        Click("cmdBeamType(0)");
        Type("txtBeamLength", "10");
        Type("txtLeftSimple", "0");
        Type("txtRightSimple", "10");
        Choose("optBeamLength(1)");
        Click("cmdBeamDefineOK");
        Use("frmBeamStuf");
        Click("optLoadType(1)");
        Type("txtConcentratedX", "5");
        Type("txtConcentrated(0)", "1000");
        Click("cmdEnterLoad");
    }

    void OpenSections()
    {
        Use("frmBeamStuf");
        Trigger("mnuSectionProperties");
        Use("frmProperties");
    }

    void ComputeSection()
    {
        Click("cmdShape(1)");
        Use("frmProperties");
        Click("cmdShape(2)");
    }

    void ChooseSteel(const std::string& shape)
    {
        OpenSections();
        Trigger("mnuAISC(0)");
        auto& list = dynamic_cast<QListWidget&>(Widget("lstSteelShapes"));
        list.setCurrentItem(
            list.findItems(QString::fromStdString(shape), Qt::MatchExactly).front());
        ComputeSection();
    }

    void ChooseTee()
    {
        OpenSections();
        Trigger("mnuFlanged(4)");
        const std::vector<std::string> sizes{"8", "1", "9", "1"};
        for (std::size_t i = 0; i < sizes.size(); ++i)
            Type("txtShape(" + std::to_string(i) + ")", sizes[i]);
        ComputeSection();
    }

    void OpenStresses()
    {
        Use("frmBeamStuf");
        Trigger("mnuStress");
        Use("frmDetails");
    }

    /// The stresses of the section, with the forces at x in feet.
    void OpenStressesAt(const std::string& x)
    {
        OpenStresses();
        Type("txtSpecificPoint", x);
        Click("cmdSpecificPoint");
    }
};

TEST_F(BeamJourney, ASpanShowsItsReactionsShearAndMoment)
{
    EnterSpan();
    EXPECT_TRUE(Forms::IsVisible("frmBeamDiagrams"));
    Use("frmBeamDiagrams");
    EXPECT_THAT(Shown("picLoadDiagram"), HasSubstr(Local("500.0")));
    EXPECT_THAT(Shown("picShearDiagram"),
                AllOf(HasSubstr(Local("500.0")), HasSubstr(Local("-500.0"))));
    EXPECT_THAT(Shown("picMomentDiagram"), HasSubstr(Local("2,500.0")));
}

TEST_F(BeamJourney, ASteelSectionGivesTheDeflection)
{
    EnterSpan();
    ChooseSteel("W14X90");
    EXPECT_TRUE(Forms::IsVisible("frmBeamStuf"));
    Use("frmBeamDiagrams");
    Trigger("mnuSlopeDeflection");
    // P L^3 / 48 E I = 1000 x 120^3 / (48 x 29e6 x 999) = 0.0012427 in, downward
    EXPECT_THAT(Shown("picDeflectionDiagram"), HasSubstr(Local("-0.00124")));
    EXPECT_FALSE(IsVisible("lblEIMessage(0)"));
}

TEST_F(BeamJourney, APointGoesFromTheDiagramsToItsStressesAndToMohrsCircleAndBack)
{
    EnterSpan();
    ChooseTee();
    OpenStressesAt("2");
    EXPECT_EQ(Shown("txtVM(1)"), Local("500.00"));
    EXPECT_EQ(Shown("txtVM(2)"), Local("1,000.00"));
    Click("cmdVM(0)");
    // The T of flange 8 x 1 on a stem 9 x 1: I = 167.299 in^4, centroid 6.853 in above the bottom,
    // by the parallel axis theorem; 1000 ft-lbs x 12 x 6.853 / 167.299 = 491.5 psi at the bottom.
    EXPECT_THAT(Shown("txtKeyStresses(0)"), HasSubstr(Local("491.5")));
    Type("txtCoord(1)", "2");
    Click("cmdVM(2)");
    EXPECT_TRUE(Forms::IsVisible("frmMohr"));
    Use("frmMohr");
    // 12000 x 2 / 167.299 = 143.456 psi of compression
    EXPECT_THAT(Shown("txtStress(0)"), HasSubstr(Local("143.45")));
    EXPECT_TRUE(IsChosen("optSigX(1)"));
    Trigger("mnuBack");
    EXPECT_TRUE(Forms::IsVisible("frmDetails"));
    Use("frmDetails");
    Click("cmdVM(3)");
    EXPECT_TRUE(Forms::IsVisible("frmBeamStuf"));
    EXPECT_FALSE(Forms::IsVisible("frmDetails"));
}

TEST_F(BeamJourney, BackKeepsTheBeamAndNewForgetsItsLoads)
{
    EnterSpan();
    Use("frmBeamStuf");
    Trigger("mnuBack");
    EXPECT_TRUE(Forms::IsVisible("frmMainMenu"));
    EXPECT_FALSE(Forms::IsVisible("frmBeamDiagrams"));
    Use("frmMainMenu");
    Trigger("mnuBeams");
    Use("frmBeamStuf");
    EXPECT_EQ(beams::CurrentBeam.LoadCount, 1);
    Click("cmdRefreshDiagrams");
    EXPECT_TRUE(Forms::IsVisible("frmBeamDiagrams"));
    Use("frmBeamStuf");
    Trigger("mnuNew");
    EXPECT_EQ(beams::CurrentBeam.LoadCount, 0);
    EXPECT_TRUE(Forms::IsVisible("frmBeamStuf"));
}

TEST_F(BeamJourney, TheStressItemWaitsForASection)
{
    EnterSpan();
    Use("frmBeamStuf");
    EXPECT_FALSE(IsEnabled("mnuStress"));
    ChooseTee();
    Use("frmBeamStuf");
    EXPECT_TRUE(IsEnabled("mnuStress"));
}

TEST_F(BeamJourney, AShapeThatIsOnlyChosenHasNoStresses)
{
    EnterSpan();
    ChooseTee();
    OpenStressesAt("2");
    Click("cmdVM(0)");
    OpenSections();
    Trigger("mnuRectangular(0)");
    Trigger("mnuBack");
    OpenStresses();
    EXPECT_FALSE(IsVisible("picST(0)")) << "half of the T";
    EXPECT_FALSE(IsVisible("txtKeyStresses(0)"));
    ChooseTee();
    OpenStresses();
    EXPECT_TRUE(IsVisible("picST(0)"));
    Click("cmdVM(0)");
    EXPECT_THAT(Shown("txtKeyStresses(0)"), HasSubstr(Local("491.5")));
}

TEST_F(BeamJourney, AnEntryBegunWaitsBehindTheMainMenu)
{
    EnterSpan();
    Click("optLoadType(3)");
    Type("txtStartUniform", "1");
    Trigger("mnuBack");
    Use("frmMainMenu");
    Trigger("mnuBeams");
    Use("frmBeamStuf");
    EXPECT_EQ(Shown("txtStartUniform"), "1");
    EXPECT_FALSE(IsVisible("cmdRefreshDiagrams")) << "not beside an open frame";
    Type("txtEndUniform", "4");
    Type("txtUniform(0)", "100");
    Click("cmdEnterLoad");
    EXPECT_EQ(beams::CurrentBeam.LoadCount, 2);
    EXPECT_TRUE(Forms::IsVisible("frmBeamDiagrams"));
}

TEST_F(BeamJourney, AShorterBeamTakesThePointToItsEnd)
{
    EnterSpan();
    ChooseTee();
    OpenStressesAt("9");
    EXPECT_EQ(Shown("txtVM(2)"), Local("500.00"));
    Click("cmdVM(0)");
    Use("frmBeamStuf");
    Click("cmdBeamType(0)");
    Type("txtBeamLength", "8");
    Type("txtRightSimple", "8");
    Click("cmdBeamDefineOK");
    Use("frmDetails");
    EXPECT_EQ(Shown("txtSpecificPoint"), Local("8.00"));
    EXPECT_EQ(Shown("txtVM(2)"), Local("0.00"));
    EXPECT_FALSE(IsVisible("txtKeyStresses(0)")) << "no moment, no normal stress";
}

TEST_F(BeamJourney, MohrsCircleOutlivesTheBeamThatItsPointCameFrom)
{
    EnterSpan();
    ChooseTee();
    OpenStressesAt("2");
    Click("cmdVM(2)");
    Use("frmBeamStuf");
    Trigger("mnuNew");
    EXPECT_FALSE(Forms::IsLoaded("frmDetails"));
    Use("frmMohr");
    Trigger("mnuBack");
    Use("frmDetails");
    EXPECT_EQ(Shown("txtSpecificPoint"), "");
    EXPECT_EQ(Shown("txtVM(2)"), Local("0.00"));
    EXPECT_TRUE(IsVisible("picST(0)")) << "the section is still there";
    Click("cmdVM(3)");
    EXPECT_TRUE(Forms::IsVisible("frmBeamStuf"));
    EXPECT_FALSE(Forms::IsVisible("frmDetails"));
}

TEST_F(BeamJourney, FileNewForgetsViewPointAndSection)
{
    EnterSpan();
    ChooseTee();
    Use("frmBeamDiagrams");
    Trigger("mnuSlopeDeflection");
    OpenStressesAt("2");
    Use("frmBeamStuf");
    Trigger("mnuBack");
    Use("frmMainMenu");
    Trigger("mnuStartOver");
    for (const char* form : {"frmBeamStuf", "frmBeamDiagrams", "frmDetails", "frmProperties"})
        EXPECT_FALSE(Forms::IsLoaded(form)) << form;
    Trigger("mnuBeams");
    Use("frmBeamStuf");
    EnterSpan();
    EXPECT_EQ(beams::CurrentBeam.LoadCount, 1);
    EXPECT_FALSE(IsEnabled("mnuStress"));
    Use("frmBeamDiagrams");
    EXPECT_FALSE(IsChosen("mnuSlopeDeflection"));
    Trigger("mnuSpecificPoint");
    Use("frmDetails");
    EXPECT_EQ(Shown("lblPointName(0)"), "Shear Force");
    EXPECT_EQ(Shown("lblPointValue(0)"), "Not calculated");
    EXPECT_FALSE(IsVisible("picST(0)"));
}

} // namespace
} // namespace forcelab::test
