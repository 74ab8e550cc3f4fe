// Where the window leads, what it keeps, and the link to Mohr's circle.

#include "PropertiesFormTest.h"
#include "transform/forms/frmMohr.h"

namespace forcelab::sections {
namespace {

using screen::Forms;
using test::Local;
using test::Near;
using testing::HasSubstr;
using transform::CurrentHandOver;

struct CallerRow {
    int Caller;
    const char* Form;
};
class SectionCallerForm : public PropertiesFormTest,
                          public testing::WithParamInterface<CallerRow> {};

TEST_P(SectionCallerForm, GetsTheScreenBackFromEndAndBackAndTheCloseBox)
{
    RegisterEmpty(GetParam().Form);
    MainModule::SectionCaller = GetParam().Caller;
    for (int way = 0; way < 3; ++way) {
        ComputeShape("mnuRectangular(0)", {"4", "10"});
        if (way == 0) Click("cmdShape(2)");
        if (way == 1) Trigger("mnuBack");
        if (way == 2) TheForm().close();
        EXPECT_TRUE(Forms::IsVisible(GetParam().Form));
        EXPECT_FALSE(Forms::IsVisible("frmProperties"));
        EXPECT_FALSE(ReportIsShown());
        EXPECT_TRUE(Forms::IsLoaded("frmProperties"));
        Forms::Hide(GetParam().Form);
    }
}

TEST_P(SectionCallerForm, IsTheMainMenuWhereItIsUnknown)
{
    MainModule::SectionCaller = GetParam().Caller;
    Open("frmProperties");
    Trigger("mnuBack");
    EXPECT_TRUE(Forms::IsVisible("frmMainMenu"));
    EXPECT_FALSE(Forms::IsVisible("frmProperties"));
}

INSTANTIATE_TEST_SUITE_P(Callers, SectionCallerForm,
                         testing::Values(CallerRow{1, "frmBeamStuf"}, CallerRow{2, "frmColumn"},
                                         CallerRow{3, "frmMainMenu"},
                                         CallerRow{12000, "frmComSolid"}));

class PropertiesLife : public PropertiesFormTest {};

TEST_F(PropertiesLife, EndKeepsTheResultsAndTheEntries)
{
    ComputeShape("mnuRectangular(0)", {"4", "10"});
    Click("cmdShape(2)");
    EXPECT_TRUE(CurrentSection.SectionComputed);
    EXPECT_EQ(CurrentSection.ShapeIndex, kRectangle);
    EXPECT_TRUE(Near(Figure(Row::Area, Column::Zz), 40));
    Open("frmProperties");
    EXPECT_EQ(Shown(Box(1)), Local("10.0"));
    EXPECT_EQ(Shown("lblShapeTitle"), "User-defined Rectangle Shape");
}

TEST_F(PropertiesLife, UnloadedItStartsAnew)
{
    ComputeShape("mnuRectangular(0)", {"4", "10"});
    Forms::Unload("frmProperties");
    EXPECT_EQ(CurrentSection.ShapeIndex, 0);
    Open("frmProperties");
    EXPECT_FALSE(IsVisible("fraSectionProperties"));
    Trigger("mnuRectangular(0)");
    EXPECT_EQ(Shown(Box(1)), Local("0.0"));
}

TEST_F(PropertiesLife, TheFirstUseForgetsWhatStoodBefore)
{
    CurrentSection.Record(Row::Area, Column::Zz) = 7;
    Open("frmProperties");
    EXPECT_EQ(Figure(Row::Area, Column::Zz), 0);
    Forms::Unload("frmProperties");
    CurrentSection.Record(Row::Area, Column::Zz) = 7;
    Open("frmProperties");
    EXPECT_EQ(Figure(Row::Area, Column::Zz), 7);
}

TEST_F(PropertiesLife, EachShapeKeepsItsEntries)
{
    OpenShape("mnuFlanged(4)");
    TypeDimensions({"8", "1", "9", "1"});
    Click("cmdShape(3)");
    Choose("optElasticModulus(3)");
    Type("txtElasticModulus(0)", "200");
    Choose("optShapeRotate(1)");
    Click("cmdShape(0)");
    const auto corners = CurrentSection.ElementCorners;
    Trigger("mnuRectangular(0)");
    EXPECT_EQ(Shown(Box(0)), Local("0.0"));
    EXPECT_TRUE(IsChosen("optShapeUnits(0)"));
    EXPECT_TRUE(IsChosen("optElasticModulus(0)"));
    EXPECT_EQ(Shown("txtElasticModulus(0)"), Local("0.0"));
    EXPECT_EQ(Shown("cmdShape(3)"), "to mm");
    EXPECT_EQ(CurrentSection.ElementLie[0], 1);
    Trigger("mnuFlanged(4)");
    EXPECT_EQ(Shown(Box(0)), Local("203.2"));
    EXPECT_EQ(Shown(Box(2)), Local("228.6"));
    EXPECT_TRUE(IsChosen("optShapeUnits(1)"));
    EXPECT_EQ(Shown("cmdShape(3)"), "to in");
    EXPECT_TRUE(IsChosen("optElasticModulus(3)"));
    EXPECT_EQ(Shown("txtElasticModulus(0)"), "200");
    EXPECT_EQ(CurrentSection.ElementLie[0], 0);
    EXPECT_EQ(CurrentSection.ElementCorners, corners);
}

TEST_F(PropertiesLife, EachShapeKeepsItsMaterials)
{
    EnterComposite();
    Click(Swatch(0), Qt::RightButton);
    Find<screen::ComboBox>("cboElasticModulus(1)").SetListIndex(0);
    const std::string material = Shown("lblMaterial(1)");
    Trigger("mnuFlanged(5)");
    EXPECT_FALSE(IsChosen("chkElasticModulus"));
    EXPECT_EQ(GroundOf(0), IndexedColour(kUnassigned));
    EXPECT_EQ(Shown("lblMaterial(1)"), "Material A");
    Trigger("mnuFlanged(4)");
    EXPECT_TRUE(IsChosen("chkElasticModulus"));
    EXPECT_TRUE(IsVisible("txtElasticModulus(2)"));
    EXPECT_EQ(GroundOf(0), IndexedColour(kMaterialB));
    EXPECT_EQ(Shown("lblMaterial(1)"), material);
    EXPECT_EQ(Shown("txtElasticModulus(2)"), "29000");
}

TEST_F(PropertiesLife, AnotherShapeIsNotComputedYet)
{
    ComputeShape("mnuRectangular(0)", {"4", "10"});
    Trigger("mnuFlanged(4)");
    EXPECT_FALSE(CurrentSection.SectionComputed);
    EXPECT_FALSE(ReportIsShown());
    EXPECT_FALSE(IsEnabled("cmdMohr"));
    EXPECT_TRUE(Near(Figure(Row::Area, Column::Zz), 40)); // for the modules that read it
    Trigger("mnuRectangular(0)");
    EXPECT_EQ(Shown(Box(1)), Local("10.0"));
    EXPECT_FALSE(IsEnabled("cmdMohr"));
}

TEST_F(PropertiesLife, TheCopiedPictureCarriesItsNumbers)
{
    ComputeShape("mnuRectangular(0)", {"4", "10"});
    const QPoint before = Widget(Box(0)).pos();
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("section.svg"));
    ASSERT_TRUE(Find<screen::PictureBox>("picShapeDefine").SaveTo(path));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_GT(file.size(), 1000);
    EXPECT_EQ(Widget(Box(0)).pos(), before);
}

// --- Mohr's circle

TEST_F(PropertiesLife, MohrsCircleTakesTheMomentsOfInertiaAndComesBack)
{
    Forms::Register("frmMohr", [] { return new transform::frmMohr; });
    ComputeShape("mnuFlanged(5)", {"5.625", "0.75", "6.875", "0.75"});
    const double inertia = Figure(Row::Inertia, Column::Zz);
    const double product = Figure(Row::ProductOfInertia, Column::Zz);
    Click("cmdMohr");
    EXPECT_EQ(MainModule::MohrCaller, 6000);
    EXPECT_FALSE(Forms::IsVisible("frmProperties"));
    EXPECT_FALSE(ReportIsShown());
    Use("frmMohr");
    EXPECT_TRUE(IsChosen("mnuMomentOfInertia"));
    EXPECT_TRUE(IsChosen("optStressUnits(6)"));
    const transform::StressState& state = transform::CurrentStress;
    EXPECT_TRUE(Near(state.SigmaX * state.ValueScale, inertia));
    EXPECT_TRUE(Near(state.TauXY * state.ValueScale, product));
    EXPECT_THAT(Shown("picMohr"), HasSubstr("Radius = "));
    Trigger("mnuBack");
    EXPECT_TRUE(Forms::IsVisible("frmProperties"));
    EXPECT_FALSE(Forms::IsVisible("frmMohr"));
    Use("frmProperties");
    EXPECT_EQ(Shown(Box(0)), Local("5.625"));
    EXPECT_TRUE(IsEnabled("cmdMohr"));
}

TEST_F(PropertiesLife, MohrsCircleTakesMillimetres)
{
    RegisterEmpty("frmMohr");
    OpenShape("mnuRectangular(0)");
    TypeDimensions({"40", "100"});
    Choose("optShapeUnits(1)");
    Compute();
    Click("cmdMohr");
    EXPECT_TRUE(CurrentHandOver.Pending);
    EXPECT_EQ(CurrentHandOver.Unit, 7);
    EXPECT_EQ(CurrentHandOver.Mode, transform::MohrMode::MomentOfInertia);
    EXPECT_TRUE(Near(CurrentHandOver.Value[0], 40e6 / 12));
    EXPECT_TRUE(Near(CurrentHandOver.Value[1], 64e5 / 12));
    EXPECT_TRUE(Near(CurrentHandOver.Value[2], 0));
}

} // namespace
} // namespace forcelab::sections
