#pragma once

#include <vector>

namespace forcelab::beams {

/// A label in a stack of levels over what it names; all in pixels.
struct LevelLabel {
    double From = 0, To = 0; ///< the label names what lies between these columns
    double Width = 0;
    int Level = -1;    ///< 0 is the nearest; -1 without a place
    double Left = 0;   ///< left edge of the label
    double Anchor = 0; ///< the column at which its leader starts
};

/// Gives each label a level below `levels` and a place between `left` and `right`, so that labels
/// keep apart and no leader passes a label: centred where there is room, else like a flag beside
/// its leader. With `loose`, labels without such a place take the nearest free one, and stay
/// without where there is none. Returns the number of levels used, or -1 where one has no place.
int ArrangeLevels(std::vector<LevelLabel>& labels, double left, double right, int levels,
                  bool loose);

} // namespace forcelab::beams
