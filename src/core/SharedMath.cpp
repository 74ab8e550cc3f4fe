#include "core/SharedMath.h"

#include "core/Units.h"

#include <cmath>
#include <cstddef>
#include <utility>

namespace forcelab {

namespace {

/// Shell's method; `swap` exchanges two places of everything that moves together.
template <typename Swap>
void SortByGaps(std::span<const double> list, Swap swap)
{
    for (std::size_t gap = list.size() / 2; gap > 0; gap /= 2)
        for (std::size_t i = gap; i < list.size(); ++i)
            for (std::size_t j = i; j >= gap && list[j - gap] > list[j]; j -= gap) swap(j - gap, j);
}

} // namespace

double ArcCos(double c)
{
    if (std::abs(c) < 1) return std::atan(-c / std::sqrt(1 - c * c)) + kPi / 2;
    return c == -1 ? kPi : 0;
}

double AngleOfVector(double dy, double dx)
{
    if (dx == 0) return dy > 0 ? kPi / 2 : 3 * kPi / 2;
    const double q = std::atan(std::abs(dy) / std::abs(dx));
    if (dx > 0) return dy < 0 ? 2 * kPi - q : q;
    return dy < 0 ? kPi + q : kPi - q;
}

double Interpolate(double x, double x1, double y1, double x2, double y2)
{
    return x1 == x2 ? y1 : y1 + (y2 - y1) * (x - x1) / (x2 - x1);
}

void ShellSort(std::span<double> list)
{
    SortByGaps(list, [list](std::size_t a, std::size_t b) { std::swap(list[a], list[b]); });
}

void ShellSortPaired(std::span<double> list, std::span<double> companion)
{
    SortByGaps(list, [list, companion](std::size_t a, std::size_t b) {
        std::swap(list[a], list[b]);
        std::swap(companion[a], companion[b]);
    });
}

} // namespace forcelab
