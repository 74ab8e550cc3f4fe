#include "beams/forms/frmBeamStuf.h"

#include "beams/BeamLabels.h"
#include "beams/DiagramRequest.h"
#include "beams/LoadFactors.h"
#include "core/MainModule.h"
#include "core/screen/Forms.h"
#include "core/screen/Services.h"
#include "core/screen/UnloadModuleForms.h"
#include "sections/SectionRecord.h"
#include "transform/StressState.h"

namespace forcelab::beams {

using screen::Forms;

namespace {

constexpr const char* kDiagrams = "frmBeamDiagrams";

/// Works on a copy, so that a number that is too large leaves the beam as it was.
template <class Work>
auto Change(const Work& work)
{
    BeamRecord changed = CurrentBeam;
    auto outcome = work(changed);
    RequireFinite(changed);
    CurrentBeam = std::move(changed);
    return outcome;
}

bool HoldsLoad(int row)
{
    return row >= 1 && row <= CurrentBeam.LoadCount;
}

} // namespace

frmBeamStuf::frmBeamStuf()
{
    BuildMenus();
    Connect();
}

void frmBeamStuf::Form_Load()
{
    StartLoads(CurrentBeam);
    for (auto* lengths : {&optBeamLength, &optConcentratedX, &optUniformX, &optMomentX})
        lengths->Choose(0);
    for (auto* units : {&optForceUnits, &optUniformLoadUnits, &optMomentUnits}) units->Choose(0);
    CloseInputFrames();
    MenusOn(false);
    frameOpen_ = EntryFrameOpen = false;
    lblPrompt->show();
    MakeLabelsAndComboBoxes();
    ShowFactorChecks();
    MainModule::MohrInputKind = 1;
    MainModule::FirstSectionUse = true;
    Forms::Load(kDiagrams);
    RequestDiagrams(RequestAfterChange(CurrentBeam));
    move(screen::Services::Current().Screen->WorkArea().topLeft());
    resize(minimumSizeHint());
}

void frmBeamStuf::Form_Activate()
{
    mnuStressForm_Click();
    if (EditWanted && HoldsLoad(CurrentBeam.CurrentLoad)) ShowBeamLoad();
    EditWanted = false;
    // What returns from the diagrams can go there again.
    if (!picToolBarNew->isHidden() && !Forms::IsVisible(kDiagrams)) refreshOffered_ = true;
    ShowRefreshButton();
}

void frmBeamStuf::Form_QueryUnload(bool& cancel, int unloadMode)
{
    if (unloadMode != 0) return;
    cancel = true;
    mnuBack_Click();
}

void frmBeamStuf::Form_Unload()
{
    PendingDiagrams = {};
    EntryFrameOpen = EditWanted = false;
}

void frmBeamStuf::cmdBeamType_Click(int Index)
{
    CurrentBeam.SupportType = Index + 1;
    CloseInputFrames();
    ChooseLoadType(kNoType);
    MenusOn(false);
    for (const auto& [index, button] : cmdBeamType.Members()) button->SetChosen(index == Index);
    fraBeamLength->show();
    fraSimpleSupports->setVisible(CurrentBeam.SupportType == kTwoSupports);
    cmdBeamDefineOK->show();
    cmdBeamDefineCancel->show();
    SetDefinitionTabOrder();
    txtBeamLength->SetFocus();
}

void frmBeamStuf::cmdBeamDefineOK_Click()
{
    DefinitionText text{txtBeamLength->Text(), txtLeftSimple->Text(), txtRightSimple->Text()};
    const Definition outcome =
        Change([&](BeamRecord& beam) { return DefineBeam(beam, text, optBeamLength.Chosen()); });
    txtBeamLength->SetText(text.Length);
    txtLeftSimple->SetText(text.Left);
    txtRightSimple->SetText(text.Right);
    if (outcome.Refused) return Show(*outcome.Refused);
    CloseInputFrames();
    if (outcome.Notice) Show(*outcome.Notice);
    AfterChange(RequestAfterDefinition(CurrentBeam));
    MenusOn(true);
    ShowDiagrams();
}

void frmBeamStuf::cmdBeamDefineCancel_Click()
{
    CloseInputFrames();
    MenusOn(true);
}

// The frames that open next start in the unit of the beam.
void frmBeamStuf::optBeamLength_Click(int Index)
{
    for (auto* lengths : {&optConcentratedX, &optUniformX, &optMomentX}) lengths->Choose(Index);
}

void frmBeamStuf::optLoadType_Click(int Index)
{
    CloseInputFrames();
    MenusOn(false);
    OpenLoadFrame(Index);
    cmdEnterLoad->show();
    cmdCancelLoad->show();
    SetLoadTabOrder();
    FrameOpen().Start->SetFocus();
}

void frmBeamStuf::cmdEnterLoad_Click()
{
    const LoadText text = ReadFrame();
    if (const auto refusal = Change([&](BeamRecord& beam) { return EnterLoad(beam, text); })) {
        Show(*refusal);
        return cmdCancelLoad_click();
    }
    cmdCancelLoad_click();
    AfterChange(RequestAfterEntry(CurrentBeam, CurrentBeam.LoadCount));
    ShowDiagrams();
}

void frmBeamStuf::cmdCancelLoad_click()
{
    CloseInputFrames();
    ChooseLoadType(kNoType);
    MenusOn(true);
    ShowEditPanel();
}

void frmBeamStuf::cmdEditLoad_Click(int Index)
{
    if (Index == 2) return cmdCancelLoad_click();
    DiagramRequest request;
    if (Index == 0) {
        const LoadText text = ReadFrame();
        if (const auto refusal = CheckLoadLocation(CurrentBeam, text)) {
            Show(*refusal);
            return FrameOpen().Start->SetFocus();
        }
        Change([&](BeamRecord& beam) { return EditLoad(beam, text), 0; });
        request = RequestAfterEntry(CurrentBeam, CurrentBeam.CurrentLoad);
    } else {
        DeleteCurrentLoad(CurrentBeam);
        request = RequestAfterChange(CurrentBeam);
    }
    cmdCancelLoad_click();
    AfterChange(request);
}

void frmBeamStuf::cmdEditLoadSpin_Click(int Index)
{
    if (MoveCurrentLoad(CurrentBeam, Index)) ShowBeamLoad();
}

void frmBeamStuf::cboLoadBackup_Click(int ListIndex)
{
    if (!HoldsLoad(ListIndex + 1)) return;
    CurrentBeam.CurrentLoad = ListIndex + 1;
    ShowBeamLoad();
}

void frmBeamStuf::mnuUndoLoadEntry_Click()
{
    if (!UndoLoad(CurrentBeam)) return;
    AfterChange(RequestAfterChange(CurrentBeam));
    ShowDiagrams();
}

void frmBeamStuf::mnuRedoLoadEntry_Click()
{
    if (RedoLoad(CurrentBeam)) AfterChange(RequestAfterChange(CurrentBeam));
}

void frmBeamStuf::mnuLF_Click(int Index)
{
    if (MayChangeFactors(true))
        AfterFactors(Change([&](BeamRecord& beam) { return UseLoadFactors(beam, Index); }));
    ShowFactorChecks();
}

void frmBeamStuf::mnuLoadFac_Click(int Index)
{
    if (Index == 0 && MayChangeFactors(false)) AfterFactors(UseUnfactoredLoads(CurrentBeam));
    ShowFactorChecks();
}

bool frmBeamStuf::MayChangeFactors(bool factored)
{
    const auto question = AskLoadFactors(CurrentBeam, factored);
    return !question ||
           screen::MsgBox(question->Text, question->Icon, question->Title) == kAnswerOk;
}

void frmBeamStuf::AfterFactors(bool deleted)
{
    if (deleted)
        for (const LoadFrame& frame : frames_) (*frame.Magnitude)(0).clear();
    AfterChange(RequestAfterChange(CurrentBeam));
}

void frmBeamStuf::mnuBack_Click()
{
    if (CurrentBeam.SupportType != kNoBeam) refreshOffered_ = true;
    ShowRefreshButton();
    Forms::Show("frmMainMenu");
    Forms::Hide("frmBeamStuf");
    Forms::Hide(kDiagrams);
}

void frmBeamStuf::mnuNew_Click()
{
    constexpr int kBeams = 4000;
    MainModule::CurrentModule = kBeams;
    CurrentBeam.ReverseShearSign = false;
    Forms::Unload("frmReverseShear");
    screen::UnloadModuleForms();
}

void frmBeamStuf::mnuSectionProperties_Click()
{
    MainModule::SectionCaller = 1;
    Forms::Show("frmProperties");
}

void frmBeamStuf::mnuStressForm_Click()
{
    mnuStress->setEnabled(sections::CurrentSection.ShapeIndex > 0);
}

void frmBeamStuf::mnuStress_Click()
{
    MainModule::MohrInputKind = 1;
    Forms::Show("frmDetails");
}

void frmBeamStuf::mnuAllowable_Click()
{
    MainModule::SectionCaller = 1;
    Forms::ShowModal("frmAllowable");
}

void frmBeamStuf::mnuMohr_Click()
{
    MainModule::MohrCaller = 4000;
    MainModule::MohrInputKind = 1;
    transform::CurrentHandOver = {};
    transform::CurrentHandOver.Pending = true;
    Forms::Show("frmMohr");
}

void frmBeamStuf::cmdRefreshDiagrams_Click()
{
    RequestDiagrams(RequestAfterChange(CurrentBeam));
    ShowDiagrams();
}

} // namespace forcelab::beams
