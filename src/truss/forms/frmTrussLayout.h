#pragma once

#include "core/screen/ControlArray.h"
#include "core/screen/Form.h"
#include "core/screen/Layout.h"
#include "core/screen/PictureBox.h"

#include <QPlainTextEdit>
#include <QPushButton>
#include <QSplitter>

namespace forcelab::truss {

/// The controls of frmTruss and where they stand. What they do is frmTruss's.
class frmTrussLayout : public screen::Form {
  protected:
    frmTrussLayout();

    void ShowExplanation(bool visible);

    QPushButton* cmdGridMake = Make<QPushButton>("cmdGridMake");
    screen::ControlArray<screen::Frame> fraDefineOptions{this, "fraDefineOptions", 2};
    screen::OptionArray optTrussDefine{this, "optTrussDefine", 3};
    screen::OptionArray optMakeOrTake{this, "optMakeOrTake", 2};
    screen::ControlArray<QPushButton> cmdSpacing{this, "cmdSpacing", 3};
    screen::Label* lblInstruct = Make<screen::Label>("lblInstruct");
    screen::ControlArray<screen::TextBox> txtTrussResults{this, "txtTrussResults", 2};
    screen::ControlArray<screen::ComboBox> cboTrussResults{this, "cboTrussResults", 4};
    QPushButton* cmdExplain = Make<QPushButton>("cmdExplain");
    screen::PictureBox* picTruss = Make<screen::PictureBox>("picTruss");
    QPlainTextEdit* txtExplain = Make<QPlainTextEdit>("txtExplain");
    QSplitter* splTruss = Make<QSplitter>("splTruss");

  private:
    void SetCaptions();
    void DescribeControls();
    QWidget* BuildColumn();
    void BuildWindow();
    void SetTabOrder();
};

} // namespace forcelab::truss
