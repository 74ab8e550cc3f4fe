#pragma once

#include <stdexcept>

namespace forcelab {

/// A result that is not finite: a division by zero, an overflow or a NaN.
///
/// It is the only exception that crosses a module's border. Every form handler runs inside
/// Form::Guard, which catches it and leaves the earlier results in place.
class ArithmeticFault : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Hands back `value`; throws ArithmeticFault where it is infinite or not a number.
double Finite(double value);

} // namespace forcelab
