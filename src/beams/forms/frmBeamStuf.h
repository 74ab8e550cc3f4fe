#pragma once

#include "beams/BeamEntry.h"
#include "beams/forms/frmBeamStufLayout.h"

namespace forcelab::beams {

struct DiagramRequest;

/// Where a beam problem begins: type, length and supports of the beam, and up to forty loads.
///
/// An editor over CurrentBeam; frmBeamDiagrams is told of every change by a DiagramRequest.
class frmBeamStuf : public frmBeamStufLayout {
  public:
    frmBeamStuf();

    void Form_Load() override;
    void Form_Activate() override;
    void Form_QueryUnload(bool& cancel, int unloadMode) override;
    void Form_Unload() override;

  private:
    // Beam.
    void cmdBeamType_Click(int Index);
    void cmdBeamDefineOK_Click();
    void cmdBeamDefineCancel_Click();
    void optBeamLength_Click(int Index);

    // Loads.
    void optLoadType_Click(int Index);
    void cmdEnterLoad_Click();
    void cmdCancelLoad_click();
    void cmdEditLoad_Click(int Index);
    void cmdEditLoadSpin_Click(int Index);
    void cboLoadBackup_Click(int ListIndex);
    void mnuUndoLoadEntry_Click();
    void mnuRedoLoadEntry_Click();

    // Load factors.
    void mnuLF_Click(int Index);
    void mnuLoadFac_Click(int Index);

    // Other forms.
    void mnuBack_Click();
    void mnuNew_Click();
    void mnuSectionProperties_Click();
    void mnuStressForm_Click();
    void mnuStress_Click();
    void mnuAllowable_Click();
    void mnuMohr_Click();
    void cmdRefreshDiagrams_Click();

    // Frames.
    void CloseInputFrames();
    void MenusOn(bool on);
    void OpenLoadFrame(int type);
    void ShowMagnitudeBoxes();
    void ShowBeamLoad();
    void ShowEditButtons(bool editing);
    void ChooseLoadType(int type);
    void MakeLabelsAndComboBoxes();
    void ShowEditPanel();
    void ShowRefreshButton();

    // Work.
    [[nodiscard]] LoadText ReadFrame() const;
    void FillFrame(const LoadText& text);
    [[nodiscard]] const LoadFrame& FrameOpen() const;
    void ShowDiagrams();
    void GoToDiagrams();
    void AfterChange(const DiagramRequest& request);
    [[nodiscard]] bool MayChangeFactors(bool factored);
    void AfterFactors(bool deleted);
    void ShowFactorChecks();

    // Construction.
    void BuildMenus();
    void BuildLoadsMenu();
    void BuildFactorItems(QMenu* loads);
    void BuildStressMenu();
    void Connect();
    void ConnectButtons();
    void ConnectKeys();
    void ConnectFrameKeys(const LoadFrame& frame);

    static constexpr int kNoType = -1;
    int loadType_ = kNoType;      ///< of the frame that is open
    bool frameOpen_ = false;      ///< a definition or a load frame
    bool refreshOffered_ = false; ///< cmdRefreshDiagrams shows while no frame is open

    QMenu* mnuLoadsMoments = nullptr;
    QMenu* mnuStressForm = nullptr;
    QAction* mnuStress = nullptr;
    QAction* mnuSectionProperties = nullptr;
    QAction* mnuUnfactored = nullptr;
    std::array<QAction*, 3> mnuLF{};
};

} // namespace forcelab::beams
