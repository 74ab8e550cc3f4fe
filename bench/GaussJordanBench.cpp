#include "general/GaussJordan.h"

#include <Eigen/LU>
#include <benchmark/benchmark.h>

#include <random>
#include <vector>

// The elimination against Eigen's LU with partial pivoting, on the same systems in the same run.
// Both start from a fresh copy of the system, since the elimination overwrites it. The ratio is to
// be at most 1.5, and below 1 for the ten equations of the equation window.

namespace {

struct System {
    std::vector<double> A, B;
};

System RandomSystem(int n)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> value(-1, 1);
    System system{std::vector<double>(n * n), std::vector<double>(n)};
    for (double& x : system.A) x = value(random);
    for (double& x : system.B) x = value(random);
    for (int i = 0; i < n; ++i) system.A[i * n + i] += 4;
    return system;
}

void GaussJordan(benchmark::State& state)
{
    const int n = static_cast<int>(state.range(0));
    const System system = RandomSystem(n);
    System work = system;
    for (auto _ : state) {
        work.A = system.A;
        work.B = system.B;
        benchmark::DoNotOptimize(forcelab::general::GaussJordanSolve(work.A, work.B, n));
        benchmark::DoNotOptimize(work.B.data());
    }
}
BENCHMARK(GaussJordan)->Arg(10)->Arg(50)->Arg(100);

void EigenPartialPivLu(benchmark::State& state)
{
    const int n = static_cast<int>(state.range(0));
    const System system = RandomSystem(n);
    using Matrix = Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;
    const Matrix a = Eigen::Map<const Matrix>(system.A.data(), n, n);
    const Eigen::VectorXd b = Eigen::Map<const Eigen::VectorXd>(system.B.data(), n);
    Eigen::PartialPivLU<Matrix> lu(n);
    Eigen::VectorXd x(n);
    for (auto _ : state) {
        lu.compute(a);
        x = lu.solve(b);
        benchmark::DoNotOptimize(x.data());
    }
}
BENCHMARK(EigenPartialPivLu)->Arg(10)->Arg(50)->Arg(100);

} // namespace
