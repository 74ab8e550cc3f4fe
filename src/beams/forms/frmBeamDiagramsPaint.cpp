#include "beams/DiagramRequest.h"
#include "beams/DiagramScale.h"
#include "beams/LoadDiagram.h"
#include "beams/forms/frmBeamDiagrams.h"
#include "sections/SectionRecord.h"

#include <QTimer>

namespace forcelab::beams {

int frmBeamDiagrams::LoadCaseShown()
{
    return CurrentPoint.SlopeView ? SlopeDeflectionCase(CurrentBeam) : ShearMomentCase(CurrentBeam);
}

std::array<Diagram, 2> frmBeamDiagrams::ShownCurves()
{
    return CurrentPoint.SlopeView ? std::array{Diagram::Slope, Diagram::Deflection}
                                  : std::array{Diagram::Shear, Diagram::Moment};
}

void frmBeamDiagrams::RefreshPictures(int pictures)
{
    stale_ = true;
    failureTold_ = {};
    if (pictures & kLoadPicture) picLoadDiagram->Refresh();
    for (int i = 0; i < int(failureTold_.size()); ++i)
        if (pictures & (kShearPicture << i)) CurvePicture(Diagram(i)).Refresh();
}

/// The load diagram is painted before the curves; where one of them is painted alone after a
/// change, it must not show the beam of before.
void frmBeamDiagrams::Recompute()
{
    if (!stale_) return;
    RecomputeBeam(CurrentBeam, CurrentPoint.SlopeView, CurrentReactions, curves_);
    stale_ = false;
}

void frmBeamDiagrams::picLoadDiagram_Paint(Picture& pic)
{
    pic.Cls();
    areas_ = {};
    stale_ = true;
    if (!HasBeam()) return;
    try {
        Recompute();
        areas_ =
            DrawLoadDiagram(pic, CurrentBeam, CurrentReactions, ShownDiagramUnits, LoadCaseShown());
    } catch (const ArithmeticFault&) {
        pic.Cls(); // the curves tell of it
    }
}

void frmBeamDiagrams::picCurve_Paint(Diagram diagram, Picture& pic)
{
    const auto kind = CurveKind(int(diagram));
    CurveFrame& frame = frames_[std::size_t(diagram)];
    pic.Cls();
    frame = {};
    if (!HasBeam()) return;
    if (CurrentPoint.SlopeView) KeepStiffness();
    try {
        Recompute();
        frame =
            DrawCurveDiagram(pic, kind, CurrentBeam, curves_, ShownDiagramUnits, CurrentPoint.X);
    } catch (const ArithmeticFault&) {
        pic.Cls();
        TellFailure(kind);
    }
}

// A box inside a painting would paint the window again.
void frmBeamDiagrams::TellFailure(CurveKind kind)
{
    if (std::exchange(failureTold_.at(std::size_t(kind)), true)) return;
    QTimer::singleShot(0, this, [this, kind] { Show(PlotFailure(kind)); });
}

/// Reads BeamEI of the section of now. A change that a painting finds is shown after it.
void frmBeamDiagrams::KeepStiffness()
{
    const double stiffness = StiffnessOf(sections::CurrentSection).BeamEI;
    if (stiffness == ShownDiagramUnits.BeamEI) return;
    ShownDiagramUnits.BeamEI = stiffness;
    if (std::exchange(stiffnessChanged_, true)) return;
    QTimer::singleShot(0, this, [this] {
        stiffnessChanged_ = false;
        Guard([this] {
            ShowStiffness();
            RenewPoint();
            ExplainAgain();
        });
    });
}

void frmBeamDiagrams::ShowStiffness()
{
    const Stiffness stiffness = StiffnessOf(sections::CurrentSection);
    ShownDiagramUnits.BeamEI = stiffness.BeamEI;
    ShowMessages(stiffness.EIMissing, CurrentBeam.FactoredLoads);
}

} // namespace forcelab::beams
