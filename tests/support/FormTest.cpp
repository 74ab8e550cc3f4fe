#include "support/FormTest.h"

#include "core/MainModule.h"
#include "core/Materials.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

#include <stdexcept>

namespace forcelab::test {

using screen::Form;
using screen::Forms;
using screen::PictureBox;
using screen::Q;

namespace {

template <class Double, class Service>
Double* Install(std::unique_ptr<Service>& place)
{
    auto made = std::make_unique<Double>();
    Double* raw = made.get();
    place = std::move(made);
    return raw;
}

void ResetMainModule()
{
    MainModule::HelpContext = 1;
    MainModule::CurrentModule = 0;
    MainModule::FirstSectionUse = true;
    MainModule::StartingOver = false;
    MainModule::BookEdition = false;
    MainModule::DataPath = "./";
    MainModule::SymbolFontPresent = true;
    MainModule::SectionCaller = 0;
    MainModule::MohrCaller = 1;
    MainModule::MohrInputKind = 1;
}

// The pixel in the middle of what a person would click.
QPoint ClickPoint(const QWidget& widget)
{
    if (qobject_cast<const QAbstractButton*>(&widget)) return {8, widget.height() / 2};
    return widget.rect().center();
}

} // namespace

FormTest::FormTest()
{
    auto& services = screen::Services::Current();
    Messages = Install<ScriptedMessages>(services.Messages);
    Files = Install<ScriptedFiles>(services.Files);
    Printers = Install<ScriptedPrinters>(services.Printers);
    Help = Install<RecordedHelp>(services.Help);
    Screen = Install<DescribedScreen>(services.Screen);
    Registry = Install<DescribedRegistry>(services.Registry);
    ResetMainModule();
}

FormTest::~FormTest()
{
    Messages->AcceptAny = true;
    Forms::UnloadAll();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Forms::UnregisterAll();
}

void FormTest::TearDown()
{
    for (const MsgBox& missing : Messages->Expected)
        ADD_FAILURE() << "an expected message box did not come: " << missing.Text;
}

Form& FormTest::Open(const std::string& form)
{
    Forms::Show(form);
    QCoreApplication::processEvents();
    return Use(form);
}

Form& FormTest::Use(const std::string& form)
{
    form_ = Forms::IsLoaded(form) ? Forms::Load(form) : nullptr;
    if (!form_) throw std::runtime_error("no form " + form);
    return *form_;
}

Form& FormTest::TheForm() const
{
    return *form_;
}

QWidget& FormTest::Widget(const std::string& name)
{
    if (QWidget* widget = form_->ControlNamed(name)) return *widget;
    throw std::runtime_error("no control " + name);
}

QAction& FormTest::MenuItem(const std::string& name)
{
    if (auto* action = form_->findChild<QAction*>(Q(name))) return *action;
    throw std::runtime_error("no menu item " + name);
}

void FormTest::Type(const std::string& box, const std::string& text)
{
    QWidget& widget = Widget(box);
    ASSERT_TRUE(widget.isEnabled()) << box;
    widget.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&widget, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&widget, Qt::Key_Delete);
    QTest::keyClicks(&widget, Q(text));
}

void FormTest::Press(const std::string& control, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(&Widget(control), key, modifiers);
    QCoreApplication::processEvents();
}

void FormTest::Click(const std::string& control, Qt::MouseButton button)
{
    QWidget& widget = Widget(control);
    ASSERT_TRUE(widget.isEnabled()) << control;
    QTest::mouseClick(&widget, button, Qt::NoModifier, ClickPoint(widget));
    QCoreApplication::processEvents();
}

void FormTest::ClickAt(const std::string& picture, double x, double y, Qt::MouseButton button)
{
    auto& box = Find<PictureBox>(picture);
    box.PaintNow();
    QTest::mouseClick(&box, button, Qt::NoModifier, box.PixelOf(x, y));
    QCoreApplication::processEvents();
}

void FormTest::Choose(const std::string& option)
{
    Click(option);
}

void FormTest::Select(const std::string& combo, const std::string& item)
{
    auto& box = dynamic_cast<QComboBox&>(Widget(combo));
    const int row = box.findText(Q(item));
    ASSERT_GE(row, 0) << item;
    box.setCurrentIndex(row);
}

void FormTest::Trigger(const std::string& menuItem)
{
    QAction& action = MenuItem(menuItem);
    ASSERT_TRUE(action.isEnabled()) << menuItem;
    action.trigger();
    QCoreApplication::processEvents();
}

std::string FormTest::Shown(const std::string& control)
{
    QWidget* widget = form_->ControlNamed(control);
    if (!widget) return MenuItem(control).text().toStdString();
    if (auto* picture = dynamic_cast<PictureBox*>(widget)) {
        picture->PaintNow();
        return picture->Texts();
    }
    if (auto* box = qobject_cast<QLineEdit*>(widget)) return box->text().toStdString();
    if (auto* label = qobject_cast<QLabel*>(widget)) return label->text().toStdString();
    if (auto* button = qobject_cast<QAbstractButton*>(widget)) return button->text().toStdString();
    if (auto* frame = qobject_cast<QGroupBox*>(widget)) return frame->title().toStdString();
    if (auto* combo = qobject_cast<QComboBox*>(widget)) return combo->currentText().toStdString();
    if (auto* text = qobject_cast<QPlainTextEdit*>(widget))
        return text->toPlainText().toStdString();
    if (auto* rich = qobject_cast<QTextEdit*>(widget)) return rich->toPlainText().toStdString();
    throw std::runtime_error("nothing to read on " + control);
}

bool FormTest::IsVisible(const std::string& control)
{
    QWidget* widget = form_->ControlNamed(control);
    return widget ? widget->isVisible() : MenuItem(control).isVisible();
}

bool FormTest::IsEnabled(const std::string& control)
{
    QWidget* widget = form_->ControlNamed(control);
    return widget ? widget->isEnabled() : MenuItem(control).isEnabled();
}

bool FormTest::IsChosen(const std::string& control)
{
    QWidget* widget = form_->ControlNamed(control);
    return widget ? dynamic_cast<QAbstractButton&>(*widget).isChecked()
                  : MenuItem(control).isChecked();
}

std::string FormTest::FocusedControl()
{
    const QWidget* focused = form_->focusWidget();
    return focused ? focused->objectName().toStdString() : std::string();
}

void FormTest::Expect(MsgBox box)
{
    Messages->Expected.push_back(std::move(box));
}

} // namespace forcelab::test
