#include "transform/MohrDrawing.h"

#include "core/MainModule.h"
#include "core/Units.h"
#include "transform/Figure.h"
#include "transform/MohrColours.h"
#include "transform/MohrModes.h"
#include "transform/MohrTexts.h"

#include <algorithm>
#include <cmath>

namespace forcelab::transform {

namespace {

constexpr double kUp = kPi / 2;
constexpr double kLeft = kPi;
constexpr double kDown = -kPi / 2;
constexpr double kArcShare = 0.3;     // of the radius
constexpr double kLabelRoom = 0.05;   // of the window, to each side
constexpr double kAxisMargin = 4;     // pixels, from an axis's end to the sheet's edge
constexpr double kSmallestArc = 0.02; // radians

bool IsInertia(MohrMode mode)
{
    return mode == MohrMode::MomentOfInertia;
}

/// "Sigma", or the Greek letter where the system has it.
Label AxisName(const std::string& words, const std::string& letter, const std::string& rest)
{
    if (!MainModule::SymbolFontPresent || letter.empty()) return Plain(words + rest);
    return {{letter, LabelPart::Kind::Greek}, {rest, LabelPart::Kind::Plain}};
}

/// One picture of Mohr's circle: lines first, then the labels by their importance.
class CirclePicture {
  public:
    CirclePicture(Picture& pic, const CircleWindow& window, const StressState& state,
                  const MohrEntry& entry)
        : figure_(pic, window.Low - Room(window), window.Top + Room(window),
                  window.High + Room(window), window.Bottom - Room(window)),
          pic_(pic), state_(state), entry_(entry),
          three_(ShowsThreeCircles(entry)), centre_{state.CircleCentre, 0}
    {}

    void Draw()
    {
        DrawAxes();
        DrawCircles();
        DrawDiameter();
        DrawDoubleAngle();
        DrawDots();
        LabelAxes();
        LabelPrincipals();
        LabelShears();
        LabelAngle();
        LabelDiameter();
        LabelCentreAndRadius();
        NoteAssumption();
    }

  private:
    /// What the labels need beyond the window.
    static double Room(const CircleWindow& window)
    {
        return kLabelRoom * std::max(window.High - window.Low, window.Top - window.Bottom);
    }
    [[nodiscard]] double Right() const { return pic_.ScaleLeft() + pic_.ScaleWidth(); }
    [[nodiscard]] double Bottom() const { return pic_.ScaleTop() + pic_.ScaleHeight(); }
    [[nodiscard]] std::string Text(double value) const { return MohrText(state_, entry_, value); }
    [[nodiscard]] bool OriginShows() const { return pic_.ScaleLeft() < 0 && Right() > 0; }
    /// Where the axis of shear stands: at the origin, or at the edge that is nearer to it.
    [[nodiscard]] double ShearAxisX() const
    {
        const double edge = pic_.UserWidth(2 * kAxisMargin);
        return std::clamp(0.0, pic_.ScaleLeft() + edge, Right() - edge);
    }

    void DrawAxes()
    {
        const double across = pic_.UserWidth(kAxisMargin);
        const double along = pic_.UserHeight(kAxisMargin);
        const double x = ShearAxisX();
        figure_.Arrow({pic_.ScaleLeft() + across, 0}, {Right() - across, 0}, {kAxisColour});
        const LinePattern pattern = OriginShows() ? LinePattern::Solid : LinePattern::Dot;
        figure_.Line({x, Bottom() + along}, {x, pic_.ScaleTop() - 3 * along},
                     {kAxisColour, 1, pattern});
        figure_.Arrow({x, pic_.ScaleTop() - 3 * along}, {x, pic_.ScaleTop() - along},
                      {kAxisColour});
    }

    void DrawCircles()
    {
        if (three_) {
            figure_.Circle({state_.CircleOneCentre, 0}, state_.CircleOneRadius, {kCircleOneColour});
            figure_.Circle({state_.CircleTwoCentre, 0}, state_.CircleTwoRadius, {kCircleTwoColour});
        }
        figure_.Circle(centre_, state_.CircleRadius, {kMainColour, three_ ? 1.0 : 2.0});
    }

    void DrawDiameter()
    {
        figure_.Line(StateX(), StateY(), {kDiameterColour});
        if (entry_.Mode == MohrMode::PlaneStress)
            figure_.Line(centre_, StateX(), {kDiameterColour, 2});
    }

    /// The turn on the circle from X to principal one, the shorter way.
    void DrawDoubleAngle()
    {
        if (!HasAngle()) return;
        const double from = SignedDoubleAngle();
        figure_.AngleArc(centre_, kArcShare * state_.CircleRadius, from, 0, {kAngleColour});
    }

    void DrawDots()
    {
        for (const double x : {state_.PrincipalOne, state_.PrincipalTwo, state_.CircleCentre})
            figure_.Dot({x, 0}, kMainColour);
        figure_.Dot(StateX(), kDiameterColour);
        figure_.Dot(StateY(), kDiameterColour);
        figure_.Dot(ShearTop(), ShearColour(state_));
        if (!three_) return;
        figure_.Dot({state_.PrincipalThree, 0}, kMainColour);
        figure_.Dot({state_.AbsMaxCentre, state_.AbsMaxShear}, ShearColour(state_));
    }

    /// "Sigma 1 = 70.0", with a Greek letter where the system has it.
    void PicMohrGreek(PicturePoint at, Quantity quantity, double side, Colour ink)
    {
        const Label value = Plain(QuantityText(state_, entry_, quantity));
        figure_.Text(at, Joined(QuantityName(entry_.Mode, quantity), value), side, ink);
    }

    void LabelPrincipals()
    {
        PicMohrGreek({state_.PrincipalOne, 0}, Quantity::One, -kPi / 4, kMainColour);
        PicMohrGreek({state_.PrincipalTwo, 0}, Quantity::Two, -3 * kPi / 4, kMainColour);
        if (three_)
            PicMohrGreek({state_.PrincipalThree, 0}, Quantity::Three, -3 * kPi / 4, kMainColour);
    }

    /// Where there are two, one stands outside and one inside, each beside its own dot.
    void LabelShears()
    {
        if (three_)
            PicMohrGreek({state_.AbsMaxCentre, state_.AbsMaxShear}, Quantity::AbsMaxShear, kUp,
                         ShearColour(state_));
        PicMohrGreek(ShearTop(), Quantity::MaxShear, three_ ? kDown : kUp, ShearColour(state_));
    }

    void LabelAngle()
    {
        if (!HasAngle()) return;
        const double from = SignedDoubleAngle();
        const std::string value = AngleText(from) + "°";
        const Label name = MainModule::SymbolFontPresent ? Label{{"2", LabelPart::Kind::Plain},
                                                                 {"q", LabelPart::Kind::Greek},
                                                                 {"p", LabelPart::Kind::Subscript},
                                                                 {" = ", LabelPart::Kind::Plain}}
                                                         : Label{};
        const PicturePoint at = Polar(centre_, kArcShare * state_.CircleRadius, from / 2);
        figure_.Text(at, figure_.IsSmall() ? Plain(value) : Joined(name, Plain(value)), from / 2,
                     kAngleColour);
    }

    void LabelDiameter()
    {
        const bool inertia = IsInertia(entry_.Mode);
        NamePoint(inertia ? "Z" : "X", StateX());
        NamePoint("Y", StateY());
    }

    void NamePoint(const std::string& name, PicturePoint at)
    {
        const std::string values = " (" + Text(at.X) + "; " + Text(at.Y) + ")";
        const double side = std::atan2(at.Y, at.X - state_.CircleCentre);
        if (!figure_.IsSmall() &&
            figure_.Text(at, Plain(name + values), side, kDiameterColour, false))
            return;
        figure_.Text(at, Plain(name), side, kDiameterColour);
    }

    void LabelAxes()
    {
        const std::string unit =
            figure_.IsSmall() ? "" : " (" + std::string(kMohrUnits[entry_.Unit]) + ")";
        const PicturePoint end{Right(), 0};
        const PicturePoint top{ShearAxisX(), pic_.ScaleTop() - pic_.UserHeight(2 * kAxisMargin)};
        const PicturePoint foot{ShearAxisX(), Bottom() + pic_.UserHeight(2 * kAxisMargin)};
        Label normal = AxisName("Sigma", "s", unit);
        Label shear = AxisName("Tau", "t", ", CW");
        if (IsStrain(entry_.Mode)) {
            normal = AxisName("Eps", "e", unit);
            shear = AxisName("Gamma", "g", "/2, CW");
        }
        if (IsInertia(entry_.Mode)) {
            normal = Plain("I" + unit);
            shear = Plain("Iyz");
        }
        figure_.Text(end, normal, 0.75 * kPi, kAxisColour, true, false);
        figure_.Text(top, shear, 0, kAxisColour, true, false);
        if (!IsInertia(entry_.Mode)) figure_.Text(foot, Plain("CCW"), 0, kAxisColour, false, false);
    }

    /// Beside what they measure, or in a corner where three circles leave no room for that.
    void LabelCentreAndRadius()
    {
        const Label radius = Plain("Radius = " + Text(state_.CircleRadius));
        const Label centre = Plain("Center = " + Text(state_.CircleCentre));
        if (three_) {
            const PicturePoint corner{Right(), Bottom()};
            figure_.Text(corner, radius, 0.75 * kPi, kDiameterColour, true, false);
            figure_.Text(corner, centre, 0.75 * kPi, kMainColour, true, false);
            return;
        }
        const PicturePoint half = Polar(centre_, 0.62 * state_.CircleRadius, state_.PrincipalAngle);
        figure_.Text(half, radius, state_.PrincipalAngle + kUp, kDiameterColour);
        figure_.Text(centre_, centre, kDown, kMainColour);
    }

    /// What was taken for granted of the third direction.
    void NoteAssumption()
    {
        if (!three_) return;
        const std::string note =
            AssumesPlaneStress(entry_) ? "Plane stress assumption" : "Plane strain assumption";
        figure_.Text({pic_.ScaleLeft(), Bottom()}, Plain(note), kUp / 2, kAxisColour, false, false);
    }

    [[nodiscard]] PicturePoint StateX() const { return {state_.SigmaX, state_.TauXY}; }
    [[nodiscard]] PicturePoint StateY() const { return {state_.SigmaY, -state_.TauXY}; }
    [[nodiscard]] PicturePoint ShearTop() const
    {
        return {state_.CircleCentre, state_.CircleRadius};
    }
    [[nodiscard]] double SignedDoubleAngle() const { return -2 * PrincipalDirection(state_); }
    [[nodiscard]] bool HasAngle() const { return std::abs(SignedDoubleAngle()) > kSmallestArc; }

    Figure figure_;
    Picture& pic_;
    const StressState& state_;
    const MohrEntry& entry_;
    bool three_;
    PicturePoint centre_;
};

} // namespace

void DrawMohrCircle(Picture& pic, const StressState& state, const MohrEntry& entry)
{
    if (state.CircleBad || state.CircleRadius <= 0) return pic.Cls();
    StressState shown = state;
    const CircleWindow window = WindowOf(shown, entry);
    CirclePicture(pic, window, shown, entry).Draw();
}

} // namespace forcelab::transform
