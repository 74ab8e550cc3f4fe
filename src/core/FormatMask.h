#pragma once

#include "core/DecimalNumber.h"

#include <string>
#include <string_view>

namespace forcelab {

/// Prints a number with a picture mask under the regional settings; what Format does, for callers
/// that print one number with several masks.
std::string PrintWithMask(const DecimalNumber& number, std::string_view mask);

} // namespace forcelab
