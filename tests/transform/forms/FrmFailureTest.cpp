#include "MohrFormTest.h"

#include <QTimer>

namespace forcelab::transform {
namespace {

using test::Local;
using testing::HasSubstr;

class FailureForm : public MohrFormTest {
  protected:
    void Judge(double sigma1, double sigma2, int unit = 3)
    {
        screen::FormAs<frmFailure>("frmFailure").TakeState({sigma1, sigma2, unit});
        Open("frmFailure");
    }
    std::string VerdictOf(int theory)
    {
        Choose("optFailure(" + std::to_string(theory) + ")");
        return Shown("picFailure");
    }
};

constexpr const char* kFails = "The material fails";
constexpr const char* kHolds = "The material does not fail";

TEST_F(FailureForm, OpensWithTheFirstTheoryAndAsksForTheLimit)
{
    Judge(70, -30);
    EXPECT_EQ(TheForm().windowTitle().toStdString(), "Theories of Failure");
    EXPECT_EQ(Shown("fraFailure"), "Failure Theories");
    EXPECT_TRUE(IsChosen("optFailure(0)"));
    EXPECT_EQ(Shown("lblYieldStress(0)"), "Yield Stress\r\n");
    EXPECT_EQ(Shown("lblYieldStress(1)"), "(MPa)");
    EXPECT_FALSE(IsVisible("txtCompression"));
    EXPECT_EQ(Shown("picFailure"), "Enter the yield stress");
    EXPECT_EQ(DecimalPlaces, 3);
    EXPECT_FALSE(PlainNumbers);
}

TEST_F(FailureForm, CaptionsOfTheTheories)
{
    Judge(70, -30);
    const std::array<std::string, 4> captions{
        "Maximum Shear Stress Theory (Tresca)",
        "Maximum Distortion Energy Theory (Huber /von Mises/ Hencky)",
        "Maximum Normal Stress Theory (Rankine)", "Mohr's Failure Criterion"};
    const std::array<std::string, 4> labels{"Yield Stress\r\n", "Yield Stress\r\n",
                                            "Ultimate Stress\r\n", "Tension Ultimate"};
    for (int theory = 0; theory < 4; ++theory) {
        const std::string option = "optFailure(" + std::to_string(theory) + ")";
        EXPECT_EQ(Shown(option), captions[theory]);
        Choose(option);
        EXPECT_EQ(Shown("lblYieldStress(0)"), labels[theory]);
        EXPECT_EQ(IsVisible("txtCompression"), theory == 3);
        EXPECT_EQ(IsVisible("lblYieldStress(2)"), theory == 3);
        EXPECT_EQ(IsVisible("lblYieldStress(3)"), theory == 3);
    }
    EXPECT_EQ(Shown("lblYieldStress(2)"), "Compression Ultimate");
    EXPECT_EQ(Shown("lblMaterialGroup(0)"), "Ductile Materials");
    EXPECT_EQ(Shown("lblMaterialGroup(1)"), "Brittle Materials");
}

struct VerdictRow {
    double Sigma1, Sigma2;
    std::string Limit;
    std::array<const char*, 4> Verdicts;
};
class FailureVerdict : public FailureForm, public testing::WithParamInterface<VerdictRow> {
    void SetUp() override {}
};

TEST_P(FailureVerdict, OfAllTheories)
{
    const VerdictRow& row = GetParam();
    Judge(row.Sigma1, row.Sigma2);
    Type("txtYieldStress", row.Limit);
    Choose("optFailure(3)");
    Type("txtCompression", row.Limit);
    Click("cmdRefresh(0)");
    for (int theory = 0; theory < 4; ++theory)
        EXPECT_THAT(VerdictOf(theory), HasSubstr(row.Verdicts[theory])) << theory;
}

// 70 and -30 with 90: Tresca 100 >= 90; von Mises 88.9 < 90; Rankine 70 < 90; on Mohr's hexagon
// with equal limits 70 + 30 >= 90.
INSTANTIATE_TEST_SUITE_P(
    States, FailureVerdict,
    testing::Values(VerdictRow{70, -30, "90", {kFails, kHolds, kHolds, kFails}},
                    VerdictRow{30, -30, "50", {kFails, kFails, kHolds, kFails}},
                    VerdictRow{25, -25, "50", {kFails, kHolds, kHolds, kFails}},
                    VerdictRow{40, 40, "50", {kHolds, kHolds, kHolds, kHolds}},
                    VerdictRow{40, 40, "-50", {kHolds, kHolds, kHolds, kHolds}},
                    VerdictRow{60, 40, "50", {kFails, kFails, kFails, kFails}}));

TEST_F(FailureForm, PromptsNameTheLimit)
{
    Judge(70, -30);
    EXPECT_EQ(VerdictOf(1), "Enter the yield stress");
    EXPECT_EQ(VerdictOf(2), "Enter the ultimate stress");
    EXPECT_EQ(VerdictOf(3), "Enter the ultimate stress");
}

TEST_F(FailureForm, MaterialGivesTheLimitInTheUnit)
{
    Judge(70, -30, 3);
    Select("cboYieldStress", "Aluminum 6061-T6");
    EXPECT_EQ(Shown("txtYieldStress"), Local("275.000"));
    EXPECT_THAT(Shown("picFailure"), HasSubstr(kHolds));
    Select("cboYieldStress", "User Defined");
    EXPECT_EQ(Shown("txtYieldStress"), Local("0.000"));
    EXPECT_EQ(Shown("picFailure"), "Enter the yield stress");
}

TEST_F(FailureForm, MaterialsOfAllUnits)
{
    const std::array<std::string, 4> limits{"40,000.000", "40.000", "275,000.000", "275.000"};
    for (int unit = 0; unit < 4; ++unit) {
        Judge(1, 0, unit);
        Select("cboYieldStress", "Brass-C83400");
        Select("cboYieldStress", "Aluminum 6061-T6");
        EXPECT_EQ(Shown("txtYieldStress"), Local(limits[unit])) << unit;
        Trigger("mnuBack");
    }
}

TEST_F(FailureForm, AnotherUnitConvertsTheLimit)
{
    Judge(70, -30, 0);
    EXPECT_EQ(Shown("lblYieldStress(1)"), "(psi)");
    Type("txtYieldStress", "1000");
    Click("cmdRefresh(1)");
    EXPECT_FALSE(screen::Forms::IsVisible("frmFailure"));
    Judge(70, -30, 2);
    EXPECT_EQ(Shown("lblYieldStress(1)"), "(kPa)");
    EXPECT_EQ(Shown("lblYieldStress(3)"), "(kPa)");
    EXPECT_EQ(Shown("txtYieldStress"), Local("6,894.757"));
    EXPECT_EQ(Shown("txtCompression"), Local("6,894.757"));
    Click("cmdRefresh(1)");
    Judge(70, -30, 1);
    EXPECT_EQ(Shown("txtYieldStress"), Local("1.000"));
}

TEST_F(FailureForm, CompressionTakesTheTensionLimitWhereItIsZero)
{
    Judge(10, 0);
    Choose("optFailure(3)");
    Type("txtYieldStress", "50");
    Press("txtYieldStress", Qt::Key_Return);
    EXPECT_EQ(FocusedControl(), "txtCompression");
    EXPECT_EQ(Shown("txtCompression"), "50");
    Type("txtCompression", "-80");
    Click("cmdRefresh(0)");
    Shown("picFailure");
    EXPECT_EQ(Shown("txtCompression"), Local("80.000"));
}

// Mohr's criterion with 50 in tension and 100 in compression: 30 / 50 + 60 / 100 is beyond 1,
// 20 / 50 + 40 / 100 is not.
TEST_F(FailureForm, MohrsCriterionWithTwoLimits)
{
    Judge(30, -60);
    Choose("optFailure(3)");
    Type("txtYieldStress", "50");
    Type("txtCompression", "100");
    Click("cmdRefresh(0)");
    EXPECT_THAT(Shown("picFailure"), HasSubstr(kFails));
    Trigger("mnuBack");
    Judge(20, -40);
    Type("txtCompression", "100");
    Click("cmdRefresh(0)");
    EXPECT_THAT(Shown("picFailure"), HasSubstr(kHolds));
}

TEST_F(FailureForm, OverflowLeavesThePicture)
{
    Judge(70, -30);
    Type("txtYieldStress", "90");
    Click("cmdRefresh(0)");
    EXPECT_THAT(Shown("picFailure"), HasSubstr(kFails));
    Expect({kStop, "Forcelab",
            "A number in this calculation is too large. "
            "What is shown stays as it was; please check the input."});
    Type("txtYieldStress", "1e+400");
    Click("cmdRefresh(0)");
    EXPECT_THAT(Shown("picFailure"), HasSubstr(kFails));
}

TEST_F(FailureForm, CloseBoxHidesIt)
{
    Judge(70, -30);
    TheForm().close();
    EXPECT_TRUE(screen::Forms::IsLoaded("frmFailure"));
    EXPECT_FALSE(screen::Forms::IsVisible("frmFailure"));
}

TEST_F(FailureForm, MohrHandsItsPrincipalStressesOver)
{
    ComputeStandard();
    std::array<std::string, 4> seen;
    QTimer::singleShot(0, [this, &seen] {
        Use("frmFailure");
        seen = {Shown("lblSigma1"), Shown("lblSigma2"), Shown("lblStressUnits"),
                Shown("lblYieldStress(1)")};
        screen::Forms::Hide("frmFailure");
    });
    Trigger("mnuFailure");
    EXPECT_EQ(StringValue(seen[0]), 70);
    EXPECT_EQ(StringValue(seen[1]), -30);
    EXPECT_EQ(seen[2], "3");
    EXPECT_EQ(seen[3], "(MPa)");
}

// Another unit on the Mohr screen, and back to the theories: 100 MPa are 100,000 kPa.
TEST_F(FailureForm, AnotherUnitOfTheMohrScreenConvertsTheLimit)
{
    ComputeStandard();
    const auto ask = [this](const std::function<void()>& there) {
        Use("frmMohr");
        QTimer::singleShot(0, [this, &there] {
            Use("frmFailure");
            there();
            screen::Forms::Hide("frmFailure");
        });
        Trigger("mnuFailure");
        Use("frmMohr");
    };
    ask([this] { Type("txtYieldStress", "100"); });
    Choose("optStressUnits(2)");
    std::string limit;
    std::string unit;
    ask([&] {
        limit = Shown("txtYieldStress");
        unit = Shown("lblYieldStress(1)");
    });
    EXPECT_EQ(limit, Local("100,000.000"));
    EXPECT_EQ(unit, "(kPa)");
}

TEST_F(FailureForm, CaptionsLoseNothing)
{
    auto& form = screen::FormAs<frmFailure>("frmFailure");
    for (const double value : {12345.6789012345, -0.000123456789, 3e6, 1.0 / 3}) {
        form.TakeState({value, -value, 0});
        Use("frmFailure");
        EXPECT_TRUE(test::Near(StringValue(Shown("lblSigma1")), value, 1e-13));
        EXPECT_TRUE(test::Near(StringValue(Shown("lblSigma2")), -value, 1e-13));
        EXPECT_EQ(StringValue(Shown("lblStressUnits")), 0);
    }
}

} // namespace
} // namespace forcelab::transform
