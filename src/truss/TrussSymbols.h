#pragma once

#include "core/LabelPlacer.h"
#include "core/Picture.h"
#include "truss/TrussSolver.h"

#include <string>
#include <vector>

namespace forcelab::truss {

// Indices of the palette.
inline constexpr int kMemberColour = 3;
inline constexpr int kSupportColour = 1;
inline constexpr int kLoadColour = 9;
inline constexpr int kTensionColour = 13;
inline constexpr int kCompressionColour = 12;
inline constexpr int kIdleColour = 2;
inline constexpr int kReactionColour = 1;
inline constexpr int kGridColour = 7;
inline constexpr int kRestColour = 8;
inline constexpr int kLetterColour = 4;
inline constexpr int kLabelColour = 0;

/// How far a label may go for room: left out where it has none beside its point; beside its point
/// even across a line, and elsewhere only where other labels are in the way; or anywhere. A thin
/// line leads from a label that is far away to its point.
enum class LabelNeed { IfRoom, Beside, Anywhere };

/// A sheet with a truss on it: draws lines and keeps labels off them. Lines first, labels last.
class TrussSheet {
  public:
    TrussSheet(Picture& pic, const TrussModel& model);

    void Take(int colour, double width);
    void Line(double x1, double y1, double x2, double y2);
    /// A label at the first of several points that has room; an angle is the side as seen.
    void Label(const std::vector<PicturePoint>& places, double angle, const std::string& text,
               int colour, LabelNeed need);
    /// A label centred on the first of several points where it covers no other such label; left
    /// out where there is none. For crowded sheets: what it names is what it stands on.
    void LabelOn(const std::vector<PicturePoint>& places, const std::string& text, int colour);

    void DrawSupport(const TrussGridPoint& point, int senseX, int senseY);
    /// An arrow along one axis on the outer side of a joint: `value` gives the direction, `sense`
    /// where the joint's members lie. Returns its far end.
    PicturePoint DrawArrow(const TrussGridPoint& point, double value, int sense, bool upright);
    /// The arc of a member's angle to the level, about its start; `ring` counts the arcs in its
    /// quadrant from 1. Returns the middle of the arc.
    PicturePoint DrawAngle(const TrussGridPoint& from, double dx, double dy, int ring);

    /// Angle as seen of a direction in the grid's unit.
    [[nodiscard]] double SeenAngle(double dx, double dy) const;
    /// Keeps labels off the coordinates of the grid, along the top and the left.
    void KeepOffCoordinates(double widest);
    [[nodiscard]] Picture& Pic() { return pic_; }

  private:
    struct Axis;
    void DrawBase(const Axis& axis);
    void DrawPin(const Axis& axis);
    void DrawRoller(const Axis& axis);

    struct Box {
        PicturePoint Corner, Opposite; ///< pixels, upper left and lower right
    };
    [[nodiscard]] bool IsFree(const Box& box) const;
    void PrintOn(const Box& box, const std::string& text, int colour);

    Picture& pic_;
    LabelPlacer placer_;
    std::vector<Box> taken_; ///< by LabelOn
    TrussScale scale_;
    double stretch_; ///< pixels of a unit of y to those of a unit of x
};

} // namespace forcelab::truss
