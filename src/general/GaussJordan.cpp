#include "general/GaussJordan.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

// The eliminating loops run on the widest registers that the processor has. Contraction to fused
// multiply-add is off for the whole program, so the results do not depend on the choice.
#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__) &&                             \
    !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
#define FORCELAB_WIDEST __attribute__((target_clones("avx512f", "avx2", "default"), optimize("O3")))
#else
#define FORCELAB_WIDEST
#endif

namespace forcelab::general {

namespace {

constexpr double kPivotLimit = 0.001;

int PivotRow(const double* a, int n, int k)
{
    int row = k;
    for (int i = k + 1; i < n; ++i)
        if (std::abs(a[i * n + k]) > std::abs(a[row * n + k])) row = i;
    return row;
}

/// Eliminates column k from the rows `first` to `last` - 1.
FORCELAB_WIDEST void EliminateRows(double* __restrict a, double* __restrict b,
                                   const double* __restrict pivotRow, double pivotB, int n, int k,
                                   int first, int last)
{
    for (int i = first; i < last; ++i) {
        double* __restrict row = a + static_cast<std::ptrdiff_t>(i) * n;
        const double factor = row[k];
        for (int j = k + 1; j < n; ++j) row[j] -= factor * pivotRow[j];
        b[i] -= factor * pivotB;
    }
}

} // namespace

int GaussJordanSolve(std::span<double> a, std::span<double> b, int n)
{
    double* const m = a.data();
    for (int k = 0; k < n; ++k) {
        const int chosen = PivotRow(m, n, k);
        double* const row = m + static_cast<std::ptrdiff_t>(k) * n;
        const double pivot = m[chosen * n + k];
        if (std::abs(pivot) < kPivotLimit) return k + 1;
        if (chosen != k) {
            std::swap_ranges(row + k, row + n, m + chosen * n + k);
            std::swap(b[k], b[chosen]);
        }
        for (int j = k + 1; j < n; ++j) row[j] /= pivot;
        b[k] /= pivot;
        EliminateRows(m, b.data(), row, b[k], n, k, 0, k);
        EliminateRows(m, b.data(), row, b[k], n, k, k + 1, n);
    }
    return 0;
}

} // namespace forcelab::general
