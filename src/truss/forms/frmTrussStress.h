#pragma once

#include "core/screen/FlexGrid.h"
#include "core/screen/Form.h"
#include "core/screen/Layout.h"
#include "truss/MemberStress.h"

#include <QPushButton>

namespace forcelab::truss {

/// The stresses of the members, for areas that are typed into the table.
class frmTrussStress : public screen::Form {
  public:
    frmTrussStress();

    void Form_Activate() override;
    void Form_QueryUnload(bool& cancel, int unloadMode) override;

    /// The truss that was solved, CurrentTruss with these results.
    void TakeResults(const TrussResults& results);

  private:
    void cmdStress_Click(int Index);
    void mnuBack_Click();
    void grdStress_KeyPress(int keyAscii);
    void txtGridEdit_LostFocus();

    [[nodiscard]] std::vector<StressRow> Table() const;
    void ShowTable();
    void StoreArea(std::size_t row, const std::string& area);
    void SameAreaForAll();
    void Build();
    void Connect();

    TrussResults results_;

    screen::Label* lblStress = Make<screen::Label>("lblStress");
    screen::FlexGrid* grdStress = Make<screen::FlexGrid>("grdStress");
    screen::GridEditBox* txtGridEdit = Make<screen::GridEditBox>("txtGridEdit");
    screen::ControlArray<QPushButton> cmdStress{this, "cmdStress", 2};
};

} // namespace forcelab::truss
