#include "beams/BeamCurves.h"
#include "beams/DiagramRequest.h"
#include "beams/forms/frmBeamDiagrams.h"
#include "core/screen/NarrationBox.h"

#include <QScrollBar>

namespace forcelab::beams {

/// The tutor speaks of both views, so that it needs the curves of both.
std::string frmBeamDiagrams::Tell(const Teller& tell)
{
    BeamCurves curves;
    RecomputeBeam(CurrentBeam, true, CurrentReactions, curves);
    ComputeShearMomentCurves(CurrentBeam, CurrentReactions, ShearMomentCase(CurrentBeam), curves);
    return tell({CurrentBeam, CurrentReactions, curves, ShownDiagramUnits});
}

void frmBeamDiagrams::Explain(int pane, std::string_view caption, const Teller& tell)
{
    if (!HasLoads()) return;
    const std::string text = Tell(tell);
    if (text.empty()) return;
    const ExplainPane& shown = panes_.at(std::size_t(pane));
    shown.Frame->SetCaption(caption);
    screen::ShowNarration(*shown.Text, text);
    told_ = tell;
    paneOpen_ = pane;
    ShowPane(pane);
}

/// An open explanation has the numbers of the diagrams, also after a change.
void frmBeamDiagrams::ExplainAgain()
{
    if (paneOpen_ < 0) return;
    std::string text;
    try {
        if (HasLoads()) text = Tell(told_);
    } catch (const ArithmeticFault&) {
        text.clear(); // the diagrams tell of it
    }
    if (text.empty()) return CloseExplanation();
    QPlainTextEdit* box = panes_.at(std::size_t(paneOpen_)).Text;
    const int line = box->verticalScrollBar()->value();
    screen::ShowNarration(*box, text);
    box->verticalScrollBar()->setValue(line);
}

// The focus goes back to where the mouse is not needed for the next question.
void frmBeamDiagrams::CloseExplanation()
{
    const bool inPane =
        paneOpen_ >= 0 &&
        panes_.at(std::size_t(paneOpen_)).Frame->isAncestorOf(focusWidget() ? focusWidget() : this);
    paneOpen_ = -1;
    told_ = nullptr;
    ShowPane(-1);
    if (inPane) hsbX->setFocus(Qt::OtherFocusReason);
}

void frmBeamDiagrams::cboLoads_Click(int ListIndex)
{
    Explain(kLoadPane, "What the Load Does to the Diagrams",
            [row = ListIndex + 1](const BeamView& view) { return ExplainLoadDiagram(view, row); });
}

// The reactions of the view: with load factors they are others for the slopes.
void frmBeamDiagrams::cboReactions_Click()
{
    Explain(kReactionPane, "Equilibrium",
            [](const BeamView& view) { return ExplainReactions(view, LoadCaseShown()); });
}

void frmBeamDiagrams::mnuExplain_Click()
{
    Explain(kLoadPane, "The Beam from Its Equilibrium to Its Moments", BeamExplanations);
    txtExplainLoad->setFocus(Qt::OtherFocusReason);
}

void frmBeamDiagrams::mnuExplainShear_Click()
{
    if (!CurrentPoint.X) {
        CurrentPoint.XText = PointBarText(hsbX->value(), CurrentBeam, ShownDiagramUnits);
        cmdSpecificPoint_click();
    }
    ExplainPiece(CurrentPoint.X.value_or(0));
    txtExplainShear->setFocus(Qt::OtherFocusReason);
}

void frmBeamDiagrams::ExplainPiece(double x)
{
    Explain(kShearPane, "From Shear to Moment",
            [x](const BeamView& view) { return ExplainShearDiagram(view, x); });
}

void frmBeamDiagrams::cmdDiscontinuity_Click(int Index)
{
    Explain(kShearPane, "Discontinuity Function",
            [Index](const BeamView& view) { return DisplaySingularity(view, Diagram(Index)); });
    txtExplainShear->setFocus(Qt::OtherFocusReason);
}

} // namespace forcelab::beams
