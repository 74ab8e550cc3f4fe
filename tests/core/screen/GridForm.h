#pragma once

#include "core/screen/FlexGrid.h"
#include "support/FormTest.h"

#include <QVBoxLayout>

#include <utility>
#include <vector>

namespace forcelab::test {

using screen::FlexGrid;
using screen::Form;
using screen::Forms;
using screen::GridEditBox;

// A form with a grid of 5 rows and 4 columns, one row and one column of them fixed.
class GridForm : public Form {
  public:
    GridForm() : Form("frmGrid", "Grid")
    {
        auto* body = new QWidget(this);
        auto* layout = new QVBoxLayout(body);
        layout->addWidget(grid);
        layout->addWidget(other);
        setCentralWidget(body);
        grid->SetSize(5, 4, 1, 1);
        box->setParent(body);
        grid->OnKeyPress = [this](int key) {
            Keys.push_back(key);
            screen::GridEditStart(*grid, *box, key);
        };
        box->OnKeyDown = [this](int key, int shift) {
            screen::GridKeyDown(*grid, *box, key, shift);
        };
        box->OnLostFocus = [this] {
            ++Stored;
            grid->SetCellText(grid->Row(), grid->Col(), box->Text());
        };
        resize(600, 400);
    }

    FlexGrid* grid = Make<FlexGrid>("grid");
    screen::TextBox* other = Make<screen::TextBox>("other");
    GridEditBox* box = Make<GridEditBox>("box");
    std::vector<int> Keys;
    int Stored = 0;
};

class Grid : public FormTest {
  protected:
    Grid()
    {
        Forms::Register("frmGrid", [] { return new GridForm; });
        form_ = &dynamic_cast<GridForm&>(Open("frmGrid"));
        form_->grid->setFocus();
    }
    FlexGrid& TheGrid() { return *form_->grid; }
    GridEditBox& TheBox() { return *form_->box; }
    std::pair<int, int> Place() { return {TheGrid().Row(), TheGrid().Col()}; }
    QPoint MiddleOf(int row, int column)
    {
        return TheGrid().visualItemRect(TheGrid().item(row, column)).center();
    }
    void ClickCell(int row, int column)
    {
        QTest::mouseClick(TheGrid().viewport(), Qt::LeftButton, Qt::NoModifier,
                          MiddleOf(row, column));
    }
    void KeyGrid(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(form_->grid, key, modifiers);
    }
    void KeyBox(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(form_->box, key, modifiers);
    }
    GridForm* form_;
};

using Cell = std::pair<int, int>;

} // namespace forcelab::test
