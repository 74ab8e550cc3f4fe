#include "transform/MohrTexts.h"

#include "core/MainModule.h"
#include "core/NumericText.h"
#include "core/Units.h"
#include "transform/MohrModes.h"

#include <cmath>

namespace forcelab::transform {

namespace {

constexpr int kInchPerInch = 4;
constexpr std::string_view kAngleMask = "##0.0#";
// More places than the boxes keep, so that a value handed over loses nothing that can be seen.
constexpr std::string_view kHandOverMask = "##0.0#######";

struct QuantityLabel {
    std::string_view Words;
    std::string_view Letter; ///< in the font "Symbol"
    std::string_view Index;
};

constexpr std::array<QuantityLabel, 5> kStressNames{{{"Sigma 1 = ", "s", "1"},
                                                     {"Sigma 2 = ", "s", "2"},
                                                     {"Sigma 3 = ", "s", "3"},
                                                     {"Tau Abs Max = ", "t", "abs max"},
                                                     {"Tau Max XY = ", "t", "max xy"}}};
constexpr std::array<QuantityLabel, 5> kStrainNames{{{"Eps 1 = ", "e", "1"},
                                                     {"Eps 2 = ", "e", "2"},
                                                     {"Eps 3 = ", "e", "3"},
                                                     {"Gamma Abs Max = ", "g", "abs max"},
                                                     {"Gamma Max XY = ", "g", "max xy"}}};
constexpr std::array<QuantityLabel, 5> kInertiaNames{
    {{"I1 = ", "", ""}, {"I2 = ", "", ""}, {"", "", ""}, {"", "", ""}, {"Iyz Max = ", "", ""}}};

const QuantityLabel& NamesOf(MohrMode mode, Quantity quantity)
{
    const int row = static_cast<int>(quantity);
    if (mode == MohrMode::MomentOfInertia) return kInertiaNames[row];
    return IsStrain(mode) ? kStrainNames[row] : kStressNames[row];
}

double NormalOf(const StressState& state, Quantity quantity)
{
    if (quantity == Quantity::One) return state.PrincipalOne;
    return quantity == Quantity::Two ? state.PrincipalTwo : state.PrincipalThree;
}

bool IsShear(Quantity quantity)
{
    return quantity == Quantity::AbsMaxShear || quantity == Quantity::MaxShear;
}

std::string ShearNumber(const StressState& state, const MohrEntry& entry, double shear)
{
    return MohrText(state, entry, shear * ShearFactor(entry.Mode));
}

std::string ShearWithSense(const StressState& state, const MohrEntry& entry, double shear)
{
    if (entry.Mode == MohrMode::MomentOfInertia) return ShearText(state, entry, shear);
    const std::string size = ShearText(state, entry, std::abs(shear));
    if (ShowsZero(ShearNumber(state, entry, shear))) return size;
    return size + (shear < 0 ? " CW" : " CCW") +
           (IsStrain(entry.Mode) ? " from X'-axis" : " on X'-face");
}

} // namespace

Label QuantityName(MohrMode mode, Quantity quantity)
{
    const QuantityLabel& names = NamesOf(mode, quantity);
    using Kind = LabelPart::Kind;
    if (!MainModule::SymbolFontPresent || names.Letter.empty())
        return {{std::string(names.Words), Kind::Plain}};
    return {{std::string(names.Letter), Kind::Greek},
            {std::string(names.Index), Kind::Subscript},
            {" = ", Kind::Plain}};
}

std::string_view QuantityWords(MohrMode mode, Quantity quantity)
{
    return NamesOf(mode, quantity).Words;
}

std::string QuantityText(const StressState& state, const MohrEntry& entry, Quantity quantity)
{
    if (!IsShear(quantity)) return MohrText(state, entry, NormalOf(state, quantity));
    const double shear = quantity == Quantity::AbsMaxShear ? state.AbsMaxShear : state.CircleRadius;
    std::string text = ShearNumber(state, entry, shear);
    if (IsStrain(entry.Mode)) text += ShearStrainUnit(entry);
    return text;
}

std::string ShearText(const StressState& state, const MohrEntry& entry, double shear)
{
    const std::string number = ShearNumber(state, entry, shear);
    if (IsStrain(entry.Mode)) return number + std::string(ShearStrainUnit(entry));
    return number + " " + std::string(kMohrUnits[entry.Unit]);
}

std::string NormalText(const StressState& state, const MohrEntry& entry, double normal)
{
    return MohrText(state, entry, normal) + " " + std::string(kMohrUnits[entry.Unit]);
}

std::string NormalWithSense(const StressState& state, const MohrEntry& entry, double normal)
{
    const std::string text = NormalText(state, entry, normal);
    if (entry.Mode == MohrMode::MomentOfInertia) return text;
    const std::string size = NormalText(state, entry, std::abs(normal));
    if (ShowsZero(MohrText(state, entry, normal))) return size;
    return size + (normal < 0 ? " (C)" : " (T)");
}

std::string_view ShearStrainUnit(const MohrEntry& entry)
{
    return entry.Unit == kInchPerInch ? " rad" : "E-06 rad";
}

double ShearFactor(MohrMode mode)
{
    return IsStrain(mode) ? 2 : 1;
}

bool ShowsZero(std::string_view number)
{
    return number.substr(0, number.find('E')).find_first_of("123456789") == std::string_view::npos;
}

std::string AngleText(double radians)
{
    return Format(std::abs(radians) * 180 / kPi, kAngleMask);
}

std::string TurnText(double radians)
{
    const std::string size = AngleText(radians);
    if (ShowsZero(size)) return size + "°";
    return size + (radians < 0 ? "° CW" : "° CCW");
}

std::array<std::string, 3> RotatedTexts(const StressState& state, const MohrEntry& entry)
{
    const RotatedState turned = StateAt(state, state.RotationAngle);
    return {NormalWithSense(state, entry, turned.NormalX),
            NormalWithSense(state, entry, turned.NormalY),
            ShearWithSense(state, entry, turned.ShearXY)};
}

MohrEntry EntryOf(const MohrHandOver& handOver)
{
    MohrEntry entry;
    entry.Mode = handOver.Mode;
    entry.Unit = handOver.Unit;
    for (int i = 0; i < 3; ++i) {
        const bool signedText = entry.Mode == MohrMode::MomentOfInertia && i == 2;
        const double value = handOver.Value[i];
        entry.Text[i] = Format(signedText ? value : std::abs(value), kHandOverMask);
        entry.Negative[i] = value < 0;
    }
    return entry;
}

} // namespace forcelab::transform
