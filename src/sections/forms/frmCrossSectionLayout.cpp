#include "core/screen/Services.h"
#include "core/screen/Style.h"
#include "sections/forms/frmCrossSection.h"

#include <QActionGroup>
#include <QBoxLayout>
#include <QHeaderView>

#include <algorithm>

namespace forcelab::sections {

using screen::Describe;
using screen::Q;

namespace {

struct ItemText {
    const char* Name;
    const char* Caption;
};
constexpr ItemText kOrientItems[] = {{"mnuOrient(0)", "&Z-Z Properties"},
                                     {"mnuOrient(1)", "&Y-Y Properties"}};
// By ReportTable.
constexpr ItemText kDetailItems[] = {
    {"mnuDetailsCentroid", "&Centroids and Moments of Inertia"},
    {"mnuConvert12", "Converting Matl A to Matl B"},
    {"mnuConvert21", "Converting Matl B to Matl A"},
    {"mnuDetailsProduct", "&Product of Inertia"},
    {"mnuDetailsPlastic", "&Plastic Neutral Axis and Modulus"},
};
// The order in which the menu shows them.
constexpr ReportTable kMenuOrder[] = {ReportTable::Centroid, ReportTable::Plastic,
                                      ReportTable::Product, ReportTable::Convert12,
                                      ReportTable::Convert21};

constexpr int kPrintSizes[] = {7, 8, 9, 10, 11, 12, 14, 16}; // points
constexpr int kUsualPrintSize = 10;
constexpr int kLeastPicture = 250; // pixels
constexpr int kLeastSummary = 690;
constexpr int kWidestSummary = 780;

// One item of the menu is checked at a time, at first its first.
void MakeExclusive(const QMenu& menu, QObject* owner)
{
    auto* group = new QActionGroup(owner);
    for (QAction* item : menu.actions()) {
        item->setCheckable(true);
        group->addAction(item);
    }
    menu.actions().front()->setChecked(true);
}

} // namespace

void frmCrossSection::Build()
{
    BuildMenus();
    BuildDetails();
    BuildPrintPanel();
    BuildWindow();
    DescribeControls();
    const QRect desk = screen::Services::Current().Screen->WorkArea();
    resize(std::min(1100, desk.width()), std::min(780, desk.height()));
}

void frmCrossSection::BuildMenus()
{
    QMenu* orient = AddMenu("mnuOrient", "&Orientation");
    for (int k = 0; k < 2; ++k)
        AddItem(orient, kOrientItems[k].Name, kOrientItems[k].Caption,
                [this, k] { mnuOrient_Click(k); });
    MakeExclusive(*orient, this);
    QMenu* details = AddMenu("mnuDetails", "&Details");
    details_.resize(std::size(kDetailItems));
    for (const ReportTable table : kMenuOrder) {
        const ItemText& text = kDetailItems[static_cast<int>(table)];
        details_[static_cast<int>(table)] =
            AddItem(details, text.Name, text.Caption, [this] { mnuDetails_Click(); });
    }
    MakeExclusive(*details, this);
    AddMenuItem("mnuPrint", "&Print", [this] { mnuPrint_Click(); });
}

void frmCrossSection::BuildDetails()
{
    lblExplanation->setWordWrap(true);
    lblExplanation->setTextInteractionFlags(Qt::TextSelectableByMouse |
                                            Qt::TextSelectableByKeyboard);
    lblUnderGrid->setStyleSheet(QStringLiteral("font-weight: bold"));
    grdD->setSelectionMode(QAbstractItemView::NoSelection);
    auto* layout = new QVBoxLayout(fraDetailProperties);
    layout->addWidget(grdD);
    layout->addWidget(lblUnderGrid);
    layout->addWidget(lblExplanation);
}

QWidget* frmCrossSection::BuildSummary()
{
    fraSummary->SetCaption("Properties");
    fraSummary->setMinimumWidth(kLeastSummary);
    fraSummary->setMaximumWidth(kWidestSummary);
    auto* layout = new QHBoxLayout(fraSummary);
    for (const auto& [index, grid] : grdSummary.Members()) {
        grid->setShowGrid(false);
        grid->setFrameShape(QFrame::NoFrame);
        grid->setSelectionMode(QAbstractItemView::NoSelection);
        grid->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        grid->verticalHeader()->setMinimumSectionSize(0);
        layout->addWidget(grid, 1);
    }
    return fraSummary;
}

void frmCrossSection::BuildPrintPanel()
{
    lblPrintCaption->SetCaption("Enter caption for printed output");
    lblPrintCaption->setBuddy(txtPrintCaption);
    lblPrintSize->SetCaption("Font size");
    for (const int size : kPrintSizes) cboPrintSize->addItem(QString::number(size), size);
    cboPrintSize->setCurrentText(QString::number(kUsualPrintSize));
    cmdPrint->setText(Q("&Go"));
    cmdPrintCancel->setText(Q("Cancel"));
    auto* row = new QHBoxLayout(fraPrint);
    row->addWidget(lblPrintCaption);
    row->addWidget(txtPrintCaption, 1);
    for (QWidget* widget :
         std::initializer_list<QWidget*>{lblPrintSize, cboPrintSize, cmdPrint, cmdPrintCancel})
        row->addWidget(widget);
}

void frmCrossSection::BuildWindow()
{
    picCrossSection->SetPreferredSize(360, 330);
    picCrossSection->setMinimumSize(kLeastPicture, kLeastPicture);
    auto* below = screen::Across({});
    below->addWidget(picCrossSection, 1);
    below->addWidget(BuildSummary(), 2);
    auto* column = screen::Down({fraPrint});
    column->addWidget(fraDetailProperties);
    column->addLayout(below, 1);
    column->setContentsMargins(screen::kMargin, screen::kMargin, screen::kMargin, screen::kMargin);
    auto* central = new QWidget;
    central->setLayout(column);
    setCentralWidget(central);
}

void frmCrossSection::DescribeControls()
{
    Describe(*grdD, "Table of the elements");
    Describe(*lblExplanation, "Results of the table");
    Describe(*picCrossSection, "The section with its axes");
    Describe(grdSummary(0), "Properties, first column");
    Describe(grdSummary(1), "Properties, second column");
    Describe(*txtPrintCaption, "Caption for printed output");
    Describe(*cboPrintSize, "Font size of the printed output");
    Describe(*cmdPrint, "Go", "Print the properties");
    Describe(*cmdPrintCancel, "Cancel", "Put the print panel away");
}

void frmCrossSection::Connect()
{
    On(cmdPrint, &QAbstractButton::clicked, [this] { cmdPrint_Click(); });
    On(cmdPrintCancel, &QAbstractButton::clicked, [this] { cmdPrintCancel_Click(); });
    txtPrintCaption->OnEnter = [this] { Guard([this] { cmdPrint_Click(); }); };
    picCrossSection->OnPaint = [this](Picture& pic) { picCrossSection_Paint(pic); };
}

} // namespace forcelab::sections
