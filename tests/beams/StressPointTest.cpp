#include "beams/StressPoint.h"

#include "StressCases.h"

#include <algorithm>

namespace forcelab::beams {
namespace {

using forcelab::test::Local;
using forcelab::test::Near;

struct BarRow {
    const char* Name;
    double Low, High;
    double Step;
    int First, Last;
};
class Bar : public testing::TestWithParam<BarRow> {};

TEST_P(Bar, HasRoundStepsFromEndToEnd)
{
    const BarRow& row = GetParam();
    const CoordinateBar bar = CoordinateBarOf(row.Low, row.High);
    EXPECT_TRUE(Near(bar.Step, row.Step, 1e-12));
    EXPECT_EQ(bar.First, row.First);
    EXPECT_EQ(bar.Last, row.Last);
}

INSTANTIATE_TEST_SUITE_P(Extents, Bar,
                         testing::Values(BarRow{"hundred steps", -5, 5, 0.1, -50, 50},
                                         BarRow{"just below", -4.95, 4.95, 0.01, -495, 495},
                                         BarRow{"ends between steps", -6.8529, 3.1471, 0.1, -69,
                                                32},
                                         BarRow{"millimetres", -174, 80, 1, -174, 80},
                                         BarRow{"no extent", 2, 2, 1, 0, 0},
                                         BarRow{"centroid outside", 3, 4, 0.01, 300, 400}),
                         [](const auto& row) {
                             std::string name = row.param.Name;
                             std::replace(name.begin(), name.end(), ' ', '_');
                             return name;
                         });

TEST(CoordinateBar, PlacesComeBackAndTheCentroidIsExact)
{
    const CoordinateBar bar = CoordinateBarOf(-6.8529, 3.1471);
    for (int place = bar.First; place <= bar.Last; ++place)
        EXPECT_EQ(bar.PlaceOf(bar.CoordinateAt(place)), place);
    EXPECT_EQ(bar.CoordinateAt(0), 0);
    EXPECT_EQ(bar.PlaceOf(99), bar.Last);
    EXPECT_EQ(bar.PlaceOf(-99), bar.First);
}

TEST(ReadDetailsAgain, KeepsThePointThatTheBoxRounds)
{
    const auto section = test::Tee().Section;
    DetailsEntry entry = test::TeeEntry();
    entry.Coord[1] = Local("50.0");
    const StressDetails top = ReadDetailsAgain(section, entry, {});
    EXPECT_TRUE(Near(-top.PointY, test::tee::kTop, 1e-12));
    entry.Coord = CoordTexts(top); // "3.147"
    EXPECT_EQ(ReadDetailsAgain(section, entry, top).PointY, top.PointY);
    entry.ShapeUnitIndex = 1;
    EXPECT_TRUE(Near(-ReadDetailsAgain(section, entry, top).PointY, test::tee::kTop * 25.4, 1e-12));
    entry.Coord[1] = Local("3.2");
    EXPECT_TRUE(Near(-ReadDetailsAgain(section, entry, top).PointY, 3.2, 1e-12));
}

TEST(HasStressSection, NeedsAComputedShape)
{
    sections::CrossSection section;
    EXPECT_FALSE(HasStressSection(section));
    sections::TakeShape(section, sections::kTShape);
    EXPECT_FALSE(HasStressSection(section));
    EXPECT_TRUE(HasStressSection(test::Tee().Section));
    EXPECT_TRUE(
        HasStressSection(test::Composite(sections::kTShape, {8, 1, 9, 1}, {9, 10}, 2).Section));
    section = test::Tee().Section;
    sections::TakeShape(section, sections::kRectangle);
    section.SectionComputed = false; // as choosing it on the form does
    EXPECT_FALSE(HasStressSection(section)) << "with the numbers of the T";
}

TEST(IsSameSection, SeesSizeMaterialAndProperties)
{
    const auto tee = test::Tee().Section;
    EXPECT_TRUE(IsSameSection(tee, test::Tee().Section));
    EXPECT_FALSE(IsSameSection(tee, test::Computed(sections::kTShape, {8, 1, 9, 1.5}).Section));
    EXPECT_FALSE(
        IsSameSection(tee, test::Composite(sections::kTShape, {8, 1, 9, 1}, {9, 10}, 2).Section));
    auto other = tee;
    other.Record(sections::Row::Inertia, sections::Column::ZzInches) *= 2;
    EXPECT_FALSE(IsSameSection(tee, other));
}

} // namespace
} // namespace forcelab::beams
