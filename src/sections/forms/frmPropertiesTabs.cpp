#include "sections/forms/frmPropertiesLayout.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace forcelab::sections {

using screen::TextBox;

void frmPropertiesLayout::MoveBoxes(const std::vector<BoxPlace>& places)
{
    for (const BoxPlace& place : places) {
        TextBox& box = txtShape(place.Box);
        box.move(int(std::lround(place.Middle.X - box.width() / 2.0)),
                 int(std::lround(place.Middle.Y - box.height() / 2.0)));
    }
    TabStopRoutine();
}

std::vector<TextBox*> frmPropertiesLayout::BoxesInOrder() const
{
    std::vector<TextBox*> boxes;
    for (const auto& [index, box] : txtShape.Members())
        if (!box->isHidden()) boxes.push_back(box);
    std::stable_sort(boxes.begin(), boxes.end(), [](const TextBox* a, const TextBox* b) {
        return std::tuple(a->x(), a->y()) < std::tuple(b->x(), b->y());
    });
    return boxes;
}

TextBox* frmPropertiesLayout::FirstBox() const
{
    const std::vector<TextBox*> boxes = BoxesInOrder();
    return boxes.empty() ? nullptr : boxes.front();
}

std::vector<QWidget*> frmPropertiesLayout::TabOrder() const
{
    std::vector<QWidget*> order;
    const auto addAll = [&order](const auto& array) {
        for (const auto& [index, member] : array.Members()) order.push_back(member);
    };
    for (TextBox* box : BoxesInOrder()) order.push_back(box);
    addAll(optShapeUnits);
    order.push_back(&cmdShape(3));
    addAll(optShapeRotate);
    for (int button = 0; button < 3; ++button) order.push_back(&cmdShape(button));
    addAll(optElasticModulus);
    for (int set = 0; set < txtElasticModulus.Count(); ++set) {
        if (set == 1) order.push_back(chkElasticModulus);
        order.insert(order.end(), {&txtElasticModulus(set), &cboElasticModulus(set)});
    }
    addAll(picShape);
    addAll(optAShape);
    order.insert(order.end(), {lstSteelShapes, cboSteelGrade, cboTubeGrade, cmdMohr});
    order.push_back(picShapeDefine);
    return order;
}

void frmPropertiesLayout::TabStopRoutine()
{
    std::vector<QWidget*> order = TabOrder();
    if (order == tabOrder_) return;
    for (std::size_t i = 1; i < order.size(); ++i) setTabOrder(order[i - 1], order[i]);
    tabOrder_ = std::move(order);
}

} // namespace forcelab::sections
