#include "core/RecordingPicture.h"
#include "truss/TrussDrawing.h"
#include "truss/TrussNarration.h"

#include <benchmark/benchmark.h>

// The largest truss: analysis within 1 ms, the work of a repaint within the 4 ms of a picture.

namespace {

using namespace forcelab;
using namespace forcelab::truss;

/// 24 bays with parallel chords, 97 members, on a grid of 50 x 50 spaces.
TrussModel TwentyFourBays()
{
    constexpr int kBays = 24;
    TrussModel model;
    model.GridSpacesX = model.GridSpacesY = 50;
    MakeTrussGridCoords(model);
    const auto add = [&model](int i1, int j1, int i2, int j2) {
        AddMember(model, model.PointAt(i1, j1), model.PointAt(i2, j2));
    };
    for (int i = 0; i <= kBays; ++i) {
        add(i, 0, i, 1);
        if (i == kBays) break;
        add(i, 0, i + 1, 0);
        add(i, 1, i + 1, 1);
        add(i, 0, i + 1, 1);
        model.GridPoints[model.PointAt(i, 1)].LoadY = -10;
    }
    TrussGridPoint& pin = model.GridPoints[model.PointAt(0, 0)];
    pin.SupportX = pin.SupportY = 1;
    model.GridPoints[model.PointAt(kBays, 0)].SupportY = 1;
    return model;
}

void Analyze(benchmark::State& state)
{
    TrussModel model = TwentyFourBays();
    for (auto _ : state) benchmark::DoNotOptimize(AnalyzeTruss(model));
}
BENCHMARK(Analyze)->Unit(benchmark::kMicrosecond);

void Explain(benchmark::State& state)
{
    TrussModel model = TwentyFourBays();
    const TrussAnalysis analysis = AnalyzeTruss(model);
    for (auto _ : state) benchmark::DoNotOptimize(ExplainTruss(model, analysis.Results));
}
BENCHMARK(Explain)->Unit(benchmark::kMicrosecond);

void MarkPoints(benchmark::State& state)
{
    TrussModel model = TwentyFourBays();
    for (auto _ : state) MarkInteriorPoints(model);
}
BENCHMARK(MarkPoints)->Unit(benchmark::kMicrosecond);

void Draw(benchmark::State& state)
{
    const TrussModel model = TwentyFourBays();
    for (auto _ : state) {
        RecordingPicture pic(900, 600);
        DrawTruss(pic, model);
    }
}
BENCHMARK(Draw)->Unit(benchmark::kMicrosecond);

} // namespace
