#include "core/NumericText.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cstddef>
#include <string_view>

namespace {

constexpr std::array<std::string_view, 8> kTyped{
    "70", "1,250.5", "-0.0125", "29e+6", "12 ft", "1.2.3", "5e-3", "123456.789",
};
constexpr std::array<double, 8> kShown{
    0, 1234567, -0.000002, 0.0005, 12.5, 1e15, 999999.9, 29e6 / 3,
};

void ParseTyped(benchmark::State& state)
{
    std::size_t next = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(forcelab::ParseNumber(kTyped[next++ % kTyped.size()]));
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(ParseTyped);

void FormatShown(benchmark::State& state)
{
    std::size_t next = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(forcelab::FormatValue(kShown[next++ % kShown.size()], 3, false));
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(FormatShown);

} // namespace
