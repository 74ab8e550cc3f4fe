#pragma once

#include "beams/BeamRecord.h"
#include "beams/BeamTexts.h"
#include "core/RecordingPicture.h"

#include <string>

namespace forcelab::beams::test {

inline constexpr double kTouching = 0.01; // pixels; boxes may share an edge

/// The first two texts on a sheet that cover each other, or "".
inline std::string Overlap(const RecordingPicture& pic)
{
    const auto boxes = pic.TextBoxes();
    for (std::size_t i = 0; i < boxes.size(); ++i)
        for (std::size_t k = 0; k < i; ++k)
            if (boxes[i].X1 < boxes[k].X2 - kTouching && boxes[k].X1 < boxes[i].X2 - kTouching &&
                boxes[i].Y1 < boxes[k].Y2 - kTouching && boxes[k].Y1 < boxes[i].Y2 - kTouching)
                return boxes[i].Text + " covers " + boxes[k].Text;
    return "";
}

/// The first text that leaves the sheet, or "".
inline std::string Outside(const RecordingPicture& pic)
{
    for (const auto& box : pic.TextBoxes())
        if (box.X1 < -kTouching || box.Y1 < -kTouching || box.X2 > pic.WidthPixels() + kTouching ||
            box.Y2 > pic.HeightPixels() + kTouching)
            return box.Text;
    return "";
}

/// The length unit of the beam, and one unit system for forces and moments.
inline DiagramUnits UnitsOf(const BeamRecord& beam, int force)
{
    DiagramUnits units;
    units.Length = beam.BeamLengthUnit;
    units.Force = units.Moment = force;
    return units;
}

} // namespace forcelab::beams::test
