// What the paywall costs down to the pixels, 750 × 1600, painted by the pixel engine.
#include "Backends/Raster/RasterPainter.hpp"
#include "Backends/Raster/RasterSurface.hpp"
#include "Benchmarks/PaywallWindow.hpp"
#include "Benchmarks/RasterMachine.hpp"

namespace proupsells::benchmarks {
namespace {

constexpr geometry::Size size{375, 800};
constexpr double scale = 2;

// A warm start: pictures are decoded and texts shaped, everything else is made anew.
void warmOpenToFullFrame(benchmark::State& state) {
    RasterMachine machine;
    for (auto _ : state) {
        PaywallWindow window;
        rasterbackend::RasterSurface surface;
        surface.present(window.paint(), size, scale);
        benchmark::DoNotOptimize(surface.picture().row(0));
    }
}
BENCHMARK(warmOpenToFullFrame)->Unit(benchmark::kMicrosecond);

// What the first paywall of a process costs: nothing is decoded, shaped texts and fonts are there.
void firstOpenToFullFrame(benchmark::State& state) {
    RasterMachine machine;
    for (auto _ : state) {
        PaywallWindow window;
        rasterbackend::RasterSurface surface(std::make_shared<rasterbackend::RasterPainter>());
        surface.present(window.paint(), size, scale);
        benchmark::DoNotOptimize(surface.picture().row(0));
    }
}
BENCHMARK(firstOpenToFullFrame)->Unit(benchmark::kMicrosecond);

void tapToNewFrame(benchmark::State& state) {
    RasterMachine machine;
    PaywallWindow window;
    rasterbackend::RasterSurface surface;
    surface.present(window.paint(), size, scale);
    for (auto _ : state) {
        window.tapOtherPlan();
        surface.present(window.paint(), size, scale);
        benchmark::DoNotOptimize(surface.picture().row(0));
    }
}
BENCHMARK(tapToNewFrame)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace proupsells::benchmarks

int main(int count, char** arguments) { return proupsells::benchmarks::run(count, arguments); }
