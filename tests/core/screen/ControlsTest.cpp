#include "core/ArithmeticFault.h"
#include "core/Materials.h"
#include "core/screen/ControlArray.h"
#include "core/screen/Layout.h"
#include "support/FormTest.h"

#include <QVBoxLayout>
#include <QWheelEvent>

namespace forcelab::test {
namespace {

using screen::ComboBox;
using screen::ControlArray;
using screen::Form;
using screen::Forms;
using screen::OptionArray;
using screen::TextBox;

// A form with one of each control.
class SampleForm : public Form {
  public:
    SampleForm() : Form("frmSample", "Sample")
    {
        auto* body = new QWidget(this);
        auto* layout = new QVBoxLayout(body);
        layout->addWidget(&txtStress(0));
        layout->addWidget(&txtStress(1));
        layout->addWidget(screen::OptionRow(optSense, 0, 3, 2));
        layout->addWidget(cboMaterial);
        setCentralWidget(body);
        optSense.SetCaptions({"up", "down", "left", "right"});
        OnClick(optSense, [this](int index) { Clicks.push_back(index); });
        txtStress(0).OnEnter = [this] { txtStress(1).SetFocus(); };
        txtStress(1).OnLostFocus = [this] { ++LostFocus; };
    }

    ControlArray<TextBox> txtStress{this, "txtStress", 2};
    OptionArray optSense{this, "optSense", {0, 1, 2, 3}, {{0, 1}, {2, 3}}};
    ComboBox* cboMaterial = Make<ComboBox>("cboMaterial");
    std::vector<int> Clicks;
    int LostFocus = 0;
};

class Controls : public FormTest {
  protected:
    Controls()
    {
        Forms::Register("frmSample", [] { return new SampleForm; });
        sample_ = &dynamic_cast<SampleForm&>(Open("frmSample"));
    }
    SampleForm* sample_;
};

TEST_F(Controls, AnArrayNamesItsMembers)
{
    EXPECT_EQ(sample_->txtStress(1).objectName(), "txtStress(1)");
    EXPECT_EQ(sample_->optSense(3).objectName(), "optSense(3)");
    EXPECT_EQ(sample_->txtStress.Count(), 2);
    EXPECT_FALSE(sample_->txtStress.Has(2));
}

TEST_F(Controls, TypingReplacesTheWholeTextOfABoxThatGetsTheFocus)
{
    sample_->txtStress(0).SetText("123");
    sample_->txtStress(1).setFocus();
    sample_->txtStress(0).setFocus(Qt::TabFocusReason);
    EXPECT_EQ(sample_->txtStress(0).selectedText(), "123");
    QTest::keyClicks(&sample_->txtStress(0), "7");
    EXPECT_EQ(sample_->txtStress(0).Text(), "7");
}

TEST_F(Controls, AClickIntoABoxSelectsItsTextToo)
{
    sample_->txtStress(0).SetText("123");
    sample_->txtStress(1).setFocus();
    Click("txtStress(0)");
    EXPECT_EQ(sample_->txtStress(0).selectedText(), "123");
}

TEST_F(Controls, EnterIsSwallowedAndMovesOn)
{
    Type("txtStress(0)", "5");
    Press("txtStress(0)", Qt::Key_Return);
    EXPECT_EQ(Shown("txtStress(0)"), "5");
    EXPECT_EQ(FocusedControl(), "txtStress(1)");
}

TEST_F(Controls, LeavingABoxIsHeard)
{
    Type("txtStress(1)", "5");
    sample_->txtStress(0).setFocus(Qt::TabFocusReason);
    EXPECT_EQ(sample_->LostFocus, 1);
}

TEST_F(Controls, ABoxReadsAsTheProgramWritesNumbers)
{
    sample_->txtStress(0).SetText(Local("1,234.50"));
    EXPECT_TRUE(Near(screen::TextBoxValue(sample_->txtStress(0)), 1234.5));
    sample_->txtStress(0).SetText("5-");
    EXPECT_TRUE(Near(screen::TextBoxValue(sample_->txtStress(0)), 5));
}

TEST_F(Controls, ChoosingAnOptionByHandOrInCodeRunsItsHandlerOnce)
{
    Choose("optSense(1)");
    sample_->optSense.Choose(0);
    sample_->optSense.Choose(0);
    EXPECT_EQ(sample_->Clicks, (std::vector{1, 0}));
}

TEST_F(Controls, EachGroupOfOptionsHasItsOwnChoice)
{
    sample_->optSense.Choose(1);
    sample_->optSense.Choose(2);
    EXPECT_EQ(sample_->optSense.Chosen(0), 1);
    EXPECT_EQ(sample_->optSense.Chosen(2), 2);
    sample_->optSense.ChooseNone(2);
    EXPECT_EQ(sample_->optSense.Chosen(3), -1);
    EXPECT_EQ(sample_->optSense.Chosen(1), 1);
}

TEST_F(Controls, TabGoesToTheChosenOptionOfEachGroup)
{
    sample_->optSense.Choose(1);
    sample_->optSense.Choose(2);
    const auto stopsAt = [this] {
        std::vector<int> stops;
        for (const auto& [index, option] : sample_->optSense.Members())
            if (option->focusPolicy() & Qt::TabFocus) stops.push_back(index);
        return stops;
    };
    EXPECT_EQ(stopsAt(), (std::vector{1, 2}));
    QWidget* before = &sample_->txtStress(1);
    for (const auto& [index, option] : sample_->optSense.Members()) {
        QWidget::setTabOrder(before, option);
        before = option;
    }
    sample_->txtStress(1).setFocus();
    Press("txtStress(1)", Qt::Key_Tab);
    EXPECT_EQ(FocusedControl(), "optSense(1)");
    QTest::keyClick(&sample_->optSense(1), Qt::Key_Tab);
    EXPECT_EQ(FocusedControl(), "optSense(2)");
    sample_->optSense.ChooseNone(2);
    EXPECT_EQ(stopsAt(), (std::vector{1, 2, 3}));
}

TEST_F(Controls, TheMaterialListHasTheRowsOfItsTable)
{
    const int before = MaterialTableLoaded;
    screen::FillMaterialList(*sample_->cboMaterial);
    screen::FillMaterialList(*sample_->cboMaterial);
    EXPECT_EQ(MaterialTableLoaded, before + 2);
    ASSERT_EQ(sample_->cboMaterial->count(), 20);
    EXPECT_EQ(sample_->cboMaterial->itemText(10), "Steel-A36 Structural");
    EXPECT_EQ(sample_->cboMaterial->ListIndex(), -1);
}

TEST_F(Controls, FillingAListChoosesNothing)
{
    int chosen = 0;
    sample_->On(sample_->cboMaterial, &QComboBox::currentIndexChanged, [&chosen] { ++chosen; });
    screen::FillMaterialList(*sample_->cboMaterial);
    EXPECT_EQ(chosen, 0);
    sample_->cboMaterial->SetListIndex(3);
    EXPECT_EQ(chosen, 1);
}

TEST_F(Controls, TheWheelOverAListThatHasNotTheFocusChoosesNothing)
{
    screen::FillMaterialList(*sample_->cboMaterial);
    sample_->cboMaterial->SetListIndex(3);
    Widget("txtStress(0)").setFocus();
    QWheelEvent wheel({5, 5}, sample_->cboMaterial->mapToGlobal(QPointF(5, 5)), {}, {0, -120},
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(sample_->cboMaterial, &wheel);
    EXPECT_EQ(sample_->cboMaterial->ListIndex(), 3);
}

TEST_F(Controls, AFaultInALostFocusHandlerIsGuarded)
{
    sample_->txtStress(1).OnLostFocus = [] { throw ArithmeticFault("test"); };
    Type("txtStress(1)", "5");
    Messages->AcceptAny = true;
    sample_->txtStress(0).setFocus(Qt::TabFocusReason);
    ASSERT_EQ(Messages->Shown.size(), 1u);
    EXPECT_EQ(Messages->Shown[0].Title, "Forcelab");
}

TEST_F(Controls, TheShearModulusListHasItsOwnRows)
{
    screen::FillShearModulusList(*sample_->cboMaterial);
    ASSERT_EQ(sample_->cboMaterial->count(), 15);
    EXPECT_EQ(sample_->cboMaterial->itemText(12), "Stainless Steel 304 CR");
}

} // namespace
} // namespace forcelab::test
