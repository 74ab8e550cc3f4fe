#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace forcelab::truss {

inline constexpr int kMaxMembers = 100;

struct TrussGridPoint {
    float X = 0;
    float Y = 0;
    short SupportX = 0; ///< 1: restrained in X
    short SupportY = 0;
    float LoadX = 0; ///< positive from left to right
    float LoadY = 0; ///< positive upward
};

struct TrussMember {
    short FromPoint = 0; ///< grid point, smaller than ToPoint
    short ToPoint = 0;
    float CosX = 0; ///< unit vector from FromPoint toward ToPoint, written by the analysis
    float SinY = 0;
};

/// A truss on its grid: what the editor changes and the solver reads. Units are the user's own.
/// Members occupy slots 1 to MemberCount; slot 0 takes what is drawn after more undos than
/// members, and MemberCount is then below 1.
struct TrussModel {
    int GridSpacesX = 3;
    int GridSpacesY = 3;
    float GridSpacingX = 10;
    float GridSpacingY = 10;
    int GridPointCount = 0;                 ///< 0: no grid yet
    std::vector<TrussGridPoint> GridPoints; ///< (i, j) at (GridSpacesY + 1) * i + j
    std::vector<short> GridPointBlocked;    ///< 1: on the inside of a member
    int MemberCount = 0;                    ///< may be -1
    std::array<TrussMember, kMaxMembers + 1> TrussMembers{};

    [[nodiscard]] bool HasGrid() const { return GridPointCount > 0; }
    [[nodiscard]] int PointAt(int i, int j) const { return (GridSpacesY + 1) * i + j; }
    /// Slots 1 to MemberCount.
    [[nodiscard]] std::span<const TrussMember> Members() const
    {
        return {TrussMembers.data() + 1,
                static_cast<std::size_t>(MemberCount > 0 ? MemberCount : 0)};
    }
    /// True where a member starts or ends on the grid point.
    [[nodiscard]] bool IsJoint(int point) const;
};
inline TrussModel CurrentTruss;

/// What frmDefGrid hands over: spaces in both directions and the typed spacings.
struct GridEntry {
    int SpacesX = 3;
    int SpacesY = 3;
    std::string SpacingX;
    std::string SpacingY;
};

/// Lays a new grid without members. The spaces are held to 1 to 50; a spacing counts without its
/// sign. False, and the model stays as it was, where a spacing is 0 or so small or large that
/// points could not be told apart. Throws ArithmeticFault where a number is too large to read.
bool DefineGrid(TrussModel& model, const GridEntry& entry);

/// Allocates the points of the model's grid, free of supports and loads, and removes all members.
void MakeTrussGridCoords(TrussModel& model);

/// The scale of picTruss for a grid, y upward, and the sizes of arrows, in the grid's unit.
struct TrussScale {
    double Left = 0;
    double Top = 1;
    double Right = 1;
    double Bottom = 0;
    double LoadArrowX = 0;
    double LoadArrowY = 0;
    double ArrowHeadX = 0;
    double ArrowHeadY = 0;
};
TrussScale SetGridScale(const TrussModel& model);

/// A place in the picture, in the grid's unit.
struct GridPlace {
    double X = 0;
    double Y = 0;
};
/// A place held to within 0.45 of a spacing of the grid.
GridPlace HoldToGrid(const TrussModel& model, GridPlace place);

/// The grid point nearest to a place in the picture, which is first held to the grid; halves go to
/// the even point. The model must have a grid.
int SnapToGrid(const TrussModel& model, double x, double y);

} // namespace forcelab::truss
