#include "core/FormatMask.h"

#include "core/NumericText.h"

#include <algorithm>
#include <charconv>

namespace forcelab {

namespace {

/// One section of a mask, taken apart. "Zeros" count the positions that always print.
struct MaskSection {
    std::string_view Prefix; ///< literals before the first position
    std::string_view Suffix; ///< literals behind the last
    int IntegerPositions = 0;
    int IntegerZeros = 0;
    int FractionPositions = 0;
    int FractionZeros = 0;
    int ExponentZeros = 0; ///< 0: no exponent
    bool HasPoint = false;
    bool Grouped = false;
};

/// A number rounded for its section, and the exponent that was split off it.
struct Rounded {
    DecimalNumber Number;
    int Exponent = 0;
};

constexpr int kGroup = 3;               // integer digits between thousands separators
constexpr int kSmallestPlainPoint = -3; // 0.0001 is the smallest general number without exponent

void ReadPosition(MaskSection& section, bool always)
{
    if (section.HasPoint) {
        ++section.FractionPositions;
        if (always) section.FractionZeros = section.FractionPositions;
    } else {
        ++section.IntegerPositions;
        if (always || section.IntegerZeros > 0) ++section.IntegerZeros;
    }
}

/// Reads "E+00" at `at`; the place behind it.
std::size_t ReadExponent(MaskSection& section, std::string_view mask, std::size_t at)
{
    const std::size_t first = at + 2;
    const std::size_t end = std::min(mask.find_first_not_of('0', first), mask.size());
    section.ExponentZeros = static_cast<int>(end - first);
    return end;
}

MaskSection ReadSection(std::string_view mask)
{
    MaskSection section;
    std::size_t at = std::min(mask.find_first_of("0#.E"), mask.size());
    section.Prefix = mask.substr(0, at);
    for (; at < mask.size(); ++at) {
        const char c = mask[at];
        if (c == '0' || c == '#')
            ReadPosition(section, c == '0');
        else if (c == '.')
            section.HasPoint = true;
        else if (c == ',')
            section.Grouped = true;
        else
            break;
    }
    if (mask.substr(at).starts_with("E+0")) at = ReadExponent(section, mask, at);
    section.Suffix = mask.substr(at);
    return section;
}

/// The exponent to split off a number whose point stands at `point`: none of the digits, one of
/// them, or one to three of them stay before the point.
int ExponentFor(const MaskSection& section, int point)
{
    if (section.IntegerPositions == 0) return section.HasPoint ? point : point - 1;
    if (section.IntegerPositions == 1) return point - 1;
    const int order = point - 1;
    return (order >= 0 ? order / kGroup : -((kGroup - 1 - order) / kGroup)) * kGroup;
}

Rounded RoundFor(const MaskSection& section, DecimalNumber number)
{
    if (section.ExponentZeros == 0) {
        number.RoundTo(section.FractionPositions);
        return {number, 0};
    }
    if (number.IsZero()) return {number, 0};
    const bool general = section.IntegerPositions == 0 && !section.HasPoint;
    const int places = general ? DecimalNumber::kSignificant : section.FractionPositions;
    number.RoundTo(places - ExponentFor(section, number.Point()));
    // Rounding may have carried into a further digit, so the exponent is taken anew.
    const int exponent = ExponentFor(section, number.Point());
    number.Shift(-exponent);
    return {number, exponent};
}

void AppendInteger(std::string& text, const DecimalNumber& number, int atLeast, bool grouped)
{
    const int present = std::max(number.Point(), 0);
    for (int left = std::max(present, atLeast), first = left; left > 0; --left) {
        if (grouped && left < first && left % kGroup == 0) text += Regional::Current.Thousands;
        text += number.Digit(number.Point() - left);
    }
}

void AppendFraction(std::string& text, const DecimalNumber& number, int positions, int atLeast)
{
    while (positions > atLeast && number.Digit(number.Point() + positions - 1) == '0') --positions;
    for (int place = 0; place < positions; ++place) text += number.Digit(number.Point() + place);
}

void AppendExponent(std::string& text, int exponent, int atLeast)
{
    text += exponent < 0 ? "E-" : "E+";
    char digits[8];
    const char* const end =
        std::to_chars(digits, digits + sizeof digits, exponent < 0 ? -exponent : exponent).ptr;
    const std::size_t count = end - digits;
    const std::size_t width = std::max<std::size_t>(atLeast, count);
    text.append(width - count, '0').append(digits, count);
}

/// As many digits as there are, with a point only where a fraction follows.
void AppendPlain(std::string& text, const DecimalNumber& number)
{
    AppendInteger(text, number, 1, false);
    const int places = std::max(number.Count() - number.Point(), 0);
    if (places == 0) return;
    text += Regional::Current.DecimalPoint;
    AppendFraction(text, number, places, 0);
}

std::string PrintGeneral(const DecimalNumber& number)
{
    std::string text(number.IsNegative() ? "-" : "");
    const bool plain = number.IsZero() || (number.Point() >= kSmallestPlainPoint &&
                                           number.Point() <= DecimalNumber::kSignificant);
    DecimalNumber mantissa = number;
    if (!plain) mantissa.Shift(1 - number.Point());
    AppendPlain(text, mantissa);
    if (!plain) AppendExponent(text, number.Point() - 1, 2);
    return text;
}

std::string PrintSection(const MaskSection& section, const Rounded& rounded)
{
    const DecimalNumber& number = rounded.Number;
    std::string text;
    text.reserve(section.Prefix.size() + section.Suffix.size() + 24);
    if (number.IsNegative()) text += '-';
    text += section.Prefix;
    if (section.HasPoint || section.IntegerPositions > 0) {
        AppendInteger(text, number, section.IntegerZeros, section.Grouped);
        if (section.HasPoint) text += Regional::Current.DecimalPoint;
        AppendFraction(text, number, section.FractionPositions, section.FractionZeros);
    } else if (section.ExponentZeros > 0) {
        AppendPlain(text, number);
    }
    if (section.ExponentZeros > 0) AppendExponent(text, rounded.Exponent, section.ExponentZeros);
    return text += section.Suffix;
}

} // namespace

std::string PrintWithMask(const DecimalNumber& number, std::string_view mask)
{
    if (mask.empty()) return PrintGeneral(number);
    const std::size_t semicolon = std::min(mask.find(';'), mask.size());
    const MaskSection positive = ReadSection(mask.substr(0, semicolon));
    const bool two = semicolon + 1 < mask.size();
    if (!two || !number.IsNegative()) return PrintSection(positive, RoundFor(positive, number));
    const MaskSection negative = ReadSection(mask.substr(semicolon + 1));
    Rounded rounded = RoundFor(negative, number);
    if (rounded.Number.IsZero()) return PrintSection(positive, rounded);
    rounded.Number.DropSign(); // the section's own literal carries it
    return PrintSection(negative, rounded);
}

} // namespace forcelab
