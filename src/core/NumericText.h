#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace forcelab {

/// The separators of the system. The program fills Current once at start; tests set the comma.
struct Regional {
    char DecimalPoint = '.';
    char Thousands = ',';
    static Regional Current;
};

/// How FormatValue prints: the last setting stays in force until a caller changes it.
inline int DecimalPlaces = 0;
inline bool PlainNumbers = false;

/// The three strings of FormatValue. Mantissa and Exponent join without a blank.
struct FormattedValue {
    std::string Mantissa;
    std::string Exponent; ///< "" or "E+06" and the like, a multiple of three
    std::string Whole;    ///< the part up to and including the point, to align columns
    [[nodiscard]] std::string Joined() const { return Mantissa + Exponent; }
};

/// Reads what a person typed. Digits, the decimal character, signs and an exponent letter count,
/// every other character is dropped. An exponent counts only with a sign behind its letter:
/// "1.5e+3" is 1500, "1.5e3" is 1.5. Text without a digit is 0.
/// Throws ArithmeticFault on overflow ("1e+400"), nothing else.
double ParseNumber(std::string_view text);

/// Strict reader of the whole text under the regional settings, as the program itself writes
/// numbers: thousands separators between digits, blanks at the ends, a sign in front, an exponent
/// with or without a sign. Nothing where the text is no number or too large for a double.
std::optional<double> NumberFromText(std::string_view text);

/// The longest number at the start of the text, with "." as decimal point whatever the regional
/// settings; 0 where there is none. Throws ArithmeticFault on overflow.
double LeadingNumber(std::string_view text);

/// NumberFromText, or LeadingNumber where that fails. For text that the program wrote itself.
double StringValue(std::string_view text);

/// x to the power y; throws ArithmeticFault where that is not finite.
double Power(double x, double y);

/// Prints with a picture mask: `0` and `#` digit positions, `.`, `,` between positions for
/// thousands, `E+00`, `;` between a section for positive numbers and zero and one for negative
/// ones, and the literals `+`, `-` and blank. Rounds the number as it prints with 15 significant
/// digits, half away from zero, so that 2.675 is "2.68" under "0.00". With several integer
/// positions and an exponent, the exponent is a multiple of three. A value that rounds to zero
/// carries no minus sign. The empty mask is the general number.
/// Throws ArithmeticFault where the value is not finite.
std::string Format(double value, std::string_view mask);

/// Mantissa, exponent (a multiple of three) and whole part by DecimalPlaces and PlainNumbers.
/// Throws ArithmeticFault where the value is not finite.
FormattedValue FormatValue(double value);

/// The same with settings of its own, which leave DecimalPlaces and PlainNumbers alone.
FormattedValue FormatValue(double value, int decimalPlaces, bool plainNumbers);

} // namespace forcelab
