#pragma once

#include "core/screen/FlexGrid.h"
#include "core/screen/Form.h"
#include "core/screen/Layout.h"
#include "general/EquationGrid.h"

#include <QPushButton>
#include <QSpinBox>

class QKeyEvent;

namespace forcelab::general {

/// Solves up to ten simultaneous equations that are typed into a grid.
class frmLinSolve : public screen::Form {
  public:
    frmLinSolve();

    void Form_Load() override;
    void Form_QueryUnload(bool& cancel, int unloadMode) override;
    void Form_Resize() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void mnuBack_Click();
    void mnuCut_Click();
    void mnuCopy_Click();
    void mnuPaste_Click();
    void mnuPrintModel_Click();
    static void mnuHelp_Click();
    void cmdStiffness_Click();
    void updnElements_Change(int value);
    void fgElements_KeyPress(int keyAscii);
    bool fgElements_KeyDown(const QKeyEvent& event);
    void txtEditElements_LostFocus();

    bool ClipboardKey(int key);
    bool TabKey(bool back);
    void SendKey(int key);
    void CommitEdit();
    void SolveTheMatrix(std::optional<Refusal>& failed);
    void ReviseGridSetup();
    void GridResize();
    void ShowCell(int row, int column);
    void ShowCells();

    // Layout.
    void Build();
    void BuildMenu();
    QWidget* BuildCount();
    void BuildWindow();
    void DescribeControls();
    void Connect();
    void SetColumnWidths();
    [[nodiscard]] QSize GridSize() const;
    [[nodiscard]] QSize Limited(QSize grid) const;

    EquationGrid equations_;
    int editRow_ = 0; ///< the cell that the edit box is open over
    int editColumn_ = 0;

    screen::Label* lblElements = Make<screen::Label>("lblElements");
    QSpinBox* updnElements = Make<QSpinBox>("updnElements");
    screen::Frame* fraElements = Make<screen::Frame>("fraElements");
    screen::FlexGrid* fgElements = Make<screen::FlexGrid>("fgElements");
    QPushButton* cmdStiffness = Make<QPushButton>("cmdStiffness");
    screen::Label* lblHint = Make<screen::Label>("lblHint");
    screen::GridEditBox* txtEditElements = Make<screen::GridEditBox>("txtEditElements");
};

} // namespace forcelab::general
