#pragma once

#include "beams/AllowableForces.h"
#include "core/screen/ControlArray.h"
#include "core/screen/Form.h"
#include "core/screen/Layout.h"

#include <QPushButton>

#include <array>
#include <optional>

namespace forcelab::beams {

/// The stress limits of the material, or of both materials of a composite section:
/// CurrentLimits. Shown modally.
///
/// A change of the unit converts the numbers: a limit is a strength, and it stays the same.
class frmAllowable : public screen::Form {
  public:
    frmAllowable();

    void Form_Load() override;
    void Form_Activate() override;
    void Form_QueryUnload(bool& cancel, int unloadMode) override;

  private:
    void cboASD_Click(int ListIndex);
    void optSame_Click(int Index);
    void optStressUnits_Click(int Index);
    void cmdASD_Click(int Index);
    void txtASD_Change(int Index);
    void txtASD_LostFocus(int Index);

    [[nodiscard]] LimitsEntry ReadEntry() const;
    void ConvertBoxes(int unit);
    void WriteBox(int box, double psi);
    void ShowStrength();
    void ShowBoxes();
    void ShowUserDefined();
    [[nodiscard]] bool IsSame() const { return optSame(0).Value(); }

    void SetCaptions();
    QWidget* BuildTable();
    void BuildWindow();
    void DescribeControls();
    void Connect();

    bool composite_ = false;
    int unit_ = 0;                                 ///< of the numbers in the boxes
    int material_ = 0;                             ///< A or B: the row that cboASD fills
    std::array<std::optional<double>, 6> written_; ///< psi, until a person changes the number

    screen::Label* lblASD = Make<screen::Label>("lblASD");
    screen::ComboBox* cboASD = Make<screen::ComboBox>("cboASD");
    screen::OptionArray optSame{this, "optSame", 2};
    screen::Frame* fraASD = Make<screen::Frame>("fraASD");
    screen::ControlArray<screen::Label> lblHead{this, "lblHead", 3};
    screen::ControlArray<screen::Label> lblMaterial{this, "lblMaterial", 2};
    screen::ControlArray<screen::TextBox> txtASD{this, "txtASD", 6};
    screen::OptionArray optStressUnits{this, "optStressUnits", 4};
    screen::ControlArray<QPushButton> cmdASD{this, "cmdASD", 2};
};

} // namespace forcelab::beams
