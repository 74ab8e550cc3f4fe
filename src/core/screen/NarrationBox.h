#pragma once

#include <string_view>

class QPlainTextEdit;

namespace forcelab::screen {

/// Shows an explanation as a `Narration` builds it: headings in bold type, and lines of arithmetic
/// that break neither inside short parentheses nor before their unit. What the box gives back as
/// plain text is the explanation unchanged.
void ShowNarration(QPlainTextEdit& box, std::string_view text);

} // namespace forcelab::screen
