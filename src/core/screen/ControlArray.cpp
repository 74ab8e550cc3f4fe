#include "core/screen/ControlArray.h"

namespace forcelab::screen {

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
