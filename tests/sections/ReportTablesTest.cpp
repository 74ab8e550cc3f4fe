// Which tables a section has, and the shapes that are not summed from rectangles.

#include "ReportSupport.h"
#include "core/ArithmeticFault.h"

#include <limits>

namespace forcelab::sections {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// --- round and steel shapes

TEST(RoundShapes, HaveClosedFormsInPlaceOfTheElementTable)
{
    const Computed pipe = Compute({kPipe, {"4", "3"}});
    EXPECT_FALSE(HasTable(pipe.Section, ReportTable::Centroid));
    const ReportGrid grid = GridOf(pipe, ReportTable::Centroid, kYy);
    EXPECT_THAT(grid.Cells, IsEmpty());
    EXPECT_EQ(grid.FrameCaption,
              "Centroid in Z-direction and Moment of Inertia about the Y-Y axis");
    // pi / 64 * (256 - 81)
    EXPECT_EQ(grid.Explanation,
              LocalNumbers("Distance from leftmost edge to centroid, Z left = 2.0000 inch\r\n"
                           "Moment of inertia about the Y-Y axis = 8.5903 inch^4\r\n"));
}

TEST(RoundShapes, HavePlasticTables)
{
    // Half a disc of radius 2: area 2 pi, centroid 8 / (3 pi) from the diameter; hole of 1.5.
    const Computed pipe = Compute({kPipe, {"4", "3"}});
    for (const int axis : {kZz, kYy}) {
        const Rows rows = Body(GridOf(pipe, ReportTable::Plastic, axis));
        EXPECT_THAT(rows[0],
                    ElementsAre(testing::_, LocalNumbers("6.2832"), LocalNumbers("-3.5343"), ""));
        EXPECT_THAT(rows[1],
                    ElementsAre(testing::_, LocalNumbers("0.84883"), LocalNumbers("0.63662"), ""));
        EXPECT_THAT(rows[4], ElementsAre(testing::_, LocalNumbers("10.6667"),
                                         LocalNumbers("-4.5000"), LocalNumbers("6.1667")));
    }
    EXPECT_TRUE(HasTable(Compute({kCircle, {"4"}}).Section, ReportTable::Plastic));
}

TEST(SteelReports, SummedOnesSayThatTheTableCountsFillets)
{
    const Computed tee = ComputeSteel(kSteelWT, "WT9X30", 1);
    const ReportGrid grid = GridOf(tee, ReportTable::Centroid, kZz);
    EXPECT_EQ(grid.Cells[0][1], "Width, b\ninch") << "whatever unit is chosen";
    EXPECT_TRUE(grid.Explanation.ends_with("The rows are the rectangles of the shape. Its "
                                           "published properties also count the fillets.\r\n"));
}

constexpr ReportTable kAllTables[] = {ReportTable::Centroid, ReportTable::Convert12,
                                      ReportTable::Convert21, ReportTable::Product,
                                      ReportTable::Plastic};

struct TablesRow {
    const char* Name;
    Setup Of;
    const char* Designation;
    std::array<bool, 5> Has; ///< in the order of kAllTables
};

class ReportTables : public testing::TestWithParam<TablesRow> {};

TEST_P(ReportTables, ExistWhereTheyMeanSomething)
{
    const TablesRow& row = GetParam();
    const Computed section =
        row.Designation ? ComputeSteel(row.Of.Shape, row.Designation) : Compute(row.Of);
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(HasTable(section.Section, kAllTables[i]), row.Has[i]) << "table " << i;
        for (const int axis : {kZz, kYy}) {
            const ReportGrid grid = GridOf(section, kAllTables[i], axis);
            EXPECT_EQ(grid.Cells.empty(), !row.Has[i]);
            EXPECT_NE(grid.FrameCaption, "");
            for (const auto& cells : grid.Cells) EXPECT_EQ(cells.size(), grid.Cells[0].size());
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Shapes, ReportTables,
    testing::Values(
        TablesRow{"I", {kIShape, {"6", "1", "10", "1"}}, nullptr, {true, false, false, true, true}},
        TablesRow{"circle", {kCircle, {"4"}}, nullptr, {false, false, false, true, true}},
        TablesRow{"pipe", {kPipe, {"4", "3"}}, nullptr, {false, false, false, true, true}},
        TablesRow{"composite",
                  {kTShape, {"6", "0.5", "10", "6"}, 0, 0, true},
                  nullptr,
                  {false, true, true, false, false}},
        TablesRow{"specified",
                  {kSpecified, {"1", "2", "3", "4", "5", "6", "7"}},
                  nullptr,
                  {false, false, false, false, false}},
        TablesRow{"W", {kSteelW}, "W14X90", {false, false, false, false, false}},
        TablesRow{"C", {kSteelC}, "C15X50", {true, false, false, true, true}},
        TablesRow{"WT", {kSteelWT}, "WT9X30", {true, false, false, true, true}},
        TablesRow{"L", {kSteelL}, "L8X6X1", {true, false, false, true, true}},
        TablesRow{"2L", {kSteel2L}, "2L6X4X1/2LLBB", {true, false, false, true, true}},
        TablesRow{"TS", {kSteelTS}, "TS8X4X1/2", {false, false, false, false, false}},
        TablesRow{"steel pipe", {kSteelPipe}, "PIPE10STD", {false, false, false, false, false}}),
    [](const auto& tested) {
        std::string name = tested.param.Name;
        std::erase(name, ' ');
        return name;
    });

TEST(ReportGrids, AreEmptyBeforeAnyShape)
{
    const Computed nothing;
    for (const ReportTable table : kAllTables) {
        EXPECT_FALSE(HasTable(nothing.Section, table));
        EXPECT_THAT(GridOf(nothing, table, kZz).Cells, IsEmpty());
    }
}

TEST(ReportGrids, NeverShowWhatIsNoNumber)
{
    Computed section = Compute({kTShape, {"8", "1", "9", "1"}});
    section.Section.Details[1][8] = std::numeric_limits<double>::quiet_NaN();
    EXPECT_THROW(GridOf(section, ReportTable::Centroid, kZz), ArithmeticFault);
}

} // namespace
} // namespace forcelab::sections
