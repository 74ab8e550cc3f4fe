#include "sections/ReportNumbers.h"

#include "core/ArithmeticFault.h"
#include "core/MainModule.h"
#include "core/NumericText.h"
#include "sections/KeptShapes.h"
#include "sections/ShapeCatalogue.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace forcelab::sections {

namespace {

constexpr int kMostPlaces = 6; ///< that FormatValue has

/// The least size that gets so many places.
struct PlacesFrom {
    double Least;
    int Places;
};
constexpr PlacesFrom kPlaces[] = {{10000, 1}, {1000, 2}, {100, 3}, {1, 4}, {0.1, 5}, {0, 6}};

/// The size of the mantissa that FormatValue prints.
double MantissaSize(double value)
{
    double size = std::abs(Finite(value));
    if (size == 0 || (size > 0.001 && size < 1e6)) return size;
    while (size >= 1000) size /= 1000;
    while (size < 1) size *= 1000;
    return size;
}

int PlacesOf(double value)
{
    const double size = MantissaSize(value);
    if (size == 0) return 4;
    return std::ranges::find_if(kPlaces, [size](const auto& row) { return size >= row.Least; })
        ->Places;
}

double AsPrinted(const std::string& text)
{
    return NumberFromText(text).value_or(0);
}

} // namespace

std::string ReportNumber(double value, int extra)
{
    const int places = std::min(PlacesOf(value) + extra, kMostPlaces);
    return FormatValue(value, places, false).Joined();
}

std::string QuotientText(double dividend, double divisor, double result)
{
    const std::string wanted = ReportNumber(result);
    for (int extra = 0; extra < kMostPlaces; ++extra) {
        const std::string upper = ReportNumber(dividend, extra);
        const std::string lower = ReportNumber(divisor, extra);
        const double below = AsPrinted(lower);
        if (below != 0 && ReportNumber(AsPrinted(upper) / below) == wanted)
            return upper + MainModule::DivideText + lower + MainModule::EqualsText + wanted;
    }
    return wanted;
}

std::string LengthUnitText(const CrossSection& section, const SectionEntry& entry, int power)
{
    if (power == 0) return {};
    const bool inches = entry.LengthUnit == 0 || IsSteel(section.ShapeIndex);
    const std::string unit = inches ? "inch" : "mm";
    return power == 1 ? unit : unit + "^" + std::to_string(power);
}

std::string MaterialText(const SectionEntry& entry, int material)
{
    const std::string& caption = entry.Material[material];
    return caption.empty() ? std::string(kMaterialCaptions[material]) : caption;
}

double WithoutNoise(double value, double scale)
{
    return std::abs(value) < 1e-12 * std::abs(scale) ? 0 : value;
}

} // namespace forcelab::sections
