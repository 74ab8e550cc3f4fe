#include "general/MatrixTable.h"

#include "core/RecordingPicture.h"
#include "support/Near.h"

#include <algorithm>

namespace forcelab::general {
namespace {

using test::Local;
using testing::Contains;
using testing::ElementsAre;

constexpr double kWide = 2000;
constexpr double kHigh = 900;
constexpr std::string_view kTitle = "Title";

EquationGrid TwoEquations()
{
    EquationGrid grid;
    grid.Resize(2);
    grid.SetCellText(1, 1, "2");
    grid.SetCellText(2, 2, "4");
    grid.SetCellText(1, 4, "3");
    grid.SetCellText(2, 4, "10");
    return grid;
}

std::vector<std::string> Headings(const MatrixPage& page)
{
    std::vector<std::string> headings;
    for (const PrintedColumn& column : page.Columns) headings.push_back(column.Texts.front());
    return headings;
}

TEST(MatrixTable, ShowsMatrixUnknownsConstantsAndSolutions)
{
    EquationGrid grid = TwoEquations();
    ASSERT_FALSE(grid.SolveTheMatrix());
    RecordingPicture sheet(kWide, kHigh);
    const auto pages = MatrixPages(sheet, grid);
    ASSERT_EQ(pages.size(), 1U);
    EXPECT_THAT(pages[0].Rows.Texts, ElementsAre("", "Row 1", "Row 2"));
    EXPECT_THAT(Headings(pages[0]),
                ElementsAre("Col 1", "Col 2", "Unknowns", "Constants", "Solutions"));
    EXPECT_THAT(pages[0].Columns[2].Texts, ElementsAre("Unknowns", "X1", "X2"));
    EXPECT_THAT(pages[0].Columns[4].Texts,
                ElementsAre("Solutions", Local("1.50000"), Local("2.50000")));
}

TEST(MatrixTable, BeforeASolveTheSolutionsAreBlank)
{
    RecordingPicture sheet(kWide, kHigh);
    const auto pages = MatrixPages(sheet, TwoEquations());
    EXPECT_THAT(pages[0].Columns[4].Texts, ElementsAre("Solutions", "", ""));
}

TEST(MatrixTable, ColumnsThatDoNotFitGoOnToTheNextPage)
{
    EquationGrid grid;
    grid.Resize(10);
    RecordingPicture sheet(300, kHigh);
    const auto pages = MatrixPages(sheet, grid);
    ASSERT_GE(pages.size(), 3U);
    std::vector<std::string> all;
    for (const MatrixPage& page : pages) {
        EXPECT_EQ(page.Rows.Texts[10], "Row 10");
        double width = page.Rows.Width;
        for (const PrintedColumn& column : page.Columns) width += column.Width;
        EXPECT_LE(width, 300);
        for (const std::string& heading : Headings(page)) all.push_back(heading);
    }
    EXPECT_THAT(all, ElementsAre("Col 1", "Col 2", "Col 3", "Col 4", "Col 5", "Col 6", "Col 7",
                                 "Col 8", "Col 9", "Col 10", "Unknowns", "Constants", "Solutions"));
}

TEST(MatrixTable, ASheetWithoutRoomForAColumnHasNoPages)
{
    RecordingPicture sheet(40, kHigh);
    EXPECT_TRUE(MatrixPages(sheet, TwoEquations()).empty());
}

TEST(MatrixTable, PrintsTitleTextsAndRules)
{
    RecordingPicture sheet(kWide, kHigh);
    const auto pages = MatrixPages(sheet, TwoEquations());
    PrintMatrixPage(sheet, kTitle, pages.at(0));
    const auto& texts = sheet.Texts();
    EXPECT_EQ(texts.front(), kTitle);
    for (const char* text : {"Col 1", "Row 2", "Constants", "10"})
        EXPECT_THAT(texts, Contains(text));
    const auto isRule = [](const std::string& text) {
        return text.size() > 20 && text.find_first_not_of('-') == std::string::npos;
    };
    EXPECT_EQ(std::count_if(texts.begin(), texts.end(), isRule), 2);
    EXPECT_TRUE(isRule(texts.back()));
    EXPECT_EQ(sheet.FontName, "Arial");
    EXPECT_EQ(sheet.FontSize, 10);
}

} // namespace
} // namespace forcelab::general
