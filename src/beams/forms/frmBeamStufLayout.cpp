#include "beams/forms/frmBeamStufLayout.h"

#include "beams/EntrySketches.h"

#include <QGridLayout>

#include <vector>

namespace forcelab::beams {

using screen::Across;
using screen::Describe;
using screen::Down;
using screen::OptionRow;
using screen::Q;

namespace {

constexpr int kPlaceWidth = 398; // of the frame that is open, pixels
constexpr int kPlaceHeight = 256;
constexpr int kWidest = 560;
constexpr int kCaptionWidth = 110;

struct PictureNames {
    std::string_view Caption;
    std::string_view Name;
};
constexpr std::array<PictureNames, 3> kBeamTypes{
    {{"Two supports", "Beam on two supports, each anywhere on it"},
     {"Fixed at left", "Cantilever fixed at its left end"},
     {"Fixed at right", "Cantilever fixed at its right end"}}};
constexpr std::array<PictureNames, kLoadKinds> kLoadTypes{
    {{"Point, up", "Point load, up"},
     {"Point, down", "Point load, down"},
     {"Uniform, up", "Uniform load, up"},
     {"Uniform, down", "Uniform load, down"},
     {"Moment, ccw", "Moment, counterclockwise"},
     {"Moment, cw", "Moment, clockwise"}}};

/// By LoadFamily: what the boxes ask for, without load factors.
constexpr std::array<std::string_view, 3> kMagnitudeNames{"Moment", "Load", "Load"};

void KeepPlace(QWidget& widget)
{
    QSizePolicy policy = widget.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget.setSizePolicy(policy);
}

/// The boxes of all frames stand below each other.
void AlignBoxes(QWidget& frame)
{
    auto* grid = qobject_cast<QGridLayout*>(frame.layout());
    grid->setColumnMinimumWidth(0, kCaptionWidth);
    grid->setColumnStretch(1, 0);
    grid->setColumnStretch(2, 1);
}

template <class Control>
void Append(std::vector<QWidget*>& order, const screen::ControlArray<Control>& controls)
{
    for (const auto& [index, control] : controls.Members()) order.push_back(control);
}

void Chain(const std::vector<QWidget*>& order)
{
    for (std::size_t i = 1; i < order.size(); ++i) QWidget::setTabOrder(order[i - 1], order[i]);
}

} // namespace

frmBeamStufLayout::frmBeamStufLayout() : Form("frmBeamStuf", "Determinate Beam Module")
{
    SetCaptions();
    SetButtonCaptions();
    SetPictures();
    SetSizes();
    BuildDefinition();
    for (const LoadFrame& frame : frames_) BuildLoadFrame(frame);
    BuildEditPanel();
    BuildWindow();
    DescribeControls();
}

void frmBeamStufLayout::SetCaptions()
{
    fraBeamType->SetCaption("Type of Beam");
    picToolBarNew->SetCaption("Add a Load");
    fraBeamLength->SetCaption("Beam Length");
    fraSimpleSupports->SetCaption("Locations of Supports");
    fraEditLoads->SetCaption("Edit Loads");
    lblPrompt->SetCaption("Choose the type of the beam.");
    lblPrompt->setAlignment(Qt::AlignCenter);
    for (auto* lengths : {&optBeamLength, &optConcentratedX, &optUniformX, &optMomentX})
        lengths->SetCaptions(kLengthUnits);
    optForceUnits.SetCaptions(kForceUnits);
    optUniformLoadUnits.SetCaptions(kUniformUnits);
    optMomentUnits.SetCaptions(kMomentUnits);
    for (std::size_t family = 0; family < frames_.size(); ++family) {
        const auto& caption = *frames_[family].Caption;
        caption(0).SetCaption(kMagnitudeNames[family]);
        caption(1).SetCaption("Dead");
        caption(2).SetCaption("Live");
    }
}

void frmBeamStufLayout::SetButtonCaptions()
{
    cmdBeamDefineOK->setText(Q("&OK"));
    cmdBeamDefineCancel->setText(Q("&Cancel"));
    cmdEnterLoad->setText(Q("&Enter"));
    cmdCancelLoad->setText(Q("&Cancel"));
    cmdEditLoad(0).setText(Q("&Enter"));
    cmdEditLoad(1).setText(Q("&Delete"));
    cmdEditLoad(2).setText(Q("&Cancel"));
    cmdEditLoadSpin(0).setText(Q("\u25C0"));
    cmdEditLoadSpin(1).setText(Q("\u25B6"));
    cmdRefreshDiagrams->setText(Q("&Refresh Beam Diagrams"));
    for (auto* button : findChildren<QPushButton*>()) button->setAutoDefault(true);
}

void frmBeamStufLayout::SetPictures()
{
    for (const auto& [index, button] : cmdBeamType.Members())
        button->Setup(kBeamTypes[std::size_t(index)].Caption, kBeamTypes[std::size_t(index)].Name,
                      [type = index + 1](Picture& pic) { DrawBeamTypeSketch(pic, type); });
    for (const auto& [index, button] : optLoadType.Members())
        button->Setup(kLoadTypes[std::size_t(index)].Caption, kLoadTypes[std::size_t(index)].Name,
                      [type = index](Picture& pic) { DrawLoadTypeSketch(pic, type); });
}

void frmBeamStufLayout::SetSizes()
{
    for (auto* box : findChildren<QLineEdit*>()) box->setFixedWidth(screen::kNumberWidth);
    cboLoadBackup->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    cboLoadBackup->setMaxVisibleItems(20);
    for (const auto& [index, button] : cmdEditLoadSpin.Members())
        button->setFixedWidth(4 * button->fontMetrics().horizontalAdvance(QLatin1Char('0')));
    KeepPlace(*fraEditLoads);
    KeepPlace(*cmdRefreshDiagrams);
}

void frmBeamStufLayout::BuildDefinition()
{
    screen::Rows(fraBeamLength)
        .Row("Length", {txtBeamLength})
        .Row("Unit", {OptionRow(optBeamLength, 0, 3)});
    screen::Rows(fraSimpleSupports)
        .Row("Left support, x", {txtLeftSimple})
        .Row("Right support, x", {txtRightSimple});
    for (auto* frame : {fraBeamLength, fraSimpleSupports}) AlignBoxes(*frame);
}

void frmBeamStufLayout::BuildLoadFrame(const LoadFrame& frame)
{
    screen::Rows rows(frame.Frame);
    if (frame.End)
        rows.Row("Start, x", {frame.Start}).Row("End, x", {frame.End});
    else
        rows.Row("Location, x", {frame.Start});
    rows.Row("", {OptionRow(*frame.Length, 0, 3)});
    for (const auto& [index, box] : frame.Magnitude->Members())
        rows.Row(&(*frame.Caption)(index), {box});
    rows.Row("", {OptionRow(*frame.Unit, 0, 3)});
    AlignBoxes(*frame.Frame);
}

void frmBeamStufLayout::BuildEditPanel()
{
    auto* line = Across({&cmdEditLoadSpin(0), cboLoadBackup, &cmdEditLoadSpin(1)});
    line->setStretch(1, 1);
    auto* all = new QVBoxLayout(fraEditLoads);
    all->addLayout(line);
}

// One place for all: the pictures of the loads, or the frame that is open.
QWidget* frmBeamStufLayout::BuildPlace()
{
    auto* tiles = new QGridLayout(picToolBarNew);
    for (const auto& [index, button] : optLoadType.Members())
        tiles->addWidget(button, index % 2, index / 2);
    tiles->setRowStretch(2, 1);
    auto* place = new QWidget;
    auto* all = Down({lblPrompt, picToolBarNew, fraBeamLength, fraSimpleSupports, fraMoment,
                      fraConcentrated, fraUniform});
    all->addLayout(BuildButtons());
    all->addStretch(1);
    place->setLayout(all);
    place->setMinimumSize(kPlaceWidth, kPlaceHeight);
    return place;
}

QLayout* frmBeamStufLayout::BuildButtons()
{
    auto* buttons = Across({cmdBeamDefineOK, cmdBeamDefineCancel, cmdEnterLoad, cmdCancelLoad});
    for (const auto& [index, button] : cmdEditLoad.Members()) buttons->addWidget(button);
    return buttons;
}

void frmBeamStufLayout::BuildWindow()
{
    auto* types = new QHBoxLayout(fraBeamType);
    for (const auto& [index, button] : cmdBeamType.Members()) types->addWidget(button);
    auto* central = new QWidget;
    auto* all = Down({fraBeamType, BuildPlace(), fraEditLoads, cmdRefreshDiagrams});
    all->setStretch(1, 1);
    all->setContentsMargins(screen::kMargin, screen::kMargin, screen::kMargin, screen::kMargin);
    central->setLayout(all);
    central->setMaximumWidth(kWidest);
    auto* window = new QWidget;
    auto* beside = Across({central});
    beside->setStretch(0, 1);
    beside->addStretch(0); // where the window is wide, the column stays at its left
    window->setLayout(beside);
    setCentralWidget(window);
}

void frmBeamStufLayout::DescribeControls()
{
    Describe(*txtBeamLength, "Length of the beam");
    Describe(*txtLeftSimple, "Location of the left support");
    Describe(*txtRightSimple, "Location of the right support");
    Describe(*cboLoadBackup, "Loads on the beam", "Choose a load to edit it");
    Describe(cmdEditLoadSpin(0), "Edit previous load", "Edit previous load");
    Describe(cmdEditLoadSpin(1), "Edit next load", "Edit next load");
    Describe(*cmdRefreshDiagrams, "Refresh beam diagrams", "Show the diagrams of this beam");
    for (const auto& [unit, option] : optBeamLength.Members())
        Describe(*option, "Length in " + option->text().toStdString());
    DescribeLoadFrame(frames_[kPointLoad], "point load");
    DescribeLoadFrame(frames_[kUniformLoad], "uniform load");
    DescribeLoadFrame(frames_[kMomentLoad], "moment");
}

void frmBeamStufLayout::DescribeLoadFrame(const LoadFrame& frame, const char* load)
{
    const std::string of = std::string(" of the ") + load;
    Describe(*frame.Start, (frame.End ? "Start" : "Location") + of);
    if (frame.End) Describe(*frame.End, "End" + of);
    Describe((*frame.Magnitude)(0), "Magnitude" + of);
    Describe((*frame.Magnitude)(1), "Dead part" + of);
    Describe((*frame.Magnitude)(2), "Live part" + of);
    for (const auto& [unit, option] : frame.Length->Members())
        Describe(*option, "Location in " + option->text().toStdString());
    for (const auto& [unit, option] : frame.Unit->Members())
        Describe(*option, "Magnitude in " + option->text().toStdString());
}

std::string_view frmBeamStufLayout::LoadTypeName(int type)
{
    return kLoadTypes.at(std::size_t(type)).Name;
}

void frmBeamStufLayout::SetDefinitionTabOrder()
{
    std::vector<QWidget*> order{txtBeamLength, txtLeftSimple, txtRightSimple};
    Append(order, optBeamLength);
    order.insert(order.end(), {cmdBeamDefineOK, cmdBeamDefineCancel});
    Chain(order);
}

void frmBeamStufLayout::SetLoadTabOrder()
{
    std::vector<QWidget*> order{txtConcentratedX, txtStartUniform, txtEndUniform, txtMomentX};
    for (auto* boxes : {&txtConcentrated, &txtUniform, &txtMoment}) Append(order, *boxes);
    for (auto* lengths : {&optConcentratedX, &optUniformX, &optMomentX}) Append(order, *lengths);
    for (auto* units : {&optForceUnits, &optUniformLoadUnits, &optMomentUnits})
        Append(order, *units);
    order.insert(order.end(), {cmdEnterLoad, cmdCancelLoad});
    Append(order, cmdEditLoad);
    Chain(order);
}

} // namespace forcelab::beams
