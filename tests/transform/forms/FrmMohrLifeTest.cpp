#include "MohrFormTest.h"

#include "core/MainModule.h"

#include <QFile>
#include <QTemporaryDir>

namespace forcelab::transform {
namespace {

using screen::Forms;
using test::Local;
using test::Near;
using testing::HasSubstr;

class MohrLife : public MohrFormTest {
  protected:
    void HandOver(int caller, MohrMode mode, std::array<double, 3> values, int unit)
    {
        MainModule::MohrCaller = caller;
        MainModule::MohrInputKind = 1;
        CurrentHandOver = {true, mode, {values[0], values[1], values[2]}, unit};
        Open("frmMohr");
    }
};

TEST_F(MohrLife, BackKeepsTheFormAsItWas)
{
    ComputeStandard();
    const std::string circle = Shown("picMohr");
    Trigger("mnuBack");
    EXPECT_FALSE(Forms::IsVisible("frmMohr"));
    EXPECT_TRUE(Forms::IsVisible("frmMainMenu"));
    MainModule::MohrInputKind = 1; // as the main menu sets it
    Open("frmMohr");
    EXPECT_EQ(Shown("txtStress(0)"), Local("50.0"));
    EXPECT_EQ(Shown("picMohr"), circle);
    EXPECT_TRUE(IsEnabled("mnuFailure"));
}

TEST_F(MohrLife, CloseBoxIsBack)
{
    ComputeStandard();
    TheForm().close();
    EXPECT_TRUE(Forms::IsLoaded("frmMohr"));
    EXPECT_FALSE(Forms::IsVisible("frmMohr"));
    EXPECT_TRUE(Forms::IsVisible("frmMainMenu"));
}

TEST_F(MohrLife, NewStartsAfresh)
{
    ComputeStandard();
    Trigger("mnuPlaneStrain");
    Compute({"1", "2", "3"});
    Trigger("mnuNew");
    EXPECT_TRUE(Forms::IsVisible("frmMohr"));
    Use("frmMohr");
    EXPECT_TRUE(IsChosen("mnuPlaneStress"));
    EXPECT_EQ(Shown("txtStress(0)"), "");
    EXPECT_EQ(Shown("picMohr"), "");
    EXPECT_EQ(MainModule::MohrInputKind, 1);
    EXPECT_EQ(CurrentStress.SigmaX, 0);
}

struct CallerRow {
    int Caller;
    const char* Form;
};
class MohrCallerForm : public MohrFormTest, public testing::WithParamInterface<CallerRow> {};

TEST_P(MohrCallerForm, GetsTheScreenBack)
{
    RegisterEmpty(GetParam().Form);
    MainModule::MohrCaller = GetParam().Caller;
    Open("frmMohr");
    Trigger("mnuBack");
    EXPECT_TRUE(Forms::IsVisible(GetParam().Form));
    EXPECT_FALSE(Forms::IsVisible("frmMohr"));
}

TEST_P(MohrCallerForm, IsTheMainMenuWhereItIsUnknown)
{
    MainModule::MohrCaller = GetParam().Caller;
    Open("frmMohr");
    TheForm().close();
    EXPECT_TRUE(Forms::IsVisible("frmMainMenu"));
    EXPECT_FALSE(Forms::IsVisible("frmMohr"));
}

INSTANTIATE_TEST_SUITE_P(Callers, MohrCallerForm,
                         testing::Values(CallerRow{1, "frmMainMenu"},
                                         CallerRow{4000, "frmBeamStuf"},
                                         CallerRow{4500, "frmDetails"}, CallerRow{5000, "frmPower"},
                                         CallerRow{6000, "frmProperties"}));

TEST_F(MohrLife, SectionHandsOverItsMomentsOfInertia)
{
    HandOver(6000, MohrMode::MomentOfInertia, {1.25e6, 3.75e5, -2e5}, 7);
    EXPECT_TRUE(IsChosen("mnuMomentOfInertia"));
    EXPECT_TRUE(IsChosen("optStressUnits(7)"));
    EXPECT_THAT(Shown("txtStress(2)"), HasSubstr("-200000"));
    EXPECT_TRUE(Near(CurrentStress.SigmaX * CurrentStress.ValueScale, 1.25e6));
    EXPECT_TRUE(Near(CurrentStress.TauXY * CurrentStress.ValueScale, -2e5));
    EXPECT_THAT(Shown("picMohr"), HasSubstr("Radius = "));
    EXPECT_FALSE(CurrentHandOver.Pending);
}

TEST_F(MohrLife, BeamDetailsHandOverAStress)
{
    HandOver(4500, MohrMode::PlaneStress, {-12.5, 0, 3.25}, 3);
    EXPECT_EQ(Shown("txtStress(0)"), Local("12.5"));
    EXPECT_EQ(Shown("txtStress(1)"), Local("0.0"));
    EXPECT_EQ(Shown("txtStress(2)"), Local("3.25"));
    EXPECT_TRUE(IsChosen("optSigX(1)"));
    EXPECT_TRUE(IsChosen("optSigX(4)"));
    EXPECT_TRUE(IsChosen("optStressUnits(3)"));
    EXPECT_THAT(Shown("picMohr"), HasSubstr(Local("Center = -6.25")));
    EXPECT_TRUE(IsEnabled("mnuFailure"));
    EXPECT_EQ(MainModule::MohrInputKind, 0);
}

TEST_F(MohrLife, TorsionHandsOverACounterclockwiseShear)
{
    HandOver(5000, MohrMode::PlaneStress, {1000, 2000, -500}, 0);
    EXPECT_TRUE(IsChosen("optSigX(0)"));
    EXPECT_TRUE(IsChosen("optSigX(2)"));
    EXPECT_TRUE(IsChosen("optSigX(5)"));
    EXPECT_TRUE(Near(CurrentStress.TauXY, -500));
}

TEST_F(MohrLife, HandOverReplacesWhatWasThere)
{
    OpenAnalysis("mnuPlaneStrain");
    Compute({"1", "2", "3"});
    Type("txtRotater", "30");
    Click("cmdRotater");
    Trigger("mnuBack");
    HandOver(4500, MohrMode::PlaneStress, {10, 0, 0}, 1);
    EXPECT_TRUE(IsChosen("mnuPlaneStress"));
    EXPECT_EQ(CurrentStress.RotationAngle, 0);
    EXPECT_THAT(Shown("picMohr"), HasSubstr(Local("Radius = 5.0")));
}

// Beams open the form without a state; nothing is computed and nothing is refused.
TEST_F(MohrLife, BeamsOpenItEmpty)
{
    HandOver(4000, MohrMode::PlaneStress, {0, 0, 0}, 0);
    EXPECT_EQ(Shown("txtStress(0)"), "");
    EXPECT_EQ(Shown("picMohr"), "");
    EXPECT_EQ(MainModule::MohrInputKind, 1);
}

TEST_F(MohrLife, PrintsTheDiagrams)
{
    const QTemporaryDir folder;
    Open("frmMohr");
    const auto printedBytes = [&](const char* file) {
        Printers->PdfFile = folder.filePath(QLatin1String(file));
        Trigger("mnuPrintDiagrams");
        QFile page(Printers->PdfFile);
        EXPECT_TRUE(page.open(QIODevice::ReadOnly)) << file;
        EXPECT_EQ(page.read(5).toStdString(), "%PDF-");
        return page.size();
    };
    const qint64 withoutDiagrams = printedBytes("empty.pdf");
    ComputeStandard();
    EXPECT_GT(printedBytes("mohr.pdf"), withoutDiagrams + 2000);
    EXPECT_EQ(Printers->Asked, 2);
    EXPECT_THAT(Shown("picMohr"), HasSubstr("Radius = "));
}

TEST_F(MohrLife, CancelledPrintingChangesNothing)
{
    ComputeStandard();
    Trigger("mnuPrintDiagrams");
    EXPECT_EQ(Printers->Asked, 1);
    EXPECT_TRUE(IsEnabled("mnuFailure"));
}

} // namespace
} // namespace forcelab::transform
