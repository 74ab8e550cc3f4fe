#pragma once

#include "core/screen/ControlArray.h"
#include "core/screen/Form.h"
#include "core/screen/Layout.h"

#include <QPushButton>

#include <string>
#include <string_view>

namespace forcelab::truss {

/// Asks for the size of a load whose direction was drawn.
class frmTrussLoad : public screen::Form {
  public:
    frmTrussLoad();

    void Form_Activate() override;
    void Form_QueryUnload(bool& cancel, int unloadMode) override;

    /// The direction in words, and the size to begin with.
    void TakeQuestion(std::string_view direction, std::string_view magnitude);
    [[nodiscard]] bool Accepted() const { return accepted_; }
    [[nodiscard]] std::string Magnitude() const { return txtLoadMagnitude->Text(); }

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void cmdLoadDefine_Click(int Index);
    void Build();

    bool accepted_ = false;

    screen::ControlArray<screen::Label> lblLoadPrompt{this, "lblLoadPrompt", 2};
    screen::TextBox* txtLoadMagnitude = Make<screen::TextBox>("txtLoadMagnitude");
    screen::ControlArray<QPushButton> cmdLoadDefine{this, "cmdLoadDefine", 2};
};

} // namespace forcelab::truss
