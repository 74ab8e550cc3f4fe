#include "beams/forms/frmAllowable.h"

#include "beams/StressInput.h"

#include <QBoxLayout>

namespace forcelab::beams {

using screen::Describe;
using screen::Q;

namespace {

constexpr int kLeastWidth = 400;
constexpr int kLeastHeight = 330;
constexpr int kHeadColumn = 1; // the first one of numbers
constexpr std::array<std::string_view, 3> kLimitNames{"tension", "compression", "shear"};

} // namespace

void frmAllowable::SetCaptions()
{
    lblMaterial(0).SetCaption("Material A");
    lblMaterial(1).SetCaption("Material B");
    lblHead(2).SetCaption("Shear");
    optSame.SetCaptions({"Use same stress limit for both", "Specify stress limits for each"});
    optStressUnits.SetCaptions(kStressUnits);
    optSame.Choose(0);
    optStressUnits.Choose(0);
    fraASD->SetCaption("Allowable Stresses");
    cmdASD(0).setText(Q("&OK"));
    cmdASD(1).setText(Q("&Cancel"));
    cmdASD(1).setShortcut(Qt::Key_Escape);
    for (const auto& [index, button] : cmdASD.Members()) button->setAutoDefault(true);
    for (const auto& [box, text] : txtASD.Members()) text->setFixedWidth(screen::kNumberWidth);
}

// A row for each material, a column for each limit.
QWidget* frmAllowable::BuildTable()
{
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(2 * screen::kGap);
    for (const auto& [head, label] : lblHead.Members()) {
        label->setWordWrap(true);
        label->setAlignment(Qt::AlignLeft | Qt::AlignBottom);
        grid->addWidget(label, 0, kHeadColumn + head);
    }
    for (const auto& [material, label] : lblMaterial.Members())
        grid->addWidget(label, 1 + material, 0);
    for (const auto& [box, text] : txtASD.Members())
        grid->addWidget(text, 1 + box % 2, kHeadColumn + box / 2, Qt::AlignLeft);
    grid->setColumnStretch(kHeadColumn + 3, 1);
    auto* all = new QVBoxLayout(fraASD);
    all->addLayout(grid);
    all->addWidget(screen::OptionRow(optStressUnits, 0, 3));
    return fraASD;
}

void frmAllowable::BuildWindow()
{
    auto* list = screen::Across({lblASD, cboASD});
    list->setStretch(1, 1);
    lblASD->setBuddy(cboASD);
    auto* buttons = screen::Across({&cmdASD(0), &cmdASD(1)});
    buttons->insertStretch(0, 1);
    auto* all = screen::Down({&optSame(0), &optSame(1), BuildTable()});
    all->addLayout(list);
    all->addStretch(1);
    all->addLayout(buttons);
    all->setContentsMargins(screen::kMargin, screen::kMargin, screen::kMargin, screen::kMargin);
    auto* central = new QWidget;
    central->setLayout(all);
    setCentralWidget(central);
    resize(kLeastWidth, kLeastHeight);
}

void frmAllowable::DescribeControls()
{
    for (const auto& [box, text] : txtASD.Members())
        Describe(*text, "Limit in " + std::string(kLimitNames[std::size_t(box / 2)]) + ", " +
                            lblMaterial(box % 2).Caption());
    for (const auto& [unit, option] : optStressUnits.Members())
        Describe(*option, "Limits in " + option->text().toStdString());
    Describe(*cboASD, "Material",
             "Takes the yield strength of a material for tension "
             "and compression");
}

void frmAllowable::Connect()
{
    OnClick(optSame, [this](int index) { optSame_Click(index); });
    OnClick(optStressUnits, [this](int index) { optStressUnits_Click(index); });
    OnClick(cmdASD, [this](int index) { cmdASD_Click(index); });
    const auto choose = [this](int row) { cboASD_Click(row); };
    On(cboASD, &QComboBox::currentIndexChanged, choose);
    On(cboASD, &QComboBox::activated, choose); // the same row anew
    for (const auto& [box, text] : txtASD.Members()) {
        On(text, &QLineEdit::textEdited, [this, i = box] { txtASD_Change(i); });
        text->OnLostFocus = [this, i = box] { Guard([this, i] { txtASD_LostFocus(i); }); };
        text->OnEnter = [this] { Guard([this] { cmdASD_Click(0); }); };
    }
}

} // namespace forcelab::beams
