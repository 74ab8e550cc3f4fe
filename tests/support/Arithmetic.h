#pragma once

#include "core/NumericText.h"

#include <cmath>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace forcelab::test {

/// Computes a printed expression: numbers in the regional separators with "E-06" or "°" behind
/// them, + - × ÷, parentheses, √( ), the powers ² ³ ⁴, sin, cos and atan of degrees.
/// Nothing where the text is no such expression as a whole.
class PrintedArithmetic {
  public:
    static std::optional<double> Compute(std::string_view text)
    {
        PrintedArithmetic reader(text);
        const auto value = reader.Sum();
        reader.SkipBlanks();
        return value && reader.rest_.empty() ? value : std::nullopt;
    }

  private:
    static constexpr double kDegree = 3.14159265358979 / 180;
    using Value = std::optional<double>;

    explicit PrintedArithmetic(std::string_view text) : rest_(text) {}

    void SkipBlanks()
    {
        while (!rest_.empty() && rest_.front() == ' ') rest_.remove_prefix(1);
    }
    bool Take(std::string_view token)
    {
        SkipBlanks();
        if (!rest_.starts_with(token)) return false;
        rest_.remove_prefix(token.size());
        return true;
    }
    Value Sum()
    {
        Value sum = Product();
        while (sum) {
            if (Take("+"))
                sum = Combine(sum, Product(), [](double a, double b) { return a + b; });
            else if (Take("-"))
                sum = Combine(sum, Product(), [](double a, double b) { return a - b; });
            else
                break;
        }
        return sum;
    }
    Value Product()
    {
        Value product = Signed();
        while (product) {
            if (Take("×"))
                product = Combine(product, Signed(), [](double a, double b) { return a * b; });
            else if (Take("÷"))
                product = Combine(product, Signed(), [](double a, double b) { return a / b; });
            else
                break;
        }
        return product;
    }
    template <typename Operation>
    static Value Combine(Value a, Value b, Operation operation)
    {
        return a && b ? Value(operation(*a, *b)) : std::nullopt;
    }
    Value Signed()
    {
        if (!Take("-")) return Square();
        const Value value = Square();
        return value ? Value(-*value) : value;
    }
    Value Square()
    {
        const Value value = Primary();
        if (value && Take("²")) return *value * *value;
        if (value && Take("³")) return *value * *value * *value;
        if (value && Take("⁴")) return *value * *value * *value * *value;
        return value;
    }
    Value Parenthesised()
    {
        if (!Take("(")) return std::nullopt;
        const Value value = Sum();
        return value && Take(")") ? value : std::nullopt;
    }
    Value Primary()
    {
        SkipBlanks();
        if (rest_.starts_with("(")) return Parenthesised();
        if (Take("√")) return Apply([](double x) { return std::sqrt(x); });
        if (Take("sin")) return Apply([](double x) { return std::sin(x * kDegree); });
        if (Take("cos")) return Apply([](double x) { return std::cos(x * kDegree); });
        if (Take("atan")) return Apply([](double x) { return std::atan(x) / kDegree; });
        return Number();
    }
    template <typename Function>
    Value Apply(Function function)
    {
        const Value value = Parenthesised();
        return value ? Value(function(*value)) : value;
    }
    Value Number()
    {
        std::size_t length = rest_.find_first_not_of("0123456789.,");
        if (length == std::string_view::npos) length = rest_.size();
        if (length == 0) return std::nullopt;
        if (rest_.substr(length).starts_with("E") && length + 4 <= rest_.size()) length += 4;
        const Value value = NumberFromText(rest_.substr(0, length));
        rest_.remove_prefix(length);
        if (rest_.starts_with("°")) rest_.remove_prefix(std::string_view("°").size());
        return value;
    }

    std::string_view rest_;
};

/// A printed result: its value and half a unit of its last figure.
struct PrintedResult {
    double Value;
    double HalfUnit;
};
inline std::optional<PrintedResult> ReadResult(std::string_view text)
{
    const std::size_t end = text.find_first_not_of("-0123456789.,");
    const std::string digits(text.substr(0, end));
    const auto value = NumberFromText(digits);
    if (!value) return std::nullopt;
    const std::size_t point = digits.find(Regional::Current.DecimalPoint);
    const int places = point == std::string::npos ? 0 : static_cast<int>(digits.size() - point - 1);
    double scale = 1;
    if (end != std::string_view::npos && text[end] == 'E')
        scale = std::pow(10.0, std::stoi(std::string(text.substr(end + 1, 3))));
    return PrintedResult{*value * scale, 0.5 * std::pow(10.0, -places) * scale};
}

/// The parts of a line between its equals signs.
inline std::vector<std::string> Terms(const std::string& line)
{
    std::vector<std::string> terms;
    std::size_t start = 0;
    for (std::size_t at = 0; (at = line.find(" = ", start)) != std::string::npos; start = at + 3)
        terms.push_back(line.substr(start, at - start));
    terms.push_back(line.substr(start));
    return terms;
}

} // namespace forcelab::test
