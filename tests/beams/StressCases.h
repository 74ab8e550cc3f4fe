#pragma once

#include "beams/StressInput.h"
#include "sections/SectionCases.h"

#include <vector>

namespace forcelab::beams::test {

using forcelab::sections::test::Computed;
using forcelab::sections::test::Entered;
using forcelab::sections::test::SampleDimensions;
using forcelab::sections::test::Worked;

/// A section in two materials by the colours 9 (A) and 10 (B) of its elements.
inline Worked Composite(int shape, const std::vector<double>& boxes,
                        const std::vector<int>& colours, double ratio, int quarters = 0)
{
    Worked worked = Entered(shape, boxes);
    worked.Entry.Composite = true;
    worked.Entry.Modulus = {forcelab::test::Local("0.0"), sections::test::Typed(1000),
                            sections::test::Typed(1000 * ratio)};
    for (std::size_t k = 0; k < colours.size(); ++k)
        worked.Entry.Swatch[k] = IndexedColour(colours[k]);
    if (quarters > 0) worked.Turn(quarters);
    const auto refusal = worked.Compute();
    EXPECT_FALSE(refusal.has_value()) << (refusal ? refusal->Text : "");
    return worked;
}

/// Flange 8 x 1 in on a stem 1 x 9 in. By hand: A = 17, centroid (9 x 4.5 + 8 x 9.5) / 17 above
/// the bottom, I = 9^3 / 12 + 9 d1^2 + 8 / 12 + 8 d2^2.
inline Worked Tee()
{
    return Computed(sections::kTShape, {8, 1, 9, 1});
}
namespace tee {
inline constexpr double kBottom = 116.5 / 17;
inline constexpr double kTop = 10 - kBottom;
inline constexpr double kInertia = 60.75 + 9 * (kBottom - 4.5) * (kBottom - 4.5) + 8.0 / 12 +
                                   8 * (9.5 - kBottom) * (9.5 - kBottom);
} // namespace tee

/// V = 10 kips and M = 100 in-kips, shown in ksi and inches, at the centroid.
inline DetailsEntry TeeEntry()
{
    using forcelab::test::Local;
    DetailsEntry entry;
    entry.VM = {Local("0.0"), Local("10.0"), Local("8.3333333333333")}; // 100 / 12 ft-kips
    entry.Coord = {Local("0.0"), Local("0.0")};
    entry.ForceUnitIndex = entry.MomentUnitIndex = entry.StressUnitIndex = 1;
    return entry;
}

} // namespace forcelab::beams::test
