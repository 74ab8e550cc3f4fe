#include "truss/forms/frmTrussLayout.h"

#include "core/screen/Services.h"

#include <QBoxLayout>

#include <algorithm>
#include <vector>

namespace forcelab::truss {

using screen::Describe;
using screen::Q;

namespace {

constexpr int kColumnWidth = 256; // pixels
constexpr int kLeastExplanation = 260;
constexpr double kExplanationShare = 0.32; // of the window beside the column
constexpr int kListLines = 26;

} // namespace

frmTrussLayout::frmTrussLayout() : Form("frmTruss", "Truss Analysis Module")
{
    SetCaptions();
    DescribeControls();
    BuildWindow();
    SetTabOrder();
    const QRect desk = screen::Services::Current().Screen->WorkArea();
    resize(std::min(1240, desk.width()), std::min(820, desk.height()));
}

void frmTrussLayout::SetCaptions()
{
    cmdGridMake->setText(Q("&New Truss"));
    cmdSpacing(0).setText(Q("&Undo"));
    cmdSpacing(1).setText(Q("&Compute"));
    cmdSpacing(2).setText(Q("&End"));
    fraDefineOptions(0).SetCaption("Define");
    fraDefineOptions(1).SetCaption("Mode");
    optTrussDefine.SetCaptions({"Members", "Supports", "Loads"});
    optMakeOrTake.SetCaptions({"Create", "Erase"});
    txtTrussResults(0).SetText("Member Forces");
    txtTrussResults(1).SetText("Reactions");
    cmdExplain->setText(Q("E&xplanation"));
    cmdExplain->setCheckable(true);
    cmdExplain->setChecked(true);
    lblInstruct->setWordWrap(true);
    lblInstruct->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    txtExplain->setReadOnly(true);
    txtExplain->setTabChangesFocus(true);
    txtExplain->setMinimumWidth(kLeastExplanation);
    txtExplain->hide();
    for (int list = 0; list < 4; ++list) {
        cboTrussResults(list).setMaxVisibleItems(kListLines);
        cboTrussResults(list).hide();
    }
}

void frmTrussLayout::DescribeControls()
{
    Describe(*cmdGridMake, "New truss", "Define a new grid, or go on editing the truss");
    Describe(cmdSpacing(0), "Undo", "Remove the last member");
    Describe(cmdSpacing(1), "Compute", "Find the member forces and the reactions");
    Describe(cmdSpacing(2), "End", "Back to the main menu");
    Describe(cboTrussResults(0), "Member forces");
    Describe(cboTrussResults(1), "Reactions");
    Describe(*cmdExplain, "Explanation", "Show or hide the explanation beside the picture");
    Describe(*txtExplain, "Explanation of the calculation");
    Describe(*picTruss, "Truss",
             "Draw with the mouse; or with the keyboard: the arrow keys move the cursor, the "
             "space bar starts and ends a line, Esc gives it up");
    picTruss->setToolTip({}); // it would come up while drawing
    picTruss->setWhatsThis(picTruss->accessibleDescription());
}

QWidget* frmTrussLayout::BuildColumn()
{
    for (int frame = 0; frame < 2; ++frame) {
        const screen::OptionArray& options = frame == 0 ? optTrussDefine : optMakeOrTake;
        auto* row = new QHBoxLayout(&fraDefineOptions(frame));
        for (const auto& [index, option] : options.Members()) row->addWidget(option);
        row->addStretch(1);
    }
    for (const auto& [index, heading] : txtTrussResults.Members()) {
        heading->setFrame(false);
        heading->setFocusPolicy(Qt::NoFocus);
        heading->setStyleSheet(Q("background: transparent; font-weight: bold"));
        heading->hide();
    }
    auto* column = new QWidget;
    auto* down = screen::Down({cmdGridMake, &fraDefineOptions(0), &fraDefineOptions(1)});
    down->addLayout(screen::Across({&cmdSpacing(0), &cmdSpacing(1)}));
    down->addWidget(lblInstruct, 1);
    for (int list = 0; list < 4; ++list) {
        if (list < 2) down->addWidget(&txtTrussResults(list));
        down->addWidget(&cboTrussResults(list));
    }
    down->addLayout(screen::Across({cmdExplain, &cmdSpacing(2)}));
    column->setLayout(down);
    column->setFixedWidth(kColumnWidth);
    return column;
}

void frmTrussLayout::BuildWindow()
{
    picTruss->SetPreferredSize(900, 700);
    splTruss->setChildrenCollapsible(false);
    splTruss->addWidget(picTruss);
    splTruss->addWidget(txtExplain);
    splTruss->setStretchFactor(0, 1);
    auto* central = new QWidget;
    auto* across = screen::Across({BuildColumn(), splTruss});
    across->setContentsMargins(screen::kMargin, screen::kMargin, screen::kMargin, screen::kMargin);
    across->setStretch(1, 1);
    central->setLayout(across);
    setCentralWidget(central);
}

void frmTrussLayout::SetTabOrder()
{
    std::vector<QWidget*> order{cmdGridMake};
    for (const auto& [index, option] : optTrussDefine.Members()) order.push_back(option);
    for (const auto& [index, option] : optMakeOrTake.Members()) order.push_back(option);
    order.insert(order.end(), {picTruss, &cmdSpacing(0), &cmdSpacing(1), &cboTrussResults(0),
                               &cboTrussResults(1), cmdExplain, txtExplain, &cmdSpacing(2)});
    for (std::size_t i = 1; i < order.size(); ++i) setTabOrder(order[i - 1], order[i]);
}

void frmTrussLayout::ShowExplanation(bool visible)
{
    if (visible == txtExplain->isVisibleTo(splTruss)) return;
    txtExplain->setVisible(visible);
    if (!visible) return;
    const int width = splTruss->width();
    const int pane = std::max(kLeastExplanation, static_cast<int>(width * kExplanationShare));
    splTruss->setSizes({width - pane, pane});
}

} // namespace forcelab::truss
