#include "core/ArithmeticFault.h"
#include "support/FormTest.h"

#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include <limits>

namespace forcelab::test {
namespace {

using screen::Form;
using screen::Forms;
using screen::TextBox;

std::vector<std::string> Events;

class Recorder : public Form {
  public:
    explicit Recorder(const char* name) : Form(name, name)
    {
        auto* body = new QWidget(this);
        auto* layout = new QVBoxLayout(body);
        layout->addWidget(txtBox);
        layout->addWidget(cmdFault);
        setCentralWidget(body);
        On(cmdFault, &QPushButton::clicked, [this] { cmdFault_Click(); });
        AddMenuItem("mnuBack", "&Back", [this] { Forms::Hide(objectName().toStdString()); });
        AddMenuItem("mnuNew", "&New", [this] { Forms::Unload(objectName().toStdString()); });
    }
    void Form_Load() override { Note("load"); }
    void Form_Activate() override { Note("activate"); }
    void Form_Unload() override { Note("unload"); }
    void Form_QueryUnload(bool& cancel, int unloadMode) override
    {
        Note("query " + std::to_string(unloadMode));
        cancel = unloadMode == 0 && RefusesToClose;
    }
    void cmdFault_Click()
    {
        txtBox->SetText(std::to_string(Finite(std::numeric_limits<double>::infinity())));
    }

    TextBox* txtBox = Make<TextBox>("txtBox");
    QPushButton* cmdFault = Make<QPushButton>("cmdFault");
    bool RefusesToClose = false;

  private:
    void Note(const std::string& event)
    {
        Events.push_back(objectName().toStdString() + " " + event);
    }
};

class FormLife : public FormTest {
  protected:
    FormLife()
    {
        Events.clear();
        Forms::Register("frmA", [] { return new Recorder("frmA"); });
        Forms::Register("frmB", [] { return new Recorder("frmB"); });
    }
};

TEST_F(FormLife, AHiddenFormDoesNotBecomeActive)
{
    Forms::Show("frmA");
    Forms::Hide("frmA");
    Events.clear();
    QEvent late(QEvent::WindowActivate);
    QCoreApplication::sendEvent(Forms::Load("frmA"), &late);
    EXPECT_TRUE(Events.empty());
    EXPECT_EQ(Forms::Active(), nullptr);
}

TEST_F(FormLife, AFormComesIntoBeingOnFirstUse)
{
    EXPECT_TRUE(Forms::IsKnown("frmA"));
    EXPECT_FALSE(Forms::IsKnown("frmC"));
    EXPECT_FALSE(Forms::IsLoaded("frmA"));
    Open("frmA");
    EXPECT_TRUE(Forms::IsVisible("frmA"));
    EXPECT_EQ(Events, (std::vector<std::string>{"frmA load", "frmA activate"}));
}

TEST_F(FormLife, AFormThatTheProgramHasNotIsNotShown)
{
    Forms::Show("frmC");
    EXPECT_EQ(Forms::Load("frmC"), nullptr);
}

TEST_F(FormLife, AHiddenFormKeepsEverything)
{
    Open("frmA");
    Type("txtBox", "kept");
    Trigger("mnuBack");
    EXPECT_FALSE(Forms::IsVisible("frmA"));
    Open("frmA");
    EXPECT_EQ(Shown("txtBox"), "kept");
}

TEST_F(FormLife, AnUnloadedFormIsMadeAnew)
{
    Open("frmA");
    Type("txtBox", "lost");
    Trigger("mnuNew");
    EXPECT_FALSE(Forms::IsLoaded("frmA"));
    Open("frmA");
    EXPECT_EQ(Shown("txtBox"), "");
    EXPECT_EQ(Events, (std::vector<std::string>{"frmA load", "frmA activate", "frmA query 1",
                                                "frmA unload", "frmA load", "frmA activate"}));
}

TEST_F(FormLife, TheCloseBoxCanBeRefused)
{
    dynamic_cast<Recorder&>(Open("frmA")).RefusesToClose = true;
    TheForm().close();
    EXPECT_TRUE(Forms::IsVisible("frmA"));
    EXPECT_EQ(Events.back(), "frmA query 0");
}

TEST_F(FormLife, TheCloseBoxUnloadsWhereNothingRefuses)
{
    Open("frmA").close();
    EXPECT_FALSE(Forms::IsLoaded("frmA"));
}

TEST_F(FormLife, GoingFromFormToFormActivates)
{
    Open("frmA");
    Open("frmB");
    Open("frmA");
    EXPECT_EQ(Events, (std::vector<std::string>{"frmA load", "frmA activate", "frmB load",
                                                "frmB activate", "frmA activate"}));
}

TEST_F(FormLife, AModalFormHoldsItsCallerUntilItHides)
{
    Open("frmA");
    QTimer::singleShot(0, [] {
        EXPECT_TRUE(Forms::IsVisible("frmB"));
        Forms::Hide("frmB");
    });
    Forms::ShowModal("frmB");
    EXPECT_FALSE(Forms::IsVisible("frmB"));
    EXPECT_TRUE(Forms::IsLoaded("frmB"));
}

TEST_F(FormLife, AModalFormThatIsUnloadedLetsItsCallerGoOn)
{
    Open("frmA");
    QTimer::singleShot(0, [] { Forms::Unload("frmB"); });
    Forms::ShowModal("frmB");
    EXPECT_FALSE(Forms::IsLoaded("frmB"));
}

TEST_F(FormLife, AFaultInAHandlerBecomesOneStopMessageAndChangesNothing)
{
    Open("frmA");
    Type("txtBox", "earlier");
    Expect({kStop, "Forcelab",
            "A number in this calculation is too large. "
            "What is shown stays as it was; please check the input."});
    Click("cmdFault");
    EXPECT_EQ(Shown("txtBox"), "earlier");
}

TEST_F(FormLife, ARefusalShowsItsTextAndMovesTheFocus)
{
    Form& form = Open("frmA");
    form.ControlNamed("cmdFault")->setFocus();
    Expect({kExclamation, "A title", "A text."});
    form.Show({kExclamation, "A title", "A text.", "txtBox"});
    EXPECT_EQ(FocusedControl(), "txtBox");
}

TEST_F(FormLife, UnloadingAllLeavesNothing)
{
    Open("frmA");
    Open("frmB");
    Forms::UnloadAll();
    EXPECT_FALSE(Forms::IsLoaded("frmA"));
    EXPECT_FALSE(Forms::IsLoaded("frmB"));
    EXPECT_EQ(Forms::Active(), nullptr);
}

} // namespace
} // namespace forcelab::test
