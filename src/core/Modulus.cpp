#include "core/Modulus.h"

#include "core/Materials.h"
#include "core/NumericText.h"

#include <array>
#include <cmath>

namespace forcelab {

namespace {

/// How one unit option reads the materials table, and what it is in psi.
struct ModulusUnit {
    double ToPsi;
    double FromPsi;
    int Column;
    double ColumnFactor;
};
constexpr std::array<ModulusUnit, 4> kUnits{{
    {1.0, 1.0, kModulusKsi, 1000.0},
    {1000.0, 1.0 / 1000.0, kModulusKsi, 1.0},
    {1000.0 / 6.894757, 6.894757 / 1000.0, kModulusGPa, 1000.0},
    {1000000.0 / 6.894757, 6.894757 / 1000000.0, kModulusGPa, 1.0},
}};

bool IsUnit(int unit)
{
    return unit >= 0 && unit < static_cast<int>(kUnits.size());
}

} // namespace

double ElasticModulusFactor(int unit)
{
    return IsUnit(unit) ? kUnits[unit].ToPsi : 1.0;
}

std::string MaterialModulusText(int row, int unit)
{
    if (row < 0 || row >= static_cast<int>(MaterialConstants.size()) || !IsUnit(unit)) return {};
    const ModulusUnit& in = kUnits[unit];
    return Format(MaterialConstants[row][in.Column] * in.ColumnFactor, "##,###,###,##0.00");
}

std::string ConvertModulusText(const std::string& text, int fromUnit, int toUnit)
{
    const double fromPsi = IsUnit(toUnit) ? kUnits[toUnit].FromPsi : 1.0;
    const double psi = ParseNumber(text) * ElasticModulusFactor(fromUnit);
    return Format(psi * fromPsi, "###,###,##0.00");
}

} // namespace forcelab
