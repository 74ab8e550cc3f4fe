#include "general/GaussJordan.h"

#include "support/Near.h"

#include <cmath>
#include <cstring>
#include <random>
#include <vector>

using namespace forcelab::general;
using forcelab::test::Near;

namespace {

using Numbers = std::vector<double>;

struct Case {
    const char* Name;
    int N;
    Numbers A, B;
    int FailedRow;
    Numbers Solution;
};

void PrintTo(const Case& row, std::ostream* out)
{
    *out << row.Name;
}

class SmallSystems : public testing::TestWithParam<Case> {};

TEST_P(SmallSystems, SolveOrTellTheStep)
{
    Case system = GetParam();
    EXPECT_EQ(GaussJordanSolve(system.A, system.B, system.N), system.FailedRow);
    if (system.FailedRow != 0) return;
    for (int i = 0; i < system.N; ++i) EXPECT_TRUE(Near(system.B[i], system.Solution[i], 1e-12));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, SmallSystems,
    testing::Values(
        Case{"nothing to solve", 0, {}, {}, 0, {}},
        Case{"swaps at once", 2, {0, 1, 1, 0}, {2, 3}, 0, {3, 2}},
        Case{"dependent rows", 2, {1, 2, 2, 4}, {1, 2}, 2, {}},
        Case{"three unknowns", 3, {2, 1, -1, -3, -1, 2, -2, 1, 2}, {8, -11, -3}, 0, {2, 3, -1}},
        Case{"pivot below the limit", 1, {0.0005}, {1}, 1, {}},
        Case{"pivot on the limit", 1, {0.001}, {1}, 0, {1000}},
        Case{"negative pivot on the limit", 1, {-0.001}, {1}, 0, {-1000}},
        Case{"good but small coefficients", 2, {2e-4, 1e-4, 1e-4, 3e-4}, {1, 2}, 1, {}},
        Case{"zero column", 3, {1, 0, 2, 3, 0, 1, 2, 0, 5}, {1, 1, 1}, 2, {}}));

double Hilbert(int i, int j)
{
    return 1.0 / (i + j + 1);
}

TEST(GaussJordanSolve, RefusesHilbertMatricesFromTheFourth)
{
    for (int n = 1; n <= 10; ++n) {
        Numbers a(n * n);
        Numbers b(n, 1.0);
        for (int i = 0; i < n; ++i)
            for (int j = 0; j < n; ++j) a[i * n + j] = Hilbert(i, j);
        EXPECT_EQ(GaussJordanSolve(a, b, n) == 0, n <= 3) << n;
    }
}

TEST(GaussJordanSolve, KeepsTheTopmostOfEqualPivots)
{
    // A swap of rows 1 and 2 would show in the right-hand side, of which the second step fails.
    Numbers a{1, 2, -1, -2};
    Numbers b{5, 7};
    EXPECT_EQ(GaussJordanSolve(a, b, 2), 2);
    EXPECT_EQ(b, (Numbers{5, 12}));
}

TEST(GaussJordanSolve, LeavesTheColumnsOfFormerPivotsAlone)
{
    Numbers a{4, 2, 0, 8, 2, 1, 2, 3, 1};
    Numbers b{1, 2, 3};
    EXPECT_EQ(GaussJordanSolve(a, b, 3), 0);
    EXPECT_EQ(a[0], 8); // swapped at its own step, then never touched again
    EXPECT_EQ(a[3], 4);
    EXPECT_EQ(a[6], 2);
}

/// The told order of operations, written out without any care for speed.
int SolveByTheBook(Numbers& a, Numbers& b, int n)
{
    const auto at = [&](int i, int j) -> double& { return a[(i - 1) * n + j - 1]; };
    for (int k = 1; k <= n; ++k) {
        int row = k;
        for (int i = k + 1; i <= n; ++i)
            if (std::abs(at(i, k)) > std::abs(at(row, k))) row = i;
        const double p = at(row, k);
        if (std::abs(p) < 0.001) return k;
        for (int j = k; row != k && j <= n; ++j) std::swap(at(k, j), at(row, j));
        if (row != k) std::swap(b[k - 1], b[row - 1]);
        for (int j = k + 1; j <= n; ++j) at(k, j) = at(k, j) / p;
        b[k - 1] = b[k - 1] / p;
        for (int i = 1; i <= n; ++i) {
            if (i == k) continue;
            for (int j = k + 1; j <= n; ++j) at(i, j) = at(i, j) - at(i, k) * at(k, j);
            b[i - 1] = b[i - 1] - at(i, k) * b[k - 1];
        }
    }
    return 0;
}

bool SameBits(const Numbers& x, const Numbers& y)
{
    return x.empty() || std::memcmp(x.data(), y.data(), x.size() * sizeof(double)) == 0;
}

class RandomSystems : public testing::TestWithParam<int> {};

TEST_P(RandomSystems, AgreeBitForBitWithTheToldOrder)
{
    const int n = GetParam();
    std::mt19937 random(n);
    std::uniform_real_distribution<double> value(-2, 2);
    for (int round = 0; round < 20; ++round) {
        Numbers a(n * n);
        Numbers b(n);
        for (double& x : a) x = random() % 3 == 0 ? 0 : value(random);
        for (double& x : b) x = value(random);
        Numbers a2 = a;
        Numbers b2 = b;
        EXPECT_EQ(GaussJordanSolve(a, b, n), SolveByTheBook(a2, b2, n));
        EXPECT_TRUE(SameBits(a, a2));
        EXPECT_TRUE(SameBits(b, b2));
    }
}

TEST_P(RandomSystems, LeaveNoResidual)
{
    const int n = GetParam();
    std::mt19937 random(n + 1000);
    std::uniform_real_distribution<double> value(-1, 1);
    Numbers a(n * n);
    Numbers b(n);
    for (double& x : a) x = value(random);
    for (int i = 0; i < n; ++i) a[i * n + i] += 3;
    for (double& x : b) x = value(random);
    const Numbers before = a;
    const Numbers right = b;
    ASSERT_EQ(GaussJordanSolve(a, b, n), 0);
    for (int i = 0; i < n; ++i) {
        double sum = 0;
        for (int j = 0; j < n; ++j) sum += before[i * n + j] * b[j];
        EXPECT_NEAR(sum, right[i], 1e-10);
    }
}

INSTANTIATE_TEST_SUITE_P(Sizes, RandomSystems, testing::Values(1, 2, 3, 7, 10, 33, 50, 100));

} // namespace
