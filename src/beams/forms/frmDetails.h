#pragma once

#include "beams/PointReadout.h"
#include "beams/StressPoint.h"
#include "beams/forms/frmDetailsLayout.h"

#include <QPoint>

#include <optional>
#include <string>

namespace forcelab::beams {

/// Shear and moment, or slope and deflection, at a point of the beam, and with a cross-section the
/// stresses there.
///
/// The readout is CurrentPoint, which frmBeamDiagrams works on too. The stresses belong to
/// `section_`, CurrentSection as it was when the form became active, and to `details_`, what the
/// boxes say; whatever changes them, what is shown follows or goes.
class frmDetails : public frmDetailsLayout {
  public:
    frmDetails();

    void Form_Load() override;
    void Form_Activate() override;
    void Form_QueryUnload(bool& cancel, int unloadMode) override;
    void Form_Unload() override;

  private:
    // Readout.
    void txtSpecificPoint_Change();
    void cmdSpecificPoint_click();
    void ShowPoint();
    void TakeForces();

    // Stresses.
    void cmdVM_click(int Index);
    void optShapeUnits_Click();
    void txtCoord_LostFocus();
    void hsbZ_Change();
    void vsbY_Change();
    void picST_Paint(int Index, Picture& pic);
    void picST_Mouse(const screen::MouseAction& mouse);

    // Menu.
    void mnuBack_Click();
    void mnuAllowable_Click();
    void mnuHelp_Click();

    // Work.
    void SetupDetailsForm();
    void TakeSection();
    void OpenView(int view);
    void CloseView();
    void HideView();
    void OpenMohr();
    void End();
    [[nodiscard]] StressDetails Read() const;
    void Follow();
    void FollowQuietly();
    void TakeUp(StressDetails read);
    void MoveTo(double z, double y);
    [[nodiscard]] std::string KeyText(const StressDetails& details) const;
    void ShowView(const std::string& keyText);
    void WriteCoords();
    void ShowBars();
    void RepaintPictures();

    // Construction.
    void BuildMenus();
    void ConnectPoint();
    void ConnectForces();
    void ConnectCoordinates();
    void ConnectPictures();

    /// Which pictures show (none, normal or shear), and which list of stresses.
    struct View {
        int Pictures = kNoKeyStresses;
        int KeyStresses = kNoKeyStresses;
    };

    sections::CrossSection section_;
    StressDetails details_;
    View wanted_;                   ///< what the buttons opened; hidden while its force is missing
    int pictures_ = kNoKeyStresses; ///< the view whose pictures show
    CoordinateBar barZ_;
    CoordinateBar barY_;                              ///< downward
    std::optional<std::array<std::string, 2>> taken_; ///< the forces that a point gave
    std::optional<std::array<int, 2>> takenUnits_;    ///< and their units
    std::optional<QPoint> beamFormPlace_;
};

} // namespace forcelab::beams
