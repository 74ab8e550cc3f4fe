#include "core/screen/Form.h"

#include "core/screen/Forms.h"
#include "core/screen/Services.h"

#include <QCloseEvent>
#include <QMenuBar>

namespace forcelab::screen {

Form::Form(const char* name, std::string_view caption)
{
    setObjectName(QLatin1String(name));
    setWindowTitle(Q(caption));
}

Form::~Form()
{
    Forms::Gone(*this);
}

void Form::Form_QueryUnload(bool& /*cancel*/, int /*unloadMode*/) {}

void Form::Guard(const std::function<void()>& handler)
{
    try {
        handler();
    } catch (const ArithmeticFault&) {
        MsgBox("A number in this calculation is too large. "
               "What is shown stays as it was; please check the input.",
               kStop, "Forcelab");
    }
}

void Form::Show(const Refusal& refusal)
{
    MsgBox(refusal.Text, refusal.Icon, refusal.Title);
    if (QWidget* control = ControlNamed(refusal.Focus)) control->setFocus(Qt::OtherFocusReason);
}

QWidget* Form::ControlNamed(std::string_view name) const
{
    return name.empty() ? nullptr : findChild<QWidget*>(Q(name));
}

void Form::OnClick(const OptionArray& options, const std::function<void(int)>& handler)
{
    for (const auto& [index, option] : options.Members())
        On(option, &QAbstractButton::toggled, [handler, i = index](bool chosen) {
            if (chosen) handler(i);
        });
}

QMenu* Form::AddMenu(const char* name, std::string_view caption)
{
    QMenu* menu = menuBar()->addMenu(Q(caption));
    menu->setObjectName(QLatin1String(name));
    menu->menuAction()->setObjectName(QLatin1String(name));
    menu->setToolTipsVisible(true);
    return menu;
}

QAction* Form::MakeAction(const char* name, std::string_view caption, std::function<void()> handler)
{
    auto* action = new QAction(Q(caption), this);
    action->setObjectName(QLatin1String(name));
    On(action, &QAction::triggered, [handler = std::move(handler)] {
        if (handler) handler();
    });
    return action;
}

QAction* Form::AddMenuItem(const char* name, std::string_view caption,
                           std::function<void()> handler)
{
    QAction* action = MakeAction(name, caption, std::move(handler));
    menuBar()->addAction(action);
    return action;
}

QAction* Form::AddItem(QMenu* menu, const char* name, std::string_view caption,
                       std::function<void()> handler)
{
    QAction* action = MakeAction(name, caption, std::move(handler));
    menu->addAction(action);
    return action;
}

void Form::closeEvent(QCloseEvent* event)
{
    bool cancel = false;
    Guard([&] { Form_QueryUnload(cancel, 0); });
    if (cancel) return event->ignore();
    event->ignore();
    Forms::Unload(objectName().toStdString());
}

void Form::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    Guard([this] { Form_Resize(); });
}

bool Form::event(QEvent* event)
{
    const bool done = QMainWindow::event(event);
    if (event->type() == QEvent::WindowActivate) Forms::BecameActive(*this);
    return done;
}

} // namespace forcelab::screen
