#pragma once

#include <QImage>
#include <QPainterPath>
#include <QPoint>

#include <vector>

/// The region that a flood fill reaches, found on the pixels of an image.
namespace forcelab::screen {

/// Pixels Left to Right - 1 of row Y.
struct PixelRun {
    int Y = 0;
    int Left = 0;
    int Right = 0;
    bool operator==(const PixelRun&) const = default;
};

/// The pixels that can be reached from the seed over sides, without crossing pixels of exactly the
/// colour `boundary`. Empty where the seed is outside the image or on the boundary. A boundary
/// drawn with anti-aliasing has pixels of blended colour, through which a fill may leak.
std::vector<PixelRun> FloodRuns(const QImage& image, QPoint seed, QRgb boundary);

/// The outline of the runs in pixels, to be filled by the odd-even rule.
QPainterPath OutlineOf(const std::vector<PixelRun>& runs);

} // namespace forcelab::screen
