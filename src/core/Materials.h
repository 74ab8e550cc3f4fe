#pragma once

#include <array>
#include <span>
#include <string_view>

namespace forcelab {

/// Columns of MaterialConstants.
enum MaterialConstant : int {
    kModulusKsi,    ///< E, ksi
    kModulusGPa,    ///< E, GPa
    kExpansionPerF, ///< coefficient of thermal expansion, 1E-06 per degree F
    kExpansionPerC, ///< coefficient of thermal expansion, 1E-06 per degree C
    kPoisson,       ///< Poisson's ratio
};
/// Columns of MaterialStrengths.
enum MaterialStrength : int { kYieldPsi, kYieldKPa };
/// Columns of MaterialShear.
enum MaterialShearColumn : int { kShearModulusKsi, kShearModulusGPa };

// Typical properties of engineering materials, as handbooks of mechanics of materials print them.
// The row of a table is the row of its list box. Rows past the names are 0, so that a module can
// add a "User Defined" of its own at the end.
extern const std::array<std::array<double, 5>, 31> MaterialConstants;
extern const std::array<std::array<double, 2>, 21> MaterialStrengths;
extern const std::array<std::array<double, 2>, 31> MaterialShear; ///< its rows are its own

/// Names of the rows of MaterialConstants and MaterialStrengths.
std::span<const std::string_view> MaterialNames();
/// Names of the rows of MaterialShear.
std::span<const std::string_view> ShearMaterialNames();

/// How often the material list has been filled since the program started.
inline int MaterialTableLoaded = 0;

} // namespace forcelab
