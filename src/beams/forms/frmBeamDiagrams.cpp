#include "beams/forms/frmBeamDiagrams.h"

#include "beams/BeamLabels.h"
#include "beams/DiagramRequest.h"
#include "beams/DiagramScale.h"
#include "beams/forms/DetailsWidth.h"
#include "core/MainModule.h"
#include "core/screen/Forms.h"
#include "core/screen/Help.h"
#include "core/screen/Services.h"

#include <QSignalBlocker>

#include <algorithm>

namespace forcelab::beams {

using screen::Forms;

namespace {

constexpr int kHelpTopic = 4000;
constexpr int kLeastWidth = 394; // pixels

/// Fills a list with lines, or with its heading where there are none; nothing is chosen.
void Fill(screen::ComboBox& list, const std::vector<std::string>& lines, std::string_view heading)
{
    const QSignalBlocker filling(list);
    list.Clear();
    for (const std::string& line : lines) list.AddItem(line);
    if (lines.empty()) list.AddItem(heading);
    list.SetListIndex(-1);
}

} // namespace

frmBeamDiagrams::frmBeamDiagrams()
{
    BuildMenus();
    Connect();
}

void frmBeamDiagrams::Form_Load()
{
    ShownDiagramUnits = {};
    CurrentPoint = {};
    OnDiagramRequest = [this] { Guard([this] { TakeRequest(); }); };
    OnPointForDiagrams = [this] { ShowPoint(); };
    if (HasBeam()) optLengthUnits.Choose(CurrentBeam.BeamLengthUnit);
    captionsHidden_ = !HasLoads();
    TakeRequest();
    ShowBeam();
    const QRect desk = screen::Services::Current().Screen->WorkArea();
    const int width = std::max(kLeastWidth, desk.width() - kDetailsWidth);
    resize(width, desk.height());
    move(desk.right() + 1 - width, desk.top());
}

void frmBeamDiagrams::Form_Activate()
{
    CloseExplanation();
    SetFormWidthRows();
    TakeRequest();
    KeepStiffness();
    ShowStiffness();
}

void frmBeamDiagrams::Form_QueryUnload(bool& cancel, int unloadMode)
{
    if (unloadMode != 0) return;
    cancel = true;
    mnuBack_Click();
}

void frmBeamDiagrams::Form_Unload()
{
    OnDiagramRequest = nullptr;
    OnPointForDiagrams = nullptr;
}

void frmBeamDiagrams::Form_Resize()
{
    SetFormWidthRows();
}

bool frmBeamDiagrams::HasBeam()
{
    return CurrentBeam.SupportType != kNoBeam && CurrentBeam.BeamLength > 0;
}

bool frmBeamDiagrams::HasLoads()
{
    return HasBeam() && CurrentBeam.LoadCount > 0;
}

void frmBeamDiagrams::mnuBack_Click()
{
    Forms::Show("frmBeamStuf");
    Forms::Hide("frmBeamDiagrams");
}

void frmBeamDiagrams::mnuShearMoment_Click()
{
    SetView(false);
}

void frmBeamDiagrams::mnuSlopeDeflection_Click()
{
    SetView(true);
    if (ShownDiagramUnits.BeamEI != 1 || stiffnessTold_) return;
    stiffnessTold_ = true;
    Show(NoStiffnessNotice());
}

void frmBeamDiagrams::SetView(bool slopeView)
{
    mnuShearMoment->setChecked(!slopeView);
    mnuSlopeDeflection->setChecked(slopeView);
    CurrentPoint.SlopeView = slopeView;
    ShowCurvesOf(slopeView);
    ShowStiffness();
    RefreshPictures(kAllPictures);
    FillLists();
    ExplainAgain();
    ClearPoint(CurrentPoint);
    TellPointChanged();
}

void frmBeamDiagrams::mnuSpecificPoint_Click()
{
    if (CurrentPoint.XText.empty()) {
        CurrentPoint.XText = "0";
        TellPointChanged();
    }
    Forms::Show("frmDetails");
}

void frmBeamDiagrams::mnuShearSignConvention_Click()
{
    Forms::Show("frmReverseShear");
}

void frmBeamDiagrams::mnuHelp_Click()
{
    MainModule::HelpContext = kHelpTopic;
    screen::ShowHelpTopic();
}

void frmBeamDiagrams::TakeRequest()
{
    const DiagramRequest request = TakeDiagramRequest();
    if (request.ListsChanged) captionsHidden_ = request.NoLoads;
    ChooseUnits(request);
    if (request.ShearMomentView && CurrentPoint.SlopeView) SetView(false);
    if (request.Pictures == 0 && !request.ListsChanged) return;
    RefreshPictures(request.Pictures);
    ShowBeam();
}

void frmBeamDiagrams::ChooseUnits(const DiagramRequest& request)
{
    if (request.LengthUnit) optLengthUnits.Choose(*request.LengthUnit);
    if (request.ForceUnit) optForceUnits.Choose(*request.ForceUnit);
    if (request.MomentUnit) optMomentUnits.Choose(*request.MomentUnit);
}

/// What stands beside the pictures follows a change of the beam.
void frmBeamDiagrams::ShowBeam()
{
    for (const Diagram diagram : {Diagram::Shear, Diagram::Moment})
        lblDiagram(int(diagram)).setVisible(!captionsHidden_);
    for (const auto& [index, button] : cmdDiscontinuity.Members()) button->setEnabled(HasLoads());
    for (QAction* item : {mnuExplain, mnuExplainShear}) item->setEnabled(HasLoads());
    for (QAction* item : {mnuSpecificPoint, mnuPrintDiagrams}) item->setEnabled(HasBeam());
    hsbX->setEnabled(HasBeam());
    ShowHint(*picLoadDiagram, "");
    FillLists();
    ShowStiffness();
    SetBarRange();
    RenewPoint();
    ExplainAgain();
}

void frmBeamDiagrams::FillLists()
{
    std::vector<std::string> loads, reactions;
    if (HasLoads()) {
        loads = MakeLabels(CurrentBeam);
        try {
            Recompute();
            reactions =
                FillReactionList(CurrentBeam, CurrentReactions, ShownDiagramUnits, LoadCaseShown());
        } catch (const ArithmeticFault&) {
            reactions.clear(); // the diagrams tell of it
        }
    }
    Fill(*cboLoads, loads, "Loads");
    Fill(*cboReactions, reactions, "Reactions");
}

void frmBeamDiagrams::optLengthUnits_Click(int Index)
{
    DiagramUnits units = ShownDiagramUnits;
    units.Length = Index;
    if (CurrentPoint.X) CurrentPoint.XText = PointText(*CurrentPoint.X, units);
    SetUnit(&DiagramUnits::Length, Index, kAllPictures);
}

void frmBeamDiagrams::SetUnit(int DiagramUnits::*unit, int index, int pictures)
{
    ShownDiagramUnits.*unit = index;
    RefreshPictures(pictures);
    FillLists();
    SetBarRange();
    RenewPoint();
    ExplainAgain();
}

void frmBeamDiagrams::hsbX_ActionTriggered()
{
    movedByHand_ = hsbX->sliderPosition() != hsbX->value();
}

void frmBeamDiagrams::hsbX_Change()
{
    CurrentPoint.XText = PointBarText(hsbX->value(), CurrentBeam, ShownDiagramUnits);
    ClearPoint(CurrentPoint);
    if (std::exchange(movedByHand_, false)) return cmdSpecificPoint_click();
    TellPointChanged();
}

void frmBeamDiagrams::cmdSpecificPoint_click()
{
    CalculatePoint(CurrentPoint, CurrentBeam, ShownDiagramUnits);
    TellPointChanged();
}

/// Keeps the point at its place where its values stand, with the values of now.
void frmBeamDiagrams::RenewPoint()
{
    try {
        if (HasLoads())
            beams::RenewPoint(CurrentPoint, CurrentBeam, ShownDiagramUnits);
        else
            ClearPoint(CurrentPoint);
    } catch (const ArithmeticFault&) {
        ClearPoint(CurrentPoint); // the diagrams tell of it
    }
    TellPointChanged();
}

void frmBeamDiagrams::ShowPoint()
{
    for (const Diagram diagram :
         {Diagram::Shear, Diagram::Moment, Diagram::Slope, Diagram::Deflection})
        CurvePicture(diagram).Refresh();
    if (CurrentPoint.X) {
        const QSignalBlocker following(hsbX);
        hsbX->setValue(PointBarValue(*CurrentPoint.X, CurrentBeam, ShownDiagramUnits));
    }
    lblPoint->SetCaption(PointLine());
}

// The arrows move by a round part of the beam, not by the thousandth that the bar can be dragged.
void frmBeamDiagrams::SetBarRange()
{
    constexpr int kArrowMoves = 100;
    constexpr int kPages = 40;
    const QSignalBlocker following(hsbX);
    const int end = HasBeam() ? PointBarEnd(CurrentBeam, ShownDiagramUnits) : 0;
    int step = 1;
    while (step * 10 * kArrowMoves <= end) step *= 10;
    hsbX->setRange(0, end);
    hsbX->setSingleStep(step);
    hsbX->setPageStep(std::max(1, end / kPages));
}

std::string frmBeamDiagrams::PointLine()
{
    if (!HasBeam()) return "Define a beam to see its diagrams.";
    if (!HasLoads()) return "Add a load to see what it does to the beam.";
    if (!CurrentPoint.X) return "Move the bar or click the beam to read its values at a point.";
    return PointSentence(CurrentPoint, ShownDiagramUnits);
}

} // namespace forcelab::beams
