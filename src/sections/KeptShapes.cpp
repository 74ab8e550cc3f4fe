#include "sections/KeptShapes.h"

#include "core/NumericText.h"

#include <algorithm>

namespace forcelab::sections {

namespace {

constexpr std::array<int, 4> kQuadrantColours{5, 13, 1, 2};

// A number as the program writes it; any other text stays as it was typed.
std::string Rewritten(const std::string& text)
{
    const auto value = NumberFromText(text);
    return value ? Format(*value, kDimensionMask) : text;
}

void RestoreKept(CrossSection& section, const CrossSection& kept)
{
    section.ElementCorners = kept.ElementCorners;
    section.ElementStyle = kept.ElementStyle;
    section.ElementLie = kept.ElementLie;
    section.ElementDims = kept.ElementDims;
    section.PrincipalAxisEnds = kept.PrincipalAxisEnds;
}

SectionEntry DefaultEntry()
{
    SectionEntry entry;
    entry.Box.fill(Format(0, kDimensionMask));
    entry.Modulus.fill(Format(0, "0.0"));
    std::copy(kMaterialCaptions.begin(), kMaterialCaptions.end(), entry.Material.begin());
    return entry;
}

SectionEntry KeptEntry(const KeptShape& kept)
{
    SectionEntry entry;
    std::transform(kept.Box.begin(), kept.Box.end(), entry.Box.begin(), Rewritten);
    entry.Modulus = kept.Modulus;
    entry.Material = kept.Material;
    entry.LengthUnit = kept.LengthUnit;
    entry.ModulusUnit = kept.Section.ModulusUnit;
    entry.Composite = kept.Section.CompositeSection;
    return entry;
}

} // namespace

Swatches UnassignedSwatches()
{
    Swatches swatches;
    swatches.fill(IndexedColour(kUnassigned));
    return swatches;
}

Swatches PlainSwatches(int shapeIndex)
{
    Swatches swatches = UnassignedSwatches();
    if (LayoutOf(shapeIndex) == kBox) swatches[1] = IndexedColour(kHollow);
    if (shapeIndex == kSpecified)
        std::transform(kQuadrantColours.begin(), kQuadrantColours.end(), swatches.begin(),
                       IndexedColour);
    return swatches;
}

KeptShape CollectKeepData(const CrossSection& section, const SectionEntry& entry,
                          const Swatches& assigned)
{
    KeptShape kept;
    kept.Kept = true;
    kept.Section = section;
    kept.Section.CompositeSection = entry.Composite;
    kept.Section.ModulusUnit = entry.ModulusUnit;
    kept.Section.ElementColour = assigned;
    kept.Box = entry.Box;
    kept.Modulus = entry.Modulus;
    kept.Material = entry.Material;
    kept.LengthUnit = entry.LengthUnit;
    return kept;
}

void RestoreShape(int shapeIndex, const KeptShape& kept, CrossSection& section, SectionEntry& entry)
{
    TakeShape(section, shapeIndex);
    section.ElementDims = {};
    section.PrincipalAxisEnds = {};
    if (kept.Kept) RestoreKept(section, kept.Section);
    entry = kept.Kept ? KeptEntry(kept) : DefaultEntry();
    entry.Swatch = entry.Composite ? kept.Section.ElementColour : PlainSwatches(shapeIndex);
}

} // namespace forcelab::sections
