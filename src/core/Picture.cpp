#include "core/Picture.h"

#include "core/ArithmeticFault.h"
#include "core/Units.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace forcelab {

namespace {

constexpr std::array<Colour, 16> kPalette{{
    Rgb(0, 0, 0),
    Rgb(0, 0, 128),
    Rgb(0, 128, 0),
    Rgb(0, 128, 128),
    Rgb(128, 0, 0),
    Rgb(128, 0, 128),
    Rgb(128, 128, 0),
    Rgb(192, 192, 192),
    Rgb(128, 128, 128),
    Rgb(0, 0, 255),
    Rgb(0, 255, 0),
    Rgb(0, 255, 255),
    Rgb(255, 0, 0),
    Rgb(255, 0, 255),
    Rgb(255, 255, 0),
    Rgb(255, 255, 255),
}};

// The letters as the font "Symbol" lays them out.
constexpr std::array<std::string_view, 26> kGreekSmall{"α", "β", "χ", "δ", "ε", "φ", "γ", "η", "ι",
                                                       "ϕ", "κ", "λ", "μ", "ν", "ο", "π", "θ", "ρ",
                                                       "σ", "τ", "υ", "ϖ", "ω", "ξ", "ψ", "ζ"};
constexpr std::array<std::string_view, 26> kGreekCapital{
    "Α", "Β", "Χ", "Δ", "Ε", "Φ", "Γ", "Η", "Ι", "ϑ", "Κ", "Λ", "Μ",
    "Ν", "Ο", "Π", "Θ", "Ρ", "Σ", "Τ", "Υ", "ς", "Ω", "Ξ", "Ψ", "Ζ"};

constexpr double kFullTurn = 2 * kPi;
constexpr int kArcSegmentsPerTurn = 180;
constexpr double kAngleRounding = 1e-9; // radians; what a full turn may miss by rounding

PicturePoint FinitePoint(double x, double y)
{
    return {Finite(x), Finite(y)};
}

/// The angle from `start` to `end`, above 0 and at most a full turn.
double Sweep(double start, double end)
{
    const double turned = Finite(end - start);
    if (std::abs(std::abs(turned) - kFullTurn) < kAngleRounding) return kFullTurn;
    const double sweep = std::fmod(turned, kFullTurn);
    return sweep > 0 ? sweep : sweep + kFullTurn;
}

} // namespace

Colour IndexedColour(int index)
{
    return index >= 0 && index < static_cast<int>(kPalette.size()) ? kPalette[index] : kPalette[0];
}

std::string SymbolToUnicode(std::string_view text)
{
    std::string greek;
    for (const char letter : text) {
        if (letter >= 'a' && letter <= 'z')
            greek += kGreekSmall[letter - 'a'];
        else if (letter >= 'A' && letter <= 'Z')
            greek += kGreekCapital[letter - 'A'];
        else
            greek += letter;
    }
    return greek;
}

void Picture::Scale(double left, double top, double right, double bottom)
{
    Finite(right - left);
    Finite(bottom - top);
    if (left == right || top == bottom) throw ArithmeticFault("a picture's scale has no size");
    left_ = left;
    top_ = top;
    right_ = right;
    bottom_ = bottom;
    textOpen_ = false;
}

void Picture::ScaleToPixels()
{
    Scale(0, 0, std::max(1.0, WidthPixels()), std::max(1.0, HeightPixels()));
}

double Picture::ScaleX(double width) const
{
    return width / ScaleWidth() * WidthPixels();
}

double Picture::ScaleY(double height) const
{
    return height / ScaleHeight() * HeightPixels();
}

PicturePoint Picture::ToPixels(PicturePoint point) const
{
    return {ScaleX(point.X - left_), ScaleY(point.Y - top_)};
}

PicturePoint Picture::FromPixels(PicturePoint pixels) const
{
    return {left_ + pixels.X / std::max(1.0, WidthPixels()) * ScaleWidth(),
            top_ + pixels.Y / std::max(1.0, HeightPixels()) * ScaleHeight()};
}

double Picture::UserWidth(double pixels) const
{
    return std::abs(pixels / std::max(1.0, WidthPixels()) * ScaleWidth());
}

double Picture::UserHeight(double pixels) const
{
    return std::abs(pixels / std::max(1.0, HeightPixels()) * ScaleHeight());
}

void Picture::Cls()
{
    texts_.clear();
    textOpen_ = false;
    CurrentX = left_;
    CurrentY = top_;
    DrawClear();
}

void Picture::PSet(double x, double y)
{
    DrawDot(FinitePoint(x, y));
    CurrentX = x;
    CurrentY = y;
}

void Picture::Line(double x1, double y1, double x2, double y2)
{
    const std::array<PicturePoint, 2> ends{FinitePoint(x1, y1), FinitePoint(x2, y2)};
    DrawPath(ends, false);
    CurrentX = x2;
    CurrentY = y2;
}

void Picture::LineTo(double x, double y)
{
    Line(CurrentX, CurrentY, x, y);
}

void Picture::Box(double x1, double y1, double x2, double y2)
{
    const std::array<PicturePoint, 4> corners{FinitePoint(x1, y1), FinitePoint(x2, y1),
                                              FinitePoint(x2, y2), FinitePoint(x1, y2)};
    DrawPath(corners, true);
    CurrentX = x2;
    CurrentY = y2;
}

void Picture::FilledBox(double x1, double y1, double x2, double y2)
{
    DrawSolidBox(FinitePoint(x1, y1), FinitePoint(x2, y2));
    CurrentX = x2;
    CurrentY = y2;
}

void Picture::Circle(double x, double y, double radius)
{
    DrawWholeEllipse(FinitePoint(x, y), std::abs(Finite(radius)), 1);
    CurrentX = x;
    CurrentY = y;
}

void Picture::Circle(double x, double y, double radius, double start, double end, double aspect)
{
    const PicturePoint centre = FinitePoint(x, y);
    const double sweep = Sweep(start, end);
    // The half axes on the screen: the longer one is the radius.
    const double longer = std::abs(ScaleX(Finite(radius)));
    const double across = UserWidth(longer * (Finite(aspect) > 1 ? 1 / aspect : 1));
    const double along = UserHeight(longer * (aspect > 1 ? 1 : aspect));
    const double right = ScaleWidth() > 0 ? 1 : -1;
    const double up = ScaleHeight() > 0 ? -1 : 1;
    const int segments =
        std::max(1, static_cast<int>(std::ceil(sweep / kFullTurn * kArcSegmentsPerTurn)));
    std::vector<PicturePoint> points;
    points.reserve(segments + 1);
    for (int k = 0; k <= segments; ++k) {
        const double t = start + sweep * k / segments;
        points.push_back(
            {centre.X + right * across * std::cos(t), centre.Y + up * along * std::sin(t)});
    }
    DrawPath(points, false);
    CurrentX = x;
    CurrentY = y;
}

void Picture::Polyline(std::span<const PicturePoint> points)
{
    for (const PicturePoint& point : points) FinitePoint(point.X, point.Y);
    if (points.size() >= 2) DrawPath(points, false);
}

void Picture::Polygon(std::span<const PicturePoint> points)
{
    for (const PicturePoint& point : points) FinitePoint(point.X, point.Y);
    if (points.size() >= 2) DrawPath(points, true);
}

void Picture::Print(std::string_view text)
{
    const PicturePoint at = FinitePoint(CurrentX, CurrentY);
    if (text.empty()) return;
    const std::string greek = FontName == "Symbol" ? SymbolToUnicode(text) : std::string();
    const std::string_view shown = greek.empty() ? text : std::string_view(greek);
    DrawText(at, shown);
    const double width = ScaleWidth() > 0 ? TextWidth(text) : -TextWidth(text);
    NoteText(shown, at.X + width);
    CurrentX = at.X + width;
}

void Picture::NoteText(std::string_view text, double endX)
{
    const bool goesOn =
        textOpen_ && CurrentX == textEndX_ && std::abs(CurrentY - textY_) <= TextHeight("X");
    if (goesOn)
        texts_.back() += text;
    else
        texts_.emplace_back(text);
    textOpen_ = true;
    textEndX_ = endX;
    textY_ = CurrentY;
}

double Picture::TextWidth(std::string_view text) const
{
    return FontName == "Symbol" ? UserWidth(TextWidthPixels(SymbolToUnicode(text)))
                                : UserWidth(TextWidthPixels(text));
}

double Picture::TextHeight(std::string_view text) const
{
    return UserHeight(TextHeightPixels(text));
}

void Picture::FloodFill(double x, double y, Colour boundary)
{
    DrawFlood(FinitePoint(x, y), boundary);
}

Colour Picture::Point(double x, double y) const
{
    return ReadColour(FinitePoint(x, y));
}

void Picture::PaintPicture(std::string_view name, double x1, double y1, double x2, double y2)
{
    DrawNamedPicture(name, FinitePoint(x1, y1), FinitePoint(x2, y2));
}

} // namespace forcelab
