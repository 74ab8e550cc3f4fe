#include "DetailsFormTest.h"

namespace forcelab::beams {
namespace {

using screen::Forms;
using test::Local;
using test::Near;
using testing::HasSubstr;
using testing::Not;

// The T of flange 8 x 1 and stem 1 x 9 in, by hand: A = 17 in^2, centroid 116.5 / 17 = 6.85294 in
// above the bottom, I = 60.75 + 9 (2.35294)^2 + 0.66667 + 8 (2.64706)^2 = 167.2990 in^4.
// M = 100 in-kips = 8.33333333 ft-kips:
//   top     -M c2 / I = -100 x 3.14706 / 167.2990 = -1.88110 ksi
//   bottom   M c1 / I =  100 x 6.85294 / 167.2990 =  4.09622 ksi
// V = 10 kips, at the neutral axis Q = 1 x 6.85294^2 / 2 = 23.48140 in^3, t = 1 in:
//   V Q / I t = 10 x 23.48140 / 167.2990 = 1.40356 ksi
constexpr const char* kMoment = "8.33333333";
constexpr double kRound = 1e-3; // of three decimals

class StressForm : public DetailsFormTest {};

TEST_F(StressForm, TeeShowsTheStressesOfTheTextbook)
{
    OpenTee("10", kMoment);
    Click("cmdVM(0)");
    EXPECT_TRUE(Near(KeyStressOf("Top"), -1.88110, kRound));
    EXPECT_TRUE(Near(KeyStressOf("Bottom"), 4.09622, kRound));
    EXPECT_THAT(Shown("txtKeyStresses(0)"), HasSubstr("ksi (compression)"));
    Click("cmdVM(1)");
    EXPECT_TRUE(Near(KeyStressOf("Neutral axis"), 1.40356, kRound));
    EXPECT_THAT(Shown("picST(3)"), HasSubstr(Local("1.404")));
}

TEST_F(StressForm, NormalViewShowsItsPictures)
{
    OpenTee("10", kMoment);
    EXPECT_TRUE(IsVisible("picST(0)"));
    EXPECT_FALSE(IsVisible("picST(1)"));
    EXPECT_TRUE(IsVisible("lblPrompt"));
    Click("cmdVM(0)");
    for (const char* shown : {"picST(0)", "picST(1)", "picST(2)", "txtKeyStresses(0)"})
        EXPECT_TRUE(IsVisible(shown)) << shown;
    for (const char* hidden : {"picST(3)", "lblQnote", "lblPrompt"})
        EXPECT_FALSE(IsVisible(hidden)) << hidden;
    EXPECT_EQ(Shown("fraKeyStresses"), "Stresses at some key locations");
    EXPECT_EQ(Shown("lblKeyStresses"), "Normal stresses at key locations");
    EXPECT_THAT(Shown("picST(1)"), HasSubstr("Normal Stress at"));
}

TEST_F(StressForm, ShearViewShowsItsPictures)
{
    OpenTee("10", kMoment);
    Click("cmdVM(0)");
    Click("cmdVM(1)");
    for (const char* shown : {"picST(0)", "picST(1)", "picST(3)", "lblQnote"})
        EXPECT_TRUE(IsVisible(shown)) << shown;
    EXPECT_FALSE(IsVisible("picST(2)"));
    EXPECT_EQ(Shown("lblQnote"), "Q calculated at the target location y");
    EXPECT_EQ(Shown("lblKeyStresses"), "Shear stresses at key locations");
    EXPECT_THAT(Shown("picST(3)"), HasSubstr("X-Y Shear Stress at"));
    Click("cmdVM(0)");
    EXPECT_FALSE(IsVisible("picST(3)"));
    EXPECT_FALSE(IsVisible("lblQnote"));
}

TEST_F(StressForm, NormalStressNeedsAForce)
{
    OpenTee("10", "0");
    ExpectBox(kStop, "Stress Calculation Error",
              "Values for Axial Force, Bending Moment, or both must be entered before the normal "
              "stresses can be calculated.");
    Click("cmdVM(0)");
    EXPECT_EQ(FocusedControl(), "txtVM(2)");
    EXPECT_FALSE(IsVisible("picST(1)"));
    Type("txtVM(0)", "17"); // 17 kips on 17 in^2
    Click("cmdVM(0)");
    EXPECT_TRUE(Near(KeyStressOf("Top"), 1, kRound));
}

TEST_F(StressForm, ShearStressNeedsAShearForce)
{
    OpenTee("0", kMoment);
    ExpectBox(kStop, "Stress Calculation Error",
              "A value for Shear Force must be entered before the shear stresses can be "
              "calculated.");
    Click("cmdVM(1)");
    EXPECT_EQ(FocusedControl(), "txtVM(1)");
    EXPECT_FALSE(IsVisible("picST(3)"));
}

TEST_F(StressForm, APointAboveTheSectionMovesToItsTop)
{
    OpenTee("10", kMoment);
    Type("txtCoord(0)", "99");
    Type("txtCoord(1)", "50");
    Click("cmdVM(0)");
    EXPECT_EQ(Shown("txtCoord(0)"), Local("4.000"));
    EXPECT_EQ(Shown("txtCoord(1)"), Local("3.147"));
    // The point is the top itself, and not what the box rounds it to.
    EXPECT_TRUE(Near(KeyStressOf("Top"), -1.88110, kRound));
    EXPECT_THAT(Shown("picST(1)"), HasSubstr(Local("-1.881")));
    Type("txtCoord(1)", "-50");
    Press("txtCoord(1)", Qt::Key_Tab);
    EXPECT_EQ(Shown("txtCoord(1)"), Local("-6.853"));
    EXPECT_THAT(Shown("picST(1)"), HasSubstr(Local("4.096")));
}

TEST_F(StressForm, ThePointFollowsTheScrollBars)
{
    OpenTee("10", kMoment);
    Click("cmdVM(1)");
    auto& down = Find<QScrollBar>("vsbY");
    down.setValue(down.maximum());
    EXPECT_EQ(Shown("txtCoord(1)"), Local("-6.853"));
    down.setValue(down.minimum());
    EXPECT_EQ(Shown("txtCoord(1)"), Local("3.147"));
    down.setValue(0);
    EXPECT_EQ(Shown("txtCoord(1)"), Local("0.000"));
    EXPECT_THAT(Shown("picST(3)"), HasSubstr(Local("Q = 23.481")));
    const int before = down.value();
    Press("vsbY", Qt::Key_Down);
    EXPECT_GT(down.value(), before);
    EXPECT_LT(StringValue(Shown("txtCoord(1)")), 0);
    auto& across = Find<QScrollBar>("hsbZ");
    across.setValue(across.maximum());
    EXPECT_EQ(Shown("txtCoord(0)"), Local("4.000"));
}

TEST_F(StressForm, TheScrollBarsFollowTheBoxes)
{
    OpenTee("10", kMoment);
    auto& down = Find<QScrollBar>("vsbY");
    Type("txtCoord(1)", Local("3"));
    Press("txtCoord(1)", Qt::Key_Return);
    EXPECT_EQ(FocusedControl(), "txtCoord(0)");
    EXPECT_EQ(Shown("txtCoord(1)"), Local("3.000"));
    EXPECT_LT(down.value(), 0);
    Type("txtCoord(0)", Local("-2"));
    EXPECT_LT(Find<QScrollBar>("hsbZ").value(), 0);
}

TEST_F(StressForm, AClickOrADragMovesThePoint)
{
    OpenTee("10", kMoment);
    Click("cmdVM(1)");
    auto& picture = Find<screen::PictureBox>("picST(0)");
    picture.PaintNow();
    // The scale of the picture has inches upward from the centroid, pixels across.
    const double middle = picture.Sheet().WidthPixels() / 2;
    ClickAt("picST(0)", middle, -3);
    EXPECT_TRUE(Near(StringValue(Shown("txtCoord(1)")), -3, 0.02));
    EXPECT_NEAR(StringValue(Shown("txtCoord(0)")), 0, 0.05);
    EXPECT_LT(StringValue(Shown("txtCoord(1)")), 0);
    const QPoint from = picture.PixelOf(middle, -3);
    QTest::mousePress(&picture, Qt::LeftButton, Qt::NoModifier, from);
    QTest::mouseMove(&picture, from - QPoint(0, 500));
    QMouseEvent drag(QEvent::MouseMove, QPointF(from - QPoint(0, 500)), QPointF(), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&picture, &drag);
    QTest::mouseRelease(&picture, Qt::LeftButton);
    EXPECT_EQ(Shown("txtCoord(1)"), Local("3.147"));
    ClickAt("picST(0)", middle, -3, Qt::RightButton);
    EXPECT_EQ(Shown("txtCoord(1)"), Local("3.147"));
}

TEST_F(StressForm, MohrTakesTheStateAndGivesBack)
{
    OpenTee("10", kMoment);
    Type("txtCoord(1)", "1");
    // At y = 1 in: -M y / I = -0.59773 ksi; Q = (6.85294^2 - 1) / 2, V Q / I t = 1.37368 ksi.
    Click("cmdVM(2)");
    EXPECT_EQ(MainModule::MohrCaller, 4500);
    EXPECT_EQ(Shown("lblKeyStresses"), "Stresses at the specified coordinates");
    EXPECT_TRUE(Near(KeyNumber("Normal stress:  "), -0.59773, 1e-3));
    EXPECT_TRUE(Near(KeyNumber("Shear stress:  "), 1.37368, 1e-3));
    DetailsFormTest::Use("frmMohr");
    EXPECT_TRUE(TheForm().isVisible());
    EXPECT_TRUE(Near(StringValue(Shown("txtStress(0)")), 0.59773, 1e-3));
    EXPECT_TRUE(IsChosen("optSigX(1)")); // compression
    EXPECT_EQ(StringValue(Shown("txtStress(1)")), 0);
    EXPECT_TRUE(Near(StringValue(Shown("txtStress(2)")), 1.37368, 1e-3));
    EXPECT_TRUE(IsChosen("optSigX(4)"));
    EXPECT_TRUE(IsChosen("optStressUnits(1)"));
    // Centre -0.59773 / 2, radius sqrt(0.29887^2 + 1.37368^2) = 1.40582 ksi.
    EXPECT_TRUE(Near(transform::CurrentStress.CircleRadius * transform::CurrentStress.ValueScale,
                     1.40582, 1e-3));
    Trigger("mnuBack");
    EXPECT_TRUE(Forms::IsVisible("frmDetails"));
    EXPECT_FALSE(Forms::IsVisible("frmMohr"));
}

TEST_F(StressForm, MohrKeepsThePicturesOfTheView)
{
    OpenTee("10", kMoment);
    Click("cmdVM(1)");
    Click("cmdVM(2)");
    DetailsFormTest::Use("frmMohr");
    Trigger("mnuBack");
    DetailsFormTest::Use("frmDetails");
    EXPECT_TRUE(IsVisible("picST(3)"));
    EXPECT_TRUE(IsVisible("lblQnote"));
    Find<QScrollBar>("vsbY").setValue(0);
    EXPECT_TRUE(Near(KeyNumber("Shear stress:  "), 1.40356, kRound));
}

TEST_F(StressForm, StressUnitsShowTheSameStress)
{
    OpenTee("10", kMoment);
    Click("cmdVM(0)");
    Choose("optStressUnits(0)");
    EXPECT_TRUE(Near(KeyStressOf("Bottom"), 4096.22, 1e-5));
    EXPECT_THAT(Shown("txtKeyStresses(0)"), Not(HasSubstr("ksi")));
    Choose("optStressUnits(3)"); // 1 ksi is 6.894757 MPa
    EXPECT_TRUE(Near(KeyStressOf("Bottom"), 4.09622 * 6.894757, 1e-4));
    EXPECT_THAT(Shown("txtKeyStresses(0)"), HasSubstr("MPa"));
    EXPECT_THAT(Shown("picST(1)"), HasSubstr("MPa"));
}

TEST_F(StressForm, ShapeUnitsKeepThePlaceOfThePoint)
{
    OpenTee("10", kMoment);
    Type("txtCoord(1)", "50"); // the top, 3.147058... in
    Press("txtCoord(1)", Qt::Key_Tab);
    Click("cmdVM(0)");
    Choose("optShapeUnits(1)");
    EXPECT_EQ(Shown("txtCoord(1)"), Local("79.935"));
    EXPECT_THAT(Shown("txtKeyStresses(0)"), HasSubstr(Local("y = 79.935 mm")));
    EXPECT_TRUE(Near(KeyStressOf("Top"), -1.88110, kRound));
    Choose("optShapeUnits(0)");
    EXPECT_EQ(Shown("txtCoord(1)"), Local("3.147"));
    Type("txtCoord(1)", Local("1")); // as typed, without the decimals of the form
    Choose("optShapeUnits(1)");
    EXPECT_EQ(Shown("txtCoord(1)"), Local("25.400"));
}

TEST_F(StressForm, ForceUnitsKeepTheNumber)
{
    OpenTee("10", kMoment);
    Click("cmdVM(1)");
    Choose("optForceUnits(0)"); // 10 lb
    EXPECT_EQ(Shown("txtVM(1)"), "10");
    EXPECT_TRUE(Near(KeyStressOf("Neutral axis"), 1.40356e-3, 2e-3));
    Choose("optForceUnits(3)"); // 10 kN are 2.24808923 kips
    EXPECT_TRUE(Near(KeyStressOf("Neutral axis"), 1.40356 * 0.224808923, 1e-3));
    Click("cmdVM(0)");
    Choose("optMomentUnits(3)"); // kN-m
    EXPECT_TRUE(Near(KeyStressOf("Bottom"), 4.09622 * 0.73756, 1e-3));
}

TEST_F(StressForm, ChangedForcesShowAtOnceAndMissingOnesCloseTheView)
{
    OpenTee("10", kMoment);
    Click("cmdVM(0)");
    Type("txtVM(2)", Local("16.66666666"));
    EXPECT_TRUE(Near(KeyStressOf("Bottom"), 2 * 4.09622, kRound));
    Type("txtVM(2)", "0");
    EXPECT_FALSE(IsVisible("picST(1)"));
    EXPECT_FALSE(IsVisible("txtKeyStresses(0)"));
    EXPECT_EQ(Shown("txtKeyStresses(0)"), "");
    Type("txtVM(2)", Local(kMoment)); // the view comes back with its force
    EXPECT_TRUE(IsVisible("picST(1)"));
    EXPECT_TRUE(Near(KeyStressOf("Bottom"), 4.09622, kRound));
}

TEST_F(StressForm, ANumberTooLargeGivesTheMessageAndNoStaleStress)
{
    OpenTee("10", kMoment);
    Click("cmdVM(0)");
    Type("txtVM(2)", "1e+400");
    EXPECT_FALSE(IsVisible("picST(1)"));
    ExpectBox(kStop, "Forcelab",
              "A number in this calculation is too large. What is shown stays as it was; please "
              "check the input.");
    Click("cmdVM(0)");
    EXPECT_FALSE(IsVisible("picST(1)"));
    Type("txtVM(2)", "1");
    Type("txtCoord(1)", "1e+400");
    Press("txtCoord(1)", Qt::Key_Tab);
    ExpectBox(kStop, "Forcelab",
              "A number in this calculation is too large. What is shown stays as it was; please "
              "check the input.");
    Click("cmdVM(0)");
    Type("txtCoord(1)", "what?");
    Click("cmdVM(0)");
    EXPECT_EQ(Shown("txtCoord(1)"), Local("0.000"));
    EXPECT_TRUE(IsVisible("picST(1)"));
}

TEST_F(StressForm, TheSolidViewIsOff)
{
    OpenTee("10", kMoment);
    EXPECT_EQ(Shown("cmdShadeSolid"), "3d Solid &Rendering");
    EXPECT_FALSE(IsEnabled("cmdShadeSolid"));
}

// A circle of radius 2 in: A = 4 pi, I = 4 pi. 4 V / 3 A at the centre and nowhere else.
TEST_F(StressForm, ACircleHasItsShearAtTheCentreAlone)
{
    TakeSection(test::Computed(sections::kCircle, {4}));
    OpenWith("0", "10", "1");
    Type("txtCoord(1)", Local("0.001"));
    Click("cmdVM(1)");
    EXPECT_FALSE(IsVisible("lblQnote")); // its stress comes from no Q
    EXPECT_TRUE(Near(KeyStressOf("Neutral axis"), 10 * 4 / 3.0 / (4 * kPi), kRound));
    Click("cmdVM(2)");
    EXPECT_TRUE(Forms::IsVisible("frmMohr"));
    EXPECT_EQ(transform::CurrentStress.TauXY, 0);
    EXPECT_EQ(KeyNumber("Shear stress:  "), 0);
    DetailsFormTest::Use("frmDetails");
    Press("vsbY", Qt::Key_Down);
    Press("vsbY", Qt::Key_Up);
    EXPECT_EQ(Shown("txtCoord(1)"), Local("0.000"));
    EXPECT_TRUE(Near(KeyNumber("Shear stress:  "), 1.06103, kRound));
}

TEST_F(StressForm, ACompositeNamesItsMaterials)
{
    TakeSection(test::Composite(sections::kTShape, {8, 1, 9, 1}, {9, 10}, 2));
    OpenWith("0", "10", kMoment);
    Click("cmdVM(0)");
    EXPECT_THAT(Shown("txtKeyStresses(0)"), HasSubstr("(Material A)"));
    EXPECT_THAT(Shown("txtKeyStresses(0)"), HasSubstr("(Material B)"));
    // A flange of A on a stem of B: A = 8 + 2 x 9 = 26, centroid (18 x 4.5 + 8 x 9.5) / 26
    // = 6.03846 in, I = 2 x (60.75 + 9 x 1.53846^2) + 0.66667 + 8 x 3.46154^2 = 260.628 in^4;
    // the bottom has 2 M c / I.
    EXPECT_TRUE(Near(KeyStressOf("Bottom (Material B)"), 2 * 100 * 6.03846 / 260.628, kRound));
}

TEST_F(StressForm, SpecifiedPropertiesHaveNoShearStress)
{
    TakeSection(test::Computed(sections::kSpecified, {3, 4, 3, 5, 100, 60, 30}));
    OpenWith("0", "10", kMoment);
    Click("cmdVM(1)");
    EXPECT_THAT(Shown("txtKeyStresses(0)"), HasSubstr("Further data are required"));
    EXPECT_THAT(Shown("picST(3)"), HasSubstr("cannot be computed"));
    Click("cmdVM(0)");
    EXPECT_TRUE(std::isfinite(KeyStressOf("Top")));
}

TEST_F(StressForm, EveryShapeShowsAllThreeViews)
{
    Messages->AcceptAny = true;
    for (int shape = 1; shape <= sections::kPipe; ++shape) {
        SCOPED_TRACE(shape);
        TakeSection(test::Computed(shape, test::SampleDimensions(shape)));
        OpenWith("1", "10", kMoment);
        for (const char* button : {"cmdVM(0)", "cmdVM(1)", "cmdVM(2)"}) {
            DetailsFormTest::Use("frmDetails");
            Click(button);
            const std::string text = Shown("txtKeyStresses(0)");
            EXPECT_FALSE(text.empty());
            EXPECT_THAT(text, Not(HasSubstr("nan")));
            EXPECT_THAT(text, Not(HasSubstr("inf")));
        }
        // A centroid off the material has no stress, which Mohr's circle refuses.
        for (const auto& box : Messages->Shown)
            EXPECT_EQ(box.Title, "Stress Transformation Warning") << box.Text;
        Messages->Shown.clear();
        DetailsFormTest::Use("frmDetails");
        Click("cmdVM(3)");
    }
}

} // namespace
} // namespace forcelab::beams
