#include "sections/SectionCases.h"

#include <array>
#include <cmath>

namespace forcelab::sections::test {
namespace {

using forcelab::test::Near;

constexpr std::array kOneMaterial{Column::Zz, Column::Yy};

TEST(Circle, HasClosedForms)
{
    const Worked worked = Computed(kCircle, {4});
    for (const Column column : kOneMaterial) {
        const auto at = [&](Row row) { return worked.At(row, column); };
        EXPECT_EQ(at(Row::LowEdge), 2);
        EXPECT_EQ(at(Row::HighEdge), 2);
        EXPECT_TRUE(Near(at(Row::Area), 4 * kPi));
        EXPECT_TRUE(Near(at(Row::Inertia), 4 * kPi));
        EXPECT_TRUE(Near(at(Row::SmallestSectionModulus), 2 * kPi));
        EXPECT_TRUE(Near(at(Row::RadiusOfGyration), 1));
        EXPECT_TRUE(Near(at(Row::PlasticModulus), 64.0 / 6));
        EXPECT_TRUE(Near(at(Row::ShapeFactor), 64.0 / 6 / (2 * kPi)));
        EXPECT_EQ(at(Row::PlasticAxisLow), 2);
        EXPECT_TRUE(Near(at(Row::PolarMoment), 8 * kPi));
        EXPECT_EQ(at(Row::ProductOfInertia), 0);
        EXPECT_EQ(at(Row::PrincipalAngle), 0);
        EXPECT_EQ(at(Row::PrincipalSense), 1);
    }
    const DetailTable& d = worked.Section.Details;
    for (const int column : {1, 3, 7}) EXPECT_EQ(d[0][column], d[1][column]);
    EXPECT_TRUE(Near(d[1][3], 8 * kPi));
    EXPECT_TRUE(Near(d[1][29], 2 * kPi));
    EXPECT_TRUE(Near(d[1][35], 4 * 4 / 6.0 / kPi));
    EXPECT_EQ(d[0][29], 2);
    EXPECT_EQ(d[0][34], 2);
    EXPECT_EQ(d[0][38], d[1][33]);
    EXPECT_EQ(worked.Section.ElementColour[0], IndexedColour(8));
}

TEST(Pipe, SubtractsTheInnerCircle)
{
    const Worked worked = Computed(kPipe, {4, 2});
    EXPECT_TRUE(Near(worked.At(Row::Area, Column::Yy), 3 * kPi));
    EXPECT_TRUE(Near(worked.At(Row::Inertia, Column::Zz), (256 - 16) * kPi / 64));
    EXPECT_TRUE(Near(worked.At(Row::PlasticModulus, Column::Zz), (64 - 8) / 6.0));
    const DetailTable& d = worked.Section.Details;
    EXPECT_TRUE(Near(d[2][1], -kPi));
    EXPECT_TRUE(Near(d[2][4], -16 * kPi / 64));
    EXPECT_TRUE(Near(d[0][1], 3 * kPi));
    EXPECT_TRUE(Near(d[0][3], d[1][3] + d[2][3]));
    EXPECT_TRUE(Near(d[0][7], (256 - 16) * kPi / 64));
    EXPECT_TRUE(Near(d[0][33], (64 - 8) / 6.0));
    EXPECT_TRUE(Near(d[0][38], (64 - 8) / 6.0));
    EXPECT_EQ(d[0][29], 2);
    EXPECT_EQ(worked.Section.ElementColour[0], IndexedColour(8));
    EXPECT_EQ(worked.Section.ElementColour[1], IndexedColour(15));
}

TEST(SpecifiedProperties, AreReadFromTheirBoxes)
{
    Worked worked = Entered(kSpecified, {2, 3, 4, 5, 100, 50, 12});
    for (int row = 9; row <= 18; ++row) worked.Section.Record.At(row, 1) = 7;
    ASSERT_FALSE(worked.Compute().has_value());
    EXPECT_EQ(worked.At(Row::LowEdge, Column::Zz), 5);
    EXPECT_EQ(worked.At(Row::HighEdge, Column::Zz), 3);
    EXPECT_EQ(worked.At(Row::LowEdge, Column::Yy), 4);
    EXPECT_EQ(worked.At(Row::HighEdge, Column::Yy), 2);
    EXPECT_EQ(worked.At(Row::Area, Column::Yy), 12);
    EXPECT_EQ(worked.At(Row::SmallestSectionModulus, Column::Zz), 20);
    EXPECT_EQ(worked.At(Row::SectionModulusLow, Column::Yy), 12.5);
    EXPECT_EQ(worked.At(Row::SectionModulusHigh, Column::Yy), 25);
    EXPECT_TRUE(Near(worked.At(Row::RadiusOfGyration, Column::Zz), std::sqrt(100.0 / 12)));
    for (const Column column : kOneMaterial) {
        EXPECT_EQ(worked.At(Row::PolarMoment, column), 150);
        for (const int row : {9, 10, 11, 12, 14, 15, 16, 17, 18})
            EXPECT_EQ(worked.Section.Record.At(row, int(column)), 0) << row;
    }
    for (const auto& row : worked.Section.Details)
        for (const double cell : row) EXPECT_EQ(cell, 0);
}

TEST(SpecifiedProperties, AreBroughtToInches)
{
    Worked worked = Entered(kSpecified, {25.4, 25.4, 25.4, 25.4, 416231.4256, 416231.4256, 645.16});
    worked.Entry.LengthUnit = 1;
    ASSERT_FALSE(worked.Compute().has_value());
    EXPECT_TRUE(Near(worked.At(Row::LowEdge, Column::ZzInches), 1));
    EXPECT_TRUE(Near(worked.At(Row::Area, Column::ZzInches), 1));
    EXPECT_TRUE(Near(worked.At(Row::Inertia, Column::YyInches), 1));
    EXPECT_TRUE(Near(worked.At(Row::SectionModulusLow, Column::YyInches), 1));
}

} // namespace
} // namespace forcelab::sections::test
