#include "transform/Failure.h"

#include "core/Materials.h"
#include "core/NumericText.h"

#include <algorithm>
#include <cmath>

namespace forcelab::transform {

namespace {

constexpr int kPlaces = 3;

/// One stress unit: to and from psi, and how it reads the table of strengths.
struct LimitUnit {
    double ToPsi;
    double FromPsi;
    int Column;
    double ColumnFactor;
};
constexpr std::array<LimitUnit, 4> kUnits{{
    {1.0, 1.0, kYieldPsi, 1.0},
    {1000.0, 1.0 / 1000.0, kYieldPsi, 1.0 / 1000.0},
    {1.0 / 6.894757, 6.894757, kYieldKPa, 1.0},
    {1000.0 / 6.894757, 6.894757 / 1000.0, kYieldKPa, 1.0 / 1000.0},
}};

int Sign(double value)
{
    return (value > 0) - (value < 0);
}

bool WithinSquare(const FailureEntry& entry)
{
    return std::abs(entry.Sigma1) < entry.Yield && std::abs(entry.Sigma2) < entry.Yield;
}

bool FailsTresca(const FailureEntry& entry)
{
    if (Sign(entry.Sigma1) == Sign(entry.Sigma2)) return !WithinSquare(entry);
    return std::abs(entry.Sigma1 - entry.Sigma2) >= entry.Yield;
}

bool FailsVonMises(const FailureEntry& entry)
{
    const double s1 = entry.Sigma1;
    const double s2 = entry.Sigma2;
    return entry.Yield * entry.Yield <= s2 * s2 + s1 * s1 - s1 * s2;
}

bool FailsMohr(const FailureEntry& entry)
{
    const double tension = std::max(entry.Sigma1, entry.Sigma2);
    const double pressure = -std::min(entry.Sigma1, entry.Sigma2);
    if (tension >= entry.Yield || pressure >= entry.Compression) return true;
    if (tension <= 0 || pressure <= 0) return false;
    return tension / entry.Yield + pressure / entry.Compression >= 1;
}

} // namespace

const std::array<FailureTheory, 4> kFailureTheories{{
    {"Maximum Shear Stress Theory (Tresca)", "Ductile Materials", "Yield Stress\r\n",
     "Enter the yield stress", false},
    {"Maximum Distortion Energy Theory (Huber /von Mises/ Hencky)", "Ductile Materials",
     "Yield Stress\r\n", "Enter the yield stress", false},
    {"Maximum Normal Stress Theory (Rankine)", "Brittle Materials", "Ultimate Stress\r\n",
     "Enter the ultimate stress", false},
    {"Mohr's Failure Criterion", "Brittle Materials", "Tension Ultimate",
     "Enter the ultimate stress", true},
}};

FailureEntry ReadFailureEntry(int theoryIndex, const std::string& sigma1, const std::string& sigma2,
                              const std::string& yield, const std::string& compression)
{
    return {theoryIndex, StringValue(sigma1), StringValue(sigma2), std::abs(ParseNumber(yield)),
            std::abs(ParseNumber(compression))};
}

bool MaterialFails(const FailureEntry& entry)
{
    switch (entry.TheoryIndex) {
    case 0:
        return FailsTresca(entry);
    case 1:
        return FailsVonMises(entry);
    case 2:
        return !WithinSquare(entry);
    default:
        return FailsMohr(entry);
    }
}

std::string ConvertLimit(const std::string& text, int fromUnit, int toUnit)
{
    const double psi = std::abs(ParseNumber(text)) * kUnits.at(fromUnit).ToPsi;
    return FormatValue(psi * kUnits.at(toUnit).FromPsi, kPlaces, false).Joined();
}

std::string MaterialLimit(int row, int unit)
{
    const bool listed = row >= 0 && row < static_cast<int>(MaterialStrengths.size());
    const LimitUnit& in = kUnits.at(unit);
    const double strength = listed ? MaterialStrengths[row][in.Column] : 0;
    return FormatValue(strength * in.ColumnFactor, kPlaces, false).Joined();
}

} // namespace forcelab::transform
