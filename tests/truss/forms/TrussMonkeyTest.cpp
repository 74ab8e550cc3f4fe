#include "TrussFormTest.h"
#include "support/Monkey.h"

#include <QTemporaryDir>

#include <cmath>

namespace forcelab::truss {
namespace {

using test::Monkey;

constexpr int kSteps = 700; // from each truss
constexpr std::uint32_t kSeed = 20252;
constexpr int kDialogDeeds = 6;

const test::MonkeyGround kGround{
    {"0", "5", "1e+400", "-3", "", "abc", "2.5", "2,5", "1e+30", "12", "1", "7"},
    {"mnuTrussStress", "mnuTrussStress", "mnuPrintResults", "mnuHelpTruss", "mnuBack"},
    {"Unstable Truss", "Statically Indeterminate Truss", "Truss Analysis Error"},
    {"cmdGridMake", "cmdSpacing(1)"}}; // pressed by the test

/// Drags, clicks and types at random. Whatever it does, the model stays a valid one.
class TrussMonkey : public test::MonkeyTest<TrussFormTest> {
  protected:
    TrussMonkey() : MonkeyTest(kSeed, kGround)
    {
        Printers->PdfFile = folder_.filePath("truss.pdf");
        TheForm().resize(TheForm().minimumSizeHint()); // small pictures are painted faster
    }

    void ExpectSound() override
    {
        const TrussModel& model = CurrentTruss;
        ASSERT_GE(model.MemberCount, -1);
        ASSERT_LE(model.MemberCount, kMaxMembers);
        for (const TrussMember& member : model.Members()) {
            ASSERT_LT(member.FromPoint, member.ToPoint);
            ASSERT_LT(member.ToPoint, model.GridPointCount);
            ASSERT_EQ(model.GridPointBlocked[member.FromPoint], 0);
        }
        for (const TrussGridPoint& point : model.GridPoints)
            ASSERT_TRUE(std::isfinite(point.LoadX) && std::isfinite(point.LoadY));
        ASSERT_NO_FATAL_FAILURE(ExpectResultsOfTheModel());
    }

    // Results are gone, or they are those of the truss as it is.
    void ExpectResultsOfTheModel()
    {
        const bool shown = IsVisible("cboTrussResults(0)");
        ASSERT_EQ(shown, IsVisible("txtTrussResults(1)"));
        if (!shown) return;
        ++solved_;
        TrussModel model = CurrentTruss;
        const TrussAnalysis again = AnalyzeTruss(model);
        ASSERT_FALSE(again.Failure);
        EXPECT_EQ(List(0), again.Results.MemberLines);
        EXPECT_EQ(List(1), again.Results.ReactionLines);
    }

    /// Types and presses on whatever form came up.
    void AnswerModal(screen::Form& form) override
    {
        const std::string name = form.objectName().toStdString();
        Use(name);
        for (int deed = 0; deed < kDialogDeeds && screen::Forms::IsVisible(name); ++deed)
            AnswerOnce(form);
        screen::Forms::Hide(name);
        Use("frmTruss");
    }

    void AnswerOnce(screen::Form& form)
    {
        switch (Ape.Pick(4)) {
        case 0:
            return Ape.Choose(form);
        case 1:
            return Ape.Press(form);
        default:
            if (form.objectName() == "frmTrussStress")
                QTest::keyClick(&Find<screen::FlexGrid>("grdStress"), Qt::Key_F2);
            return Ape.Type(form);
        }
    }

    Place Anywhere() { return {Ape.Pick(61) - 10.0, Ape.Pick(61) - 10.0}; }
    Place GridPoint() { return {10.0 * Ape.Pick(4), 10.0 * Ape.Pick(4)}; }

    void PressAKeyInThePicture()
    {
        static const std::vector<Qt::Key> kKeys{Qt::Key_Left,  Qt::Key_Right, Qt::Key_Up,
                                                Qt::Key_Down,  Qt::Key_Space, Qt::Key_Space,
                                                Qt::Key_Escape};
        FormTest::Press("picTruss", Ape.AnyOf(kKeys));
    }

    void Compute()
    {
        if (IsEnabled("cmdSpacing(1)")) Click("cmdSpacing(1)");
    }

    // Rarely: a new grid takes the truss away.
    void LayAnotherGrid()
    {
        if (Ape.OneIn(20)) Click("cmdGridMake");
    }

    void ShapeWindow()
    {
        TheForm().resize(TheForm().minimumSizeHint() + QSize(Ape.Pick(300), Ape.Pick(200)));
    }

    std::vector<Deed> Deeds()
    {
        const Deed drag = [this] { Drag(Anywhere(), Anywhere()); };
        const Deed draw = [this] { Drag(GridPoint(), GridPoint()); };
        const Deed key = [this] { PressAKeyInThePicture(); };
        return {draw,
                draw,
                draw,
                drag,
                drag,
                key,
                key,
                key,
                Does(&Monkey::Press),
                Does(&Monkey::Press),
                Does(&Monkey::ClickPicture),
                Does(&Monkey::PressKey),
                Does(&Monkey::Choose),
                Does(&Monkey::Type),
                Does(&Monkey::Trigger),
                [this] { Compute(); },
                [this] { LayAnotherGrid(); },
                [this] { ShapeWindow(); }};
    }

    int solved_ = 0; ///< steps after which results showed

  private:
    QTemporaryDir folder_;
};

TEST_F(TrussMonkey, OnATrussFromScratch)
{
    LayGrid(3, 3);
    Run("frmTruss", kSteps, Deeds());
}

TEST_F(TrussMonkey, OnASolvedTruss)
{
    DrawTriangle();
    Click("cmdSpacing(1)");
    Run("frmTruss", kSteps, Deeds());
    EXPECT_GE(solved_, 1);
}

TEST_F(TrussMonkey, OnAMechanismInMotion)
{
    DrawSquare();
    Click("cmdSpacing(1)");
    Run("frmTruss", kSteps, Deeds());
}

} // namespace
} // namespace forcelab::truss
