#pragma once

#include "core/DrawingHelpers.h"
#include "transform/MohrCalculation.h"

#include <string>
#include <string_view>

namespace forcelab::transform {

/// The values that the circle picture names.
enum class Quantity { One, Two, Three, AbsMaxShear, MaxShear };

/// "Sigma 1 = " and its fellows, in Greek letters with subscripts where the system has them.
Label QuantityName(MohrMode mode, Quantity quantity);
/// The same in words.
std::string_view QuantityWords(MohrMode mode, Quantity quantity);
/// The value as shown: shear strains are whole, not halved, and in radians.
std::string QuantityText(const StressState& state, const MohrEntry& entry, Quantity quantity);

/// A shear in the state's scale as shown: twice as large in strain, with its unit.
std::string ShearText(const StressState& state, const MohrEntry& entry, double shear);
/// A normal value as shown, with its unit.
std::string NormalText(const StressState& state, const MohrEntry& entry, double normal);
/// The size of a normal value with its unit and " (T)" or " (C)"; inertia keeps its sign.
std::string NormalWithSense(const StressState& state, const MohrEntry& entry, double normal);
/// " rad" or "E-06 rad" behind a shear strain.
std::string_view ShearStrainUnit(const MohrEntry& entry);
/// How much larger the shown shear is than the circle's ordinate: 2 in strain, else 1.
double ShearFactor(MohrMode mode);

/// True where the text of a number holds no digit but 0.
bool ShowsZero(std::string_view number);

/// An angle in radians as degrees by "##0.0#", without sign.
std::string AngleText(double radians);
/// An angle of rotation with its size and its direction: "26.57° CW".
std::string TurnText(double radians);

} // namespace forcelab::transform
