#pragma once

#include <string>

namespace forcelab::screen {

/// The common dialog of the main menu, which opens the help viewer: set the members in the order
/// of their declaration, then the action.
struct CommonDialog {
    std::string HelpFile;
    int HelpCommand = 0;
    int HelpContext = 0;
    void Action(int action) const; ///< 6 opens the help viewer on HelpContext

    static CommonDialog CMDialog1;
};

/// Name of the program's help file.
inline constexpr const char* kHelpFile = "forcelab.hlp";

/// Opens the help viewer on MainModule::HelpContext, which the caller has just set.
void ShowHelpTopic();

} // namespace forcelab::screen
