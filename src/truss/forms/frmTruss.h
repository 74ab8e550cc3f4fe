#pragma once

#include "truss/TrussEditor.h"
#include "truss/TrussSolver.h"
#include "truss/forms/GridKeys.h"
#include "truss/forms/frmTrussLayout.h"

#include <QTimer>

#include <optional>
#include <string>
#include <vector>

class QKeyEvent;

namespace forcelab::screen {
class Printer;
}

namespace forcelab::truss {

/// Where a truss is laid out on a grid with the mouse or the keyboard, computed and explained.
class frmTruss : public frmTrussLayout {
  public:
    frmTruss();

    void Form_Load() override;
    void Form_QueryUnload(bool& cancel, int unloadMode) override;
    void Form_Unload() override;

    /// Option 1 prints the picture of the results, 2 the member stress table too.
    void PrintTrussResults(int option);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void cmdGridMake_Click();
    void cmdSpacing_Click(int Index);
    void optTrussDefine_Click(int Index);
    void optMakeOrTake_Click(int Index);
    void txtTrussResults_Change(int Index);
    void cmdExplain_Click();
    void mnuBack_Click();
    void mnuTrussStress_Click();
    void mnuHelpTruss_Click();
    void picTruss_MouseDown(const screen::MouseAction& mouse);
    void picTruss_MouseMove(const screen::MouseAction& mouse);
    void picTruss_MouseUp(const screen::MouseAction& mouse);
    bool picTruss_KeyDown(const QKeyEvent& key);
    void picTruss_Paint(Picture& pic);
    void timMotion_Timer();

    void BuildMenus();
    void Connect();
    void StartFromScratch();
    void TakeNewGrid();
    void SetMode(ChangedBy by);
    void Instruct(std::string_view text);
    void DrawModel();
    void ForgetResults();
    void Press(double x, double y);
    void DragOn(double x, double y);
    void Release(double x, double y);
    bool PressOrRelease();
    bool GiveUp();
    void MoveCursor(int right, int up);
    void DefineJointLoad(const LoadQuestion& question);
    void PlaceLoadForm(const LoadQuestion& question);
    void Compute();
    void ShowResults();
    void ShowFailure(const TrussAnalysis& analysis);
    void StartMotion(const Mechanism& motion);
    bool StopMotion();
    void Explain(const std::string& text);
    void DrawResults(Picture& pic, double memberWidth, double jointWidth) const;
    void DrawOver(Picture& pic) const;
    void DrawBand(Picture& pic) const;
    void DrawCursor(Picture& pic) const;
    double PrintPicture(screen::Printer& printer);
    void PrintTable(screen::Printer& printer, double top);

    int TrussMode = kCreateMembers;
    bool ResultsShown = false;
    std::string LastLoadText;
    DragState drag_;
    GridKeys keys_;
    TrussResults results_;
    std::optional<Mechanism> motion_;
    int tick_ = 0;                    ///< of the motion
    bool motionTold_ = false;         ///< lblInstruct tells of a motion
    std::vector<std::string> moving_; ///< the joints that it names

    QTimer* timMotion = Make<QTimer>("timMotion");
    QAction* mnuTrussStress = nullptr;
    QAction* mnuPrintResults = nullptr;
};

} // namespace forcelab::truss
