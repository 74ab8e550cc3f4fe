#pragma once

#include "core/screen/FlexGrid.h"
#include "general/forms/frmLinSolve.h"
#include "support/FormTest.h"

#include <QTemporaryDir>

#include <string>
#include <vector>

namespace forcelab::general {

/// Works frmLinSolve; the main menu is an empty window with its name.
class LinSolveFormTest : public test::FormTest {
  protected:
    LinSolveFormTest()
    {
        screen::Forms::Register("frmLinSolve", [] { return new frmLinSolve; });
        RegisterEmpty("frmMainMenu");
        Open("frmLinSolve");
    }

    static void RegisterEmpty(const char* name)
    {
        screen::Forms::Register(name, [name] { return new screen::Form(name, name); });
    }

    screen::FlexGrid& Grid() { return Find<screen::FlexGrid>("fgElements"); }
    bool Editing() { return IsVisible("txtEditElements"); }
    std::string Cell(int row, int column) { return Grid().CellText(row, column); }
    std::pair<int, int> Current() { return {Grid().Row(), Grid().Col()}; }

    void GoTo(int row, int column)
    {
        Grid().setFocus();
        Grid().GoTo(row, column);
    }
    /// Types on the grid, or in the edit box where that is open.
    void Keys(const std::string& text)
    {
        for (const char key : text) {
            QWidget& target = Editing() ? Widget("txtEditElements") : Widget("fgElements");
            QTest::keyClick(&target, key);
        }
    }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        Press(Editing() ? "txtEditElements" : "fgElements", key, modifiers);
    }
    void TypeCell(int row, int column, const std::string& text)
    {
        GoTo(row, column);
        Keys(text);
        Key(Qt::Key_Return);
    }
    /// Types the augmented matrix, row by row, constants last.
    void TypeEquations(const std::vector<std::vector<std::string>>& rows)
    {
        const int n = static_cast<int>(rows.size());
        SetCount(n);
        for (int row = 0; row < n; ++row)
            for (int column = 0; column <= n; ++column)
                TypeCell(row + 1, column + (column == n ? 2 : 1), test::Local(rows[row][column]));
    }
    void SetCount(int count) { Find<QSpinBox>("updnElements").setValue(count); }
    std::vector<std::string> Column(int column)
    {
        std::vector<std::string> texts;
        for (int row = 1; row < Grid().rowCount(); ++row) texts.push_back(Cell(row, column));
        return texts;
    }
    void ExpectNoSolution()
    {
        Expect({kStop, "Linear Equation Solver Error",
                "The equations could not be solved.  Check the input."});
    }
};

} // namespace forcelab::general
