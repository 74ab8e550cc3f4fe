#include "sections/SectionCases.h"

#include <algorithm>
#include <array>

namespace forcelab::sections::test {
namespace {

using forcelab::test::Near;
using testing::TestWithParam;

struct LayoutRow {
    const char* Name;
    int Shape;
    std::vector<double> Boxes;
    std::vector<Corners> Expected;
};

void PrintTo(const LayoutRow& row, std::ostream* out)
{
    *out << row.Name;
}

/// Dimensions taken, not yet computed: the corners stand around the origin of the layout.
CrossSection Dimensioned(const LayoutRow& row)
{
    Worked worked = Entered(row.Shape, row.Boxes);
    worked.Entry.Steel.emplace();
    EXPECT_FALSE(worked.Check().has_value());
    return worked.Section;
}

void ExpectCorners(const CrossSection& section, const std::vector<Corners>& expected)
{
    ASSERT_EQ(section.LastElement + 1, int(expected.size()));
    for (std::size_t k = 0; k < expected.size(); ++k) {
        const Corners& e = section.ElementCorners[k];
        const bool same = std::abs(e.Left - expected[k].Left) < 1e-12 &&
                          std::abs(e.Bottom - expected[k].Bottom) < 1e-12 &&
                          std::abs(e.Right - expected[k].Right) < 1e-12 &&
                          std::abs(e.Top - expected[k].Top) < 1e-12;
        EXPECT_TRUE(same) << "element " << k + 1 << " is " << testing::PrintToString(e) << ", not "
                          << testing::PrintToString(expected[k]);
    }
}

Corners Exchanged(const Corners& e)
{
    return {e.Bottom, e.Left, e.Top, e.Right};
}

/// Turned by 180 degrees about the origin.
Corners Reversed(const Corners& e)
{
    return {-e.Right, -e.Top, -e.Left, -e.Bottom};
}

class Layout : public TestWithParam<LayoutRow> {};
class HalfTurnedLayout : public Layout {}; // all but the stiffened T, which has a test of its own
class ExchangedLayout : public Layout {};  // all but the L, which lies at another origin

TEST_P(Layout, StandsUprightFromTheDefaultOutline)
{
    CrossSection section = Dimensioned(GetParam());
    BuildElements(section, section.ElementDims[2][0]);
    ExpectCorners(section, GetParam().Expected);
}

// The layouts of this table are symmetric to their origin but for the sides that a half turn
// exchanges, so that turning the corners and building them anew must agree.
TEST_P(HalfTurnedLayout, KeepsItsSides)
{
    CrossSection section = Dimensioned(GetParam());
    RotateElements(section, kPi);
    BuildElements(section, section.ElementDims[2][0]);
    std::vector<Corners> expected = GetParam().Expected;
    for (Corners& e : expected) e = Reversed(e);
    ExpectCorners(section, expected);
}

TEST_P(ExchangedLayout, LiesWithBothAxesExchanged)
{
    CrossSection section = Dimensioned(GetParam());
    for (Corners& e : section.ElementCorners) e = Exchanged(e);
    for (int& lie : section.ElementLie) lie = 1 - lie;
    BuildElements(section, section.ElementDims[2][0]);
    std::vector<Corners> expected = GetParam().Expected;
    for (Corners& e : expected) e = Exchanged(e);
    ExpectCorners(section, expected);
}

// Quarter turns carry each element round with the others: what a quarter turn and a new layout
// make is, up to the place of the origin, the turned upright layout.
TEST_P(Layout, FollowsQuarterTurns)
{
    for (const int quarters : {1, 3}) {
        CrossSection section = Dimensioned(GetParam());
        RotateElements(section, quarters * kPi / 2);
        BuildElements(section, section.ElementDims[2][0]);
        CrossSection turned = Dimensioned(GetParam());
        BuildElements(turned, turned.ElementDims[2][0]);
        RotateElements(turned, quarters * kPi / 2);
        const double dz = turned.ElementCorners[1].Left - section.ElementCorners[1].Left;
        const double dy = turned.ElementCorners[1].Bottom - section.ElementCorners[1].Bottom;
        std::vector<Corners> expected;
        for (int k = 0; k <= section.LastElement; ++k) {
            const Corners& e = turned.ElementCorners[k];
            expected.push_back({e.Left - dz, e.Bottom - dy, e.Right - dz, e.Top - dy});
        }
        SCOPED_TRACE(std::to_string(quarters) + " quarters");
        ExpectCorners(section, expected);
    }
}

const std::vector<LayoutRow> kLayouts{
    {"GeneralFlanged",
     kGeneralFlanged,
     {6, 0.5, 9, 0.375, 8, 0.75},
     {{-3, 4.5, 3, 5}, {-0.1875, -4.5, 0.1875, 4.5}, {-4, -5.25, 4, -4.5}}},
    {"GeneralChannel",
     kGeneralChannel,
     {3, 0.5, 9, 0.375, 4, 0.75},
     {{0, 4.5, 3, 5}, {0, -4.5, 0.375, 4.5}, {0, -5.25, 4, -4.5}}},
    {"IShape",
     kIShape,
     {6, 0.5, 9, 0.375},
     {{-3, 4.5, 3, 5}, {-0.1875, -4.5, 0.1875, 4.5}, {-3, -5, 3, -4.5}}},
    {"SteelW",
     kSteelW,
     {6, 0.5, 9, 0.375},
     {{-3, 4.5, 3, 5}, {-0.1875, -4.5, 0.1875, 4.5}, {-3, -5, 3, -4.5}}},
    {"CShape",
     kCShape,
     {3, 0.5, 9, 0.375},
     {{0, 4.5, 3, 5}, {0, -4.5, 0.375, 4.5}, {0, -5, 3, -4.5}}},
    {"TShape", kTShape, {8, 1, 9, 1.25}, {{-4, 4.5, 4, 5.5}, {-0.625, -4.5, 0.625, 4.5}}},
    {"LShape", kLShape, {5, 0.75, 6, 0.5}, {{0, -3.75, 5, -3}, {0, -3, 0.5, 3}}},
    {"ZShape",
     kZShape,
     {3.5, 0.5, 8, 0.5},
     {{-3.25, 4, 0.25, 4.5}, {-0.25, -4, 0.25, 4}, {-0.25, -4.5, 3.25, -4}}},
    {"Hat",
     kHat,
     {6, 0.5, 4, 0.25, 2.5, 0.75},
     {{-3, 0, 3, 0.5},
      {-3, -4, -2.75, 0},
      {-5.25, -4.75, -2.75, -4},
      {2.75, -4, 3, 0},
      {2.75, -4.75, 5.25, -4}}},
    {"DoubleI",
     kDoubleI,
     {9, 0.5, 8, 0.25, 3, 11, 0.75},
     {{-4.5, 0, 4.5, 0.5}, {-1.75, -8, -1.5, 0}, {1.5, -8, 1.75, 0}, {-5.5, -8.75, 5.5, -8}}},
    {"DoubleCBack",
     kDoubleCBack,
     {3, 0.5, 9, 0.25, 2},
     {{-4, 0, -1, 0.5},
      {-1.25, -9, -1, 0},
      {1, -9, 1.25, 0},
      {1, 0, 4, 0.5},
      {-4, -9.5, -1, -9},
      {1, -9.5, 4, -9}}},
    {"DoubleCToe",
     kDoubleCToe,
     {3, 0.5, 9, 0.25, 8},
     {{-4, 0, -1, 0.5},
      {-4, -9, -3.75, 0},
      {3.75, -9, 4, 0},
      {1, 0, 4, 0.5},
      {-4, -9.5, -1, -9},
      {1, -9.5, 4, -9}}},
    {"DoubleT",
     kDoubleT,
     {10, 0.75, 7, 0.5, 3},
     {{-5, 0, 5, 0.75}, {-2, -7, -1.5, 0}, {1.5, -7, 2, 0}}},
    {"DoubleL",
     kDoubleL,
     {4, 0.5, 5.5, 0.625, 0.75},
     {{-4.375, 0, -0.375, 0.5},
      {-1, -5.5, -0.375, 0},
      {0.375, -5.5, 1, 0},
      {0.375, 0, 4.375, 0.5}}},
    {"StiffenedTDown",
     kStiffenedTDown,
     {8, 0.75, 9, 0.5, 3, 0.25},
     {{-4, 4.5, 4, 5.25},
      {-0.25, -4.5, 0.25, 4.5},
      {-4.25, 2.25, -4, 5.25},
      {4, 2.25, 4.25, 5.25}}},
    {"StiffenedTUp",
     kStiffenedTUp,
     {8, 0.75, 9, 0.5, 3, 0.25},
     {{-4, 4.5, 4, 5.25}, {-0.25, -4.5, 0.25, 4.5}, {-4.25, 4.5, -4, 7.5}, {4, 4.5, 4.25, 7.5}}},
    {"Rectangle", kRectangle, {4, 10}, {{-2, -5, 2, 5}}},
    {"Box", kBox, {6, 10, 5, 8.5}, {{-3, -5, 3, 5}, {-2.5, -4.25, 2.5, 4.25}}},
    {"SteelTS", kSteelTS, {6, 10, 5, 8.5}, {{-3, -5, 3, 5}, {-2.5, -4.25, 2.5, 4.25}}},
};

std::vector<LayoutRow> LayoutsWithout(std::vector<int> shapes)
{
    std::vector<LayoutRow> rows;
    for (const LayoutRow& row : kLayouts)
        if (std::find(shapes.begin(), shapes.end(), row.Shape) == shapes.end()) rows.push_back(row);
    return rows;
}

std::string NameOf(const testing::TestParamInfo<LayoutRow>& row)
{
    return row.param.Name;
}

INSTANTIATE_TEST_SUITE_P(Shapes, Layout, testing::ValuesIn(kLayouts), NameOf);
INSTANTIATE_TEST_SUITE_P(Shapes, HalfTurnedLayout,
                         testing::ValuesIn(LayoutsWithout({kStiffenedTDown, kStiffenedTUp})),
                         NameOf);
INSTANTIATE_TEST_SUITE_P(Shapes, ExchangedLayout, testing::ValuesIn(LayoutsWithout({kLShape})),
                         NameOf);

TEST(LayoutOfAnL, LyingStartsAtTheLegsEnd)
{
    CrossSection section = Dimensioned({"L", kLShape, {5, 0.75, 6, 0.5}, {}});
    RotateElements(section, kPi / 2);
    BuildElements(section, 0);
    ExpectCorners(section, {{6, 0, 6.75, 5}, {0, 0, 6, 0.5}}); // the short leg to the right
    RotateElements(section, kPi);
    BuildElements(section, 0);
    ExpectCorners(section, {{-0.75, -5, 0, 0}, {0, -0.5, 6, 0}}); // to the left
}

TEST(LayoutOfAC, OpensToTheSideWhereTheFlangeReachesBeyondTheWeb)
{
    Worked worked = Entered(kCShape, {3, 0.5, 9, 0.375});
    ASSERT_FALSE(worked.Check().has_value());
    CrossSection& section = worked.Section;
    const double web = section.ElementCorners[1].Right;
    section.ElementCorners[0].Right = web + 0.00011;
    BuildElements(section, 0);
    EXPECT_EQ(section.ElementCorners[0].Right, 3);
    section.ElementCorners[0].Right = section.ElementCorners[1].Right + 0.00009;
    BuildElements(section, 0);
    EXPECT_EQ(section.ElementCorners[0].Left, -3);
    EXPECT_EQ(section.ElementCorners[0].Right, 0);
}

TEST(LayoutOfAChannel, KeepsItsSideWithFlangesNarrowerThanItsWeb)
{
    Worked worked = Entered(kGeneralChannel, {0.5, 0.5, 9, 1, 0.25, 0.75});
    ASSERT_FALSE(worked.Check().has_value());
    for (int pass = 0; pass < 3; ++pass) {
        BuildElements(worked.Section, 0);
        EXPECT_EQ(worked.Element(2).Left, 0) << "pass " << pass;
    }
    worked.Turn(2);
    for (int pass = 0; pass < 3; ++pass) {
        BuildElements(worked.Section, 0);
        EXPECT_EQ(worked.Element(2).Right, 0) << "pass " << pass;
    }
}

class FlippedStiffenedT : public TestWithParam<int> {};

TEST_P(FlippedStiffenedT, TakesTheFourthLeftEdgeFromTheOldThirdElement)
{
    Worked worked = Entered(GetParam(), {8, 0.75, 9, 0.5, 3, 0.25});
    ASSERT_FALSE(worked.Check().has_value());
    worked.Turn(2);
    const double oldRight = worked.Element(3).Right;
    BuildElements(worked.Section, 0);
    EXPECT_EQ(worked.Element(4).Left, oldRight - 0.25);
    EXPECT_EQ(worked.Element(4).Right, -4);
    EXPECT_EQ(worked.Element(3).Left, 4); // the third keeps its side
    EXPECT_EQ(worked.Element(3).Right, 4.25);
    EXPECT_LT(worked.Element(1).Top, worked.Element(2).Top); // the flange is below
}

TEST_P(FlippedStiffenedT, IsRightLyingOnEitherSide)
{
    for (const int quarters : {1, 3}) {
        Worked worked = Entered(GetParam(), {8, 0.75, 9, 0.5, 3, 0.25});
        ASSERT_FALSE(worked.Check().has_value());
        worked.Turn(quarters);
        BuildElements(worked.Section, 0);
        for (const int number : {3, 4}) {
            EXPECT_TRUE(Near(worked.Element(number).Top - worked.Element(number).Bottom, 0.25));
            EXPECT_TRUE(Near(worked.Element(number).Right - worked.Element(number).Left, 3));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(BothWays, FlippedStiffenedT,
                         testing::Values(kStiffenedTDown, kStiffenedTUp));

TEST(LayoutOfRoundShapes, KeepsHalfDiametersInTheHeights)
{
    Worked circle = Entered(kCircle, {5});
    ASSERT_FALSE(circle.Check().has_value());
    BuildElements(circle.Section, 0);
    EXPECT_EQ(circle.Element(1), (Corners{0, -2.5, 0, 2.5}));

    Worked pipe = Entered(kPipe, {5, 3.5});
    ASSERT_FALSE(pipe.Check().has_value());
    BuildElements(pipe.Section, 0);
    EXPECT_EQ(pipe.Element(1), (Corners{0, 2.5, 0, 2.5}));
    EXPECT_EQ(pipe.Element(2), (Corners{0, 1.75, 0, 1.75}));
}

TEST(LayoutOfSpecifiedProperties, HasAQuadrantForEachDistance)
{
    Worked worked = Entered(kSpecified, {2, 3, 4, 5, 100, 50, 12});
    ASSERT_FALSE(worked.Check().has_value());
    BuildElements(worked.Section, 0);
    ExpectCorners(worked.Section, {{0, 0, 2, 3}, {-4, -5, 0, 0}, {0, -5, 2, 0}, {-4, 0, 0, 3}});
}

TEST(BuildElements, LeavesElementsThatTheShapeHasNot)
{
    Worked worked = Entered(kTShape, {8, 1, 9, 1});
    worked.Section.ElementCorners[4] = {1, 2, 3, 4};
    ASSERT_FALSE(worked.Check().has_value());
    BuildElements(worked.Section, 0);
    EXPECT_EQ(worked.Element(5), (Corners{1, 2, 3, 4}));
}

TEST(RotateElements, TurnsAllSlotsAndTheirLie)
{
    CrossSection section;
    TakeShape(section, kTShape);
    section.ElementCorners[5] = {1, 2, 3, 5};
    RotateElements(section, kPi / 2);
    ExpectCorners(section, {{-5, -5, -3, 5}, {-3, -1, 5, 1}});
    EXPECT_TRUE(Near(section.ElementCorners[5].Left, -5, 1e-12));
    EXPECT_TRUE(Near(section.ElementCorners[5].Top, 3, 1e-12));
    EXPECT_EQ(section.ElementLie, (std::array{0, 1, 1, 1, 1, 1}));
    RotateElements(section, kPi);
    EXPECT_EQ(section.ElementLie[0], 0); // a half turn changes no lie
    ExpectCorners(section, {{3, -5, 5, 5}, {-5, -1, 3, 1}});
    RotateElements(section, 3 * kPi / 2);
    EXPECT_EQ(section.ElementLie[0], 1);
    ExpectCorners(section, {{-5, -5, 5, -3}, {-1, -3, 1, 5}});
}

} // namespace
} // namespace forcelab::sections::test
