#pragma once

#include "beams/CurveDiagram.h"
#include "beams/HotSpots.h"
#include "beams/PointReadout.h"
#include "beams/forms/frmBeamDiagramsLayout.h"

#include <functional>

namespace forcelab::screen {
class Printer;
}

namespace forcelab::beams {

struct DiagramRequest;

/// The load diagram with shear and moment, or with slope and deflection, of CurrentBeam.
///
/// Takes every DiagramRequest, shares CurrentPoint with frmDetails, and owns the curves, which it
/// computes anew at each painting of the load diagram.
class frmBeamDiagrams : public frmBeamDiagramsLayout {
  public:
    frmBeamDiagrams();

    void Form_Load() override;
    void Form_Activate() override;
    void Form_QueryUnload(bool& cancel, int unloadMode) override;
    void Form_Unload() override;
    void Form_Resize() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    using Teller = std::function<std::string(const BeamView&)>;

    // Menu.
    void mnuBack_Click();
    void mnuShearMoment_Click();
    void mnuSlopeDeflection_Click();
    void mnuExplain_Click();
    void mnuExplainShear_Click();
    void mnuSpecificPoint_Click();
    void mnuPrintDiagrams_Click();
    void mnuShearSignConvention_Click();
    void mnuHelp_Click();

    // Units.
    void optLengthUnits_Click(int Index);
    void SetUnit(int DiagramUnits::*unit, int index, int pictures);

    // The point of the readout.
    void hsbX_ActionTriggered();
    void hsbX_Change();
    void cmdSpecificPoint_click();
    void RenewPoint();
    void ShowPoint();
    void SetBarRange();
    [[nodiscard]] static std::string PointLine();

    // Pictures.
    void picLoadDiagram_Paint(Picture& pic);
    void picCurve_Paint(Diagram diagram, Picture& pic);
    void RefreshPictures(int pictures);
    void Recompute();
    void ShowStiffness();
    void KeepStiffness();
    void TellFailure(CurveKind kind);

    // Mouse.
    void picLoadDiagram_MouseMove(const screen::MouseAction& mouse);
    void picLoadDiagram_MouseUp(const screen::MouseAction& mouse);
    void picLoadDiagram_DblClick(const screen::MouseAction& mouse);
    void picShearDiagram_MouseMove(const screen::MouseAction& mouse);
    void picShearDiagram_MouseUp(const screen::MouseAction& mouse);
    void imgReverseShear_DblClick(const screen::MouseAction& mouse);
    void ClickOnBeam(double x);
    void ClickOnLoad(int button);
    void EditLoad(int row);
    [[nodiscard]] bool IsOverSignSketch(const screen::MouseAction& mouse) const;
    [[nodiscard]] std::string ShearHint(const screen::MouseAction& mouse) const;
    void ShowHint(screen::PictureBox& picture, std::string_view hint);

    // The tutor.
    void cboLoads_Click(int ListIndex);
    void cboReactions_Click();
    void cmdDiscontinuity_Click(int Index);
    void Explain(int pane, std::string_view caption, const Teller& tell);
    void ExplainPiece(double x);
    void ExplainAgain();
    void CloseExplanation();
    [[nodiscard]] static std::string Tell(const Teller& tell);

    // Printing.
    void PrintPage(screen::Printer& printer, const std::string& title);
    void PrintDiagrams(screen::Printer& printer, double top);
    [[nodiscard]] double PrintTexts(screen::Printer& printer, const std::string& title);
    [[nodiscard]] std::vector<std::string> PrintedNotes() const;

    // Work.
    void TakeRequest();
    void ChooseUnits(const DiagramRequest& request);
    void ShowBeam();
    void FillLists();
    void SetView(bool slopeView);
    [[nodiscard]] static int LoadCaseShown();
    [[nodiscard]] static std::array<Diagram, 2> ShownCurves();
    [[nodiscard]] static bool HasBeam();
    [[nodiscard]] static bool HasLoads();

    // Construction.
    void BuildMenus();
    void Connect();
    void ConnectUnits();
    void ConnectPictures();

    BeamCurves curves_;
    bool stale_ = true; ///< the beam may have changed since the curves were computed
    LoadDiagramAreas areas_;
    std::array<CurveFrame, 4> frames_;  ///< by Diagram
    std::array<bool, 4> failureTold_{}; ///< once a change, not at every painting
    Hover hover_;                       ///< HoverCode and HoverRow of the load diagram
    bool movedByHand_ = false;          ///< the next change of hsbX
    bool stiffnessChanged_ = false;     ///< seen while painting, shown afterwards
    bool captionsHidden_ = true;        ///< of shear and moment: there are no loads
    int paneOpen_ = -1;
    Teller told_;
    // EI = 1 is told once for each stay of the form: New begins another problem, whose student may
    // not have seen the message.
    bool stiffnessTold_ = false;

    QAction* mnuShearMoment = nullptr;
    QAction* mnuSlopeDeflection = nullptr;
    QAction* mnuExplainShear = nullptr;
    QAction* mnuExplain = nullptr;
    QAction* mnuSpecificPoint = nullptr;
    QAction* mnuPrintDiagrams = nullptr;
};

} // namespace forcelab::beams
