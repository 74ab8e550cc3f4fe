#include "truss/forms/frmDefGrid.h"

#include "core/NumericText.h"
#include "core/screen/Forms.h"
#include "truss/TrussModel.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QKeyEvent>

namespace forcelab::truss {

using screen::Describe;
using screen::Q;

namespace {

constexpr int kMostSpaces = 50;
constexpr int kDefaultSpaces = 3;
constexpr int kPageStep[] = {6, 12}; // of the X and the Y direction
constexpr double kDefaultSpacing = 10;
constexpr std::string_view kSpacesMask = "####";
constexpr std::string_view kDirections[] = {"X-Direction", "Y-Direction"};
constexpr int kBarHeight = 96; // pixels

} // namespace

frmDefGrid::frmDefGrid() : Form("frmDefGrid", "Define Grid")
{
    Build();
    Connect();
}

void frmDefGrid::Form_Load()
{
    for (int index = 0; index < 2; ++index) {
        vsbSpaces(index).setValue(kDefaultSpaces);
        vsbSpaces_Change(index);
        txtSpacing(index).SetText(Format(kDefaultSpacing, "0.0"));
    }
}

void frmDefGrid::Begin()
{
    cancelled_ = true;
    unusable_ = false;
    vsbSpaces(0).setFocus(Qt::OtherFocusReason);
}

void frmDefGrid::Form_QueryUnload(bool& cancel, int unloadMode)
{
    if (unloadMode != 0) return;
    cancel = true;
    cmdDefGrid_Click(1);
}

void frmDefGrid::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Escape) return Form::keyPressEvent(event);
    Guard([this] { cmdDefGrid_Click(1); });
}

void frmDefGrid::cmdDefGrid_Click(int Index)
{
    if (Index == 0) {
        const auto spaces = [this](int index) {
            return static_cast<int>(StringValue(lblSpaces(index).Caption()));
        };
        const GridEntry entry{spaces(0), spaces(1), txtSpacing(0).Text(), txtSpacing(1).Text()};
        unusable_ = !DefineGrid(CurrentTruss, entry);
    }
    cancelled_ = Index != 0;
    screen::Forms::Hide("frmDefGrid");
}

void frmDefGrid::vsbSpaces_Change(int Index)
{
    lblSpaces(Index).SetCaption(Format(vsbSpaces(Index).value(), kSpacesMask));
}

void frmDefGrid::Build()
{
    cmdDefGrid(0).setText(Q("&OK"));
    cmdDefGrid(1).setText(Q("&Cancel"));
    auto* central = new QWidget;
    auto* down = screen::Down({});
    down->setContentsMargins(screen::kMargin, screen::kMargin, screen::kMargin, screen::kMargin);
    down->addLayout(screen::Across({BuildDirection(0), BuildDirection(1)}));
    auto* buttons = screen::Across({&cmdDefGrid(0), &cmdDefGrid(1)});
    buttons->insertStretch(0, 1);
    down->addLayout(buttons);
    central->setLayout(down);
    setCentralWidget(central);
    QWidget* order[] = {&vsbSpaces(0),  &txtSpacing(0), &vsbSpaces(1),
                        &txtSpacing(1), &cmdDefGrid(0), &cmdDefGrid(1)};
    for (std::size_t i = 1; i < std::size(order); ++i) setTabOrder(order[i - 1], order[i]);
}

QWidget* frmDefGrid::BuildDirection(int index)
{
    QScrollBar& bar = vsbSpaces(index);
    bar.setOrientation(Qt::Vertical);
    bar.setRange(1, kMostSpaces);
    bar.setPageStep(kPageStep[index]);
    bar.setInvertedAppearance(true); // more spaces upward
    bar.setInvertedControls(false);
    bar.setFixedHeight(kBarHeight);
    bar.setFocusPolicy(Qt::StrongFocus);
    lblSpaces(index).setMinimumWidth(fontMetrics().horizontalAdvance(Q("0000")));
    txtSpacing(index).setFixedWidth(screen::kNumberWidth);
    const std::string direction(kDirections[index]);
    Describe(bar, "Number of grid spaces in the " + direction, "Number of grid spaces, 1 to 50");
    Describe(txtSpacing(index), "Grid spacing in the " + direction);
    fraSpaces(index).SetCaption(direction);
    auto* grid = new QGridLayout(&fraSpaces(index));
    grid->addWidget(new QLabel(Q("Spaces")), 0, 0);
    grid->addWidget(&lblSpaces(index), 0, 1);
    grid->addWidget(&bar, 0, 2);
    grid->addWidget(new QLabel(Q("Spacing")), 1, 0);
    grid->addWidget(&txtSpacing(index), 1, 1, 1, 2);
    return &fraSpaces(index);
}

void frmDefGrid::Connect()
{
    for (const auto& [index, bar] : vsbSpaces.Members())
        On(bar, &QScrollBar::valueChanged, [this, i = index] { vsbSpaces_Change(i); });
    OnClick(cmdDefGrid, [this](int index) { cmdDefGrid_Click(index); });
    txtSpacing(0).OnEnter = [this] { vsbSpaces(1).setFocus(Qt::TabFocusReason); };
    txtSpacing(1).OnEnter = [this] { cmdDefGrid_Click(0); };
}

} // namespace forcelab::truss
