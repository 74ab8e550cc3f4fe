#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace forcelab::truss {

inline constexpr std::string_view kForceMask = "###,##0.000";
inline constexpr std::string_view kLoadMask = "###,##0.0##";
inline constexpr std::string_view kCosineMask = "0.0####";
inline constexpr std::string_view kLengthMask = "####0.0##";

/// A number of a line of arithmetic and how it prints at least; more places are added where the
/// result needs them.
struct Factor {
    double Value;
    std::string_view Mask;
};
using Product = std::vector<Factor>;

/// Minus, a sum of products, over another: what every line of the method of joints is made of.
struct Working {
    std::vector<Product> Sum;
    std::vector<Product> Divisor; ///< empty: 1
    bool Negated = false;
    [[nodiscard]] double Exact() const;
};

/// The number in print, negative ones in parentheses.
std::string PrintNumber(double value, std::string_view mask);

/// "name = symbols = numbers put in = result": the numbers put in are printed with so many places
/// that whoever computes the line from its own print gets the result to its last digit.
/// `symbols` may be empty.
std::string WorkedLine(const std::string& name, const std::string& symbols, const Working& working,
                       std::string_view resultMask);

/// "Length name = √(dx² + dy²) = result", in the same manner.
std::string LengthLine(const std::string& name, double dx, double dy);

/// The mask with most places, 3 at first, under which both values print alike.
std::string_view CommonMask(double a, double b);

/// The mask with most places, 3 at first, under which a rest of this size prints as zero.
std::string_view RestMask(double rest);

} // namespace forcelab::truss
