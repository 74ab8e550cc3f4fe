#include "transform/forms/frmFailure.h"

#include "core/screen/Services.h"

#include <QBoxLayout>
#include <QGridLayout>

#include <algorithm>

namespace forcelab::transform {

using screen::Describe;
using screen::Q;

namespace {

constexpr int kLeastPicture = 320; // side, pixels

QFont Bold(QFont font)
{
    font.setBold(true);
    return font;
}

} // namespace

void frmFailure::Build()
{
    AddMenuItem("mnuBack", "&Back", [this] { mnuBack_Click(); });
    SetCaptions();
    BuildTheories();
    BuildWindow();
    DescribeControls();
    const QRect desk = screen::Services::Current().Screen->WorkArea();
    resize(std::min(1064, desk.width()), std::min(640, desk.height()));
}

void frmFailure::SetCaptions()
{
    fraFailure->SetCaption("Failure Theories");
    fraYieldStress->SetCaption("Limits of the Material");
    for (int theory = 0; theory < 4; ++theory)
        optFailure(theory).SetCaption(kFailureTheories[theory].Caption);
    for (int group = 0; group < 2; ++group) {
        lblMaterialGroup(group).SetCaption(kFailureTheories[2 * group].Group);
        lblMaterialGroup(group).setFont(Bold(font()));
    }
    lblYieldStress(2).SetCaption("Compression Ultimate");
    cmdRefresh(0).setText(Q("&Compute"));
    cmdRefresh(1).setText(Q("&Back"));
    cmdRefresh(1).setShortcut({}); // Alt+B is the menu's, which does the same
    for (screen::Label* hidden : {lblSigma1, lblSigma2, lblStressUnits}) hidden->hide();
}

void frmFailure::BuildTheories()
{
    auto* theories = new QVBoxLayout(fraFailure);
    for (int theory = 0; theory < 4; ++theory) {
        if (theory % 2 == 0) theories->addWidget(&lblMaterialGroup(theory / 2));
        theories->addWidget(&optFailure(theory));
    }
}

QWidget* frmFailure::BuildLimits()
{
    auto* grid = new QGridLayout(fraYieldStress);
    grid->setHorizontalSpacing(screen::kGap);
    // The caption of the first limit may end in a line break, which needs no room here.
    lblYieldStress(0).setAlignment(Qt::AlignLeft | Qt::AlignTop);
    lblYieldStress(0).setFixedHeight(lblYieldStress(0).fontMetrics().lineSpacing());
    grid->addWidget(&lblYieldStress(0), 0, 0);
    grid->addWidget(&lblYieldStress(1), 0, 1);
    grid->addWidget(txtYieldStress, 0, 2);
    grid->addWidget(&lblYieldStress(2), 1, 0);
    grid->addWidget(&lblYieldStress(3), 1, 1);
    grid->addWidget(txtCompression, 1, 2);
    grid->addWidget(new QLabel(Q("Material")), 2, 0);
    grid->addWidget(cboYieldStress, 2, 1, 1, 2);
    grid->setColumnStretch(2, 1);
    return fraYieldStress;
}

void frmFailure::BuildWindow()
{
    auto* column = screen::Down({fraFailure, BuildLimits()});
    column->addLayout(screen::Across({&cmdRefresh(0), &cmdRefresh(1)}));
    column->addStretch(1);
    picFailure->SetSquare(true);
    picFailure->SetPreferredSize(560, 560);
    picFailure->setMinimumSize(kLeastPicture, kLeastPicture);
    auto* across = screen::Across({});
    across->addLayout(column);
    across->addWidget(picFailure, 1);
    across->setContentsMargins(screen::kMargin, screen::kMargin, screen::kMargin, screen::kMargin);
    auto* central = new QWidget;
    central->setLayout(across);
    setCentralWidget(central);
}

void frmFailure::DescribeControls()
{
    Describe(*txtYieldStress, "Yield or ultimate stress");
    Describe(*txtCompression, "Ultimate stress in compression");
    Describe(*cboYieldStress, "Material", "Takes the strength of a material");
    Describe(cmdRefresh(0), "Compute", "Judge the state with these limits");
    Describe(cmdRefresh(1), "Back", "Back to Mohr's circle");
    Describe(*picFailure, "Safe region and state of stress");
    for (int theory = 0; theory < 4; ++theory)
        Describe(optFailure(theory), kFailureTheories[theory].Caption);
}

void frmFailure::ShowCompression(bool visible)
{
    lblYieldStress(2).setVisible(visible);
    lblYieldStress(3).setVisible(visible);
    txtCompression->setVisible(visible);
}

void frmFailure::Connect()
{
    OnClick(optFailure, [this](int index) { optFailure_Click(index); });
    OnClick(cmdRefresh, [this](int index) { cmdRefresh_Click(index); });
    const auto choose = [this](int row) { cboYieldStress_Click(row); };
    On(cboYieldStress, &QComboBox::currentIndexChanged, choose);
    On(cboYieldStress, &QComboBox::activated, choose); // the same row anew
    txtYieldStress->OnLostFocus = [this] { Guard([this] { txtYieldStress_LostFocus(); }); };
    txtYieldStress->OnEnter = [this] { Guard([this] { txtYieldStress_KeyPress(); }); };
    txtCompression->OnEnter = [this] { Guard([this] { Judge(); }); };
    picFailure->OnPaint = [this](Picture& pic) { picFailure_Paint(pic); };
}

} // namespace forcelab::transform
