#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace forcelab::screen {

class Form;

/// All forms of the program by name. A form comes into being on first use.
class Forms {
  public:
    using Factory = std::function<Form*()>;

    /// Makes a form known. Modules register theirs when the program starts.
    static void Register(const std::string& name, Factory factory);
    /// Forgets all factories; for tests.
    static void UnregisterAll();
    /// True where the program has this form.
    [[nodiscard]] static bool IsKnown(std::string_view name);
    [[nodiscard]] static bool IsLoaded(std::string_view name);
    [[nodiscard]] static bool IsVisible(std::string_view name);

    /// The form, made where it is not loaded yet; nothing where the program has no such form.
    static Form* Load(std::string_view name);
    /// Shows the form without modality, loaded where needed, in front of the others.
    static void Show(std::string_view name);
    /// Shows the form and waits until it hides.
    static void ShowModal(std::string_view name);
    static void Hide(std::string_view name);
    /// Runs Form_QueryUnload (mode 1) and Form_Unload and discards the form; nothing happens where
    /// it is not loaded.
    static void Unload(std::string_view name);
    static void UnloadAll();
    /// The form that is the active one, or nothing.
    [[nodiscard]] static Form* Active();

  private:
    friend class Form;
    static void BecameActive(Form& form);
    static void Gone(Form& form);
};

/// The loaded or newly loaded form as its own type: FormAs<frmMohr>("frmMohr").
template <class Type>
Type& FormAs(std::string_view name)
{
    return dynamic_cast<Type&>(*Forms::Load(name));
}

} // namespace forcelab::screen
