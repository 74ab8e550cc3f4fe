#include "truss/TrussDrawing.h"

#include "core/DrawingHelpers.h"
#include "core/NumericText.h"
#include "core/Units.h"
#include "truss/TrussSymbols.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <utility>

namespace forcelab::truss {

namespace {

constexpr std::string_view kTickMask = "####0.###";
constexpr std::string_view kAngleMask = "##0.000";
constexpr std::string_view kLoadMask = "###,##0.0##";
constexpr std::string_view kForceMask = "###,##0.0#";
constexpr double kMemberWidth = 5;
constexpr double kArrowWidth = 3;
constexpr double kIdle = 0.001;               // sizes up to it count as no force
constexpr double kNoise = 1e-9;               // of the largest reaction
constexpr std::size_t kMostForAllLabels = 40; // members
constexpr std::size_t kAlwaysAllLabels = 20;  // members
constexpr double kMotionShare = 0.4;          // of a spacing
constexpr std::array<int, 5> kTickSteps{1, 2, 5, 10, 25};
constexpr double kTickGap = 1.25;

/// Every how many lines a coordinate fits.
int TickStep(int spaces, double spacing, double size)
{
    for (const int step : kTickSteps)
        if (step * spacing >= kTickGap * size) return step;
    return spaces;
}

std::string TickText(int line, float spacing)
{
    return Format(line * static_cast<double>(spacing), kTickMask);
}

double WidestTick(const Picture& pic, int spaces, float spacing)
{
    double widest = 0;
    for (int line = 0; line <= spaces; ++line)
        widest = std::max(widest, pic.TextWidth(TickText(line, spacing)));
    return widest;
}

void DrawUprightMarks(Picture& pic, const TrussModel& model)
{
    const double over = model.GridSpacingY / 4;
    const double height = model.GridSpacesY * static_cast<double>(model.GridSpacingY);
    const double widest = WidestTick(pic, model.GridSpacesX, model.GridSpacingX);
    const int step = TickStep(model.GridSpacesX, model.GridSpacingX, widest);
    for (int i = 0; i <= model.GridSpacesX; ++i) {
        const double x = i * static_cast<double>(model.GridSpacingX);
        pic.ForeColor = IndexedColour(kGridColour);
        pic.Line(x, -over, x, height + over);
        pic.ForeColor = IndexedColour(kLabelColour);
        if (i % step == 0)
            PrintText(pic, x, pic.ScaleTop() - pic.TextHeight("0") / 10,
                      TickText(i, model.GridSpacingX), HAlign::Centre);
    }
}

void DrawLevelMarks(Picture& pic, const TrussModel& model)
{
    const double over = model.GridSpacingX / 4;
    const double width = model.GridSpacesX * static_cast<double>(model.GridSpacingX);
    const int step = TickStep(model.GridSpacesY, model.GridSpacingY, pic.TextHeight("0"));
    for (int j = 0; j <= model.GridSpacesY; ++j) {
        const double y = j * static_cast<double>(model.GridSpacingY);
        pic.ForeColor = IndexedColour(kGridColour);
        pic.Line(-over, y, width + over, y);
        pic.ForeColor = IndexedColour(kLabelColour);
        if (j % step == 0)
            PrintText(pic, pic.ScaleLeft() + pic.TextWidth("0") / 2, y,
                      TickText(j, model.GridSpacingY), HAlign::Left, VAlign::Middle);
    }
}

/// Vector from a member's start to its end.
PicturePoint Run(const TrussModel& model, const TrussMember& member)
{
    const TrussGridPoint& a = model.GridPoints[member.FromPoint];
    const TrussGridPoint& b = model.GridPoints[member.ToPoint];
    return {static_cast<double>(b.X) - a.X, static_cast<double>(b.Y) - a.Y};
}

/// Then force labels stand on their members, smaller, and those without room are left out: where
/// there are many members, or fewer that are shorter on the sheet than their labels.
bool IsCrowded(const Picture& pic, const TrussModel& model)
{
    const auto members = model.Members();
    if (members.size() <= kAlwaysAllLabels) return false;
    double length = 0;
    for (const TrussMember& member : members) {
        const PicturePoint run = Run(model, member);
        length += std::hypot(pic.ScaleX(run.X), pic.ScaleY(run.Y));
    }
    const double label = pic.ScaleX(pic.TextWidth("000.00 (C)"));
    return members.size() > kMostForAllLabels || length < label * members.size();
}

void DrawMember(TrussSheet& sheet, const TrussModel& model, const TrussMember& member)
{
    const TrussGridPoint& a = model.GridPoints[member.FromPoint];
    const TrussGridPoint& b = model.GridPoints[member.ToPoint];
    sheet.Line(a.X, a.Y, b.X, b.Y);
}

/// A label that waits until all lines are drawn.
struct WaitingLabel {
    std::vector<PicturePoint> Places;
    double Angle;
    std::string Text;
    int Colour;
};
using WaitingLabels = std::vector<WaitingLabel>;

void Place(TrussSheet& sheet, const WaitingLabels& labels, LabelNeed need)
{
    for (const WaitingLabel& label : labels)
        sheet.Label(label.Places, label.Angle, label.Text, label.Colour, need);
}

/// For many members: each label on what it names, or nowhere.
void PlaceOn(TrussSheet& sheet, const WaitingLabels& labels)
{
    for (const WaitingLabel& label : labels) sheet.LabelOn(label.Places, label.Text, label.Colour);
}

WaitingLabels DrawAngles(TrussSheet& sheet, const TrussModel& model)
{
    WaitingLabels labels;
    std::map<std::pair<int, bool>, int> rings; // by start and side of the x axis
    sheet.Take(kMemberColour, 1);
    for (const TrussMember& member : model.Members()) {
        const PicturePoint run = Run(model, member);
        if (run.X == 0 || (run.Y == 0 && IsCrowded(sheet.Pic(), model))) continue;
        const int ring = ++rings[{member.FromPoint, run.Y > 0}];
        const TrussGridPoint& from = model.GridPoints[member.FromPoint];
        const double degrees = std::atan(std::abs(run.Y / run.X)) * 180 / kPi;
        labels.push_back({{sheet.DrawAngle(from, run.X, run.Y, ring)},
                          sheet.SeenAngle(run.X, run.Y / 2),
                          Format(degrees, kAngleMask) + "°",
                          kLabelColour});
    }
    return labels;
}

void DrawSupports(TrussSheet& sheet, const TrussModel& model, const JointList& joints)
{
    for (int point = 0; point < model.GridPointCount; ++point) {
        const TrussGridPoint& at = model.GridPoints[point];
        if (at.SupportX == 0 && at.SupportY == 0) continue;
        const int joint = joints.GridToJoint[point];
        sheet.DrawSupport(at, joints.JointSense[0][joint], joints.JointSense[1][joint]);
    }
}

/// The side of an arrow's far end on which its label stands.
double Outward(int sense, bool upright)
{
    if (upright) return sense < 0 ? kPi / 2 : -kPi / 2;
    return sense < 0 ? 0 : kPi;
}

WaitingLabels DrawLoads(TrussSheet& sheet, const TrussModel& model, const JointList& joints)
{
    WaitingLabels labels;
    sheet.Take(kLoadColour, kArrowWidth);
    for (int point = 0; point < model.GridPointCount; ++point) {
        const TrussGridPoint& at = model.GridPoints[point];
        for (const bool upright : {false, true}) {
            const float load = upright ? at.LoadY : at.LoadX;
            if (load == 0) continue;
            const int sense = joints.JointSense[upright ? 1 : 0][joints.GridToJoint[point]];
            labels.push_back({{sheet.DrawArrow(at, load, sense, upright)},
                              Outward(sense, upright),
                              Format(std::abs(load), kLoadMask),
                              kLoadColour});
        }
    }
    return labels;
}

int ForceColour(double force)
{
    if (std::abs(force) <= kIdle) return kIdleColour;
    return force > 0 ? kTensionColour : kCompressionColour;
}

/// The middle of a member and other points of it; where there are many members, of a level one
/// points above and below it.
std::vector<PicturePoint> LabelPlaces(Picture& pic, const TrussModel& model,
                                      const TrussMember& member)
{
    const TrussGridPoint& from = model.GridPoints[member.FromPoint];
    const PicturePoint run = Run(model, member);
    const auto at = [&](double share, double rows) {
        return PicturePoint{from.X + share * run.X,
                            from.Y + share * run.Y + rows * pic.TextHeight("0")};
    };
    if (IsCrowded(pic, model) && run.Y == 0)
        return {at(0.5, 1), at(0.5, -1), at(0.5, 2.2), at(0.5, -2.2)};
    std::vector<PicturePoint> places;
    for (const double share : {0.5, 0.4, 0.6, 0.3, 0.7, 0.2, 0.8}) places.push_back(at(share, 0));
    return places;
}

WaitingLabels DrawForces(TrussSheet& sheet, const TrussModel& model, const TrussResults& results,
                         double width)
{
    WaitingLabels labels;
    std::size_t m = 0;
    for (const TrussMember& member : model.Members()) {
        const double force = results.MemberForce[++m];
        sheet.Take(ForceColour(force), width);
        DrawMember(sheet, model, member);
        // Beside an upright member, which a label above its middle would hide.
        labels.push_back(
            {LabelPlaces(sheet.Pic(), model, member), Run(model, member).X == 0 ? 0 : kPi / 2,
             Format(std::abs(force), kForceMask) + (force > 0 ? " (T)" : " (C)"), kLabelColour});
    }
    return labels;
}

WaitingLabels DrawReactions(TrussSheet& sheet, const TrussModel& model, const TrussResults& results)
{
    WaitingLabels labels;
    double largest = 0;
    for (int joint = 1; joint <= results.Joints.JointCount; ++joint)
        largest = std::max(
            {largest, std::abs(results.ReactionX[joint]), std::abs(results.ReactionY[joint])});
    sheet.Take(kReactionColour, kArrowWidth);
    for (int joint = 1; joint <= results.Joints.JointCount; ++joint)
        for (const bool upright : {false, true}) {
            const double reaction = (upright ? results.ReactionY : results.ReactionX)[joint];
            if (std::abs(reaction) <= kNoise * largest) continue;
            const int sense = results.Joints.JointSense[upright ? 1 : 0][joint];
            const TrussGridPoint& at = model.GridPoints[results.Joints.JointGridPoint[joint]];
            labels.push_back({{sheet.DrawArrow(at, reaction, sense, upright)},
                              Outward(sense, upright),
                              results.JointName[joint] + (upright ? "y " : "x ") +
                                  Format(std::abs(reaction), kForceMask),
                              kReactionColour});
        }
    return labels;
}

/// Away from the members, but toward them in a supported direction, where the symbols are.
WaitingLabels JointLetters(TrussSheet& sheet, const TrussModel& model, const TrussResults& results,
                           double width)
{
    WaitingLabels labels;
    for (int joint = 1; joint <= results.Joints.JointCount; ++joint) {
        const TrussGridPoint& at = model.GridPoints[results.Joints.JointGridPoint[joint]];
        const double x = results.Joints.JointSense[0][joint] * (at.SupportX ? 1 : -1);
        const double y = results.Joints.JointSense[1][joint] * (at.SupportY ? 1 : -1);
        labels.push_back({std::vector<PicturePoint>{{at.X, at.Y}},
                          x == 0 && y == 0 ? kPi / 4 : std::atan2(y, x), results.JointName[joint],
                          kLetterColour});
        sheet.Take(kLetterColour, width);
        sheet.Pic().PSet(at.X, at.Y);
    }
    return labels;
}

/// The letters moved off their joints to the side that they want, or the other one.
WaitingLabels BesideJoints(const Picture& pic, WaitingLabels letters)
{
    for (WaitingLabel& letter : letters) {
        const PicturePoint joint = letter.Places.front();
        const double height = pic.TextHeight("0");
        const double up = letter.Angle < 0 ? -0.8 * height : 0.8 * height;
        letter.Places = {{joint.X, joint.Y + up}, {joint.X, joint.Y - up}};
    }
    return letters;
}

/// The letters of the joints that are named, where `at` puts their grid points.
template <class PlaceOf>
void LetterJoints(TrussSheet& sheet, const JointList& joints, const std::vector<std::string>& names,
                  PlaceOf at)
{
    for (int joint = 1; joint <= joints.JointCount; ++joint)
        if (std::find(names.begin(), names.end(), JointNameOf(joint)) != names.end())
            sheet.Label({at(joints.JointGridPoint[joint])}, kPi / 2, JointNameOf(joint),
                        kLetterColour, LabelNeed::Anywhere);
}

} // namespace

void ScalePicture(Picture& pic, const TrussModel& model)
{
    const TrussScale scale = SetGridScale(model);
    pic.Scale(scale.Left, scale.Top, scale.Right, scale.Bottom);
}

void DrawGridMarks(Picture& pic, const TrussModel& model)
{
    pic.DrawWidth = 1;
    pic.DrawStyle = LinePattern::Solid;
    pic.FontTransparent = true;
    DrawUprightMarks(pic, model);
    DrawLevelMarks(pic, model);
}

void DrawTruss(Picture& pic, const TrussModel& model, const std::vector<std::string>& lettered)
{
    pic.Cls();
    if (!model.HasGrid()) return;
    ScalePicture(pic, model);
    DrawGridMarks(pic, model);
    if (model.Members().empty()) return;
    const JointList joints = BuildJointList(model);
    TrussSheet sheet(pic, model);
    sheet.KeepOffCoordinates(WidestTick(pic, model.GridSpacesY, model.GridSpacingY));
    sheet.Take(kMemberColour, kMemberWidth);
    for (const TrussMember& member : model.Members()) DrawMember(sheet, model, member);
    const WaitingLabels angles = DrawAngles(sheet, model);
    DrawSupports(sheet, model, joints);
    Place(sheet, DrawLoads(sheet, model, joints), LabelNeed::Anywhere);
    if (IsCrowded(pic, model))
        PlaceOn(sheet, angles);
    else
        Place(sheet, angles, LabelNeed::IfRoom);
    LetterJoints(sheet, joints, lettered, [&model](int point) {
        return PicturePoint{model.GridPoints[point].X, model.GridPoints[point].Y};
    });
    pic.DrawWidth = 1;
}

void DrawTrussResults(Picture& pic, const TrussModel& model, const TrussResults& results,
                      double memberWidth, double jointWidth)
{
    const double base = pic.FontSize;
    const bool crowded = IsCrowded(pic, model);
    TrussSheet sheet(pic, model);
    sheet.KeepOffCoordinates(WidestTick(pic, model.GridSpacesY, model.GridSpacingY));
    const WaitingLabels forces = DrawForces(sheet, model, results, memberWidth);
    const WaitingLabels reactions = DrawReactions(sheet, model, results);
    const WaitingLabels letters = JointLetters(sheet, model, results, jointWidth);
    pic.FontSize = base + 2;
    if (crowded)
        PlaceOn(sheet, BesideJoints(pic, letters));
    else
        Place(sheet, letters, LabelNeed::Anywhere);
    pic.FontSize = crowded ? base - 1 : base;
    if (crowded) PlaceOn(sheet, forces);
    pic.FontSize = base;
    Place(sheet, reactions, LabelNeed::Anywhere);
    if (!crowded) Place(sheet, forces, LabelNeed::Beside);
    pic.ForeColor = IndexedColour(kLabelColour);
    pic.DrawWidth = 1;
}

void DrawRubberBand(Picture& pic, const TrussModel& model, int mode, const DragState& drag)
{
    const RubberBand band = BandOf(model, mode, drag);
    pic.DrawWidth = band.Width;
    for (const RubberBand::Stroke& stroke : band.Strokes)
        pic.Line(stroke.X1, stroke.Y1, stroke.X2, stroke.Y2);
    pic.DrawWidth = 1;
}

void DrawMotion(Picture& pic, const TrussModel& model, const Mechanism& motion, double share)
{
    pic.Cls();
    ScalePicture(pic, model);
    DrawGridMarks(pic, model);
    const JointList joints = BuildJointList(model);
    TrussSheet sheet(pic, model);
    sheet.KeepOffCoordinates(WidestTick(pic, model.GridSpacesY, model.GridSpacingY));
    sheet.Take(kRestColour, 2);
    for (const TrussMember& member : model.Members()) DrawMember(sheet, model, member);
    const double reach = kMotionShare * share * std::max(model.GridSpacingX, model.GridSpacingY);
    const auto moved = [&](int point) {
        const TrussGridPoint& at = model.GridPoints[point];
        const int joint = joints.GridToJoint[point];
        return PicturePoint{at.X + reach * motion.MoveX[joint], at.Y + reach * motion.MoveY[joint]};
    };
    sheet.Take(kMemberColour, kMemberWidth);
    for (const TrussMember& member : model.Members()) {
        const PicturePoint a = moved(member.FromPoint);
        const PicturePoint b = moved(member.ToPoint);
        sheet.Line(a.X, a.Y, b.X, b.Y);
    }
    DrawSupports(sheet, model, joints);
    LetterJoints(sheet, joints, motion.Moving, moved);
    pic.DrawWidth = 1;
}

} // namespace forcelab::truss
