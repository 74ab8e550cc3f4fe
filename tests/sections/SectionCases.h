#pragma once

#include "core/NumericText.h"
#include "core/Units.h"
#include "sections/SectionCalculation.h"
#include "sections/SectionInput.h"
#include "sections/ShapeCatalogue.h"

#include "support/Near.h"

#include <ostream>
#include <string>
#include <vector>

namespace forcelab::sections::test {

/// A section with its entry, worked as frmProperties works it.
struct Worked {
    CrossSection Section;
    SectionEntry Entry;

    std::optional<Refusal> Check() { return CheckEntry(Section, Entry); }
    std::optional<Refusal> Compute()
    {
        if (auto refusal = Check()) return refusal;
        ComputeShape(Section, Entry);
        return std::nullopt;
    }
    void Turn(int quarters) { RotateElements(Section, quarters * kPi / 2); }
    [[nodiscard]] double At(Row row, Column column) const { return Section.Record(row, column); }
    [[nodiscard]] double At(CompositeRow row, Column column) const
    {
        return Section.Record(row, column);
    }
    [[nodiscard]] const Corners& Element(int number) const
    {
        return Section.ElementCorners[number - 1];
    }
};

/// A number as a person would type it, in the separators of the setting.
inline std::string Typed(double value)
{
    return Format(value, "####0.0##########");
}

/// The values go into the shown boxes in their order.
inline Worked Entered(int shape, const std::vector<double>& values)
{
    Worked worked;
    TakeShape(worked.Section, shape);
    worked.Entry.Box.fill(forcelab::test::Local("0.0"));
    worked.Entry.Swatch.fill(IndexedColour(8));
    std::size_t next = 0;
    for (int box = 0; box < kBoxes && next < values.size(); ++box)
        if (InfoOf(shape).Box[box]) worked.Entry.Box[box] = Typed(values[next++]);
    return worked;
}

/// Entered, turned by quarters and computed; a refusal fails the test.
inline Worked Computed(int shape, const std::vector<double>& values, int quarters = 0)
{
    Worked worked = Entered(shape, values);
    if (quarters != 0) worked.Turn(quarters);
    const auto refusal = worked.Compute();
    EXPECT_FALSE(refusal.has_value()) << (refusal ? refusal->Text : "");
    return worked;
}

/// Dimensions of each shape that tell every box from every other.
inline std::vector<double> SampleDimensions(int shape)
{
    static const std::vector<std::vector<double>> kSamples{
        {6, 0.5, 9, 0.375, 8, 0.75},     // general flanged
        {3, 0.5, 9, 0.375, 4, 0.75},     // general channel
        {6, 0.5, 9, 0.375},              // I
        {3, 0.5, 9, 0.375},              // C
        {8, 1, 9, 1.25},                 // T
        {5.625, 0.75, 6.875, 0.625},     // L
        {3.5, 0.5, 8, 0.375},            // Z
        {6, 0.5, 4, 0.375, 2.5, 0.625},  // hat
        {9, 0.5, 8, 0.375, 3, 11, 0.75}, // double I
        {3, 0.5, 9, 0.375, 2},           // double C, back to back
        {3, 0.5, 9, 0.375, 8},           // double C, toe to toe
        {10, 0.75, 7, 0.5, 3},           // double T
        {4, 0.5, 5.5, 0.625, 0.75},      // double L
        {8, 0.75, 9, 0.5, 3, 0.375},     // stiffened T, down
        {8, 0.75, 9, 0.5, 3, 0.375},     // stiffened T, up
        {4, 10},                         // rectangle
        {6, 10, 5, 8.5},                 // box
        {5},                             // circle
        {5, 3.5},                        // pipe
    };
    return kSamples[LayoutOf(shape) - 1];
}

inline std::ostream& operator<<(std::ostream& out, const Worked& worked)
{
    return out << InfoOf(worked.Section.ShapeIndex).Title;
}

} // namespace forcelab::sections::test

namespace forcelab::sections {

inline void PrintTo(const Corners& e, std::ostream* out)
{
    *out << "(" << e.Left << ", " << e.Bottom << ", " << e.Right << ", " << e.Top << ")";
}

} // namespace forcelab::sections
