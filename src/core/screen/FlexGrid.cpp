#include "core/screen/FlexGrid.h"

#include "core/screen/GuardedCall.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>

#include <algorithm>
#include <array>

namespace forcelab::screen {

namespace {

constexpr int kBlank = 32;
constexpr int kBackspace = 8;
constexpr int kEnter = 13;
constexpr int kLastCharacter = 255;
constexpr int kCellPadding = 8;

struct Step {
    int Rows;
    int Columns;
};

// How a key moves through a grid that shows `page` rows; far beyond the end for Home and End.
std::optional<Step> StepOf(const QKeyEvent& event, int page)
{
    constexpr int far = 1 << 20;
    const int ends = event.modifiers().testFlag(Qt::ControlModifier) ? far : 0;
    switch (event.key()) {
    case Qt::Key_Up:
        return Step{-1, 0};
    case Qt::Key_Down:
        return Step{1, 0};
    case Qt::Key_Left:
        return Step{0, -1};
    case Qt::Key_Right:
        return Step{0, 1};
    case Qt::Key_PageUp:
        return Step{-page, 0};
    case Qt::Key_PageDown:
        return Step{page, 0};
    case Qt::Key_Home:
        return Step{-ends, -far};
    case Qt::Key_End:
        return Step{ends, far};
    default:
        return std::nullopt;
    }
}

// The code of the character that a key types; nothing where it types none or is a command.
std::optional<int> CharacterOf(const QKeyEvent& event)
{
    if (event.key() == Qt::Key_F2) return kEnter;
    const bool control = event.modifiers().testFlag(Qt::ControlModifier);
    const bool alt = event.modifiers().testFlag(Qt::AltModifier);
    if (control != alt || event.text().size() != 1) return std::nullopt;
    const QChar typed = event.text().at(0);
    const int code = typed.unicode();
    const bool counts = typed.isPrint() || code == kEnter || code == kBackspace;
    return counts && code <= kLastCharacter ? std::optional(code) : std::nullopt;
}

} // namespace

FlexGrid::FlexGrid(QWidget* parent) : QTableWidget(parent)
{
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollMode(ScrollPerPixel);
    horizontalHeader()->hide();
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(fontMetrics().height());
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kCellPadding);
    connect(this, &QTableWidget::currentCellChanged, this, [this] { StayInside(); });
}

void FlexGrid::SetSize(int rows, int columns, int fixedRows, int fixedColumns)
{
    fixedRows_ = std::clamp(fixedRows, 0, rows);
    fixedColumns_ = std::clamp(fixedColumns, 0, columns);
    setRowCount(rows);
    setColumnCount(columns);
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const bool fixed = IsFixed(row, column);
            QTableWidgetItem& cell = Cell(row, column);
            cell.setFlags(fixed ? Qt::NoItemFlags : Qt::ItemIsEnabled | Qt::ItemIsSelectable);
            cell.setForeground(palette().brush(fixed ? QPalette::ButtonText : QPalette::Text));
            cell.setBackground(palette().brush(fixed ? QPalette::Button : QPalette::Base));
        }
    }
    GoTo(std::max(Row(), 0), std::max(Col(), 0));
}

bool FlexGrid::IsFixed(int row, int column) const
{
    return row < fixedRows_ || column < fixedColumns_;
}

void FlexGrid::StayInside()
{
    if (Row() >= 0 && Col() >= 0 && IsFixed(Row(), Col())) GoTo(Row(), Col());
}

void FlexGrid::GoTo(int row, int column)
{
    if (fixedRows_ >= rowCount() || fixedColumns_ >= columnCount()) return;
    setCurrentCell(std::clamp(row, fixedRows_, rowCount() - 1),
                   std::clamp(column, fixedColumns_, columnCount() - 1));
}

QTableWidgetItem& FlexGrid::Cell(int row, int column)
{
    QTableWidgetItem* cell = item(row, column);
    if (!cell) {
        cell = new QTableWidgetItem;
        setItem(row, column, cell);
    }
    return *cell;
}

std::string FlexGrid::CellText(int row, int column) const
{
    const QTableWidgetItem* cell = item(row, column);
    return cell ? cell->text().toStdString() : std::string();
}

void FlexGrid::SetCellText(int row, int column, std::string_view text)
{
    if (item(row, column)) Cell(row, column).setText(Q(text));
}

QColor FlexGrid::CellColour(int row, int column) const
{
    const QTableWidgetItem* cell = item(row, column);
    return cell ? cell->background().color() : QColor();
}

void FlexGrid::SetCellColour(int row, int column, const QColor& colour)
{
    if (item(row, column)) Cell(row, column).setBackground(colour);
}

void FlexGrid::SetCellAlignment(int row, int column, Qt::Alignment alignment)
{
    if (item(row, column)) Cell(row, column).setTextAlignment(alignment);
}

void FlexGrid::keyPressEvent(QKeyEvent* event)
{
    const int page = std::max(1, viewport()->height() / verticalHeader()->defaultSectionSize() - 1);
    if (const auto step = StepOf(*event, page))
        return GoTo(Row() + step->Rows, Col() + step->Columns);
    const auto character = CharacterOf(*event);
    if (!character || !currentItem()) return event->ignore();
    if (OnKeyPress) GuardedCall(*this, [this, &character] { OnKeyPress(*character); });
}

void FlexGrid::mouseDoubleClickEvent(QMouseEvent* event)
{
    QTableWidget::mouseDoubleClickEvent(event);
    const QTableWidgetItem* cell = itemAt(event->pos());
    if (!cell || IsFixed(cell->row(), cell->column()) || event->button() != Qt::LeftButton) return;
    GoTo(cell->row(), cell->column());
    if (OnKeyPress) GuardedCall(*this, [this] { OnKeyPress(kEnter); });
}

GridEditBox::GridEditBox(QWidget* parent) : TextBox(parent)
{
    hide();
}

bool GridEditBox::event(QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab) {
            keyPressEvent(key);
            return true;
        }
    }
    return TextBox::event(event);
}

void GridEditBox::keyPressEvent(QKeyEvent* event)
{
    constexpr std::array ours{Qt::Key_Escape, Qt::Key_Return,  Qt::Key_Enter,
                              Qt::Key_Up,     Qt::Key_Down,    Qt::Key_Left,
                              Qt::Key_Right,  Qt::Key_Backtab, Qt::Key_Tab};
    const int code = event->key();
    if (std::find(ours.begin(), ours.end(), code) == ours.end())
        return TextBox::keyPressEvent(event);
    event->accept();
    const int shift = event->modifiers().testFlag(Qt::ShiftModifier) ? 1 : 0;
    if (OnKeyDown) GuardedCall(*this, [&] { OnKeyDown(code, shift); });
}

void GridEditBox::focusOutEvent(QFocusEvent* event)
{
    TextBox::focusOutEvent(event);
    const bool stays =
        event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason;
    if (!stays && !hasFocus()) hide();
}

void GridEditStart(FlexGrid& grid, GridEditBox& editBox, int keyAscii)
{
    QTableWidgetItem* cell = grid.currentItem();
    if (!cell) return;
    grid.scrollToItem(cell);
    const QRect place = grid.visualItemRect(cell);
    const QPoint corner = grid.viewport()->mapToGlobal(place.topLeft());
    const QWidget* ground = editBox.parentWidget();
    editBox.setGeometry(QRect(ground ? ground->mapFromGlobal(corner) : corner, place.size()));
    editBox.setText(keyAscii <= kBlank ? cell->text()
                                       : QString(QLatin1Char(static_cast<char>(keyAscii))));
    editBox.show();
    editBox.raise();
    editBox.SetFocus();
    editBox.deselect();
    editBox.end(false);
}

namespace {

std::optional<Step> MoveOf(int key, int shift)
{
    switch (key) {
    case Qt::Key_Up:
        return Step{-1, 0};
    case Qt::Key_Down:
        return Step{1, 0};
    case Qt::Key_Left:
    case Qt::Key_Backtab:
        return Step{0, -1};
    case Qt::Key_Right:
        return Step{0, 1};
    case Qt::Key_Tab:
        return Step{0, shift != 0 ? -1 : 1};
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return Step{0, 0};
    default:
        return std::nullopt;
    }
}

// Losing the focus must not store what was typed.
void Abandon(FlexGrid& grid, GridEditBox& editBox)
{
    auto store = std::exchange(editBox.OnLostFocus, nullptr);
    editBox.hide();
    grid.setFocus(Qt::OtherFocusReason);
    editBox.OnLostFocus = std::move(store);
}

} // namespace

void GridKeyDown(FlexGrid& grid, GridEditBox& editBox, int key, int shift)
{
    if (key == Qt::Key_Escape) return Abandon(grid, editBox);
    const auto move = MoveOf(key, shift);
    if (!move) return;
    const QPointer<FlexGrid> living(&grid);
    grid.setFocus(Qt::OtherFocusReason);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    const bool stays = move->Rows == 0 && move->Columns == 0;
    // The owner may have kept the focus in the box, as where it refuses the text.
    if (living && !stays && grid.hasFocus())
        grid.GoTo(grid.Row() + move->Rows, grid.Col() + move->Columns);
}

} // namespace forcelab::screen
