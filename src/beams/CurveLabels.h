#pragma once

#include "beams/DiagramFrame.h"

#include <string>
#include <vector>

namespace forcelab::beams {

/// A value to print beside a curve; places in pixels.
struct CurveLabel {
    double Column = 0, Y = 0; ///< the point of the curve
    std::string Text;
    bool Above = true;            ///< the side that it prefers
    bool KeepSide = false;        ///< on the other side it would read as another point's value
    HAlign Lean = HAlign::Centre; ///< where its point lies on the label
    double Weight = 0;            ///< the heavier are placed first
    bool Repeats = false;         ///< says what its neighbour on a level piece says
};

/// A drawn curve in pixels, and the colour and the room of its labels.
struct LabelledCurve {
    std::vector<PicturePoint> Points;
    double Baseline, Top, Bottom;
    Colour Ink;
};

/// Prints labels beside a curve, off each other and off the curve: in the largest type in which all
/// have room. What finds none in the smallest type is left out, the lightest first.
void PrintCurveLabels(Picture& pic, LabelBoard& board, const LabelledCurve& curve,
                      const std::vector<CurveLabel>& labels);

} // namespace forcelab::beams
