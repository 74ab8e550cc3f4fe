#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace forcelab {

// Lines of arithmetic that whoever computes them from their own print finds to hold.

/// How a number prints.
struct NumberStyle {
    std::string_view Mask;        ///< at least; a line adds places where its result needs them
    std::string_view Suffix = ""; ///< behind the digits: "°", or "E-06" for a number in millionths

    [[nodiscard]] std::string operator()(double value) const;
    /// What stands for 1 in front of the suffix.
    [[nodiscard]] double One() const { return Suffix == "E-06" ? 1e-6 : 1; }
};

/// An expression in print, and what the print amounts to.
struct Printed {
    enum class Kind { Single, Power, Negative, Product, Sum };
    std::string Text;
    double Value = 0;
    double Size = 0; ///< the same with nothing cancelled, by which rounding is measured
    Kind Is = Kind::Single;
};

/// An expression of numbers. Parentheses come by themselves, wherever the order of operations or
/// a number below zero asks for them.
class Expression {
  public:
    /// Prints with so many places more than the numbers have at least.
    using Printer = std::function<Printed(int morePlaces)>;

    Expression(int whole); ///< without decimals
    Expression(double) = delete;
    explicit Expression(Printer print) : print_(std::make_shared<const Printer>(std::move(print)))
    {}

    [[nodiscard]] Printed Print(int morePlaces) const { return (*print_)(morePlaces); }
    /// What it amounts to with nothing rounded; its text is empty.
    [[nodiscard]] Printed Unrounded() const;

  private:
    std::shared_ptr<const Printer> print_;
};

Expression Number(double value, NumberStyle style);
Expression operator+(const Expression& a, const Expression& b);
Expression operator-(const Expression& a, const Expression& b);
Expression operator*(const Expression& a, const Expression& b);
Expression operator/(const Expression& a, const Expression& b);
Expression operator-(const Expression& a);
Expression Raised(const Expression& base, int power); ///< 1 to 4
Expression Root(const Expression& square);
/// Functions of degrees, or whose result is in degrees.
Expression Sin(const Expression& degrees);
Expression Cos(const Expression& degrees);
Expression Atan(const Expression& ratio);
/// In parentheses though nothing asks for them, so that it stands out as a whole.
Expression Grouped(const Expression& inner);
/// The single number that the print of an expression amounts to.
Expression Worked(const Expression& inner, NumberStyle style);
/// "a + b + c"; 0 without terms.
Expression Sum(const std::vector<Expression>& terms);

/// A term of a sum by what stands behind its sign.
struct SignedTerm {
    bool Subtracted;
    Expression Size;
};
/// "-a + b - c"; 0 without terms.
Expression Sum(const std::vector<SignedTerm>& terms);

/// One line of arithmetic: "Name = Symbols = numbers put in = Result Unit".
struct WorkedLine {
    std::string Name;
    std::string Symbols; ///< empty: left out
    /// One or more forms with the numbers put in. A single number that is the result already is
    /// left out.
    std::vector<Expression> PutIn;
    std::function<std::string(double)> Show; ///< how the result prints
    std::string Unit = "";
    std::optional<double> Exact = {}; ///< the unrounded result, where others show it as well
};

/// The line with so many places in the numbers put in that whoever computes it from its own print
/// gets the result to its last digit.
std::string WriteLine(const WorkedLine& line);

} // namespace forcelab
