#include "beams/StressDrawing.h"
#include "beams/StressSheet.h"
#include "core/NumericText.h"
#include "core/Units.h"

#include <algorithm>
#include <cmath>

namespace forcelab::beams {

using sections::CrossSection;

namespace {

constexpr int kSteps = 20; // of the parabola over one band

// Pixels.
constexpr double kGap = 5;
constexpr double kFaceOverrun = 6;

/// The shear stress over one band in one material.
struct Curve {
    const SectionBand* Band;
    int Material;
    std::vector<PicturePoint> Points; ///< psi and inches, upward
};

std::vector<Curve> CurvesOf(const CrossSection& section, const SectionForces& forces,
                            const std::vector<SectionBand>& bands)
{
    std::vector<Curve> curves;
    for (const SectionBand& band : bands)
        for (const int material : {1, 0}) {
            if (!band.Material[material]) continue;
            Curve curve{&band, material, {}};
            for (int i = 0; i <= kSteps; ++i) {
                const double y = band.Bottom + (band.Top - band.Bottom) * i / kSteps;
                curve.Points.push_back({ShearStressIn(section, forces, band, material, y), y});
            }
            curves.push_back(std::move(curve));
        }
    return curves;
}

/// The texts of picST(3), in the units of the form.
class ShearTexts {
  public:
    ShearTexts(const CrossSection& section, const StressDetails& details)
        : section_(section), details_(details)
    {}

    [[nodiscard]] std::string WithUnit(double stress) const
    {
        return StressWithUnit(stress, details_);
    }

    [[nodiscard]] std::vector<TextBlock> Blocks() const
    {
        std::vector<TextBlock> blocks{Largest()};
        if (ShearLawOf(section_) == ShearLaw::Unknown) return blocks;
        const double stress = StressAtSpecifiedPoint(section_, details_).Shear;
        blocks.push_back(
            BlockAtPoint("X-Y Shear Stress at", WithUnit(stress * details_.StressUnit())));
        if (ShearLawOf(section_) == ShearLaw::ByElements) blocks.push_back(Note());
        return blocks;
    }

  private:
    [[nodiscard]] static std::string Unit(std::string_view unit) { return std::string(unit); }

    [[nodiscard]] std::string Level(double inches) const
    {
        return LevelText(inches, details_) + " " + Unit(ShapeUnitText(details_));
    }

    [[nodiscard]] TextBlock Largest() const
    {
        const auto largest = LargestShearOf(section_, details_.Forces());
        if (!largest)
            return {PlainLabel("Max shear stress"), PlainLabel("cannot be computed"),
                    PlainLabel("Further data are required")};
        return {PlainLabel("Max X-Y Shear Stress"), PlainLabel("at y = " + Level(largest->Y)),
                PlainLabel("= " + WithUnit(largest->Stress))};
    }

    [[nodiscard]] TextBlock Note() const
    {
        const double unit = details_.LengthUnit();
        const double q = SectionPartAbove(section_, details_.YInches()).Q / (unit * unit * unit);
        Label value =
            PlainLabel("Q = " + Format(q, "###,###,##0.000") + " " + Unit(ShapeUnitText(details_)));
        value.push_back({"3", LabelPart::Kind::Superscript});
        TextBlock note{PlainLabel("Note:  At y = " + Level(details_.YInches())), value};
        if (section_.CompositeSection)
            note.push_back(PlainLabel("(transforming Material 2 to Material 1)"));
        return note;
    }

    const CrossSection& section_;
    const StressDetails& details_;
};

class ShearPainter {
  public:
    ShearPainter(Picture& pic, const CrossSection& section, const StressDetails& details)
        : section_(section), details_(details), texts_(section, details), bands_(BandsOf(section)),
          curves_(CurvesOf(section, details.Forces(), bands_)),
          sheet_(pic, SectionBoundsOf(section), "Shear Stress", texts_.Blocks(), {})
    {
        const double width = sheet_.Width();
        const auto largest = LargestShearOf(section, details.Forces());
        const double peak = largest ? largest->Stress : 0;
        const double label = sheet_.TextPixels(texts_.WithUnit(peak)) + 4 * kGap;
        const double room = std::max(width * 0.86 - label, width * 0.35);
        axis_ = peak < 0 ? width * 0.88 : width * 0.12;
        scale_ = peak != 0 ? room / std::abs(peak) : 0;
    }

    void Draw()
    {
        if (ShearLawOf(section_) != ShearLaw::ByElements) return Refuse();
        DrawCurves();
        DrawLevels();
        LabelLargest();
        LabelJumps();
    }

  private:
    void Refuse()
    {
        const SectionBounds& b = sheet_.Bounds();
        const PicturePoint middle{sheet_.Width() / 2, (b.SectionBottom + b.SectionTop) / 2};
        const double half = sheet_.Inches(sheet_.LinePixels() / 2);
        Picture& pic = sheet_.Sheet();
        pic.ForeColor = kFaintInk;
        PrintText(pic, middle.X, middle.Y + half, "Shear stress distribution", HAlign::Centre,
                  VAlign::Middle);
        PrintText(pic, middle.X, middle.Y - half, "not drawn for this shape.", HAlign::Centre,
                  VAlign::Middle);
    }

    [[nodiscard]] double X(double stress) const { return axis_ + stress * scale_; }

    [[nodiscard]] std::vector<PicturePoint> OutlineOf(const Curve& curve) const
    {
        std::vector<PicturePoint> points{{axis_, curve.Band->Bottom}};
        for (const PicturePoint& p : curve.Points) points.push_back({X(p.X), p.Y});
        points.push_back({axis_, curve.Band->Top});
        return points;
    }

    void DrawCurves()
    {
        for (const Curve& curve : curves_) sheet_.Area(OutlineOf(curve), kShearFill);
        for (const Curve& curve : curves_)
            sheet_.Outline(
                OutlineOf(curve),
                {kShearInk, 1.5, curve.Material == 1 ? LinePattern::Dash : LinePattern::Solid});
        const SectionBounds& b = sheet_.Bounds();
        const double over = sheet_.Inches(kFaceOverrun);
        sheet_.Line({axis_, b.SectionBottom - over}, {axis_, b.SectionTop + over},
                    {kStressInk, 1.5});
    }

    void DrawLevels()
    {
        sheet_.NeutralAxis(0, axis_ < sheet_.Width() / 2);
        const double stress =
            StressAtSpecifiedPoint(section_, details_).Shear * details_.StressUnit();
        sheet_.PointLevel({X(stress), details_.YInches()});
    }

    [[nodiscard]] double Outward() const { return details_.ShearForce < 0 ? kPi : 0; }

    void LabelLargest()
    {
        const auto largest = LargestShearOf(section_, details_.Forces());
        if (largest && largest->Stress != 0)
            sheet_.Text({X(largest->Stress), largest->Y}, texts_.WithUnit(largest->Stress),
                        Outward(), kShearInk);
    }

    /// Both sides of every jump; one label is enough where the curve goes on without one.
    void LabelJumps()
    {
        for (const Curve& curve : curves_) {
            LabelEnd(curve, curve.Points.back(), -kPi / 5);
            LabelEnd(curve, curve.Points.front(), kPi / 5);
        }
    }

    void LabelEnd(const Curve& curve, PicturePoint end, double angle)
    {
        const SectionBounds& b = sheet_.Bounds();
        const auto largest = LargestShearOf(section_, details_.Forces());
        const bool isEdge = end.Y <= b.SectionBottom || end.Y >= b.SectionTop;
        const bool isLargest = largest && end.Y == largest->Y &&
                               curve.Material == largest->Material && end.X == largest->Stress;
        if (isEdge || isLargest) return;
        sheet_.Text({X(end.X), end.Y}, texts_.WithUnit(end.X), Outward() == 0 ? angle : kPi - angle,
                    kShearInk, false);
    }

    const CrossSection& section_;
    const StressDetails& details_;
    ShearTexts texts_;
    std::vector<SectionBand> bands_;
    std::vector<Curve> curves_;
    StressSheet sheet_;
    double axis_ = 0;  ///< pixels, of no stress
    double scale_ = 0; ///< pixels to the psi
};

} // namespace

std::vector<TextBlock> ShearBlocks(const CrossSection& section, const StressDetails& details)
{
    return ShearTexts(section, details).Blocks();
}

void DrawShearStress(Picture& pic, const CrossSection& section, const StressDetails& details)
{
    ShearPainter(pic, section, details).Draw();
}

} // namespace forcelab::beams
