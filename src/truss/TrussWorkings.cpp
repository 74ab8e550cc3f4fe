#include "truss/TrussWorkings.h"

#include "core/Narration.h"
#include "core/NumericText.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>

namespace forcelab::truss {

namespace {

constexpr int kMostPlaces = 12;  // beyond these a double has nothing to print
constexpr double kNoise = 1e-14; // of the numbers put in
constexpr std::array<std::string_view, 4> kResultMasks{"###,##0.000", "###,##0.00", "###,##0.0",
                                                       "###,##0"};

/// An expression in print, what the print amounts to, and the size of its numbers.
struct Printed {
    std::string Text;
    double Value = 0;
    double Size = 0;
};

std::string Parenthesised(const std::string& text)
{
    return text.starts_with('-') ? "(" + text + ")" : text;
}

Printed Print(const Factor& factor, int morePlaces)
{
    const std::string digits =
        Format(factor.Value, std::string(factor.Mask) + std::string(morePlaces, '#'));
    const double value = StringValue(digits);
    return {Parenthesised(digits), value, std::abs(value)};
}

Printed Print(const Product& product, int morePlaces)
{
    Printed all{"", 1, 1};
    for (const Factor& factor : product) {
        const Printed one = Print(factor, morePlaces);
        all.Text = all.Text.empty() ? one.Text : Times(all.Text, one.Text);
        all.Value *= one.Value;
        all.Size *= one.Size;
    }
    return all;
}

/// A product with a negative first factor is subtracted.
Printed Print(const std::vector<Product>& sum, int morePlaces)
{
    Printed all;
    for (Product product : sum) {
        const bool minus = product.front().Value < 0;
        if (minus) product.front().Value = -product.front().Value;
        const Printed one = Print(product, morePlaces);
        all.Text += all.Text.empty() ? (minus ? "-" : "") : (minus ? " - " : " + ");
        all.Text += one.Text;
        all.Value += minus ? -one.Value : one.Value;
        all.Size += one.Size;
    }
    if (sum.empty()) all.Text = "0";
    return all;
}

std::string Grouped(const Printed& sum, const std::vector<Product>& products)
{
    const bool single = products.size() == 1 && products.front().size() == 1;
    return single ? Parenthesised(sum.Text) : "(" + sum.Text + ")";
}

Printed Print(const Working& working, int morePlaces)
{
    Printed all = Print(working.Sum, morePlaces);
    if (working.Negated || !working.Divisor.empty()) all.Text = Grouped(all, working.Sum);
    if (working.Negated) {
        all.Text = "-" + all.Text;
        all.Value = -all.Value;
    }
    if (working.Divisor.empty()) return all;
    const Printed divisor = Print(working.Divisor, morePlaces);
    return {Divided(all.Text, Grouped(divisor, working.Divisor)), all.Value / divisor.Value,
            all.Size / std::abs(divisor.Value)};
}

double ExactSum(const std::vector<Product>& sum)
{
    double all = 0;
    for (const Product& product : sum) {
        double one = 1;
        for (const Factor& factor : product) one *= factor.Value;
        all += one;
    }
    return all;
}

/// The print with the fewest places that still amounts to the result.
std::string EnoughPlaces(const std::function<Printed(int)>& print, double exact,
                         std::string_view mask)
{
    const std::string result = Format(exact, mask);
    Printed printed;
    for (int more = 0; more <= kMostPlaces; ++more) {
        printed = print(more);
        if (Format(printed.Value, mask) == result) break;
        if (std::abs(printed.Value - exact) <= kNoise * printed.Size) break;
    }
    return printed.Text == result ? result : printed.Text + " = " + result;
}

} // namespace

double Working::Exact() const
{
    const double sum = ExactSum(Sum) / (Divisor.empty() ? 1 : ExactSum(Divisor));
    return Negated ? -sum : sum;
}

std::string PrintNumber(double value, std::string_view mask)
{
    return Print(Factor{value, mask}, 0).Text;
}

std::string WorkedLine(const std::string& name, const std::string& symbols, const Working& working,
                       std::string_view resultMask)
{
    const auto print = [&working](int more) { return Print(working, more); };
    return name + " = " + (symbols.empty() ? "" : symbols + " = ") +
           EnoughPlaces(print, working.Exact(), resultMask);
}

std::string LengthLine(const std::string& name, double dx, double dy)
{
    const auto print = [=](int more) {
        const Printed x = Print(Factor{std::abs(dx), kLengthMask}, more);
        const Printed y = Print(Factor{std::abs(dy), kLengthMask}, more);
        const double length = std::hypot(x.Value, y.Value);
        return Printed{"√(" + x.Text + "² + " + y.Text + "²)", length, length};
    };
    return "Length " + name + " = " + EnoughPlaces(print, std::hypot(dx, dy), kForceMask);
}

std::string_view CommonMask(double a, double b)
{
    const auto alike = [=](std::string_view mask) { return Format(a, mask) == Format(b, mask); };
    const auto found = std::find_if(kResultMasks.begin(), kResultMasks.end() - 1, alike);
    return *found;
}

std::string_view RestMask(double rest)
{
    const auto isZero = [=](std::string_view mask) {
        return Format(rest, mask) == Format(0, mask);
    };
    const auto found = std::find_if(kResultMasks.begin(), kResultMasks.end() - 1, isZero);
    return *found;
}

} // namespace forcelab::truss
