#pragma once

#include "beams/BeamNarration.h"
#include "core/screen/ControlArray.h"
#include "core/screen/Form.h"
#include "core/screen/Layout.h"
#include "core/screen/PictureBox.h"

#include <QPlainTextEdit>
#include <QPushButton>
#include <QSplitter>

#include <array>
#include <set>

class QHBoxLayout;

namespace forcelab::beams {

/// The controls of frmBeamDiagrams and where they stand. What they do is frmBeamDiagrams's.
class frmBeamDiagramsLayout : public screen::Form {
  protected:
    frmBeamDiagramsLayout();

    /// A frame with an explanation. At most one of them is open.
    struct ExplainPane {
        screen::Frame* Frame;
        QPlainTextEdit* Text;
        QPushButton* Close;
    };
    enum Pane : int { kLoadPane, kShearPane, kReactionPane };

    /// Sets the unit options in as few lines as the width allows, and the explanation beside the
    /// pictures or under them.
    void SetFormWidthRows();
    /// Each label box covers the text of its list and leaves the arrow free.
    void LayComboLabels();
    /// The bar's slider then stands straight under its x on a picture of this width.
    void AlignBar(int pictureWidth);
    void ShowCurvesOf(bool slopeView);
    /// The messages of slope and deflection: no EI, and service loads.
    void ShowMessages(bool noStiffness, bool service);
    /// Shows one explanation, or with -1 none.
    void ShowPane(int pane);
    [[nodiscard]] screen::PictureBox& CurvePicture(Diagram diagram) const
    {
        return *curves_.at(std::size_t(diagram));
    }

    QWidget* picLengthUnits = Make<QWidget>("picLengthUnits");
    screen::OptionArray optLengthUnits{this, "optLengthUnits", 4};
    QWidget* picForceUnits = Make<QWidget>("picForceUnits");
    screen::OptionArray optForceUnits{this, "optForceUnits", 4};
    QWidget* picMomentUnits = Make<QWidget>("picMomentUnits");
    screen::OptionArray optMomentUnits{this, "optMomentUnits", 4};
    QWidget* picSlopeUnits = Make<QWidget>("picSlopeUnits");
    screen::OptionArray optSlopeUnits{this, "optSlopeUnits", 2};
    QWidget* picDeflectionUnits = Make<QWidget>("picDeflectionUnits");
    screen::OptionArray optDeflectionUnits{this, "optDeflectionUnits", 2};
    screen::ComboBox* cboLoads = Make<screen::ComboBox>("cboLoads");
    screen::ComboBox* cboReactions = Make<screen::ComboBox>("cboReactions");
    screen::ControlArray<screen::Label> txtComboLabels{this, "txtComboLabels", 2};

    // The load diagram is made first: pictures are painted in this order.
    screen::PictureBox* picLoadDiagram = Make<screen::PictureBox>("picLoadDiagram");
    QScrollBar* hsbX = Make<QScrollBar>("hsbX", Qt::Horizontal);
    screen::Label* lblPoint = Make<screen::Label>("lblPoint"); ///< the readout, or what is missing

    // By Diagram: shear, moment, slope, deflection.
    screen::PictureBox* picShearDiagram = Make<screen::PictureBox>("picShearDiagram");
    screen::PictureBox* picMomentDiagram = Make<screen::PictureBox>("picMomentDiagram");
    screen::PictureBox* picSlopeDiagram = Make<screen::PictureBox>("picSlopeDiagram");
    screen::PictureBox* picDeflectionDiagram = Make<screen::PictureBox>("picDeflectionDiagram");
    screen::ControlArray<screen::Label> lblDiagram{this, "lblDiagram", 4};
    screen::ControlArray<QPushButton> cmdDiscontinuity{this, "cmdDiscontinuity", 4};
    screen::ControlArray<screen::Label> lblEIMessage{this, "lblEIMessage", 4};

    screen::Label* lblHint = Make<screen::Label>("lblHint"); ///< what the mouse is over
    screen::Frame* fraExplainLoad = Make<screen::Frame>("fraExplainLoad");
    QPlainTextEdit* txtExplainLoad = Make<QPlainTextEdit>("txtExplainLoad");
    screen::Frame* fraExplainShear = Make<screen::Frame>("fraExplainShear");
    QPlainTextEdit* txtExplainShear = Make<QPlainTextEdit>("txtExplainShear");
    screen::Frame* fraExplainReactions = Make<screen::Frame>("fraExplainReactions");
    QPlainTextEdit* txtExplainReactions = Make<QPlainTextEdit>("txtExplainReactions");
    screen::ControlArray<QPushButton> cmdCloseExplain{this, "cmdCloseExplain", 3};

    std::array<ExplainPane, 3> panes_{
        {{fraExplainLoad, txtExplainLoad, &cmdCloseExplain(kLoadPane)},
         {fraExplainShear, txtExplainShear, &cmdCloseExplain(kShearPane)},
         {fraExplainReactions, txtExplainReactions, &cmdCloseExplain(kReactionPane)}}};

  private:
    static constexpr int kSpace = 4;      ///< between the lines of the form, pixels
    static constexpr int kUnitSpace = 20; ///< between groups of unit options, and between messages

    /// lblEIMessage: 0 and 2 tell of the missing EI, 1 and 3 of the loads.
    static constexpr int FirstMessage(Diagram diagram) { return diagram == Diagram::Slope ? 0 : 2; }

    void SetCaptions();
    void DescribeControls();
    void DescribeDiagrams();
    void BuildUnits();
    void BuildLists();
    void BuildPanes();
    QWidget* BuildCurve(Diagram diagram);
    QWidget* BuildMessages(Diagram diagram, QWidget* place);
    QWidget* BuildPictures();
    void BuildWindow();
    void SetTabOrder();
    void PlaceUnits(int width);
    void PlaceMessages(Diagram diagram);
    [[nodiscard]] bool MessagesFit(Diagram diagram) const;
    [[nodiscard]] bool PaneIsBeside() const;
    void PlacePane();

    std::array<QWidget*, 5> units_{picLengthUnits, picForceUnits, picMomentUnits, picSlopeUnits,
                                   picDeflectionUnits};
    std::array<screen::PictureBox*, 4> curves_{picShearDiagram, picMomentDiagram, picSlopeDiagram,
                                               picDeflectionDiagram};
    std::array<QWidget*, 4> curvePlaces_{};
    std::array<QWidget*, 4> messages_{}; ///< beside the name of a diagram, or below it
    std::array<QHBoxLayout*, 3> unitLines_{};
    // Qt calls a group hidden for a moment when its line becomes its parent.
    std::set<QWidget*> shownUnits_;
    QWidget* unitPlace_ = Make<QWidget>("unitPlace");
    QWidget* barPlace_ = Make<QWidget>("barPlace");
    QWidget* panePlace_ = Make<QWidget>("panePlace");
    QSplitter* splDiagrams = Make<QSplitter>("splDiagrams");
};

} // namespace forcelab::beams
