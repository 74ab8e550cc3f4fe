#pragma once

#include <string>

namespace forcelab {

/// Captions and factors to psi of the options of an elastic modulus: 0 psi, 1 ksi, 2 MPa, 3 GPa.
inline constexpr const char* kElasticModulusUnits[] = {"psi", "ksi", "MPa", "GPa"};
double ElasticModulusFactor(int unit); ///< to psi; 1 for an index outside the table

/// E of a row of the materials list in a unit, by the mask "##,###,###,##0.00".
std::string MaterialModulusText(int row, int unit);
/// The text of a modulus box brought from one unit to another, by the mask "###,###,##0.00".
std::string ConvertModulusText(const std::string& text, int fromUnit, int toUnit);

} // namespace forcelab
