#pragma once

#include "truss/TrussEditor.h"

namespace forcelab::truss {

/// Drawing by keyboard: a cursor on the grid that takes the place of the mouse.
class GridKeys {
  public:
    /// The cursor goes to its start, the lower left grid point, and is not shown.
    void Reset();
    void Hide() { shown_ = false; }
    [[nodiscard]] bool Shown() const { return shown_; }

    /// Moves by a grid space to each side, inside the grid.
    void Move(const TrussModel& model, int right, int up);
    /// Points from a joint along an axis, for drags that give a direction.
    void PointFrom(const TrussModel& model, const DragState& drag, int right, int up);
    /// The cursor back on its grid point.
    void Settle(const TrussModel& model);

    [[nodiscard]] double X() const { return x_; }
    [[nodiscard]] double Y() const { return y_; }

  private:
    int column_ = 0;
    int row_ = 0;
    double x_ = 0;
    double y_ = 0;
    bool shown_ = false;
};

/// True in the modes in which a drag gives a direction and no second point.
inline bool GivesDirection(int mode)
{
    return mode != kCreateMembers && mode != kEraseMembers;
}

} // namespace forcelab::truss
