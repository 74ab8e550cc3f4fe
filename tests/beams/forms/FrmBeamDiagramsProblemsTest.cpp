#include "BeamDiagramsFormTest.h"

#include <cmath>

namespace forcelab::beams {
namespace {

using test::Local;
using test::Near;
using testing::AllOf;
using testing::Contains;
using testing::HasSubstr;
using testing::Not;

// Problems typed through both forms; what must stand on the pictures is worked out by hand.
using BeamProblem = BeamDiagramsFormTest;

TEST_F(BeamProblem, PointLoadAtMidspan)
{
    FootBeam();
    EXPECT_THAT(Lines("picLoadDiagram"),
                AllOf(Contains(Local("A = 500.0 lbs")), Contains(Local("B = 500.0 lbs")),
                      Contains(Local("1P = 1,000.0 lbs"))));
    EXPECT_THAT(Lines("picShearDiagram"),
                AllOf(Contains("(lbs)"), Contains(Local("500.0")), Contains(Local("-500.0"))));
    EXPECT_THAT(Lines("picMomentDiagram"), AllOf(Contains("(ft-lbs)"), Contains(Local("2,500.0"))));
}

// P L^3 / (48 E I) = 1000 x 120^3 / (48 x 29,000,000 x 999) = 0.0012426 in.
TEST_F(BeamProblem, DeflectionWithASteelSection)
{
    UseSteelSection();
    FootBeam();
    Trigger("mnuSlopeDeflection");
    EXPECT_THAT(Lines("picDeflectionDiagram"),
                AllOf(Contains("(in)"), Contains(Local("-0.00124"))));
    EXPECT_FALSE(IsVisible("lblEIMessage(0)"));
    EXPECT_FALSE(IsVisible("lblEIMessage(2)"));
    EXPECT_EQ(ShownDiagramUnits.BeamEI, 29e6 * 999);
    CurrentPoint.XText = "5";
    CalculatePoint(CurrentPoint, CurrentBeam, ShownDiagramUnits);
    TellPointChanged();
    EXPECT_EQ(Readout(), "At X = 5 ft: slope " + Local("0.00") + " radians, deflection " +
                             Local("-0.00124") + " in");
    // P L^2 / (16 E I) = 31.07E-06
    EXPECT_THAT(Lines("picSlopeDiagram"), Contains(Local("31.07E-06")));
}

TEST_F(BeamProblem, UniformAndPointLoadInMetres)
{
    MetreBeam();
    Choose("optMomentUnits(3)");
    EXPECT_TRUE(IsChosen("optLengthUnits(3)"));
    EXPECT_TRUE(IsChosen("optForceUnits(3)")); // the unit of the last load
    EXPECT_THAT(Lines("picLoadDiagram"),
                AllOf(Contains(Local("A = 30.6 kN")), Contains(Local("B = 27.4 kN"))));
    EXPECT_THAT(Lines("picShearDiagram"),
                AllOf(Contains(Local("30.6")), Contains(Local("-27.4")), Contains(Local("4.52"))));
    EXPECT_THAT(Lines("picMomentDiagram"), Contains(Local("75.1"))); // 75.076
}

TEST_F(BeamProblem, OverhangWithAMoment)
{
    DefineSimple("11", "0", "8", 3);
    ChooseLoadUnits(3);
    EnterUniform(kUniformDown, "2", "6", "2");
    EnterMoment(kMomentCcw, "11", "5");
    Diagrams();
    // Moments about A: 8 B = 8 x 4 - 5, B = 3.375 upward; A = 8 - 3.375 = 4.625.
    EXPECT_THAT(Lines("picLoadDiagram"),
                AllOf(Contains(Local("A = 4.6 kN")), Contains(Local("B = 3.4 kN"))));
    EXPECT_TRUE(IsChosen("optMomentUnits(3)"));
    EXPECT_THAT(Lines("picMomentDiagram"), Contains(Local("5.0")));
}

TEST_F(BeamProblem, LeftCantilever)
{
    DefineCantilever(1, "9", 3);
    ChooseLoadUnits(3);
    EnterUniform(kUniformDown, "0", "5", "8");
    EnterMoment(kMomentCcw, "5", "50");
    EnterPoint(kPointDown, "9", "12");
    Diagrams();
    EXPECT_THAT(Lines("picLoadDiagram"),
                AllOf(Contains(Local("A = 52.0 kN")), Contains(Local("MA = 158.0 kN-m"))));
    EXPECT_THAT(Lines("picShearDiagram"), Contains(Local("52.0")));
    EXPECT_THAT(Lines("picMomentDiagram"), Contains(Local("-158.0")));
    const auto& reactions = Find<screen::ComboBox>("cboReactions");
    ASSERT_EQ(reactions.count(), 2);
    EXPECT_EQ(reactions.itemText(0).toStdString(), Local("A = 52.0 kN (up)"));
    EXPECT_EQ(reactions.itemText(1).toStdString(), Local("MA = 158.0 kN-m (ccw)"));
}

// 1.2 x 2 + 1.6 x 3 = 7.2 kips/ft on 20 ft: 72 kips, 360 ft-kips. Deflections from 5 kips/ft:
// 5 w L^4 / (384 E I) = 5 x 5000 / 12 x 240^4 / (384 x 29,000,000 x 999) = 0.62131 in.
TEST_F(BeamProblem, FactoredLoads)
{
    UseSteelSection();
    DefineSimple("20", "0", "20");
    Trigger("mnuLF(1)");
    ChooseLoadUnits(1);
    EnterFactoredUniform("0", "20", "2", "3");
    Diagrams();
    Choose("optMomentUnits(1)");
    EXPECT_THAT(Lines("picShearDiagram"),
                AllOf(Contains("(kips)"), Contains(Local("72.0")), Contains(Local("-72.0"))));
    EXPECT_THAT(Lines("picMomentDiagram"), AllOf(Contains("(ft-kips)"), Contains(Local("360.0"))));
    EXPECT_EQ(Find<screen::ComboBox>("cboLoads").itemText(0).toStdString(),
              Local("1w = 2. kips/ft (D) + 3.kips/ft (L) (down)"));
    Trigger("mnuSlopeDeflection");
    EXPECT_TRUE(IsVisible("lblEIMessage(1)"));
    EXPECT_TRUE(IsVisible("lblEIMessage(3)"));
    EXPECT_EQ(Shown("lblEIMessage(1)"), "Slopes calculated with service dead and live loads.");
    EXPECT_EQ(Shown("lblEIMessage(3)"), "Deflections calculated with service dead and live loads.");
    EXPECT_FALSE(IsVisible("lblEIMessage(0)"));
    const double inches = 5 * 5000 / 12.0 * std::pow(240.0, 4) / (384 * 29e6 * 999);
    EXPECT_TRUE(Near(inches, 0.62131, 1e-5));
    EXPECT_THAT(Lines("picDeflectionDiagram"), Contains(Local("-0.62131")));
}

// 7.2 x 20 / 2 = 72 kips with the factors, 5 x 20 / 2 = 50 without them.
TEST_F(BeamProblem, ReactionsAreThoseOfTheView)
{
    DefineSimple("20", "0", "20");
    Trigger("mnuLF(1)");
    ChooseLoadUnits(1);
    EnterFactoredUniform("0", "20", "2", "3");
    Diagrams();
    const auto& reactions = Find<screen::ComboBox>("cboReactions");
    EXPECT_EQ(reactions.itemText(0).toStdString(), Local("A = 72.0 kips (up)"));
    Messages->AcceptAny = true; // of EI
    Trigger("mnuSlopeDeflection");
    EXPECT_EQ(reactions.itemText(0).toStdString(), Local("A = 50.0 kips (up)"));
    EXPECT_THAT(Lines("picLoadDiagram"), Contains(Local("A = 50.0 kips")));
    Q_EMIT Find<screen::ComboBox>("cboReactions").activated(0);
    EXPECT_THAT(Shown("txtExplainReactions"), HasSubstr(Local("= 50.0 kips")));
    Trigger("mnuShearMoment");
    EXPECT_EQ(reactions.itemText(0).toStdString(), Local("A = 72.0 kips (up)"));
    EXPECT_THAT(Shown("txtExplainReactions"), HasSubstr(Local("= 72.0 kips")));
}

TEST_F(BeamProblem, FortyLoadsOfAllKinds)
{
    DefineSimple("100", "0", "80");
    double down = 0;
    for (int i = 0; i < 40; ++i) {
        const int type = i % 6;
        const std::string x = std::to_string(2 * i + 3), end = std::to_string(2 * i + 9);
        if (FamilyOf(type) == kMomentLoad) EnterMoment(type, x, "700");
        if (FamilyOf(type) == kPointLoad) EnterPoint(type, x, "1300");
        if (FamilyOf(type) == kUniformLoad) EnterUniform(type, x, end, "60");
        if (FamilyOf(type) == kPointLoad) down += type == kPointDown ? 1300 : -1300;
        if (FamilyOf(type) == kUniformLoad) down += type == kUniformDown ? 360 : -360;
    }
    Diagrams();
    EXPECT_EQ(CurrentBeam.LoadCount, 40);
    const auto texts = Lines("picLoadDiagram");
    for (int row = 1; row <= 40; ++row) // in full, or only its name
        EXPECT_THAT(texts, Contains(testing::StartsWith(CurrentBeam.LoadName[row])));
    const double left = CurrentReactions.ReactionA[kUnfactored];
    const double right = CurrentReactions.ReactionB[kUnfactored];
    EXPECT_NEAR(left + right, down, 1e-9 * 40 * 1300);
    EXPECT_GE(Find<screen::ComboBox>("cboLoads").count(), 40);
}

// A million kips: the scale divides, the labels do not.
TEST_F(BeamProblem, VeryLargeLoadsKeepTrueLabels)
{
    DefineSimple("10", "0", "10");
    EnterPoint(kPointDown, "5", "1000000000000");
    Diagrams();
    EXPECT_THAT(Lines("picShearDiagram"), Contains(Local("500.0E+09")));
    EXPECT_THAT(Lines("picMomentDiagram"), Contains(Local("2.5E+12")));
    const auto& sheet = Picture("picShearDiagram").Sheet();
    EXPECT_LT(std::abs(sheet.ScaleHeight()), 1e9);
}

TEST_F(BeamProblem, ShearOfZeroIsPlottedFromMinusTenToTen)
{
    DefineCantilever(1, "10", 1);
    EnterMoment(kMomentCcw, "10", "50");
    Diagrams();
    EXPECT_THAT(Lines("picShearDiagram"), AllOf(Contains(Local("0.0")), Not(Contains("nan"))));
    const auto& sheet = Picture("picShearDiagram").Sheet();
    EXPECT_GT(sheet.ScaleTop(), 10);
    EXPECT_LT(sheet.ScaleTop() + sheet.ScaleHeight(), -10);
}

} // namespace
} // namespace forcelab::beams
