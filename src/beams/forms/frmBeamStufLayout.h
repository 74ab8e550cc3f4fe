#pragma once

#include "beams/BeamRecord.h"
#include "beams/forms/frmBeamStufButton.h"
#include "core/screen/ControlArray.h"
#include "core/screen/Form.h"
#include "core/screen/Layout.h"

#include <QPushButton>

namespace forcelab::beams {

/// The controls of frmBeamStuf and where they stand. What they do is frmBeamStuf's.
class frmBeamStufLayout : public screen::Form {
  protected:
    frmBeamStufLayout();

    /// The boxes and options of one load frame. A point or moment has its location in Start.
    struct LoadFrame {
        screen::Frame* Frame;
        screen::TextBox* Start;
        screen::TextBox* End; ///< of a uniform load; nothing for the others
        screen::ControlArray<screen::TextBox>* Magnitude;
        screen::ControlArray<screen::Label>* Caption; ///< of the magnitudes
        screen::OptionArray* Length;
        screen::OptionArray* Unit;
    };
    static std::string_view LoadTypeName(int type);
    void SetDefinitionTabOrder();
    void SetLoadTabOrder();

    screen::Frame* fraBeamType = Make<screen::Frame>("fraBeamType");
    screen::ControlArray<PictureButton> cmdBeamType{this, "cmdBeamType", 3};
    screen::Frame* picToolBarNew = Make<screen::Frame>("picToolBarNew");
    screen::ControlArray<PictureButton> optLoadType{this, "optLoadType", kLoadKinds};

    screen::Frame* fraBeamLength = Make<screen::Frame>("fraBeamLength");
    screen::TextBox* txtBeamLength = Make<screen::TextBox>("txtBeamLength");
    screen::OptionArray optBeamLength{this, "optBeamLength", 4};
    screen::Frame* fraSimpleSupports = Make<screen::Frame>("fraSimpleSupports");
    screen::TextBox* txtLeftSimple = Make<screen::TextBox>("txtLeftSimple");
    screen::TextBox* txtRightSimple = Make<screen::TextBox>("txtRightSimple");
    QPushButton* cmdBeamDefineOK = Make<QPushButton>("cmdBeamDefineOK");
    QPushButton* cmdBeamDefineCancel = Make<QPushButton>("cmdBeamDefineCancel");

    screen::Frame* fraConcentrated = Make<screen::Frame>("fraConcentrated");
    screen::TextBox* txtConcentratedX = Make<screen::TextBox>("txtConcentratedX");
    screen::OptionArray optConcentratedX{this, "optConcentratedX", 4};
    screen::ControlArray<screen::Label> lblConcentrated{this, "lblConcentrated", 3};
    screen::ControlArray<screen::TextBox> txtConcentrated{this, "txtConcentrated", 3};
    screen::OptionArray optForceUnits{this, "optForceUnits", 4};

    screen::Frame* fraUniform = Make<screen::Frame>("fraUniform");
    screen::TextBox* txtStartUniform = Make<screen::TextBox>("txtStartUniform");
    screen::TextBox* txtEndUniform = Make<screen::TextBox>("txtEndUniform");
    screen::OptionArray optUniformX{this, "optUniformX", 4};
    screen::ControlArray<screen::Label> lblUniform{this, "lblUniform", 3};
    screen::ControlArray<screen::TextBox> txtUniform{this, "txtUniform", 3};
    screen::OptionArray optUniformLoadUnits{this, "optUniformLoadUnits", 4};

    screen::Frame* fraMoment = Make<screen::Frame>("fraMoment");
    screen::TextBox* txtMomentX = Make<screen::TextBox>("txtMomentX");
    screen::OptionArray optMomentX{this, "optMomentX", 4};
    screen::ControlArray<screen::Label> lblMoment{this, "lblMoment", 3};
    screen::ControlArray<screen::TextBox> txtMoment{this, "txtMoment", 3};
    screen::OptionArray optMomentUnits{this, "optMomentUnits", 4};

    QPushButton* cmdEnterLoad = Make<QPushButton>("cmdEnterLoad");
    QPushButton* cmdCancelLoad = Make<QPushButton>("cmdCancelLoad");
    screen::ControlArray<QPushButton> cmdEditLoad{this, "cmdEditLoad", 3};

    screen::Frame* fraEditLoads = Make<screen::Frame>("fraEditLoads");
    screen::ComboBox* cboLoadBackup = Make<screen::ComboBox>("cboLoadBackup");
    screen::ControlArray<QPushButton> cmdEditLoadSpin{this, "cmdEditLoadSpin", 2};
    QPushButton* cmdRefreshDiagrams = Make<QPushButton>("cmdRefreshDiagrams");
    screen::Label* lblPrompt = Make<screen::Label>("lblPrompt"); ///< before a type is chosen

    /// By LoadFamily: moment, point, uniform.
    std::array<LoadFrame, 3> frames_{
        {{fraMoment, txtMomentX, nullptr, &txtMoment, &lblMoment, &optMomentX, &optMomentUnits},
         {fraConcentrated, txtConcentratedX, nullptr, &txtConcentrated, &lblConcentrated,
          &optConcentratedX, &optForceUnits},
         {fraUniform, txtStartUniform, txtEndUniform, &txtUniform, &lblUniform, &optUniformX,
          &optUniformLoadUnits}}};

  private:
    void SetCaptions();
    void SetButtonCaptions();
    void SetPictures();
    void SetSizes();
    void BuildDefinition();
    void BuildLoadFrame(const LoadFrame& frame);
    void BuildEditPanel();
    QWidget* BuildPlace();
    QLayout* BuildButtons();
    void BuildWindow();
    void DescribeControls();
    void DescribeLoadFrame(const LoadFrame& frame, const char* load);
};

} // namespace forcelab::beams
