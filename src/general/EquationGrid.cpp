#include "general/EquationGrid.h"

#include "core/MainModule.h"
#include "core/NumericText.h"
#include "general/GaussJordan.h"

#include <algorithm>
#include <utility>

namespace forcelab::general {

namespace {

const Refusal kNoSolution{kStop, "Linear Equation Solver Error",
                          "The equations could not be solved.  Check the input.", ""};
constexpr int kSolutionPlaces = 5;

std::string Number(int number)
{
    return Format(number, "##");
}

} // namespace

void EquationGrid::Resize(int equationCount)
{
    equationCount_ = std::clamp(equationCount, 1, kMaxEquations);
    unknowns_.fill("");
}

std::string EquationGrid::HeadingText(int column) const
{
    if (column == UnknownsColumn()) return "Unknowns";
    if (column == ConstantsColumn()) return "Constants";
    return column == 0 ? "" : Number(column);
}

std::string EquationGrid::CellText(int row, int column) const
{
    if (row < 0 || row >= Rows() || column < 0 || column >= Columns()) return "";
    if (row == 0) return HeadingText(column);
    if (column == 0) return Number(row);
    if (column == ConstantsColumn()) return constants_[row - 1];
    if (column != UnknownsColumn()) return coefficients_[row - 1][column - 1];
    const std::string& value = unknowns_[row - 1];
    return value.empty() ? "X" + Number(row) : value;
}

bool EquationGrid::IsEditable(int row, int column) const
{
    return row >= 1 && row < Rows() && column >= 1 && column < Columns() &&
           column != UnknownsColumn();
}

std::string& EquationGrid::Editable(int row, int column)
{
    return column == ConstantsColumn() ? constants_[row - 1] : coefficients_[row - 1][column - 1];
}

void EquationGrid::SetCellText(int row, int column, std::string_view text)
{
    if (IsEditable(row, column)) Editable(row, column) = text;
}

void EquationGrid::FillEmptyCells()
{
    for (int row = 1; row < Rows(); ++row)
        for (int column = 1; column < Columns(); ++column)
            if (IsEditable(row, column) && Editable(row, column).empty())
                Editable(row, column) = "0";
}

std::optional<Refusal> EquationGrid::SolveTheMatrix()
{
    FillEmptyCells();
    const int n = equationCount_;
    std::array<double, kMaxEquations * kMaxEquations> a{};
    std::array<double, kMaxEquations> b{};
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < n; ++j) a[i * n + j] = ParseNumber(coefficients_[i][j]);
        b[i] = ParseNumber(constants_[i]);
    }
    if (GaussJordanSolve(a, b, n) != 0) return kNoSolution;
    DecimalPlaces = kSolutionPlaces;
    // All are printed before one is shown, so that a fault leaves the earlier solution whole.
    Column solution;
    for (int i = 0; i < n; ++i) solution[i] = FormatValue(b[i]).Joined();
    unknowns_ = std::move(solution);
    return std::nullopt;
}

void EquationGrid::Copy(int row, int column)
{
    const std::string text = CellText(row, column);
    if (!text.empty()) cellClipboard_ = text;
}

void EquationGrid::Cut(int row, int column)
{
    if (!IsEditable(row, column)) return;
    Copy(row, column);
    Delete(row, column);
}

void EquationGrid::Paste(int row, int column)
{
    if (!cellClipboard_.empty()) SetCellText(row, column, cellClipboard_);
}

bool OpensCellEditor(int keyAscii)
{
    constexpr std::string_view kOfNumbers = "0123456789Ee.+-";
    constexpr std::array<int, 5> kOthers{13, 27, 38, 40, 46};
    if (keyAscii == MainModule::DecimalChar) return true; // the comma where decimals are so written
    const auto isKey = [keyAscii](int key) { return key == keyAscii; };
    return std::any_of(kOfNumbers.begin(), kOfNumbers.end(), isKey) ||
           std::any_of(kOthers.begin(), kOthers.end(), isKey);
}

} // namespace forcelab::general
