#pragma once

#include "core/screen/Form.h"

class QPushButton;

namespace forcelab {

/// Version and origin of the program, and a way to the system information tool.
class frmAbout : public screen::Form {
  public:
    frmAbout();

  private:
    void cmdOK_Click();
    static void cmdSysInfo_Click();
    void BuildWindow();

    screen::Label* lblTitle = Make<screen::Label>("lblTitle");
    screen::Label* lblAuthors = Make<screen::Label>("lblAuthors");
    QPushButton* cmdOK;
    QPushButton* cmdSysInfo;
};

} // namespace forcelab
