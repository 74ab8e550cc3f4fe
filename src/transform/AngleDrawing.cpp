#include "core/NumericText.h"
#include "core/Units.h"
#include "transform/Figure.h"
#include "transform/MohrColours.h"
#include "transform/MohrDrawing.h"

#include <array>
#include <cmath>

namespace forcelab::transform {

namespace {

constexpr double kUp = kPi / 2;
constexpr double kAxisLength = 1;
constexpr double kArcRadius = 0.55;
constexpr double kGaugeFrom = 0.4; // along a gauge's direction
constexpr double kGaugeTo = 0.75;
constexpr double kGaugeHalfWidth = 0.07;
constexpr int kGridLines = 3;

struct Gauge {
    std::string Name;
    double Degrees;
};

std::array<Gauge, 3> GaugesOf(MohrMode mode)
{
    if (mode == MohrMode::Rosette60) return {{{"A", 0}, {"B", 60}, {"C", 120}}};
    return {{{"A", 0}, {"B", 45}, {"C", 90}}};
}

/// One gauge: its direction, its carrier and the wires of its grid.
void DrawGauge(Figure& figure, double angle)
{
    const auto at = [angle](double out, double aside) {
        return Polar(Polar({0, 0}, out, angle), aside, angle + kUp);
    };
    figure.Line({0, 0}, at(kAxisLength, 0), {kFaintColour, 1, LinePattern::Dash});
    const std::array<PicturePoint, 4> carrier{
        at(kGaugeFrom, -kGaugeHalfWidth), at(kGaugeTo, -kGaugeHalfWidth),
        at(kGaugeTo, kGaugeHalfWidth), at(kGaugeFrom, kGaugeHalfWidth)};
    figure.Outline(carrier, {kTextColour}, kElementFill);
    for (int k = 0; k < kGridLines; ++k) {
        const double aside = kGaugeHalfWidth * (2.0 * k / (kGridLines - 1) - 1) * 0.55;
        figure.Line(at(kGaugeFrom + 0.04, aside), at(kGaugeTo - 0.04, aside), {kMainColour});
    }
}

} // namespace

void DrawRotationAngle(Picture& pic, const StressState& state, MohrMode mode)
{
    const bool inertia = mode == MohrMode::MomentOfInertia;
    const double angle = state.RotationAngle;
    Figure figure(pic, -0.2, 1.25, 1.3, -1.25);
    figure.Arrow({0, 0}, {kAxisLength, 0}, {kAxisColour});
    figure.Arrow({0, 0}, Polar({0, 0}, kAxisLength, angle), {kMainColour, 2});
    figure.AngleArc({0, 0}, kArcRadius, 0, angle, {kAngleColour});
    const std::string degrees = Format(angle * 180 / kPi, "##0") + "°";
    const double away = angle > 0 ? -kUp : kUp; // the side of X that X' leaves free
    figure.Text(Polar({0, 0}, kAxisLength, angle), Plain(inertia ? "Z'" : "X'"), -away, kMainColour,
                true, false);
    figure.Text({kAxisLength, 0}, Plain(inertia ? "Z" : "X"), away, kAxisColour, true, false);
    figure.Text(Polar({0, 0}, kArcRadius, angle / 2), Plain(degrees), angle / 2, kAngleColour, true,
                false);
}

std::string RotationFromClick(double x, double y)
{
    double degrees = 0;
    if (x != 0)
        degrees = std::atan(y / x) * 180 / kPi;
    else if (y != 0)
        degrees = y > 0 ? 90 : -90;
    return Format(degrees, "##0.0");
}

void DrawRosette(Picture& pic, MohrMode mode)
{
    const bool delta = mode == MohrMode::Rosette60;
    Figure figure(pic, delta ? -0.75 : -0.25, 1.2, 1.25, -0.2);
    const auto gauges = GaugesOf(mode);
    for (const Gauge& gauge : gauges) DrawGauge(figure, gauge.Degrees * kPi / 180);
    for (const Gauge& gauge : gauges) {
        const double angle = gauge.Degrees * kPi / 180;
        const std::string name = gauge.Name + ", " + Format(gauge.Degrees, "##0") + "°";
        figure.Text(Polar({0, 0}, kAxisLength, angle), Plain(name), angle, kTextColour, true,
                    false);
    }
}

} // namespace forcelab::transform
