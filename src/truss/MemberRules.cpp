#include "truss/MemberRules.h"

#include <algorithm>
#include <cmath>

namespace forcelab::truss {

namespace {

constexpr double kOnSegment = 0.0001;    // length
constexpr double kSameDirection = 0.001; // of the cosine
constexpr double kShift = 10;            // keeps the parameter of a line away from the origin

struct Place {
    double X, Y;
};
struct Segment {
    Place A, B;
    [[nodiscard]] double Dx() const { return B.X - A.X; }
    [[nodiscard]] double Dy() const { return B.Y - A.Y; }
};
struct Range {
    double First, Second;
    [[nodiscard]] double Lower() const { return std::min(First, Second); }
    [[nodiscard]] double Upper() const { return std::max(First, Second); }
};

Place PlaceOf(const TrussModel& model, int point)
{
    return {model.GridPoints[point].X, model.GridPoints[point].Y};
}

Segment SegmentOf(const TrussModel& model, int from, int to)
{
    return {PlaceOf(model, from), PlaceOf(model, to)};
}

double Distance(Place a, Place b)
{
    const double dx = b.X - a.X;
    const double dy = b.Y - a.Y;
    return std::sqrt(dx * dx + dy * dy);
}

bool LiesOn(Place p, const Segment& segment, double length)
{
    return std::abs(Distance(segment.A, p) + Distance(p, segment.B) - length) < kOnSegment;
}

/// What tells parallel lines apart: y at x = 0, or x of an upright line.
double LineConstant(const Segment& segment)
{
    if (segment.Dx() == 0) return segment.B.X;
    return segment.B.Y - segment.B.X * (segment.Dy() / segment.Dx());
}

bool SameDirection(const Segment& a, const Segment& b)
{
    const double dot = a.Dx() * b.Dx() + a.Dy() * b.Dy();
    const double c = dot / (Distance(a.A, a.B) * Distance(b.A, b.B));
    return std::abs(c - 1) < kSameDirection;
}

Range Slopes(const Segment& segment)
{
    const auto slope = [](Place p) { return (p.Y + kShift) / (p.X + kShift); };
    return {slope(segment.A), slope(segment.B)};
}

/// For a line through (-10, -10), on which all slopes are equal.
Range Distances(const Segment& segment)
{
    const Place origin{-kShift, -kShift};
    return {Distance(origin, segment.A), Distance(origin, segment.B)};
}

bool Meet(const Range& a, const Range& b)
{
    return a.Upper() > b.Lower() && a.Lower() < b.Upper();
}

bool HasMember(const TrussModel& model, int from, int to)
{
    const auto members = model.Members();
    return std::any_of(members.begin(), members.end(), [=](const TrussMember& member) {
        return (member.FromPoint == from && member.ToPoint == to) ||
               (member.FromPoint == to && member.ToPoint == from);
    });
}

bool OverlapsAny(const TrussModel& model, int from, int to)
{
    const auto members = model.Members();
    return std::any_of(members.begin(), members.end(), [&](const TrussMember& member) {
        return MembersOverlap(model, from, to, member);
    });
}

} // namespace

MemberRefusal CheckMember(const TrussModel& model, int from, int to)
{
    if (from == to) return MemberRefusal::SamePoint;
    if (HasMember(model, from, to)) return MemberRefusal::Duplicate;
    if (model.GridPointBlocked[from] == 1 || model.GridPointBlocked[to] == 1)
        return MemberRefusal::EndBlocked;
    if (MemberCoversJoint(model, from, to)) return MemberRefusal::CoversJoint;
    if (OverlapsAny(model, from, to)) return MemberRefusal::Overlaps;
    return model.MemberCount >= kMaxMembers ? MemberRefusal::TableFull : MemberRefusal::None;
}

bool MemberCoversJoint(const TrussModel& model, int from, int to)
{
    const Segment added = SegmentOf(model, from, to);
    const double length = Distance(added.A, added.B);
    const auto covers = [&](int end) {
        return end != from && end != to && LiesOn(PlaceOf(model, end), added, length);
    };
    const auto members = model.Members();
    return std::any_of(members.begin(), members.end(), [&](const TrussMember& member) {
        return covers(member.FromPoint) || covers(member.ToPoint);
    });
}

bool MembersOverlap(const TrussModel& model, int from, int to, const TrussMember& member)
{
    const Segment added = SegmentOf(model, from, to);
    const Segment existing = SegmentOf(model, member.FromPoint, member.ToPoint);
    if (!SameDirection(added, existing)) return false;
    if (LineConstant(added) != LineConstant(existing)) return false;
    const Range t = Slopes(existing);
    if (t.First != t.Second) return Meet(Slopes(added), t);
    return Meet(Distances(added), Distances(existing));
}

void MarkInteriorPoints(TrussModel& model)
{
    std::fill(model.GridPointBlocked.begin(), model.GridPointBlocked.end(), short{0});
    for (const TrussMember& member : model.Members()) {
        const Segment segment = SegmentOf(model, member.FromPoint, member.ToPoint);
        const double length = Distance(segment.A, segment.B);
        for (int point = 0; point < model.GridPointCount; ++point) {
            const bool isEnd = point == member.FromPoint || point == member.ToPoint;
            if (isEnd || model.GridPointBlocked[point] == 1) continue;
            if (LiesOn(PlaceOf(model, point), segment, length)) model.GridPointBlocked[point] = 1;
        }
    }
}

} // namespace forcelab::truss
