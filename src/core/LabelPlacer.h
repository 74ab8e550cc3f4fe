#pragma once

#include "core/DrawingHelpers.h"

#include <optional>
#include <vector>

namespace forcelab {

/// A point that a label names, and the side of it that the label prefers.
struct LabelAnchor {
    PicturePoint At;  ///< in the picture's scale
    double Angle = 0; ///< radians, counterclockwise as seen
};

/// A label and where it would like to stand.
struct LabelWish {
    std::vector<LabelAnchor> Anchors; ///< one, or several equal ones of which the best is taken
    Label Text;
    Colour Ink;
    bool Needed = true; ///< else left out where the sheet has no room for it
    bool Leader = true; ///< may move far away, with a thin line to the point
};

/// Finds places for the labels of one diagram: on the sheet, never over each other, off the
/// lines where that is possible, and near to what they name.
///
/// Draw all lines first and tell the placer of them, then place the labels, the important ones
/// first. Labels that must cross a line stand on the ground colour.
class LabelPlacer {
  public:
    explicit LabelPlacer(Picture& pic) : pic_(pic) {}

    /// `weight` below 1: a line, such as a faint axis, that a label may rather stand on than move
    /// far away.
    void KeepOffLine(PicturePoint from, PicturePoint to, double weight = 1);
    void KeepOffCircle(PicturePoint centre, double radius);   ///< radius in units of x
    void Reserve(PicturePoint corner, PicturePoint opposite); ///< no label may touch this box
    /// Prints the label; False where it is left out. Keeps font, size and colour of the picture.
    bool Place(const LabelWish& wish);

  private:
    struct Box {
        double X1, Y1, X2, Y2; ///< pixels
    };
    struct Segment {
        PicturePoint From, To; ///< pixels
        double Weight = 1;
    };
    struct Size {
        double Width, Height; ///< pixels
    };
    struct Found {
        Box Where;
        double Cost;
        double Crossings;     ///< each with the weight of its line
        bool Clear;           ///< crosses nothing, nor does its leader strike a label
        PicturePoint Names{}; ///< pixels, the point beside which it stands
    };

    [[nodiscard]] Size SizeOf(const Label& label);
    [[nodiscard]] bool IsFree(const Box& box) const;
    [[nodiscard]] double Crossings(const Box& box, double atMost) const;
    [[nodiscard]] double LeaderCost(PicturePoint at, const Box& box) const;
    /// Takes the box where it is better. `at` is the leader's start, where one may be drawn.
    void Consider(std::optional<Found>& best, const Box& box, double cost,
                  const PicturePoint* at) const;
    [[nodiscard]] std::optional<Found> SearchNear(PicturePoint at, Size size, double angle,
                                                  bool leader) const;
    /// Takes a better place than the best so far from all over the sheet.
    void SearchSheet(std::optional<Found>& best, PicturePoint at, Size size, double step) const;
    [[nodiscard]] std::optional<Found> Search(const LabelAnchor& anchor, Size size,
                                              bool mayLeave) const;
    [[nodiscard]] std::optional<Found> Best(const LabelWish& wish);
    void Print(const LabelWish& wish, const Found& found);
    void DrawLeader(PicturePoint at, const Box& box);

    Picture& pic_;
    std::vector<Segment> lines_;
    std::vector<Box> taken_;
};

} // namespace forcelab
