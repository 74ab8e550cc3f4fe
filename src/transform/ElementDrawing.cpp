#include "core/NumericText.h"
#include "core/Units.h"
#include "transform/Figure.h"
#include "transform/MohrColours.h"
#include "transform/MohrDrawing.h"
#include "transform/MohrModes.h"
#include "transform/MohrTexts.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace forcelab::transform {

namespace {

// Sizes of the element, where the sheet reaches from -1 to 1 in its shorter direction.
constexpr double kHalfSide = 0.27;
constexpr double kGap = 0.05; // from a face to its arrows
constexpr double kLongestArrow = 0.34;
constexpr double kShortestShare = 0.55; // of the longest arrow
constexpr double kShearHalf = 0.22;     // half the length of a shear arrow
constexpr double kAxisLength = 0.93;
constexpr double kTurnedAxisLength = 0.86;
constexpr double kArcRadius = 0.74;
constexpr double kUp = kPi / 2;
constexpr double kNoAngle = 0.002; // radians
constexpr double kLabelLean = 0.3; // radians, from an arrow's direction to its label
// A label may rather stand on an axis than be led far away.
constexpr Figure::Pen kAxisPen{kFaintColour, 1, LinePattern::Solid, 0.4};

/// What one element shows. An empty text leaves its label out, a value of 0 its arrows.
struct ElementView {
    double Angle = 0;          ///< of the x' axis, counterclockwise from x
    RotatedState Values{};     ///< for the arrows
    std::array<Label, 3> Text; ///< on the x' face, on the y' face, of the shear
    std::array<std::string, 2> Axes{"x", "y"};
    std::array<std::string, 2> TurnedAxes{"x'", "y'"};
    Colour Shear;
    bool ShowsTurn = true;
};

class ElementPicture {
  public:
    ElementPicture(Picture& pic, const ElementView& view)
        : figure_(pic, -1, 1, 1, -1), view_(view),
          largest_(std::max({std::abs(view.Values.NormalX), std::abs(view.Values.NormalY),
                             std::abs(view.Values.ShearXY)}))
    {}

    /// The square with its arrows.
    void DrawElement()
    {
        DrawAxes(kAxisPen);
        std::array<PicturePoint, 4> corners;
        for (int k = 0; k < 4; ++k)
            corners[k] = Polar({0, 0}, kHalfSide * std::sqrt(2.0), view_.Angle + kPi / 4 + k * kUp);
        figure_.Outline(corners, {kTextColour, 1.5}, kElementFill);
        for (int face = 0; face < 4; ++face) {
            DrawNormal(face);
            DrawShear(face);
        }
        if (view_.ShowsTurn) LabelTurn(); // it has the least room, between its arc and the axis
        LabelFaces();
        LabelAxes();
    }

    /// The turned axes alone, for inertia.
    void DrawAxesOnly()
    {
        DrawAxes({kMainColour});
        figure_.Line(Polar({0, 0}, kAxisLength, view_.Angle + kPi), {0, 0}, kAxisPen);
        figure_.Line(Polar({0, 0}, kAxisLength, view_.Angle - kUp), {0, 0}, kAxisPen);
        figure_.Text(OnAxis(0, 0.6), view_.Text[0], view_.Angle - kUp, kMainColour, true);
        figure_.Text(OnAxis(1, 0.6), view_.Text[1], view_.Angle, kMainColour, true);
        if (!view_.Text[2].empty())
            figure_.Text({0, -0.6}, view_.Text[2], -kUp, view_.Shear, true, false);
        if (view_.ShowsTurn) LabelTurn();
        LabelAxes();
    }

  private:
    [[nodiscard]] PicturePoint OnAxis(int axis, double distance) const
    {
        return Polar({0, 0}, distance, view_.Angle + axis * kUp);
    }
    /// A point by its distance along the normal of a face and its offset along the face.
    [[nodiscard]] PicturePoint AtFace(int face, double out, double along) const
    {
        const double normal = view_.Angle + face * kUp;
        return Polar(Polar({0, 0}, out, normal), along, normal + kUp);
    }
    [[nodiscard]] double ArrowLength(double value) const
    {
        const double share = std::abs(value) / largest_;
        return kLongestArrow * (kShortestShare + (1 - kShortestShare) * share);
    }
    [[nodiscard]] bool IsTurned() const { return std::abs(view_.Angle) > kNoAngle; }

    void DrawAxes(const Figure::Pen& turned)
    {
        figure_.Arrow({-kAxisLength, 0}, {kAxisLength, 0}, kAxisPen);
        figure_.Arrow({0, -kAxisLength}, {0, kAxisLength}, kAxisPen);
        if (!IsTurned()) return;
        figure_.Arrow({0, 0}, OnAxis(0, kTurnedAxisLength), turned);
        figure_.Arrow({0, 0}, OnAxis(1, kTurnedAxisLength), turned);
        if (view_.ShowsTurn)
            figure_.AngleArc({0, 0}, kArcRadius, 0, view_.Angle, {kAngleColour, 1.5});
    }

    /// Outward for tension, inward for compression; even faces are those of x'.
    void DrawNormal(int face)
    {
        const double value = face % 2 == 0 ? view_.Values.NormalX : view_.Values.NormalY;
        if (value == 0) return;
        const PicturePoint near = AtFace(face, kHalfSide + kGap, 0);
        const PicturePoint far = AtFace(face, kHalfSide + kGap + ArrowLength(value), 0);
        const Figure::Pen pen{kMainColour, 2};
        value > 0 ? figure_.Arrow(near, far, pen) : figure_.Arrow(far, near, pen);
    }

    /// Along the face: shear that turns the x' faces counterclockwise turns those of y' clockwise.
    void DrawShear(int face)
    {
        const double value = view_.Values.ShearXY;
        if (value == 0) return;
        const double along = (value > 0) == (face % 2 == 0) ? kShearHalf : -kShearHalf;
        figure_.Arrow(AtFace(face, kHalfSide + kGap, -along), AtFace(face, kHalfSide + kGap, along),
                      {view_.Shear, 2});
    }

    /// Both faces of a pair carry the same value; it stands beside the one that has room.
    void LabelFaces()
    {
        for (int pair = 0; pair < 2; ++pair) {
            const double value = pair == 0 ? view_.Values.NormalX : view_.Values.NormalY;
            const double out = kHalfSide + kGap + (value == 0 ? 0 : ArrowLength(value));
            const double lean = pair == 0 ? -kLabelLean : kLabelLean;
            std::vector<LabelAnchor> anchors;
            for (const int face : {pair, pair + 2})
                anchors.push_back({AtFace(face, out, 0), view_.Angle + face * kUp + lean});
            figure_.Text(std::move(anchors), view_.Text[pair], kMainColour);
        }
        if (view_.Text[2].empty()) return;
        LabelShear();
    }

    /// Beside whichever of the four shear arrows has room.
    void LabelShear()
    {
        std::vector<LabelAnchor> anchors;
        for (int face = 0; face < 4; ++face)
            for (const double along : {-kShearHalf, kShearHalf}) {
                const double lean = std::copysign(kPi / 4, along);
                anchors.push_back(
                    {AtFace(face, kHalfSide + kGap, along), view_.Angle + face * kUp + lean});
            }
        figure_.Text(std::move(anchors), view_.Text[2], view_.Shear);
    }

    void LabelAxes()
    {
        figure_.Text({kAxisLength, 0}, Plain(view_.Axes[0]), -kUp, kAxisColour, true, false);
        figure_.Text({0, kAxisLength}, Plain(view_.Axes[1]), kPi, kAxisColour, true, false);
        if (!IsTurned()) return;
        for (int axis = 0; axis < 2; ++axis)
            figure_.Text(OnAxis(axis, kTurnedAxisLength), Plain(view_.TurnedAxes[axis]),
                         view_.Angle + axis * kUp, kAxisColour, true, false);
    }

    /// Beside the arc, wherever along it there is room.
    void LabelTurn()
    {
        std::vector<LabelAnchor> anchors;
        for (const double share : {0.5, 0.3, 0.7}) {
            const double angle = share * view_.Angle;
            anchors.push_back({Polar({0, 0}, kArcRadius, angle), IsTurned() ? angle : kUp});
        }
        figure_.Text(std::move(anchors), Plain(TurnText(view_.Angle)), kAngleColour);
    }

    Figure figure_;
    const ElementView& view_;
    double largest_;
};

bool IsInertia(const MohrEntry& entry)
{
    return entry.Mode == MohrMode::MomentOfInertia;
}

bool NothingToDraw(Picture& pic, const StressState& state)
{
    if (!state.CircleBad && state.CircleRadius > 0) return false;
    pic.Cls();
    return true;
}

bool IsSmall(const Picture& pic)
{
    return std::min(pic.WidthPixels(), pic.HeightPixels()) < 330;
}

/// The name of a value with the value, or the value alone on a small sheet.
Label Named(const Picture& pic, const Label& name, const std::string& value)
{
    return IsSmall(pic) ? Plain(value) : Joined(name, Plain(value));
}

/// "Sigma X' = ".
Label RotatedName(MohrMode mode, int which)
{
    return Plain(std::string(LabelsOf(mode).Rotated[which]) + " = ");
}

ElementView ViewAt(const StressState& state, const MohrEntry& entry, double angle)
{
    ElementView view;
    view.Angle = angle;
    view.Values = StateAt(state, angle);
    view.Shear = ShearColour(state);
    if (IsInertia(entry)) {
        view.Axes = {"z", "y"};
        view.TurnedAxes = {"z'", "y'"};
    }
    return view;
}

void Draw(Picture& pic, const ElementView& view, const MohrEntry& entry)
{
    ElementPicture picture(pic, view);
    IsInertia(entry) ? picture.DrawAxesOnly() : picture.DrawElement();
}

} // namespace

void DrawPrincipalElement(Picture& pic, const StressState& state, const MohrEntry& entry)
{
    if (NothingToDraw(pic, state)) return;
    ElementView view = ViewAt(state, entry, PrincipalDirection(state));
    view.Values = {state.PrincipalOne, state.PrincipalTwo, 0};
    view.TurnedAxes = {"1", "2"};
    view.Text[0] = Named(pic, QuantityName(entry.Mode, Quantity::One),
                         NormalWithSense(state, entry, state.PrincipalOne));
    view.Text[1] = Named(pic, QuantityName(entry.Mode, Quantity::Two),
                         NormalWithSense(state, entry, state.PrincipalTwo));
    Draw(pic, view, entry);
}

void DrawMaxShearElement(Picture& pic, const StressState& state, const MohrEntry& entry)
{
    if (NothingToDraw(pic, state)) return;
    if (IsInertia(entry)) return pic.Cls();
    ElementView view = ViewAt(state, entry, MaxShearDirection(state));
    view.Values.NormalX = view.Values.NormalY = state.CircleCentre;
    const std::string normal = NormalWithSense(state, entry, state.CircleCentre);
    view.Text = {Plain(normal), Plain(normal),
                 Named(pic, QuantityName(entry.Mode, Quantity::MaxShear),
                       ShearText(state, entry, state.CircleRadius))};
    Draw(pic, view, entry);
}

void DrawRotatedElement(Picture& pic, const StressState& state, const MohrEntry& entry)
{
    if (NothingToDraw(pic, state)) return;
    ElementView view = ViewAt(state, entry, state.RotationAngle);
    const auto texts = RotatedTexts(state, entry);
    for (int i = 0; i < 3; ++i)
        view.Text[i] =
            IsInertia(entry) ? Named(pic, RotatedName(entry.Mode, i), texts[i]) : Plain(texts[i]);
    Draw(pic, view, entry);
}

void DrawSignConvention(Picture& pic, MohrMode mode)
{
    MohrEntry entry;
    entry.Mode = mode;
    ElementView view;
    view.ShowsTurn = false;
    view.Shear = kShearColours[0];
    view.Values = {1, 1, -1};
    view.Text = {Plain("Sigma X"), Plain("Sigma Y"), Plain("Tau XY")};
    if (IsStrain(mode)) view.Text = {Plain("Eps X"), Plain("Eps Y"), Plain("Gamma XY")};
    if (IsInertia(entry)) {
        view.Axes = {"z", "y"};
        view.Text = {Plain("Iz"), Plain("Iy"), Plain("Iyz")};
    }
    Draw(pic, view, entry);
}

void DrawStrainOrient(Picture& pic)
{
    DrawSignConvention(pic, MohrMode::PlaneStrain);
}

} // namespace forcelab::transform
