#include "beams/BeamCurves.h"
#include "beams/BeamEntry.h"

#include <benchmark/benchmark.h>

namespace {

using namespace forcelab::beams;

/// Loads of all kinds, spread over 100 ft with overhangs at both ends.
BeamRecord LoadedBeam(int loads)
{
    BeamRecord beam;
    SetBeamGeometry(beam, kTwoSupports, 100, 10, 85, 1);
    for (int i = 1; i <= loads; ++i) {
        const double x = 100.0 * i / (loads + 1);
        StoreBeamLoad(beam, i, {i % kLoadKinds, x, x + 2.0 * (i % 7), 1, 1.0 + i % 5, 0, 1});
    }
    beam.LoadCount = loads;
    return beam;
}

/// What every painting of the load diagram computes first.
void RecomputeAllCurves(benchmark::State& state)
{
    const BeamRecord beam = LoadedBeam(static_cast<int>(state.range(0)));
    BeamReactions reactions;
    BeamCurves curves;
    for (auto _ : state) {
        RecomputeBeam(beam, false, reactions, curves);
        benchmark::DoNotOptimize(curves.CurveMoment);
    }
}
BENCHMARK(RecomputeAllCurves)->Arg(1)->Arg(10)->Arg(40)->Unit(benchmark::kMicrosecond);

/// The readout of a point that follows the scroll bar.
void ReadOnePoint(benchmark::State& state)
{
    const BeamRecord beam = LoadedBeam(static_cast<int>(state.range(0)));
    BeamReactions reactions;
    CalculateReactions(beam, reactions);
    double x = 0;
    for (auto _ : state) {
        x = x > beam.BeamLength ? 0 : x + 1;
        benchmark::DoNotOptimize(BeamValuesAt(beam, reactions, kUnfactored, x));
    }
}
BENCHMARK(ReadOnePoint)->Arg(1)->Arg(10)->Arg(40);

} // namespace
