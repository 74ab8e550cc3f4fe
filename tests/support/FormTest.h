#pragma once

#include "core/screen/Form.h"
#include "core/screen/Forms.h"
#include "core/screen/PictureBox.h"
#include "support/Doubles.h"
#include "support/Near.h"

#include <QtTest/QTest>

#include <string>

namespace forcelab::test {

/// Works a form as a person does: opens it, types, clicks, chooses, and reads what it shows.
/// Controls are named as in the program: "txtStress(0)", "mnuPlaneStress", "picMohr".
///
/// Starts every test with doubles for all services and the shared variables as at the start of
/// the program; a message box that was expected and did not come fails the test.
class FormTest : public testing::Test {
  protected:
    FormTest();
    ~FormTest() override;
    void TearDown() override;

    /// Shows a form and makes it the one that the operations below work on.
    screen::Form& Open(const std::string& form);
    /// Works on a form that is loaded already.
    screen::Form& Use(const std::string& form);
    screen::Form& TheForm() const;

    /// Focuses a text box, replaces its text key by key and leaves it focused.
    void Type(const std::string& box, const std::string& text);
    void Press(const std::string& control, Qt::Key key,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void Click(const std::string& control, Qt::MouseButton button = Qt::LeftButton);
    void ClickAt(const std::string& picture, double x, double y,
                 Qt::MouseButton button = Qt::LeftButton); ///< in the picture's scale
    void Choose(const std::string& option); ///< option button or check box, by a click
    void Select(const std::string& combo, const std::string& item);
    void Trigger(const std::string& menuItem); ///< fails where the item is disabled

    /// What a control shows: the text of a box, the caption of a label, option, button, frame or
    /// menu item, the chosen line of a combo, the texts of a picture (painted at once).
    std::string Shown(const std::string& control);
    bool IsVisible(const std::string& control);
    bool IsEnabled(const std::string& control);
    bool IsChosen(const std::string& control); ///< option, check box or checkable menu item
    std::string FocusedControl();

    template <class Control>
    Control& Find(const std::string& name)
    {
        return dynamic_cast<Control&>(Widget(name));
    }
    QWidget& Widget(const std::string& name);
    QAction& MenuItem(const std::string& name);

    /// The next message box that must come, in order.
    void Expect(MsgBox box);

    ScriptedMessages* Messages;
    ScriptedFiles* Files;
    ScriptedPrinters* Printers;
    RecordedHelp* Help;
    DescribedScreen* Screen;
    DescribedRegistry* Registry;

  private:
    screen::Form* form_ = nullptr;
};

} // namespace forcelab::test
