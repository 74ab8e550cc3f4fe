#include "sections/SectionCases.h"

#include "core/ArithmeticFault.h"

#include <array>

namespace forcelab::sections::test {
namespace {

using forcelab::test::Near;

constexpr std::array kOneMaterial{Column::Zz, Column::Yy};

/// A row of a table, its figures as the handbook of the American Institute of Steel Construction
/// prints them, in inches.
SteelShape Shape(int family, double a, double depth, double width, double web, double flange)
{
    SteelShape steel;
    steel.Family = family;
    steel.RecordNumber = 1;
    steel.A = a;
    steel.Depth = depth;
    steel.Width = width;
    steel.Web = web;
    steel.Flange = flange;
    return steel;
}

void About(SteelShape& steel, std::array<double, 4> x, std::array<double, 4> y, double j)
{
    steel.Ix = x[0], steel.Sx = x[1], steel.Rx = x[2], steel.Zx = x[3];
    steel.Iy = y[0], steel.Sy = y[1], steel.Ry = y[2], steel.Zy = y[3];
    steel.J = j;
}

SteelShape W14X90()
{
    SteelShape steel = Shape(kFamilyW, 26.5, 14, 14.5, 0.44, 0.71);
    About(steel, {999, 143, 6.14, 157}, {362, 49.9, 3.7, 75.6}, 4.06);
    return steel;
}

SteelShape C15X33()
{
    SteelShape steel = Shape(kFamilyC, 10, 15, 3.4, 0.4, 0.65);
    About(steel, {315, 42, 5.61, 50.8}, {8.07, 3.09, 0.901, 6.19}, 1.01);
    steel.Centroid = 0.788;
    steel.PlasticAxis = 0.332;
    return steel;
}

SteelShape WT8X25()
{
    SteelShape steel = Shape(kFamilyWT, 7.37, 8.13, 7.07, 0.38, 0.63);
    About(steel, {42.3, 6.78, 2.4, 12}, {18.6, 5.26, 1.59, 8.15}, 0.76);
    steel.Centroid = 1.89;
    steel.PlasticAxis = 0.521;
    return steel;
}

SteelShape L6X4()
{
    SteelShape steel = Shape(kFamilyL, 4.75, 6, 4, 0.5, 0);
    About(steel, {17.3, 4.31, 1.91, 7.71}, {6.22, 2.06, 1.14, 3.69}, 0.407);
    return steel;
}

SteelShape TwoL4X4()
{
    SteelShape steel = Shape(kFamily2L, 7.5, 4, 4, 0.5, 0);
    About(steel, {11, 3.92, 1.21, 7}, {}, 0);
    return steel;
}

SteelShape TS8X4()
{
    SteelShape steel = Shape(kFamilyTS, 9.74, 8, 4, 0.465, 0);
    About(steel, {71.8, 17.9, 2.71, 23.5}, {23.6, 11.8, 1.56, 14.3}, 61.1);
    return steel;
}

SteelShape Pipe10()
{
    SteelShape steel = Shape(kFamilyPipe, 11.9, 10.75, 10.02, 0, 0);
    About(steel, {161, 29.9, 3.67, 39.4}, {}, 321);
    return steel;
}

/// Selected from its list, turned, and computed.
Worked Selected(const SteelShape& steel, int quarters = 0)
{
    Worked worked;
    TakeShape(worked.Section, steel.Family + kSteelW);
    worked.Entry.Swatch.fill(IndexedColour(8));
    worked.Entry.Steel = steel;
    const auto boxes = SteelBoxes(steel);
    for (std::size_t box = 0; box < boxes.size(); ++box) worked.Entry.Box[box] = boxes[box];
    worked.Section.Record(Row::ProductOfInertia, Column::Zz) = 77; // of a section before this one
    if (quarters != 0) worked.Turn(quarters);
    EXPECT_FALSE(worked.Compute().has_value());
    return worked;
}

void ExpectRows(const Worked& worked, Column column, std::initializer_list<double> rows4to10)
{
    int row = int(Row::Inertia);
    for (const double value : rows4to10) {
        EXPECT_TRUE(Near(worked.Section.Record.At(row, int(column)), value)) << "row " << row;
        ++row;
    }
}

void ExpectEdges(const Worked& worked, Column column, double low, double high, double plasticLow)
{
    EXPECT_TRUE(Near(worked.At(Row::LowEdge, column), low));
    EXPECT_TRUE(Near(worked.At(Row::HighEdge, column), high));
    EXPECT_TRUE(Near(worked.At(Row::PlasticAxisLow, column), plasticLow));
    EXPECT_TRUE(Near(worked.At(Row::PlasticAxisHigh, column), low + high - plasticLow));
}

void ExpectPrincipal(const Worked& worked, double largest, double smallest, double angle)
{
    for (const Column column : kOneMaterial) {
        EXPECT_EQ(worked.At(Row::LargestPrincipal, column), largest);
        EXPECT_EQ(worked.At(Row::SmallestPrincipal, column), smallest);
        EXPECT_EQ(worked.At(Row::PrincipalAngle, column), angle);
        EXPECT_EQ(worked.At(Row::PrincipalSense, column), -1);
    }
}

TEST(SteelTable, GivesAWShapeItsPublishedValues)
{
    const Worked worked = Selected(W14X90());
    ExpectRows(worked, Column::Zz, {999, 143, 143, 143, 6.14, 157, 157 / 143.0});
    ExpectRows(worked, Column::Yy, {362, 49.9, 49.9, 49.9, 3.7, 75.6, 75.6 / 49.9});
    ExpectEdges(worked, Column::Zz, 7, 7, 7);
    ExpectEdges(worked, Column::Yy, 7.25, 7.25, 7.25);
    for (const Column column : kOneMaterial) {
        EXPECT_EQ(worked.At(Row::Modulus, column), 29000000.0);
        EXPECT_EQ(worked.At(Row::Area, column), 26.5);
        EXPECT_EQ(worked.At(Row::PolarMoment, column), 4.06);
    }
    ExpectPrincipal(worked, 999, 362, 0);
    for (const auto& row : worked.Section.Details)
        for (const double cell : row) EXPECT_EQ(cell, 0);
}

TEST(SteelTable, FollowsAQuarterTurnOfAWShape)
{
    const Worked worked = Selected(W14X90(), 1);
    ExpectRows(worked, Column::Yy, {999, 143, 143, 143, 6.14, 157, 157 / 143.0});
    ExpectEdges(worked, Column::Zz, 7.25, 7.25, 7.25);
    ExpectPrincipal(worked, 999, 362, 90);
}

class FromTheTableAlone : public testing::TestWithParam<SteelShape (*)()> {};

// Nothing writes the product of inertia of these shapes; it goes to Mohr's circle as it stands.
TEST_P(FromTheTableAlone, KeepsTheProductOfInertiaOfTheSectionBefore)
{
    const Worked worked = Selected(GetParam()());
    EXPECT_EQ(worked.At(Row::ProductOfInertia, Column::Zz), 77);
}

TEST_P(FromTheTableAlone, WritesTheSameInInchesWhateverTheUnit)
{
    Worked worked = Selected(GetParam()());
    worked.Entry.LengthUnit = 1;
    ASSERT_FALSE(worked.Compute().has_value());
    for (int row = 0; row <= 18; ++row)
        for (int column = 1; column <= 2; ++column)
            EXPECT_EQ(worked.Section.Record.At(row, column + 2),
                      worked.Section.Record.At(row, column));
    EXPECT_EQ(worked.Section.ElementCornersInches, worked.Section.ElementCorners);
}

INSTANTIATE_TEST_SUITE_P(Families, FromTheTableAlone, testing::Values(W14X90, TS8X4, Pipe10));

TEST(SteelTable, MeasuresAChannelFromItsHeel)
{
    const Worked worked = Selected(C15X33());
    ExpectEdges(worked, Column::Zz, 7.5, 7.5, 7.5);
    ExpectRows(worked, Column::Zz, {315, 42, 42, 42, 5.61, 50.8, 50.8 / 42});
    ExpectEdges(worked, Column::Yy, 0.788, 3.4 - 0.788, 0.332);
    ExpectRows(worked, Column::Yy, {8.07, 3.09, 8.07 / 0.788, 3.09, 0.901, 6.19, 6.19 / 3.09});
    ExpectPrincipal(worked, 315, 8.07, 0);
    EXPECT_EQ(worked.At(Row::ProductOfInertia, Column::Zz), 0); // summed
}

TEST(SteelTable, MeasuresATurnedChannelFromItsHeel)
{
    const Worked half = Selected(C15X33(), 2);
    ExpectEdges(half, Column::Yy, 3.4 - 0.788, 0.788, 3.4 - 0.332);
    ExpectRows(half, Column::Yy, {8.07, 3.09, 3.09, 8.07 / 0.788, 0.901, 6.19, 6.19 / 3.09});
    const Worked quarter = Selected(C15X33(), 1);
    ExpectEdges(quarter, Column::Zz, 0.788, 3.4 - 0.788, 0.332);
    ExpectEdges(quarter, Column::Yy, 7.5, 7.5, 7.5);
    ExpectPrincipal(quarter, 315, 8.07, 90);
}

TEST(SteelTable, MeasuresATeeFromItsFlange)
{
    const Worked worked = Selected(WT8X25());
    ExpectEdges(worked, Column::Yy, 7.07 / 2, 7.07 / 2, 7.07 / 2);
    ExpectEdges(worked, Column::Zz, 8.13 - 1.89, 1.89, 8.13 - 0.521); // the flange is on top
    ExpectRows(worked, Column::Zz, {42.3, 6.78, 6.78, 42.3 / 1.89, 2.4, 12, 12 / 6.78});
    ExpectRows(worked, Column::Yy, {18.6, 5.26, 5.26, 5.26, 1.59, 8.15, 8.15 / 5.26});
    const Worked half = Selected(WT8X25(), 2);
    ExpectEdges(half, Column::Zz, 1.89, 8.13 - 1.89, 0.521);
    ExpectRows(half, Column::Zz, {42.3, 6.78, 42.3 / 1.89, 6.78, 2.4, 12, 12 / 6.78});
}

TEST(SteelTable, KeepsTheSummedDistancesOfAnAngle)
{
    const Worked worked = Selected(L6X4());
    // By hand: 4 x 0.5 at 0.25 and 5.5 x 0.5 at 3.25 above the bottom.
    const double low = (2 * 0.25 + 2.75 * 3.25) / 4.75;
    const double left = (2 * 2 + 2.75 * 0.25) / 4.75;
    EXPECT_TRUE(Near(worked.At(Row::LowEdge, Column::Zz), low));
    EXPECT_TRUE(Near(worked.At(Row::LowEdge, Column::Yy), left));
    ExpectRows(worked, Column::Zz, {17.3, 4.31, 17.3 / low, 4.31, 1.91, 7.71, 7.71 / 4.31});
    ExpectRows(worked, Column::Yy, {6.22, 2.06, 6.22 / left, 2.06, 1.14, 3.69, 3.69 / 2.06});
    EXPECT_EQ(worked.At(Row::PolarMoment, Column::Yy), 0.407);
    // The principal axes are inclined, and stay as summed; all of it goes to columns 3 and 4.
    EXPECT_LT(worked.At(Row::ProductOfInertia, Column::Zz), 0);
    EXPECT_GT(worked.At(Row::LargestPrincipal, Column::Zz), 17.3);
    EXPECT_NE(worked.At(Row::PrincipalAngle, Column::Zz), 0);
    EXPECT_EQ(worked.At(Row::PrincipalAngle, Column::ZzInches),
              worked.At(Row::PrincipalAngle, Column::Zz));
    EXPECT_NE(worked.Section.Details[1][1], 0);
}

TEST(SteelTable, LeavesTheGapOfDoubleAnglesToTheUser)
{
    Worked worked = Selected(TwoL4X4());
    const double high = (4 * 0.25 + 3.5 * 2.25) / 7.5; // the legs are on top, the heel too
    EXPECT_TRUE(Near(worked.At(Row::HighEdge, Column::Zz), high));
    ExpectRows(worked, Column::Zz, {11, 3.92, 3.92, 11 / high, 1.21, 7, 7 / 3.92});
    EXPECT_EQ(worked.At(Row::Area, Column::Yy), 7.5);
    EXPECT_TRUE(Near(worked.At(Row::LowEdge, Column::Yy), 4 + 0.375));
    const double closer = worked.At(Row::Inertia, Column::Yy);
    worked.Entry.Box[4] = Typed(1.5);
    ASSERT_FALSE(worked.Compute().has_value());
    EXPECT_GT(worked.At(Row::Inertia, Column::Yy), closer);
    EXPECT_EQ(worked.At(Row::Inertia, Column::Zz), 11);
}

TEST(SteelTable, LaysATubeWithItsDepthAlongZ)
{
    const Worked worked = Selected(TS8X4());
    ExpectEdges(worked, Column::Yy, 4, 4, 4);
    ExpectEdges(worked, Column::Zz, 2, 2, 2);
    ExpectRows(worked, Column::Yy, {71.8, 17.9, 17.9, 17.9, 2.71, 23.5, 23.5 / 17.9});
    ExpectRows(worked, Column::Zz, {23.6, 11.8, 11.8, 11.8, 1.56, 14.3, 14.3 / 11.8});
    EXPECT_EQ(worked.At(Row::PolarMoment, Column::Zz), 61.1);
    ExpectPrincipal(worked, 71.8, 23.6, 90);
    const Worked turned = Selected(TS8X4(), 1);
    ExpectEdges(turned, Column::Zz, 4, 4, 4);
    ExpectPrincipal(turned, 71.8, 23.6, 0);
}

TEST(SteelTable, GivesAPipeTheSameAboutBothAxes)
{
    const Worked worked = Selected(Pipe10());
    for (const Column column : kOneMaterial) {
        EXPECT_EQ(worked.At(Row::Area, column), 11.9);
        ExpectEdges(worked, column, 10.75 / 2, 10.75 / 2, 10.75 / 2);
        ExpectRows(worked, column, {161, 29.9, 29.9, 29.9, 3.67, 39.4, 39.4 / 29.9});
        EXPECT_EQ(worked.At(Row::PolarMoment, column), 321);
    }
    ExpectPrincipal(worked, 161, 161, 0);
}

TEST(SteelTable, NeedsASelectedRow)
{
    Worked worked = Selected(W14X90());
    worked.Entry.Steel.reset();
    EXPECT_THROW(ComputeShape(worked.Section, worked.Entry), ArithmeticFault);
    EXPECT_EQ(worked.At(Row::Inertia, Column::Zz), 999);
}

} // namespace
} // namespace forcelab::sections::test
