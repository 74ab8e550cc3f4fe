#pragma once

#include "core/screen/ControlArray.h"
#include "core/screen/Form.h"
#include "core/screen/Layout.h"
#include "core/screen/PictureBox.h"
#include "transform/Failure.h"
#include "transform/MohrCalculation.h"

#include <QPushButton>

#include <cstdint>
#include <string>

namespace forcelab::transform {

/// Judges the principal stresses of frmMohr against four theories of failure.
class frmFailure : public screen::Form {
  public:
    frmFailure();

    void Form_Load() override;
    void Form_Activate() override;
    void Form_QueryUnload(bool& cancel, int unloadMode) override;

    /// Writes the state to judge into the hidden labels, from which the form reads it.
    void TakeState(const FailureInput& input);

  private:
    void mnuBack_Click();
    void optFailure_Click(int Index);
    void cmdRefresh_Click(int Index);
    void cboYieldStress_Click(int ListIndex);
    void txtYieldStress_LostFocus();
    void txtYieldStress_KeyPress();
    void picFailure_Paint(Picture& pic);

    [[nodiscard]] FailureEntry ReadEntry() const;
    void Judge();
    void ShowUnit();
    void ShowCompression(bool visible);

    void Build();
    void SetCaptions();
    void BuildTheories();
    QWidget* BuildLimits();
    void BuildWindow();
    void DescribeControls();
    void Connect();

    std::int16_t TheoryIndex = 0;
    std::int16_t StressUnitIndex = 0; ///< 0 psi, 1 ksi, 2 kPa, 3 MPa
    std::int16_t LastStressUnit = 0;
    std::string UnitCaption;

    screen::Label* lblSigma1 = Make<screen::Label>("lblSigma1");
    screen::Label* lblSigma2 = Make<screen::Label>("lblSigma2");
    screen::Label* lblStressUnits = Make<screen::Label>("lblStressUnits");
    screen::Frame* fraFailure = Make<screen::Frame>("fraFailure");
    screen::ControlArray<screen::Label> lblMaterialGroup{this, "lblMaterialGroup", 2};
    screen::OptionArray optFailure{this, "optFailure", 4};
    screen::Frame* fraYieldStress = Make<screen::Frame>("fraYieldStress");
    screen::ControlArray<screen::Label> lblYieldStress{this, "lblYieldStress", 4};
    screen::TextBox* txtYieldStress = Make<screen::TextBox>("txtYieldStress");
    screen::TextBox* txtCompression = Make<screen::TextBox>("txtCompression");
    screen::ComboBox* cboYieldStress = Make<screen::ComboBox>("cboYieldStress");
    screen::ControlArray<QPushButton> cmdRefresh{this, "cmdRefresh", 2};
    screen::PictureBox* picFailure = Make<screen::PictureBox>("picFailure");
};

} // namespace forcelab::transform
