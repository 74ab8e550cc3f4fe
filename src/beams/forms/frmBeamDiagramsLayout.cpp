#include "beams/forms/frmBeamDiagramsLayout.h"

#include "beams/BeamTexts.h"
#include "beams/DiagramFrame.h"
#include "core/MainModule.h"
#include "core/RecordingPicture.h"

#include <QAbstractItemView>
#include <QBoxLayout>
#include <QStyle>

#include <algorithm>
#include <vector>

namespace forcelab::beams {

using screen::Across;
using screen::Describe;
using screen::Down;
using screen::Q;

namespace {

constexpr int kSpace = 4;         // between the lines of the form, pixels
constexpr int kUnitSpace = 20;    // between groups of unit options
constexpr int kLowestLoads = 150; // heights
constexpr int kLowestCurve = 84;
constexpr int kLoadStretch = 6; // heights of the load diagram and of a curve
constexpr int kCurveStretch = 5;
constexpr int kBesideFrom = 940; // the form's width from which explanations stand at the right
constexpr int kNarrow = 560;     // below, lines of text may need two lines
constexpr double kPaneWidth = 0.36;
constexpr double kPaneHeight = 0.3;

struct DiagramNames {
    std::string_view Caption;
    std::string_view Service;
    std::string_view NoStiffness;
};
constexpr std::array<DiagramNames, 4> kNames{
    {{"Shear diagram", "", ""},
     {"Moment diagram", "", ""},
     {"Slope diagram", "Slopes calculated with service dead and live loads.",
      "Slopes calculated with EI = 1"},
     {"Deflection diagram", "Deflections calculated with service dead and live loads.",
      "Deflections calculated with EI = 1"}}};

/// The messages of slope and deflection: 0 and 2 tell of the missing EI, 1 and 3 of the loads.
constexpr int FirstMessage(Diagram diagram)
{
    return diagram == Diagram::Slope ? 0 : 2;
}

std::string CaptionOf(Diagram diagram)
{
    return std::string(kNames[std::size_t(diagram)].Caption);
}

void BuildUnitGroup(QWidget* group, std::string_view caption, const screen::OptionArray& options)
{
    auto* label = new QLabel(Q(caption), group);
    auto* row = Across({label, screen::OptionRow(options, 0, options.Count() - 1)});
    row->addStretch(1);
    group->setLayout(row);
}

} // namespace

frmBeamDiagramsLayout::frmBeamDiagramsLayout() : Form("frmBeamDiagrams", "Beam Diagrams Module")
{
    SetCaptions();
    BuildUnits();
    BuildLists();
    BuildPanes();
    BuildWindow();
    DescribeControls();
    DescribeDiagrams();
    SetTabOrder();
    ShowCurvesOf(false);
}

void frmBeamDiagramsLayout::SetCaptions()
{
    optLengthUnits.SetCaptions(kLengthUnits);
    optForceUnits.SetCaptions(kForceUnits);
    optMomentUnits.SetCaptions(kMomentUnits);
    optSlopeUnits.SetCaptions(kSlopeUnits);
    optDeflectionUnits.SetCaptions(kDeflectionUnits);
    for (auto* options :
         {&optLengthUnits, &optForceUnits, &optMomentUnits, &optSlopeUnits, &optDeflectionUnits})
        options->Choose(0);
    txtComboLabels(0).SetCaption("Loads");
    txtComboLabels(1).SetCaption("Reactions");
    for (const Diagram diagram :
         {Diagram::Shear, Diagram::Moment, Diagram::Slope, Diagram::Deflection}) {
        lblDiagram(int(diagram)).SetCaption(CaptionOf(diagram));
        cmdDiscontinuity(int(diagram)).setText(Q("Discontinuity function"));
        cmdDiscontinuity(int(diagram)).setAutoDefault(true);
    }
    for (const Diagram diagram : {Diagram::Slope, Diagram::Deflection}) {
        lblEIMessage(FirstMessage(diagram)).SetCaption(kNames[std::size_t(diagram)].NoStiffness);
        lblEIMessage(FirstMessage(diagram) + 1).SetCaption(kNames[std::size_t(diagram)].Service);
    }
    for (const auto& [index, message] : lblEIMessage.Members()) message->hide();
}

void frmBeamDiagramsLayout::BuildUnits()
{
    BuildUnitGroup(picLengthUnits, "Length", optLengthUnits);
    BuildUnitGroup(picForceUnits, "Force", optForceUnits);
    BuildUnitGroup(picMomentUnits, "Moment", optMomentUnits);
    BuildUnitGroup(picSlopeUnits, "Slope", optSlopeUnits);
    BuildUnitGroup(picDeflectionUnits, "Deflection", optDeflectionUnits);
}

// The label box lies on its list and lets the mouse through, so that the list drops down wherever
// it is clicked.
void frmBeamDiagramsLayout::BuildLists()
{
    for (const auto& [index, label] : txtComboLabels.Members()) {
        screen::ComboBox* list = index == 0 ? cboLoads : cboReactions;
        list->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        list->setMaxVisibleItems(20);
        list->AddItem(label->Caption());
        label->setParent(list);
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
        label->setAutoFillBackground(false);
        label->setStyleSheet(Q("background: palette(button); margin: 3px; padding-left: 3px"));
    }
}

void frmBeamDiagramsLayout::BuildPanes()
{
    auto* all = Down({});
    for (const ExplainPane& pane : panes_) {
        pane.Text->setReadOnly(true);
        pane.Text->setTabChangesFocus(true);
        pane.Text->setMinimumHeight(60);
        pane.Close->setText(Q("&Close"));
        pane.Close->setAutoDefault(true);
        auto* buttons = Across({pane.Close});
        buttons->insertStretch(0, 1);
        auto* rows = new QVBoxLayout(pane.Frame);
        rows->setContentsMargins(kSpace, kSpace, kSpace, kSpace);
        rows->addWidget(pane.Text, 1);
        rows->addLayout(buttons);
        all->addWidget(pane.Frame);
        pane.Frame->hide();
    }
    panePlace_->setLayout(all);
    panePlace_->hide();
}

QWidget* frmBeamDiagramsLayout::BuildMessages(Diagram diagram, QWidget* place)
{
    auto* messages = new QWidget(place);
    messages->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    auto* line = new QBoxLayout(QBoxLayout::LeftToRight, messages);
    line->setContentsMargins(0, 0, 0, 0);
    if (diagram == Diagram::Slope || diagram == Diagram::Deflection)
        for (const int i : {0, 1}) line->addWidget(&lblEIMessage(FirstMessage(diagram) + i));
    messages->hide();
    return messages;
}

// A line with the name of the diagram and its button, the messages, and the picture.
QWidget* frmBeamDiagramsLayout::BuildCurve(Diagram diagram)
{
    const int index = int(diagram);
    QFont bold = lblDiagram(index).font();
    bold.setBold(true);
    lblDiagram(index).setFont(bold);
    auto* place = new QWidget;
    auto* grid = new QGridLayout(place);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(2);
    grid->addWidget(&lblDiagram(index), 0, 0);
    grid->addWidget(&cmdDiscontinuity(index), 0, 2);
    grid->addWidget(&CurvePicture(diagram), 2, 0, 1, 3);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(2, 1);
    messages_[std::size_t(diagram)] = BuildMessages(diagram, place);
    curvePlaces_[std::size_t(diagram)] = place;
    return place;
}

QWidget* frmBeamDiagramsLayout::BuildPictures()
{
    hsbX->setInvertedControls(false); // the right arrow key moves right
    auto* bar = new QHBoxLayout(barPlace_);
    bar->addWidget(hsbX);
    auto* pictures = new QWidget;
    auto* all = new QVBoxLayout(pictures);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(kSpace);
    all->addWidget(picLoadDiagram, kLoadStretch);
    all->addWidget(barPlace_);
    all->addWidget(lblPoint);
    for (const Diagram diagram :
         {Diagram::Shear, Diagram::Moment, Diagram::Slope, Diagram::Deflection})
        all->addWidget(BuildCurve(diagram), kCurveStretch);
    picLoadDiagram->setMinimumSize(screen::kNumberWidth, kLowestLoads);
    for (screen::PictureBox* curve : curves_)
        curve->setMinimumSize(screen::kNumberWidth, kLowestCurve);
    return pictures;
}

void frmBeamDiagramsLayout::BuildWindow()
{
    auto* central = new QWidget;
    auto* all = new QVBoxLayout(central);
    all->setContentsMargins(screen::kMargin, kSpace, screen::kMargin, kSpace);
    all->setSpacing(kSpace);
    auto* units = Down({});
    units->setSpacing(kSpace);
    for (QHBoxLayout*& line : unitLines_) {
        line = new QHBoxLayout;
        line->setSpacing(kUnitSpace);
        units->addLayout(line);
    }
    // Its lines follow the width of the form and must not hold it.
    unitPlace_->setLayout(units);
    unitPlace_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    all->addWidget(unitPlace_);
    auto* lists = Across({cboLoads, cboReactions});
    lists->setStretch(0, 1);
    lists->setStretch(1, 1);
    all->addLayout(lists);
    splDiagrams->setChildrenCollapsible(false);
    splDiagrams->addWidget(BuildPictures());
    splDiagrams->addWidget(panePlace_);
    splDiagrams->setStretchFactor(0, 1);
    all->addWidget(splDiagrams, 1);
    all->addWidget(lblHint);
    for (screen::Label* line : {lblPoint, lblHint}) {
        line->setWordWrap(true);
        line->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    }
    setCentralWidget(central);
}

void frmBeamDiagramsLayout::DescribeControls()
{
    const auto describe = [](const screen::OptionArray& options, std::string_view quantity) {
        for (const auto& [index, option] : options.Members())
            Describe(*option, std::string(quantity) + " in " + option->text().toStdString());
    };
    describe(optLengthUnits, "Length");
    describe(optForceUnits, "Force");
    describe(optMomentUnits, "Moment");
    describe(optSlopeUnits, "Slope");
    describe(optDeflectionUnits, "Deflection");
    Describe(*cboLoads, "Loads", "Choose a load to see what it does to the diagrams");
    Describe(*cboReactions, "Reactions", "Choose a reaction to see the equations of equilibrium");
    Describe(*hsbX, "Point of the beam", "Move to read the values at a point of the beam");
    Describe(*lblPoint, "Values at the point");
    Describe(*lblHint, "Hint");
    Describe(*txtExplainLoad, "Explanation of a load or of the beam");
    Describe(*txtExplainShear, "Explanation of a diagram");
    Describe(*txtExplainReactions, "Explanation of the reactions");
    for (const auto& [index, button] : cmdCloseExplain.Members())
        Describe(*button, "Close the explanation", "Esc");
}

void frmBeamDiagramsLayout::DescribeDiagrams()
{
    picLoadDiagram->setAccessibleName(Q("Load diagram"));
    picLoadDiagram->OwnsRightButton = true;
    for (const auto& [index, button] : cmdDiscontinuity.Members()) {
        const std::string caption = CaptionOf(Diagram(index));
        curves_[std::size_t(index)]->setAccessibleName(Q(caption));
        Describe(*button, "Discontinuity function of the " + caption,
                 "The curve as a function of x, with brackets");
    }
}

void frmBeamDiagramsLayout::SetTabOrder()
{
    std::vector<QWidget*> order;
    for (const auto* options :
         {&optLengthUnits, &optForceUnits, &optMomentUnits, &optSlopeUnits, &optDeflectionUnits})
        for (const auto& [index, option] : options->Members()) order.push_back(option);
    order.insert(order.end(), {cboLoads, cboReactions, picLoadDiagram, hsbX});
    hsbX->setFocusPolicy(Qt::StrongFocus);
    for (const auto& [index, button] : cmdDiscontinuity.Members())
        order.insert(order.end(), {button, curves_[std::size_t(index)]});
    for (const ExplainPane& pane : panes_) order.insert(order.end(), {pane.Text, pane.Close});
    for (std::size_t i = 1; i < order.size(); ++i) setTabOrder(order[i - 1], order[i]);
}

void frmBeamDiagramsLayout::SetFormWidthRows()
{
    const bool narrow = width() < kNarrow;
    PlaceUnits(width() - 2 * screen::kMargin);
    for (screen::Label* line : {lblPoint, lblHint})
        line->setFixedHeight((narrow ? 2 : 1) * line->fontMetrics().lineSpacing() + kSpace);
    PlacePane();
    for (const Diagram diagram : {Diagram::Slope, Diagram::Deflection}) PlaceMessages(diagram);
    LayComboLabels();
}

void frmBeamDiagramsLayout::PlaceUnits(int width)
{
    for (QHBoxLayout* line : unitLines_)
        while (QLayoutItem* item = line->takeAt(0)) delete item;
    std::size_t line = 0;
    int left = width;
    for (QWidget* group : units_) {
        if (group->isHidden()) continue;
        const int wanted = group->sizeHint().width();
        if (wanted > left && left < width && line + 1 < unitLines_.size()) {
            unitLines_[line++]->addStretch(1);
            left = width;
        }
        unitLines_[line]->addWidget(group);
        left -= wanted + kUnitSpace;
    }
    unitLines_[line]->addStretch(1);
}

bool frmBeamDiagramsLayout::PaneIsBeside() const
{
    return width() >= kBesideFrom;
}

/// True where the messages find room between the name of the diagram and its button.
bool frmBeamDiagramsLayout::MessagesFit(Diagram diagram) const
{
    int wanted = 0;
    for (const int i : {0, 1}) {
        const screen::Label& message = lblEIMessage(FirstMessage(diagram) + i);
        if (!message.isHidden()) wanted += message.sizeHint().width() + kUnitSpace;
    }
    const double share = PaneIsBeside() && !panePlace_->isHidden() ? 1 - kPaneWidth : 1;
    const int around = lblDiagram(int(diagram)).sizeHint().width() +
                       cmdDiscontinuity(int(diagram)).sizeHint().width() + kUnitSpace;
    return wanted + around <= int(share * (width() - 2 * screen::kMargin));
}

void frmBeamDiagramsLayout::PlaceMessages(Diagram diagram)
{
    const bool below = !MessagesFit(diagram);
    QWidget* messages = messages_[std::size_t(diagram)];
    auto* grid = dynamic_cast<QGridLayout*>(curvePlaces_[std::size_t(diagram)]->layout());
    auto* line = dynamic_cast<QBoxLayout*>(messages->layout());
    grid->removeWidget(messages);
    grid->addWidget(messages, below ? 1 : 0, below ? 0 : 1, 1, below ? 3 : 1);
    line->setDirection(below ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    line->setAlignment(below ? Qt::AlignLeft : Qt::AlignRight);
    line->setSpacing(below ? 0 : kUnitSpace);
}

void frmBeamDiagramsLayout::ShowMessages(bool noStiffness, bool service)
{
    for (const Diagram diagram : {Diagram::Slope, Diagram::Deflection}) {
        lblEIMessage(FirstMessage(diagram)).setVisible(noStiffness);
        lblEIMessage(FirstMessage(diagram) + 1).setVisible(service);
        messages_[std::size_t(diagram)]->setVisible(noStiffness || service);
        PlaceMessages(diagram);
    }
}

void frmBeamDiagramsLayout::PlacePane()
{
    const bool beside = PaneIsBeside();
    splDiagrams->setOrientation(beside ? Qt::Horizontal : Qt::Vertical);
    if (panePlace_->isHidden()) return;
    const int room = beside ? splDiagrams->width() : splDiagrams->height();
    const int pane = int(room * (beside ? kPaneWidth : kPaneHeight));
    splDiagrams->setSizes({room - pane, pane});
}

void frmBeamDiagramsLayout::LayComboLabels()
{
    for (const auto& [index, label] : txtComboLabels.Members()) {
        const screen::ComboBox* list = index == 0 ? cboLoads : cboReactions;
        label->setGeometry(0, 0, std::max(0, list->width() - MainModule::ScrollBarPixels),
                           list->height());
    }
}

// An arrow of the bar and half its slider lie beyond the place where the slider starts.
void frmBeamDiagramsLayout::AlignBar(int pictureWidth)
{
    RecordingPicture sheet(pictureWidth, 1);
    ScaleFrame(sheet, 1, 1, 0);
    const int beyond = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, hsbX) +
                       style()->pixelMetric(QStyle::PM_ScrollBarSliderMin, nullptr, hsbX) / 2;
    const int left = int(ColumnOf(sheet, 0)) - beyond;
    const int right = pictureWidth - int(ColumnOf(sheet, 1)) - beyond;
    barPlace_->layout()->setContentsMargins(std::max(0, left), 0, std::max(0, right), 0);
}

void frmBeamDiagramsLayout::ShowCurvesOf(bool slopeView)
{
    for (const Diagram diagram :
         {Diagram::Shear, Diagram::Moment, Diagram::Slope, Diagram::Deflection}) {
        const bool shown = slopeView == (diagram >= Diagram::Slope);
        curvePlaces_[std::size_t(diagram)]->setVisible(shown);
        CurvePicture(diagram).setVisible(shown);
    }
    for (QWidget* group : {picForceUnits, picMomentUnits}) group->setVisible(!slopeView);
    for (QWidget* group : {picSlopeUnits, picDeflectionUnits}) group->setVisible(slopeView);
    SetFormWidthRows();
}

void frmBeamDiagramsLayout::ShowPane(int pane)
{
    const bool wasOpen = !panePlace_->isHidden();
    for (int i = 0; i < int(panes_.size()); ++i)
        panes_[std::size_t(i)].Frame->setVisible(i == pane);
    panePlace_->setVisible(pane >= 0);
    if (wasOpen == (pane >= 0)) return; // one that follows keeps the size that a hand gave
    PlacePane();
    for (const Diagram diagram : {Diagram::Slope, Diagram::Deflection}) PlaceMessages(diagram);
}

} // namespace forcelab::beams
