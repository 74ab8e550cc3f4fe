// What Compute refuses, in which words, and where the focus goes.

#include "PropertiesFormTest.h"

namespace forcelab::sections {
namespace {

using test::Local;
using test::Near;

constexpr const char* kNotAll =
    "Section properties cannot be calculated until all dimensions are specified.";

struct Refused {
    const char* Name;
    const char* Menu;
    std::vector<std::string> Dimensions;
    const char* Text;
    const char* Focus;
};

void PrintTo(const Refused& row, std::ostream* out)
{
    *out << row.Name;
}

class RefusedEntry : public PropertiesFormTest, public testing::WithParamInterface<Refused> {};

TEST_P(RefusedEntry, NamesItsBoxAndLeavesTheResults)
{
    ComputeShape("mnuCircular(0)", {"2"});
    const double area = Figure(Row::Area, Column::Zz);
    Trigger(GetParam().Menu);
    TypeDimensions(GetParam().Dimensions);
    Expect({kStop, "Section Properties Error", GetParam().Text});
    Compute();
    EXPECT_EQ(FocusedControl(), GetParam().Focus);
    EXPECT_TRUE(Near(Figure(Row::Area, Column::Zz), area));
    for (std::size_t i = 0; i < GetParam().Dimensions.size(); ++i)
        if (!GetParam().Dimensions[i].empty()) {
            EXPECT_EQ(Shown(Box(int(i))), Local(GetParam().Dimensions[i]));
        }
    EXPECT_FALSE(ReportIsShown());
    EXPECT_FALSE(CurrentSection.SectionComputed);
    EXPECT_TRUE(IsEnabled("cmdShape(1)"));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, RefusedEntry,
    testing::Values(
        Refused{"NoHeight", "mnuRectangular(0)", {"4", ""}, kNotAll, "txtShape(1)"},
        Refused{"NothingAtAll", "mnuFlanged(0)", {}, kNotAll, "txtShape(5)"},
        Refused{"NoNumber", "mnuFlanged(4)", {"4", "abc", "5", "6"}, kNotAll, "txtShape(1)"},
        Refused{"NoSpacing", "mnuDouble(3)", {"8", "1", "9", "1", "0"}, kNotAll, "txtShape(4)"},
        Refused{"PipeWithoutWall",
                "mnuCircular(1)",
                {"4", "4"},
                "Dimension for inner circle cannot equal or exceed dimension given for outer "
                "circle.",
                "txtShape(1)"},
        Refused{"HatWithWideStems",
                "mnuFlanged(7)",
                {"4", "1", "6", "2.5", "3", "1"},
                "The sum of the stem thicknesses cannot exceed the top flange width.",
                "txtShape(3)"},
        Refused{"ToesThatCross",
                "mnuDouble(2)",
                {"3", "1", "8", "1", "5"},
                "\rThe sum of the flange widths cannot exceed\rthe distance from channel back to "
                "channel back.",
                "txtShape(0)"},
        Refused{"HollowTooWide",
                "mnuRectangular(1)",
                {"4", "6", "5", "2"},
                "Dimension for inner rectangle must be less than dimension given for outer "
                "rectangle.",
                "txtShape(2)"}),
    [](const auto& row) { return row.param.Name; });

class RefusalForm : public PropertiesFormTest {};

TEST_F(RefusalForm, CompositeNeedsAMaterialForEachElement)
{
    EnterComposite();
    Click(Swatch(0), Qt::RightButton);
    Expect({kStop, "Section Properties Error",
            "For composite shapes, an elastic modulus must be assigned to each element."});
    Compute();
    EXPECT_FALSE(ReportIsShown());
    Click(Swatch(1), Qt::LeftButton);
    Compute();
    EXPECT_TRUE(ReportIsShown());
}

TEST_F(RefusalForm, AHollowAsWideAsTheBoxPassesTheCheck)
{
    OpenShape("mnuRectangular(1)");
    TypeDimensions({"4", "6", "4", "5"});
    Compute();
    EXPECT_TRUE(Near(Figure(Row::Area, Column::Zz), 4));
}

// No area is left, and its centroid is nowhere.
TEST_F(RefusalForm, ABoxWithoutAreaIsAFaultThatLeavesTheResults)
{
    ComputeShape("mnuRectangular(0)", {"4", "10"});
    Trigger("mnuRectangular(1)");
    TypeDimensions({"4", "6", "4", "6"});
    Expect({kStop, "Forcelab",
            "A number in this calculation is too large. What is shown stays as it was; please "
            "check the input."});
    Compute();
    EXPECT_TRUE(Near(Figure(Row::Area, Column::Zz), 40));
    EXPECT_FALSE(ReportIsShown());
}

} // namespace
} // namespace forcelab::sections
