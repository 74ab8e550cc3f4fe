#pragma once

#include "core/Picture.h"
#include "general/EquationGrid.h"

#include <string>
#include <vector>

/// The equations and their solution as a table on paper.
namespace forcelab::general {

/// A column of the printed table: its heading, then one text a row.
struct PrintedColumn {
    std::vector<std::string> Texts;
    double Width = 0; ///< of the widest text and the space to its left, pixels
};

/// The rows' names, which stand on every page, and the columns that fit beside them.
struct MatrixPage {
    PrintedColumn Rows;
    std::vector<PrintedColumn> Columns;
};

/// Cuts the table into pages of the sheet's width: coefficients, unknowns, constants, solutions,
/// in this order. Columns that do not fit go on to the next page. The solutions are blank before
/// a solve. Sets the sheet's scale and font. No page where not even one column fits.
std::vector<MatrixPage> MatrixPages(Picture& sheet, const EquationGrid& grid);

/// Prints the title and one page of the table on a sheet.
void PrintMatrixPage(Picture& sheet, std::string_view title, const MatrixPage& page);

} // namespace forcelab::general
