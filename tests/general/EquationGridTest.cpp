#include "general/EquationGrid.h"

#include "core/ArithmeticFault.h"
#include "core/MainModule.h"
#include "support/Near.h"

using namespace forcelab;
using namespace forcelab::general;
using forcelab::test::Local;

namespace {

void Fill(EquationGrid& grid, const std::vector<std::vector<std::string>>& rows)
{
    const int n = static_cast<int>(rows.size());
    grid.Resize(n);
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < n; ++j) grid.SetCellText(i + 1, j + 1, Local(rows[i][j]));
        grid.SetCellText(i + 1, grid.ConstantsColumn(), Local(rows[i][n]));
    }
}

TEST(EquationGrid, StartsWithThreeEmptyEquations)
{
    const EquationGrid grid;
    EXPECT_EQ(grid.EquationCount(), 3);
    EXPECT_EQ(grid.Rows(), 4);
    EXPECT_EQ(grid.Columns(), 6);
    EXPECT_EQ(grid.CellText(0, 4), "Unknowns");
    EXPECT_EQ(grid.CellText(0, 5), "Constants");
    EXPECT_EQ(grid.CellText(2, 0), "2");
    EXPECT_EQ(grid.CellText(2, 4), "X2");
    EXPECT_EQ(grid.CellText(2, 2), "");
    EXPECT_EQ(grid.CellText(7, 2), "");
}

TEST(EquationGrid, EditsCoefficientsAndConstantsOnly)
{
    EquationGrid grid;
    for (int row = -1; row <= 5; ++row)
        for (int column = -1; column <= 7; ++column) {
            const bool inside = row >= 1 && row <= 3 && column >= 1 && column <= 5;
            EXPECT_EQ(grid.IsEditable(row, column), inside && column != 4);
            grid.SetCellText(row, column, "7");
        }
    EXPECT_EQ(grid.CellText(1, 4), "X1");
    EXPECT_EQ(grid.CellText(3, 5), "7");
    EXPECT_EQ(grid.CellText(0, 0), "");
}

TEST(EquationGrid, SolvesWithFivePlaces)
{
    EquationGrid grid;
    Fill(grid, {{"2", "1", "-1", "8"}, {"-3", "-1", "2", "-11"}, {"-2", "1", "2", "-3"}});
    EXPECT_FALSE(grid.SolveTheMatrix());
    EXPECT_EQ(grid.CellText(1, 4), Local("2.00000"));
    EXPECT_EQ(grid.CellText(2, 4), Local("3.00000"));
    EXPECT_EQ(grid.CellText(3, 4), Local("-1.00000"));
    EXPECT_EQ(DecimalPlaces, 5);
}

TEST(EquationGrid, PrintsLargeAndSmallSolutionsWithExponents)
{
    EquationGrid grid;
    Fill(grid, {{"1", "", "2.5e+6"}, {"", "4", "2E-3"}});
    PlainNumbers = false;
    EXPECT_FALSE(grid.SolveTheMatrix());
    EXPECT_EQ(grid.CellText(1, 3), Local("2.50000E+06"));
    EXPECT_EQ(grid.CellText(2, 3), Local("500.00000E-06"));
    EXPECT_EQ(grid.CellText(1, 2), "0"); // filled
}

TEST(EquationGrid, RefusesWhatCannotBeSolvedAndKeepsTheUnknowns)
{
    EquationGrid grid;
    const auto refusal = grid.SolveTheMatrix(); // all empty
    ASSERT_TRUE(refusal);
    EXPECT_EQ(refusal->Icon, kStop);
    EXPECT_EQ(refusal->Title, "Linear Equation Solver Error");
    EXPECT_EQ(refusal->Text, "The equations could not be solved.  Check the input.");
    EXPECT_EQ(grid.CellText(3, 3), "0");
    EXPECT_EQ(grid.CellText(3, 5), "0");
    EXPECT_EQ(grid.CellText(3, 4), "X3");
    Fill(grid, {{"1", "1", "3"}, {"1", "-1", "1"}});
    EXPECT_FALSE(grid.SolveTheMatrix());
    grid.SetCellText(2, 2, "1");
    EXPECT_TRUE(grid.SolveTheMatrix());
    EXPECT_EQ(grid.CellText(1, 3), Local("2.00000"));
}

TEST(EquationGrid, RefusesTheHilbertMatrixOfTen)
{
    EquationGrid grid;
    grid.Resize(10);
    for (int i = 1; i <= 10; ++i) {
        for (int j = 1; j <= 10; ++j)
            grid.SetCellText(i, j, Format(1.0 / (i + j - 1), "0.##############"));
        grid.SetCellText(i, grid.ConstantsColumn(), "1");
    }
    EXPECT_TRUE(grid.SolveTheMatrix());
}

TEST(EquationGrid, ReadsNumbersAsForgivinglyAsEveryBox)
{
    EquationGrid grid;
    Fill(grid, {{"2 kN", "10"}});
    EXPECT_FALSE(grid.SolveTheMatrix());
    EXPECT_EQ(grid.CellText(1, 2), Local("5.00000"));
    grid.SetCellText(1, 1, "abc");
    EXPECT_TRUE(grid.SolveTheMatrix());
}

TEST(EquationGrid, KeepsTheEarlierSolutionWhereAResultIsTooLarge)
{
    EquationGrid grid;
    Fill(grid, {{"2", "0", "8"}, {"0", "0.01", "1"}});
    EXPECT_FALSE(grid.SolveTheMatrix());
    grid.SetCellText(2, 4, "1e+308");
    EXPECT_THROW(grid.SolveTheMatrix(), ArithmeticFault);
    grid.SetCellText(2, 4, "1e+400");
    EXPECT_THROW(grid.SolveTheMatrix(), ArithmeticFault);
    EXPECT_EQ(grid.CellText(1, 3), Local("4.00000"));
    EXPECT_EQ(grid.CellText(2, 3), Local("100.00000"));
}

TEST(EquationGrid, KeepsItsCellsThroughResizing)
{
    EquationGrid grid;
    Fill(grid, {{"1", "2", "3", "10"}, {"4", "5", "6", "20"}, {"7", "8", "10", "30"}});
    EXPECT_FALSE(grid.SolveTheMatrix());
    grid.Resize(2);
    EXPECT_EQ(grid.CellText(1, grid.ConstantsColumn()), "10");
    EXPECT_EQ(grid.CellText(1, grid.UnknownsColumn()), "X1");
    grid.Resize(4);
    EXPECT_EQ(grid.CellText(1, 3), "3");
    EXPECT_EQ(grid.CellText(3, 2), "8");
    EXPECT_EQ(grid.CellText(3, grid.ConstantsColumn()), "30");
    EXPECT_EQ(grid.CellText(4, 4), "");
    EXPECT_EQ(grid.CellText(0, 5), "Unknowns");
    EXPECT_EQ(grid.CellText(4, 5), "X4");
    grid.Resize(99);
    EXPECT_EQ(grid.EquationCount(), 10);
    grid.Resize(-1);
    EXPECT_EQ(grid.EquationCount(), 1);
}

TEST(CellClipboard, CopiesCutsAndPastes)
{
    EquationGrid grid;
    grid.SetCellText(1, 1, "12");
    grid.Copy(1, 1);
    grid.Copy(1, 2); // empty: what was copied stays
    grid.Paste(2, 2);
    EXPECT_EQ(grid.CellText(2, 2), "12");
    grid.Paste(2, 4); // a white cell
    EXPECT_EQ(grid.CellText(2, 4), "X2");
    grid.SetCellText(3, 3, "5");
    grid.Cut(3, 3);
    EXPECT_EQ(grid.CellText(3, 3), "");
    EXPECT_EQ(grid.CellClipboard(), "5");
    grid.Cut(1, 4);
    EXPECT_EQ(grid.CellClipboard(), "5");
    grid.Delete(1, 1);
    grid.Delete(1, 4);
    EXPECT_EQ(grid.CellText(1, 1), "");
    EXPECT_EQ(grid.CellText(1, 4), "X1");
}

TEST(CellClipboard, PastesNothingBeforeACopy)
{
    EquationGrid grid;
    grid.SetCellText(1, 1, "12");
    grid.Paste(1, 1);
    EXPECT_EQ(grid.CellText(1, 1), "12");
}

TEST(OpensCellEditor, TakesWhatBelongsToANumber)
{
    for (const char c : std::string("0123456789Ee.+-")) EXPECT_TRUE(OpensCellEditor(c)) << c;
    for (const int key : {13, 27, 38, 40, 46}) EXPECT_TRUE(OpensCellEditor(key)) << key;
    for (const int key : {0, 8, 9, 32, int('a'), int('X'), int('*'), int('/')})
        EXPECT_FALSE(OpensCellEditor(key));
    EXPECT_EQ(OpensCellEditor(','), MainModule::DecimalChar == ',');
}

} // namespace
