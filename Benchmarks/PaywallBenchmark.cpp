// What the paywall itself costs, without pixels: rebuild, reconciliation, layout and display list.
#include <benchmark/benchmark.h>

#include "Backends/Headless/TestBed.hpp"
#include "Benchmarks/PaywallWindow.hpp"

namespace benchmarks {
namespace {

void nothingChanged(benchmark::State& state) {
    headless::TestBed bed;
    PaywallWindow window;
    for (auto _ : state) {
        window.announce();
        benchmark::DoNotOptimize(window.paint().commands.data());
    }
}
BENCHMARK(nothingChanged)->Unit(benchmark::kMicrosecond);

void tapOnAPlan(benchmark::State& state) {
    headless::TestBed bed;
    PaywallWindow window;
    for (auto _ : state) {
        window.tapOtherPlan();
        benchmark::DoNotOptimize(window.paint().commands.data());
    }
}
BENCHMARK(tapOnAPlan)->Unit(benchmark::kMicrosecond);

void everyCacheDropped(benchmark::State& state) {
    headless::TestBed bed;
    PaywallWindow window;
    for (auto _ : state) {
        window.dropCaches();
        benchmark::DoNotOptimize(window.paint().commands.data());
    }
}
BENCHMARK(everyCacheDropped)->Unit(benchmark::kMicrosecond);

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
} // namespace benchmarks

BENCHMARK_MAIN();
