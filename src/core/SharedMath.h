#pragma once

#include <span>

namespace forcelab {

/// Arc cosine in radians, 0 to pi; 0 where |c| is above 1.
double ArcCos(double c);

/// Angle of the vector (dx, dy), 0 to 2 pi. With dx = 0: pi / 2 for dy above 0, else 3 pi / 2.
double AngleOfVector(double dy, double dx);

/// The straight line through (x1, y1) and (x2, y2) at x; y1 where x1 = x2.
double Interpolate(double x, double x1, double y1, double x2, double y2);

/// Sorts ascending in place, by Shell's method with the gap halved from n / 2 down.
void ShellSort(std::span<double> list);

/// The same; `companion`, of the same length, moves with `list`.
void ShellSortPaired(std::span<double> list, std::span<double> companion);

} // namespace forcelab
