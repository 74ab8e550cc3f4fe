#pragma once

#include "core/Picture.h"

#include <QByteArray>
#include <QImage>
#include <QSizeF>
#include <QString>

#include <functional>

namespace forcelab::screen {

/// A picture drawn into something other than its window. An ArithmeticFault of the paint handler
/// comes through.
struct PictureExport {
    std::function<void(Picture&)> Paint;
    QSizeF Size; ///< logical pixels
    QString Title;

    [[nodiscard]] QImage ToImage(double ratio) const; ///< `ratio` pixels a logical one
    [[nodiscard]] QByteArray ToSvg() const;
    [[nodiscard]] QByteArray ToPdf() const; ///< one page of the picture's size, without margins
    [[nodiscard]] QByteArray ToPng() const; ///< at twice the resolution of the screen
    /// Writes a file by its ending: svg, pdf or png. False where it cannot be written; a file that
    /// was there before then stays as it was.
    [[nodiscard]] bool Save(const QString& path) const;
};

} // namespace forcelab::screen
