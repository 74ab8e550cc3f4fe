#include "core/NumericText.h"
#include "sections/SectionCalculation.h"
#include "sections/ShapeCatalogue.h"

#include <benchmark/benchmark.h>

#include <initializer_list>

// One ComputeSection; the budget is 20 microseconds for the largest shape. Each run lays the
// elements out anew, as a second Compute does.

namespace forcelab::sections {
namespace {

struct Prepared {
    CrossSection Section;
    SectionEntry Entry;
};

Prepared Prepare(int shape, std::initializer_list<double> boxes, int quarters)
{
    Prepared made;
    TakeShape(made.Section, shape);
    made.Entry.Swatch.fill(IndexedColour(9));
    int box = 0;
    for (const double value : boxes) made.Entry.Box[box++] = Format(value, "####0.0####");
    if (quarters != 0) RotateElements(made.Section, quarters * 1.5707963267948966);
    CheckEntry(made.Section, made.Entry);
    return made;
}

void Compute(benchmark::State& state, Prepared made)
{
    for (auto _ : state) {
        BuildElements(made.Section, made.Section.ElementDims[2][0]);
        ComputeSection(made.Section, made.Entry);
        benchmark::DoNotOptimize(made.Section.Record);
    }
}

/// Six elements, both axes symmetric: no search.
void DoubleChannel(benchmark::State& state)
{
    Compute(state, Prepare(kDoubleCBack, {3, 0.5, 9, 0.375, 2}, 0));
}
BENCHMARK(DoubleChannel)->Unit(benchmark::kMicrosecond);

void DoubleChannelComposite(benchmark::State& state)
{
    Prepared made = Prepare(kDoubleCBack, {3, 0.5, 9, 0.375, 2}, 0);
    made.Section.CompositeSection = made.Entry.Composite = true;
    Compute(state, made);
}
BENCHMARK(DoubleChannelComposite)->Unit(benchmark::kMicrosecond);

/// Five elements and a search.
void Hat(benchmark::State& state)
{
    Compute(state, Prepare(kHat, {6, 0.5, 4, 0.375, 2.5, 0.625}, 1));
}
BENCHMARK(Hat)->Unit(benchmark::kMicrosecond);

/// The slowest way: the secant steps circle to their limit, then come the halvings.
void BalanceByBisection(benchmark::State& state)
{
    Compute(state, Prepare(kStiffenedTUp, {17.761, 0.486, 7.696, 1.124, 8.115, 0.673}, 0));
}
BENCHMARK(BalanceByBisection)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace forcelab::sections
