#include "core/forms/frmMainMenu.h"

#include "core/screen/Forms.h"
#include "core/screen/Layout.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QMenu>

#include <algorithm>
#include <span>

namespace forcelab {

using screen::Forms;
using screen::Q;

namespace {

constexpr const char* kNotBuilt = "This module is not built yet.";
constexpr const char* kHelpTip = "Right click for Help";
constexpr int kSecondSet = 30;

// Below this size of the window the compact set of buttons is shown.
constexpr QSize kRoomForLargeSet{900, 560};
constexpr int kLargeTitle = 150;
constexpr int kCompactTitle = 84;
constexpr int kTileGap = 12;
constexpr int kLargeColumns = 5;
constexpr int kCompactColumns = 3;
constexpr const char* kHint = "Click a picture to open its module. Right click it, or press F1 on "
                              "it, to read about it in the help pages.";

// Where the buttons stand, as a student meets the subjects; then help and the way out.
constexpr int kOrder[] = {9, 7, 2, 8, 5, 4, 6, 10, 1, 12, 3};
constexpr int kHelp = 11;
constexpr int kExit = 0;

} // namespace

const frmMainMenu::BigWord frmMainMenu::kBigWords[] = {
    {"Exit", "Exit", &frmMainMenu::mnuExit_Click, ""},
    {"Columns", "Columns", &frmMainMenu::mnuColumns_Click, "frmColumn"},
    {"Trusses", "Trusses", &frmMainMenu::mnuTruss_click, "frmTruss"},
    {"Mohr's Circle", "MohrsCircle", &frmMainMenu::mnuMohrCircle_Click, "frmMohr"},
    {"Beams", "Beams", &frmMainMenu::cmdBigBeams_Click, "frmBeamStuf"},
    {"Torsion", "Torsion", &frmMainMenu::mnuTorsion_click, "frmPower"},
    {"Section Properties", "SectionProperties", &frmMainMenu::mnuSectionProperties_Click,
     "frmProperties"},
    {"Beam and Strut", "BeamAndStrut", &frmMainMenu::mnuAxialDeterminate_Click, "frmStrut"},
    {"Indeterminate", "Indeterminate", &frmMainMenu::mnuIndet_Click, "frmIndet"},
    {"Stress and Strain", "StressAndStrain", &frmMainMenu::mnuClassic_Click, "frmStressStrain"},
    {"General Analysis", "GeneralAnalysis", &frmMainMenu::mnuStiffness_Click, "frmStiff"},
    {"Help", "Help", &frmMainMenu::mnuForcelabHelpMain_Click, ""},
    {"Combined Stress", "CombinedStress", &frmMainMenu::mnuCombinedStress_Click, "frmComSolid"},
};

const frmMainMenu::MenuRow frmMainMenu::kMenu[] = {
    {MenuRow::Kind::Menu, "mnuFile", "&File"},
    {MenuRow::Kind::Item, "mnuStartOver", "&New", &frmMainMenu::mnuStartOver_Click},
    {MenuRow::Kind::Item, "mnuExit", "&Exit", &frmMainMenu::mnuExit_Click},
    {MenuRow::Kind::Menu, "mnuAxial", "&Axial"},
    {MenuRow::Kind::Item, "mnuClassic", "&Stress and Strain", &frmMainMenu::mnuClassic_Click,
     "frmStressStrain"},
    {MenuRow::Kind::Item, "mnuAxialDeterminate", "&Beam and Strut",
     &frmMainMenu::mnuAxialDeterminate_Click, "frmStrut"},
    {MenuRow::Kind::Item, "mnuTruss", "&Trusses", &frmMainMenu::mnuTruss_click, "frmTruss"},
    {MenuRow::Kind::Item, "mnuIndet", "&Indeterminate", &frmMainMenu::mnuIndet_Click, "frmIndet"},
    {MenuRow::Kind::BarItem, "mnuTorsion", "&Torsion", &frmMainMenu::mnuTorsion_click, "frmPower"},
    {MenuRow::Kind::BarItem, "mnuBeams", "&Beams", &frmMainMenu::mnuBeams_click, "frmBeamStuf"},
    {MenuRow::Kind::BarItem, "mnuSectionProperties", "Section &Properties",
     &frmMainMenu::mnuSectionProperties_Click, "frmProperties"},
    {MenuRow::Kind::BarItem, "mnuStiffness", "&General", &frmMainMenu::mnuStiffness_Click,
     "frmStiff"},
    {MenuRow::Kind::BarItem, "mnuColumns", "&Columns", &frmMainMenu::mnuColumns_Click, "frmColumn"},
    {MenuRow::Kind::BarItem, "mnuCombinedStress", "Combine&d",
     &frmMainMenu::mnuCombinedStress_Click, "frmComSolid"},
    {MenuRow::Kind::BarItem, "mnuMohrCircle", "&Mohr's Circle", &frmMainMenu::mnuMohrCircle_Click,
     "frmMohr"},
    {MenuRow::Kind::Menu, "mnuHelp", "&Help"},
    {MenuRow::Kind::Item, "mnuForcelabHelpMain", "&Forcelab Help Topics",
     &frmMainMenu::mnuForcelabHelpMain_Click},
    {MenuRow::Kind::Separator, "mnuSep", ""},
    {MenuRow::Kind::Item, "mnuAbout", "&About", &frmMainMenu::mnuAbout_Click},
};

bool frmMainMenu::IsBuilt(std::string_view form)
{
    return form.empty() || Forms::IsKnown(FormFor(form));
}

void frmMainMenu::BuildMenu()
{
    const std::span rows(kMenu);
    QMenu* menu = AddMenu(rows.front().Name, rows.front().Caption);
    for (const MenuRow& row : rows.subspan(1)) {
        QAction* action = BuildMenuRow(row, menu);
        if (IsBuilt(row.Opens)) continue;
        action->setEnabled(false);
        action->setToolTip(Q(kNotBuilt));
    }
}

// `menu` is the one that the items go to; a row that is a menu becomes it.
QAction* frmMainMenu::BuildMenuRow(const MenuRow& row, QMenu*& menu)
{
    const auto click = [this, handler = row.Click] { (this->*handler)(); };
    switch (row.What) {
    case MenuRow::Kind::Menu:
        menu = AddMenu(row.Name, row.Caption);
        return menu->menuAction();
    case MenuRow::Kind::Separator: {
        QAction* line = menu->addSeparator();
        line->setObjectName(QLatin1String(row.Name));
        return line;
    }
    case MenuRow::Kind::Item:
        return AddItem(menu, row.Name, row.Caption, click);
    case MenuRow::Kind::BarItem:
        break;
    }
    return AddMenuItem(row.Name, row.Caption, click);
}

void frmMainMenu::BuildButtons()
{
    for (const auto& [index, button] : cmdBigWord.Members()) {
        const bool compact = index >= kSecondSet;
        const BigWord& word = kBigWords[compact ? index - kSecondSet : index];
        button->Setup(word.Caption, word.Picture, compact);
        button->setEnabled(IsBuilt(word.Opens));
        button->setToolTip(Q(button->isEnabled() ? kHelpTip : kNotBuilt));
        button->OnMouseUp = [this, i = index](int mouseButton) {
            Guard([&] { cmdBigWord_MouseUp(i, mouseButton); });
        };
    }
    ArrangeButtons(0, kLargeColumns);
    ArrangeButtons(1, kCompactColumns);
    SetTabOrder();
}

// Row by row; help and the way out stand at the end of the last row.
void frmMainMenu::ArrangeButtons(int set, int columns)
{
    auto* grid = new QGridLayout(&fraBigButtons(set));
    grid->setContentsMargins(2 * kTileGap, kTileGap, 2 * kTileGap, 2 * kTileGap);
    grid->setSpacing(kTileGap);
    const int first = set * kSecondSet;
    int place = 0;
    for (const int number : kOrder) {
        grid->addWidget(&cmdBigWord(first + number), place / columns, place % columns);
        ++place;
    }
    const int last = (place + 1) / columns;
    grid->addWidget(&cmdBigWord(first + kHelp), last, columns - 2);
    grid->addWidget(&cmdBigWord(first + kExit), last, columns - 1);
    for (int row = 0; row <= last; ++row) grid->setRowStretch(row, 1);
    for (int column = 0; column < columns; ++column) grid->setColumnStretch(column, 1);
    if (set == 0) grid->addWidget(lblHint, last, 1, 1, columns - 3);
}

void frmMainMenu::SetTabOrder()
{
    QWidget* before = nullptr;
    const auto next = [&before](BigButton& button) {
        if (before) setTabOrder(before, &button);
        before = &button;
    };
    for (const int first : {0, kSecondSet}) {
        for (const int number : kOrder) next(cmdBigWord(first + number));
        next(cmdBigWord(first + kHelp));
        next(cmdBigWord(first + kExit));
    }
}

void frmMainMenu::BuildWindow()
{
    lblHint->SetCaption(kHint);
    lblHint->setAlignment(Qt::AlignCenter);
    lblHint->setWordWrap(true);
    lblHint->setForegroundRole(QPalette::PlaceholderText);
    auto* all = screen::Down({imgBookCover, &fraBigButtons(0), &fraBigButtons(1)});
    all->setSpacing(0);
    all->setStretch(1, 1);
    all->setStretch(2, 1);
    auto* body = new QWidget;
    body->setLayout(all);
    // The compact set says how small the window can become.
    const QSize least = fraBigButtons(1).layout()->totalMinimumSize();
    body->setMinimumSize(least + QSize(0, kCompactTitle));
    setCentralWidget(body);
    ChooseButtonSet();
}

void frmMainMenu::ChooseButtonSet()
{
    const QSize large = fraBigButtons(0).layout()->totalMinimumSize();
    const bool compact = width() < std::max(kRoomForLargeSet.width(), large.width()) ||
                         height() < kRoomForLargeSet.height();
    imgBookCover->setFixedHeight(compact ? kCompactTitle : kLargeTitle);
    fraBigButtons(0).setVisible(!compact);
    fraBigButtons(1).setVisible(compact);
}

} // namespace forcelab
