#include "sections/forms/frmCrossSection.h"

#include "core/screen/Forms.h"
#include "sections/SectionDrawing.h"
#include "sections/forms/CrossSectionPrint.h"

#include <QActionGroup>
#include <QLayout>
#include <QScrollBar>

#include <algorithm>

namespace forcelab::sections {

namespace {

using screen::FlexGrid;

constexpr int kCellPadding = 18; // pixels around the widest text of a column
constexpr int kRowPadding = 8;
constexpr int kSummaryPadding = 3;
constexpr int kSummaryGap = 12; // between two columns of the list
constexpr int kCellMargins = 7;
constexpr int kLeastMeaning = 100;
constexpr int kLargestGrid = 240; // a higher table may be scrolled where the window is low

constexpr std::string_view kNoElements =
    "The properties of this shape are given as they are: there are no elements to add up.";

int LinesOf(const QString& text)
{
    return static_cast<int>(text.count(QLatin1Char('\n'))) + 1;
}

int WidestLine(const QFontMetrics& metrics, const QString& text)
{
    int widest = 0;
    for (const QString& line : text.split(QLatin1Char('\n')))
        widest = std::max(widest, metrics.horizontalAdvance(line));
    return widest;
}

// Numbers end flush, so that their places compare; names and headings stand in the middle.
Qt::Alignment AlignmentOf(int row, int column, int fixedRows)
{
    if (row < fixedRows) return Qt::AlignCenter;
    return (column == 0 ? Qt::AlignHCenter : Qt::AlignRight) | Qt::AlignVCenter;
}

void SetBold(FlexGrid& grid, int row, bool bold)
{
    for (int column = 0; column < grid.columnCount(); ++column) {
        QFont font = grid.font();
        font.setBold(bold);
        grid.item(row, column)->setFont(font);
    }
}

void FillSummary(FlexGrid& grid, const std::vector<SummaryLine>& lines)
{
    grid.clearSpans();
    grid.SetSize(static_cast<int>(lines.size()), 3, 0, 0);
    for (int row = 0; row < grid.rowCount(); ++row) {
        const SummaryLine& line = lines[row];
        grid.SetCellText(row, 0, line.Symbol);
        grid.SetCellText(row, 1, line.Value);
        grid.SetCellText(row, 2, line.Meaning);
        grid.SetCellAlignment(row, 1, Qt::AlignRight | Qt::AlignVCenter);
        SetBold(grid, row, line.Heading);
        if (line.Heading) grid.setSpan(row, 0, 1, 3);
    }
}

int WidestCell(const FlexGrid& grid, int column)
{
    int widest = 0;
    for (int row = 0; row < grid.rowCount(); ++row)
        if (grid.columnSpan(row, 0) == 1)
            widest = std::max(widest,
                              grid.fontMetrics().horizontalAdvance(grid.item(row, column)->text()));
    return widest + kSummaryGap;
}

// Symbols and values as wide as they are, meanings in the rest; what is longer than its cell goes
// on in a second line. Gives the height of the list.
int FitSummary(FlexGrid& grid, int whole)
{
    int height = 0;
    const int symbols = WidestCell(grid, 0);
    const int values = WidestCell(grid, 1);
    const int meanings = std::max(kLeastMeaning, whole - symbols - values);
    grid.setColumnWidth(0, symbols);
    grid.setColumnWidth(1, values);
    grid.setColumnWidth(2, meanings);
    for (int row = 0; row < grid.rowCount(); ++row) {
        const bool heading = grid.columnSpan(row, 0) > 1;
        const QTableWidgetItem& item = *grid.item(row, heading ? 0 : 2);
        const int room = (heading ? symbols + values + meanings : meanings) - kCellMargins;
        const QRect text =
            QFontMetrics(heading ? item.font() : grid.font())
                .boundingRect(QRect(0, 0, room, 1000), Qt::TextWordWrap, item.text());
        grid.setRowHeight(row,
                          std::max(text.height(), grid.fontMetrics().height()) + kSummaryPadding);
        height += grid.rowHeight(row);
    }
    return height;
}

// With room for a scroll bar only where the list needs one.
void FitSummary(FlexGrid& grid)
{
    if (FitSummary(grid, grid.width()) > grid.height())
        FitSummary(grid, grid.width() - grid.verticalScrollBar()->sizeHint().width());
}

} // namespace

frmCrossSection::frmCrossSection() : Form("frmCrossSection", "Cross-Section Properties")
{
    Build();
    Connect();
    ShowPrintPanel(false);
    Refresh();
}

void frmCrossSection::Form_Activate()
{
    Refresh();
}

void frmCrossSection::Form_QueryUnload(bool& cancel, int unloadMode)
{
    if (unloadMode != 0) return;
    cancel = true;
    screen::Forms::Hide("frmCrossSection");
}

void frmCrossSection::Form_Resize()
{
    centralWidget()->layout()->activate();
    ResetGridColumnWidth();
    for (const int k : {0, 1}) FitSummary(grdSummary(k));
}

void frmCrossSection::Refresh()
{
    EnableItems();
    ShowGrid();
    ShowSummary();
    picCrossSection->Refresh();
}

void frmCrossSection::mnuOrient_Click(int Index)
{
    ReportAxis = static_cast<std::int16_t>(Index);
    ShowGrid();
}

void frmCrossSection::mnuDetails_Click()
{
    chosen_ = CheckedTable();
    ShowGrid();
}

void frmCrossSection::mnuPrint_Click()
{
    ShowPrintPanel(true);
    txtPrintCaption->SetFocus();
}

void frmCrossSection::cmdPrint_Click()
{
    const PrintedReport report{txtPrintCaption->Text(), Summary(CurrentSection, CurrentEntry),
                               cboPrintSize->currentData().toDouble(),
                               [this](Picture& pic) { picCrossSection_Paint(pic); }};
    const PrintOutcome outcome = PrintReport(this, report);
    if (outcome.Refused) return Show(*outcome.Refused);
    if (outcome.Printed) ShowPrintPanel(false);
}

void frmCrossSection::cmdPrintCancel_Click()
{
    ShowPrintPanel(false);
}

void frmCrossSection::picCrossSection_Paint(Picture& pic)
{
    if (CurrentSection.SectionComputed)
        DrawCrossSection(pic, CurrentSection, CurrentEntry);
    else
        pic.Cls();
}

// Where the chosen table is not one of this section's, the first of its own is shown instead.
void frmCrossSection::EnableItems()
{
    for (std::size_t k = 0; k < details_.size(); ++k)
        details_[k]->setEnabled(CurrentSection.SectionComputed &&
                                HasTable(CurrentSection, static_cast<ReportTable>(k)));
    const auto items = details_.front()->actionGroup()->actions(); // in the order of the menu
    const auto usable = std::ranges::find_if(items, &QAction::isEnabled);
    QAction* wanted = details_[static_cast<int>(chosen_)];
    if (wanted->isEnabled() || usable == items.end())
        wanted->setChecked(true);
    else
        (*usable)->setChecked(true);
}

ReportTable frmCrossSection::CheckedTable() const
{
    const auto checked = std::ranges::find_if(details_, &QAction::isChecked);
    return static_cast<ReportTable>(checked - details_.begin());
}

void frmCrossSection::ShowGrid()
{
    ReportGrid grid;
    if (CurrentSection.SectionComputed)
        grid = FillTheGrid(CurrentSection, CurrentEntry, CheckedTable(), ReportAxis);
    fraDetailProperties->SetCaption(grid.FrameCaption);
    lblUnderGrid->SetCaption(grid.UnderGrid);
    lblUnderGrid->setVisible(!grid.UnderGrid.empty());
    const bool bare = grid.Cells.empty() && grid.Explanation.empty();
    lblExplanation->SetCaption(bare && CurrentSection.SectionComputed ? kNoElements
                                                                      : grid.Explanation);
    grdD->setVisible(!grid.Cells.empty());
    FillCells(grid);
    ResetGridRowHeight();
    ResetGridColumnWidth();
}

void frmCrossSection::FillCells(const ReportGrid& grid)
{
    const int rows = static_cast<int>(grid.Cells.size());
    const int columns = rows > 0 ? static_cast<int>(grid.Cells[0].size()) : 0;
    grdD->SetSize(rows, columns, grid.FixedRows, rows > 0 ? 1 : 0);
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column) {
            grdD->SetCellText(row, column, grid.Cells[row][column]);
            grdD->SetCellAlignment(row, column, AlignmentOf(row, column, grid.FixedRows));
        }
    for (int row = 0; row < rows; ++row) SetBold(*grdD, row, row == rows - 1);
}

// As many lines as the cells of a row have at most.
void frmCrossSection::ResetGridRowHeight()
{
    int height = 2 * grdD->frameWidth();
    for (int row = 0; row < grdD->rowCount(); ++row) {
        int lines = 1;
        for (int column = 0; column < grdD->columnCount(); ++column)
            lines = std::max(lines, LinesOf(grdD->item(row, column)->text()));
        grdD->setRowHeight(row, lines * grdD->fontMetrics().height() + kRowPadding);
        height += grdD->rowHeight(row);
    }
    grdD->setMaximumHeight(height);
    grdD->setMinimumHeight(std::min(height, kLargestGrid));
}

// As wide as the texts; what room is left is shared out.
void frmCrossSection::ResetGridColumnWidth()
{
    const int columns = grdD->columnCount();
    if (columns == 0) return;
    QFont font = grdD->font();
    font.setBold(true);
    const QFontMetrics metrics(font);
    std::vector<int> widths(columns, 0);
    int total = 0;
    for (int column = 0; column < columns; ++column) {
        for (int row = 0; row < grdD->rowCount(); ++row)
            widths[column] =
                std::max(widths[column], WidestLine(metrics, grdD->item(row, column)->text()));
        widths[column] += kCellPadding;
        total += widths[column];
    }
    const int rest = std::max(0, grdD->viewport()->width() - total);
    for (int column = 0; column < columns; ++column)
        grdD->setColumnWidth(column, widths[column] + (column + 1) * rest / columns -
                                         column * rest / columns);
}

void frmCrossSection::ShowSummary()
{
    std::vector<SummaryLine> lines;
    if (CurrentSection.SectionComputed) lines = Summary(CurrentSection, CurrentEntry);
    const auto columns = SummaryColumns(lines);
    for (const int k : {0, 1}) {
        FillSummary(grdSummary(k), columns[k]);
        FitSummary(grdSummary(k));
    }
}

void frmCrossSection::ShowPrintPanel(bool visible)
{
    fraPrint->setVisible(visible);
}

std::array<std::vector<SummaryLine>, 2> SummaryColumns(const std::vector<SummaryLine>& lines)
{
    // The break at a heading after which the longer column is shortest; of equals the later one.
    std::size_t best = lines.size();
    for (std::size_t k = 1; k < lines.size(); ++k)
        if (lines[k].Heading &&
            std::max(k, lines.size() - k) <= std::max(best, lines.size() - best))
            best = k;
    return {std::vector<SummaryLine>(lines.begin(), lines.begin() + static_cast<long>(best)),
            std::vector<SummaryLine>(lines.begin() + static_cast<long>(best), lines.end())};
}

} // namespace forcelab::sections
