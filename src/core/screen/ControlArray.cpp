#include "core/screen/ControlArray.h"

namespace forcelab::screen {

namespace {

/// The chosen option alone stops Tab; each of them does where none is chosen.
void SetTabStop(const QButtonGroup& group)
{
    const QAbstractButton* chosen = group.checkedButton();
    for (QAbstractButton* option : group.buttons())
        option->setFocusPolicy(!chosen || option == chosen ? Qt::StrongFocus : Qt::ClickFocus);
}

} // namespace

OptionArray::OptionArray(QWidget* parent, const char* name, int count)
    : ControlArray<OptionButton>(parent, name, count)
{
    std::vector<int> all;
    for (const auto& [index, option] : Members()) all.push_back(index);
    MakeGroup(parent, all);
}

OptionArray::OptionArray(QWidget* parent, const char* name, std::initializer_list<int> indices,
                         std::initializer_list<std::initializer_list<int>> groups)
    : ControlArray<OptionButton>(parent, name, indices)
{
    for (const auto& group : groups) MakeGroup(parent, {group.begin(), group.size()});
}

void OptionArray::MakeGroup(QWidget* parent, std::span<const int> indices)
{
    auto* group = new QButtonGroup(parent);
    for (const int index : indices) {
        group->addButton(&(*this)(index), index);
        groupOf_[index] = group;
    }
    // Tab goes to the chosen option; Qt would first go to the first one, whichever is chosen.
    QObject::connect(group, &QButtonGroup::idToggled, group,
                     [group](int, bool) { SetTabStop(*group); });
}

void OptionArray::SetCaptions(std::span<const std::string_view> captions)
{
    int index = 0;
    for (const std::string_view caption : captions) (*this)(index++).SetCaption(caption);
}

void OptionArray::SetCaptions(std::initializer_list<std::string_view> captions)
{
    SetCaptions(std::span(captions.begin(), captions.size()));
}

int OptionArray::Chosen(int memberOfGroup) const
{
    return groupOf_.at(memberOfGroup)->checkedId();
}

void OptionArray::ChooseNone(int memberOfGroup) const
{
    QButtonGroup* group = groupOf_.at(memberOfGroup);
    group->setExclusive(false);
    if (QAbstractButton* chosen = group->checkedButton()) chosen->setChecked(false);
    group->setExclusive(true);
}

} // namespace forcelab::screen
