#include "core/Workings.h"

#include "core/MainModule.h"
#include "core/Narration.h"
#include "core/NumericText.h"
#include "core/Units.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace forcelab {

namespace {

using Kind = Printed::Kind;

constexpr int kMostPlaces = 12;  // beyond these a double has nothing to print
constexpr int kUnrounded = -1;   // instead of places: the numbers themselves
constexpr double kNoise = 1e-14; // of the numbers put in; cos 90° is no more than that
constexpr double kDegree = kPi / 180;

std::string Parenthesised(const Printed& printed, bool needed)
{
    return needed ? "(" + printed.Text + ")" : printed.Text;
}

bool StartsWithMinus(const Printed& printed)
{
    return printed.Text.starts_with('-');
}

/// A sum goes on with this term behind its sign.
std::string LaterTerm(const Printed& term, bool subtracted)
{
    return Parenthesised(term, StartsWithMinus(term) || (subtracted && term.Is == Kind::Sum));
}

std::string FirstFactor(const Printed& factor)
{
    return Parenthesised(factor, factor.Is == Kind::Sum || factor.Is == Kind::Negative);
}

std::string LaterFactor(const Printed& factor, bool divides)
{
    return Parenthesised(factor, factor.Is == Kind::Sum || StartsWithMinus(factor) ||
                                     (divides && factor.Is == Kind::Product));
}

template <typename Combine>
Expression Combined(const Expression& a, const Expression& b, Combine combine)
{
    return Expression([a, b, combine](int more) { return combine(a.Print(more), b.Print(more)); });
}

Expression Function(const std::string& name, double (*function)(double), const Expression& inner)
{
    return Expression([=](int more) {
        const Printed x = inner.Print(more);
        const double value = function(x.Value);
        return Printed{name + "(" + x.Text + ")", value, std::max(std::abs(value), 1.0)};
    });
}

/// Places go in front of an exponent.
std::string WithMorePlaces(std::string_view mask, int morePlaces)
{
    std::string wider(mask);
    return wider.insert(std::min(wider.find('E'), wider.size()), morePlaces, '#');
}

bool Agrees(const WorkedLine& line, double exact, const Printed& printed)
{
    if (!std::isfinite(printed.Value)) return false; // a divisor that still prints as 0
    return line.Show(printed.Value) == line.Show(exact) ||
           std::abs(printed.Value - exact) <= kNoise * printed.Size;
}

/// "-10.0" of "-10.000".
bool IsResult(const std::string& form, const std::string& result)
{
    const auto number = NumberFromText(form);
    return form == result || (number && number == NumberFromText(result));
}

/// All forms with the fewest places under which each amounts to the result.
std::vector<Printed> PrintForms(const WorkedLine& line, double exact)
{
    std::vector<Printed> forms(line.PutIn.size());
    for (int more = 0; more <= kMostPlaces; ++more) {
        std::transform(line.PutIn.begin(), line.PutIn.end(), forms.begin(),
                       [=](const Expression& form) { return form.Print(more); });
        if (std::all_of(forms.begin(), forms.end(),
                        [&](const Printed& form) { return Agrees(line, exact, form); }))
            break;
    }
    return forms;
}

} // namespace

std::string NumberStyle::operator()(double value) const
{
    return Format(value / One(), Mask) + std::string(Suffix);
}

Expression::Expression(int whole)
    : Expression([whole](int) {
          const double value = whole;
          return Printed{std::to_string(whole), value, std::abs(value),
                         whole < 0 ? Kind::Negative : Kind::Single};
      })
{}

Printed Expression::Unrounded() const
{
    Printed exact = Print(kUnrounded);
    exact.Text.clear();
    return exact;
}

Expression Number(double value, NumberStyle style)
{
    return Expression([value, style](int more) {
        if (more == kUnrounded) return Printed{"", value, std::abs(value)};
        const std::string digits = Format(value / style.One(), WithMorePlaces(style.Mask, more));
        const double printed = StringValue(digits) * style.One();
        return Printed{digits + std::string(style.Suffix), printed, std::abs(printed),
                       digits.starts_with('-') ? Kind::Negative : Kind::Single};
    });
}

Expression operator+(const Expression& a, const Expression& b)
{
    return Combined(a, b, [](const Printed& x, const Printed& y) {
        return Printed{x.Text + " + " + LaterTerm(y, false), x.Value + y.Value, x.Size + y.Size,
                       Kind::Sum};
    });
}

Expression operator-(const Expression& a, const Expression& b)
{
    return Combined(a, b, [](const Printed& x, const Printed& y) {
        return Printed{x.Text + " - " + LaterTerm(y, true), x.Value - y.Value, x.Size + y.Size,
                       Kind::Sum};
    });
}

Expression operator*(const Expression& a, const Expression& b)
{
    return Combined(a, b, [](const Printed& x, const Printed& y) {
        return Printed{Times(FirstFactor(x), LaterFactor(y, false)), x.Value * y.Value,
                       x.Size * y.Size, Kind::Product};
    });
}

Expression operator/(const Expression& a, const Expression& b)
{
    return Combined(a, b, [](const Printed& x, const Printed& y) {
        return Printed{Divided(FirstFactor(x), LaterFactor(y, true)), x.Value / y.Value,
                       x.Size / std::abs(y.Value), Kind::Product};
    });
}

Expression operator-(const Expression& a)
{
    return Expression([a](int more) {
        const Printed x = a.Print(more);
        return Printed{"-" + LaterTerm(x, true), -x.Value, x.Size, Kind::Product};
    });
}

Expression Raised(const Expression& base, int power)
{
    constexpr std::array<const char*, 5> kPowers{"", "", "²", "³", "⁴"};
    return Expression([base, power, sign = kPowers.at(power)](int more) {
        const Printed x = base.Print(more);
        return Printed{Parenthesised(x, x.Is != Kind::Single) + sign, std::pow(x.Value, power),
                       std::pow(x.Size, power), Kind::Power};
    });
}

Expression Root(const Expression& square)
{
    return Expression([square](int more) {
        const Printed x = square.Print(more);
        return Printed{"√(" + x.Text + ")", std::sqrt(x.Value), std::sqrt(x.Size)};
    });
}

Expression Sin(const Expression& degrees)
{
    return Function(
        "sin", [](double x) { return std::sin(x * kDegree); }, degrees);
}

Expression Cos(const Expression& degrees)
{
    return Function(
        "cos", [](double x) { return std::cos(x * kDegree); }, degrees);
}

Expression Atan(const Expression& ratio)
{
    return Function(
        "atan", [](double x) { return std::atan(x) / kDegree; }, ratio);
}

Expression Grouped(const Expression& inner)
{
    return Expression([inner](int more) {
        const Printed x = inner.Print(more);
        return Printed{"(" + x.Text + ")", x.Value, x.Size};
    });
}

Expression Worked(const Expression& inner, NumberStyle style)
{
    return Expression(
        [inner, style](int more) { return Number(inner.Print(more).Value, style).Print(more); });
}

Expression Sum(const std::vector<Expression>& terms)
{
    std::vector<SignedTerm> added;
    added.reserve(terms.size());
    for (const Expression& term : terms) added.push_back({false, term});
    return Sum(added);
}

Expression Sum(const std::vector<SignedTerm>& terms)
{
    if (terms.empty()) return 0;
    Expression sum = terms.front().Subtracted ? -terms.front().Size : terms.front().Size;
    for (auto term = terms.begin() + 1; term != terms.end(); ++term)
        sum = term->Subtracted ? sum - term->Size : sum + term->Size;
    return sum;
}

std::string WriteLine(const WorkedLine& line)
{
    const double exact = line.Exact ? *line.Exact : line.PutIn.front().Unrounded().Value;
    const std::string result = line.Show(exact);
    std::string text = line.Name;
    if (!line.Symbols.empty()) text += MainModule::EqualsText + line.Symbols;
    for (const Printed& form : PrintForms(line, exact))
        if (!IsResult(form.Text, result)) text += MainModule::EqualsText + form.Text;
    return text + MainModule::EqualsText + WithUnit(result, line.Unit);
}

} // namespace forcelab
