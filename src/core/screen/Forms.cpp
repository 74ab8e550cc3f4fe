#include "core/screen/Forms.h"

#include "core/screen/Form.h"

#include <QEvent>
#include <QEventLoop>
#include <QPointer>

#include <map>
#include <vector>

namespace forcelab::screen {

namespace {

struct Registry {
    std::map<std::string, Forms::Factory, std::less<>> Factories;
    std::map<std::string, Form*, std::less<>> Loaded;
    Form* Active = nullptr;
};

Registry& TheRegistry()
{
    static Registry registry;
    return registry;
}

Form* Loaded(std::string_view name)
{
    const auto found = TheRegistry().Loaded.find(name);
    return found == TheRegistry().Loaded.end() ? nullptr : found->second;
}

// Ends a loop when the watched form hides or goes.
class HideWatcher : public QObject {
  public:
    explicit HideWatcher(QEventLoop& loop) : loop_(loop) {}

  protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() == QEvent::Hide || event->type() == QEvent::DeferredDelete) loop_.quit();
        return false;
    }

  private:
    QEventLoop& loop_;
};

} // namespace

void Forms::Register(const std::string& name, Factory factory)
{
    TheRegistry().Factories[name] = std::move(factory);
}

void Forms::UnregisterAll()
{
    TheRegistry().Factories.clear();
}

bool Forms::IsKnown(std::string_view name)
{
    return TheRegistry().Factories.contains(name);
}

bool Forms::IsLoaded(std::string_view name)
{
    return Loaded(name) != nullptr;
}

bool Forms::IsVisible(std::string_view name)
{
    const Form* form = Loaded(name);
    return form && form->isVisible();
}

Form* Forms::Load(std::string_view name)
{
    if (Form* form = Loaded(name)) return form;
    const auto factory = TheRegistry().Factories.find(name);
    if (factory == TheRegistry().Factories.end()) return nullptr;
    Form* form = factory->second();
    TheRegistry().Loaded[std::string(name)] = form;
    form->Guard([form] { form->Form_Load(); });
    return form;
}

void Forms::Show(std::string_view name)
{
    const QPointer<Form> form = Load(name);
    if (!form) return;
    form->setWindowState(form->windowState() & ~Qt::WindowMinimized);
    form->show();
    form->raise();
    form->activateWindow();
    if (form) BecameActive(*form);
}

void Forms::ShowModal(std::string_view name)
{
    const QPointer<Form> form = Load(name);
    if (!form) return;
    const QPointer<Form> before = Active();
    form->setWindowModality(Qt::ApplicationModal);
    Show(name);
    if (form && form->isVisible()) {
        QEventLoop untilHidden;
        HideWatcher watcher(untilHidden);
        form->installEventFilter(&watcher);
        untilHidden.exec();
    }
    if (form) form->setWindowModality(Qt::NonModal);
    if (before && before->isVisible()) before->activateWindow();
}

void Forms::Hide(std::string_view name)
{
    Form* form = Loaded(name);
    if (!form) return;
    form->hide();
    if (TheRegistry().Active == form) TheRegistry().Active = nullptr;
}

void Forms::Unload(std::string_view name)
{
    const QPointer<Form> form = Loaded(name);
    if (!form) return;
    bool cancel = false;
    form->Guard([&] { form->Form_QueryUnload(cancel, 1); });
    if (cancel || !form) return;
    form->Guard([&] { form->Form_Unload(); });
    if (!form) return;
    form->hide();
    Gone(*form);
    // The form may be running the very handler that unloads it.
    form->deleteLater();
}

void Forms::UnloadAll()
{
    std::vector<std::string> names;
    for (const auto& [name, form] : TheRegistry().Loaded) names.push_back(name);
    for (const std::string& name : names) Unload(name);
}

Form* Forms::Active()
{
    return TheRegistry().Active;
}

void Forms::BecameActive(Form& form)
{
    // A box or dialog that closes gives the focus back to its form; that is no activation. Nor is
    // what the window system still had to say to a form that has been hidden since.
    if (TheRegistry().Active == &form || !form.isVisible()) return;
    if (Loaded(form.objectName().toStdString()) != &form) return;
    TheRegistry().Active = &form;
    form.Guard([&form] { form.Form_Activate(); });
}

void Forms::Gone(Form& form)
{
    Registry& registry = TheRegistry();
    std::erase_if(registry.Loaded, [&form](const auto& entry) { return entry.second == &form; });
    if (registry.Active == &form) registry.Active = nullptr;
}

} // namespace forcelab::screen
