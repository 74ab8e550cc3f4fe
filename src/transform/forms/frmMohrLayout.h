#pragma once

#include "core/screen/ControlArray.h"
#include "core/screen/Form.h"
#include "core/screen/Layout.h"
#include "core/screen/PictureBox.h"
#include "transform/MohrModes.h"

#include <QBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSplitter>

namespace forcelab::transform {

/// The controls of frmMohr and where they stand. What they do is frmMohr's.
class frmMohrLayout : public screen::Form {
  protected:
    frmMohrLayout();

    /// Names everything as the analysis names it and hides what it does not have.
    void SetupLabels(MohrMode mode);
    /// The frame of stresses of a rosette.
    void ShowStressFrame(bool visible);
    void ShowDetails(bool visible);

    screen::Frame* fraStress = Make<screen::Frame>("fraStress");
    screen::ControlArray<screen::Label> lblDirection{this, "lblDirection", 3};
    screen::ControlArray<screen::Label> lblKind{this, "lblKind", 3};
    screen::ControlArray<screen::TextBox> txtStress{this, "txtStress", 3};
    screen::OptionArray optSigX{this, "optSigX", {0, 1, 2, 3, 4, 5}, {{0, 1}, {2, 3}, {4, 5}}};
    screen::OptionArray optStressUnits{
        this, "optStressUnits", {0, 1, 2, 3, 4, 5, 6, 7}, {{0, 1, 2, 3}, {4, 5}, {6, 7}}};
    screen::CheckBox* chkAbsMaxShear = Make<screen::CheckBox>("chkAbsMaxShear");
    screen::CheckBox* chkRosette = Make<screen::CheckBox>("chkRosette");
    screen::ControlArray<QPushButton> cmdMohr{this, "cmdMohr", {0, 1, 3}};
    screen::PictureBox* picSignConvention = Make<screen::PictureBox>("picSignConvention");
    screen::PictureBox* picRosette45 = Make<screen::PictureBox>("picRosette45");
    screen::PictureBox* picRosette60 = Make<screen::PictureBox>("picRosette60");
    screen::PictureBox* picStrainOrient = Make<screen::PictureBox>("picStrainOrient");

    screen::Frame* fraStressFromStrains = Make<screen::Frame>("fraStressFromStrains");
    screen::OptionArray optStressOrStrain{this, "optStressOrStrain", 2};
    screen::TextBox* txtElasticModulus = Make<screen::TextBox>("txtElasticModulus");
    screen::OptionArray optElasticModulus{this, "optElasticModulus", 4};
    screen::ComboBox* cboElasticModulus = Make<screen::ComboBox>("cboElasticModulus");
    screen::TextBox* txtPoisson = Make<screen::TextBox>("txtPoisson");
    screen::OptionArray optUnitsStress{this, "optUnitsStress", 4};
    screen::Frame* fraPrincipalStresses = Make<screen::Frame>("fraPrincipalStresses");
    screen::Frame* fraMaxShearStress = Make<screen::Frame>("fraMaxShearStress");
    screen::ControlArray<screen::Label> lblStressFromStrains{
        this, "lblStressFromStrains", {1, 2, 4}};

    screen::Frame* fraRotater = Make<screen::Frame>("fraRotater");
    screen::Label* lblAngle = Make<screen::Label>("lblAngle");
    screen::TextBox* txtRotater = Make<screen::TextBox>("txtRotater");
    QPushButton* cmdRotater = Make<QPushButton>("cmdRotater");
    QPushButton* cmdRotaterNull = Make<QPushButton>("cmdRotaterNull");
    QScrollBar* vsbRotater = Make<QScrollBar>("vsbRotater");
    screen::PictureBox* picXprime = Make<screen::PictureBox>("picXprime");
    screen::ControlArray<screen::Label> lblRotated{this, "lblRotated", 3};
    screen::ControlArray<screen::Label> lblRotatedValue{this, "lblRotatedValue", 3};

    QSplitter* splPictures = Make<QSplitter>("splPictures");
    QPlainTextEdit* txtDetails = Make<QPlainTextEdit>("txtDetails");
    screen::Label* lblMohr = Make<screen::Label>("lblMohr");
    screen::Label* lblPrincipal = Make<screen::Label>("lblPrincipal");
    screen::Label* lblMaxShear = Make<screen::Label>("lblMaxShear");
    screen::Label* lblRotater = Make<screen::Label>("lblRotater");
    screen::PictureBox* picMohr = Make<screen::PictureBox>("picMohr");
    screen::PictureBox* picPrincipal = Make<screen::PictureBox>("picPrincipal");
    screen::PictureBox* picMaxShear = Make<screen::PictureBox>("picMaxShear");
    screen::PictureBox* picRotater = Make<screen::PictureBox>("picRotater");

  private:
    void SetCaptions();
    void SetSizes();
    void BuildInputs();
    QWidget* BuildInputRows();
    QWidget* BuildUnitRow();
    void BuildStresses();
    void BuildRotation();
    QWidget* BuildPictures();
    QWidget* BuildColumn();
    void BuildWindow();
    void SetTabOrder();
    void SetupRow(int row, const ModeLabels& labels);
    void SetupResults(const ModeLabels& labels);
    void DescribeControls(const ModeLabels& labels);
    void DescribeFixedControls();
    void ArrangePictures();
    void AlignTitles(int width);

    QBoxLayout* pictures_ = nullptr;
    QBoxLayout* elements_ = nullptr;
    QWidget* picturePane_ = nullptr;
    QWidget* maxShear_ = nullptr;
};

} // namespace forcelab::transform
