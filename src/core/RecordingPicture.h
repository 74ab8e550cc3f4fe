#pragma once

#include "core/Picture.h"

namespace forcelab {

/// One thing drawn on a RecordingPicture, with the settings that it was drawn with.
struct RecordedOperation {
    enum class Kind { Dot, Path, SolidBox, Ellipse, Text, Flood, NamedPicture };
    Kind What = Kind::Path;
    std::vector<PicturePoint> Points; ///< user coordinates; Text: upper left and lower right corner
    bool Closed = false;
    double Radius = 0;
    double Aspect = 1;
    std::string Text;
    Colour Fore;
    Colour Fill;
    FillPattern Pattern = FillPattern::Transparent;
    LinePattern Line = LinePattern::Solid;
    double Width = 1;
};

/// A sheet that keeps the operations instead of drawing them. Tests ask it for texts, lines and
/// areas; measuring code may use it where there is no screen. Text is measured by a fixed share of
/// the font size, so that results do not depend on the fonts of a system.
///
/// FloodFill fills the smallest closed outline of the boundary's colour that holds the seed, less
/// such outlines inside it, and Point answers from what was filled. An outline is a closed path, a
/// circle, or a chain of lines of one colour that comes back to its start, to half a pixel.
class RecordingPicture : public Picture {
  public:
    RecordingPicture(double widthPixels, double heightPixels);

    [[nodiscard]] double WidthPixels() const override { return width_; }
    [[nodiscard]] double HeightPixels() const override { return height_; }

    [[nodiscard]] const std::vector<RecordedOperation>& Operations() const { return operations_; }
    [[nodiscard]] std::vector<RecordedOperation> All(RecordedOperation::Kind what) const;
    /// The box of each print, in pixels, x1 <= x2 and y1 <= y2: to prove that labels keep apart.
    struct PixelBox {
        double X1, Y1, X2, Y2;
        std::string Text;
    };
    [[nodiscard]] std::vector<PixelBox> TextBoxes() const;

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
    RecordedOperation& Record(RecordedOperation::Kind what, std::vector<PicturePoint> points);
    void FollowOutline(std::span<const PicturePoint> points, bool closed);
    void AddOutline(std::vector<PicturePoint> corners);
    [[nodiscard]] bool Meet(PicturePoint a, PicturePoint b) const;

    struct Outline {
        std::vector<PicturePoint> Corners;
        Colour Ink;
        [[nodiscard]] bool Holds(PicturePoint point) const;
        [[nodiscard]] double Area() const;
    };
    struct FilledArea {
        Outline Edge;
        Colour Fill;
        std::vector<Outline> Holes;
    };

    double width_;
    double height_;
    std::vector<RecordedOperation> operations_;
    Outline chain_;
    std::vector<Outline> outlines_;
    std::vector<FilledArea> areas_;
};

} // namespace forcelab
