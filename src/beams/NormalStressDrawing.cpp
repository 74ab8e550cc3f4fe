#include "beams/StressDrawing.h"
#include "beams/StressPieces.h"
#include "beams/StressSheet.h"
#include "core/Units.h"

#include <algorithm>
#include <cmath>

namespace forcelab::beams {

using sections::CrossSection;

namespace {

constexpr double kFreeSide = 0.12; // of the width, on a side without stress
constexpr double kLabelSide = 0.35;
constexpr double kLeastRoom = 0.3;
constexpr double kGap = 5; // pixels
constexpr double kFaceOverrun = 6;

class NormalPainter {
  public:
    NormalPainter(Picture& pic, const CrossSection& section, const StressDetails& details)
        : section_(section), details_(details), pieces_(StressPiecesOf(section, details.Forces())),
          range_(RangeOf(pieces_)),
          atPoint_(StressAtSpecifiedPoint(section, details).Normal * details.StressUnit()),
          sheet_(pic, SectionBoundsOf(section), "Normal Stress",
                 {BlockAtPoint("Normal Stress at", WithUnit(atPoint_))},
                 BlocksBeside(section, details))
    {
        const double left = range_.Least < 0 ? LabelRoom(range_.Least) : FreeRoom();
        const double right = range_.Greatest > 0 ? LabelRoom(range_.Greatest) : FreeRoom();
        const double room = std::max(sheet_.Width() - left - right, sheet_.Width() * kLeastRoom);
        const bool stressed = range_.Width() > 0;
        scale_ = stressed ? room / range_.Width() : 0;
        axis_ = stressed ? left - range_.Least * scale_ : sheet_.Width() / 2;
    }

    void Draw()
    {
        for (const StressPiece& piece : pieces_)
            for (const StressPiece& part : PartsOfOneSense(piece))
                sheet_.Area(OutlineOf(part), FillOfStress(part.AtBottom + part.AtTop));
        DrawArrows();
        DrawLines();
        DrawLevels();
        for (const bool outer : {true, false}) // the extremes choose their places first
            for (const StressPiece& piece : FromOutside()) LabelEnds(piece, outer);
    }

  private:
    [[nodiscard]] std::string WithUnit(double stress) const
    {
        return StressWithUnit(stress, details_);
    }
    [[nodiscard]] double FreeRoom() const { return sheet_.Width() * kFreeSide; }
    [[nodiscard]] double LabelRoom(double stress) const
    {
        return std::min(
            sheet_.TextPixels(WithUnit(stress) + (section_.CompositeSection ? " (B)" : "")) +
                3 * kGap,
            sheet_.Width() * kLabelSide);
    }

    [[nodiscard]] double X(double stress) const { return axis_ + stress * scale_; }

    [[nodiscard]] std::vector<PicturePoint> OutlineOf(const StressPiece& piece) const
    {
        return {{axis_, piece.Bottom},
                {X(piece.AtBottom), piece.Bottom},
                {X(piece.AtTop), piece.Top},
                {axis_, piece.Top}};
    }

    void DrawArrows()
    {
        for (const double y : sheet_.ArrowLevels()) {
            const double stress = LargestAt(pieces_, y);
            sheet_.StressArrow({axis_, y}, {X(stress), y}, InkOfStress(stress));
        }
    }

    void DrawLines()
    {
        const SectionBounds& b = sheet_.Bounds();
        const double over = sheet_.Inches(kFaceOverrun);
        sheet_.Line({axis_, b.SectionBottom - over}, {axis_, b.SectionTop + over},
                    {kStressInk, 1.5});
        for (const StressPiece& piece : pieces_)
            sheet_.Outline(
                OutlineOf(piece),
                {kStressInk, 1.5, piece.Material == 1 ? LinePattern::Dash : LinePattern::Solid});
    }

    void DrawLevels()
    {
        if (const auto y = NeutralAxisOf(section_, details_.Forces()))
            sheet_.NeutralAxis(*y, details_.BendingMoment < 0);
        sheet_.PointLevel({X(atPoint_), details_.YInches()});
    }

    /// The pieces as their labels stack up at a border: the one nearer to the edge first.
    [[nodiscard]] std::vector<StressPiece> FromOutside() const
    {
        const SectionBounds& b = sheet_.Bounds();
        const auto outward = [&](const StressPiece& piece) {
            return std::abs(piece.Bottom + piece.Top - b.SectionBottom - b.SectionTop);
        };
        std::vector<StressPiece> pieces = pieces_;
        std::stable_sort(pieces.begin(), pieces.end(),
                         [&](const StressPiece& first, const StressPiece& second) {
                             return outward(first) > outward(second);
                         });
        return pieces;
    }

    /// Where another piece goes on beyond an end, each of the two labels stands on its own side.
    [[nodiscard]] bool GoesOn(double StressPiece::*end, double y) const
    {
        return std::any_of(pieces_.begin(), pieces_.end(),
                           [&](const StressPiece& piece) { return piece.*end == y; });
    }

    void LabelEnds(const StressPiece& piece, bool outer)
    {
        const SectionBounds& b = sheet_.Bounds();
        const std::string material =
            !section_.CompositeSection ? "" : (piece.Material == 1 ? " (B)" : " (A)");
        const auto label = [&](double stress, double y, bool upward, bool isOuter) {
            if (isOuter != outer) return;
            const double angle = upward ? kPi / 4 : -kPi / 4;
            sheet_.Text({X(stress), y}, WithUnit(stress) + material,
                        stress < 0 ? kPi - angle : angle, InkOfStress(stress), outer);
        };
        label(piece.AtTop, piece.Top, !GoesOn(&StressPiece::Bottom, piece.Top),
              piece.Top == b.SectionTop);
        label(piece.AtBottom, piece.Bottom, GoesOn(&StressPiece::Top, piece.Bottom),
              piece.Bottom == b.SectionBottom);
    }

    const CrossSection& section_;
    const StressDetails& details_;
    std::vector<StressPiece> pieces_;
    StressRange range_;
    double atPoint_; ///< psi
    StressSheet sheet_;
    double axis_ = 0;  ///< pixels, of no stress
    double scale_ = 0; ///< pixels to the psi
};

} // namespace

void DrawNormalStress(Picture& pic, const CrossSection& section, const StressDetails& details)
{
    NormalPainter(pic, section, details).Draw();
}

} // namespace forcelab::beams
