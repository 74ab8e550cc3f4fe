#pragma once

#include "core/Picture.h"

#include <QImage>

#include <ostream>

namespace forcelab {

inline void PrintTo(const Colour& colour, std::ostream* out)
{
    *out << int{colour.Red} << ',' << int{colour.Green} << ',' << int{colour.Blue};
}

} // namespace forcelab

namespace forcelab::test {

inline constexpr Colour kBlack = Rgb(0, 0, 0);
inline constexpr Colour kWhite = Rgb(255, 255, 255);
inline constexpr Colour kCyan = Rgb(0, 255, 255);
inline constexpr Colour kRed = Rgb(255, 0, 0);

inline QImage WhiteImage(int width, int height, double ratio = 1)
{
    QImage image(qRound(width * ratio), qRound(height * ratio), QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    return image;
}

/// The pixels of an image that are not white.
inline int InkOf(const QImage& image)
{
    int ink = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) ink += image.pixel(x, y) != qRgb(255, 255, 255);
    return ink;
}

} // namespace forcelab::test
