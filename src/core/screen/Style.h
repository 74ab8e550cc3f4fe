#pragma once

class QApplication;

namespace forcelab::screen {

// The few tones of the program's windows, as 0xRRGGBB.
inline constexpr unsigned kWindowTone = 0xF3F5F8;
inline constexpr unsigned kInkTone = 0x1E2A38;
inline constexpr unsigned kQuietInkTone = 0x5B6B7D;
inline constexpr unsigned kLineTone = 0xC9D2DC;
inline constexpr unsigned kAccentTone = 0x1F5A96;

/// Gives the program one light, calm look, whatever the desktop's own.
void ApplyStyle(QApplication& application);

} // namespace forcelab::screen
