#include "core/NumericText.h"

#include "core/ArithmeticFault.h"
#include "core/FormatMask.h"
#include "core/MainModule.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace forcelab {

Regional Regional::Current;

namespace {

constexpr std::string_view kBlanks = " \t";

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool IsExponentLetter(char c)
{
    return c == 'E' || c == 'e' || c == 'D' || c == 'd';
}

/// The value of a number that no double holds: infinite, or 0 where it is too small. `plain` is
/// digits with at most one ".", and perhaps "e" with an exponent.
double BeyondDoubles(std::string_view plain)
{
    constexpr long kFar = std::numeric_limits<long>::max() / 2;
    const std::size_t letter = std::min(plain.find('e'), plain.size());
    const std::string_view mantissa = plain.substr(0, letter);
    long order = 0;
    if (letter < plain.size()) {
        const char* const first = plain.data() + letter + 1;
        const auto read = std::from_chars(first, plain.data() + plain.size(), order);
        if (read.ec != std::errc()) order = *first == '-' ? -kFar : kFar;
    }
    order = std::clamp(order, -kFar, kFar);
    const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
    const std::size_t first = std::min(mantissa.find_first_of("123456789"), mantissa.size());
    order += static_cast<long>(point) - static_cast<long>(first);
    return order > 0 ? std::numeric_limits<double>::infinity() : 0.0;
}

/// Reads the longest number at a place of a text: a sign, digits with one point, and an exponent
/// where digits follow its letter.
class NumberReader {
  public:
    /// `thousands` may stand between digits before the point; 0 for none.
    NumberReader(std::string_view text, char point, char thousands)
        : text_(text), point_(point), thousands_(thousands)
    {}

    /// Reads from the start; False where there is no digit.
    bool Read()
    {
        at_ = std::min(text_.find_first_not_of(kBlanks), text_.size());
        negative_ = At(at_) == '-';
        if (negative_ || At(at_) == '+') ++at_;
        ReadInteger();
        ReadFraction();
        if (hasDigit_) ReadExponent();
        return hasDigit_;
    }

    /// Nothing but blanks follows.
    [[nodiscard]] bool AtEnd() const
    {
        return text_.find_first_not_of(kBlanks, at_) == std::string_view::npos;
    }

    /// What was read; infinite where it is too large for a double.
    [[nodiscard]] double Value() const
    {
        double value = 0;
        const char* const end = plain_.data() + plain_.size();
        if (std::from_chars(plain_.data(), end, value).ec == std::errc::result_out_of_range)
            value = BeyondDoubles(plain_);
        return negative_ ? -value : value;
    }

  private:
    [[nodiscard]] char At(std::size_t place) const
    {
        return place < text_.size() ? text_[place] : '\0';
    }

    void ReadDigits()
    {
        for (; IsDigit(At(at_)); ++at_) plain_ += text_[at_];
    }

    void ReadInteger()
    {
        ReadDigits();
        hasDigit_ = !plain_.empty();
        while (hasDigit_ && thousands_ != '\0' && At(at_) == thousands_ && IsDigit(At(at_ + 1))) {
            ++at_;
            ReadDigits();
        }
    }

    void ReadFraction()
    {
        if (At(at_) != point_ || (!hasDigit_ && !IsDigit(At(at_ + 1)))) return;
        ++at_;
        hasDigit_ = true;
        plain_ += '.';
        ReadDigits();
    }

    void ReadExponent()
    {
        if (!IsExponentLetter(At(at_))) return;
        std::size_t digits = at_ + 1;
        const bool signedExponent = At(digits) == '-' || At(digits) == '+';
        if (signedExponent) ++digits;
        if (!IsDigit(At(digits))) return;
        plain_ += At(digits - 1) == '-' ? "e-" : "e";
        at_ = digits;
        ReadDigits();
    }

    std::string_view text_;
    char point_;
    char thousands_;
    std::size_t at_ = 0;
    bool negative_ = false;
    bool hasDigit_ = false;
    std::string plain_; // for from_chars: no sign in front, "." and "e" whatever the text has
};

/// The characters of a typed number, sorted.
struct TypedNumber {
    std::string Mantissa;
    std::string Exponent;
    bool HasExponent = false;
    double ExponentSign = 0; ///< 0 until a sign is met behind the exponent's letter
};

void SortSign(TypedNumber& typed, char sign)
{
    if (typed.HasExponent)
        typed.ExponentSign = sign == '-' ? -1.0 : 1.0;
    else
        typed.Mantissa += sign;
}

TypedNumber SortCharacters(std::string_view text)
{
    TypedNumber typed;
    for (const char c : text) {
        if (IsDigit(c))
            (typed.HasExponent ? typed.Exponent : typed.Mantissa) += c;
        else if (c == MainModule::DecimalChar)
            typed.Mantissa.append(typed.HasExponent ? 0 : 1, c);
        else if (c == '+' || c == '-')
            SortSign(typed, c);
        else if (IsExponentLetter(c))
            typed.HasExponent = true;
    }
    return typed;
}

constexpr std::array<std::string_view, 7> kMasks{
    "###,##0",      "###,##0.0",     "###,##0.00",     "###,##0.000",
    "###,##0.0000", "###,##0.00000", "###,##0.000000",
};
constexpr std::string_view kWholeMask = "###,##0.";
constexpr std::string_view kScaledWholeMask = "##0.";
constexpr double kSmallPlain = 0.001;  // up to here values are scaled
constexpr double kLargePlain = 1e6;    // and from here
constexpr double kScientific = 1e15;   // from here the mask itself makes the exponent
constexpr int kScientificExponent = 4; // characters of "E+15"

struct ScaleRow {
    double From; ///< the row holds from this size up to that of the row before it
    double Scale;
    const char* Exponent;
};
constexpr std::array<ScaleRow, 7> kScales{{
    {1e12, 1e-12, "E+12"},
    {1e9, 1e-9, "E+09"},
    {1e6, 1e-6, "E+06"},
    {0.001, 1000, "E-03"}, // 0.001 alone: what lies above it is plain
    {1e-6, 1000000, "E-06"},
    {1e-9, 1000000000, "E-09"},
    {1e-12, 1000000000000, "E-12"},
}};

/// The digits and minus signs of a mantissa up to and with its ".".
std::string WholeOf(std::string_view mantissa)
{
    std::string whole;
    for (const char c : mantissa) {
        if (IsDigit(c) || c == '-' || c == '.') whole += c;
        if (c == '.') break;
    }
    return whole;
}

FormattedValue FormatScientific(const DecimalNumber& number, std::string_view mask)
{
    FormattedValue text;
    text.Mantissa = PrintWithMask(number, std::string(mask) + "E+00");
    text.Whole = WholeOf(text.Mantissa);
    const std::size_t cut = text.Mantissa.size() - kScientificExponent;
    text.Exponent = text.Mantissa.substr(cut);
    text.Mantissa.resize(cut);
    return text;
}

FormattedValue FormatScaled(double value, std::string_view mask)
{
    const double size = std::abs(value);
    for (const ScaleRow& row : kScales) {
        if (size < row.From) continue;
        const DecimalNumber scaled(value * row.Scale);
        return {PrintWithMask(scaled, mask), row.Exponent, PrintWithMask(scaled, kScaledWholeMask)};
    }
    const std::string zero = PrintWithMask(DecimalNumber(), "0.0");
    return {zero, "", WholeOf(zero)};
}

} // namespace

double Power(double x, double y)
{
    return Finite(std::pow(x, y));
}

std::optional<double> NumberFromText(std::string_view text)
{
    NumberReader reader(text, Regional::Current.DecimalPoint, Regional::Current.Thousands);
    if (!reader.Read() || !reader.AtEnd()) return std::nullopt;
    const double value = reader.Value();
    return std::isfinite(value) ? std::optional<double>(value) : std::nullopt;
}

double LeadingNumber(std::string_view text)
{
    NumberReader reader(text, '.', '\0');
    return reader.Read() ? Finite(reader.Value()) : 0.0;
}

double StringValue(std::string_view text)
{
    const std::optional<double> value = NumberFromText(text);
    return value ? *value : LeadingNumber(text);
}

double ParseNumber(std::string_view text)
{
    const TypedNumber typed = SortCharacters(text);
    if (!typed.HasExponent) return StringValue(typed.Mantissa);
    const std::optional<double> exponent = NumberFromText(typed.Exponent);
    const std::optional<double> mantissa = NumberFromText(typed.Mantissa);
    if (exponent && mantissa) return Finite(Power(10, typed.ExponentSign * *exponent) * *mantissa);
    return Finite(Power(10, typed.ExponentSign * LeadingNumber(typed.Exponent)) *
                  LeadingNumber(typed.Mantissa));
}

std::string Format(double value, std::string_view mask)
{
    return PrintWithMask(DecimalNumber(value), mask);
}

FormattedValue FormatValue(double value)
{
    return FormatValue(value, DecimalPlaces, PlainNumbers);
}

FormattedValue FormatValue(double value, int decimalPlaces, bool plainNumbers)
{
    const bool inTable = decimalPlaces >= 0 && decimalPlaces < static_cast<int>(kMasks.size());
    const std::string_view mask = inTable ? kMasks[decimalPlaces] : std::string_view();
    const double size = std::abs(Finite(value));
    const bool plain = value == 0 || (size < kLargePlain && (size > kSmallPlain || plainNumbers));
    if (!plain && size < kScientific) return FormatScaled(value, mask);
    const DecimalNumber number(value);
    if (!plain) return FormatScientific(number, mask);
    return {PrintWithMask(number, mask), "", PrintWithMask(number, kWholeMask)};
}

} // namespace forcelab
