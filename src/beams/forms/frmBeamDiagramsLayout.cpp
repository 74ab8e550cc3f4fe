#include "beams/forms/frmBeamDiagramsLayout.h"

#include "beams/BeamTexts.h"

#include <QBoxLayout>

#include <vector>

namespace forcelab::beams {

using screen::Across;
using screen::Describe;
using screen::Down;
using screen::Q;

namespace {

constexpr int kLowestLoads = 140; // heights
constexpr int kLowestCurve = 80;
constexpr int kLoadStretch = 6; // heights of the load diagram and of a curve
constexpr int kCurveStretch = 5;

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

} // namespace forcelab::beams
