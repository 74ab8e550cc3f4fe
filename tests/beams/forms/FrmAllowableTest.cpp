#include "DetailsFormTest.h"

#include <QTimer>

namespace forcelab::beams {
namespace {

using screen::Forms;
using test::Local;
using test::Near;
using testing::HasSubstr;
using testing::Not;

constexpr const char* kTooLarge = "A number in this calculation is too large. "
                                  "What is shown stays as it was; please check the input.";

class LimitsForm : public DetailsFormTest {
  protected:
    void OpenLimits()
    {
        Open("frmAllowable");
        EXPECT_EQ(TheForm().windowTitle().toStdString(), "Stress Limits");
    }
    static constexpr int kMaterial = 0; ///< a row of the list with a strength
    void SelectMaterial(int row)
    {
        Select("cboASD", std::string(LimitMaterials()[std::size_t(row)]));
    }
    static double Limit(StressLimit limit)
    {
        return CurrentLimits.AllowableStress[std::size_t(limit)];
    }
};

TEST_F(LimitsForm, NamesItsTwoOptions)
{
    OpenLimits();
    EXPECT_EQ(Shown("optSame(0)"), "Use same stress limit for both");
    EXPECT_EQ(Shown("optSame(1)"), "Specify stress limits for each");
    EXPECT_TRUE(IsChosen("optSame(0)"));
    EXPECT_EQ(Shown("lblHead(0)"), "Tension and Compression");
    EXPECT_FALSE(IsVisible("lblHead(1)"));
    EXPECT_FALSE(IsVisible("txtASD(2)"));
    Choose("optSame(1)");
    EXPECT_EQ(Shown("lblHead(0)"), "Tension");
    EXPECT_EQ(Shown("lblHead(1)"), "Compression");
    EXPECT_TRUE(IsVisible("txtASD(2)"));
    Choose("optSame(0)");
    EXPECT_EQ(Shown("lblHead(0)"), "Tension and Compression");
}

TEST_F(LimitsForm, OneLimitServesTensionAndCompression)
{
    OpenLimits();
    Type("txtASD(0)", "24000");
    Type("txtASD(4)", "-14000");
    Click("cmdASD(0)");
    EXPECT_FALSE(Forms::IsVisible("frmAllowable"));
    EXPECT_TRUE(CurrentLimits.AllowableSet);
    for (const StressLimit limit :
         {kTensionLimit, kTensionLimitB, kCompressionLimit, kCompressionLimitB})
        EXPECT_EQ(Limit(limit), 24000);
    for (const StressLimit limit : {kShearLimit, kShearLimitB}) EXPECT_EQ(Limit(limit), 14000);
}

TEST_F(LimitsForm, LimitsForEachTakeTheirUnit)
{
    OpenLimits();
    Choose("optSame(1)");
    Choose("optStressUnits(1)");
    Type("txtASD(0)", Local("24.5"));
    Type("txtASD(2)", "20");
    Type("txtASD(4)", "14");
    Press("txtASD(4)", Qt::Key_Return);
    EXPECT_FALSE(Forms::IsVisible("frmAllowable"));
    EXPECT_EQ(Limit(kTensionLimit), 24500);
    EXPECT_EQ(Limit(kCompressionLimit), 20000);
    EXPECT_EQ(Limit(kShearLimit), 14000);
    EXPECT_EQ(CurrentLimits.AllowableEntered[kTensionLimit], 24.5);
}

TEST_F(LimitsForm, CancelAndTheCloseBoxSetNothing)
{
    for (const int way : {0, 1, 2}) {
        OpenLimits();
        Type("txtASD(0)", "24000");
        if (way == 0) Click("cmdASD(1)");
        if (way == 1) TheForm().close();
        if (way == 2) {
            Activate();
            Press("txtASD(0)", Qt::Key_Escape);
            EXPECT_TRUE(QTest::qWaitFor([] { return !Forms::IsVisible("frmAllowable"); }));
        }
        EXPECT_FALSE(Forms::IsVisible("frmAllowable"));
        EXPECT_FALSE(CurrentLimits.AllowableSet);
        OpenLimits();
        EXPECT_EQ(Shown("txtASD(0)"), ""); // what was cancelled is gone
        Forms::Hide("frmAllowable");
    }
}

TEST_F(LimitsForm, ShowsThePreviousLimitsAgain)
{
    OpenLimits();
    Choose("optSame(1)");
    Choose("optStressUnits(1)");
    Type("txtASD(0)", "24");
    Type("txtASD(2)", "20");
    Click("cmdASD(0)");
    OpenLimits();
    EXPECT_EQ(Shown("txtASD(0)"), Local("24.0"));
    EXPECT_EQ(Shown("txtASD(2)"), Local("20.0"));
    Click("cmdASD(1)");
    Forms::Unload("frmAllowable"); // made anew, it starts in psi
    OpenLimits();
    EXPECT_TRUE(IsChosen("optSame(1)"));
    EXPECT_EQ(Shown("txtASD(0)"), Local("24,000.0"));
    EXPECT_EQ(Shown("txtASD(2)"), Local("20,000.0"));
}

TEST_F(LimitsForm, UnitsConvertAndComeBack)
{
    OpenLimits();
    Type("txtASD(0)", "20000");
    Choose("optStressUnits(3)"); // 1 ksi is 6.894757 MPa
    EXPECT_TRUE(Near(StringValue(Shown("txtASD(0)")), 20 * 6.894757, 1e-6));
    EXPECT_EQ(Shown("txtASD(4)"), "");
    Choose("optStressUnits(1)");
    EXPECT_EQ(Shown("txtASD(0)"), Local("20.0"));
    Choose("optStressUnits(0)");
    EXPECT_EQ(Shown("txtASD(0)"), Local("20,000.0"));
}

TEST_F(LimitsForm, AMaterialFillsItsYieldStrength)
{
    OpenLimits();
    EXPECT_EQ(Shown("cboASD"), "User Defined");
    Choose("optSame(1)");
    SelectMaterial(kMaterial);
    EXPECT_TRUE(Near(StringValue(Shown("txtASD(0)")), *YieldOf(kMaterial, 0), 1e-12));
    EXPECT_EQ(Shown("txtASD(2)"), Shown("txtASD(0)"));
    EXPECT_EQ(Shown("txtASD(4)"), "");
    Choose("optStressUnits(3)"); // the handbook's own number in SI
    EXPECT_TRUE(Near(StringValue(Shown("txtASD(0)")), *YieldOf(kMaterial, 3), 1e-12));
    Type("txtASD(0)", "99");
    EXPECT_EQ(Shown("cboASD"), "User Defined");
    EXPECT_EQ(Shown("txtASD(0)"), "99");
}

TEST_F(LimitsForm, MaterialBHasBoxesInCompositeSectionsOnly)
{
    TakeSection(test::Composite(sections::kTShape, {8, 1, 9, 1}, {9, 10}, 2));
    OpenLimits();
    for (const char* box : {"txtASD(1)", "txtASD(5)", "lblMaterial(1)"})
        EXPECT_TRUE(IsVisible(box)) << box;
    EXPECT_FALSE(IsVisible("txtASD(3)"));
    Type("txtASD(0)", "1000");
    Type("txtASD(1)", "2000");
    Widget("cboASD").setFocus();
    EXPECT_THAT(Shown("lblASD"), HasSubstr("Material B"));
    SelectMaterial(kMaterial);
    EXPECT_EQ(Shown("txtASD(0)"), "1000");
    EXPECT_TRUE(Near(StringValue(Shown("txtASD(1)")), *YieldOf(kMaterial, 0), 1e-12));
    Click("cmdASD(0)");
    EXPECT_EQ(Limit(kTensionLimit), 1000);
    EXPECT_EQ(Limit(kCompressionLimitB), *YieldOf(kMaterial, 0));
    TakeSection(test::Tee());
    OpenLimits();
    EXPECT_FALSE(IsVisible("txtASD(1)"));
}

TEST_F(LimitsForm, ANumberTooLargeLeavesTheLimits)
{
    OpenLimits();
    Type("txtASD(0)", "24000");
    Click("cmdASD(0)");
    OpenLimits();
    Type("txtASD(0)", "1e+400");
    ExpectBox(kStop, "Forcelab", kTooLarge);
    Click("cmdASD(0)");
    EXPECT_TRUE(Forms::IsVisible("frmAllowable"));
    ExpectBox(kStop, "Forcelab", kTooLarge);
    Choose("optStressUnits(1)");
    EXPECT_TRUE(IsChosen("optStressUnits(0)"));
    EXPECT_EQ(Limit(kTensionLimit), 24000);
}

// Limits 24 and 20 ksi on the T: I = 167.2990 in^4, c = 3.14706 in above, 6.85294 in below. A
// positive moment compresses the top: the smaller of 20 I / 3.14706 and 24 I / 6.85294
// = 585.904 in-kips = 48.8254 ft-kips. Negative: the smaller of 24 I / 3.14706 and 20 I / 6.85294
// = 488.254 in-kips = 40.6878 ft-kips. Tension 24 x 17 = 408 kips.
TEST_F(LimitsForm, AllowableForcesStandBelowTheNormalStresses)
{
    OpenTee("10", "8");
    Click("cmdVM(0)");
    EXPECT_THAT(Shown("txtKeyStresses(0)"), Not(HasSubstr("Allowable")));
    QTimer::singleShot(0, [this] {
        Use("frmAllowable");
        Choose("optSame(1)");
        Choose("optStressUnits(1)");
        Type("txtASD(0)", "24");
        Type("txtASD(2)", "20");
        Type("txtASD(4)", "14");
        Click("cmdASD(0)");
    });
    MenuItem("mnuAllowable").trigger(); // returns when the limits are hidden
    EXPECT_FALSE(Forms::IsVisible("frmAllowable"));
    Use("frmDetails");
    EXPECT_TRUE(Near(KeyNumber("Allowable Axial Tension = "), 408, 1e-6));
    EXPECT_TRUE(Near(KeyNumber("Allowable Axial Compression = "), 340, 1e-6));
    EXPECT_TRUE(Near(KeyNumber("Allowable Positive Moment = "), 48.8254, 1e-4));
    EXPECT_TRUE(Near(KeyNumber("Allowable Negative Moment = "), -40.6878, 1e-4));
    // 14 I t / Q = 14 x 167.2990 / 23.48140 = 99.7464 kips.
    EXPECT_TRUE(Near(KeyNumber("Allowable Shear Force = "), 99.7464, 1e-4));
    Choose("optForceUnits(0)");
    EXPECT_TRUE(Near(KeyNumber("Allowable Axial Tension = "), 408000, 1e-6));
    Click("cmdVM(1)");
    EXPECT_THAT(Shown("txtKeyStresses(0)"), Not(HasSubstr("Allowable")));
}

} // namespace
} // namespace forcelab::beams
