#include "transform/Workings.h"

#include "core/NumericText.h"

#include <algorithm>
#include <cmath>

namespace forcelab::transform {

namespace {

constexpr int kMostPlaces = 12;  // beyond these a double has nothing to print
constexpr double kNoise = 1e-14; // of the operands' size; cos 90° is no more than that

std::string WithMorePlaces(std::string_view mask, int morePlaces)
{
    std::string wider(mask);
    const std::size_t exponent = wider.find('E');
    wider.insert(exponent == std::string::npos ? wider.size() : exponent, morePlaces, '#');
    return wider;
}

double SizeOf(const PrintedList& operands)
{
    double size = 0;
    for (const Printed& operand : operands) size += std::abs(operand.Value);
    return size;
}

} // namespace

Printed PrintOperand(const Operand& operand, int morePlaces)
{
    const std::string digits = Format(operand.Value, WithMorePlaces(operand.Mask, morePlaces));
    const bool micro = operand.Suffix == "E-06";
    std::string text = digits + std::string(operand.Suffix);
    if (text.front() == '-') text = "(" + text + ")";
    return {text, StringValue(digits) * (micro ? 1e-6 : 1)};
}

std::string WriteLine(const WorkedLine& line)
{
    const std::string result = line.Show(line.Exact);
    PrintedList terms;
    for (int more = 0; more <= kMostPlaces; ++more) {
        PrintedList operands;
        for (const Operand& operand : line.Operands)
            operands.push_back(PrintOperand(operand, more));
        terms = line.PutIn(operands, more);
        const double noise = kNoise * SizeOf(operands);
        const bool holds = std::all_of(terms.begin(), terms.end(), [&](const Printed& term) {
            return line.Show(term.Value) == result || std::abs(term.Value - line.Exact) <= noise;
        });
        if (holds) break;
    }
    std::string text = line.Name;
    if (!line.Symbols.empty()) text += " = " + line.Symbols;
    for (const Printed& term : terms) text += " = " + term.Text;
    text += " = " + result;
    return line.Unit.empty() ? text : text + " " + line.Unit;
}

} // namespace forcelab::transform
