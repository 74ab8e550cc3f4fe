#pragma once

#include "core/ArithmeticFault.h"
#include "core/Refusal.h"
#include "core/screen/ControlArray.h"
#include "core/screen/Controls.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>

#include <functional>
#include <string>
#include <utility>

namespace forcelab::screen {

/// A window of the program. Forms are singletons that Forms makes on first use; a hidden form
/// keeps everything, an unloaded one is gone and is made anew.
///
/// A form's constructor builds its controls; Form_Load then sets what the form owns among the
/// shared variables. Every handler runs inside Guard.
class Form : public QMainWindow {
  public:
    Form(const char* name, std::string_view caption);
    ~Form() override;

    virtual void Form_Load() {}
    /// The form became the active one of the program's forms.
    virtual void Form_Activate() {}
    /// The user closes the window (unloadMode 0), or the program unloads it (1). Setting `cancel`
    /// keeps it.
    virtual void Form_QueryUnload(bool& cancel, int unloadMode);
    virtual void Form_Unload() {}
    virtual void Form_Resize() {}

    /// Runs a handler. An ArithmeticFault in it becomes one stop message; the earlier results
    /// stay, and the mouse pointer is restored.
    void Guard(const std::function<void()>& handler);
    /// Shows a failed check and moves the focus to its control.
    void Show(const Refusal& refusal);
    /// The control, menu item or frame with this object name; nothing where there is none.
    [[nodiscard]] QWidget* ControlNamed(std::string_view name) const;

    /// Makes a control of this form with its object name.
    template <class Control, class... Arguments>
    Control* Make(const char* name, Arguments&&... arguments)
    {
        auto* control = new Control(std::forward<Arguments>(arguments)..., this);
        control->setObjectName(QLatin1String(name));
        return control;
    }

    /// Connects a signal to a handler, which then runs inside Guard.
    template <class Sender, class Signal, class Handler>
    void On(Sender* sender, Signal signal, Handler handler)
    {
        connect(sender, signal, this,
                [this, handler](auto&&... values) { Guard([&] { Call(handler, values...); }); });
    }
    /// Connects the click handler of an array of options: handler(index).
    void OnClick(const OptionArray& options, const std::function<void(int)>& handler);
    /// Connects the click handler of an array of buttons: handler(index).
    template <class Button>
    void OnClick(const ControlArray<Button>& buttons, const std::function<void(int)>& handler)
    {
        for (const auto& [index, button] : buttons.Members())
            On(button, &QAbstractButton::clicked, [handler, i = index] { handler(i); });
    }

    /// Adds a menu, or a menu item where a handler is given, to the menu bar.
    QMenu* AddMenu(const char* name, std::string_view caption);
    QAction* AddMenuItem(const char* name, std::string_view caption, std::function<void()> handler);
    QAction* AddItem(QMenu* menu, const char* name, std::string_view caption,
                     std::function<void()> handler);

  protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

  private:
    // A handler takes the signal's values, or none of them.
    template <class Handler, class... Values>
    static void Call(const Handler& handler, const Values&... values)
    {
        if constexpr (std::is_invocable_v<const Handler&, const Values&...>)
            handler(values...);
        else
            handler();
    }
    QAction* MakeAction(const char* name, std::string_view caption, std::function<void()> handler);
};

} // namespace forcelab::screen
