#include "beams/SectionStress.h"

#include "core/ArithmeticFault.h"
#include "sections/ShapeCatalogue.h"

#include <algorithm>
#include <cmath>

namespace forcelab::beams {

using namespace sections;

namespace {

/// Levels that agree to this share of the depth are one: the corners come from sums and from
/// conversions of units, which leave the last bits of equal levels different.
constexpr double kSameLevel = 1e-9;
constexpr int kInner = 1; ///< element of a tube or a pipe that holds its hole

bool HasHole(const CrossSection& section, int element)
{
    return LayoutOf(section.ShapeIndex) == kBox && element == kInner;
}

double MaterialFactor(const CrossSection& section, int element)
{
    return IsMaterialB(section, element) ? StressPropertiesOf(section).ModularRatio : 1;
}

/// Width with its material's weight. The inner rectangle of a tube takes the outer one's place.
double TransformedWidth(const CrossSection& section, int element)
{
    const Corners& e = section.ElementCornersInches[element];
    double factor = MaterialFactor(section, element);
    if (HasHole(section, element))
        factor = (section.CompositeSection ? factor : 0) - MaterialFactor(section, 0);
    return (e.Right - e.Left) * factor;
}

double Slack(const CrossSection& section)
{
    return kSameLevel * SectionBoundsOf(section).Depth();
}

bool HasWidthAt(const Corners& e, double y, Side side, double slack)
{
    return side == Side::Below ? e.Bottom < y - slack && y <= e.Top + slack
                               : e.Bottom <= y + slack && y < e.Top - slack;
}

/// The last element that holds the point, borders included.
std::optional<int> ElementAt(const CrossSection& section, double z, double y)
{
    const double slack = Slack(section);
    for (int k = kElements - 1; k >= 0; --k) {
        const Corners& e = section.ElementCornersInches[k];
        if (section.Shown[k] && z >= e.Left - slack && z <= e.Right + slack &&
            y >= e.Bottom - slack && y <= e.Top + slack)
            return k;
    }
    return std::nullopt;
}

/// What N / A - M y / I is multiplied by at the point.
double NormalFactorAt(const CrossSection& section, double z, double y)
{
    const int layout = LayoutOf(section.ShapeIndex);
    if (layout == kCircle) return 1;
    if (layout == kPipe)
        return std::abs(y) <= SectionBoundsOf(section).SectionTop + Slack(section) ? 1 : 0;
    const auto element = ElementAt(section, z, y);
    return element ? MaterialFactor(section, *element) : 0;
}

/// The side whose width counts at a level of an element: inside it at its edges, else the narrower.
PartAbove PartAt(const CrossSection& section, int element, double y)
{
    const double slack = Slack(section);
    const Corners& e = section.ElementCornersInches[element];
    const PartAbove below = SectionPartAbove(section, y, Side::Below);
    const PartAbove above = SectionPartAbove(section, y, Side::Above);
    if (y >= e.Top - slack) return below;
    if (y <= e.Bottom + slack) return above;
    return above.Width < below.Width ? above : below;
}

double ElementShearAt(const CrossSection& section, double z, double y, double shear)
{
    const auto element = ElementAt(section, z, y);
    if (!element) return 0;
    const PartAbove part = PartAt(section, *element, y);
    if (part.Width == 0) return 0;
    return shear * part.Q / StressPropertiesOf(section).Inertia / part.Width *
           MaterialFactor(section, *element);
}

double ShearAt(const CrossSection& section, double z, double y, double shear)
{
    switch (ShearLawOf(section)) {
    case ShearLaw::RoundAtCentre:
        return y == 0 ? RoundShearStress(section, shear) : 0;
    case ShearLaw::ByElements:
        return ElementShearAt(section, z, y, shear);
    case ShearLaw::Unknown:
        break;
    }
    return 0;
}

/// Bottoms and tops of the elements, ascending, equal ones once.
std::vector<double> LevelsOf(const CrossSection& section)
{
    std::vector<double> levels;
    for (int k = 0; k < kElements; ++k) {
        if (!section.Shown[k]) continue;
        levels.push_back(section.ElementCornersInches[k].Bottom);
        levels.push_back(section.ElementCornersInches[k].Top);
    }
    std::sort(levels.begin(), levels.end());
    const double slack = Slack(section);
    const auto same = [slack](double a, double b) { return b - a <= slack; };
    levels.erase(std::unique(levels.begin(), levels.end(), same), levels.end());
    return levels;
}

/// The outer rectangle of a tube, where the inner one hides it altogether.
bool IsHidden(const CrossSection& section, int element, double y)
{
    const Corners& outer = section.ElementCornersInches[0];
    const Corners& inner = section.ElementCornersInches[kInner];
    return element == 0 && HasHole(section, kInner) && inner.Bottom < y && y < inner.Top &&
           inner.Right - inner.Left >= outer.Right - outer.Left;
}

SectionBand BandBetween(const CrossSection& section, double bottom, double top)
{
    const double middle = (bottom + top) / 2;
    SectionBand band{bottom, top, SectionPartAbove(section, middle).Width, {}};
    for (int k = 0; k < kElements; ++k) {
        const Corners& e = section.ElementCornersInches[k];
        const bool hole = HasHole(section, k) && !section.CompositeSection;
        if (section.Shown[k] && !hole && e.Bottom < middle && middle < e.Top &&
            !IsHidden(section, k, middle))
            band.Material[IsMaterialB(section, k)] = true;
    }
    return band;
}

} // namespace

StressProperties StressPropertiesOf(const CrossSection& section)
{
    const SectionRecord& record = section.Record;
    if (!section.CompositeSection)
        return {record(Row::Area, Column::ZzInches), record(Row::Inertia, Column::ZzInches), 1};
    return {record(CompositeRow::AreaAsA, Column::CompositeZzInches),
            record(CompositeRow::InertiaAsA, Column::CompositeZzInches),
            record(CompositeRow::RatioBToA, Column::CompositeZzInches)};
}

bool IsMaterialB(const CrossSection& section, int element)
{
    constexpr int kMaterialB = 10;
    return section.CompositeSection && section.ElementColour[element] == IndexedColour(kMaterialB);
}

SectionBounds SectionBoundsOf(const CrossSection& section)
{
    const int layout = LayoutOf(section.ShapeIndex);
    const double radius = std::abs(section.ElementCornersInches[0].Top);
    if (layout == kCircle || layout == kPipe) return {-radius, radius, -radius, radius};
    SectionBounds bounds;
    for (int k = 0; k < kElements; ++k) {
        if (!section.Shown[k]) continue;
        const Corners& e = section.ElementCornersInches[k];
        bounds = {std::min(bounds.SectionLeft, e.Left), std::max(bounds.SectionRight, e.Right),
                  std::min(bounds.SectionBottom, e.Bottom), std::max(bounds.SectionTop, e.Top)};
    }
    return bounds;
}

PartAbove SectionPartAbove(const CrossSection& section, double y, Side side)
{
    const double slack = Slack(section);
    PartAbove part;
    for (int k = 0; k < kElements; ++k) {
        const Corners& e = section.ElementCornersInches[k];
        if (!section.Shown[k] || e.Top < y - slack) continue;
        const double width = TransformedWidth(section, k);
        const double from = std::clamp(y, e.Bottom, e.Top);
        part.Q += (e.Top * e.Top - from * from) * width / 2;
        part.Area += (e.Top - from) * width;
        if (HasWidthAt(e, y, side, slack)) part.Width += width;
    }
    return part;
}

PointStress StressAtPoint(const CrossSection& section, double z, double y,
                          const SectionForces& forces, double lengthUnit, double stressUnit)
{
    const double zInches = z * lengthUnit;
    const double yInches = y * lengthUnit;
    const double factor = NormalFactorAt(section, zInches, yInches);
    const double normal = factor == 0 ? 0 : NormalStressIn(section, forces, 0, yInches) * factor;
    return {Finite(normal / stressUnit),
            Finite(ShearAt(section, zInches, yInches, forces.Shear) / stressUnit)};
}

ShearLaw ShearLawOf(const CrossSection& section)
{
    const int layout = LayoutOf(section.ShapeIndex);
    if (layout == kCircle || layout == kPipe) return ShearLaw::RoundAtCentre;
    return layout == kNoShape || layout == kSpecified ? ShearLaw::Unknown : ShearLaw::ByElements;
}

double SectionBand::NearestToCentroid() const
{
    return std::clamp(0.0, Bottom, Top);
}

std::vector<SectionBand> BandsOf(const CrossSection& section)
{
    const SectionBounds bounds = SectionBoundsOf(section);
    if (ShearLawOf(section) != ShearLaw::ByElements)
        return {{bounds.SectionBottom, bounds.SectionTop, 0, {true, false}}};
    std::vector<SectionBand> bands;
    const std::vector<double> levels = LevelsOf(section);
    for (std::size_t i = 1; i < levels.size(); ++i)
        bands.push_back(BandBetween(section, levels[i - 1], levels[i]));
    return bands;
}

double NormalStressIn(const CrossSection& section, const SectionForces& forces, int material,
                      double y)
{
    const StressProperties of = StressPropertiesOf(section);
    const double factor = material == 1 ? of.ModularRatio : 1;
    return Finite((forces.Axial / of.Area - forces.Moment * y / of.Inertia) * factor);
}

double ShearStressIn(const CrossSection& section, const SectionForces& forces,
                     const SectionBand& band, int material, double y)
{
    if (band.Width == 0) return 0;
    const StressProperties of = StressPropertiesOf(section);
    const double factor = material == 1 ? of.ModularRatio : 1;
    return Finite(forces.Shear * SectionPartAbove(section, y).Q / of.Inertia / band.Width * factor);
}

double RoundShearStress(const CrossSection& section, double shearForce)
{
    const double average = 4.0 / 3 * shearForce / StressPropertiesOf(section).Area;
    if (LayoutOf(section.ShapeIndex) == kCircle) return average;
    const double outer = 2 * std::abs(section.ElementCornersInches[0].Top);
    const double inner = 2 * std::abs(section.ElementCornersInches[kInner].Top);
    return average * (inner * inner + outer * inner + outer * outer) /
           (inner * inner + outer * outer);
}

std::optional<LargestShear> LargestShearOf(const CrossSection& section, const SectionForces& forces)
{
    const ShearLaw law = ShearLawOf(section);
    if (law == ShearLaw::Unknown) return std::nullopt;
    if (law == ShearLaw::RoundAtCentre)
        return LargestShear{0, RoundShearStress(section, forces.Shear), 0};
    LargestShear largest;
    for (const SectionBand& band : BandsOf(section))
        for (const int material : {0, 1}) {
            const double y = band.NearestToCentroid();
            const double stress = ShearStressIn(section, forces, band, material, y);
            if (band.Material[material] && std::abs(stress) > std::abs(largest.Stress))
                largest = {y, stress, material};
        }
    return largest;
}

std::optional<double> NeutralAxisOf(const CrossSection& section, const SectionForces& forces)
{
    if (forces.Moment == 0) return std::nullopt;
    const StressProperties of = StressPropertiesOf(section);
    const SectionBounds bounds = SectionBoundsOf(section);
    const double y = Finite(forces.Axial / of.Area * of.Inertia / forces.Moment);
    if (y < bounds.SectionBottom || y > bounds.SectionTop) return std::nullopt;
    return y;
}

} // namespace forcelab::beams
