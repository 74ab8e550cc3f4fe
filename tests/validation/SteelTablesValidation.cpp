#include "sections/SectionCases.h"

#include "SteelText.h"

#include <cmath>
#include <fstream>

// Every row of every steel table, selected and computed in all turns that its shape allows. What
// is published must stand in the columns of its axes, and what is summed of the sharp-edged
// outline must lie near what is published for the rolled one.

namespace forcelab::sections::test {
namespace {

std::vector<SteelShape> Table(int family)
{
    std::ifstream file("data/steel/" + SteelTextName(SteelFamily(family)));
    return ReadSteelText(SteelFamily(family), file).Shapes;
}

/// The steel shape as it is picked from its list, turned and not yet computed.
Worked Picked(const SteelShape& steel, int quarters)
{
    Worked worked;
    TakeShape(worked.Section, steel.Family + kSteelW);
    worked.Entry.Swatch.fill(IndexedColour(8));
    worked.Entry.Steel = steel;
    const auto boxes = SteelBoxes(steel);
    for (std::size_t box = 0; box < boxes.size(); ++box) worked.Entry.Box[box] = boxes[box];
    if (quarters != 0) worked.Turn(quarters);
    return worked;
}

void ExpectPublished(const Worked& worked, const SteelShape& steel, int quarters)
{
    const bool tube = steel.Family == kFamilyTS;
    const bool strongIsZz = (quarters % 2 == 0) != tube;
    const Column strong = strongIsZz ? Column::Zz : Column::Yy;
    EXPECT_EQ(worked.At(Row::Area, Column::Zz), steel.A);
    EXPECT_EQ(worked.At(Row::Inertia, strong), steel.Ix);
    EXPECT_EQ(worked.At(Row::SmallestSectionModulus, strong), steel.Sx);
    EXPECT_EQ(worked.At(Row::RadiusOfGyration, strong), steel.Rx);
    EXPECT_EQ(worked.At(Row::PlasticModulus, strong), steel.Zx);
    EXPECT_GE(worked.At(Row::ShapeFactor, strong), 1);
}

class SteelFamilyTable : public testing::TestWithParam<int> {};

TEST_P(SteelFamilyTable, IsComputedRowByRow)
{
    const std::vector<SteelShape> table = Table(GetParam());
    ASSERT_GT(table.size(), 20U);
    const int turns = InfoOf(GetParam() + kSteelW).MayRotate ? 4 : 1;
    for (const SteelShape& steel : table) {
        SCOPED_TRACE(steel.Designation);
        for (int quarters = 0; quarters < turns; ++quarters) {
            Worked worked = Picked(steel, quarters);
            ASSERT_FALSE(worked.Compute().has_value());
            ExpectPublished(worked, steel, quarters);
        }
    }
}

struct Corner {
    double Area;
    double Inertia;
};

/// What four rounded corners of a tube take away: spandrels of radius 2 t outside and t inside,
/// each of area 0.2146 r squared with its centroid 0.2234 r from both edges.
Corner RoundCorners(const SteelShape& tube)
{
    const double t = tube.Web;
    const auto spandrels = [](double radius, double edge) {
        const double area = 4 * 0.2146 * radius * radius;
        const double arm = edge - 0.2234 * radius;
        return Corner{area, area * arm * arm};
    };
    const Corner outside = spandrels(2 * t, tube.Depth / 2);
    const Corner inside = spandrels(t, tube.Depth / 2 - t);
    return {outside.Area - inside.Area, outside.Inertia - inside.Inertia};
}

/// The user's shape of the same outline must come near the published shape: fillets add a few
/// hundredths, sloping flanges of channels and tees take as much away.
TEST_P(SteelFamilyTable, IsNearTheSumsOfItsOutline)
{
    constexpr double kFillets = 0.15;
    const bool tube = GetParam() == kFamilyTS;
    for (const SteelShape& steel : Table(GetParam())) {
        SCOPED_TRACE(steel.Designation);
        Worked worked = Picked(steel, 0);
        TakeShape(worked.Section, LayoutOf(worked.Section.ShapeIndex));
        worked.Entry.Steel.reset();
        ASSERT_FALSE(worked.Compute().has_value());
        const Column strong = tube ? Column::Yy : Column::Zz;
        const Corner round = tube ? RoundCorners(steel) : Corner{};
        const double share = tube ? 0.04 : kFillets;
        EXPECT_NEAR(worked.At(Row::Area, Column::Zz) - round.Area, steel.A, share * steel.A);
        EXPECT_NEAR(worked.At(Row::Inertia, strong) - round.Inertia, steel.Ix, share * steel.Ix);
    }
}

INSTANTIATE_TEST_SUITE_P(Families, SteelFamilyTable, testing::Range(0, kSteelFamilies));

} // namespace
} // namespace forcelab::sections::test
