#pragma once

#include "core/screen/Controls.h"

#include <QButtonGroup>

#include <initializer_list>
#include <map>
#include <vector>

namespace forcelab::screen {

/// The object name of a member of an array of controls: "txtStress(0)".
inline QString ArrayName(const char* name, int index)
{
    return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(index);
}

/// Controls of one role, told apart by an index: txtStress(0), txtStress(1). The indices need not
/// be without gaps. The parent owns the controls.
template <class Control>
class ControlArray {
  public:
    ControlArray(QWidget* parent, const char* name, int count)
    {
        for (int i = 0; i < count; ++i) Add(parent, name, i);
    }
    ControlArray(QWidget* parent, const char* name, std::initializer_list<int> indices)
    {
        for (const int i : indices) Add(parent, name, i);
    }

    Control& operator()(int index) const { return *members_.at(index); }
    [[nodiscard]] bool Has(int index) const { return members_.count(index) != 0; }
    [[nodiscard]] int Count() const { return static_cast<int>(members_.size()); }
    /// Walks the members: for (auto& [index, control] : txtStress.Members()).
    [[nodiscard]] const std::map<int, Control*>& Members() const { return members_; }

  private:
    void Add(QWidget* parent, const char* name, int index)
    {
        auto* control = new Control(parent);
        control->setObjectName(ArrayName(name, index));
        members_[index] = control;
    }
    std::map<int, Control*> members_;
};

/// Options of which one is chosen, or several such groups under one name. Form::OnClick connects
/// the click handler, which runs when a member becomes the chosen one, by hand or in code.
class OptionArray : public ControlArray<OptionButton> {
  public:
    /// One group of `count` options.
    OptionArray(QWidget* parent, const char* name, int count);
    /// Groups of indices; each group has one chosen member.
    OptionArray(QWidget* parent, const char* name, std::initializer_list<int> indices,
                std::initializer_list<std::initializer_list<int>> groups);

    /// Sets the captions of the members 0, 1, 2 ...
    void SetCaptions(std::span<const std::string_view> captions);
    void SetCaptions(std::initializer_list<std::string_view> captions);
    /// Makes a member the chosen one; its click handler runs where it was not chosen before.
    void Choose(int index) const { (*this)(index).setChecked(true); }
    /// The chosen member of the group that holds `memberOfGroup`; -1 where none is.
    [[nodiscard]] int Chosen(int memberOfGroup = 0) const;
    /// Leaves the group that holds `memberOfGroup` without a chosen member; no handler runs.
    void ChooseNone(int memberOfGroup = 0) const;

  private:
    void MakeGroup(QWidget* parent, std::span<const int> indices);
    std::map<int, QButtonGroup*> groupOf_;
};

} // namespace forcelab::screen
