#include "truss/TrussEditor.h"

#include "core/ArithmeticFault.h"
#include "core/NumericText.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace forcelab::truss {

namespace {

constexpr int kSupportsNeeded = 3;

void ClearIfFree(TrussModel& model, int point)
{
    if (model.IsJoint(point)) return;
    TrussGridPoint& cleared = model.GridPoints[point];
    cleared.SupportX = cleared.SupportY = 0;
    cleared.LoadX = cleared.LoadY = 0;
}

bool WantsJoint(int mode)
{
    return mode != kCreateMembers && mode != kEraseMembers;
}

bool IsMode(int mode)
{
    constexpr std::array<int, 6> kModes{kCreateMembers, kCreateSupports, kCreateLoads,
                                        kEraseMembers,  kEraseSupports,  kEraseLoads};
    return std::find(kModes.begin(), kModes.end(), mode) != kModes.end();
}

/// The stronger axis of a drag: a click without a drag points upward.
void TakeDirection(const TrussModel& model, DragState& drag, double x, double y)
{
    const GridPlace held = HoldToGrid(model, {x, y});
    const double dx = held.X - drag.PressX;
    const double dy = held.Y - drag.PressY;
    const bool upright = std::abs(dy) >= std::abs(dx);
    drag.DirX = upright ? 0 : (dx < 0 ? -1 : 1);
    drag.DirY = !upright ? 0 : (dy < 0 ? -1 : 1);
}

ReleaseOutcome ReleaseSupport(TrussModel& model, const DragState& drag, short flag)
{
    TrussGridPoint& point = model.GridPoints[drag.DragStartPoint];
    (drag.DirY != 0 ? point.SupportY : point.SupportX) = flag;
    return {true, MemberRefusal::None, {}};
}

ReleaseOutcome EraseLoad(TrussModel& model, const DragState& drag)
{
    TrussGridPoint& point = model.GridPoints[drag.DragStartPoint];
    (drag.DirY != 0 ? point.LoadY : point.LoadX) = 0;
    return {true, MemberRefusal::None, {}};
}

} // namespace

MemberRefusal AddMember(TrussModel& model, int from, int to)
{
    if (from > to) std::swap(from, to);
    const MemberRefusal refused = CheckMember(model, from, to);
    if (refused != MemberRefusal::None) return refused;
    TrussMember& added = model.TrussMembers[++model.MemberCount];
    added = {static_cast<short>(from), static_cast<short>(to), 0, 0};
    MarkInteriorPoints(model);
    return MemberRefusal::None;
}

bool EraseMember(TrussModel& model, int from, int to)
{
    if (from > to) std::swap(from, to);
    const auto first = model.TrussMembers.begin() + 1;
    const auto last = first + std::max(0, model.MemberCount);
    const auto found = std::find_if(first, last, [=](const TrussMember& member) {
        return member.FromPoint == from && member.ToPoint == to;
    });
    if (found == last) return false;
    std::move(found + 1, last, found);
    --model.MemberCount;
    ClearIfFree(model, from);
    ClearIfFree(model, to);
    MarkInteriorPoints(model);
    return true;
}

void UndoMember(TrussModel& model)
{
    model.MemberCount = std::max(-1, model.MemberCount - 1);
    MarkInteriorPoints(model);
}

std::optional<bool> ComputeEnabled(const TrussModel& model)
{
    if (!model.HasGrid() || model.MemberCount <= 0) return std::nullopt;
    int supports = 0;
    bool loaded = false;
    for (const TrussGridPoint& point : model.GridPoints) {
        supports += point.SupportX + point.SupportY;
        loaded = loaded || point.LoadX != 0 || point.LoadY != 0;
    }
    return supports >= kSupportsNeeded && loaded;
}

DragState PressPoint(const TrussModel& model, int mode, double x, double y, bool leftButton)
{
    DragState drag;
    if (!model.HasGrid()) return drag;
    const int point = SnapToGrid(model, x, y);
    drag.DragStartPoint = drag.DragEndPoint = point;
    drag.DragX0 = drag.DragX1 = model.GridPoints[point].X;
    drag.DragY0 = drag.DragY1 = model.GridPoints[point].Y;
    const GridPlace held = HoldToGrid(model, {x, y});
    drag.PressX = held.X;
    drag.PressY = held.Y;
    drag.DragActive = leftButton && IsMode(mode) && (!WantsJoint(mode) || model.IsJoint(point));
    return drag;
}

void DragTo(const TrussModel& model, int mode, DragState& drag, double x, double y)
{
    if (!drag.DragActive) return;
    drag.DragX1 = x;
    drag.DragY1 = y;
    if (!WantsJoint(mode)) return;
    TakeDirection(model, drag, x, y);
    const bool forLoad = mode == kCreateLoads || mode == kEraseLoads;
    const TrussScale scale = SetGridScale(model);
    drag.DragX1 = drag.DragX0 + drag.DirX * (forLoad ? scale.LoadArrowX : model.GridSpacingX / 2);
    drag.DragY1 = drag.DragY0 + drag.DirY * (forLoad ? scale.LoadArrowY : model.GridSpacingY / 2);
}

RubberBand BandOf(const TrussModel& model, int mode, const DragState& drag)
{
    RubberBand band;
    if (!drag.DragActive) return band;
    band.Strokes.push_back({drag.DragX0, drag.DragY0, drag.DragX1, drag.DragY1});
    if (mode == kEraseMembers) band.Width = 5;
    if (mode == kCreateSupports) band.Width = 4;
    if (mode == kEraseSupports) band.Width = 7;
    if (mode != kCreateLoads && mode != kEraseLoads) return band;
    band.Width = 3;
    const TrussScale scale = SetGridScale(model);
    for (const int side : {-1, 1}) {
        const double dx = -drag.DirX * scale.ArrowHeadX + side * scale.ArrowHeadX * drag.DirY / 4;
        const double dy = -drag.DirY * scale.ArrowHeadY + side * scale.ArrowHeadY * drag.DirX / 4;
        band.Strokes.push_back({drag.DragX1, drag.DragY1, drag.DragX1 + dx, drag.DragY1 + dy});
    }
    return band;
}

ReleaseOutcome ReleasePoint(TrussModel& model, int mode, DragState& drag, double x, double y)
{
    if (!std::exchange(drag.DragActive, false)) return {};
    drag.DragEndPoint = SnapToGrid(model, x, y);
    TakeDirection(model, drag, x, y);
    switch (mode) {
    case kCreateMembers:
        return {true, AddMember(model, drag.DragStartPoint, drag.DragEndPoint), {}};
    case kEraseMembers:
        EraseMember(model, drag.DragStartPoint, drag.DragEndPoint);
        return {true, MemberRefusal::None, {}};
    case kCreateSupports:
        return ReleaseSupport(model, drag, 1);
    case kEraseSupports:
        return ReleaseSupport(model, drag, 0);
    case kCreateLoads:
        return {true, MemberRefusal::None, LoadQuestion{drag.DragStartPoint, drag.DirX, drag.DirY}};
    case kEraseLoads:
        return EraseLoad(model, drag);
    default:
        return {};
    }
}

std::string LoadQuestion::Prompt() const
{
    if (DirX != 0) return DirX > 0 ? "(left to right direction)" : "(right to left direction)";
    return DirY > 0 ? "(upward direction)" : "(downward direction)";
}

std::string StoreJointLoad(TrussModel& model, const LoadQuestion& question, std::string_view typed)
{
    const double size = std::abs(ParseNumber(typed));
    if (size > std::numeric_limits<float>::max()) throw ArithmeticFault("load too large");
    TrussGridPoint& point = model.GridPoints[question.Point];
    const auto stored = static_cast<float>(size);
    if (question.DirX != 0)
        point.LoadX = question.DirX < 0 ? -stored : stored;
    else
        point.LoadY = question.DirY < 0 ? -stored : stored;
    return Format(size, "");
}

} // namespace forcelab::truss
