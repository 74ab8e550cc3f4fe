#pragma once

#include "core/screen/Controls.h"

#include <QTableWidget>

#include <functional>
#include <string>

namespace forcelab::screen {

/// A grid of text cells with fixed rows and columns at its top and left, which stay where they are
/// while the others scroll, as long as they leave half of the grid to them. The colour of a cell
/// decides what can be edited: the owner asks CellColour.
class FlexGrid : public QTableWidget {
  public:
    explicit FlexGrid(QWidget* parent = nullptr);

    void SetSize(int rows, int columns, int fixedRows, int fixedColumns);
    [[nodiscard]] int FixedRows() const { return fixedRows_; }
    [[nodiscard]] int FixedCols() const { return fixedColumns_; }
    [[nodiscard]] int Row() const { return currentRow(); }
    [[nodiscard]] int Col() const { return currentColumn(); }
    void GoTo(int row, int column);
    [[nodiscard]] std::string CellText(int row, int column) const;
    void SetCellText(int row, int column, std::string_view text);
    [[nodiscard]] QColor CellColour(int row, int column) const;
    void SetCellColour(int row, int column, const QColor& colour);
    void SetCellAlignment(int row, int column, Qt::Alignment alignment);

    [[nodiscard]] QRect visualRect(const QModelIndex& index) const override;
    [[nodiscard]] QModelIndex indexAt(const QPoint& place) const override;
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

    /// A character was typed, or a cell was double-clicked (13): the owner may call GridEditStart.
    std::function<void(int keyAscii)> OnKeyPress;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

  private:
    // Of the fixed rows and columns, pixels; 0 where they scroll with the others.
    [[nodiscard]] int FrozenWidth() const;
    [[nodiscard]] int FrozenHeight() const;
    [[nodiscard]] bool IsScrolled() const;
    void PaintFixed(QPainter& painter, int rows, int columns, const QRect& clip);
    void PaintCell(QPainter& painter, const QModelIndex& index);
    [[nodiscard]] bool IsFixed(int row, int column) const;
    void StayInside();
    QTableWidgetItem& Cell(int row, int column);
    int fixedRows_ = 0;
    int fixedColumns_ = 0;
};

/// The box that edits a cell of a grid, laid over it. The owner stores its text when it loses the
/// focus (TextBox::OnLostFocus); OnKeyDown is GridKeyDown.
class GridEditBox : public TextBox {
  public:
    explicit GridEditBox(QWidget* parent = nullptr);
    std::function<void(int key, int shift)> OnKeyDown;

  protected:
    bool event(QEvent* event) override; // Tab comes as a key of the box
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override; // hides the box when its owner has stored
};

/// Opens the box over the grid's current cell. For a keyAscii of 0 to 32 the box takes the cell's
/// text with the caret at its end, otherwise the typed character replaces it.
void GridEditStart(FlexGrid& grid, GridEditBox& editBox, int keyAscii);

/// A key in the edit box: Esc hides it and stores nothing; Enter gives the grid the focus, which
/// stores; the arrows, Tab and Shift+Tab do the same and move one cell, inside the grid and out of
/// its fixed rows and columns. Keys are Qt::Key values; shift is 1 where Shift is held.
void GridKeyDown(FlexGrid& grid, GridEditBox& editBox, int key, int shift);

} // namespace forcelab::screen
