#include "truss/TrussWorkings.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace forcelab::truss {

SignedTerm SignedNumber(double value, NumberStyle style)
{
    return {value < 0, Number(std::abs(value), style)};
}

SignedTerm SignedProduct(double first, NumberStyle firstStyle, double second,
                         NumberStyle secondStyle)
{
    return {first < 0, Number(std::abs(first), firstStyle) * Number(second, secondStyle)};
}

NumberStyle CommonStyle(double a, double b)
{
    constexpr std::array<NumberStyle, 4> kResults{
        {{"###,##0.000"}, {"###,##0.00"}, {"###,##0.0"}, {"###,##0"}}};
    return *std::find_if(kResults.begin(), kResults.end() - 1,
                         [=](NumberStyle style) { return style(a) == style(b); });
}

NumberStyle RestStyle(double rest)
{
    return CommonStyle(rest, 0);
}

} // namespace forcelab::truss
