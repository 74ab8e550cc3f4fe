#pragma once

#include "core/Picture.h"

#include <QFont>
#include <QImage>
#include <QRectF>

#include <memory>
#include <vector>

class QPainter;

namespace forcelab::screen {

/// A Picture that draws through QPainter: on a window's buffer, an image, a printed page, SVG or
/// PDF. Pixels are logical ones, 96 to the inch; the painter's transform brings them to the device.
class PainterPicture : public Picture {
  public:
    /// Draws on an image of any device pixel ratio, which must outlive the picture.
    explicit PainterPicture(QImage& image);
    /// Draws into a part of whatever the painter draws on, given in the painter's logical
    /// coordinates. What FloodFill and Point read is kept in a raster of its own.
    PainterPicture(QPainter& painter, const QRectF& area);
    ~PainterPicture() override;

    [[nodiscard]] double WidthPixels() const override { return area_.width(); }
    [[nodiscard]] double HeightPixels() const override { return area_.height(); }

    /// The image was replaced by another of a different size.
    void ImageChanged();

  protected:
    void DrawClear() override;
    void DrawDot(PicturePoint at) override;
    void DrawPath(std::span<const PicturePoint> points, bool closed) override;
    void DrawSolidBox(PicturePoint corner, PicturePoint opposite) override;
    void DrawWholeEllipse(PicturePoint centre, double radius, double aspect) override;
    void DrawText(PicturePoint at, std::string_view text) override;
    void DrawFlood(PicturePoint seed, Colour boundary) override;
    [[nodiscard]] Colour ReadColour(PicturePoint at) const override;
    void DrawNamedPicture(std::string_view name, PicturePoint corner,
                          PicturePoint opposite) override;
    [[nodiscard]] double TextWidthPixels(std::string_view text) const override;
    [[nodiscard]] double TextHeightPixels(std::string_view text) const override;

  private:
    struct Implementation;
    QRectF area_;
    std::unique_ptr<Implementation> it_;
};

} // namespace forcelab::screen
