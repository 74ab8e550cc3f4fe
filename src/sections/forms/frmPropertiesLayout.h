#pragma once

#include "core/screen/ControlArray.h"
#include "core/screen/Form.h"
#include "core/screen/Layout.h"
#include "core/screen/PictureBox.h"
#include "sections/SectionDrawing.h"
#include "sections/SectionInput.h"
#include "sections/forms/ShapeChooser.h"
#include "sections/forms/SwatchBox.h"

#include <QListWidget>
#include <QPushButton>

#include <vector>

namespace forcelab::sections {

/// The controls of frmProperties and where they stand. What they do is frmProperties'.
class frmPropertiesLayout : public screen::Form {
  protected:
    frmPropertiesLayout();

    /// Shows the inputs and the drawing in place of the choice of shapes.
    void ShowInputs();
    /// Shows the boxes and swatches of a shape, colours the boxes and names them.
    void ShowControlsOf(int shapeIndex);
    /// The moduli of one material, or of two.
    void ShowModuli(bool composite);
    /// The frame of the steel tables in place of the one of the moduli.
    void ShowSteelFrame(bool visible);
    [[nodiscard]] BoxSize SizeOfBoxes() const;
    /// Moves the boxes to their places, and orders the tabs by them.
    void MoveBoxes(const std::vector<BoxPlace>& places);
    void TabStopRoutine();
    /// The first box in the order of the tabs; nothing where none is shown.
    [[nodiscard]] screen::TextBox* FirstBox() const;

    QWidget* fraChooseShape = Make<QWidget>("fraChooseShape");
    ShapeChooser* choShapes = Make<ShapeChooser>("choShapes");
    screen::Label* lblChooseShape = Make<screen::Label>("lblChooseShape");
    QWidget* fraSectionProperties = Make<QWidget>("fraSectionProperties");

    screen::Label* lblShapeTitle = Make<screen::Label>("lblShapeTitle");
    screen::PictureBox* picShapeDefine = Make<screen::PictureBox>("picShapeDefine");
    screen::ControlArray<screen::TextBox> txtShape{picShapeDefine, "txtShape", kBoxes};
    screen::ControlArray<SwatchBox> picShape{this, "picShape", kElements};

    screen::Frame* fraShapeUnits = Make<screen::Frame>("fraShapeUnits");
    screen::OptionArray optShapeUnits{this, "optShapeUnits", 2};
    screen::Label* lblSteelUnit = Make<screen::Label>("lblSteelUnit");
    screen::Frame* fraShapeRotate = Make<screen::Frame>("fraShapeRotate");
    screen::OptionArray optShapeRotate{this, "optShapeRotate", 4};
    screen::ControlArray<QPushButton> cmdShape{this, "cmdShape", 4};
    QPushButton* cmdMohr = Make<QPushButton>("cmdMohr");

    screen::Frame* fraElasticModulus = Make<screen::Frame>("fraElasticModulus");
    screen::OptionArray optElasticModulus{this, "optElasticModulus", 4};
    screen::ControlArray<screen::Label> lblEmod{this, "lblEmod", 3};
    screen::ControlArray<screen::Label> lblMaterial{this, "lblMaterial", {1, 2}};
    screen::ControlArray<screen::TextBox> txtElasticModulus{this, "txtElasticModulus", 3};
    screen::ControlArray<screen::ComboBox> cboElasticModulus{this, "cboElasticModulus", 3};
    screen::CheckBox* chkElasticModulus = Make<screen::CheckBox>("chkElasticModulus");
    screen::Label* lblModulusNote = Make<screen::Label>("lblModulusNote");

    screen::Frame* fraAISCDefine = Make<screen::Frame>("fraAISCDefine");
    screen::OptionArray optAShape{this, "optAShape", kSteelFamilies};
    QListWidget* lstSteelShapes = Make<QListWidget>("lstSteelShapes");
    screen::ComboBox* cboSteelGrade = Make<screen::ComboBox>("cboSteelGrade");
    screen::ComboBox* cboTubeGrade = Make<screen::ComboBox>("cboTubeGrade");
    screen::TextBox* txtSteelGrade = Make<screen::TextBox>("txtSteelGrade");
    screen::ControlArray<screen::Label> lblSteelGrade{this, "lblSteelGrade", 2};

  private:
    void SetCaptions();
    void SetMaterialCaptions();
    void SetSizes();
    void BuildUnits();
    void BuildRotation();
    void BuildModuli();
    void BuildSteel();
    QWidget* BuildColumn();
    QWidget* BuildDrawing();
    void BuildWindow();
    void DescribeControls();
    [[nodiscard]] std::vector<screen::TextBox*> BoxesInOrder() const;
    [[nodiscard]] std::vector<QWidget*> TabOrder() const;

    QWidget* swatches_ = nullptr;
    std::vector<QWidget*> tabOrder_;
};

} // namespace forcelab::sections
