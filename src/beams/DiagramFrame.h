#pragma once

#include "beams/BeamTexts.h"
#include "core/DrawingHelpers.h"

#include <optional>
#include <string>
#include <vector>

namespace forcelab::beams {

// What all diagrams of a beam share: colours, the place of the beam on the sheet, and labels that
// keep apart. Sizes are in pixels.

inline constexpr Colour kInk = Rgb(0x26, 0x32, 0x38);
inline constexpr Colour kKeyLine = Rgb(0xc9, 0xd1, 0xd8);
inline constexpr Colour kBaseline = Rgb(0x60, 0x6c, 0x76);
inline constexpr Colour kSteel = Rgb(0x1f, 0x4e, 0x79);
inline constexpr Colour kSteelFill = Rgb(0xdc, 0xe9, 0xf5);
inline constexpr Colour kPointColour = Rgb(0xb2, 0x3a, 0x2e);
inline constexpr Colour kUniformColour = Rgb(0x1f, 0x6f, 0x8b);
inline constexpr Colour kUniformFill = Rgb(0xe6, 0xf2, 0xf6);
inline constexpr Colour kMomentColour = Rgb(0x75, 0x49, 0x9c);
inline constexpr Colour kReactionColour = Rgb(0x2e, 0x7d, 0x32);
inline constexpr Colour kMarkerColour = Rgb(0xd8, 0x6f, 0x00);

/// Scales x so that the beam takes the same place on all pictures of one width, in inches.
void ScaleFrame(Picture& pic, double beamLength, double top, double bottom);
/// Pixels to the left of the beam's start; there stand the titles and the sign convention.
double LeftMargin(const Picture& pic);
/// The pixel column of an x.
double ColumnOf(const Picture& pic, double x);

/// A box on the sheet in pixels, y downward.
struct PixelBox {
    double X1 = 0, Y1 = 0, X2 = 0, Y2 = 0;
    [[nodiscard]] bool Meets(const PixelBox& other, double gap) const
    {
        return X1 < other.X2 + gap && other.X1 < X2 + gap && Y1 < other.Y2 + gap &&
               other.Y1 < Y2 + gap;
    }
};

/// Boxes in use on one sheet.
class LabelBoard {
  public:
    explicit LabelBoard(Picture& pic) : pic_(pic) {}

    /// The box of a text in the picture's font, with its side or middle at (x, y).
    [[nodiscard]] PixelBox BoxOf(const std::string& text, double x, double y, HAlign across,
                                 VAlign along) const;
    /// True on the sheet and off all boxes in use.
    [[nodiscard]] bool IsFree(const PixelBox& box) const;
    void Take(const PixelBox& box) { taken_.push_back(box); }
    void Print(const PixelBox& box, const std::string& text, Colour ink);
    /// Takes the box and prints the text.
    void Put(const PixelBox& box, const std::string& text, Colour ink);
    /// The height of a line of text.
    [[nodiscard]] double LineHeight() const;

  private:
    Picture& pic_;
    std::vector<PixelBox> taken_;
};

/// The fonts that crowded labels try in turn, from the picture's own down to the smallest.
std::vector<double> FontSteps(double fontSize);
/// Chooses the largest of them in which a line of text is no wider than the picture.
void FitText(Picture& pic, const std::string& text);

/// The key points of a beam, ends and supports first, then `more`, then the loads.
std::vector<double> PositionsToPrint(const BeamRecord& beam, const std::vector<double>& more);
/// Prints positions under `top`, in as many rows as fit above `bottom`. What finds no room even in
/// the smallest font is left out, the last first.
void PrintPositions(Picture& pic, LabelBoard& board, const std::vector<double>& points,
                    const DiagramUnits& units, double top, double bottom);

/// A line between two points in pixels, in a colour and width.
void PixelLine(Picture& pic, PicturePoint from, PicturePoint to, Colour colour, double width = 1);

} // namespace forcelab::beams
