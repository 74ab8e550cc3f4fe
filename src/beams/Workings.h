#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace forcelab::beams {

/// An expression in print, and what the print amounts to.
struct Printed {
    std::string Text;
    double Value;
};
/// Prints with so many decimals more than the one that every number has.
using Expression = std::function<Printed(int morePlaces)>;
using Terms = std::vector<Expression>;

Expression Number(double value); ///< negative ones stand in parentheses
Expression Sum(const Terms& terms);
Expression Difference(const Expression& a, const Expression& b);
Expression Product(const Terms& factors);
Expression Quotient(const Expression& a, const Expression& b);
Expression Grouped(const Expression& inner);          ///< in parentheses
Expression Raised(const Expression& base, int power); ///< 1 to 4
Expression Negative(const Expression& grouped);       ///< "-" before an expression in parentheses

/// a ÷ c, or a × 1 / c where c is below 1; a itself where c is 1.
Expression Converted(const Expression& a, double c);

/// One line of arithmetic: "Name = Symbols = numbers put in = Result Unit".
struct WorkedLine {
    std::string Name;
    std::string Symbols; ///< empty: left out
    Expression PutIn;
    double Exact;                            ///< the unrounded result
    std::function<std::string(double)> Show; ///< how the result prints
    std::string Unit;
};

/// The line with so many decimals in the numbers put in that whoever computes it from its own
/// print gets the result to its last digit.
std::string WriteLine(const WorkedLine& line);

} // namespace forcelab::beams
