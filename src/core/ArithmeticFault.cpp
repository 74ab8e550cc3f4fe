#include "core/ArithmeticFault.h"

#include <cmath>

namespace forcelab {

double Finite(double value)
{
    if (std::isfinite(value)) return value;
    throw ArithmeticFault("a number is too large");
}

} // namespace forcelab
