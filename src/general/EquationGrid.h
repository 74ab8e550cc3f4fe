#pragma once

#include "core/Refusal.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace forcelab::general {

inline constexpr int kMaxEquations = 10;
inline constexpr int kFirstEquations = 3;

/// The grid of frmLinSolve without its screen: the texts of its cells, which of them can be
/// edited, and the solution.
///
/// Rows and columns are those of fgElements: row 0 is the heading, column 0 numbers the equations,
/// then come the coefficients, the unknowns and the constants. What a smaller grid hides is kept
/// and shows again when the grid grows back.
class EquationGrid {
  public:
    [[nodiscard]] int EquationCount() const { return equationCount_; }
    [[nodiscard]] int Rows() const { return equationCount_ + 1; }
    [[nodiscard]] int Columns() const { return equationCount_ + 3; }
    [[nodiscard]] int UnknownsColumn() const { return equationCount_ + 1; }
    [[nodiscard]] int ConstantsColumn() const { return equationCount_ + 2; }

    /// The number of equations, held to 1 to 10. The unknowns lose their values.
    void Resize(int equationCount);

    [[nodiscard]] std::string CellText(int row, int column) const;
    /// True for the coefficients and constants, the cells with EditColor.
    [[nodiscard]] bool IsEditable(int row, int column) const;
    /// Puts a text into an editable cell; leaves every other one alone.
    void SetCellText(int row, int column, std::string_view text);

    /// Solves the equations and writes the values of the unknowns, five decimal places; empty cells
    /// are filled with "0". Where no usable pivot is found the unknowns keep what they had.
    /// Throws ArithmeticFault where a number or a result is too large.
    std::optional<Refusal> SolveTheMatrix();

    // Keys on a cell.
    /// Ctrl+C: keeps the text of a cell that is not empty.
    void Copy(int row, int column);
    /// Ctrl+X: copies and then empties an editable cell.
    void Cut(int row, int column);
    /// Ctrl+V: writes what was copied into an editable cell.
    void Paste(int row, int column);
    /// Delete: empties an editable cell.
    void Delete(int row, int column) { SetCellText(row, column, ""); }
    [[nodiscard]] const std::string& CellClipboard() const { return cellClipboard_; }

  private:
    [[nodiscard]] std::string HeadingText(int column) const;
    std::string& Editable(int row, int column);
    void FillEmptyCells();

    using Column = std::array<std::string, kMaxEquations>;
    int equationCount_ = kFirstEquations;
    std::array<Column, kMaxEquations> coefficients_; ///< by row, then column
    Column unknowns_;                                ///< empty: not solved yet
    Column constants_;
    std::string cellClipboard_;
};

/// True for a character that opens the edit box over a cell: what a number is made of, Enter, Esc
/// and three more codes. A double click counts as Enter.
bool OpensCellEditor(int keyAscii);

} // namespace forcelab::general
