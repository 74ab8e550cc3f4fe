#pragma once

#include "beams/StressInput.h"
#include "core/LabelPlacer.h"

#include <string>
#include <vector>

namespace forcelab::beams {

/// Texts that stand together below a stress picture, a line each.
using TextBlock = std::vector<Label>;

/// A sheet of the stress pictures: a title, the drawing, and blocks of text below it. The scale
/// has pixels across and inches upward, so that pictures of one height show one section at one
/// height. Lines first, labels last.
class StressSheet {
  public:
    struct Pen {
        Colour Ink;
        double Width = 1;
        LinePattern Pattern = LinePattern::Solid;
    };

    /// `beside` are the blocks of the picture beside this one, which may need more room: the
    /// sections of both then stand at one height.
    StressSheet(Picture& pic, const SectionBounds& inches, const std::string& title,
                const std::vector<TextBlock>& blocks, const std::vector<TextBlock>& beside);

    void Line(PicturePoint from, PicturePoint to, const Pen& pen);
    void Arrow(PicturePoint from, PicturePoint to, Colour ink);       ///< a filled head at the end
    void StressArrow(PicturePoint from, PicturePoint to, Colour ink); ///< unless it is too short
    void Area(const std::vector<PicturePoint>& corners, Colour fill);
    void Outline(const std::vector<PicturePoint>& corners, const Pen& pen);
    void NeutralAxis(double y, bool nameAtLeft); ///< across the whole sheet
    void PointLevel(PicturePoint at);            ///< the specified point's, with its dot
    void Dot(PicturePoint at, Colour ink);
    void Mark(PicturePoint middle, const std::string& text); ///< exactly there
    void Text(PicturePoint at, const std::string& text, double angle, Colour ink,
              bool needed = true);

    [[nodiscard]] double Width() const { return pic_.WidthPixels(); }
    [[nodiscard]] double TextPixels(const std::string& text) const;
    [[nodiscard]] double LinePixels() const;
    [[nodiscard]] double Inches(double pixels) const { return pic_.UserHeight(pixels); }
    [[nodiscard]] double BlocksTop() const { return pic_.FromPixels({0, blocksTop_}).Y; }
    [[nodiscard]] std::vector<double> ArrowLevels() const; ///< of stress arrows, evenly spread
    [[nodiscard]] Picture& Sheet() { return pic_; }
    [[nodiscard]] const SectionBounds& Bounds() const { return bounds_; }

  private:
    struct Layout {
        std::vector<PicturePoint> Corners; ///< pixels, upper left ones
        double Height = 0;
    };
    void Prepare();
    void WriteTitle(const std::string& title);
    [[nodiscard]] Layout LayOut(const std::vector<TextBlock>& blocks) const;
    void Write(const std::vector<TextBlock>& blocks, const Layout& layout);
    void Take(const Pen& pen);

    Picture& pic_;
    LabelPlacer placer_;
    SectionBounds bounds_;
    double blocksTop_ = 0; ///< pixels
};

/// A label of plain text.
Label PlainLabel(std::string text);
/// The block that names the stress at the point, "Normal Stress at" and its two further lines.
TextBlock BlockAtPoint(const std::string& name, const std::string& value);
/// The blocks of the shear stress picture; while it shows, the others keep its height.
std::vector<TextBlock> ShearBlocks(const sections::CrossSection& section,
                                   const StressDetails& details);
std::vector<TextBlock> BlocksBeside(const sections::CrossSection& section,
                                    const StressDetails& details);

// Inks of the stress pictures.
inline constexpr Colour kStressInk = Rgb(25, 25, 25);
inline constexpr Colour kFaintInk = Rgb(120, 120, 120);
inline constexpr Colour kPointInk = Rgb(190, 0, 0);
inline constexpr Colour kNeutralInk = Rgb(0, 105, 60);
inline constexpr Colour kTensionInk = Rgb(20, 60, 150);
inline constexpr Colour kTensionFill = Rgb(208, 224, 247);
inline constexpr Colour kCompressionInk = Rgb(165, 35, 20);
inline constexpr Colour kCompressionFill = Rgb(250, 217, 210);
inline constexpr Colour kShearInk = Rgb(95, 50, 130);
inline constexpr Colour kShearFill = Rgb(232, 220, 244);

constexpr Colour InkOfStress(double stress)
{
    return stress < 0 ? kCompressionInk : kTensionInk;
}
constexpr Colour FillOfStress(double stress)
{
    return stress < 0 ? kCompressionFill : kTensionFill;
}

} // namespace forcelab::beams
