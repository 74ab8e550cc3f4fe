#pragma once

#include <span>

namespace forcelab::general {

/// Solves a x = b in place by Gauss-Jordan elimination with partial pivoting, the one routine for
/// all systems of equations of the program.
///
/// `a` is n x n, row after row; both arrays are the caller's and are overwritten; `b` then holds
/// the solution and `a` nothing of use. Allocates nothing. A pivot smaller in size than 0.001 ends
/// the elimination: the limit is absolute, so the units of the caller must suit it.
/// Returns 0, or the step (from 1) at which no usable pivot was found. n is 0 to 100.
int GaussJordanSolve(std::span<double> a, std::span<double> b, int n);

} // namespace forcelab::general
