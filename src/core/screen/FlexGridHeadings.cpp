#include "core/screen/FlexGrid.h"

#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

// The fixed rows and columns of a grid, which stay in sight. They are cells as all others; where
// the grid is scrolled they are painted once more, at its edges, and count as being there.
namespace forcelab::screen {

namespace {

// Up to where the first sections reach; 0 where they would take more than half of the room.
int Reach(const QHeaderView& header, int sections, int room)
{
    if (sections == 0 || sections > header.count()) return 0;
    const int end = header.sectionPosition(sections - 1) + header.sectionSize(sections - 1);
    return end <= room / 2 ? end : 0;
}

} // namespace

int FlexGrid::FrozenWidth() const
{
    return Reach(*horizontalHeader(), fixedColumns_, viewport()->width());
}

int FlexGrid::FrozenHeight() const
{
    return Reach(*verticalHeader(), fixedRows_, viewport()->height());
}

bool FlexGrid::IsScrolled() const
{
    return horizontalScrollBar()->value() != 0 || verticalScrollBar()->value() != 0;
}

QRect FlexGrid::visualRect(const QModelIndex& index) const
{
    QRect place = QTableWidget::visualRect(index);
    if (!place.isValid()) return place;
    if (index.column() < fixedColumns_ && FrozenWidth() > 0)
        place.moveLeft(horizontalHeader()->sectionPosition(index.column()));
    if (index.row() < fixedRows_ && FrozenHeight() > 0)
        place.moveTop(verticalHeader()->sectionPosition(index.row()));
    return place;
}

QModelIndex FlexGrid::indexAt(const QPoint& place) const
{
    QPoint under = place;
    if (place.x() < FrozenWidth()) under.rx() -= horizontalHeader()->offset();
    if (place.y() < FrozenHeight()) under.ry() -= verticalHeader()->offset();
    return QTableWidget::indexAt(under);
}

// The cell must not end up under the fixed ones.
void FlexGrid::scrollTo(const QModelIndex& index, ScrollHint hint)
{
    if (!index.isValid() || IsFixed(index.row(), index.column())) return;
    QTableWidget::scrollTo(index, hint);
    const QRect place = visualRect(index);
    const auto uncover = [](QScrollBar& bar, int covered) {
        if (covered > 0) bar.setValue(bar.value() - covered);
    };
    uncover(*horizontalScrollBar(), FrozenWidth() - place.left());
    uncover(*verticalScrollBar(), FrozenHeight() - place.top());
}

void FlexGrid::scrollContentsBy(int dx, int dy)
{
    QTableWidget::scrollContentsBy(dx, dy);
    if (FrozenWidth() + FrozenHeight() > 0) viewport()->update();
}

void FlexGrid::paintEvent(QPaintEvent* event)
{
    QTableWidget::paintEvent(event);
    if (!IsScrolled()) return;
    QPainter painter(viewport());
    const int left = FrozenWidth();
    const int top = FrozenHeight();
    const QRect whole = viewport()->rect();
    if (top > 0) PaintFixed(painter, fixedRows_, columnCount(), whole.adjusted(left, 0, 0, 0));
    if (left > 0) PaintFixed(painter, rowCount(), fixedColumns_, whole.adjusted(0, top, 0, 0));
    if (left > 0 && top > 0) PaintFixed(painter, fixedRows_, fixedColumns_, whole);
}

void FlexGrid::PaintFixed(QPainter& painter, int rows, int columns, const QRect& clip)
{
    painter.setClipRect(clip);
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column) {
            const QModelIndex index = model()->index(row, column);
            if (visualRect(index).intersects(clip)) PaintCell(painter, index);
        }
}

// As the table paints it, with the lines of the grid at its right and lower sides.
void FlexGrid::PaintCell(QPainter& painter, const QModelIndex& index)
{
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    const int line = showGrid() ? 1 : 0;
    const QRect place = visualRect(index).adjusted(0, 0, line, line);
    option.rect = place.adjusted(0, 0, -line, -line);
    if (!(model()->flags(index) & Qt::ItemIsEnabled)) {
        option.state &= ~QStyle::State_Enabled;
        option.palette.setCurrentColorGroup(QPalette::Disabled);
    }
    itemDelegateForIndex(index)->paint(&painter, option, index);
    if (!showGrid()) return;
    const int hint = style()->styleHint(QStyle::SH_Table_GridLineColor, &option, this);
    painter.setPen(QColor::fromRgb(static_cast<QRgb>(hint)));
    painter.drawLine(place.topRight(), place.bottomRight());
    painter.drawLine(place.bottomLeft(), place.bottomRight());
}

} // namespace forcelab::screen
