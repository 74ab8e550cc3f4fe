#pragma once

#include "core/screen/ControlArray.h"
#include "core/screen/Form.h"
#include "core/screen/Layout.h"
#include "core/screen/PictureBox.h"

#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>

#include <utility>

namespace forcelab::beams {

/// The controls of frmDetails and where they stand. What they do is frmDetails'.
class frmDetailsLayout : public screen::Form {
  public:
    void Form_Resize() override;

  protected:
    frmDetailsLayout();

    /// With a section: forces, point and pictures. Without: the readout, and how to get one.
    void ShowStressPart(bool visible);
    [[nodiscard]] bool StressPartShown() const { return stressPart_; }
    /// Sets the caption of cmdSpecificPoint. It names the letter S, as "&Shear Stress" does: with
    /// the stresses it is theirs, and Enter in its box takes the point.
    void SetPointButton(std::string_view caption);
    /// The pictures of a view (none, normal or shear) in their places, with the key stresses.
    void ArrangePictures(int view, bool keyStresses);
    /// The size for what the form shows, at most the work area.
    void FitWindow();

    screen::Frame* fraPoint = Make<screen::Frame>("fraPoint");
    screen::Label* lblSpecificPoint = Make<screen::Label>("lblSpecificPoint");
    screen::TextBox* txtSpecificPoint = Make<screen::TextBox>("txtSpecificPoint");
    QPushButton* cmdSpecificPoint = Make<QPushButton>("cmdSpecificPoint");
    screen::ControlArray<screen::Label> lblPointName{this, "lblPointName", 2};
    screen::ControlArray<screen::Label> lblPointValue{this, "lblPointValue", 2};
    screen::ControlArray<screen::Label> lblPointUnit{this, "lblPointUnit", 2};
    screen::ControlArray<screen::Label> lblPointFiner{this, "lblPointFiner", 2};
    screen::Label* lblNoSection = Make<screen::Label>("lblNoSection");

    screen::Frame* fraCoord = Make<screen::Frame>("fraCoord");
    screen::ControlArray<screen::Label> lblCoord{this, "lblCoord", 2};
    screen::ControlArray<screen::TextBox> txtCoord{this, "txtCoord", 2};
    screen::OptionArray optShapeUnits{this, "optShapeUnits", 2};
    screen::ControlArray<QPushButton> cmdVM{this, "cmdVM", 4};
    QPushButton* cmdShadeSolid = Make<QPushButton>("cmdShadeSolid");

    screen::Frame* fraVM = Make<screen::Frame>("fraVM");
    screen::ControlArray<screen::Label> lblVM{this, "lblVM", 3};
    screen::ControlArray<screen::TextBox> txtVM{this, "txtVM", 3};
    screen::OptionArray optForceUnits{this, "optForceUnits", 4};
    screen::OptionArray optMomentUnits{this, "optMomentUnits", 4};
    screen::Frame* fraStressUnits = Make<screen::Frame>("fraStressUnits");
    screen::OptionArray optStressUnits{this, "optStressUnits", 4};

    screen::ControlArray<screen::PictureBox> picST{this, "picST", 4};
    QScrollBar* hsbZ = Make<QScrollBar>("hsbZ");
    QScrollBar* vsbY = Make<QScrollBar>("vsbY");
    screen::Label* lblPrompt = Make<screen::Label>("lblPrompt"); ///< before a view is chosen
    screen::Label* lblQnote = Make<screen::Label>("lblQnote");
    screen::Frame* fraKeyStresses = Make<screen::Frame>("fraKeyStresses");
    screen::Label* lblKeyStresses = Make<screen::Label>("lblKeyStresses"); ///< of KeyStressNotes
    screen::ControlArray<QPlainTextEdit> txtKeyStresses{this, "txtKeyStresses", 1};

  private:
    void SetCaptions();
    void SetSizes();
    QWidget* BuildPoint();
    QWidget* BuildCoord();
    QWidget* BuildButtons();
    QWidget* BuildForces();
    QWidget* BuildStressUnits();
    void BuildKeyStresses();
    QWidget* BuildPictures();
    void BuildWindow();
    void SetTabOrder();
    void DescribeControls();
    void DescribeUnits(const screen::OptionArray& options, std::string_view what);
    void ArrangeWindow();

    bool stressPart_ = false;
    std::pair<int, bool> arranged_{-1, false}; ///< what ArrangePictures did last
    QWidget* inputs_ = nullptr;
    QWidget* right_ = nullptr; ///< forces and stress units
    QWidget* buttons_ = nullptr;
    QWidget* pictures_ = nullptr;
    QGridLayout* grid_ = nullptr;      ///< of the pictures
    QBoxLayout* beside_ = nullptr;     ///< the two groups of inputs
    QBoxLayout* everything_ = nullptr; ///< inputs and pictures
    QScrollArea* scroll_ = nullptr;
};

} // namespace forcelab::beams
