#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace forcelab {

struct Colour {
    std::uint8_t Red = 0;
    std::uint8_t Green = 0;
    std::uint8_t Blue = 0;
    bool operator==(const Colour&) const = default;
};

constexpr Colour Rgb(int red, int green, int blue)
{
    return {static_cast<std::uint8_t>(red), static_cast<std::uint8_t>(green),
            static_cast<std::uint8_t>(blue)};
}

/// The 16 colours of the classic indexed palette: 0 black, 1 blue, 2 green, 3 cyan, 4 red,
/// 5 magenta, 6 brown, 7 light grey, 8 dark grey, 9 to 14 the light ones of 1 to 6, 15 white.
/// Any other index is black.
Colour IndexedColour(int index);

struct PicturePoint {
    double X = 0;
    double Y = 0;
    bool operator==(const PicturePoint&) const = default;
};

enum class FillPattern {
    Solid,
    Transparent,
    HorizontalLine,
    VerticalLine,
    UpwardDiagonal,
    DownwardDiagonal,
    Cross,
    DiagonalCross,
};

enum class LinePattern { Solid, Dash, Dot, DashDot, DashDotDot, Invisible };

/// A sheet to draw on, in a user scale of its own: a window, a printed page, a file, or a test's
/// record of what was drawn.
///
/// The scale runs from (left, top) to (right, bottom); y runs upward where top is above bottom.
/// The settings are plain members and hold for the operations that follow. A coordinate that is
/// not finite throws ArithmeticFault. Text is UTF-8; in the font "Symbol" the letters a to z and
/// A to Z are the Greek ones.
class Picture {
  public:
    Picture() = default;
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;
    virtual ~Picture() = default;

    // Settings.
    Colour ForeColor = Rgb(0, 0, 0);
    Colour FillColor = Rgb(0, 0, 0);
    Colour BackColor = Rgb(255, 255, 255);
    FillPattern FillStyle = FillPattern::Transparent;
    LinePattern DrawStyle = LinePattern::Solid;
    double DrawWidth = 1; ///< pixels
    double CurrentX = 0;
    double CurrentY = 0;
    std::string FontName = "MS Sans Serif"; ///< this name is the program's own sans serif
    double FontSize = 8;                    ///< points, 96 to the inch of pixels
    bool FontBold = false;
    bool FontItalic = false;
    bool FontTransparent = true; ///< False: text stands on a ground of BackColor
    bool Smooth = true;          ///< False: no anti-aliasing, as reading colours back needs

    // Scale.
    void Scale(double left, double top, double right, double bottom);
    void ScaleToPixels(); ///< one unit a pixel, y downward
    [[nodiscard]] double ScaleLeft() const { return left_; }
    [[nodiscard]] double ScaleTop() const { return top_; }
    [[nodiscard]] double ScaleWidth() const { return right_ - left_; }
    [[nodiscard]] double ScaleHeight() const { return bottom_ - top_; } ///< below 0: y runs upward
    [[nodiscard]] virtual double WidthPixels() const = 0;
    [[nodiscard]] virtual double HeightPixels() const = 0;
    [[nodiscard]] double ScaleX(double width) const;  ///< pixels of a width, signed like the scale
    [[nodiscard]] double ScaleY(double height) const; ///< pixels of a height, signed like the scale
    [[nodiscard]] PicturePoint ToPixels(PicturePoint point) const;
    [[nodiscard]] PicturePoint FromPixels(PicturePoint pixels) const;
    [[nodiscard]] double UserWidth(double pixels) const;  ///< size in x of so many pixels, positive
    [[nodiscard]] double UserHeight(double pixels) const; ///< size in y of so many pixels, positive

    // Drawing. Lines and outlines take ForeColor, DrawWidth and DrawStyle; interiors FillColor and
    // FillStyle.
    void Cls();
    void PSet(double x, double y);
    void Line(double x1, double y1, double x2, double y2); ///< leaves the current point at its end
    void LineTo(double x, double y);                       ///< from the current point
    void Box(double x1, double y1, double x2, double y2);
    void FilledBox(double x1, double y1, double x2, double y2); ///< filled with ForeColor
    void Circle(double x, double y, double radius); ///< radius in units of x, round on the screen
    /// Arc from `start` to `end`, counterclockwise as seen, radians; `aspect` is height to width
    /// of the ellipse, `radius` its longer half axis. The interior of an arc is not filled.
    void Circle(double x, double y, double radius, double start, double end, double aspect = 1);
    void Polyline(std::span<const PicturePoint> points);
    void Polygon(std::span<const PicturePoint> points); ///< closed; the interior is filled
    /// Text with its upper left corner at the current point, which moves to the text's right end.
    void Print(std::string_view text);
    [[nodiscard]] double TextWidth(std::string_view text) const;  ///< units of x, positive
    [[nodiscard]] double TextHeight(std::string_view text) const; ///< units of y, positive
    /// Fills with FillColor from (x, y) as far as the colour `boundary`.
    void FloodFill(double x, double y, Colour boundary);
    /// The colour at (x, y); BackColor outside the picture.
    [[nodiscard]] Colour Point(double x, double y) const;
    /// Draws one of the program's own pictures by its name into a box of the scale.
    void PaintPicture(std::string_view name, double x1, double y1, double x2, double y2);

    /// What was printed since the last Cls, in order. A print that goes on where the one before
    /// it ended makes one text with it; Greek letters stand as themselves.
    [[nodiscard]] const std::vector<std::string>& Texts() const { return texts_; }

  protected:
    // What a sheet provides; coordinates are the user's, and finite.
    virtual void DrawClear() = 0;
    virtual void DrawDot(PicturePoint at) = 0;
    virtual void DrawPath(std::span<const PicturePoint> points, bool closed) = 0;
    virtual void DrawSolidBox(PicturePoint corner, PicturePoint opposite) = 0;
    virtual void DrawWholeEllipse(PicturePoint centre, double radius, double aspect) = 0;
    virtual void DrawText(PicturePoint at, std::string_view text) = 0;
    virtual void DrawFlood(PicturePoint seed, Colour boundary) = 0;
    [[nodiscard]] virtual Colour ReadColour(PicturePoint at) const = 0;
    virtual void DrawNamedPicture(std::string_view name, PicturePoint corner,
                                  PicturePoint opposite) = 0;
    [[nodiscard]] virtual double TextWidthPixels(std::string_view text) const = 0;
    [[nodiscard]] virtual double TextHeightPixels(std::string_view text) const = 0;

  private:
    void NoteText(std::string_view text, double endX);

    double left_ = 0;
    double top_ = 0;
    double right_ = 1;
    double bottom_ = 1;
    std::vector<std::string> texts_;
    double textEndX_ = 0;
    double textY_ = 0;
    bool textOpen_ = false;
};

/// Greek for the letters of a text in the font "Symbol": "s" is sigma, "e" epsilon, "t" tau.
std::string SymbolToUnicode(std::string_view text);

} // namespace forcelab
