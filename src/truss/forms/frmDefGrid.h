#pragma once

#include "core/screen/ControlArray.h"
#include "core/screen/Form.h"
#include "core/screen/Layout.h"

#include <QPushButton>
#include <QScrollBar>

namespace forcelab::truss {

/// Asks for the grid that the truss is laid on, and lays it.
class frmDefGrid : public screen::Form {
  public:
    frmDefGrid();

    void Form_Load() override;
    void Form_QueryUnload(bool& cancel, int unloadMode) override;

    /// Before it is shown: nothing is answered yet.
    void Begin();
    /// Cancel was pressed, or the window closed.
    [[nodiscard]] bool Cancelled() const { return cancelled_; }
    /// The spacings that were typed gave no grid, and the one of before is kept.
    [[nodiscard]] bool Unusable() const { return unusable_; }

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void cmdDefGrid_Click(int Index);
    void vsbSpaces_Change(int Index);

    void Build();
    QWidget* BuildDirection(int index);
    void Connect();

    bool cancelled_ = true;
    bool unusable_ = false;

    screen::ControlArray<screen::Frame> fraSpaces{this, "fraSpaces", 2};
    screen::ControlArray<QScrollBar> vsbSpaces{this, "vsbSpaces", 2};
    screen::ControlArray<screen::Label> lblSpaces{this, "lblSpaces", 2};
    screen::ControlArray<screen::TextBox> txtSpacing{this, "txtSpacing", 2};
    screen::ControlArray<QPushButton> cmdDefGrid{this, "cmdDefGrid", 2};
};

} // namespace forcelab::truss
