#include "core/LabelPlacer.h"

#include "core/Units.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace forcelab {

namespace {

constexpr std::array<double, 7> kDistances{4, 8, 13, 20, 30, 42, 56}; // pixels
constexpr int kTurns = 8; // to each side, together the whole way round
constexpr double kTurn = kPi / kTurns;
constexpr double kTurnCost = 3;         // pixels of distance that a turn is worth
constexpr double kCrossingCost = 60;    // the same for each line crossed
constexpr double kStrikeCost = 120;     // the same for each label that the leader would cross
constexpr double kLeaderCrossing = 25;  // the same for each line that it would cross
constexpr double kSheetStep = 6;        // pixels, of the search over the whole sheet
constexpr double kCoarseSteps = 4;      // of the first look over it
constexpr double kFarCost = 15;         // what leaving the neighbourhood is worth
constexpr double kLeaderFree = 5;       // pixels from its point where it crosses nothing
constexpr double kGap = 1.5;            // pixels between labels and to the sheet's edge
constexpr double kSideGap = 6;          // between labels side by side, or they read as one
constexpr double kLeaderFrom = 24;      // pixels
constexpr double kSubscriptShare = 0.3; // of the text height, below and above the line
constexpr double kSmallestFont = 6;     // points
constexpr int kCircleSegments = 48;
constexpr Colour kLeaderColour = Rgb(150, 150, 150);

/// One bound of the clipping of a segment by a rectangle; False where nothing is left.
bool Clip(double direction, double room, double& from, double& to)
{
    if (direction == 0) return room >= 0;
    const double t = room / direction;
    if (direction < 0)
        from = std::max(from, t);
    else
        to = std::min(to, t);
    return from <= to;
}

/// True where a segment touches a rectangle, given by its bounds.
template <typename Box>
bool Touches(PicturePoint start, PicturePoint end, const Box& box)
{
    const double dx = end.X - start.X;
    const double dy = end.Y - start.Y;
    double from = 0;
    double to = 1;
    return Clip(-dx, start.X - box.X1, from, to) && Clip(dx, box.X2 - start.X, from, to) &&
           Clip(-dy, start.Y - box.Y1, from, to) && Clip(dy, box.Y2 - start.Y, from, to);
}

/// Above 0 where c lies to one side of the line from a to b, below 0 on the other.
double SideOf(PicturePoint a, PicturePoint b, PicturePoint c)
{
    return (b.X - a.X) * (c.Y - a.Y) - (b.Y - a.Y) * (c.X - a.X);
}

bool Cross(PicturePoint a, PicturePoint b, PicturePoint c, PicturePoint d)
{
    return SideOf(a, b, c) * SideOf(a, b, d) < 0 && SideOf(c, d, a) * SideOf(c, d, b) < 0;
}

template <typename Box>
PicturePoint NearestOf(const Box& box, PicturePoint at)
{
    return {std::clamp(at.X, box.X1, box.X2), std::clamp(at.Y, box.Y1, box.Y2)};
}

bool NeedsLeader(PicturePoint at, PicturePoint near)
{
    return std::hypot(near.X - at.X, near.Y - at.Y) >= kLeaderFrom;
}

} // namespace

void LabelPlacer::KeepOffLine(PicturePoint from, PicturePoint to, double weight)
{
    lines_.push_back({pic_.ToPixels(from), pic_.ToPixels(to), weight});
}

void LabelPlacer::KeepOffCircle(PicturePoint centre, double radius)
{
    const PicturePoint c = pic_.ToPixels(centre);
    const double r = std::abs(pic_.ScaleX(radius));
    const auto point = [&](int k) {
        const double t = 2 * kPi * k / kCircleSegments;
        return PicturePoint{c.X + r * std::cos(t), c.Y + r * std::sin(t)};
    };
    for (int k = 0; k < kCircleSegments; ++k) lines_.push_back({point(k), point(k + 1)});
}

void LabelPlacer::Reserve(PicturePoint corner, PicturePoint opposite)
{
    const PicturePoint a = pic_.ToPixels(corner);
    const PicturePoint b = pic_.ToPixels(opposite);
    taken_.push_back(
        {std::min(a.X, b.X), std::min(a.Y, b.Y), std::max(a.X, b.X), std::max(a.Y, b.Y)});
}

LabelPlacer::Size LabelPlacer::SizeOf(const Label& label)
{
    const double height = std::abs(pic_.ScaleY(pic_.TextHeight("X")));
    const bool raised = std::any_of(label.begin(), label.end(), [](const LabelPart& part) {
        return part.What == LabelPart::Kind::Subscript || part.What == LabelPart::Kind::Superscript;
    });
    return {std::abs(pic_.ScaleX(LabelWidth(pic_, label))),
            height * (raised ? 1 + 2 * kSubscriptShare : 1)};
}

bool LabelPlacer::IsFree(const Box& box) const
{
    if (box.X1 < kGap || box.Y1 < kGap || box.X2 > pic_.WidthPixels() - kGap ||
        box.Y2 > pic_.HeightPixels() - kGap)
        return false;
    return std::none_of(taken_.begin(), taken_.end(), [&box](const Box& other) {
        return box.X1 < other.X2 + kSideGap && other.X1 < box.X2 + kSideGap &&
               box.Y1 < other.Y2 + kGap && other.Y1 < box.Y2 + kGap;
    });
}

double LabelPlacer::Crossings(const Box& box, double atMost) const
{
    double count = 0;
    for (const Segment& line : lines_) {
        if (!Touches(line.From, line.To, box)) continue;
        count += line.Weight;
        if (count > atMost) break;
    }
    return count;
}

/// A leader must not strike another label through, and had better cross no line on its way.
double LabelPlacer::LeaderCost(PicturePoint at, const Box& box) const
{
    const PicturePoint near = NearestOf(box, at);
    if (!NeedsLeader(at, near)) return 0;
    double cost = 0;
    for (const Box& other : taken_)
        if (Touches(at, near, other)) cost += kStrikeCost;
    // Past the lines on which the point itself lies.
    const double share = kLeaderFree / std::hypot(near.X - at.X, near.Y - at.Y);
    const PicturePoint start{at.X + share * (near.X - at.X), at.Y + share * (near.Y - at.Y)};
    for (const Segment& line : lines_)
        if (Cross(start, near, line.From, line.To)) cost += kLeaderCrossing * line.Weight;
    return cost;
}

void LabelPlacer::Consider(std::optional<Found>& best, const Box& box, double cost,
                           const PicturePoint* at) const
{
    if ((best && cost >= best->Cost) || !IsFree(box)) return;
    const double atMost = best ? (best->Cost - cost) / kCrossingCost : 1000;
    const double crossings = Crossings(box, atMost);
    double whole = cost + kCrossingCost * crossings;
    if (best && whole >= best->Cost) return; // before the leader, which takes longer
    const double leader = at ? LeaderCost(*at, box) : 0;
    whole += leader;
    if (!best || whole < best->Cost)
        best = Found{box, whole, crossings, crossings == 0 && leader < kStrikeCost, {}};
}

std::optional<LabelPlacer::Found> LabelPlacer::SearchNear(PicturePoint at, Size size, double angle,
                                                          bool leader) const
{
    std::optional<Found> best;
    for (const double distance : kDistances)
        for (int turn = -kTurns + 1; turn <= kTurns; ++turn) {
            const double side = angle + turn * kTurn;
            const double across = std::cos(side);
            const double up = std::sin(side);
            // The box touches the point's surroundings with its nearest side or corner.
            const double longer = std::max(std::abs(across), std::abs(up));
            const double x = at.X + across * (size.Width / 2 / longer + distance);
            const double y = at.Y - up * (size.Height / 2 / longer + distance);
            const Box box{x - size.Width / 2, y - size.Height / 2, x + size.Width / 2,
                          y + size.Height / 2};
            Consider(best, box, distance + kTurnCost * std::abs(turn), leader ? &at : nullptr);
        }
    return best;
}

void LabelPlacer::SearchSheet(std::optional<Found>& best, PicturePoint at, Size size,
                              double step) const
{
    for (double y = kGap; y + size.Height <= pic_.HeightPixels(); y += step)
        for (double x = kGap; x + size.Width <= pic_.WidthPixels(); x += step) {
            const Box box{x, y, x + size.Width, y + size.Height};
            const double dx = std::max({0.0, box.X1 - at.X, at.X - box.X2});
            const double dy = std::max({0.0, box.Y1 - at.Y, at.Y - box.Y2});
            Consider(best, box, kFarCost + std::hypot(dx, dy), &at);
        }
}

std::optional<LabelPlacer::Found> LabelPlacer::Search(const LabelAnchor& anchor, Size size,
                                                      bool mayLeave) const
{
    const PicturePoint at = pic_.ToPixels(anchor.At);
    std::optional<Found> best = SearchNear(at, size, anchor.Angle, mayLeave);
    if (mayLeave && (!best || !best->Clear)) {
        // What is found first bounds the search, or it would take long.
        if (!best) SearchSheet(best, at, size, kCoarseSteps * kSheetStep);
        SearchSheet(best, at, size, kSheetStep);
    }
    if (best) best->Names = at;
    return best;
}

std::optional<LabelPlacer::Found> LabelPlacer::Best(const LabelWish& wish)
{
    const Size size = SizeOf(wish.Text);
    std::optional<Found> best;
    for (const LabelAnchor& anchor : wish.Anchors) {
        const auto found = Search(anchor, size, wish.Leader);
        if (found && (!best || found->Cost < best->Cost)) best = found;
    }
    return best;
}

void LabelPlacer::DrawLeader(PicturePoint at, const Box& box)
{
    const PicturePoint near = NearestOf(box, at);
    if (!NeedsLeader(at, near)) return;
    const PicturePoint from = pic_.FromPixels(at);
    const PicturePoint to = pic_.FromPixels(near);
    pic_.ForeColor = kLeaderColour;
    pic_.DrawWidth = 1;
    pic_.Line(from.X, from.Y, to.X, to.Y);
    KeepOffLine(from, to);
}

void LabelPlacer::Print(const LabelWish& wish, const Found& found)
{
    const Colour ink = pic_.ForeColor;
    const bool transparent = pic_.FontTransparent;
    if (wish.Leader) DrawLeader(found.Names, found.Where);
    const PicturePoint middle = pic_.FromPixels(
        {(found.Where.X1 + found.Where.X2) / 2, (found.Where.Y1 + found.Where.Y2) / 2});
    pic_.ForeColor = wish.Ink;
    pic_.FontTransparent = found.Crossings == 0;
    PrintLabel(pic_, middle.X, middle.Y, wish.Text, HAlign::Centre, VAlign::Middle);
    pic_.ForeColor = ink;
    pic_.FontTransparent = transparent;
    taken_.push_back(found.Where);
}

bool LabelPlacer::Place(const LabelWish& wish)
{
    const double fontSize = pic_.FontSize;
    std::optional<Found> found = Best(wish);
    while (!found && wish.Needed && pic_.FontSize > kSmallestFont) {
        pic_.FontSize = std::max(kSmallestFont, pic_.FontSize - 1);
        found = Best(wish);
    }
    if (found) Print(wish, *found);
    pic_.FontSize = fontSize;
    return found.has_value();
}

} // namespace forcelab
