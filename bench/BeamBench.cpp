#include "LoadedBeam.h"
#include "beams/BeamCurves.h"

#include <benchmark/benchmark.h>

namespace {

using namespace forcelab::beams;

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
