// Walks over all forms of the program with random keys, clicks and drags, from the main menu and
// from work that is under way.

#include "app/FormList.h"
#include "beams/BeamRecord.h"
#include "core/MainModule.h"
#include "core/screen/FlexGrid.h"
#include "sections/SectionRecord.h"
#include "support/Monkey.h"
#include "transform/StressState.h"
#include "truss/TrussModel.h"

#include <QApplication>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>

#include <cmath>
#include <map>

namespace forcelab::test {
namespace {

using screen::Form;
using screen::Forms;

constexpr int kStepsFromTheMenu = 2000;
constexpr int kRounds = 5; // of a work and a walk from it
constexpr int kStepsOfRound = 300;
constexpr std::uint32_t kSeed = 20253;
constexpr int kDialogDeeds = 6;

const MonkeyGround kGround{{"0", "-1", "12.5", "1e+400", "abc", "3e+6", "1e-6", "45", "0,3", "8",
                            "1e+200", "999999", "2", "10", "", "1"},
                           {},
                           {"Beam Definition Error", "Load Location Error", "Load Data Warning",
                            "Too Many Specified Loads", "Slope/Deflection Message",
                            "Shear Diagram Error Message", "Moment Diagram Error Message",
                            "Slope Diagram Error Message", "Deflection Diagram Error Message",
                            "Stress Calculation Error", "Section Properties Error",
                            "Stress Transformation Warning", "Strain Transformation Warning",
                            "Moments of Inertia Transformation Warning", "Unstable Truss",
                            "Statically Indeterminate Truss", "Truss Analysis Error",
                            "Linear Equation Solver Error", "Printed Output Error"},
                           {"mnuExit", "mnuBack", "mnuStartOver"}};

class ProgramMonkey : public MonkeyTest<FormTest> {
  protected:
    ProgramMonkey() : MonkeyTest(kSeed, kGround)
    {
        sections::CurrentSection = {};
        beams::CurrentBeam = {};
        truss::CurrentTruss = {};
        RegisterForms();
        MainModule::DataPath = STEEL_FOLDER;
        Printers->PdfFile = folder_.filePath("printed.pdf");
        Open("frmMainMenu");
    }

    /// The active form, or the main menu where none is shown.
    void Return(const std::string& /*form*/) override
    {
        if (!Forms::Active() || !Forms::Active()->isVisible()) Forms::Show("frmMainMenu");
        Use(Forms::Active()->objectName().toStdString());
    }

    void ExpectSound() override
    {
        ++visited_[TheForm().objectName().toStdString()];
        for (const MsgBox& box : Messages->Shown) EXPECT_FALSE(box.Text.empty());
        for (int row = 0; row <= 18; ++row)
            for (int column = 1; column <= 8; ++column)
                ASSERT_TRUE(std::isfinite(sections::CurrentSection.Record.At(row, column)));
        ASSERT_TRUE(std::isfinite(transform::CurrentStress.PrincipalOne));
        ASSERT_TRUE(std::isfinite(beams::CurrentBeam.BeamLength));
        ASSERT_LE(truss::CurrentTruss.MemberCount, truss::kMaxMembers);
    }

    /// Types and presses on what came up; the first times it says yes, so that work gets on.
    void AnswerModal(Form& form) override
    {
        const std::string name = form.objectName().toStdString();
        ++visited_[name];
        for (int deed = 0; deed < kDialogDeeds && Forms::IsVisible(name); ++deed) {
            if (accepting_)
                PressFirstButton(form);
            else
                Ape.OneIn(2) ? Ape.Type(form) : Ape.Press(form);
        }
        Forms::Hide(name);
    }

    static void PressFirstButton(Form& form)
    {
        for (QPushButton* button : form.findChildren<QPushButton*>())
            if (button->isVisible() && button->objectName().endsWith(QLatin1String("(0)")))
                return QTest::mouseClick(button, Qt::LeftButton);
    }

    void ClickSomewhere()
    {
        if (auto* control = Ape.AnyVisible<QWidget>(TheForm())) ClickOn(*control);
    }
    void ClickOn(QWidget& control)
    {
        const QPoint at(Ape.Pick(std::size_t(control.width())),
                        Ape.Pick(std::size_t(control.height())));
        QTest::mouseClick(&control, Ape.OneIn(6) ? Qt::RightButton : Qt::LeftButton, Qt::NoModifier,
                          at);
    }

    // Into grids and pictures too.
    void TypeSomewhere()
    {
        const QPointer<QWidget> control = Ape.AnyVisible<QWidget>(TheForm());
        if (!control) return;
        control->setFocus();
        QTest::keyClicks(control, screen::Q(Ape.AnyOf(kGround.Texts)));
        if (control && Ape.OneIn(3)) QTest::keyClick(control, Qt::Key_Return);
    }

    // Rarely: what was begun is left.
    void GoBack()
    {
        if (!Ape.OneIn(8)) return;
        if (auto* back = TheForm().findChild<QAction*>("mnuBack")) back->trigger();
    }

    // Several windows may be open side by side.
    void GoToAnotherWindow()
    {
        std::vector<std::string> open;
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->isVisible() && dynamic_cast<Form*>(window))
                open.push_back(window->objectName().toStdString());
        if (!open.empty()) Forms::Show(Ape.AnyOf(open));
    }

    void WalkOn(int steps)
    {
        const Deed click = [this] { ClickSomewhere(); };
        Run("", steps,
            {click, click, [this] { TypeSomewhere(); }, [this] { GoBack(); },
             [this] { GoToAnotherWindow(); }, Does(&Monkey::Type), Does(&Monkey::Type),
             Does(&Monkey::Press), Does(&Monkey::Press), Does(&Monkey::DragPicture),
             Does(&Monkey::ClickPicture), Does(&Monkey::PressKey), Does(&Monkey::Choose),
             Does(&Monkey::Trigger)});
    }

    void TypeAll(const std::string& array, const std::vector<std::string>& texts)
    {
        for (std::size_t i = 0; i < texts.size(); ++i)
            FormTest::Type(array + "(" + std::to_string(i) + ")", Local(texts[i]));
    }

    bool accepting_ = false;
    std::map<std::string, int> visited_; ///< steps by form

  private:
    QTemporaryDir folder_;
};

/// Starts each walk from work that a person has under way.
class WorkingMonkey : public ProgramMonkey {
  protected:
    void GoTo(const std::string& menuItem)
    {
        Forms::Show("frmMainMenu");
        Use("frmMainMenu");
        FormTest::Trigger(menuItem);
        Return("");
    }

    /// A span of 10 ft with 1000 lb down at its middle.
    void EnterSpan()
    {
        GoTo("mnuBeams");
        Click("cmdBeamType(0)");
        FormTest::Type("txtBeamLength", "10");
        FormTest::Type("txtLeftSimple", "0");
        FormTest::Type("txtRightSimple", "10");
        FormTest::Choose("optBeamLength(1)");
        Click("cmdBeamDefineOK");
        Use("frmBeamStuf");
        Click("optLoadType(1)");
        FormTest::Type("txtConcentratedX", "5");
        FormTest::Type("txtConcentrated(0)", "1000");
        Click("cmdEnterLoad");
        ASSERT_EQ(beams::CurrentBeam.LoadCount, 1);
    }

    /// A T of flange 8 x 1 on a stem of 1 x 9.
    void ComputeTee()
    {
        FormTest::Trigger("mnuSectionProperties");
        Use("frmProperties");
        FormTest::Trigger("mnuFlanged(4)");
        TypeAll("txtShape", {"8", "1", "9", "1"});
        Click("cmdShape(1)");
        ASSERT_NE(sections::CurrentSection.ShapeIndex, 0);
    }

    void Keys(const std::string& control, const std::vector<Qt::Key>& keys)
    {
        for (const Qt::Key key : keys) FormTest::Press(control, key);
    }

    /// A triangle over two spaces of the grid, pin and roller, loaded at its top; by keyboard.
    void DrawTriangle()
    {
        using enum Qt::Key;
        GoTo("mnuTruss");
        Click("cmdGridMake");
        Use("frmTruss");
        Keys("picTruss", {Key_Space, Key_Space, Key_Right, Key_Right, Key_Space, Key_Space,
                          Key_Left, Key_Up, Key_Space, Key_Space, Key_Left, Key_Down, Key_Space});
        FormTest::Choose("optTrussDefine(1)");
        Keys("picTruss", {Key_Space, Key_Left, Key_Space, Key_Space, Key_Down, Key_Space, Key_Right,
                          Key_Right, Key_Space, Key_Down, Key_Space});
        FormTest::Choose("optTrussDefine(2)");
        Keys("picTruss", {Key_Left, Key_Up, Key_Space, Key_Down, Key_Space});
        Use("frmTruss");
        ASSERT_TRUE(IsEnabled("cmdSpacing(1)"));
        Click("cmdSpacing(1)");
        ASSERT_TRUE(IsEnabled("mnuPrintResults"));
    }

    void SolveEquations()
    {
        GoTo("mnuStiffness");
        for (int row = 1; row <= 3; ++row)
            for (const int column : {row, 5}) {
                auto& grid = Find<screen::FlexGrid>("fgElements");
                grid.setFocus();
                grid.GoTo(row, column);
                QTest::keyClick(&grid, '4');
                FormTest::Press("txtEditElements", Qt::Key_Return);
            }
        Click("cmdStiffness");
        ASSERT_TRUE(Messages->Shown.empty());
    }

    /// Works with every dialog answered by its first button, then lets the monkey go on; it soon
    /// leaves, so that there are several rounds of it. Expects to have been on the form in each.
    void WalkOnFrom(const std::string& form, const std::function<void()>& work)
    {
        for (int round = 0; round < kRounds; ++round) {
            SCOPED_TRACE("round " + std::to_string(round));
            Forms::UnloadAll();
            Open("frmMainMenu");
            accepting_ = true;
            AnswerWhile(work);
            accepting_ = false;
            if (HasFatalFailure()) return;
            WalkOn(kStepsOfRound);
        }
        EXPECT_GE(visited_[form], kRounds);
    }
};

TEST_F(ProgramMonkey, FromTheMainMenu)
{
    WalkOn(kStepsFromTheMenu);
    EXPECT_GE(visited_.size(), 5u);
}

TEST_F(WorkingMonkey, FromABeamWithItsSection)
{
    WalkOnFrom("frmDetails", [this] {
        EnterSpan();
        Use("frmBeamStuf");
        ComputeTee();
        Use("frmProperties");
        Click("cmdShape(2)");
        Use("frmBeamStuf");
        FormTest::Trigger("mnuStress");
    });
}

TEST_F(WorkingMonkey, FromTheDiagramsOfABeam)
{
    WalkOnFrom("frmBeamDiagrams", [this] {
        EnterSpan();
        Use("frmBeamStuf");
        Click("cmdRefreshDiagrams");
    });
}

TEST_F(WorkingMonkey, FromASection)
{
    WalkOnFrom("frmProperties", [this] { ComputeTee(); });
}

TEST_F(WorkingMonkey, FromAStateOfStress)
{
    WalkOnFrom("frmMohr", [this] {
        GoTo("mnuMohrCircle");
        TypeAll("txtStress", {"50", "10", "40"});
        Click("cmdMohr(0)");
        ASSERT_TRUE(IsEnabled("mnuFailure"));
    });
}

TEST_F(WorkingMonkey, FromASolvedTruss)
{
    WalkOnFrom("frmTruss", [this] { DrawTriangle(); });
}

TEST_F(WorkingMonkey, FromSolvedEquations)
{
    WalkOnFrom("frmLinSolve", [this] { SolveEquations(); });
}

} // namespace
} // namespace forcelab::test
