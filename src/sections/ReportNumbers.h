#pragma once

#include "sections/SectionInput.h"
#include "sections/SectionRecord.h"

#include <string>

namespace forcelab::sections {

/// A number of the report: through FormatValue with as many places as show five or six digits,
/// 333.333 and 6.8529. `extra` places go beyond that, as far as FormatValue has them. Throws
/// ArithmeticFault where the value is not finite.
std::string ReportNumber(double value, int extra = 0);

/// "a ÷ b = result" without a unit. The operands show as many digits as it takes that a reader
/// who divides them as printed arrives at the result as printed; where FormatValue has not so many
/// digits, the result stands alone.
std::string QuotientText(double dividend, double divisor, double result);

/// "inch", "inch^2", ... or "mm", "mm^2", ...; power 0 has no unit. Steel shapes from the tables
/// are in inches whatever the unit option says.
std::string LengthUnitText(const CrossSection& section, const SectionEntry& entry, int power);

/// The caption of Material A (0) or B (1).
std::string MaterialText(const SectionEntry& entry, int material);

/// Takes what is left of a difference of equal numbers for the 0 that it stands for: sizes below
/// 1E-12 of `scale`.
double WithoutNoise(double value, double scale);

} // namespace forcelab::sections
