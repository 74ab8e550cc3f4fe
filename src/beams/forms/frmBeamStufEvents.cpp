#include "beams/forms/frmBeamStuf.h"

#include <QMenuBar>
#include <QShortcutEvent>

namespace forcelab::beams {

using screen::ArrayName;

namespace {

constexpr std::array<std::string_view, kLoadKinds> kEnterLoads{
    "Poi&nt Load:  up ",    "Poin&t Load: down",          "Uniform Lo&ad: up ",
    "Uniform Load: do&wn ", "Moment: &counterclockwise ", "Moment: cloc&kwise "};
constexpr std::array<std::string_view, 3> kFactorNames{"1.4D", "1.2D + 1.6L", "1.4D + 1.7L"};

/// The letter that "&Cancel" shares with the menu goes to the button, while one is open.
class CancelFirst : public QObject {
  public:
    CancelFirst(QMenuBar* bar, std::vector<QPushButton*> buttons)
        : QObject(bar), buttons_(std::move(buttons)), letter_(buttons_.front()->shortcut())
    {
        for (QPushButton* button : buttons_) button->setShortcut({});
        bar->installEventFilter(this);
    }

  protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() != QEvent::Shortcut) return false;
        if (static_cast<QShortcutEvent*>(event)->key() != letter_) return false;
        for (QPushButton* button : buttons_)
            if (button->isVisible()) return button->click(), true;
        return false;
    }

  private:
    std::vector<QPushButton*> buttons_;
    QKeySequence letter_;
};

} // namespace

void frmBeamStuf::BuildMenus()
{
    AddMenuItem("mnuBack", "&Back", [this] { mnuBack_Click(); });
    AddMenuItem("mnuNew", "&New", [this] { mnuNew_Click(); });
    BuildLoadsMenu();
    mnuSectionProperties = AddMenuItem("mnuSectionProperties", "&Cross-Section",
                                       [this] { mnuSectionProperties_Click(); });
    BuildStressMenu();
    AddMenuItem("mnuMohr", "&Mohr's Circle", [this] { mnuMohr_Click(); });
    new CancelFirst(menuBar(), {cmdBeamDefineCancel, cmdCancelLoad, &cmdEditLoad(2)});
}

void frmBeamStuf::BuildLoadsMenu()
{
    QMenu* menu = mnuLoadsMoments = AddMenu("mnuLoadsMoments", "&Loads");
    AddItem(menu, "mnuUndoLoadEntry", "&Undo Load", [this] { mnuUndoLoadEntry_Click(); });
    AddItem(menu, "mnuRedoLoadEntry", "&Redo Load", [this] { mnuRedoLoadEntry_Click(); });
    menu->addSeparator();
    for (int type = 0; type < kLoadKinds; ++type)
        AddItem(menu, ArrayName("mnuEnterLoads", type).toLatin1().constData(),
                kEnterLoads[std::size_t(type)], [this, type] { optLoadType_Click(type); });
    menu->addSeparator();
    BuildFactorItems(menu);
}

void frmBeamStuf::BuildFactorItems(QMenu* loads)
{
    mnuUnfactored =
        AddItem(loads, "mnuLoadFac(0)", "Unfact&ored Loads", [this] { mnuLoadFac_Click(0); });
    mnuUnfactored->setCheckable(true);
    QMenu* factored = loads->addMenu(screen::Q("&Factored Loads"));
    factored->setObjectName(ArrayName("mnuLoadFac", 1));
    factored->menuAction()->setObjectName(ArrayName("mnuLoadFac", 1));
    for (int set = 0; set < int(mnuLF.size()); ++set) {
        QAction* item = AddItem(factored, ArrayName("mnuLF", set).toLatin1().constData(),
                                kFactorNames[std::size_t(set)], [this, set] { mnuLF_Click(set); });
        item->setCheckable(true);
        mnuLF[std::size_t(set)] = item;
    }
}

void frmBeamStuf::BuildStressMenu()
{
    mnuStressForm = AddMenu("mnuStressForm", "S&tresses");
    mnuStress =
        AddItem(mnuStressForm, "mnuStress", "&Normal and Shear", [this] { mnuStress_Click(); });
    AddItem(mnuStressForm, "mnuAllowable", "&Allowable Stresses", [this] { mnuAllowable_Click(); });
    On(mnuStressForm, &QMenu::aboutToShow, [this] { mnuStressForm_Click(); });
}

void frmBeamStuf::Connect()
{
    OnClick(cmdBeamType, [this](int index) { cmdBeamType_Click(index); });
    OnClick(optLoadType, [this](int index) { optLoadType_Click(index); });
    OnClick(optBeamLength, [this](int index) { optBeamLength_Click(index); });
    OnClick(cmdEditLoad, [this](int index) { cmdEditLoad_Click(index); });
    OnClick(cmdEditLoadSpin, [this](int index) { cmdEditLoadSpin_Click(index); });
    On(cboLoadBackup, &QComboBox::activated, [this](int row) { cboLoadBackup_Click(row); });
    ConnectButtons();
    ConnectKeys();
}

void frmBeamStuf::ConnectButtons()
{
    On(cmdBeamDefineOK, &QPushButton::clicked, [this] { cmdBeamDefineOK_Click(); });
    On(cmdBeamDefineCancel, &QPushButton::clicked, [this] { cmdBeamDefineCancel_Click(); });
    On(cmdEnterLoad, &QPushButton::clicked, [this] { cmdEnterLoad_Click(); });
    On(cmdCancelLoad, &QPushButton::clicked, [this] { cmdCancelLoad_click(); });
    On(cmdRefreshDiagrams, &QPushButton::clicked, [this] { cmdRefreshDiagrams_Click(); });
}

void frmBeamStuf::ConnectKeys()
{
    txtLeftSimple->OnEnter = [this] { txtRightSimple->SetFocus(); };
    txtRightSimple->OnEnter = [this] { txtLeftSimple->SetFocus(); };
    for (const LoadFrame& frame : frames_) ConnectFrameKeys(frame);
}

// Enter goes round: the locations, the magnitudes, and back to the first location.
void frmBeamStuf::ConnectFrameKeys(const LoadFrame& frame)
{
    const auto toMagnitude = [&frame] {
        (*frame.Magnitude)(CurrentBeam.FactoredLoads ? 1 : 0).SetFocus();
    };
    frame.Start->OnEnter = toMagnitude;
    if (frame.End) {
        frame.Start->OnEnter = [&frame] { frame.End->SetFocus(); };
        frame.End->OnEnter = toMagnitude;
    }
    for (const int box : {0, 2})
        (*frame.Magnitude)(box).OnEnter = [&frame] { frame.Start->SetFocus(); };
    (*frame.Magnitude)(1).OnEnter = [&frame] { (*frame.Magnitude)(2).SetFocus(); };
}

} // namespace forcelab::beams
