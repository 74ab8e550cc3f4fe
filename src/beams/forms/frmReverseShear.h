#pragma once

#include "core/screen/ControlArray.h"
#include "core/screen/Form.h"
#include "core/screen/PictureBox.h"

#include <QPushButton>

namespace forcelab::beams {

/// Chooses which shear force is plotted as positive: CurrentBeam.ReverseShearSign. Closing it has
/// the shear and moment diagrams painted anew.
class frmReverseShear : public screen::Form {
  public:
    frmReverseShear();

    void Form_Activate() override;
    void Form_QueryUnload(bool& cancel, int unloadMode) override;

  private:
    void optReverseShear_Click(int Index);
    void cmdOK_Click();
    void Build();

    screen::OptionArray optReverseShear{this, "optReverseShear", 2};
    screen::ControlArray<screen::PictureBox> picReverseShear{this, "picReverseShear", 2};
    QPushButton* cmdOK = Make<QPushButton>("cmdOK");
};

} // namespace forcelab::beams
