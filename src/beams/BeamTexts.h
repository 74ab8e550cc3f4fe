#pragma once

#include "beams/BeamCurves.h"
#include "beams/BeamReactions.h"
#include "beams/BeamRecord.h"

#include <string>
#include <vector>

namespace forcelab::beams {

inline constexpr std::array<std::string_view, 2> kSlopeUnits{"radians", "degrees"};
inline constexpr std::array<std::string_view, 2> kDeflectionUnits{"in", "mm"};

/// The unit options of the diagrams and the EI that slopes and deflections are divided by.
struct DiagramUnits {
    int Length = 0;     ///< kLengthUnits
    int Force = 0;      ///< kForceUnits
    int Moment = 0;     ///< kMomentUnits
    int Slope = 0;      ///< kSlopeUnits
    int Deflection = 0; ///< kDeflectionUnits
    double BeamEI = 1;  ///< lb-in^2
};

/// What turns EI times slope into the slope shown: unit factor / EI.
double SlopeScale(const DiagramUnits& units);
/// What turns EI times deflection into the deflection shown.
double DeflectionScale(const DiagramUnits& units);

// Values of the record and of the curves as the diagrams show them, without their unit.

/// A position, by "######0.0#".
std::string LengthText(double x, const DiagramUnits& units);
/// A number with one decimal, and an exponent from a million on.
std::string PlainText(double value);
std::string ForceText(double force, const DiagramUnits& units);
std::string MomentText(double moment, const DiagramUnits& units);
/// A slope or deflection as scaled for show, with at least three digits that tell.
std::string SmallText(double scaled);
std::string SlopeText(double eiSlope, const DiagramUnits& units);
std::string DeflectionText(double eiDeflection, const DiagramUnits& units);

/// The lines of cboReactions for a load case, as on the load diagram: "A = 30.6 kN (up)",
/// "MA = 158.0 kN-m (ccw)".
std::vector<std::string> FillReactionList(const BeamRecord& beam, const BeamReactions& reactions,
                                          const DiagramUnits& units, int loadCase);

} // namespace forcelab::beams
