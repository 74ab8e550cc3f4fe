#include "beams/forms/frmBeamStufButton.h"

#include "core/screen/Controls.h"
#include "core/screen/PainterPicture.h"

#include <QIcon>
#include <QImage>
#include <QKeyEvent>

namespace forcelab::beams {

namespace {

constexpr int kIconWidth = 85; // pixels
constexpr int kIconHeight = 51;
constexpr int kFinest = 3; // device pixels to the pixel on the sharpest screens

QIcon IconOf(const std::function<void(Picture&)>& draw)
{
    QIcon icon;
    for (int ratio = 1; ratio <= kFinest; ++ratio) {
        QImage image(QSize(kIconWidth, kIconHeight) * ratio, QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(ratio);
        image.fill(Qt::transparent);
        screen::PainterPicture sheet(image);
        draw(sheet);
        icon.addPixmap(QPixmap::fromImage(image));
    }
    return icon;
}

// Like the tiles of the main menu.
constexpr const char* kLook = "QToolButton { background: #FFFFFF; border: 1px solid #C9D2DC; "
                              "border-radius: 6px; padding: 4px; } "
                              "QToolButton:hover { background: #F1F6FB; border-color: #1F5A96; } "
                              "QToolButton:focus { border: 2px solid #1F5A96; padding: 3px; } "
                              "QToolButton:checked { background: #E1ECF7; "
                              "border: 2px solid #1F5A96; padding: 3px; } "
                              "QToolButton:pressed { background: #DCE7F2; }";

} // namespace

PictureButton::PictureButton(QWidget* parent) : QToolButton(parent)
{
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    setIconSize({kIconWidth, kIconHeight});
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setStyleSheet(QLatin1String(kLook));
}

void PictureButton::Setup(std::string_view caption, std::string_view name,
                          const std::function<void(Picture&)>& draw)
{
    setText(screen::Q(caption));
    screen::Describe(*this, name, name);
    setIcon(IconOf(draw));
}

void PictureButton::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return click();
    QToolButton::keyPressEvent(event);
}

} // namespace forcelab::beams
