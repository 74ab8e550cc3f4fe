#include "sections/SectionCases.h"

#include "core/ArithmeticFault.h"

#include <array>
#include <cmath>

namespace forcelab::sections::test {
namespace {

using forcelab::test::Local;
using forcelab::test::Near;

constexpr std::array kOneMaterial{Column::Zz, Column::Yy};
constexpr double kPrinted = 5e-5; // figures given with four or five digits

/// Problems worked by hand, with the digits that they are given with.
struct Figure {
    Row Which;
    Column Where;
    double Value;
};
struct Problem {
    const char* Name;
    int Shape;
    std::vector<double> Boxes;
    int Quarters;
    std::vector<Figure> Figures;
};
void PrintTo(const Problem& problem, std::ostream* out)
{
    *out << problem.Name;
}

const std::vector<Problem> kProblems{
    {"Rectangle",
     kRectangle,
     {4, 10},
     0,
     {{Row::Area, Column::Zz, 40},
      {Row::Inertia, Column::Zz, 333.3333},
      {Row::Inertia, Column::Yy, 53.33333},
      {Row::SmallestSectionModulus, Column::Zz, 66.66667},
      {Row::PlasticModulus, Column::Zz, 100},
      {Row::ShapeFactor, Column::Zz, 1.5},
      {Row::ShapeFactor, Column::Yy, 1.5}}},
    {"RectangleTurned",
     kRectangle,
     {4, 10},
     1,
     {{Row::Inertia, Column::Yy, 333.3333}, {Row::PlasticModulus, Column::Yy, 100}}},
    {"T",
     kTShape,
     {8, 1, 9, 1},
     0,
     {{Row::LowEdge, Column::Zz, 6.852941},
      {Row::Inertia, Column::Zz, 167.2990},
      {Row::Inertia, Column::Yy, 43.41667},
      {Row::PlasticModulus, Column::Zz, 44.25},
      {Row::ShapeFactor, Column::Zz, 1.812597},
      {Row::PlasticAxisLow, Column::Zz, 8.5},
      {Row::PlasticAxisHigh, Column::Zz, 1.5}}},
    {"TTurned90",
     kTShape,
     {8, 1, 9, 1},
     1,
     {{Row::HighEdge, Column::Yy, 6.852941}, // the flange to the left
      {Row::Inertia, Column::Yy, 167.2990},
      {Row::Inertia, Column::Zz, 43.41667},
      {Row::PlasticModulus, Column::Yy, 44.25},
      {Row::PlasticAxisHigh, Column::Yy, 8.5}}},
    {"TTurned180",
     kTShape,
     {8, 1, 9, 1},
     2,
     {{Row::HighEdge, Column::Zz, 6.852941},
      {Row::Inertia, Column::Zz, 167.2990},
      {Row::PlasticModulus, Column::Zz, 44.25},
      {Row::PlasticAxisHigh, Column::Zz, 8.5}}},
    {"TTurned270",
     kTShape,
     {8, 1, 9, 1},
     3,
     {{Row::LowEdge, Column::Yy, 6.852941},
      {Row::Inertia, Column::Yy, 167.2990},
      {Row::ShapeFactor, Column::Yy, 1.812597},
      {Row::PlasticAxisLow, Column::Yy, 8.5}}},
    {"L",
     kLShape,
     {5.625, 0.75, 6.875, 0.75},
     0,
     {{Row::Area, Column::Zz, 9.375},
      {Row::Inertia, Column::Zz, 54.23330},
      {Row::Inertia, Column::Yy, 25.15130},
      // The legs reach into the second and the fourth quadrant of the centroid.
      {Row::ProductOfInertia, Column::Zz, -21.56260}}},
};

class WorkedProblem : public testing::TestWithParam<Problem> {};

TEST_P(WorkedProblem, ComesOut)
{
    const Problem& problem = GetParam();
    const Worked worked = Computed(problem.Shape, problem.Boxes, problem.Quarters);
    for (const Figure& figure : problem.Figures)
        EXPECT_TRUE(Near(worked.At(figure.Which, figure.Where), figure.Value, kPrinted))
            << "row " << int(figure.Which) << ", column " << int(figure.Where);
}

INSTANTIATE_TEST_SUITE_P(ByHand, WorkedProblem, testing::ValuesIn(kProblems),
                         [](const auto& row) { return std::string(row.param.Name); });

TEST(CentroidTable, OfATHasEveryColumn)
{
    const Worked worked = Computed(kTShape, {8, 1, 9, 1});
    const DetailTable& d = worked.Section.Details;
    const double yBar = 116.5 / 17; // 8 x 9.5 + 9 x 4.5 over 17
    const std::array<double, 16> flange{0, 8,   4,  32,       8.0 * 64 / 12, 0, 0, 42.6666666667,
                                        8, 9.5, 76, 8.0 / 12, 9.5 - yBar};
    for (int column = 1; column <= 12; ++column)
        EXPECT_TRUE(Near(d[1][column], flange[column])) << column;
    EXPECT_TRUE(Near(d[1][13], 8 * (9.5 - yBar) * (9.5 - yBar)));
    EXPECT_TRUE(Near(d[1][14], d[1][11] + d[1][13]));
    EXPECT_EQ(d[1][15], 0);
    EXPECT_TRUE(Near(d[2][9], 4.5));
    EXPECT_TRUE(Near(d[0][1], 17));
    EXPECT_TRUE(Near(d[0][3], 68));
    EXPECT_TRUE(Near(d[0][4], 4)); // the centroid beside its sums
    EXPECT_TRUE(Near(d[0][7], worked.At(Row::Inertia, Column::Yy)));
    EXPECT_TRUE(Near(d[0][8], 17));
    EXPECT_TRUE(Near(d[0][10], 116.5));
    EXPECT_TRUE(Near(d[0][11], yBar));
    EXPECT_TRUE(Near(d[0][14], worked.At(Row::Inertia, Column::Zz)));
    for (int column = 16; column <= 28; ++column) EXPECT_EQ(d[0][column], 0) << column;
}

TEST(CentroidTable, StartsFromZeroEveryTime)
{
    Worked worked = Computed(kHat, SampleDimensions(kHat));
    const CrossSection hat = worked.Section;
    TakeShape(worked.Section, kRectangle);
    worked.Entry = Entered(kRectangle, {4, 10}).Entry;
    ASSERT_FALSE(worked.Compute().has_value());
    EXPECT_NE(hat.Details[4][1], 0);
    for (int k = 2; k <= kElements; ++k)
        for (const double cell : worked.Section.Details[k]) EXPECT_EQ(cell, 0);
}

TEST(CentroidTable, OfABoxSubtractsTheHollow)
{
    const Worked worked = Computed(kBox, {6, 10, 5, 8.5});
    EXPECT_TRUE(Near(worked.Section.Details[2][1], -42.5));
    EXPECT_TRUE(Near(worked.Section.Details[2][14], -5 * std::pow(8.5, 3) / 12));
    EXPECT_TRUE(Near(worked.At(Row::Area, Column::Zz), 17.5));
    EXPECT_TRUE(Near(worked.At(Row::Inertia, Column::Zz), 500 - 5 * std::pow(8.5, 3) / 12));
}

struct AngleRow {
    const char* Name;
    int Shape;
    std::vector<double> Boxes;
    int Quarters;
    double Angle;
    double Sense;
};
void PrintTo(const AngleRow& row, std::ostream* out)
{
    *out << row.Name;
}
class PrincipalAngle : public testing::TestWithParam<AngleRow> {};

// By hand: the L has 0.5 atan(2 x 21.5626 / (54.2333 - 25.1513)) = 28.002 degrees, the Z
// 0.5 atan(2 x 22.3125 / (84.625 - 11.53125)) = 15.702.
TEST_P(PrincipalAngle, IsStoredWithItsSign)
{
    const AngleRow& row = GetParam();
    const Worked worked = Computed(row.Shape, row.Boxes, row.Quarters);
    for (const Column column : kOneMaterial) {
        EXPECT_NEAR(worked.At(Row::PrincipalAngle, column), row.Angle, 0.001);
        EXPECT_EQ(worked.At(Row::PrincipalSense, column), row.Sense);
    }
}

const std::vector<double> kLeg{5.625, 0.75, 6.875, 0.75};
const std::vector<double> kZed{3.5, 0.5, 8, 0.5};
INSTANTIATE_TEST_SUITE_P(
    Sections, PrincipalAngle,
    testing::Values(AngleRow{"square", kRectangle, {3, 3}, 0, 45, 1},
                    AngleRow{"upright rectangle", kRectangle, {4, 10}, 0, 0, 1},
                    AngleRow{"lying rectangle", kRectangle, {10, 4}, 0, 90, 1},
                    AngleRow{"T", kTShape, {8, 1, 9, 1}, 0, 0, 1},
                    AngleRow{"T turned", kTShape, {8, 1, 9, 1}, 1, 90, 1},
                    AngleRow{"L, Iz larger, Iyz below 0", kLShape, kLeg, 0, 28.0021, -1},
                    AngleRow{"L, Iy larger, Iyz above 0", kLShape, kLeg, 1, 61.9979, 1},
                    AngleRow{"L, half a turn", kLShape, kLeg, 2, 28.0021, -1},
                    AngleRow{"L with equal legs", kLShape, {6, 0.7, 5.3, 0.7}, 0, 45, -1},
                    AngleRow{"L with equal legs, turned", kLShape, {6, 0.7, 5.3, 0.7}, 1, 45, 1},
                    AngleRow{"Z with its sign in the other case", kZShape, kZed, 0, 15.7024, -1}));

TEST(PrincipalAngle, ClockwiseKeepsTheMinusOfTheArcTangent)
{
    // A Z with its top flange to the right: the default one mirrored.
    Worked worked = Entered(kZShape, kZed);
    for (Corners& e : worked.Section.ElementCorners) e = {-e.Right, e.Bottom, -e.Left, e.Top};
    ASSERT_FALSE(worked.Compute().has_value());
    EXPECT_GT(worked.At(Row::ProductOfInertia, Column::Zz), 0);
    EXPECT_NEAR(worked.At(Row::PrincipalAngle, Column::Zz), -15.7024, 0.001);
    EXPECT_EQ(worked.At(Row::PrincipalSense, Column::Zz), 1);
}

TEST(PrincipalAngle, CounterclockwiseWhereIyIsLarger)
{
    const Worked worked = Computed(kLShape, {9, 0.75, 4, 0.75});
    EXPECT_LT(worked.At(Row::Inertia, Column::Zz), worked.At(Row::Inertia, Column::Yy));
    EXPECT_EQ(worked.At(Row::PrincipalSense, Column::Zz), -1);
    const double angle = worked.At(Row::PrincipalAngle, Column::Zz);
    EXPECT_GT(angle, 45);
    EXPECT_LT(angle, 90);
}

TEST(PrincipalAxisEnds, AreTwiceTheLargerOffsetLong)
{
    // Laid out around the origin, 4 x 10: the lower left corner is at (-2, -5).
    const Worked upright = Computed(kRectangle, {4, 10});
    EXPECT_EQ(upright.Section.PrincipalAxisEnds, (std::array<double, 4>{10, 0, 0, 10}));
    const Worked l = Computed(kLShape, kLeg); // lower left corner (0, -4.1875), counterclockwise
    const double angle = l.At(Row::PrincipalAngle, Column::Zz) * kPi / 180;
    const double length = 2 * 4.1875;
    EXPECT_TRUE(Near(l.Section.PrincipalAxisEnds[0], length * std::cos(angle)));
    EXPECT_TRUE(Near(l.Section.PrincipalAxisEnds[1], length * std::sin(angle)));
    EXPECT_TRUE(Near(l.Section.PrincipalAxisEnds[2], -length * std::sin(angle)));
    EXPECT_TRUE(Near(l.Section.PrincipalAxisEnds[3], length * std::cos(angle)));
}

TEST(PrincipalAxisEnds, OfASectionAtPositiveCoordinatesHaveNoLength)
{
    const Worked worked = Computed(kLShape, kLeg, 1);
    for (const double end : worked.Section.PrincipalAxisEnds) EXPECT_EQ(std::abs(end), 0);
}

TEST(Units, MillimetresGiveColumnsInInches)
{
    Worked inches = Computed(kTShape, {8, 1, 9, 1});
    Worked mm = Entered(kTShape, {203.2, 25.4, 228.6, 25.4});
    mm.Entry.LengthUnit = 1;
    ASSERT_FALSE(mm.Compute().has_value());
    for (int row = 1; row <= 16; ++row)
        for (int column = 1; column <= 2; ++column) {
            const double expected = inches.Section.Record.At(row, column);
            EXPECT_EQ(inches.Section.Record.At(row, column + 2), expected);
            EXPECT_NEAR(mm.Section.Record.At(row, column + 2), expected, 1e-9 * (1 + expected));
        }
    EXPECT_TRUE(Near(mm.At(Row::Area, Column::Zz), 17 * 645.16));
    EXPECT_TRUE(Near(mm.Section.ElementCornersInches[0].Left, -4));
    EXPECT_TRUE(Near(mm.Section.ElementCorners[0].Left, -101.6));
}

TEST(Units, ASecondComputeInMillimetresGivesTheSameInches)
{
    Worked worked = Computed(kHat, SampleDimensions(kHat));
    const CrossSection before = worked.Section;
    ConvertLengthUnit(worked.Section, worked.Entry);
    ASSERT_FALSE(worked.Compute().has_value());
    for (int row = 1; row <= 13; ++row)
        EXPECT_TRUE(Near(worked.Section.Record.At(row, 3), before.Record.At(row, 3), 1e-6)) << row;
}

TEST(Units, AngleAndSenseInTheColumnsOfInchesStayAsTheyWere)
{
    Worked worked = Entered(kLShape, kLeg);
    for (const Column column : {Column::ZzInches, Column::YyInches}) {
        worked.Section.Record(Row::PrincipalAngle, column) = 12.5;
        worked.Section.Record(Row::PrincipalSense, column) = -3;
    }
    ASSERT_FALSE(worked.Compute().has_value());
    for (const Column column : {Column::ZzInches, Column::YyInches}) {
        EXPECT_EQ(worked.At(Row::PrincipalAngle, column), 12.5);
        EXPECT_EQ(worked.At(Row::PrincipalSense, column), -3);
    }
}

struct ModulusRow {
    int Unit;
    const char* Text;
    double Entered;
    double Psi;
};
class Modulus : public testing::TestWithParam<ModulusRow> {};

TEST_P(Modulus, IsStoredAsEnteredAndInPsi)
{
    const ModulusRow& row = GetParam();
    Worked worked = Entered(kTShape, {8, 1, 9, 1});
    worked.Entry.ModulusUnit = row.Unit;
    worked.Entry.Modulus.fill(Local(row.Text));
    ASSERT_FALSE(worked.Compute().has_value());
    EXPECT_EQ(worked.At(Row::Modulus, Column::Zz), row.Entered);
    EXPECT_EQ(worked.At(Row::Modulus, Column::Yy), row.Entered);
    EXPECT_TRUE(Near(worked.At(Row::Modulus, Column::ZzInches), row.Psi));
    EXPECT_TRUE(Near(worked.At(Row::Modulus, Column::YyInches), row.Psi));
    // One material does not overwrite what columns 7 and 8 hold in psi.
    EXPECT_EQ(worked.At(CompositeRow::ModulusA, Column::CompositeZz), row.Entered);
    EXPECT_TRUE(Near(worked.At(CompositeRow::ModulusB, Column::CompositeYyInches), row.Psi));
}

INSTANTIATE_TEST_SUITE_P(Units, Modulus,
                         testing::Values(ModulusRow{0, "29,000,000.00", 29e6, 29e6},
                                         ModulusRow{1, "29,000.00", 29e3, 29e6},
                                         ModulusRow{2, "200,000.00", 2e5, 2e8 / 6.894757},
                                         ModulusRow{3, "200.00", 200, 2e8 / 6.894757},
                                         ModulusRow{1, "-10.0", 10, 1e4},
                                         ModulusRow{1, "0.0", 1, 1000},
                                         ModulusRow{0, "wood", 1, 1}));

TEST(ComputeSection, OfASecondPassIsTheSame)
{
    for (int shape = 1; shape <= kPipe; ++shape) {
        Worked worked = Computed(shape, SampleDimensions(shape));
        const CrossSection first = worked.Section;
        ASSERT_FALSE(worked.Compute().has_value());
        EXPECT_EQ(worked.Section.ElementCorners, first.ElementCorners) << shape;
        EXPECT_EQ(worked.Section.PrincipalAxisEnds, first.PrincipalAxisEnds) << shape;
        EXPECT_EQ(worked.Section.Details, first.Details) << shape;
    }
}

TEST(ComputeSection, KeepsTheEarlierSectionWhereANumberIsNotFinite)
{
    Worked worked = Computed(kBox, {6, 10, 5, 8});
    const CrossSection before = worked.Section;
    worked.Entry.Box[2] = Local("6.0"); // no area is left
    worked.Entry.Box[3] = Local("10.0");
    EXPECT_FALSE(worked.Check().has_value());
    EXPECT_THROW(ComputeShape(worked.Section, worked.Entry), ArithmeticFault);
    EXPECT_EQ(worked.Section.Details, before.Details);
    EXPECT_EQ(worked.Section.ElementCorners, before.ElementCorners);
    EXPECT_EQ(worked.At(Row::Area, Column::Zz), 60 - 40);
}

TEST(ComputeSection, OfAbsurdSizesIsAFault)
{
    Worked worked = Entered(kRectangle, {4, 10});
    worked.Entry.Box[0] = "1e+300";
    ASSERT_FALSE(worked.Check().has_value());
    EXPECT_THROW(ComputeShape(worked.Section, worked.Entry), ArithmeticFault);
    EXPECT_FALSE(worked.Section.SectionComputed);
}

} // namespace
} // namespace forcelab::sections::test
