#include "beams/BeamLabels.h"
#include "beams/DiagramRequest.h"
#include "beams/LoadFactors.h"
#include "beams/forms/frmBeamStuf.h"
#include "core/screen/Forms.h"

#include <QSignalBlocker>

#include <algorithm>

namespace forcelab::beams {

void frmBeamStuf::CloseInputFrames()
{
    for (QWidget* hidden : std::initializer_list<QWidget*>{
             cmdBeamDefineOK, cmdBeamDefineCancel, cmdEnterLoad, cmdCancelLoad, fraBeamLength,
             fraSimpleSupports, fraConcentrated, fraUniform, fraMoment})
        hidden->hide();
    ShowEditButtons(false);
    if (CurrentBeam.LoadCount == 0) fraEditLoads->hide();
    loadType_ = kNoType;
}

// What would change or leave the beam is off while a frame is open.
void frmBeamStuf::MenusOn(bool on)
{
    lblPrompt->hide();
    picToolBarNew->setVisible(on);
    for (QMenu* menu : {mnuStressForm, mnuLoadsMoments}) menu->setEnabled(on);
    mnuSectionProperties->setEnabled(on);
    frameOpen_ = EntryFrameOpen = !on;
    ShowRefreshButton();
}

void frmBeamStuf::OpenLoadFrame(int type)
{
    loadType_ = type;
    ChooseLoadType(type);
    ShowMagnitudeBoxes();
    FrameOpen().Frame->SetCaption(LoadTypeName(type));
    FrameOpen().Frame->show();
}

void frmBeamStuf::ShowMagnitudeBoxes()
{
    const LoadFrame& frame = FrameOpen();
    for (const auto& [index, box] : frame.Magnitude->Members()) {
        const bool visible = CurrentBeam.FactoredLoads == (index > 0);
        box->setVisible(visible);
        (*frame.Caption)(index).setVisible(visible);
    }
}

void frmBeamStuf::ShowBeamLoad()
{
    CloseInputFrames();
    MenusOn(false);
    const LoadText text = beams::ShowBeamLoad(CurrentBeam);
    OpenLoadFrame(text.Type);
    FillFrame(text);
    ShowEditButtons(true);
    ShowEditPanel();
    SetLoadTabOrder();
    FrameOpen().Start->SetFocus();
}

void frmBeamStuf::ShowEditButtons(bool editing)
{
    for (const auto& [index, button] : cmdEditLoad.Members()) button->setVisible(editing);
}

void frmBeamStuf::ChooseLoadType(int type)
{
    for (const auto& [index, button] : optLoadType.Members()) button->SetChosen(index == type);
}

void frmBeamStuf::MakeLabelsAndComboBoxes()
{
    const QSignalBlocker filling(cboLoadBackup);
    cboLoadBackup->Clear();
    for (const std::string& line : MakeLabels(CurrentBeam)) cboLoadBackup->AddItem(line);
    ShowEditPanel();
}

void frmBeamStuf::ShowEditPanel()
{
    fraEditLoads->setVisible(CurrentBeam.LoadCount > 0);
    const QSignalBlocker showing(cboLoadBackup);
    cboLoadBackup->SetListIndex(std::min(CurrentBeam.CurrentLoad, CurrentBeam.LoadCount) - 1);
    cmdEditLoadSpin(0).setEnabled(HasPreviousLoad(CurrentBeam));
    cmdEditLoadSpin(1).setEnabled(HasNextLoad(CurrentBeam));
}

void frmBeamStuf::ShowRefreshButton()
{
    cmdRefreshDiagrams->setVisible(refreshOffered_ && !frameOpen_);
}

// The unit of an entry is the one that its own frame shows.
LoadText frmBeamStuf::ReadFrame() const
{
    const LoadFrame& frame = FrameOpen();
    LoadText text;
    text.Type = loadType_;
    text.Start = frame.Start->Text();
    if (frame.End) text.End = frame.End->Text();
    for (const auto& [index, box] : frame.Magnitude->Members())
        text.Magnitude[std::size_t(index)] = box->Text();
    text.LengthUnit = frame.Length->Chosen();
    text.MagnitudeUnit = frame.Unit->Chosen();
    return text;
}

void frmBeamStuf::FillFrame(const LoadText& text)
{
    const LoadFrame& frame = FrameOpen();
    frame.Start->SetText(text.Start);
    if (frame.End) frame.End->SetText(text.End);
    for (const auto& [index, box] : frame.Magnitude->Members())
        box->SetText(text.Magnitude[std::size_t(index)]);
    frame.Length->Choose(text.LengthUnit);
    frame.Unit->Choose(text.MagnitudeUnit);
}

const frmBeamStuf::LoadFrame& frmBeamStuf::FrameOpen() const
{
    return frames_.at(std::size_t(FamilyOf(loadType_)));
}

void frmBeamStuf::ShowDiagrams()
{
    refreshOffered_ = false;
    ShowRefreshButton();
    screen::Forms::Show("frmBeamDiagrams");
}

void frmBeamStuf::AfterChange(const DiagramRequest& request)
{
    MakeLabelsAndComboBoxes();
    RequestDiagrams(request);
}

void frmBeamStuf::ShowFactorChecks()
{
    const bool factored = CurrentBeam.FactoredLoads;
    mnuUnfactored->setChecked(!factored);
    for (std::size_t set = 0; set < mnuLF.size(); ++set)
        mnuLF[set]->setChecked(factored && CurrentBeam.DeadFactor == kFactorSets[set].Dead &&
                               CurrentBeam.LiveFactor == kFactorSets[set].Live);
}

} // namespace forcelab::beams
