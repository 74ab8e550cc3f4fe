#include "beams/StressDrawing.h"

#include "beams/StressSheet.h"
#include "core/Units.h"
#include "sections/ShapeCatalogue.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace forcelab::beams {

using namespace sections;

namespace {

constexpr double kSoftening = 0.6; // share of white in the fill of an element
constexpr double kOverrun = 16;    // pixels, of an axis beyond the section
constexpr double kSide = 34;       // pixels, beside the section
constexpr int kHollowGrey = 8;
constexpr Colour kAxisInk = Rgb(90, 90, 90);
constexpr Colour kHatch = Rgb(120, 80, 160);

Colour Softened(Colour c)
{
    const auto mix = [](int part) { return static_cast<int>(part + (255 - part) * kSoftening); };
    return Rgb(mix(c.Red), mix(c.Green), mix(c.Blue));
}

bool IsRound(const CrossSection& section)
{
    return ShearLawOf(section) == ShearLaw::RoundAtCentre;
}

bool IsHole(const CrossSection& section, int element)
{
    const int layout = LayoutOf(section.ShapeIndex);
    return element == 1 && (layout == kPipe || (layout == kBox && !section.CompositeSection));
}

Colour FillOf(const CrossSection& section, int element)
{
    if (IsHole(section, element)) return Rgb(255, 255, 255);
    const bool plain = IsRound(section) || section.ShapeIndex == kSpecified;
    return Softened(plain ? IndexedColour(kHollowGrey) : section.ElementColour[element]);
}

/// Pixels to the inch across and the middle of the section in pixels.
struct Across {
    double Scale = 1;
    double Middle = 0; ///< of the bounds, pixels
    double Offset = 0; ///< of the bounds, inches
    [[nodiscard]] double X(double z) const { return Middle + (z - Offset) * Scale; }
    [[nodiscard]] double Z(double x) const { return Offset + (x - Middle) / Scale; }
};

/// True to shape where the section is not too wide for the picture, else squeezed into it.
Across AcrossOf(const Picture& pic, const SectionBounds& b)
{
    const double wide = std::max(b.SectionRight - b.SectionLeft, 1e-300);
    const double same = std::abs(pic.ScaleY(1)); // pixels to the inch upward
    const double room = std::max(pic.WidthPixels() - 2 * kSide, kSide);
    return {std::min(same, room / wide), pic.WidthPixels() / 2,
            (b.SectionLeft + b.SectionRight) / 2};
}

class SectionPainter {
  public:
    SectionPainter(Picture& pic, const CrossSection& section, const StressDetails& details)
        : section_(section), details_(details),
          sheet_(pic, SectionBoundsOf(section), "Cross-Section", {PointBlock()},
                 BlocksBeside(section, details)),
          across_(AcrossOf(pic, sheet_.Bounds()))
    {}

    void Draw()
    {
        for (int k = 0; k < kElements; ++k)
            if (section_.Shown[k]) DrawElement(k);
        const bool shear = details_.KeyStressView == kShearView;
        if (shear && ShearLawOf(section_) == ShearLaw::ByElements) HatchPartAbove();
        DrawAxes();
        DrawPoint();
    }

  private:
    [[nodiscard]] TextBlock PointBlock() const
    {
        const auto [z, y] = CoordTexts(details_);
        const std::string unit(ShapeUnitText(details_));
        return {PlainLabel("Specified coordinates"), PlainLabel("z = " + z + " " + unit),
                PlainLabel("y = " + y + " " + unit)};
    }

    void DrawElement(int k)
    {
        const Corners& e = section_.ElementCornersInches[k];
        if (IsRound(section_)) return DrawRing(k, std::abs(e.Top));
        const auto corners = CornersOf(e);
        sheet_.Area(corners, FillOf(section_, k));
        auto outline = corners;
        outline.push_back(corners.front());
        sheet_.Outline(outline, {kStressInk});
    }

    /// A circle, or an ellipse where the section is squeezed.
    void DrawRing(int k, double radius)
    {
        constexpr int kSides = 90;
        std::vector<PicturePoint> ring;
        for (int i = 0; i <= kSides; ++i) {
            const double t = 2 * kPi * i / kSides;
            ring.push_back({across_.X(radius * std::cos(t)), radius * std::sin(t)});
        }
        sheet_.Area(ring, FillOf(section_, k));
        sheet_.Outline(ring, {kStressInk});
    }

    [[nodiscard]] std::vector<PicturePoint> CornersOf(const Corners& e) const
    {
        const double left = across_.X(e.Left);
        const double right = across_.X(e.Right);
        return {{left, e.Bottom}, {right, e.Bottom}, {right, e.Top}, {left, e.Top}};
    }

    void HatchPartAbove()
    {
        Picture& pic = sheet_.Sheet();
        for (int k = 0; k < kElements; ++k) {
            Corners e = section_.ElementCornersInches[k];
            e.Bottom = std::max(e.Bottom, details_.YInches());
            if (!section_.Shown[k] || e.Bottom >= e.Top) continue;
            const bool hole = IsHole(section_, k);
            pic.ForeColor = kHatch;
            pic.FillColor = hole ? Rgb(255, 255, 255) : kHatch;
            pic.FillStyle = hole ? FillPattern::Solid : FillPattern::UpwardDiagonal;
            pic.Polygon(CornersOf(e));
            pic.FillStyle = FillPattern::Transparent;
        }
    }

    void DrawAxes()
    {
        const SectionBounds& b = sheet_.Bounds();
        const double over = sheet_.Inches(kOverrun * 0.7);
        const PicturePoint left{across_.X(b.SectionLeft) - kOverrun, 0};
        const PicturePoint right{across_.X(b.SectionRight) + kOverrun, 0};
        const PicturePoint low{across_.X(0), b.SectionBottom - over};
        const PicturePoint high{across_.X(0), b.SectionTop + over};
        sheet_.Line(left, right, {kAxisInk, 1, LinePattern::DashDot});
        sheet_.Line(low, high, {kAxisInk, 1, LinePattern::DashDot});
        sheet_.Text(right, "z", 0, kAxisInk);
        sheet_.Text(high, "y", 0, kAxisInk);
    }

    void DrawPoint()
    {
        const SectionBounds& b = sheet_.Bounds();
        const double y = details_.YInches();
        const double x = across_.X(details_.ZInches());
        const StressSheet::Pen pen{kPointInk, 1, LinePattern::Dot};
        sheet_.Line({across_.X(b.SectionLeft) - kOverrun, y},
                    {across_.X(b.SectionRight) + kOverrun, y}, pen);
        sheet_.Line({x, b.SectionBottom}, {x, b.SectionTop}, pen);
        sheet_.Dot({x, y}, kPointInk);
    }

    const CrossSection& section_;
    const StressDetails& details_;
    StressSheet sheet_;
    Across across_;
};

using Draw = void (*)(Picture&, const CrossSection&, const StressDetails&);
constexpr std::array<Draw, 4> kPictures{DrawStressSection, DrawNormalStress, DrawStressSideView,
                                        DrawShearStress};

} // namespace

void DrawStressSection(Picture& pic, const CrossSection& section, const StressDetails& details)
{
    SectionPainter(pic, section, details).Draw();
}

void DrawStressPicture(Picture& pic, int index, const CrossSection& section,
                       const StressDetails& details)
{
    if (index >= 0 && index < static_cast<int>(kPictures.size()))
        kPictures[index](pic, section, details);
}

PicturePoint PointOfPicture(const Picture& pic, const CrossSection& section,
                            const StressDetails& details, PicturePoint at)
{
    const Across across = AcrossOf(pic, SectionBoundsOf(section));
    return {across.Z(at.X) / details.LengthUnit(), at.Y / details.LengthUnit()};
}

} // namespace forcelab::beams
