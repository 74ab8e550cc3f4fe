#include "truss/TrussModel.h"

#include "core/NumericText.h"

#include <algorithm>
#include <cmath>

namespace forcelab::truss {

namespace {

constexpr int kMaxSpaces = 50;
// Lengths are compared to 0.0001, so that points of a finer grid would all lie on every member.
constexpr double kLeastSpacing = 0.001;
constexpr double kGreatestSpacing = 1e9;
constexpr double kBorder = 0.45; // of a spacing
constexpr double kBorderShare = 9;

double Extent(int spaces, float spacing)
{
    return spaces * static_cast<double>(spacing);
}

/// The margin of one direction: 0.45 of a spacing, or a ninth of the scale if that is more.
double Margin(double extent, float spacing)
{
    const double margin = kBorder * spacing;
    return std::max(margin, (extent + 2 * margin) / kBorderShare);
}

double HoldOne(double value, int spaces, float spacing)
{
    return std::clamp(value, -kBorder * spacing, Extent(spaces, spacing) + kBorder * spacing);
}

bool IsUsable(double spacing)
{
    return spacing >= kLeastSpacing && spacing <= kGreatestSpacing;
}

} // namespace

bool TrussModel::IsJoint(int point) const
{
    const auto members = Members();
    return std::any_of(members.begin(), members.end(), [point](const TrussMember& member) {
        return member.FromPoint == point || member.ToPoint == point;
    });
}

bool DefineGrid(TrussModel& model, const GridEntry& entry)
{
    const double spacingX = std::abs(ParseNumber(entry.SpacingX));
    const double spacingY = std::abs(ParseNumber(entry.SpacingY));
    if (!IsUsable(spacingX) || !IsUsable(spacingY)) return false;
    model.GridSpacesX = std::clamp(entry.SpacesX, 1, kMaxSpaces);
    model.GridSpacesY = std::clamp(entry.SpacesY, 1, kMaxSpaces);
    model.GridSpacingX = static_cast<float>(spacingX);
    model.GridSpacingY = static_cast<float>(spacingY);
    MakeTrussGridCoords(model);
    return true;
}

void MakeTrussGridCoords(TrussModel& model)
{
    model.GridPointCount = (model.GridSpacesY + 1) * (model.GridSpacesX + 1);
    model.GridPoints.assign(model.GridPointCount + 1, {});
    model.GridPointBlocked.assign(model.GridPointCount + 1, 0);
    model.MemberCount = 0;
    model.TrussMembers.fill({});
    for (int i = 0; i <= model.GridSpacesX; ++i)
        for (int j = 0; j <= model.GridSpacesY; ++j) {
            TrussGridPoint& point = model.GridPoints[model.PointAt(i, j)];
            point.X = static_cast<float>(i) * model.GridSpacingX;
            point.Y = static_cast<float>(j) * model.GridSpacingY;
        }
}

TrussScale SetGridScale(const TrussModel& model)
{
    const double width = Extent(model.GridSpacesX, model.GridSpacingX);
    const double height = Extent(model.GridSpacesY, model.GridSpacingY);
    const double marginX = Margin(width, model.GridSpacingX);
    const double marginY = Margin(height, model.GridSpacingY);
    TrussScale scale;
    scale.Left = -marginX;
    scale.Top = height + marginY;
    scale.Right = width + marginX;
    scale.Bottom = -marginY;
    scale.LoadArrowX = (scale.Right - scale.Left) / 10;
    scale.LoadArrowY = (scale.Top - scale.Bottom) / 10;
    scale.ArrowHeadX = scale.LoadArrowX / 3;
    scale.ArrowHeadY = scale.LoadArrowY / 2.5;
    return scale;
}

GridPlace HoldToGrid(const TrussModel& model, GridPlace place)
{
    return {HoldOne(place.X, model.GridSpacesX, model.GridSpacingX),
            HoldOne(place.Y, model.GridSpacesY, model.GridSpacingY)};
}

int SnapToGrid(const TrussModel& model, double x, double y)
{
    const GridPlace held = HoldToGrid(model, {x, y});
    const auto nearest = [](double share) { return static_cast<int>(std::nearbyint(share)); };
    return model.PointAt(nearest(held.X / model.GridSpacingX),
                         nearest(held.Y / model.GridSpacingY));
}

} // namespace forcelab::truss
