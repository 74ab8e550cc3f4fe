// Moduli, materials, and the colouring of a composite section.

#include "PropertiesFormTest.h"
#include "core/Materials.h"

namespace forcelab::sections {
namespace {

using test::Local;
using test::Near;

double Composite(CompositeRow row, Column column)
{
    return CurrentSection.Record(row, column);
}

class CompositeForm : public PropertiesFormTest {
  protected:
    bool IsA(int element) { return GroundOf(element) == IndexedColour(kMaterialA); }
    bool IsB(int element) { return GroundOf(element) == IndexedColour(kMaterialB); }
};

TEST_F(CompositeForm, SteelPlateOnWood)
{
    EnterComposite();
    Click(Swatch(0), Qt::RightButton);
    Click(Swatch(1), Qt::LeftButton);
    Compute();
    EXPECT_TRUE(Near(Composite(CompositeRow::RatioBToA, Column::CompositeZz), 18.125, 1e-12));
    EXPECT_TRUE(Near(Composite(CompositeRow::AreaAsA, Column::CompositeZz), 114.375, 1e-12));
    EXPECT_TRUE(Near(Composite(CompositeRow::LowEdge, Column::CompositeZz), 7.4959, 1e-5));
    EXPECT_TRUE(Near(Composite(CompositeRow::InertiaAsA, Column::CompositeZz), 1287.34, 1e-5));
    EXPECT_TRUE(Near(Composite(CompositeRow::InertiaAsB, Column::CompositeZz), 71.0258, 1e-5));
    EXPECT_TRUE(CurrentSection.CompositeSection);
    EXPECT_EQ(CurrentSection.ElementColour[0], IndexedColour(kMaterialB));
    EXPECT_FALSE(IsVisible("cmdMohr"));
    EXPECT_TRUE(ReportIsShown());
}

TEST_F(CompositeForm, BothMouseButtonsPaint)
{
    EnterComposite();
    EXPECT_EQ(GroundOf(0), IndexedColour(kUnassigned));
    Click(Swatch(0), Qt::LeftButton);
    EXPECT_TRUE(IsA(0));
    EXPECT_EQ(Find<SwatchBox>(Swatch(0)).TextColour(), IndexedColour(15));
    Click(Swatch(0), Qt::RightButton);
    EXPECT_TRUE(IsB(0));
    EXPECT_EQ(Find<SwatchBox>(Swatch(0)).TextColour(), IndexedColour(0));
    EXPECT_EQ(GroundOf(1), IndexedColour(kUnassigned));
    EXPECT_EQ(Shown(Swatch(1)), "Shape 2");
}

TEST_F(CompositeForm, KeysPaintAndScreenReadersHearIt)
{
    EnterComposite();
    EXPECT_EQ(Widget(Swatch(1)).accessibleName().toStdString(), "Shape 2: no material assigned");
    Press(Swatch(1), Qt::Key_B);
    EXPECT_TRUE(IsB(1));
    EXPECT_EQ(Widget(Swatch(1)).accessibleName().toStdString(), "Shape 2: Material B");
    Press(Swatch(1), Qt::Key_Space);
    EXPECT_TRUE(IsA(1));
    Press(Swatch(1), Qt::Key_Space);
    EXPECT_TRUE(IsB(1));
    Press(Swatch(1), Qt::Key_A);
    EXPECT_TRUE(IsA(1));
}

TEST_F(CompositeForm, OutsideACompositeOnlyTheTextTurnsWhite)
{
    OpenShape("mnuFlanged(4)");
    Click(Swatch(0), Qt::RightButton);
    EXPECT_EQ(GroundOf(0), IndexedColour(kUnassigned));
    EXPECT_EQ(Find<SwatchBox>(Swatch(0)).TextColour(), IndexedColour(15));
}

TEST_F(CompositeForm, TheCheckExchangesTheModuli)
{
    OpenShape("mnuFlanged(4)");
    EXPECT_TRUE(IsVisible("txtElasticModulus(0)"));
    EXPECT_TRUE(IsVisible("cmdMohr"));
    EXPECT_FALSE(IsVisible("txtElasticModulus(1)"));
    Choose("chkElasticModulus");
    EXPECT_FALSE(IsVisible("txtElasticModulus(0)"));
    EXPECT_FALSE(IsVisible("lblEmod(0)"));
    EXPECT_FALSE(IsVisible("cboElasticModulus(0)"));
    EXPECT_FALSE(IsVisible("cmdMohr"));
    for (const char* set : {"(1)", "(2)"})
        for (const char* name :
             {"lblEmod", "lblMaterial", "txtElasticModulus", "cboElasticModulus"})
            EXPECT_TRUE(IsVisible(std::string(name) + set)) << name << set;
    const auto ground = [this](const char* box) {
        return Widget(box).palette().color(QPalette::Base);
    };
    EXPECT_EQ(ground("txtElasticModulus(1)"), QColor(0, 0, 255));
    EXPECT_EQ(ground("txtElasticModulus(2)"), QColor(0, 255, 0));
    Choose("chkElasticModulus");
    EXPECT_TRUE(IsVisible("lblEmod(0)"));
    EXPECT_FALSE(IsVisible("lblEmod(1)"));
}

TEST_F(CompositeForm, ColoursComeBackWithTheCheck)
{
    EnterComposite();
    Click(Swatch(0), Qt::LeftButton);
    Click(Swatch(1), Qt::RightButton);
    Choose("chkElasticModulus");
    EXPECT_EQ(GroundOf(0), IndexedColour(kUnassigned));
    EXPECT_EQ(GroundOf(1), IndexedColour(kUnassigned));
    Choose("chkElasticModulus");
    EXPECT_TRUE(IsA(0));
    EXPECT_TRUE(IsB(1));
}

TEST_F(CompositeForm, TheHollowOfABoxIsWhiteUnlessComposite)
{
    OpenShape("mnuRectangular(1)");
    EXPECT_EQ(GroundOf(1), IndexedColour(kHollow));
    Choose("chkElasticModulus");
    EXPECT_EQ(GroundOf(1), IndexedColour(kUnassigned));
    Choose("chkElasticModulus");
    EXPECT_EQ(GroundOf(1), IndexedColour(kHollow));
}

TEST_F(CompositeForm, TheNoteStandsWhileTheModuliAreNotInPsi)
{
    OpenShape("mnuFlanged(4)");
    Choose("optElasticModulus(1)");
    EXPECT_FALSE(IsVisible("lblModulusNote"));
    Choose("chkElasticModulus");
    EXPECT_TRUE(IsVisible("lblModulusNote"));
    EXPECT_EQ(Shown("lblModulusNote"),
              "Beams and columns take the moduli of a composite section as psi.");
    Choose("optElasticModulus(0)");
    EXPECT_FALSE(IsVisible("lblModulusNote"));
    Choose("optElasticModulus(3)");
    EXPECT_TRUE(IsVisible("lblModulusNote"));
    Trigger("mnuFlanged(5)");
    EXPECT_FALSE(IsVisible("lblModulusNote"));
}

TEST_F(CompositeForm, AMaterialFillsItsBoxInTheChosenUnit)
{
    OpenShape("mnuFlanged(4)");
    Choose("optElasticModulus(1)");
    auto& list = Find<screen::ComboBox>("cboElasticModulus(0)");
    ASSERT_GT(list.count(), 1);
    list.SetListIndex(1);
    EXPECT_EQ(Shown("txtElasticModulus(0)"),
              Format(MaterialConstants[1][kModulusKsi], "##,###,###,##0.00"));
    Choose("optElasticModulus(3)");
    list.SetListIndex(2);
    EXPECT_EQ(Shown("txtElasticModulus(0)"),
              Format(MaterialConstants[2][kModulusGPa], "##,###,###,##0.00"));
    EXPECT_EQ(Shown("lblMaterial(1)"), "Material A");
    Choose("chkElasticModulus");
    Find<screen::ComboBox>("cboElasticModulus(2)").SetListIndex(1);
    EXPECT_EQ(Shown("lblMaterial(2)"), std::string(MaterialNames()[1]));
    EXPECT_EQ(Shown("lblMaterial(1)"), "Material A");
}

TEST_F(CompositeForm, ModuliConvertWithTheirUnit)
{
    OpenShape("mnuFlanged(4)");
    Type("txtElasticModulus(0)", "29000000");
    Choose("optElasticModulus(1)");
    EXPECT_EQ(Shown("txtElasticModulus(0)"), Local("29,000.00"));
    Choose("optElasticModulus(3)");
    EXPECT_EQ(Shown("txtElasticModulus(0)"), Local("199.95"));
    Choose("optElasticModulus(1)");
    EXPECT_EQ(Shown("txtElasticModulus(0)"), Local("29,000.30"));
}

TEST_F(CompositeForm, ColouringHidesTheResults)
{
    EnterComposite();
    Click(Swatch(0), Qt::RightButton);
    Click(Swatch(1), Qt::LeftButton);
    Compute();
    ASSERT_TRUE(ReportIsShown());
    Click(Swatch(1), Qt::RightButton);
    EXPECT_FALSE(ReportIsShown());
}

} // namespace
} // namespace forcelab::sections
