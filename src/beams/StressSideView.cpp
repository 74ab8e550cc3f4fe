#include "beams/StressDrawing.h"
#include "beams/StressPieces.h"
#include "beams/StressSheet.h"
#include "core/Units.h"

#include <algorithm>
#include <cmath>

namespace forcelab::beams {

using sections::CrossSection;

namespace {

constexpr double kGap = 5; // pixels
constexpr double kPanelGap = 20;
constexpr double kSliceShare = 0.18; // of the width
constexpr double kNameShare = 0.4;   // of a panel
constexpr int kWaves = 24;           // lines of the broken edge
constexpr double kWavePixels = 3;
constexpr Colour kSliceFill = Rgb(232, 232, 228);

/// What one panel of the side view shows.
struct Panel {
    std::string Name;
    std::string Before; ///< between the panel and the one before it
    SectionForces Forces;
};

std::vector<Panel> PanelsOf(const StressDetails& details)
{
    const SectionForces axial{details.AxialForce, 0, 0};
    const SectionForces bending{0, 0, details.BendingMoment};
    if (details.BendingMoment == 0) return {{"axial", "", axial}};
    if (details.AxialForce == 0) return {{"bending", "", bending}};
    return {{"axial", "", axial}, {"bending", "+", bending}, {"sum", "=", details.Forces()}};
}

std::string FormulaOf(const CrossSection& section, const StressDetails& details)
{
    const std::string inMaterialB = section.CompositeSection ? ", times n in Material B" : "";
    if (details.BendingMoment == 0) return " = N / A" + inMaterialB;
    return (details.AxialForce == 0 ? " = -M y / I" : " = N / A - M y / I") + inMaterialB;
}

TextBlock LegendOf(const CrossSection& section, const StressDetails& details)
{
    const auto y = NeutralAxisOf(section, details.Forces());
    const Label formula{{"s", LabelPart::Kind::Greek},
                        {FormulaOf(section, details), LabelPart::Kind::Plain}};
    const std::string level = y ? "Neutral axis at y = " + LevelText(*y, details) + " " +
                                      std::string(ShapeUnitText(details))
                                : "No neutral axis in the section";
    return {PlainLabel(""), formula, PlainLabel(level)}; // names of the panels come first
}

class SidePainter {
  public:
    SidePainter(Picture& pic, const CrossSection& section, const StressDetails& details)
        : section_(section), details_(details), panels_(PanelsOf(details)),
          sheet_(pic, SectionBoundsOf(section), "Stresses on the Cut Face",
                 {LegendOf(section, details)}, BlocksBeside(section, details))
    {
        face_ = kGap + kSliceShare * sheet_.Width();
        panel_ = (sheet_.Width() - face_) / static_cast<double>(panels_.size());
        double largest = 0;
        for (const Panel& panel : panels_)
            largest = std::max(largest, RangeOf(StressPiecesOf(section, panel.Forces)).Largest());
        scale_ = largest > 0 ? (panel_ - kPanelGap - 2 * kGap) / largest : 0;
    }

    void Draw()
    {
        DrawSlice();
        for (std::size_t i = 0; i < panels_.size(); ++i) DrawPanel(panels_[i], FaceOf(i));
        for (std::size_t i = 0; i < panels_.size(); ++i) MarkPanel(panels_[i], FaceOf(i));
        if (const auto y = NeutralAxisOf(section_, details_.Forces())) sheet_.NeutralAxis(*y, true);
        for (std::size_t i = 0; i < panels_.size(); ++i) LabelPanel(panels_[i], FaceOf(i));
    }

  private:
    [[nodiscard]] double FaceOf(std::size_t panel) const
    {
        return face_ + panel_ * static_cast<double>(panel);
    }

    /// The end of the beam left of the cut, broken off at its other side.
    void DrawSlice()
    {
        const SectionBounds& b = sheet_.Bounds();
        std::vector<PicturePoint> edge;
        for (int i = 0; i <= kWaves; ++i) {
            const double share = double(i) / kWaves;
            edge.push_back({2 * kGap + kWavePixels * std::sin(share * 4 * kPi),
                            b.SectionBottom + share * b.Depth()});
        }
        std::vector<PicturePoint> body = edge;
        body.push_back({face_, b.SectionTop});
        body.push_back({face_, b.SectionBottom});
        sheet_.Area(body, kSliceFill);
        sheet_.Outline(edge, {kFaintInk});
        sheet_.Line(edge.front(), {face_, b.SectionBottom}, {kStressInk});
        sheet_.Line(edge.back(), {face_, b.SectionTop}, {kStressInk});
        for (const SectionBand& band : BandsOf(section_))
            if (band.Top < b.SectionTop)
                sheet_.Line({2 * kGap, band.Top}, {face_, band.Top}, {kFaintInk});
    }

    /// Both senses to the right of the face: tension pulls away from it, compression pushes on it.
    void DrawPanel(const Panel& panel, double face)
    {
        const SectionBounds& b = sheet_.Bounds();
        const auto pieces = StressPiecesOf(section_, panel.Forces);
        for (const StressPiece& piece : pieces)
            for (const StressPiece& part : PartsOfOneSense(piece)) DrawPart(part, face);
        for (const double y : sheet_.ArrowLevels()) {
            const double stress = LargestAt(pieces, y);
            const PicturePoint near{face, y};
            const PicturePoint far{face + std::abs(stress) * scale_, y};
            sheet_.StressArrow(stress > 0 ? near : far, stress > 0 ? far : near,
                               InkOfStress(stress));
        }
        sheet_.Line({face, b.SectionBottom}, {face, b.SectionTop}, {kStressInk, 1.5});
    }

    void DrawPart(const StressPiece& part, double face)
    {
        const std::vector<PicturePoint> corners{
            {face, part.Bottom},
            {face + std::abs(part.AtBottom) * scale_, part.Bottom},
            {face + std::abs(part.AtTop) * scale_, part.Top},
            {face, part.Top}};
        const double sense = part.AtBottom + part.AtTop;
        sheet_.Area(corners, FillOfStress(sense));
        sheet_.Outline(corners, {InkOfStress(sense)});
    }

    /// A single panel is named by the formula below it.
    void MarkPanel(const Panel& panel, double face)
    {
        if (panels_.size() == 1) return;
        const SectionBounds& b = sheet_.Bounds();
        const double name = sheet_.BlocksTop() - sheet_.Inches(sheet_.LinePixels() / 2);
        sheet_.Mark({face + panel_ * kNameShare, name}, panel.Name);
        if (!panel.Before.empty())
            sheet_.Mark({face - kPanelGap / 2, (b.SectionBottom + b.SectionTop) / 2}, panel.Before);
    }

    void LabelPanel(const Panel& panel, double face)
    {
        const SectionBounds& b = sheet_.Bounds();
        for (const double y : {b.SectionTop, b.SectionBottom}) {
            const double stress = LargestAt(StressPiecesOf(section_, panel.Forces), y);
            const double x = std::min(std::abs(stress) * scale_, panel_ * kNameShare);
            sheet_.Text({face + x, y}, StressText(stress, details_),
                        y == b.SectionTop ? kPi / 2 : -kPi / 2, InkOfStress(stress), false);
        }
    }

    const CrossSection& section_;
    const StressDetails& details_;
    std::vector<Panel> panels_;
    StressSheet sheet_;
    double face_ = 0;  ///< pixels, of the cut
    double panel_ = 0; ///< pixels, width of a panel
    double scale_ = 0; ///< pixels to the psi
};

} // namespace

void DrawStressSideView(Picture& pic, const CrossSection& section, const StressDetails& details)
{
    SidePainter(pic, section, details).Draw();
}

} // namespace forcelab::beams
