#include "transform/MohrDrawing.h"
#include "transform/forms/frmMohr.h"

#include <QActionGroup>
#include <QMenuBar>

namespace forcelab::transform {

void frmMohr::BuildMenus()
{
    AddMenuItem("mnuBack", "&Back", [this] { mnuBack_Click(); });
    AddMenuItem("mnuNew", "&New", [this] { mnuNew_Click(); });
    BuildAnalysisMenu();
    mnuFailure = AddMenuItem("mnuFailure", "&Failure Theories", [this] { mnuFailure_Click(); });
    mnuFailure->setEnabled(false);
    AddMenuItem("mnuPrintDiagrams", "&Print", [this] { mnuPrintDiagrams_Click(); });
    AddMenuItem("mnuHelp", "&Help", [this] { mnuHelp_Click(); });
}

void frmMohr::BuildAnalysisMenu()
{
    QMenu* menu = AddMenu("mnuAnalysis", "&Analysis Options");
    AddAnalysis(menu, MohrMode::PlaneStress, "Plane Stres&s");
    AddAnalysis(menu, MohrMode::PlaneStrain, "Plane Strai&n");
    QMenu* rosettes = menu->addMenu(screen::Q("Strain &Rosettes"));
    rosettes->setObjectName(screen::Q("mnuRosettes"));
    rosettes->menuAction()->setObjectName(screen::Q("mnuRosettes"));
    AddAnalysis(rosettes, MohrMode::Rosette45, "Rectangular 0-45-90");
    AddAnalysis(rosettes, MohrMode::Rosette60, "Delta 0-60-120");
    AddAnalysis(menu, MohrMode::MomentOfInertia, "&Moments of Inertia");
    auto* oneOf = new QActionGroup(this);
    for (QAction* analysis : analyses_) oneOf->addAction(analysis);
}

void frmMohr::AddAnalysis(QMenu* menu, MohrMode mode, std::string_view caption)
{
    QAction* item = AddItem(menu, LabelsOf(mode).Menu.data(), caption,
                            [this, mode] { mnuAnalysis_Click(mode); });
    item->setCheckable(true);
    analyses_[static_cast<int>(mode)] = item;
}

void frmMohr::ConnectInputs()
{
    OnClick(cmdMohr, [this](int index) { cmdMohr_Click(index); });
    OnClick(optStressUnits, [this](int) { ShowAgain(); });
    On(chkAbsMaxShear, &QCheckBox::toggled, [this] { ShowAgain(); });
    On(chkRosette, &QCheckBox::toggled, [this] { chkRosette_Click(); });
    for (const auto& [index, box] : txtStress.Members())
        box->OnEnter = [this, i = index] { Guard([&] { txtStress_KeyPress(i); }); };
}

void frmMohr::ConnectStresses()
{
    OnClick(optStressOrStrain, [this](int) { ShowAgain(); });
    OnClick(optElasticModulus, [this](int index) { optElasticModulus_Click(index); });
    OnClick(optUnitsStress, [this](int) { ShowAgain(); });
    const auto choose = [this](int row) { cboElasticModulus_Click(row); };
    On(cboElasticModulus, &QComboBox::currentIndexChanged, choose);
    On(cboElasticModulus, &QComboBox::activated, choose); // the same row anew
    txtElasticModulus->OnEnter = [this] { txtPoisson->SetFocus(); };
    txtPoisson->OnEnter = [this] { Guard([this] { cmdMohr_Click(0); }); };
}

void frmMohr::ConnectRotation()
{
    txtRotater->OnEnter = [this] { Guard([this] { cmdRotater_click(); }); };
    On(cmdRotater, &QPushButton::clicked, [this] { cmdRotater_click(); });
    On(cmdRotaterNull, &QPushButton::clicked, [this] { cmdRotaterNull_Click(); });
    On(vsbRotater, &QScrollBar::valueChanged, [this] { vsbRotater_Change(); });
    picXprime->OnMouseUp = [this](const screen::MouseAction& mouse) {
        Guard([&] { picXprime_MouseUp(mouse); });
    };
}

void frmMohr::ConnectPictures()
{
    picMohr->OnPaint = [this](Picture& pic) { picMohr_Paint(pic); };
    picPrincipal->OnPaint = [this](Picture& pic) { picPrincipal_Paint(pic); };
    picMaxShear->OnPaint = [this](Picture& pic) { picMaxShear_Paint(pic); };
    picRotater->OnPaint = [this](Picture& pic) { picRotater_Paint(pic); };
    picXprime->OnPaint = [this](Picture& pic) { picXprime_Paint(pic); };
    picRosette45->OnPaint = [](Picture& pic) { DrawRosette(pic, MohrMode::Rosette45); };
    picRosette60->OnPaint = [](Picture& pic) { DrawRosette(pic, MohrMode::Rosette60); };
    picStrainOrient->OnPaint = [](Picture& pic) { DrawStrainOrient(pic); };
    picSignConvention->OnPaint = [this](Picture& pic) { DrawSignConvention(pic, mode_); };
}

} // namespace forcelab::transform
