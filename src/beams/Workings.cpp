#include "beams/Workings.h"

#include "core/MainModule.h"
#include "core/NumericText.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace forcelab::beams {

namespace {

constexpr int kMostPlaces = 12;  // beyond these a double has nothing to print
constexpr double kNoise = 1e-13; // of the exact result's terms
constexpr double kSame = 1e-12;  // a conversion this close to 1 is none

template <typename Combine>
Expression Joined(const Terms& terms, const std::string& sign, double start, Combine combine)
{
    return [terms, sign, start, combine](int more) {
        Printed all{"", start};
        for (const Expression& term : terms) {
            const Printed printed = term(more);
            all.Text += (all.Text.empty() ? "" : sign) + printed.Text;
            all.Value = combine(all.Value, printed.Value);
        }
        return all;
    };
}

bool Agrees(const WorkedLine& line, const std::string& result, double printed)
{
    if (!std::isfinite(printed)) return false; // a divisor that still prints as 0
    return line.Show(printed) == result ||
           std::abs(printed - line.Exact) <= kNoise * std::abs(line.Exact);
}

} // namespace

Expression Number(double value)
{
    return [value](int more) {
        const std::string text = Format(value, "#,###,###,##0.0" + std::string(more, '#'));
        const double printed = StringValue(text);
        return Printed{text.front() == '-' ? "(" + text + ")" : text, printed};
    };
}

Expression Sum(const Terms& terms)
{
    return Joined(terms, " + ", 0, std::plus<>());
}

Expression Difference(const Expression& a, const Expression& b)
{
    return [a, b](int more) {
        const Printed left = a(more);
        const Printed right = b(more);
        return Printed{left.Text + " - " + right.Text, left.Value - right.Value};
    };
}

Expression Product(const Terms& factors)
{
    return Joined(factors, MainModule::TimesText, 1, std::multiplies<>());
}

Expression Quotient(const Expression& a, const Expression& b)
{
    return [a, b](int more) {
        const Printed left = a(more);
        const Printed right = b(more);
        return Printed{left.Text + MainModule::DivideText + right.Text, left.Value / right.Value};
    };
}

Expression Grouped(const Expression& inner)
{
    return [inner](int more) {
        const Printed printed = inner(more);
        // A single number needs none.
        if (printed.Text.find(' ') == std::string::npos) return printed;
        return Printed{"(" + printed.Text + ")", printed.Value};
    };
}

Expression Raised(const Expression& base, int power)
{
    constexpr std::array<const char*, 5> kPowers{"", "", "²", "³", "⁴"};
    return [base, power, sign = kPowers.at(power)](int more) {
        const Printed printed = base(more);
        return Printed{printed.Text + sign, std::pow(printed.Value, power)};
    };
}

Expression Negative(const Expression& grouped)
{
    return [grouped](int more) {
        const Printed printed = grouped(more);
        return Printed{"-" + printed.Text, -printed.Value};
    };
}

Expression Converted(const Expression& a, double c)
{
    if (std::abs(c - 1) < kSame) return a;
    return c > 1 ? Quotient(Grouped(a), Number(c)) : Product({Grouped(a), Number(1 / c)});
}

std::string WriteLine(const WorkedLine& line)
{
    const std::string result = line.Show(line.Exact);
    Printed printed{};
    for (int more = 0; more <= kMostPlaces; ++more) {
        printed = line.PutIn(more);
        if (Agrees(line, result, printed.Value)) break;
    }
    std::string text = line.Name;
    if (!line.Symbols.empty()) text += MainModule::EqualsText + line.Symbols;
    // A single number is the result itself.
    if (printed.Text != result && printed.Text != "(" + result + ")")
        text += MainModule::EqualsText + printed.Text;
    text += MainModule::EqualsText + result;
    return line.Unit.empty() ? text : text + " " + line.Unit;
}

} // namespace forcelab::beams
