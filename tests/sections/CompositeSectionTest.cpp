#include "sections/SectionCases.h"

#include <array>
#include <cmath>

namespace forcelab::sections::test {
namespace {

using forcelab::test::Local;
using forcelab::test::Near;

/// A section in two materials by the colours 9 (A) and 10 (B) of its elements.
Worked Composite(int shape, const std::vector<double>& boxes, const std::vector<int>& colours,
                 const char* modulusA, const char* modulusB, int unit = 1)
{
    Worked worked = Entered(shape, boxes);
    worked.Entry.Composite = true;
    worked.Entry.Modulus = {Local("0.0"), Local(modulusA), Local(modulusB)};
    worked.Entry.ModulusUnit = unit;
    for (std::size_t k = 0; k < colours.size(); ++k)
        worked.Entry.Swatch[k] = IndexedColour(colours[k]);
    return worked;
}

TEST(Composite, SteelPlateOnWood)
{
    Worked worked = Composite(kTShape, {6, 0.5, 10, 6}, {10, 9}, "1600.0", "29000.0");
    ASSERT_FALSE(worked.Compute().has_value());
    const auto at = [&](CompositeRow row) { return worked.At(row, Column::CompositeZz); };
    EXPECT_TRUE(Near(at(CompositeRow::RatioBToA), 18.125));
    EXPECT_TRUE(Near(at(CompositeRow::AreaAsA), 114.375));
    EXPECT_TRUE(Near(at(CompositeRow::LowEdge), 7.4959, 1e-5));
    EXPECT_TRUE(Near(at(CompositeRow::HighEdge), 10.5 - 7.4959, 2e-5));
    EXPECT_TRUE(Near(at(CompositeRow::InertiaAsA), 1287.34, 1e-5));
    EXPECT_TRUE(Near(at(CompositeRow::InertiaAsB), 71.0258, 1e-5));
    EXPECT_TRUE(Near(at(CompositeRow::RatioAToB), 1 / 18.125));
    EXPECT_TRUE(Near(at(CompositeRow::AreaAsB), 114.375 / 18.125));
    EXPECT_TRUE(Near(at(CompositeRow::GyrationAsA), std::sqrt(1287.34 / 114.375), 1e-5));
    EXPECT_TRUE(Near(at(CompositeRow::GyrationAsB), at(CompositeRow::GyrationAsA)));
    // About Y-Y both parts are centred: (10 + 18.125 x 0.5) 6 cubed / 12.
    EXPECT_TRUE(Near(worked.At(CompositeRow::InertiaAsA, Column::CompositeYy), 343.125));
    EXPECT_TRUE(Near(worked.At(CompositeRow::LowEdge, Column::CompositeYy), 3));
}

TEST(Composite, ColumnsOfInchesCopyTheModuliAsEntered)
{
    Worked worked = Composite(kTShape, {152.4, 12.7, 254, 152.4}, {10, 9}, "1600.0", "29000.0");
    worked.Entry.LengthUnit = 1;
    ASSERT_FALSE(worked.Compute().has_value());
    for (const Column column : {Column::CompositeZzInches, Column::CompositeYyInches}) {
        EXPECT_EQ(worked.At(CompositeRow::ModulusA, column), 1600);
        EXPECT_EQ(worked.At(CompositeRow::ModulusB, column), 29000);
        EXPECT_TRUE(Near(worked.At(CompositeRow::RatioBToA, column), 18.125));
        EXPECT_TRUE(Near(worked.At(CompositeRow::AreaAsA, column), 114.375));
        EXPECT_TRUE(Near(worked.At(CompositeRow::AreaAsB, column), 114.375 / 18.125));
    }
    EXPECT_TRUE(
        Near(worked.At(CompositeRow::InertiaAsA, Column::CompositeZzInches), 1287.34, 1e-5));
    EXPECT_TRUE(
        Near(worked.At(CompositeRow::InertiaAsB, Column::CompositeZzInches), 71.0258, 1e-5));
    EXPECT_TRUE(Near(worked.At(CompositeRow::LowEdge, Column::CompositeZzInches), 7.4959, 1e-5));
    EXPECT_TRUE(Near(worked.At(CompositeRow::GyrationAsA, Column::CompositeZz) / 25.4,
                     worked.At(CompositeRow::GyrationAsA, Column::CompositeZzInches)));
}

TEST(Composite, LeavesTheColumnsOfOneMaterial)
{
    Worked worked = Composite(kTShape, {8, 1, 9, 1}, {9, 10}, "2.0", "4.0");
    for (int row = 1; row <= 18; ++row)
        for (int column = 1; column <= 4; ++column)
            worked.Section.Record.At(row, column) = 100 * row + column;
    worked.Section.PrincipalAxisEnds = {1, 2, 3, 4};
    ASSERT_FALSE(worked.Compute().has_value());
    for (int row = 1; row <= 18; ++row)
        for (int column = 1; column <= 4; ++column)
            EXPECT_EQ(worked.Section.Record.At(row, column), 100 * row + column);
    EXPECT_EQ(worked.Section.PrincipalAxisEnds, (std::array<double, 4>{1, 2, 3, 4}));
}

TEST(Composite, OfOneStiffnessIsTheHomogeneousSection)
{
    Worked worked = Composite(kHat, SampleDimensions(kHat), {9, 10, 9, 10, 10}, "5.0", "5.0");
    ASSERT_FALSE(worked.Compute().has_value());
    const Worked plain = Computed(kHat, SampleDimensions(kHat));
    EXPECT_TRUE(Near(worked.At(CompositeRow::AreaAsB, Column::CompositeZz),
                     plain.At(Row::Area, Column::Zz)));
    EXPECT_TRUE(Near(worked.At(CompositeRow::InertiaAsA, Column::CompositeZz),
                     plain.At(Row::Inertia, Column::Zz)));
    EXPECT_TRUE(Near(worked.At(CompositeRow::InertiaAsB, Column::CompositeYy),
                     plain.At(Row::Inertia, Column::Yy)));
}

TEST(Composite, FillsABoxWithTheOtherMaterial)
{
    // Wood 5 x 8.5 inside a steel 6 x 10: as wood, 20 x (outer - inner) + inner.
    Worked worked = Composite(kBox, {6, 10, 5, 8.5}, {10, 9}, "1450.0", "29000.0");
    ASSERT_FALSE(worked.Compute().has_value());
    const double inner = 5 * std::pow(8.5, 3) / 12;
    EXPECT_TRUE(
        Near(worked.At(CompositeRow::AreaAsA, Column::CompositeZz), 20 * (60 - 42.5) + 42.5));
    EXPECT_TRUE(
        Near(worked.At(CompositeRow::InertiaAsA, Column::CompositeZz), 20 * (500 - inner) + inner));
    EXPECT_TRUE(
        Near(worked.At(CompositeRow::InertiaAsB, Column::CompositeZz), (500 - inner) + inner / 20));
    EXPECT_TRUE(Near(worked.At(CompositeRow::LowEdge, Column::CompositeZz), 5));
    EXPECT_TRUE(Near(worked.Section.Details[2][1], (1 - 20) * 42.5));
    EXPECT_TRUE(Near(worked.Section.Details[2][15], (0.05 - 1) * 42.5));
}

TEST(Composite, TableHasBothTransformations)
{
    Worked worked = Composite(kTShape, {6, 0.5, 10, 6}, {10, 9}, "1600.0", "29000.0");
    ASSERT_FALSE(worked.Compute().has_value());
    const DetailTable& d = worked.Section.Details;
    const double n = 18.125;
    const double yBar = worked.At(CompositeRow::LowEdge, Column::CompositeZz);
    const std::array<double, 37> steel{0,
                                       n * 3,
                                       3,
                                       n * 9,
                                       n * 9,
                                       0,
                                       0,
                                       n * 9,
                                       n * 3,
                                       10.25,
                                       n * 30.75,
                                       n / 16,
                                       10.25 - yBar,
                                       0,
                                       0,
                                       3,
                                       3,
                                       9,
                                       9,
                                       0,
                                       0,
                                       9,
                                       3,
                                       10.25,
                                       30.75,
                                       0.0625,
                                       10.25 - yBar,
                                       0,
                                       0,
                                       n * 0.5,
                                       6,
                                       n * 6,
                                       0.5,
                                       0.5,
                                       6,
                                       6,
                                       0.5};
    for (const int column : {1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12, 15, 16, 17, 18,
                             19, 20, 21, 22, 23, 24, 25, 26, 29, 30, 31, 32, 33, 34, 35, 36})
        EXPECT_TRUE(Near(d[1][column], steel[column])) << column;
    EXPECT_TRUE(Near(d[1][13], n * 3 * (10.25 - yBar) * (10.25 - yBar)));
    EXPECT_TRUE(Near(d[1][28], d[1][25] + d[1][27]));
    EXPECT_TRUE(Near(d[2][33], 10 / n));
    EXPECT_TRUE(Near(d[0][1], 114.375));
    EXPECT_TRUE(Near(d[0][4], 3));
    EXPECT_TRUE(Near(d[0][8], 114.375));
    EXPECT_TRUE(Near(d[0][11], yBar));
    EXPECT_TRUE(Near(d[0][10] / d[0][8], yBar));
    EXPECT_TRUE(Near(d[0][18], 3));
    EXPECT_TRUE(Near(d[0][25], yBar));
    EXPECT_TRUE(Near(d[0][24] / d[0][22], yBar));
    EXPECT_TRUE(Near(d[0][14], 1287.34, 1e-5));
    EXPECT_TRUE(Near(d[0][28], 71.0258, 1e-5));
    EXPECT_TRUE(Near(d[0][7], 343.125));
    EXPECT_TRUE(Near(d[0][21], 343.125 / n));
    EXPECT_EQ(worked.Section.ElementColour[0], IndexedColour(10));
}

} // namespace
} // namespace forcelab::sections::test
