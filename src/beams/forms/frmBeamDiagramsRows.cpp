#include "beams/DiagramFrame.h"
#include "beams/forms/frmBeamDiagramsLayout.h"
#include "core/MainModule.h"
#include "core/RecordingPicture.h"

#include <QBoxLayout>
#include <QStyle>

#include <algorithm>

// What depends on the width of the form and on what is shown.
namespace forcelab::beams {

namespace {

constexpr int kBesideFrom = 940; // the form's width from which explanations stand at the right
constexpr int kNarrow = 560;     // below, lines of text may need two lines
constexpr double kPaneWidth = 0.36;
constexpr double kPaneHeight = 0.3;

} // namespace

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
        if (!shownUnits_.contains(group)) continue;
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
    shownUnits_ = slopeView ? std::set<QWidget*>{picLengthUnits, picSlopeUnits, picDeflectionUnits}
                            : std::set<QWidget*>{picLengthUnits, picForceUnits, picMomentUnits};
    for (QWidget* group : units_) group->setVisible(shownUnits_.contains(group));
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
