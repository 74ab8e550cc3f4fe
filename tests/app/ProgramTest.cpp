// The forms of the program together, as a person goes from one to the other.

#include "app/FormList.h"
#include "core/MainModule.h"
#include "sections/SectionRecord.h"
#include "support/FormTest.h"

#include <QListWidget>

namespace forcelab::test {
namespace {

using screen::Forms;
using testing::HasSubstr;

class Program : public FormTest {
  protected:
    Program()
    {
        sections::CurrentSection = {};
        RegisterForms();
        Open("frmMainMenu");
        MainModule::DataPath = STEEL_FOLDER;
    }

    void TypeAll(const char* array, const std::vector<std::string>& texts)
    {
        for (std::size_t i = 0; i < texts.size(); ++i)
            Type(std::string(array) + "(" + std::to_string(i) + ")", Local(texts[i]));
    }

    void ComputeAngle()
    {
        Trigger("mnuSectionProperties");
        Use("frmProperties");
        Trigger("mnuFlanged(5)");
        TypeAll("txtShape", {"5.625", "0.75", "6.875", "0.75"});
        Click("cmdShape(1)");
    }
};

TEST_F(Program, AStateOfStressGoesFromTheMenuToItsCircleAndTheTheoriesOfFailure)
{
    Trigger("mnuMohrCircle");
    EXPECT_FALSE(Forms::IsVisible("frmMainMenu"));
    Use("frmMohr");
    Choose("optStressUnits(3)");
    Choose("optSigX(3)");
    TypeAll("txtStress", {"50", "10", "40"});
    Click("cmdMohr(0)");
    EXPECT_THAT(Shown("picMohr"), HasSubstr(Local("70.0")));
    EXPECT_THAT(Shown("picPrincipal"), HasSubstr(Local("30.0 MPa (C)")));
    EXPECT_TRUE(IsEnabled("mnuFailure"));
    Trigger("mnuBack");
    EXPECT_TRUE(Forms::IsVisible("frmMainMenu"));
    Use("frmMainMenu");
    Trigger("mnuMohrCircle");
    Use("frmMohr");
    EXPECT_EQ(Shown("txtStress(0)"), Local("50.0"));
    EXPECT_THAT(Shown("picMohr"), HasSubstr(Local("70.0")));
}

TEST_F(Program, ASectionShowsItsReportAndHandsItsInertiaToMohrsCircle)
{
    ComputeAngle();
    EXPECT_TRUE(Forms::IsVisible("frmCrossSection"));
    Click("cmdMohr");
    Use("frmMohr");
    EXPECT_TRUE(IsChosen("mnuMomentOfInertia"));
    EXPECT_THAT(Shown("txtStress(0)"), HasSubstr(Local("54.23")));
    EXPECT_THAT(Shown("txtStress(1)"), HasSubstr(Local("25.15")));
    EXPECT_THAT(Shown("txtStress(2)"), HasSubstr(Local("21.56")));
    Trigger("mnuBack");
    EXPECT_TRUE(Forms::IsVisible("frmProperties"));
    EXPECT_FALSE(Forms::IsVisible("frmMainMenu"));
    Use("frmProperties");
    Click("cmdShape(2)");
    EXPECT_TRUE(Forms::IsVisible("frmMainMenu"));
    EXPECT_FALSE(Forms::IsVisible("frmCrossSection"));
}

TEST_F(Program, TheReportFollowsTheSection)
{
    ComputeAngle();
    Use("frmCrossSection");
    const std::string first = Shown("picCrossSection");
    Use("frmProperties");
    Type("txtShape(0)", "8");
    EXPECT_FALSE(Forms::IsVisible("frmCrossSection"));
    Click("cmdShape(1)");
    EXPECT_TRUE(Forms::IsVisible("frmCrossSection"));
    Use("frmCrossSection");
    EXPECT_NE(Shown("picCrossSection"), first);
}

TEST_F(Program, ASteelShapeHasAReportWithoutElements)
{
    Trigger("mnuSectionProperties");
    Use("frmProperties");
    Trigger("mnuAISC(0)");
    auto& list = dynamic_cast<QListWidget&>(Widget("lstSteelShapes"));
    list.setCurrentItem(list.findItems(QStringLiteral("W14X90"), Qt::MatchExactly).front());
    Click("cmdShape(1)");
    EXPECT_TRUE(Forms::IsVisible("frmCrossSection"));
    using sections::Column;
    using sections::Row;
    const sections::SectionRecord& record = sections::CurrentSection.Record;
    EXPECT_TRUE(Near(record(Row::Area, Column::ZzInches), 26.5));
    EXPECT_TRUE(Near(record(Row::Inertia, Column::ZzInches), 999));
    Use("frmCrossSection");
    EXPECT_FALSE(IsEnabled("mnuDetailsCentroid"));
}

TEST_F(Program, FileNewForgetsTheSectionForAllModules)
{
    ComputeAngle();
    Trigger("mnuBack");
    Use("frmMainMenu");
    Trigger("mnuStartOver");
    EXPECT_EQ(sections::CurrentSection.ShapeIndex, 0);
    EXPECT_FALSE(Forms::IsLoaded("frmProperties"));
    EXPECT_FALSE(Forms::IsLoaded("frmCrossSection"));
    EXPECT_TRUE(Forms::IsVisible("frmMainMenu"));
}

} // namespace
} // namespace forcelab::test
