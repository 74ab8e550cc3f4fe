#pragma once

#include "core/Units.h"
#include "sections/KeptShapes.h"
#include "sections/Report.h"
#include "sections/SectionCalculation.h"
#include "sections/SectionInput.h"
#include "sections/ShapeCatalogue.h"
#include "support/Near.h"

#include "SteelText.h"

#include <fstream>
#include <string>
#include <vector>

namespace forcelab::sections {

/// A section to compute: the boxes as they are typed, with a decimal point.
struct Setup {
    int Shape = kNoShape;
    std::vector<std::string> Boxes{};
    int LengthUnit = 0;
    double Degrees = 0;
    bool Composite = false; ///< element 1 of Material B, the others of A; 1600 and 29000 ksi
};

struct Computed {
    CrossSection Section;
    SectionEntry Entry;
};

inline ReportGrid GridOf(const Computed& of, ReportTable table, int axis)
{
    return FillTheGrid(of.Section, of.Entry, table, axis);
}

using Rows = std::vector<std::vector<std::string>>;

/// Numbers in the separators of the setting, in a text whose other marks stay.
inline std::string LocalNumbers(std::string text)
{
    const auto digit = [&](std::size_t at) {
        return at < text.size() && text[at] >= '0' && text[at] <= '9';
    };
    for (std::size_t i = 1; i + 1 < text.size(); ++i)
        if (digit(i - 1) && digit(i + 1)) text[i] = test::Local(text.substr(i, 1))[0];
    return text;
}

inline Rows LocalRows(Rows rows)
{
    for (auto& row : rows)
        for (std::string& cell : row) cell = LocalNumbers(cell);
    return rows;
}

/// The rows under the headings.
inline Rows Body(const ReportGrid& grid)
{
    return {grid.Cells.begin() + grid.FixedRows, grid.Cells.end()};
}

inline constexpr int kZz = 0;
inline constexpr int kYy = 1;

inline void MakeComposite(SectionEntry& entry)
{
    entry.Composite = true;
    entry.ModulusUnit = 1;
    entry.Modulus = {"0", "1600", "29000"};
    entry.Material = {"Wood", "Steel"};
    entry.Swatch.fill(IndexedColour(kMaterialA));
    entry.Swatch[0] = IndexedColour(kMaterialB);
}

/// Does what Compute does, from the checks to the result.
inline Computed Finish(Computed of, double degrees)
{
    EXPECT_FALSE(CheckEntry(of.Section, of.Entry)) << "the entry is refused";
    if (degrees != 0) RotateElements(of.Section, degrees * kPi / 180);
    ComputeShape(of.Section, of.Entry);
    return of;
}

inline Computed Compute(const Setup& setup)
{
    Computed of;
    TakeShape(of.Section, setup.Shape);
    of.Entry.LengthUnit = setup.LengthUnit;
    of.Entry.Swatch = PlainSwatches(setup.Shape);
    for (std::size_t i = 0; i < setup.Boxes.size(); ++i)
        of.Entry.Box[i] = test::Local(setup.Boxes[i]);
    if (setup.Composite) MakeComposite(of.Entry);
    return Finish(std::move(of), setup.Degrees);
}

inline Computed ComputeSteel(int shape, const std::string& designation, int lengthUnit = 0,
                             double degrees = 0)
{
    Computed of;
    TakeShape(of.Section, shape);
    of.Entry.LengthUnit = lengthUnit;
    of.Entry.Swatch = PlainSwatches(shape);
    const auto family = SteelFamily(shape - kSteelW);
    std::ifstream file("data/steel/" + SteelTextName(family));
    for (const SteelShape& steel : ReadSteelText(family, file).Shapes)
        if (steel.Designation == designation) of.Entry.Steel = steel;
    EXPECT_TRUE(of.Entry.Steel) << designation << " is not in the table";
    const auto boxes = SteelBoxes(of.Entry.Steel.value());
    std::copy(boxes.begin(), boxes.end(), of.Entry.Box.begin());
    return Finish(std::move(of), degrees);
}

inline Computed WoodUnderSteel()
{
    return Compute({kTShape, {"6", "0.5", "10", "6"}, 0, 0, true});
}

} // namespace forcelab::sections
