#include "core/forms/BigButton.h"

#include "core/screen/Controls.h"
#include "core/screen/PictureBox.h"
#include "core/screen/Style.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QSvgRenderer>

namespace forcelab {

namespace {

constexpr int kRoundness = 8;
constexpr int kPadding = 10;
constexpr int kCompactPicture = 40;
constexpr int kLargestPicture = 168;
constexpr int kLeastPicture = 56;
constexpr double kDimmed = 0.35;

QPixmap RenderPicture(const QString& file, int size, double pixelRatio)
{
    QPixmap pixmap(QSize(size, size) * pixelRatio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    QSvgRenderer(file).render(&painter);
    painter.end();
    pixmap.setDevicePixelRatio(pixelRatio);
    return pixmap;
}

int MouseButtonCode(Qt::MouseButton button)
{
    if (button == Qt::LeftButton) return screen::kLeftButton;
    if (button == Qt::RightButton) return screen::kRightButton;
    return 0;
}

} // namespace

BigButton::BigButton(QWidget* parent) : QAbstractButton(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setContextMenuPolicy(Qt::PreventContextMenu);
}

void BigButton::Setup(std::string_view caption, std::string_view picture, bool compact)
{
    setText(screen::Q(caption));
    setAccessibleName(text());
    picture_ = QStringLiteral(":/pictures/%1.svg").arg(screen::Q(picture));
    compact_ = compact;
    QFont larger = font();
    larger.setPointSizeF(larger.pointSizeF() * (compact ? 1.0 : 1.12));
    setFont(larger);
}

QSize BigButton::sizeHint() const
{
    return minimumSizeHint();
}

QSize BigButton::minimumSizeHint() const
{
    const QFontMetrics metrics(font());
    const int textWidth = metrics.horizontalAdvance(text());
    if (compact_) return {textWidth + kCompactPicture + 3 * kPadding, kCompactPicture + kPadding};
    return {textWidth + 2 * kPadding, kLeastPicture + metrics.height() + 3 * kPadding};
}

void BigButton::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    DrawTile(painter);
    DrawContents(painter);
}

void BigButton::DrawTile(QPainter& painter) const
{
    const bool lit = isEnabled() && (underMouse() || hasFocus());
    QColor ground = isEnabled() ? QColor(0xFFFFFF) : QColor(0xF7F8FA);
    if (isEnabled() && underMouse()) ground = QColor(isDown() ? 0xDCE7F2 : 0xF1F6FB);
    painter.setBrush(ground);
    painter.setPen(QPen(QColor(lit ? screen::kAccentTone : screen::kLineTone), hasFocus() ? 2 : 1));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), kRoundness, kRoundness);
}

void BigButton::DrawContents(QPainter& painter)
{
    const int textHeight = fontMetrics().height();
    const int room = std::min(width() - 2 * kPadding, height() - textHeight - 3 * kPadding);
    const int size = compact_ ? kCompactPicture : std::clamp(room, kLeastPicture, kLargestPicture);
    QRect where(kPadding, (height() - size) / 2, size, size);
    QRect words(where.right() + kPadding, 0, width() - where.right() - kPadding, height());
    if (!compact_) {
        const int all = size + kPadding / 2 + textHeight;
        where.moveTopLeft({(width() - size) / 2, (height() - all) / 2});
        words = QRect(0, where.bottom() + kPadding / 2, width(), textHeight + 2);
    }
    painter.setOpacity(isEnabled() ? 1 : kDimmed);
    painter.drawPixmap(where, Picture(size));
    painter.setOpacity(1);
    painter.setPen(
        palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText));
    painter.drawText(words, compact_ ? Qt::AlignVCenter | Qt::AlignLeft : Qt::AlignCenter, text());
}

const QPixmap& BigButton::Picture(int size)
{
    if (rendered_.deviceIndependentSize() != QSizeF(size, size) ||
        rendered_.devicePixelRatio() != devicePixelRatioF())
        rendered_ = RenderPicture(picture_, size, devicePixelRatioF());
    return rendered_;
}

void BigButton::Tell(int button) const
{
    if (button != 0 && OnMouseUp) OnMouseUp(button);
}

void BigButton::mousePressEvent(QMouseEvent* event)
{
    event->accept();
    setDown(true);
}

void BigButton::mouseReleaseEvent(QMouseEvent* event)
{
    event->accept();
    setDown(false);
    if (rect().contains(event->position().toPoint())) Tell(MouseButtonCode(event->button()));
}

void BigButton::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return Tell(screen::kLeftButton);
    case Qt::Key_F1:
        return Tell(screen::kRightButton);
    default:
        QAbstractButton::keyPressEvent(event);
    }
}

void BigButton::enterEvent(QEnterEvent* event)
{
    QAbstractButton::enterEvent(event);
    update();
}

void BigButton::leaveEvent(QEvent* event)
{
    QAbstractButton::leaveEvent(event);
    update();
}

} // namespace forcelab
