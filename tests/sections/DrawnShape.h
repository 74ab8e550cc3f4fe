#pragma once

#include "sections/SectionCases.h"
#include "sections/SectionDrawing.h"

namespace forcelab::sections::test {

inline constexpr BoxSize kBoxSize{64, 24};

/// A shape as it shows before any number is typed, stretched and turned.
inline Worked Outline(int shape, double stretch = 1, int quarters = 0)
{
    Worked worked = Entered(shape, std::vector<double>{});
    for (Corners& c : worked.Section.ElementCorners) {
        c.Left *= stretch;
        c.Right *= stretch;
    }
    if (quarters > 0) worked.Turn(quarters);
    return worked;
}

inline std::vector<BoxPlace> Draw(Picture& pic, const Worked& worked)
{
    return DrawShape(pic, worked.Section, worked.Entry, kBoxSize);
}

} // namespace forcelab::sections::test
