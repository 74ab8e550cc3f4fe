#include "beams/KeyStresses.h"

#include <algorithm>
#include <cmath>

namespace forcelab::beams {

using sections::CrossSection;

namespace {

constexpr std::array<std::string_view, 2> kMaterials{" (Material A)", " (Material B)"};

/// A band seen from one of its ends, or from a level inside it.
struct Station {
    std::string_view Place;
    double Y;
    const SectionBand* Band;
};

class KeyList {
  public:
    KeyList(const CrossSection& section, const SectionForces& forces)
        : section_(section), forces_(forces), bands_(BandsOf(section))
    {}

    std::vector<KeyStress> Normal()
    {
        Ends(true);
        if (const auto y = NeutralAxisOf(section_, forces_)) Inside("Neutral axis", *y, true);
        for (std::size_t i = bands_.size() - 1; i > 0; --i) NormalBorder(bands_[i], bands_[i - 1]);
        return keys_;
    }

    std::vector<KeyStress> Shear()
    {
        const auto largest = LargestShearOf(section_, forces_);
        if (!largest) return {};
        if (ShearLawOf(section_) == ShearLaw::RoundAtCentre)
            return {{"Neutral axis", 0, largest->Stress},
                    {"Top", bands_.back().Top, 0},
                    {"Bottom", bands_.front().Bottom, 0}};
        Inside("Neutral axis", 0, false);
        if (largest->Y != 0) keys_.push_back({"Largest", largest->Y, largest->Stress});
        for (std::size_t i = bands_.size() - 1; i > 0; --i) {
            Add({"Border, just above", bands_[i].Bottom, &bands_[i]}, false);
            Add({"Border, just below", bands_[i].Bottom, &bands_[i - 1]}, false);
        }
        Ends(false);
        return keys_;
    }

  private:
    void Ends(bool normal)
    {
        Add({"Top", bands_.back().Top, &bands_.back()}, normal);
        Add({"Bottom", bands_.front().Bottom, &bands_.front()}, normal);
    }

    void Inside(std::string_view place, double y, bool normal)
    {
        const auto band = std::find_if(bands_.begin(), bands_.end(), [y](const SectionBand& b) {
            return b.Bottom <= y && y <= b.Top;
        });
        if (band != bands_.end()) Add({place, y, &*band}, normal);
    }

    /// The normal stress does not jump but from one material to the other.
    void NormalBorder(const SectionBand& above, const SectionBand& below)
    {
        SectionBand both = above;
        for (const int material : {0, 1})
            both.Material[material] = above.Material[material] || below.Material[material];
        Add({"Border", above.Bottom, &both}, true);
    }

    void Add(const Station& at, bool normal)
    {
        for (const int material : {0, 1}) {
            if (!at.Band->Material[material]) continue;
            const double stress = normal
                                      ? NormalStressIn(section_, forces_, material, at.Y)
                                      : ShearStressIn(section_, forces_, *at.Band, material, at.Y);
            keys_.push_back({PlaceOf(at, material), at.Y, stress});
        }
    }

    [[nodiscard]] std::string PlaceOf(const Station& at, int material) const
    {
        std::string place(at.Place);
        if (section_.CompositeSection) place += kMaterials[material];
        return place;
    }

    const CrossSection& section_;
    SectionForces forces_;
    std::vector<SectionBand> bands_;
    std::vector<KeyStress> keys_;
};

std::string WithUnit(const std::string& number, std::string_view unit)
{
    return number + " " + std::string(unit);
}

/// A stress that prints as zero has no sense.
std::string SenseOf(double stress, const std::string& printed)
{
    if (printed.find_first_of("123456789") == std::string::npos) return "";
    return stress > 0 ? " (tension)" : " (compression)";
}

std::string LineOf(const KeyStress& key, const StressDetails& details, bool normal)
{
    const std::string stress = StressText(key.Stress, details);
    return key.Place + ", y = " + WithUnit(LevelText(key.Y, details), ShapeUnitText(details)) +
           ":  " + WithUnit(stress, StressUnitText(details)) +
           (normal ? SenseOf(key.Stress, stress) : "");
}

std::vector<std::string> LinesOf(const std::vector<KeyStress>& keys, const StressDetails& details,
                                 bool normal)
{
    std::vector<std::string> lines;
    lines.reserve(keys.size());
    for (const KeyStress& key : keys) lines.push_back(LineOf(key, details, normal));
    return lines;
}

std::vector<std::string> NormalLines(const CrossSection& section, const StressDetails& details)
{
    auto lines = LinesOf(KeyNormalStresses(section, details.Forces()), details, true);
    if (details.BendingMoment == 0)
        lines.emplace_back("No neutral axis: without a moment the strain is uniform.");
    else if (!NeutralAxisOf(section, details.Forces()))
        lines.emplace_back("The neutral axis lies outside the section.");
    return lines;
}

std::vector<std::string> ShearLines(const CrossSection& section, const StressDetails& details)
{
    if (ShearLawOf(section) == ShearLaw::Unknown)
        return {"Max shear stress cannot be computed.", "Further data are required."};
    return LinesOf(KeyShearStresses(section, details.Forces()), details, false);
}

std::vector<std::string> PointLines(const CrossSection& section, const StressDetails& details)
{
    const PointStress stress = StressAtSpecifiedPoint(section, details);
    const double unit = details.StressUnit();
    const std::string normal = StressText(stress.Normal * unit, details);
    const auto [z, y] = CoordTexts(details);
    return {"z = " + WithUnit(z, ShapeUnitText(details)) +
                ", y = " + WithUnit(y, ShapeUnitText(details)),
            "Normal stress:  " + WithUnit(normal, StressUnitText(details)) +
                SenseOf(stress.Normal, normal),
            "Shear stress:  " +
                WithUnit(StressText(stress.Shear * unit, details), StressUnitText(details))};
}

} // namespace

std::vector<KeyStress> KeyNormalStresses(const CrossSection& section, const SectionForces& forces)
{
    return KeyList(section, forces).Normal();
}

std::vector<KeyStress> KeyShearStresses(const CrossSection& section, const SectionForces& forces)
{
    return KeyList(section, forces).Shear();
}

std::vector<std::string> KeyStressLines(const CrossSection& section, const StressDetails& details)
{
    switch (details.KeyStressView) {
    case kNormalView:
        return NormalLines(section, details);
    case kShearView:
        return ShearLines(section, details);
    case kPointView:
        return PointLines(section, details);
    default:
        return {};
    }
}

} // namespace forcelab::beams
