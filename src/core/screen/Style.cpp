#include "core/screen/Style.h"

#include <QApplication>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>

namespace forcelab::screen {

namespace {

struct Tone {
    QPalette::ColorRole Role;
    unsigned Value;
};

constexpr Tone kTones[] = {
    {QPalette::Window, kWindowTone},
    {QPalette::WindowText, kInkTone},
    {QPalette::Base, 0xFFFFFF},
    {QPalette::AlternateBase, 0xF6F8FA},
    {QPalette::Text, kInkTone},
    {QPalette::Button, 0xECEFF3},
    {QPalette::ButtonText, kInkTone},
    {QPalette::BrightText, 0xFFFFFF},
    {QPalette::ToolTipBase, 0xFFFDF0},
    {QPalette::ToolTipText, kInkTone},
    {QPalette::PlaceholderText, 0x7A8896},
    {QPalette::Highlight, kAccentTone},
    {QPalette::HighlightedText, 0xFFFFFF},
    {QPalette::Link, kAccentTone},
    {QPalette::LinkVisited, 0x5A4A8A},
};

constexpr Tone kDisabledTones[] = {
    {QPalette::WindowText, 0x8A95A1},
    {QPalette::Text, 0x8A95A1},
    {QPalette::ButtonText, 0x8A95A1},
    {QPalette::Base, 0xEEF1F4},
};

QPalette LightPalette()
{
    QPalette palette(QColor(0xECEFF3), QColor(kWindowTone));
    for (const Tone& tone : kTones) palette.setColor(tone.Role, QColor(tone.Value));
    for (const Tone& tone : kDisabledTones)
        palette.setColor(QPalette::Disabled, tone.Role, QColor(tone.Value));
    return palette;
}

} // namespace

void ApplyStyle(QApplication& /*application*/)
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(LightPalette());
    QApplication::setApplicationName(QStringLiteral("Forcelab"));
}

} // namespace forcelab::screen
