#include "core/forms/TitlePicture.h"

#include "core/forms/Application.h"
#include "core/screen/Controls.h"

#include <QPainter>
#include <QSvgRenderer>

namespace forcelab {

namespace {

constexpr const char* kSubtitle = "Strength of Materials Teaching Software";
constexpr unsigned kGround = 0x17375E;
constexpr unsigned kGroundFar = 0x24568A;
constexpr unsigned kPaleInk = 0xC9DCF0;
constexpr double kBeamShape = 3.0; // width to height of the drawn beam
constexpr double kLeastBeam = 120; // pixels
constexpr double kTextHeight = 0.30;
constexpr double kMargin = 0.16;

} // namespace

TitlePicture::TitlePicture(QWidget* parent) : QWidget(parent)
{
    setAccessibleName(screen::Q(std::string(kApplicationTitle) + ", " + kSubtitle));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

void TitlePicture::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient ground(0, 0, width(), 0);
    ground.setColorAt(0, QColor(kGround));
    ground.setColorAt(1, QColor(kGroundFar));
    painter.fillRect(rect(), ground);
    DrawBeam(painter, DrawTexts(painter));
}

// Gives the right end of the texts.
double TitlePicture::DrawTexts(QPainter& painter) const
{
    const int left = static_cast<int>(height() * kMargin * 1.4);
    QFont large = font();
    large.setPixelSize(static_cast<int>(height() * kTextHeight));
    large.setBold(true);
    painter.setFont(large);
    painter.setPen(Qt::white);
    const int middle = height() * 55 / 100;
    painter.drawText(QRect(left, 0, width(), middle), Qt::AlignLeft | Qt::AlignBottom,
                     screen::Q(kApplicationTitle));
    QFont small = font();
    small.setPixelSize(std::max(12, static_cast<int>(height() * kTextHeight / 2.4)));
    painter.setFont(small);
    painter.setPen(QColor(kPaleInk));
    painter.drawText(QRect(left + 2, middle + 2, width(), height() - middle),
                     Qt::AlignLeft | Qt::AlignTop, screen::Q(kSubtitle));
    return left + QFontMetricsF(small).horizontalAdvance(screen::Q(kSubtitle));
}

void TitlePicture::DrawBeam(QPainter& painter, double left)
{
    const double margin = height() * kMargin;
    const double wide = std::min((height() - margin) * kBeamShape, width() - left - 2 * margin);
    if (wide < kLeastBeam) return;
    const QSizeF size(wide, wide / kBeamShape);
    const QPointF at(width() - wide - margin, (height() - size.height()) / 2);
    const QSize pixels = (size * devicePixelRatioF()).toSize();
    if (beam_.size() != pixels) {
        beam_ = QPixmap(pixels);
        beam_.fill(Qt::transparent);
        QPainter inner(&beam_);
        QSvgRenderer(QStringLiteral(":/pictures/BookCover.svg")).render(&inner);
    }
    painter.drawPixmap(QRectF(at, size), beam_, QRectF(beam_.rect()));
}

} // namespace forcelab
