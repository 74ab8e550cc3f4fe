#include "core/SharedMath.h"

#include "core/Units.h"
#include "support/Near.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>
#include <utility>
#include <vector>

namespace forcelab {
namespace {

using test::Near;

TEST(ArcCos, OfKnownCosines)
{
    EXPECT_TRUE(Near(ArcCos(0.5), kPi / 3, 1e-14));
    EXPECT_TRUE(Near(ArcCos(0), kPi / 2, 1e-14));
    EXPECT_TRUE(Near(ArcCos(-0.5), 2 * kPi / 3, 1e-14));
    EXPECT_EQ(ArcCos(1), 0);
    EXPECT_EQ(ArcCos(-1), kPi);
}

TEST(ArcCos, OutsideItsRangeIsZero)
{
    EXPECT_EQ(ArcCos(1.5), 0);
    EXPECT_EQ(ArcCos(-1.5), 0);
    EXPECT_EQ(ArcCos(std::numeric_limits<double>::quiet_NaN()), 0);
}

struct VectorRow {
    double Dy, Dx, Angle;
};
class AngleOf : public testing::TestWithParam<VectorRow> {};

TEST_P(AngleOf, TheVector)
{
    EXPECT_TRUE(Near(AngleOfVector(GetParam().Dy, GetParam().Dx), GetParam().Angle, 1e-14));
}

INSTANTIATE_TEST_SUITE_P(Quadrants, AngleOf,
                         testing::Values(VectorRow{0, 1, 0}, VectorRow{1, 1, kPi / 4},
                                         VectorRow{1, 0, kPi / 2}, VectorRow{1, -1, 3 * kPi / 4},
                                         VectorRow{0, -1, kPi}, VectorRow{-1, -1, 5 * kPi / 4},
                                         VectorRow{-1, 0, 3 * kPi / 2},
                                         VectorRow{-1, 1, 7 * kPi / 4},
                                         VectorRow{0, 0, 3 * kPi / 2},
                                         VectorRow{1.7320508075688772, 1, kPi / 3},
                                         VectorRow{-1.7320508075688772, 1, 5 * kPi / 3}));

TEST(Interpolate, FollowsTheStraightLine)
{
    EXPECT_TRUE(Near(Interpolate(2, 1, 10, 3, 20), 15));
    EXPECT_TRUE(Near(Interpolate(5, 1, 10, 3, 20), 30)) << "past the second point";
    EXPECT_TRUE(Near(Interpolate(0, 3, 20, 1, 10), 5)) << "before the first, points exchanged";
    EXPECT_EQ(Interpolate(7, 4, 11, 4, 99), 11) << "both points at one place";
}

std::vector<double> RandomList(std::size_t count, unsigned seed)
{
    std::mt19937 random(seed);
    std::uniform_int_distribution<int> value(-20, 20); // repeats are wanted
    std::vector<double> list(count);
    for (double& x : list) x = value(random);
    return list;
}

TEST(ShellSort, GivesTheSameAscending)
{
    for (const std::size_t count : {0, 1, 2, 3, 5, 8, 31, 100, 257}) {
        std::vector<double> list = RandomList(count, 1000 + count);
        std::vector<double> expected = list;
        std::sort(expected.begin(), expected.end());
        ShellSort(list);
        EXPECT_EQ(list, expected) << count << " values";
    }
}

TEST(ShellSortPaired, MovesTheCompanionAlong)
{
    for (const std::size_t count : {0, 1, 2, 3, 17, 128}) {
        std::vector<double> list = RandomList(count, 2000 + count);
        std::vector<double> companion(count);
        std::vector<std::pair<double, double>> before;
        for (std::size_t i = 0; i < count; ++i) {
            companion[i] = 100.0 + static_cast<double>(i);
            before.emplace_back(list[i], companion[i]);
        }
        ShellSortPaired(list, companion);
        EXPECT_TRUE(std::is_sorted(list.begin(), list.end()));
        std::vector<std::pair<double, double>> after;
        for (std::size_t i = 0; i < count; ++i) after.emplace_back(list[i], companion[i]);
        std::sort(before.begin(), before.end());
        std::sort(after.begin(), after.end());
        EXPECT_EQ(after, before) << count << " pairs";
    }
}

} // namespace
} // namespace forcelab
