#pragma once

#include "core/LabelPlacer.h"

namespace forcelab::transform {

/// A diagram in the making: a sheet with one scale across and along, y upward, on which every
/// line is kept free of labels. Lines first, labels last.
class Figure {
  public:
    /// Clears the sheet and fits the rectangle into it, in its middle.
    Figure(Picture& pic, double left, double top, double right, double bottom);

    struct Pen {
        Colour Ink;
        double Width = 1;
        LinePattern Pattern = LinePattern::Solid;
        double Weight = 1; ///< what a label minds about crossing it
    };
    void Line(PicturePoint from, PicturePoint to, const Pen& pen);
    void Arrow(PicturePoint from, PicturePoint to, const Pen& pen); ///< filled head at the end
    void Circle(PicturePoint centre, double radius, const Pen& pen);
    void Outline(std::span<const PicturePoint> corners, const Pen& pen, Colour fill);
    /// An arc about the centre from one angle to another, with a head at its end.
    void AngleArc(PicturePoint centre, double radius, double from, double to, const Pen& pen);
    void Dot(PicturePoint at, Colour ink);

    /// Prints a label near a point, on the side of `angle` (radians) where there is room.
    bool Text(PicturePoint at, const Label& text, double angle, Colour ink, bool needed = true,
              bool leader = true);
    /// Prints a label near the one of several equal points that has the best room.
    void Text(std::vector<LabelAnchor> anchors, const Label& text, Colour ink);

    /// True on a sheet that has no room for long labels.
    [[nodiscard]] bool IsSmall() const;
    [[nodiscard]] Picture& Sheet() { return pic_; }

  private:
    void Take(const Pen& pen);

    Picture& pic_;
    LabelPlacer placer_;
    double head_; ///< pixels, of an arrow
};

/// A label of plain text.
Label Plain(std::string text);
/// The two labels as one.
Label Joined(Label first, const Label& second);
/// The point at a distance and an angle from another.
PicturePoint Polar(PicturePoint centre, double radius, double angle);

} // namespace forcelab::transform
