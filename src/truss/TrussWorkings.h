#pragma once

#include "core/Workings.h"

#include <vector>

namespace forcelab::truss {

inline constexpr NumberStyle kForce{"###,##0.000"};
inline constexpr NumberStyle kLoad{"###,##0.0##"};
inline constexpr NumberStyle kCosine{"0.0####"};
inline constexpr NumberStyle kComponent{"0.00000"};
inline constexpr NumberStyle kLength{"####0.0##"};

using SignedTerms = std::vector<SignedTerm>;

SignedTerm SignedNumber(double value, NumberStyle style);
/// The first factor gives the sign.
SignedTerm SignedProduct(double first, NumberStyle firstStyle, double second,
                         NumberStyle secondStyle);

/// With most places, 3 at first, under which both values print alike.
NumberStyle CommonStyle(double a, double b);

/// With most places, 3 at first, under which a rest of this size prints as zero.
NumberStyle RestStyle(double rest);

} // namespace forcelab::truss
