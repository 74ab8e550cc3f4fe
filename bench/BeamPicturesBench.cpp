#include "LoadedBeam.h"
#include "beams/CurveDiagram.h"
#include "beams/LoadDiagram.h"
#include "core/screen/PictureBox.h"
#include "core/screen/SystemServices.h"

#include <QApplication>

#include <benchmark/benchmark.h>

#include <array>

// Recompute and repaint of the load diagram with two curves in a window of 880 x 900; the budget is
// 8 ms with forty loads.

namespace forcelab::beams {
namespace {

/// The pictures of one view over one beam, as the form paints them.
struct View {
    BeamRecord Beam;
    bool SlopeView;
    BeamReactions Reactions;
    BeamCurves Curves;
    DiagramUnits Units{1, 1, 1, 0, 0, 29e6 * 999};
    std::optional<double> Marker;
    std::array<screen::PictureBox, 3> Boxes;

    View(int loads, bool slopeView) : Beam(LoadedBeam(loads)), SlopeView(slopeView)
    {
        Boxes[0].resize(860, 260);
        Boxes[0].OnPaint = [this](Picture& pic) {
            RecomputeBeam(Beam, SlopeView, Reactions, Curves);
            DrawLoadDiagram(pic, Beam, Reactions, Units, ShearMomentCase(Beam));
        };
        for (const int box : {1, 2}) {
            Boxes[box].resize(860, 260);
            Boxes[box].OnPaint = [this, box](Picture& pic) { DrawCurve(pic, box); };
        }
    }
    void DrawCurve(Picture& pic, int box)
    {
        const auto first = SlopeView ? CurveKind::Slope : CurveKind::Shear;
        const auto second = SlopeView ? CurveKind::Deflection : CurveKind::Moment;
        DrawCurveDiagram(pic, box == 1 ? first : second, Beam, Curves, Units, Marker);
    }
};

void Repaint(benchmark::State& state, bool slopeView)
{
    View view(static_cast<int>(state.range(0)), slopeView);
    for (auto _ : state)
        for (screen::PictureBox& box : view.Boxes) box.PaintNow();
}

void RepaintShearAndMoment(benchmark::State& state)
{
    Repaint(state, false);
}
BENCHMARK(RepaintShearAndMoment)->Arg(1)->Arg(10)->Arg(40)->Unit(benchmark::kMillisecond);

void RepaintSlopeAndDeflection(benchmark::State& state)
{
    Repaint(state, true);
}
BENCHMARK(RepaintSlopeAndDeflection)->Arg(1)->Arg(10)->Arg(40)->Unit(benchmark::kMillisecond);

/// The marker moves with the bar: the curves are painted anew, the load diagram is not.
void MoveTheMarker(benchmark::State& state)
{
    View view(static_cast<int>(state.range(0)), false);
    view.Boxes[0].PaintNow();
    double x = 0;
    for (auto _ : state) {
        x = x > view.Beam.BeamLength ? 0 : x + 1;
        view.Marker = x;
        view.Boxes[1].PaintNow();
        view.Boxes[2].PaintNow();
    }
}
BENCHMARK(MoveTheMarker)->Arg(1)->Arg(10)->Arg(40)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace forcelab::beams

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    forcelab::screen::Services::Current().UseSystem();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
