#pragma once

#include <QFont>
#include <QHash>

#include <string>
#include <string_view>

/// The fonts of the pictures, made once for all of them: a repaint asks for the same few again and
/// again.
namespace forcelab::screen {

/// What a picture says of its font.
struct FontWish {
    std::string Name;
    double Points = 8; ///< 96 pixels to the inch
    bool Bold = false;
    bool Italic = false;
    bool Smooth = true;
    bool operator==(const FontWish&) const = default;
};

/// A font with its measures, in logical pixels.
class PictureFont {
  public:
    explicit PictureFont(const FontWish& wish);

    [[nodiscard]] const QFont& Font() const { return font_; }
    [[nodiscard]] double Ascent() const { return ascent_; }
    [[nodiscard]] double Height() const { return height_; } ///< of a line, without line spacing
    [[nodiscard]] double Width(const QString& text) const;

  private:
    QFont font_;
    double ascent_ = 0;
    double height_ = 0;
    mutable QHash<QString, double> widths_;
};

/// The font for a wish, valid until the next call. Fonts are cut to whole pixels, so that a text
/// has the same size on the screen, on paper and in a file.
const PictureFont& FontFor(const FontWish& wish);

} // namespace forcelab::screen
