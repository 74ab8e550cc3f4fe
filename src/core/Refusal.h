#pragma once

#include <string>

namespace forcelab {

/// Icon and button codes of a message box.
enum MessageCode : int {
    kStop = 16,
    kStopOkCancel = 17,
    kExclamation = 48,
    kExclamationOkCancel = 49,
    kInformation = 64,
};

/// Answers of a message box.
enum MessageAnswer : int { kAnswerOk = 1, kAnswerCancel = 2 };

/// A check that failed: what the form shows, and which control then gets the focus.
struct Refusal {
    int Icon = kStop;
    std::string Title;
    std::string Text;
    std::string Focus; ///< object name of the control, "txtShape(1)"; empty: the focus stays
};

} // namespace forcelab
