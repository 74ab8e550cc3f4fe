#include "core/Units.h"

#include <cstddef>

namespace forcelab {

namespace {

constexpr double kPoundsPerNewton = 0.224809;
constexpr double kMmPerInch = 25.4;
constexpr double kKPaPerPsi = 6.894757;

// The order of the operations is part of the tables: printed values agree to the last digit.
constexpr double kLength[] = {1, 12, 1 / kMmPerInch, 1000 / kMmPerInch};
constexpr double kLengthInMm[] = {1, 1 / kMmPerInch};
constexpr double kArea[] = {1, (1 / kMmPerInch) * (1 / kMmPerInch)};
constexpr double kForce[] = {1, 1000, kPoundsPerNewton, 1000 * kPoundsPerNewton};
constexpr double kDistLoad[] = {
    1.0 / 12,
    1000.0 / 12,
    (kPoundsPerNewton / 1000) * kMmPerInch,
    ((1000 * kPoundsPerNewton) / 1000) * kMmPerInch,
};
constexpr double kMoment[] = {
    12,
    1000 * 12,
    (kPoundsPerNewton * 1000) / kMmPerInch,
    ((1000 * kPoundsPerNewton) * 1000) / kMmPerInch,
    1,
    kPoundsPerNewton / kMmPerInch,
};
constexpr double kStress[] = {1, 1000, 1 / kKPaPerPsi, 1000 / kKPaPerPsi};
constexpr double kAngle[] = {1, kPi / 180};
constexpr double kStrain[] = {1, 0.000001};

template <std::size_t Count>
double FactorOf(const double (&factors)[Count], int unit, double outside = 1.0)
{
    return unit >= 0 && unit < static_cast<int>(Count) ? factors[unit] : outside;
}

} // namespace

double LengthFactor(int unit)
{
    return FactorOf(kLength, unit);
}

double LengthFactorInMm(int unit)
{
    return FactorOf(kLengthInMm, unit);
}

double DiameterFactorInMm(int unit)
{
    return FactorOf(kLengthInMm, unit);
}

double AreaFactor(int unit)
{
    return FactorOf(kArea, unit);
}

double ForceFactor(int unit)
{
    return FactorOf(kForce, unit);
}

double DistLoadFactor(int unit)
{
    return FactorOf(kDistLoad, unit);
}

double MomentFactor(int unit)
{
    return FactorOf(kMoment, unit);
}

double StressFactor(int unit, double unchanged)
{
    return FactorOf(kStress, unit, unchanged);
}

double ModulusFactor(int unit, double unchanged)
{
    return FactorOf(kStress, unit, unchanged);
}

double AngleFactor(int unit, double unchanged)
{
    return FactorOf(kAngle, unit, unchanged);
}

double StrainFactor(int unit, double unchanged)
{
    return FactorOf(kStrain, unit, unchanged);
}

} // namespace forcelab
