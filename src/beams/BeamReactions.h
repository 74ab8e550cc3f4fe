#pragma once

#include "beams/BeamRecord.h"

#include <array>

namespace forcelab::beams {

/// Reactions and constants of integration for each load case, columns 1 to 5; lb and in.
struct BeamReactions {
    using Cases = std::array<double, kLoadCases + 1>;
    Cases ReactionA{}; ///< upward positive, at SupportA
    Cases ReactionB{};
    Cases MomentA{}; ///< fixed-end moments on the beam, counterclockwise positive
    Cases MomentB{};
    Cases SlopeConstant{};      ///< C1 of EI times slope, lb-in^2
    Cases DeflectionConstant{}; ///< C2 of EI times deflection, lb-in^3
};

inline BeamReactions CurrentReactions;

/// Values at one x. Moment is positive where the beam sags, deflection upward; slope and
/// deflection are EI times the true ones, lb-in^2 and lb-in^3.
struct BeamValues {
    double Shear, Moment, Slope, Deflection;
};

/// 1 for x at or beyond a, else 0.
double StepAt(double x, double a);
/// The product 1 to n; 1 for 0.
double Factorial(int n);

/// Sum of all loads of a case and of their moments about x = 0, clockwise positive.
struct LoadSums {
    double Force = 0;
    double Moment = 0;
};
LoadSums SumLoads(const BeamRecord& beam, int loadCase);

/// Reactions from equilibrium, constants from the supports' zero deflection (and slope at a wall),
/// for cases 1 and 2 without load factors, 2 to 5 with them. A beam without span, or without a
/// type, leaves its case as it was, but for moment reactions of 0.
/// Source: double integration with discontinuity functions, as in any mechanics of materials text.
void CalculateReactions(const BeamRecord& beam, BeamReactions& reactions);

/// The closed form at x, 0 to BeamLength. A jump is seen from the right: at a load or support the
/// value behind it counts. ReverseShearSign turns the shear round, and nothing else.
BeamValues BeamValuesAt(const BeamRecord& beam, const BeamReactions& reactions, int loadCase,
                        double x);

} // namespace forcelab::beams
