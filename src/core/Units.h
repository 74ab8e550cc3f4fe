#pragma once

namespace forcelab {

/// A value of pi with fifteen digits, the one that all modules use.
inline constexpr double kPi = 3.14159265358979;

// Factors that bring a typed value into inches, pounds, psi and radians, by the index of the unit
// option; dividing by the same factor brings the value back. An index outside the table gives 1,
// except where a function takes `unchanged`, which it then hands back.

double LengthFactor(int unit);       ///< to in: 0 in, 1 ft, 2 mm, 3 m
double LengthFactorInMm(int unit);   ///< to in: 0 in, 1 mm
double DiameterFactorInMm(int unit); ///< to in: 0 in, 1 mm
double AreaFactor(int unit);         ///< to in^2: 0 in^2, 1 mm^2
double ForceFactor(int unit);        ///< to lb: 0 lbs, 1 kips, 2 N, 3 kN
double DistLoadFactor(int unit);     ///< to lb/in: 0 lbs/ft, 1 kips/ft, 2 N/m, 3 kN/m
double MomentFactor(int unit); ///< to lb-in: 0 ft-lbs, 1 ft-kips, 2 N-m, 3 kN-m, 4 lb-in, 5 N-mm
double StressFactor(int unit, double unchanged = 1.0);  ///< to psi: 0 psi, 1 ksi, 2 kPa, 3 MPa
double ModulusFactor(int unit, double unchanged = 1.0); ///< to psi: 0 psi, 1 ksi, 2 kPa, 3 MPa
double AngleFactor(int unit, double unchanged = 1.0);   ///< to radians: 0 radians, 1 degrees
double StrainFactor(int unit, double unchanged = 1.0);  ///< to in/in: 0 in/in, 1 microstrain

} // namespace forcelab
