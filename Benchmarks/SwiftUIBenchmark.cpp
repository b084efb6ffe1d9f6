// What the declarative layer costs by itself: rebuild, reconciliation, layout and display list of a screen of some eighty views.
#include <benchmark/benchmark.h>

#include "Backends/Headless/TestBed.hpp"
#include "Platform/SwiftUI/Tree/ViewHost.hpp"
#include "Tests/SwiftUI/SampleScreen.hpp"

namespace proupsells::swiftui::tests {
namespace {

class SampleHost {
public:
    SampleHost() : m_host(ViewHost::create(SampleScreen{})) {
        m_host->setSize({375, 800}, {0, 0, 34, 0});
        frame();
    }
    ViewHost& host() { return *m_host; }
    void frame() {
        m_host->update();
        benchmark::DoNotOptimize(m_host->displayList().commands.data());
    }

private:
    headless::TestBed m_bed;
    std::shared_ptr<ViewHost> m_host;
};

void nothingChanged(benchmark::State& state) {
    SampleHost sample;
    for (auto _ : state) {
        sample.host().setNeedsUpdate();
        sample.frame();
    }
}
BENCHMARK(nothingChanged)->Unit(benchmark::kMicrosecond);

void rootBodyEvaluated(benchmark::State& state) {
    SampleHost sample;
    for (auto _ : state) {
        sample.host().rootNode()->onlyChild()->setNeedsBuild();
        sample.frame();
    }
}
BENCHMARK(rootBodyEvaluated)->Unit(benchmark::kMicrosecond);

void repaintOnly(benchmark::State& state) {
    SampleHost sample;
    for (auto _ : state) {
        sample.host().setNeedsDisplay();
        sample.frame();
    }
}
BENCHMARK(repaintOnly)->Unit(benchmark::kMicrosecond);

// Taps on the first two cards in turn: two cards and two texts change.
void tapOnACard(benchmark::State& state) {
    SampleHost sample;
    // In the cards identified as "Yearly" and "Monthly".
    const double y[] = {380, 490};
    int turn = 0;
    for (auto _ : state) {
        const geometry::Point at{100, y[turn ^= 1]};
        sample.host().touch({host::TouchPhase::began, at, 0});
        sample.host().touch({host::TouchPhase::ended, at, 0});
        sample.frame();
    }
}
BENCHMARK(tapOnACard)->Unit(benchmark::kMicrosecond);

void everyCacheDropped(benchmark::State& state) {
    SampleHost sample;
    for (auto _ : state) {
        sample.host().dropCaches();
        sample.frame();
    }
}
BENCHMARK(everyCacheDropped)->Unit(benchmark::kMicrosecond);

void firstFrame(benchmark::State& state) {
    const headless::TestBed bed;
    for (auto _ : state) {
        const auto host = ViewHost::create(SampleScreen{});
        host->setSize({375, 800}, {0, 0, 34, 0});
        host->update();
        benchmark::DoNotOptimize(host->displayList().commands.data());
    }
}
BENCHMARK(firstFrame)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace proupsells::swiftui::tests

BENCHMARK_MAIN();
