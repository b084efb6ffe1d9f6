// What the paywall itself costs, without pixels: rebuild, reconciliation, layout and display list.
#include <benchmark/benchmark.h>

#include "Backends/Headless/TestBed.hpp"
#include "Benchmarks/PaywallWindow.hpp"

namespace proupsells::benchmarks {
namespace {

// Does something to the paywall and makes its picture.
void repaintAfter(benchmark::State& state, void (PaywallWindow::*something)()) {
    headless::TestBed bed;
    PaywallWindow window;
    for (auto _ : state) {
        (window.*something)();
        benchmark::DoNotOptimize(window.paint().commands.data());
    }
}

BENCHMARK_CAPTURE(repaintAfter, nothingChanged, &PaywallWindow::announce)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(repaintAfter, tapOnAPlan, &PaywallWindow::tapOtherPlan)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(repaintAfter, everyCacheDropped, &PaywallWindow::dropCaches)->Unit(benchmark::kMicrosecond);

// Everything is made anew: controllers, tree, layout, list. Texts stay shaped.
void opened(benchmark::State& state) {
    headless::TestBed bed;
    for (auto _ : state) {
        PaywallWindow window;
        benchmark::DoNotOptimize(window.paint().commands.data());
    }
}
BENCHMARK(opened)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace proupsells::benchmarks

BENCHMARK_MAIN();
