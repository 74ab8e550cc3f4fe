#include "sections/SectionInput.h"

#include "core/NumericText.h"
#include "sections/SectionCalculation.h"
#include "sections/ShapeCatalogue.h"

#include <cmath>
#include <string_view>

namespace forcelab::sections {

namespace {

constexpr std::string_view kDiameterMask = "####0.0###"; // of circles and the outside of pipes
constexpr int kGapElement = 2; // the gap of double shapes has the first box of the third element

using Values = std::array<double, kBoxes>;

bool IsRound(int shape)
{
    const int layout = LayoutOf(shape);
    return layout == kCircle || layout == kPipe;
}

Refusal Refuse(std::string_view text, int box)
{
    const std::string focus = box < 0 ? "" : "txtShape(" + std::to_string(box) + ")";
    return {kStop, "Section Properties Error", std::string(text), focus};
}

/// The sizes in the shown boxes; a sign is dropped. The diameter of a round shape counts as it is
/// written back, so that a second Compute finds the same.
Values ReadBoxes(int shape, const ShapeInfo& info, const SectionEntry& entry)
{
    Values values{};
    for (int box = 0; box < kBoxes; ++box)
        if (info.Box[box]) values[box] = std::abs(StringValue(entry.Box[box]));
    if (IsRound(shape)) values[0] = StringValue(Format(values[0], kDiameterMask));
    return values;
}

/// A steel shape of which no row is selected has no dimensions, whatever its boxes say.
std::optional<Refusal> CheckAllGiven(const ShapeInfo& info, const Values& values, bool noRow)
{
    int zero = noRow ? 0 : -1;
    for (int box = 0; box < kBoxes; ++box)
        if (info.Box[box] && values[box] == 0) zero = box;
    if (zero < 0) return std::nullopt;
    return Refuse("Section properties cannot be calculated until all dimensions are specified.",
                  zero);
}

constexpr std::string_view kInnerCircle =
    "Dimension for inner circle cannot equal or exceed dimension given for outer circle.";
constexpr std::string_view kInnerRectangle =
    "Dimension for inner rectangle must be less than dimension given for outer rectangle.";

/// One box must find room in another, so many times; the focus goes to it.
struct FitRule {
    int Shape;
    int Outer;
    int Inner;
    int Times;
    bool MayFill; ///< may take all the room
    std::string_view Text;
};
constexpr FitRule kFitRules[]{
    {kPipe, 0, 1, 1, false, kInnerCircle},
    {kSteelPipe, 0, 1, 1, false, kInnerCircle},
    {kHat, 0, 3, 2, true, "The sum of the stem thicknesses cannot exceed the top flange width."},
    {kDoubleCToe, 4, 0, 2, true,
     "\rThe sum of the flange widths cannot exceed\r"
     "the distance from channel back to channel back."},
    {kBox, 0, 2, 1, true, kInnerRectangle},
    {kBox, 1, 3, 1, true, kInnerRectangle},
};

std::optional<Refusal> CheckFit(int shape, const Values& values)
{
    for (const FitRule& rule : kFitRules) {
        if (rule.Shape != shape) continue;
        const double room = values[rule.Outer] - rule.Times * values[rule.Inner];
        if (room < 0 || (room == 0 && !rule.MayFill)) return Refuse(rule.Text, rule.Inner);
    }
    return std::nullopt;
}

std::optional<Refusal> CheckMaterials(const CrossSection& section, const SectionEntry& entry)
{
    if (!entry.Composite) return std::nullopt;
    for (int k = 0; k < kElements; ++k)
        if (section.Shown[k] && entry.Swatch[k] == IndexedColour(8))
            return Refuse(
                "For composite shapes, an elastic modulus must be assigned to each element.", -1);
    return std::nullopt;
}

std::string_view MaskOf(int shape, int box)
{
    return box == 0 && IsRound(shape) ? kDiameterMask : kDimensionMask;
}

/// The power of length that a box holds: the specified properties are inertias and an area.
int PowerOf(int shape, int box)
{
    if (shape != kSpecified) return 1;
    return box == 4 || box == 5 ? 4 : box == 6 ? 2 : 1;
}

} // namespace

std::optional<Refusal> CheckEntry(CrossSection& section, SectionEntry& entry)
{
    const int shape = section.ShapeIndex;
    const ShapeInfo& info = InfoOf(shape);
    const Values values = ReadBoxes(shape, info, entry);
    if (auto refusal = CheckAllGiven(info, values, IsSteel(shape) && !entry.Steel)) return refusal;
    if (auto refusal = CheckFit(shape, values)) return refusal;
    if (auto refusal = CheckMaterials(section, entry)) return refusal;
    for (int box = 0; box < kBoxes; ++box) {
        if (!info.Box[box]) continue;
        entry.Box[box] = Format(values[box], MaskOf(shape, box));
        section.ElementDims[box / 2][box % 2] = values[box];
    }
    return std::nullopt;
}

void ComputeShape(CrossSection& section, SectionEntry& entry)
{
    CrossSection next = section;
    next.CompositeSection = entry.Composite;
    BuildElements(next, next.ElementDims[kGapElement][0]);
    ComputeSection(next, entry);
    next.SectionComputed = true;
    section = next;
}

void ConvertLengthUnit(const CrossSection& section, SectionEntry& entry)
{
    constexpr double kMmPerInch = 25.4;
    const double factor = entry.LengthUnit == 0 ? kMmPerInch : 1 / kMmPerInch;
    const ShapeInfo& info = InfoOf(section.ShapeIndex);
    for (int box = 0; box < kBoxes; ++box) {
        if (!info.Box[box]) continue;
        const double scale = Power(factor, PowerOf(section.ShapeIndex, box));
        entry.Box[box] = Format(StringValue(entry.Box[box]) * scale, kDimensionMask);
    }
    entry.LengthUnit = entry.LengthUnit == 0 ? 1 : 0;
}

} // namespace forcelab::sections
