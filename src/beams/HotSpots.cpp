#include "beams/HotSpots.h"

#include "core/NumericText.h"
#include "core/Units.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace forcelab::beams {

namespace {

constexpr std::string_view kClick = "Click for details";
constexpr std::string_view kDoubleClick = "Double click for details";
constexpr std::string_view kReactionHint = "Click for equilibrium equations";
constexpr std::string_view kMomentHint = "Tips on constructing the moment diagram";
constexpr std::string_view kShearHint = "Tips on constructing the shear diagram";
constexpr std::string_view kEditHint =
    "Left click = Shear diagram tips, Right click = Edit load data";
constexpr std::string_view kAreaHint = "Tips for constructing the moment diagram";
constexpr std::string_view kHoverMask = "###0.0";
constexpr int kEnteredByHand = 4000;

/// True for a value between two ends in either order.
bool Between(double value, double end, double otherEnd)
{
    return value >= std::min(end, otherEnd) && value <= std::max(end, otherEnd);
}

void Append(HotSpotTable& spots, const HotSpotLoad& load, PicturePoint corner, PicturePoint other)
{
    const int row = static_cast<int>(spots[0][0]) + 1;
    if (row >= kLoadRows) return;
    spots[0][0] = row;
    spots[row] = {double(load.Kind), corner.X, corner.Y,   other.X,
                  other.Y,           load.X,   load.Value, double(load.Number)};
}

/// The row of the smallest hot spot at a point, or 0.
int SpotAt(const HotSpotTable& spots, PicturePoint at)
{
    int found = 0;
    double smallest = 0;
    for (int row = 1; row <= static_cast<int>(spots[0][0]); ++row) {
        const auto& spot = spots[row];
        if (!Between(at.X, spot[kSpotLeft], spot[kSpotRight]) ||
            !Between(at.Y, spot[kSpotTop], spot[kSpotBottom]))
            continue;
        const double area =
            std::abs((spot[kSpotRight] - spot[kSpotLeft]) * (spot[kSpotBottom] - spot[kSpotTop]));
        if (found != 0 && area >= smallest) continue;
        found = row;
        smallest = area;
    }
    return found;
}

std::string BeamHint(double x, const DiagramUnits& units, bool slopeView)
{
    return std::string(slopeView ? kDoubleClick : kClick) +
           " at X = " + Format(x / LengthFactor(units.Length), kHoverMask) + " " +
           std::string(kLengthUnits.at(units.Length));
}

std::string_view LoadHint(int kind, int diagramEntry)
{
    if (FamilyOf(kind) == kMomentLoad) return kMomentHint;
    return diagramEntry == kEnteredByHand ? kEditHint : kShearHint;
}

bool OverBand(const LoadDiagramAreas& areas, PicturePoint at)
{
    return Between(at.X, 0, areas.BeamLength) && Between(at.Y, 0, -areas.BandHeight);
}

} // namespace

void SaveHotSpot(HotSpotTable& spots, const Picture& pic, const HotSpotLoad& load, double width,
                 double height)
{
    const PicturePoint corner{pic.CurrentX, pic.CurrentY};
    Append(spots, load, corner, {corner.X + width, corner.Y + height});
}

void SaveHotSpot(HotSpotTable& spots, const HotSpotLoad& load, double left, double top,
                 double right)
{
    Append(spots, load, {left, top}, {right, 0});
}

Hover HoverAt(const LoadDiagramAreas& areas, PicturePoint at, const BeamRecord& beam,
              const DiagramUnits& units, bool slopeView)
{
    if (areas.BeamLength <= 0) return {};
    if (OverBand(areas, at)) return {kOverBeam, 0, BeamHint(at.X, units, slopeView)};
    // Loads are drawn before the supports, yet an arrow beside a support is the harder one to hit.
    if (const int row = SpotAt(areas.HotSpots, at)) {
        const int kind = static_cast<int>(areas.HotSpots[row][kSpotKind]);
        return {kOverLoad, row, std::string(LoadHint(kind, beam.DiagramEntry))};
    }
    for (const ReactionArea& area : areas.Reactions)
        if (Between(at.X, area.Left, area.Right) && Between(at.Y, area.Top, area.Bottom))
            return {area.HoverCode, 0, std::string(kReactionHint)};
    return {};
}

std::string_view ShearHintAt(const BeamRecord& beam, const BeamCurves& curves, double x,
                             double shear)
{
    if (beam.LoadCount == 0 || x <= 0 || x >= beam.BeamLength) return {};
    // The curve at x, between the samples on both sides.
    const auto first = curves.CurveX.begin() + 1;
    const auto k = std::lower_bound(first, curves.CurveX.end(), x) - curves.CurveX.begin();
    if (k < 2 || k > kCurvePoints) return {};
    const double span = curves.CurveX[k] - curves.CurveX[k - 1];
    const double share = span > 0 ? (x - curves.CurveX[k - 1]) / span : 1;
    const double curve =
        curves.CurveShear[k - 1] + share * (curves.CurveShear[k] - curves.CurveShear[k - 1]);
    return curve != 0 && shear != 0 && Between(shear, 0, curve) ? kAreaHint : std::string_view();
}

} // namespace forcelab::beams
