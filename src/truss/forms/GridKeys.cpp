#include "truss/forms/GridKeys.h"

#include <algorithm>

namespace forcelab::truss {

void GridKeys::Reset()
{
    *this = {};
}

void GridKeys::Move(const TrussModel& model, int right, int up)
{
    // The first key only shows where the cursor is.
    if (shown_) {
        column_ += right;
        row_ += up;
    }
    shown_ = true;
    Settle(model);
}

void GridKeys::PointFrom(const TrussModel& model, const DragState& drag, int right, int up)
{
    x_ = drag.DragX0 + right * static_cast<double>(model.GridSpacingX) / 2;
    y_ = drag.DragY0 + up * static_cast<double>(model.GridSpacingY) / 2;
}

void GridKeys::Settle(const TrussModel& model)
{
    column_ = std::clamp(column_, 0, model.GridSpacesX);
    row_ = std::clamp(row_, 0, model.GridSpacesY);
    x_ = column_ * static_cast<double>(model.GridSpacingX);
    y_ = row_ * static_cast<double>(model.GridSpacingY);
}

} // namespace forcelab::truss
