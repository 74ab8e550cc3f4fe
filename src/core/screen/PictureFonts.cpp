#include "core/screen/PictureFonts.h"

#include <QApplication>
#include <QFontInfo>
#include <QFontMetricsF>

#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

namespace forcelab::screen {

namespace {

constexpr double kPixelsPerPoint = 96.0 / 72.0;
constexpr double kLargestPixelSize = 2000;
constexpr qsizetype kWidthsKept = 2000;
constexpr std::size_t kFontsKept = 64;

// The application's own family by its real name, which an SVG file hands on to other programs.
QString OwnFamily()
{
    return QFontInfo(QApplication::font()).family();
}

QStringList Families(const std::string& name)
{
    if (name == "MS Sans Serif" || name == "Symbol") return {OwnFamily()};
    if (name == "Arial")
        return {QStringLiteral("Arial"), QStringLiteral("Liberation Sans"), OwnFamily()};
    return {QString::fromStdString(name)};
}

int PixelSize(double points)
{
    const double pixels = std::round(points * kPixelsPerPoint);
    return static_cast<int>(pixels >= 1 ? std::min(pixels, kLargestPixelSize) : 1);
}

struct Entry {
    FontWish Wish;
    std::unique_ptr<PictureFont> Font;
};

std::vector<Entry>& Cache()
{
    static std::vector<Entry> cache;
    return cache;
}

// Fonts must not outlive the application, nor may they pile up.
void EmptyCache()
{
    Cache().clear();
}

} // namespace

PictureFont::PictureFont(const FontWish& wish)
{
    font_.setFamilies(Families(wish.Name));
    font_.setStyleHint(QFont::SansSerif, wish.Smooth ? QFont::PreferAntialias : QFont::NoAntialias);
    font_.setPixelSize(PixelSize(wish.Points));
    font_.setBold(wish.Bold);
    font_.setItalic(wish.Italic);
    const QFontMetricsF metrics(font_);
    ascent_ = metrics.ascent();
    height_ = metrics.height();
}

double PictureFont::Width(const QString& text) const
{
    const auto known = widths_.constFind(text);
    if (known != widths_.cend()) return *known;
    if (widths_.size() >= kWidthsKept) widths_.clear();
    const double width = QFontMetricsF(font_).horizontalAdvance(text);
    widths_.insert(text, width);
    return width;
}

const PictureFont& FontFor(const FontWish& wish)
{
    std::vector<Entry>& cache = Cache();
    const auto found =
        std::find_if(cache.begin(), cache.end(), [&](const Entry& e) { return e.Wish == wish; });
    if (found != cache.end()) return *found->Font;
    static const bool registered = (qAddPostRoutine(EmptyCache), true);
    if (!registered || cache.size() >= kFontsKept) EmptyCache();
    cache.push_back({wish, std::make_unique<PictureFont>(wish)});
    return *cache.back().Font;
}

} // namespace forcelab::screen
