#pragma once

#include "core/Narration.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace forcelab::transform {

/// A number of a line of arithmetic: its value and how it prints.
struct Operand {
    double Value;
    std::string_view Mask;   ///< at least; more places are added where the result needs them
    std::string_view Suffix; ///< behind the digits: "°", "E-06"
};

/// An operand or an expression in print, and what the print amounts to.
struct Printed {
    std::string Text;
    double Value;
};
using PrintedList = std::vector<Printed>;

/// Prints an operand with some more places than its mask has; negative ones in parentheses.
Printed PrintOperand(const Operand& operand, int morePlaces);

/// One line of arithmetic: "Name = Symbols = numbers put in = Result Unit".
///
/// The numbers put in are printed with so many places that whoever computes the line from its own
/// print gets the result to its last digit.
struct WorkedLine {
    std::string Name;
    std::string Symbols; ///< empty: left out
    std::vector<Operand> Operands;
    /// The expressions with the numbers put in, from the printed operands; each must amount to
    /// the result. The second argument is how many places were added.
    std::function<PrintedList(const PrintedList&, int)> PutIn;
    double Exact;                            ///< the unrounded result
    std::function<std::string(double)> Show; ///< how the result prints
    std::string Unit;
};
std::string WriteLine(const WorkedLine& line);

} // namespace forcelab::transform
