#pragma once

#include "transform/MohrCalculation.h"
#include "transform/forms/frmMohrLayout.h"

#include <string>
#include <vector>

namespace forcelab::screen {
class Printer;
}

namespace forcelab::transform {

/// Mohr's circle for plane stress, plane strain, strain rosettes and moments of inertia.
///
/// Works on CurrentStress. `shown_` is the entry from which the pictures and results were made;
/// a handler replaces both together, or neither.
class frmMohr : public frmMohrLayout {
  public:
    frmMohr();

    void Form_Load() override;
    void Form_Activate() override;
    void Form_QueryUnload(bool& cancel, int unloadMode) override;

    /// True after Details: the state that the caller handed over was worked with.
    [[nodiscard]] bool CallerLinkUsed() const { return callerLinkUsed_; }

  private:
    // Menu.
    void mnuBack_Click();
    void mnuNew_Click();
    void mnuAnalysis_Click(MohrMode mode);
    void mnuFailure_Click();
    void mnuPrintDiagrams_Click();
    void mnuHelp_Click();

    // Input.
    void cmdMohr_Click(int Index);
    void txtStress_KeyPress(int Index);
    void chkRosette_Click();
    void optElasticModulus_Click(int Index);
    void cboElasticModulus_Click(int ListIndex);

    // Rotation.
    void cmdRotater_click();
    void cmdRotaterNull_Click();
    void vsbRotater_Change();
    void picXprime_MouseUp(const screen::MouseAction& mouse);

    // Pictures.
    void picMohr_Paint(Picture& pic);
    void picPrincipal_Paint(Picture& pic);
    void picMaxShear_Paint(Picture& pic);
    void picRotater_Paint(Picture& pic);
    void picXprime_Paint(Picture& pic);

    // Work.
    void ResetMohrMenu(MohrMode mode);
    void MohrSetupOptions(MohrMode mode);
    void Clear();
    void ForgetResults();
    void ToggleDetails();
    void FillFrom(const MohrEntry& entry);
    void WriteBack(const MohrEntry& entry);
    [[nodiscard]] MohrEntry ReadEntry() const;
    [[nodiscard]] StrainToStress ReadStresses() const;
    [[nodiscard]] bool NothingToDraw() const;
    void TakeUp(StressState state, const MohrEntry& entry);
    void ShowAgain();
    void TurnTo(double degrees, const std::string& shownAs);
    void RepaintPictures();

    // The printed page.
    void PrintPage(screen::Printer& printer);
    double PrintTexts(screen::Printer& printer);
    void PrintSketches(screen::Printer& printer);
    void PrintPictures(screen::Printer& printer, double top);
    [[nodiscard]] std::vector<std::string> PrintedInputs() const;
    [[nodiscard]] std::vector<std::string> PrintedResults() const;

    // Construction.
    void BuildMenus();
    void BuildAnalysisMenu();
    void AddAnalysis(QMenu* menu, MohrMode mode, std::string_view caption);
    void ConnectInputs();
    void ConnectStresses();
    void ConnectRotation();
    void ConnectPictures();

    MohrMode mode_ = MohrMode::PlaneStress;
    MohrEntry shown_;
    int modulusUnit_ = 0;
    bool callerLinkUsed_ = false;
    std::array<QAction*, 5> analyses_{};
    QAction* mnuFailure = nullptr;
};

} // namespace forcelab::transform
