#include "core/screen/PictureExport.h"

#include "core/screen/PainterPicture.h"

#include <QBuffer>
#include <QFileInfo>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <QSvgGenerator>

namespace forcelab::screen {

namespace {

constexpr double kPixelsPerInch = 96;
constexpr double kPointsPerInch = 72;
constexpr int kPdfResolution = 1200;
constexpr double kPngRatio = 2;

} // namespace

QImage PictureExport::ToImage(double ratio) const
{
    QImage image((Size * ratio).toSize().expandedTo(QSize(1, 1)), QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    {
        PainterPicture picture(image);
        Paint(picture);
    }
    image.setDevicePixelRatio(1);
    return image;
}

QByteArray PictureExport::ToSvg() const
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setResolution(static_cast<int>(kPixelsPerInch));
    generator.setSize(Size.toSize());
    generator.setViewBox(QRectF(QPointF(), Size));
    generator.setTitle(Title);
    QPainter painter(&generator);
    PainterPicture picture(painter, QRectF(QPointF(), Size));
    Paint(picture);
    painter.end();
    return bytes;
}

QByteArray PictureExport::ToPdf() const
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(Title);
    writer.setResolution(kPdfResolution);
    writer.setPageSize(QPageSize(Size * kPointsPerInch / kPixelsPerInch, QPageSize::Point,
                                 QString(), QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF());
    QPainter painter(&writer);
    painter.scale(kPdfResolution / kPixelsPerInch, kPdfResolution / kPixelsPerInch);
    PainterPicture picture(painter, QRectF(QPointF(), Size));
    Paint(picture);
    painter.end();
    return bytes;
}

QByteArray PictureExport::ToPng() const
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    ToImage(kPngRatio).save(&buffer, "PNG");
    return bytes;
}

bool PictureExport::Save(const QString& path) const
{
    const QString ending = QFileInfo(path).suffix().toLower();
    QByteArray bytes;
    if (ending == QLatin1String("svg"))
        bytes = ToSvg();
    else if (ending == QLatin1String("pdf"))
        bytes = ToPdf();
    else if (ending == QLatin1String("png"))
        bytes = ToPng();
    QSaveFile file(path);
    return !bytes.isEmpty() && file.open(QIODevice::WriteOnly) &&
           file.write(bytes) == bytes.size() && file.commit();
}

} // namespace forcelab::screen
