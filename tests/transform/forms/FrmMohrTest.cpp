#include "MohrFormTest.h"

#include "core/MainModule.h"

#include <cmath>

namespace forcelab::transform {
namespace {

using test::Local;
using test::Near;
using testing::HasSubstr;

class MohrForm : public MohrFormTest {};

TEST_F(MohrForm, OpensEmptyWithItsCaption)
{
    Open("frmMohr");
    EXPECT_EQ(TheForm().windowTitle().toStdString(), "Mohr's Circle Transformations Module");
    EXPECT_EQ(Shown("txtStress(0)"), "");
    EXPECT_EQ(Shown("picMohr"), "");
    EXPECT_TRUE(IsChosen("mnuPlaneStress"));
    EXPECT_TRUE(IsChosen("optStressUnits(0)"));
    EXPECT_FALSE(IsEnabled("mnuFailure"));
    EXPECT_EQ(MainModule::MohrInputKind, 1);
}

TEST_F(MohrForm, MenuReadsAsItShould)
{
    Open("frmMohr");
    const std::vector<std::pair<std::string, std::string>> captions{
        {"mnuBack", "&Back"},
        {"mnuNew", "&New"},
        {"mnuAnalysis", "&Analysis Options"},
        {"mnuPlaneStress", "Plane Stres&s"},
        {"mnuPlaneStrain", "Plane Strai&n"},
        {"mnuRosettes", "Strain &Rosettes"},
        {"mnuRosette45", "Rectangular 0-45-90"},
        {"mnuRosette60", "Delta 0-60-120"},
        {"mnuMomentOfInertia", "&Moments of Inertia"},
        {"mnuFailure", "&Failure Theories"},
        {"mnuPrintDiagrams", "&Print"},
        {"mnuHelp", "&Help"}};
    for (const auto& [name, caption] : captions)
        EXPECT_EQ(MenuItem(name).text().toStdString(), caption);
    EXPECT_EQ(Shown("cmdMohr(0)"), "&Compute");
    EXPECT_EQ(Shown("cmdMohr(1)"), "&Details");
    EXPECT_EQ(Shown("cmdMohr(3)"), "C&lear");
}

TEST_F(MohrForm, PlaneStressFromTextToText)
{
    ComputeStandard();
    EXPECT_EQ(Shown("txtStress(0)"), Local("50.0"));
    EXPECT_EQ(Shown("txtStress(1)"), Local("10.0"));
    EXPECT_EQ(Shown("txtStress(2)"), Local("40.0"));
    const std::string circle = Shown("picMohr");
    for (const char* text : {"70.0", "-30.0", "50.0", "20.0"})
        EXPECT_THAT(circle, HasSubstr(Local(text)));
    EXPECT_THAT(circle, HasSubstr(Local("Radius = 50.0")));
    EXPECT_THAT(circle, HasSubstr(Local("Center = 20.0")));
    EXPECT_THAT(Shown("picPrincipal"), HasSubstr(Local("26.57")));
    EXPECT_THAT(Shown("picPrincipal"), HasSubstr(Local("70.0")));
    EXPECT_TRUE(IsEnabled("mnuFailure"));
    EXPECT_EQ(MainModule::MohrInputKind, 0);
}

TEST_F(MohrForm, RotationByThirtyDegrees)
{
    ComputeStandard();
    Type("txtRotater", "30");
    Click("cmdRotater");
    // x' = 20 + 30 cos 60 - 40 sin 60, y' = 20 - 30 cos 60 + 40 sin 60,
    // shear = -30 sin 60 - 40 cos 60 = -45.98: clockwise.
    EXPECT_THAT(Rotated(0), HasSubstr(Local("0.359 MPa (T)")));
    EXPECT_THAT(Rotated(1), HasSubstr(Local("39.641 MPa (T)")));
    EXPECT_THAT(Rotated(2), HasSubstr(Local("45.9808 MPa CW on X'-face")));
    EXPECT_EQ(Find<QScrollBar>("vsbRotater").value(), 6000);
    EXPECT_EQ(Shown("txtRotater"), Local("30.0"));
}

TEST_F(MohrForm, RotationOfAnotherSense)
{
    OpenAnalysis("mnuPlaneStress");
    Compute({"50", "10", "40"}, {"optSigX(3)", "optSigX(5)", "optStressUnits(3)"});
    Type("txtRotater", "30");
    Press("txtRotater", Qt::Key_Return);
    // x' = 20 + 15 + 34.641, y' = 20 - 15 - 34.641, shear = -25.981 + 20 = -5.981.
    EXPECT_THAT(Rotated(0), HasSubstr(Local("69.641 MPa (T)")));
    EXPECT_THAT(Rotated(1), HasSubstr(Local("29.641 MPa (C)")));
    EXPECT_THAT(Rotated(2), HasSubstr(Local("5.9808 MPa CW on X'-face")));
    Click("cmdRotaterNull");
    EXPECT_THAT(Rotated(2), HasSubstr(Local("40.0 MPa CCW on X'-face")));
}

TEST_F(MohrForm, QuarterTurnSwapsTheNormalValues)
{
    ComputeStandard();
    Type("txtRotater", "90");
    Click("cmdRotater");
    EXPECT_THAT(Rotated(0), HasSubstr(Local("10.0 MPa (C)")));
    EXPECT_THAT(Rotated(1), HasSubstr(Local("50.0 MPa (T)")));
}

TEST_F(MohrForm, AnglesAreHeldBetweenMinusAndPlusNinety)
{
    ComputeStandard();
    Type("txtRotater", "123");
    Click("cmdRotater");
    EXPECT_EQ(Shown("txtRotater"), Local("90.0"));
    EXPECT_EQ(Find<QScrollBar>("vsbRotater").value(), 18000);
    Type("txtRotater", "-500");
    Press("txtRotater", Qt::Key_Enter);
    EXPECT_EQ(Shown("txtRotater"), Local("-90.0"));
    EXPECT_EQ(Find<QScrollBar>("vsbRotater").value(), -18000);
    EXPECT_TRUE(Near(CurrentStress.RotationAngle, -std::acos(0.0), 1e-12));
}

TEST_F(MohrForm, ScrollBarAndBoxAgree)
{
    ComputeStandard();
    Find<QScrollBar>("vsbRotater").setValue(-2001);
    EXPECT_EQ(Shown("txtRotater"), Local("-10.005"));
    EXPECT_TRUE(Near(CurrentStress.RotationAngle, -10.005 * std::acos(-1.0) / 180, 1e-12));
    Type("txtRotater", Local("26.5651"));
    Click("cmdRotater");
    EXPECT_EQ(Shown("txtRotater"), Local("26.5651"));
    EXPECT_EQ(Find<QScrollBar>("vsbRotater").value(), 5313);
}

TEST_F(MohrForm, ClickOnTheAnglePictureTurns)
{
    ComputeStandard();
    auto& picture = Find<screen::PictureBox>("picXprime");
    picture.PaintNow();
    ClickAt("picXprime", 0, picture.Sheet().ScaleTop() / 2);
    EXPECT_TRUE(Near(std::abs(CurrentStress.RotationAngle), std::acos(0.0), 0.03));
    const int position = Find<QScrollBar>("vsbRotater").value();
    EXPECT_TRUE(Near(position * 0.005, CurrentStress.RotationAngle * 180 / std::acos(-1.0), 1e-4));
}

TEST_F(MohrForm, AbsoluteMaximumShearOfTwoPressures)
{
    OpenAnalysis("mnuPlaneStress");
    Compute({"60", "60", "30"}, {"optSigX(1)", "optSigX(3)", "optStressUnits(3)"});
    EXPECT_TRUE(Near(CurrentStress.PrincipalOne, -30));
    EXPECT_TRUE(Near(CurrentStress.PrincipalTwo, -90));
    EXPECT_TRUE(Near(CurrentStress.AbsMaxShear, 45));
    EXPECT_EQ(Shown("picMohr").find(Local("45.0")), std::string::npos);
    Choose("chkAbsMaxShear");
    EXPECT_THAT(Shown("picMohr"), HasSubstr(Local("45.0")));
}

TEST_F(MohrForm, PlaneStrainHalvesTheShearStrain)
{
    OpenAnalysis("mnuPlaneStrain");
    Compute({"340", "110", "180"});
    EXPECT_TRUE(Near(CurrentStress.TauXY, 90));
    // centre 225, radius sqrt(115^2 + 90^2) = 146.03
    EXPECT_THAT(Shown("picMohr"), HasSubstr(Local("371.03")));
    EXPECT_THAT(Shown("picMohr"), HasSubstr(Local("292.06")));
    EXPECT_THAT(Rotated(2), HasSubstr("CW from X'-axis"));
    EXPECT_FALSE(IsEnabled("mnuFailure"));
}

TEST_F(MohrForm, RectangularRosette)
{
    OpenAnalysis("mnuRosette45");
    Compute({"400", "200", "100"}, {"optSigX(5)"});
    // x = 400, y = -100, shear = -(400 - 300) / 2 = -50
    EXPECT_TRUE(Near(CurrentStress.SigmaY, -100));
    EXPECT_TRUE(Near(CurrentStress.TauXY, -50));
    EXPECT_TRUE(Near(CurrentStress.PrincipalOne, 150 + std::hypot(250, 50)));
}

TEST_F(MohrForm, DeltaRosetteWithStresses)
{
    OpenAnalysis("mnuRosette60");
    Compute({"60", "135", "264"});
    // x = 60, y = (270 + 528 - 60) / 3 = 246, shear strain = (135 - 264) 2 / sqrt 3 = -149
    EXPECT_TRUE(Near(CurrentStress.SigmaY, 246));
    EXPECT_TRUE(Near(CurrentStress.TauXY, 74.4782, 1e-5));
    EXPECT_FALSE(IsVisible("txtPoisson"));
    Choose("chkRosette");
    EXPECT_TRUE(IsVisible("txtPoisson"));
    EXPECT_EQ(StressText(1), "Input elastic modulus");
    EXPECT_EQ(StressText(2), "and Poisson's ratio");
    EXPECT_EQ(StressText(4), "");
}

// Strains 340, 110 and half the shear strain 90 in millionths: principal strains 225 +- 146.03.
// Hooke's law with E = 200 GPa and nu = 0.3: 86.75 and 41.82 MPa, G times 292.06 is 22.47 MPa.
TEST_F(MohrForm, StressesOfARosetteOnSteel)
{
    OpenAnalysis("mnuRosette45");
    Choose("chkRosette");
    Choose("optElasticModulus(3)");
    Type("txtElasticModulus", "200");
    Type("txtPoisson", Local("0.3"));
    Choose("optUnitsStress(3)");
    Compute({"340", "135", "110"});
    EXPECT_TRUE(Near(CurrentStress.TauXY, 90));
    EXPECT_EQ(StressText(1), Local("Sigma 1 = 86.752 MPa (T)"));
    EXPECT_EQ(StressText(2), Local("Sigma 2 = 41.819 MPa (T)"));
    EXPECT_EQ(StressText(4), Local("Tau Max XY = 22.466 MPa"));
    Choose("optUnitsStress(2)");
    EXPECT_EQ(StressText(1), Local("Sigma 1 = 86,751.994 kPa (T)"));
    EXPECT_TRUE(Near(CurrentStress.PrincipalThree, -0.3 / 0.7 * 450));
    Choose("optStressOrStrain(1)");
    EXPECT_EQ(CurrentStress.PrincipalThree, 0);
}

TEST_F(MohrForm, PoissonsRatioOfOneAndNoModulusGiveThePrompts)
{
    OpenAnalysis("mnuRosette45");
    Choose("chkRosette");
    const std::vector<std::pair<std::string, std::string>> bad{
        {"200", "1"}, {"200", "1.00005"}, {"200", "1.5"}, {"0", "0.3"}, {"200", "0"}};
    for (const auto& [modulus, poisson] : bad) {
        Type("txtElasticModulus", modulus);
        Type("txtPoisson", Local(poisson));
        Compute({"400", "200", "100"});
        EXPECT_EQ(StressText(1), "Input elastic modulus") << poisson;
        EXPECT_THAT(Shown("picMohr"), HasSubstr("Radius = ")) << poisson;
    }
}

TEST_F(MohrForm, ModulusComesFromTheMaterialsAndFollowsItsUnit)
{
    OpenAnalysis("mnuRosette45");
    Choose("chkRosette");
    Select("cboElasticModulus", "Aluminum 6061-T6");
    EXPECT_EQ(Shown("txtElasticModulus"), Local("10,000,000.00"));
    Choose("optElasticModulus(1)");
    EXPECT_EQ(Shown("txtElasticModulus"), Local("10,000.00"));
    Choose("optElasticModulus(3)");
    EXPECT_EQ(Shown("txtElasticModulus"), Local("68.95"));
    Select("cboElasticModulus", "Aluminum 2014-T6");
    EXPECT_EQ(Shown("txtElasticModulus"), Local("73.10"));
    EXPECT_EQ(Shown("txtPoisson"), "");
}

TEST_F(MohrForm, MomentsOfInertiaKeepTheSignTyped)
{
    OpenAnalysis("mnuMomentOfInertia");
    Compute({"100", "40", "-40"});
    EXPECT_EQ(Shown("txtStress(2)"), "-40");
    EXPECT_TRUE(Near(CurrentStress.TauXY, -40));
    EXPECT_THAT(Shown("picMohr"), HasSubstr(Local("120.0")));
    EXPECT_THAT(Shown("picMohr"), HasSubstr(Local("20.0")));
    EXPECT_THAT(Rotated(0), HasSubstr(Local("100.0 in^4")));
    EXPECT_FALSE(IsVisible("chkAbsMaxShear"));
    EXPECT_FALSE(IsVisible("picMaxShear"));
    EXPECT_FALSE(IsVisible("optSigX(0)"));
    EXPECT_FALSE(IsEnabled("mnuFailure"));
}

TEST_F(MohrForm, LargeStressesAreShownWhole)
{
    OpenAnalysis("mnuPlaneStress");
    Compute({"5000000", "1000000", "2000000"});
    EXPECT_TRUE(Near(CurrentStress.ValueScale, 1000));
    EXPECT_EQ(Shown("txtStress(0)"), Local("5,000,000.0"));
    EXPECT_THAT(Shown("picMohr"), HasSubstr(Local("Center = 3,000,000.0")));
    EXPECT_THAT(Rotated(0), HasSubstr(Local("5,000,000.0 psi (T)")));
}

TEST_F(MohrForm, UnitIsACaptionOfTheSameNumbers)
{
    ComputeStandard();
    EXPECT_THAT(Rotated(0), HasSubstr(Local("50.0 MPa")));
    Choose("optStressUnits(0)");
    EXPECT_THAT(Rotated(0), HasSubstr(Local("50.0 psi")));
    EXPECT_EQ(Shown("txtStress(0)"), Local("50.0"));
}

TEST_F(MohrForm, TypingWithoutComputeLeavesTheResults)
{
    ComputeStandard();
    Type("txtStress(0)", "99");
    Choose("chkAbsMaxShear");
    EXPECT_THAT(Shown("picMohr"), HasSubstr(Local("Center = 20.0")));
    EXPECT_EQ(Shown("txtStress(0)"), "99");
}

TEST_F(MohrForm, EnterWalksThroughTheBoxesAndComputes)
{
    Open("frmMohr");
    Type("txtStress(0)", "50");
    Press("txtStress(0)", Qt::Key_Return);
    EXPECT_EQ(FocusedControl(), "txtStress(1)");
    Press("txtStress(1)", Qt::Key_Return);
    EXPECT_EQ(FocusedControl(), "txtStress(2)");
    Press("txtStress(2)", Qt::Key_Return);
    EXPECT_EQ(FocusedControl(), "cmdMohr(0)");
    EXPECT_THAT(Shown("picMohr"), HasSubstr(Local("Radius = 25.0")));
}

TEST_F(MohrForm, DetailsExplainAndGoAgain)
{
    OpenAnalysis("mnuPlaneStress");
    TypeValues({"50", "10", "40"});
    EXPECT_FALSE(dynamic_cast<frmMohr&>(TheForm()).CallerLinkUsed());
    Click("cmdMohr(1)");
    EXPECT_TRUE(IsVisible("txtDetails"));
    EXPECT_THAT(Shown("txtDetails"), HasSubstr(Local("30.0")));
    EXPECT_TRUE(dynamic_cast<frmMohr&>(TheForm()).CallerLinkUsed());
    Type("txtRotater", "45");
    Click("cmdRotater");
    EXPECT_THAT(Shown("txtDetails"), HasSubstr("45"));
    Click("cmdMohr(1)");
    EXPECT_FALSE(IsVisible("txtDetails"));
}

TEST_F(MohrForm, ClearEmptiesEverything)
{
    ComputeStandard();
    Type("txtRotater", "30");
    Click("cmdRotater");
    Click("cmdMohr(3)");
    for (const char* box : {"txtStress(0)", "txtStress(1)", "txtStress(2)"})
        EXPECT_EQ(Shown(box), "");
    for (const char* picture : {"picMohr", "picPrincipal", "picMaxShear", "picRotater"})
        EXPECT_EQ(Shown(picture), "");
    EXPECT_EQ(Rotated(0), "");
    EXPECT_EQ(Shown("txtRotater"), Local("0.0"));
    EXPECT_EQ(Find<QScrollBar>("vsbRotater").value(), 0);
    EXPECT_EQ(MainModule::MohrInputKind, 1);
    EXPECT_FALSE(IsEnabled("mnuFailure"));
}

TEST_F(MohrForm, AnotherAnalysisClearsThePictures)
{
    ComputeStandard();
    Trigger("mnuPlaneStrain");
    EXPECT_TRUE(IsChosen("mnuPlaneStrain"));
    EXPECT_FALSE(IsChosen("mnuPlaneStress"));
    EXPECT_EQ(Shown("picMohr"), "");
    EXPECT_EQ(Shown("picPrincipal"), "");
    EXPECT_EQ(Rotated(0), "");
    EXPECT_FALSE(IsEnabled("mnuFailure"));
    EXPECT_EQ(MainModule::MohrInputKind, 1);
}

struct WarningRow {
    std::string Menu, Title, Text;
    std::array<std::string, 3> Values;
};
class MohrWarning : public MohrFormTest, public testing::WithParamInterface<WarningRow> {};

TEST_P(MohrWarning, IsShownAndNothingIsComputed)
{
    const WarningRow& row = GetParam();
    OpenAnalysis(row.Menu);
    Compute({"50", "10", "40"});
    const std::string before = Shown("picMohr");
    const StressState state = CurrentStress;
    Expect({kExclamation, row.Title, row.Text});
    Compute(row.Values);
    EXPECT_EQ(Shown("picMohr"), before);
    EXPECT_EQ(CurrentStress.CircleRadius, state.CircleRadius);
    EXPECT_EQ(CurrentStress.SigmaX, state.SigmaX);
}

constexpr const char* kEqualStrains =
    "The specified strains produce equal strains in all directions.";
INSTANTIATE_TEST_SUITE_P(
    Analyses, MohrWarning,
    testing::Values(
        WarningRow{"mnuPlaneStress",
                   "Stress Transformation Warning",
                   "The stresses specified produce a hydrostatic pressure condition.",
                   {"5", "5", "0"}},
        WarningRow{
            "mnuPlaneStrain", "Strain Transformation Warning", kEqualStrains, {"5", "5", "0"}},
        WarningRow{"mnuRosette45", "Strain Transformation Warning", kEqualStrains, {"7", "7", "7"}},
        WarningRow{"mnuRosette60", "Strain Transformation Warning", kEqualStrains, {"7", "7", "7"}},
        WarningRow{"mnuMomentOfInertia",
                   "Moments of Inertia Transformation Warning",
                   "The moments of inertia are equal in all orientations.",
                   {"5", "-5", ""}}));

TEST_F(MohrForm, AllZeroLeavesThePictureEmpty)
{
    OpenAnalysis("mnuPlaneStress");
    Expect({kExclamation, "Stress Transformation Warning",
            "The stresses specified produce a hydrostatic pressure condition."});
    Click("cmdMohr(0)");
    EXPECT_EQ(Shown("picMohr"), "");
    EXPECT_FALSE(IsEnabled("mnuFailure"));
    EXPECT_EQ(Shown("txtStress(0)"), Local("0.0"));
}

// 1e-200 squared is 0 in a double: the radius vanishes by arithmetic alone.
TEST_F(MohrForm, VanishingRadiusGetsItsOwnWords)
{
    OpenAnalysis("mnuPlaneStress");
    Expect({kExclamation, "Stress Transformation Warning",
            "The stresses specified produce the same stress in every direction."});
    Compute({"0", "0", "1e-200"});
    EXPECT_EQ(Shown("picMohr"), "");
}

TEST_F(MohrForm, OverflowLeavesEverythingAsItWas)
{
    ComputeStandard();
    const std::string before = Shown("picMohr");
    Expect({kStop, "Forcelab",
            "A number in this calculation is too large. "
            "What is shown stays as it was; please check the input."});
    Type("txtStress(0)", "1e+400");
    Click("cmdMohr(0)");
    EXPECT_EQ(Shown("picMohr"), before);
    EXPECT_EQ(Shown("txtStress(0)"), "1e+400");
    EXPECT_EQ(Shown("txtStress(1)"), Local("10.0"));
    EXPECT_TRUE(IsEnabled("mnuFailure"));
    EXPECT_TRUE(Near(CurrentStress.PrincipalOne, 70));
}

TEST_F(MohrForm, OverflowInTheRotationLeavesTheAngle)
{
    ComputeStandard();
    Expect({kStop, "Forcelab",
            "A number in this calculation is too large. "
            "What is shown stays as it was; please check the input."});
    Type("txtRotater", "1e+400");
    Click("cmdRotater");
    EXPECT_EQ(CurrentStress.RotationAngle, 0);
    EXPECT_THAT(Rotated(0), HasSubstr(Local("50.0 MPa (T)")));
}

TEST_F(MohrForm, HelpOpensItsTopic)
{
    Open("frmMohr");
    Trigger("mnuHelp");
    ASSERT_EQ(Help->Opened.size(), 1U);
    EXPECT_EQ(Help->Opened.front().second, 3000);
}

} // namespace
} // namespace forcelab::transform
