#pragma once

#include "core/screen/Form.h"

#include <QPushButton>

#include <optional>
#include <string>

namespace forcelab::beams {

/// Asks for the title of a printed page.
class frmStiffPrint : public screen::Form {
  public:
    frmStiffPrint();

    void Form_Activate() override;
    void Form_QueryUnload(bool& cancel, int unloadMode) override;

    /// Shows the form and waits; gives the title, or nothing on Cancel.
    static std::optional<std::string> AskTitle();

    /// 1 after OK, 0 after Cancel and before an answer.
    [[nodiscard]] int Result() const { return result_; }
    [[nodiscard]] std::string Title() const { return txtTitle->Text(); }

  private:
    void cmdOK_Click();
    void cmdCancel_Click();
    void Build();

    int result_ = 0;
    screen::Label* lblTitle = Make<screen::Label>("lblTitle");
    screen::TextBox* txtTitle = Make<screen::TextBox>("txtTitle");
    QPushButton* cmdOK = Make<QPushButton>("cmdOK");
    QPushButton* cmdCancel = Make<QPushButton>("cmdCancel");
};

} // namespace forcelab::beams
