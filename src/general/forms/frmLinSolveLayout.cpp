#include "general/forms/frmLinSolve.h"

#include "core/screen/Services.h"
#include "core/screen/Style.h"

#include <QBoxLayout>
#include <QHeaderView>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

namespace forcelab::general {

using screen::Describe;
using screen::Q;

namespace {

constexpr int kNumberColumn = 400;     // width of column 0, twips
constexpr int kOtherColumns = 1170;    // least width of every other one, twips
constexpr int kCountWidth = 40;        // of the number of equations, pixels
constexpr int kArrowsWidth = 20;       // of the two arrows beside it, pixels
constexpr int kButtonWidth = 110;      // pixels
constexpr double kRowSpacing = 2;      // height of a row, lines of text
constexpr QSize kFirstSize(1024, 520); // holds the largest grid

int Pixels(int twips)
{
    const double perPixel = screen::Services::Current().Screen->TwipsPerPixel();
    return static_cast<int>(std::lround(twips / perPixel));
}

} // namespace

void frmLinSolve::Build()
{
    BuildMenu();
    updnElements->setRange(1, kMaxEquations);
    updnElements->setValue(kFirstEquations);
    fraElements->SetCaption("Equations");
    cmdStiffness->setText(Q("&Compute"));
    cmdStiffness->setMinimumWidth(kButtonWidth);
    lblHint->SetCaption("Type into the yellow cells; empty ones count as 0. Enter keeps a number, "
                        "Esc drops it, Tab and the arrows go on.");
    BuildWindow();
    DescribeControls();
    resize(kFirstSize.boundedTo(screen::Services::Current().Screen->WorkArea().size()));
}

void frmLinSolve::BuildMenu()
{
    AddMenuItem("mnuBack", "&Back", [this] { mnuBack_Click(); });
    QMenu* edit = AddMenu("mnuEdit", "&Edit");
    // The keys are the grid's own; here they are only told.
    AddItem(edit, "mnuCut", "Cu&t\tCtrl+X", [this] { mnuCut_Click(); });
    AddItem(edit, "mnuCopy", "&Copy\tCtrl+C", [this] { mnuCopy_Click(); });
    AddItem(edit, "mnuPaste", "&Paste\tCtrl+V", [this] { mnuPaste_Click(); });
    AddMenuItem("mnuPrintModel", "&Print", [this] { mnuPrintModel_Click(); });
    AddMenuItem("mnuHelp", "&Help", [] { mnuHelp_Click(); });
}

// The label shows the number; of the spin box only the arrows are seen.
QWidget* frmLinSolve::BuildCount()
{
    auto* row = new QWidget;
    auto* caption = new QLabel(Q("Number of e&quations"));
    caption->setBuddy(updnElements);
    lblElements->setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    lblElements->setAutoFillBackground(true);
    lblElements->setBackgroundRole(QPalette::Base);
    lblElements->setAlignment(Qt::AlignCenter);
    lblElements->setFixedSize(kCountWidth, updnElements->sizeHint().height());
    updnElements->setFixedWidth(kArrowsWidth);
    updnElements->findChild<QLineEdit*>()->hide();
    auto* count = screen::Across({lblElements, updnElements});
    count->setSpacing(0);
    auto* across = screen::Across({caption});
    across->addLayout(count);
    across->addStretch(1);
    row->setLayout(across);
    return row;
}

void frmLinSolve::BuildWindow()
{
    fgElements->verticalHeader()->setDefaultSectionSize(
        static_cast<int>(fontMetrics().height() * kRowSpacing));
    auto* inside = new QVBoxLayout(fraElements);
    inside->addWidget(fgElements);
    fgElements->setMinimumSize(2 * kButtonWidth, 2 * kButtonWidth / 3);
    auto* grid = screen::Across({fraElements});
    grid->setStretch(0, 1); // all the room that there is, up to the grid's size
    grid->addStretch(0);
    QPalette quiet = lblHint->palette();
    quiet.setColor(QPalette::WindowText, QColor(screen::kQuietInkTone));
    lblHint->setPalette(quiet);
    lblHint->setWordWrap(true);
    auto* below = screen::Across({cmdStiffness, lblHint});
    below->setStretch(1, 1);
    auto* central = new QWidget;
    auto* down = new QVBoxLayout(central);
    down->setContentsMargins(screen::kMargin, screen::kMargin, screen::kMargin, screen::kMargin);
    down->setSpacing(screen::kGap + 2);
    down->addWidget(BuildCount());
    down->addLayout(grid, 1);
    down->addLayout(below);
    down->addStretch(0);
    setCentralWidget(central);
    txtEditElements->setAlignment(Qt::AlignRight);
    txtEditElements->setParent(fgElements->viewport());
    setTabOrder(updnElements, fgElements);
    setTabOrder(fgElements, cmdStiffness);
}

void frmLinSolve::DescribeControls()
{
    Describe(*updnElements, "Number of equations", "One to ten equations");
    Describe(*lblElements, "Number of equations");
    Describe(*fgElements, "Coefficients, unknowns and constants");
    Describe(*txtEditElements, "Number in the cell");
    Describe(*cmdStiffness, "Compute", "Solve the equations");
}

void frmLinSolve::Connect()
{
    On(updnElements, &QSpinBox::valueChanged, [this](int value) { updnElements_Change(value); });
    On(cmdStiffness, &QPushButton::clicked, [this] { cmdStiffness_Click(); });
    for (QScrollBar* bar : {fgElements->horizontalScrollBar(), fgElements->verticalScrollBar()})
        On(bar, &QScrollBar::valueChanged, [this] { CommitEdit(); });
    fgElements->OnKeyPress = [this](int keyAscii) { fgElements_KeyPress(keyAscii); };
    txtEditElements->OnKeyDown = [this](int key, int shift) {
        screen::GridKeyDown(*fgElements, *txtEditElements, key, shift);
    };
    txtEditElements->OnLostFocus = [this] { Guard([this] { txtEditElements_LostFocus(); }); };
    fgElements->installEventFilter(this);
    txtEditElements->installEventFilter(this);
}

// A column is wider than usual where one of its texts needs it.
void frmLinSolve::SetColumnWidths()
{
    const QAbstractItemView& view = *fgElements;
    for (int column = 0; column < equations_.Columns(); ++column) {
        const int usual = Pixels(column == 0 ? kNumberColumn : kOtherColumns);
        fgElements->setColumnWidth(column, std::max(usual, view.sizeHintForColumn(column)));
    }
}

/// The size at which the grid shows all its cells.
QSize frmLinSolve::GridSize() const
{
    const int border = 2 * fgElements->frameWidth();
    return {fgElements->horizontalHeader()->length() + border,
            fgElements->verticalHeader()->length() + border};
}

/// The room for a scroll bar added where the inside of the form is too small for the grid.
QSize frmLinSolve::Limited(QSize grid) const
{
    const QRect room = centralWidget()->contentsRect();
    const int bar = fgElements->verticalScrollBar()->sizeHint().width();
    const QMargins around = fraElements->layout()->contentsMargins() +
                            fraElements->contentsMargins() +
                            QMargins(screen::kMargin, 0, screen::kMargin, 0);
    if (grid.width() > room.width() - around.left() - around.right())
        grid.setHeight(grid.height() + bar);
    return grid;
}

void frmLinSolve::GridResize()
{
    if (!centralWidget()) return;
    SetColumnWidths();
    fgElements->setMaximumSize(Limited(GridSize()));
    fraElements->setMaximumSize(fraElements->layout()->totalMaximumSize());
}

} // namespace forcelab::general
