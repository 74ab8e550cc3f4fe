#pragma once

#include "sections/KeptShapes.h"
#include "sections/forms/SteelFiles.h"
#include "sections/forms/frmPropertiesLayout.h"

#include <array>
#include <functional>
#include <string>

namespace forcelab::sections {

/// Where a cross-section is chosen, dimensioned and computed.
///
/// Works on CurrentSection; a successful Compute replaces it and CurrentEntry together. The
/// entries of each shape are kept while another shape is current.
class frmProperties : public frmPropertiesLayout {
  public:
    frmProperties();

    void Form_Load() override;
    void Form_QueryUnload(bool& cancel, int unloadMode) override;
    void Form_Unload() override;

    /// Makes the shape with the index menuIndex + 1 current.
    void SelectShape(int menuIndex);
    /// Yield and ultimate stress of the chosen grade of steel, psi; 0 before one is chosen.
    [[nodiscard]] std::array<double, 2> SteelStressChosen() const { return SteelStress; }

  private:
    // Menu.
    void mnuBack_Click();
    void mnuHelpProperties_Click();
    void mnuShape_Click(int shapeIndex);
    void mnuAISC_Click(int Index);

    // Shape.
    void cmdShape_click(int Index);
    void cmdMohr_Click();
    void optShapeUnits_Click();
    void optShapeRotate_Click();
    void txtShape_Change();
    void picShapeDefine_Paint(Picture& pic);
    void Rotate();
    void Compute();
    void End();
    void ConvertUnits();

    // Materials.
    void optElasticModulus_Click(int Index);
    void cboElasticModulus_Click(int Index, int ListIndex);
    void chkElasticModulus_Click();
    void txtElasticModulus_Change();
    void picShape_MouseUp(int Index, int Button);
    void PaintSwatches(const Swatches& swatches);
    void ShowModulusNote();

    // Steel.
    void OpenSteelFiles();
    [[nodiscard]] bool AskForSteelFolder();
    void optAShape_Click(int Index);
    void ListSteelShapes(int family);
    bool SelectRememberedRow(int family);
    void SelectRememberedGrade(int family);
    void lstSteelShapes_click();
    void cboGrade_Click(int ListIndex);
    void CheckSteelGrade(int family);
    void ShowGrade(int family);
    [[nodiscard]] screen::ComboBox* GradesShown(int family) const;
    [[nodiscard]] int FamilyShown() const;
    [[nodiscard]] const SteelShape* SteelShapeChosen() const;

    // Work.
    [[nodiscard]] SectionEntry ReadEntry() const;
    void ShowEntry(const SectionEntry& entry);
    void WriteBoxes(const SectionEntry& entry);
    void CollectKeep();
    void HideResults();
    void FocusFirst();
    /// Sets controls in code without their handlers.
    void Quietly(const std::function<void()>& work);

    // Construction.
    void BuildMenus();
    void AddShapes(QMenu* menu, int first, int last);
    void ConnectShape();
    void ConnectMaterials();
    void ConnectSteel();

    std::array<QAction*, kShapes + 1> shapes_{}; ///< menu items, by shape
    int shape_ = kNoShape;                       ///< the shape whose entries the controls show
    bool quiet_ = false;
    bool collected_ = false; ///< the shape's entries are saved already
    int modulusUnit_ = 0;
    std::array<KeptShape, kShapes + 1> kept_;
    Swatches assigned_ = UnassignedSwatches(); ///< materials of the current shape's elements

    SteelTables steel_;
    std::array<int, kSteelFamilies> SteelRowChosen{};   ///< record, 0: none
    std::array<int, kSteelFamilies> SteelGradeChosen{}; ///< index + 1, 0: none
    std::array<bool, kSteelFamilies> familyComputed_{}; ///< before the family was left
    int SteelRecordNumber = 0;
    int SteelFamilyShown = kSteelW;
    std::array<double, 2> SteelStress{};
    bool SteelFilesMissing = false;
};

} // namespace forcelab::sections
