#include "general/MatrixTable.h"

#include "core/DrawingHelpers.h"
#include "core/NumericText.h"

#include <algorithm>
#include <cmath>

namespace forcelab::general {

namespace {

constexpr double kFontSize = 10;           // points
constexpr std::string_view kSpace = "123"; // as wide as the space between columns
constexpr double kLineSpacing = 1.25;      // of the height of a text

std::string Numbered(std::string_view word, int number)
{
    return std::string(word) + Format(number, "##");
}

void SetFont(Picture& sheet, bool bold)
{
    sheet.ScaleToPixels();
    sheet.FontName = "Arial";
    sheet.FontSize = kFontSize;
    sheet.FontBold = bold;
}

PrintedColumn Measured(const Picture& sheet, std::vector<std::string> texts)
{
    double widest = 0;
    for (const std::string& text : texts) widest = std::max(widest, sheet.TextWidth(text));
    return {std::move(texts), widest + sheet.TextWidth(kSpace)};
}

std::vector<std::string> RowNames(const EquationGrid& grid)
{
    std::vector<std::string> names{""};
    for (int row = 1; row < grid.Rows(); ++row) names.push_back(Numbered("Row ", row));
    return names;
}

std::vector<std::string> GridColumn(const EquationGrid& grid, std::string heading, int column)
{
    std::vector<std::string> texts{std::move(heading)};
    for (int row = 1; row < grid.Rows(); ++row) texts.push_back(grid.CellText(row, column));
    return texts;
}

std::vector<std::string> UnknownNames(const EquationGrid& grid)
{
    std::vector<std::string> names{"Unknowns"};
    for (int row = 1; row < grid.Rows(); ++row) names.push_back(Numbered("X", row));
    return names;
}

// The unknowns' cells hold their names until a solve has written values.
std::vector<std::string> Solutions(const EquationGrid& grid, const std::vector<std::string>& names)
{
    auto values = GridColumn(grid, "Solutions", grid.UnknownsColumn());
    for (std::size_t row = 1; row < values.size(); ++row)
        if (values[row] == names[row]) values[row].clear();
    return values;
}

std::vector<PrintedColumn> AllColumns(const Picture& sheet, const EquationGrid& grid)
{
    std::vector<PrintedColumn> columns;
    for (int column = 1; column <= grid.EquationCount(); ++column)
        columns.push_back(Measured(sheet, GridColumn(grid, Numbered("Col ", column), column)));
    const auto names = UnknownNames(grid);
    columns.push_back(Measured(sheet, names));
    columns.push_back(Measured(sheet, GridColumn(grid, "Constants", grid.ConstantsColumn())));
    columns.push_back(Measured(sheet, Solutions(grid, names)));
    return columns;
}

double WidthOf(const MatrixPage& page)
{
    double width = page.Rows.Width;
    for (const PrintedColumn& column : page.Columns) width += column.Width;
    return width;
}

double LineHeight(const Picture& sheet)
{
    return sheet.TextHeight(kSpace) * kLineSpacing;
}

/// Prints a line over the table, made of hyphens.
void PrintRule(Picture& sheet, double top, double width)
{
    const double dash = sheet.TextWidth("-");
    const int count = dash > 0 ? static_cast<int>(std::floor(width / dash)) : 0;
    PrintText(sheet, 0, top, std::string(static_cast<std::size_t>(count), '-'));
}

void PrintCell(Picture& sheet, double right, double top, const std::string& text)
{
    PrintText(sheet, right, top, text, HAlign::Right);
}

void PrintAnalysisTitle(Picture& sheet, std::string_view title)
{
    SetFont(sheet, true);
    PrintText(sheet, 0, 0, std::string(title));
    SetFont(sheet, false);
}

} // namespace

std::vector<MatrixPage> MatrixPages(Picture& sheet, const EquationGrid& grid)
{
    SetFont(sheet, false);
    const MatrixPage empty{Measured(sheet, RowNames(grid)), {}};
    std::vector<MatrixPage> pages{empty};
    for (PrintedColumn& column : AllColumns(sheet, grid)) {
        if (empty.Rows.Width + column.Width > sheet.ScaleWidth()) return {};
        if (WidthOf(pages.back()) + column.Width > sheet.ScaleWidth()) pages.push_back(empty);
        pages.back().Columns.push_back(std::move(column));
    }
    return pages;
}

void PrintMatrixPage(Picture& sheet, std::string_view title, const MatrixPage& page)
{
    PrintAnalysisTitle(sheet, title);
    const double line = LineHeight(sheet);
    const double width = WidthOf(page);
    double top = 2 * line;
    for (std::size_t row = 0; row < page.Rows.Texts.size(); ++row, top += line) {
        PrintText(sheet, 0, top, page.Rows.Texts[row]);
        double right = page.Rows.Width;
        for (const PrintedColumn& column : page.Columns)
            PrintCell(sheet, right += column.Width, top, column.Texts[row]);
        if (row == 0) PrintRule(sheet, top += line, width);
    }
    PrintRule(sheet, top, width);
}

} // namespace forcelab::general
