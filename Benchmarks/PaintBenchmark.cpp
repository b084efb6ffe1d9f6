// What painting costs: a paywall of 750 × 1600 pixels, whole and after a tap.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "Backends/Raster/PngFile.hpp"
#include "Backends/Raster/RasterPainter.hpp"
#include "Backends/Raster/RasterSurface.hpp"
#include "Tests/Raster/SyntheticPaywall.hpp"

using namespace proupsells;

namespace {

using tests::SyntheticPaywall;

constexpr double scale = 2;

// Holds what all measurements share.
struct Screen {
    std::filesystem::path folder = std::filesystem::temp_directory_path() / "proupsells-paint-benchmark";
    bool isMade = std::filesystem::create_directories(folder);
    SyntheticPaywall paywall{folder};
    graphics::DisplayList lists[2];

    Screen() {
        paywall.paint(lists[0], 0);
        paywall.paint(lists[1], 1);
    }
    ~Screen() { std::filesystem::remove_all(folder); }
};

std::unique_ptr<Screen> screen;

void wholeFrame(benchmark::State& state) {
    rasterbackend::RasterPainter& painter = *rasterbackend::RasterPainter::shared();
    rasterbackend::Picture picture(750, 1600);
    const rasterbackend::PixelRect whole{0, 0, 750, 1600};
    for (auto _ : state) painter.paint({picture.row(0), 750, {750, 1600}}, screen->lists[0], scale, {&whole, 1});
    state.counters["commands"] = double(screen->lists[0].commands.size());
}
BENCHMARK(wholeFrame)->Unit(benchmark::kMicrosecond);

// A new surface each time, as when a screen is opened; the pictures are decoded already.
void firstFrame(benchmark::State& state) {
    for (auto _ : state) {
        rasterbackend::RasterSurface surface;
        surface.present(screen->lists[0], SyntheticPaywall::size, scale);
        benchmark::DoNotOptimize(surface.picture().row(0));
    }
}
BENCHMARK(firstFrame)->Unit(benchmark::kMicrosecond);

void frameAfterTap(benchmark::State& state) {
    rasterbackend::RasterSurface surface;
    surface.present(screen->lists[0], SyntheticPaywall::size, scale);
    int selected = 0;
    for (auto _ : state) {
        selected = 1 - selected;
        surface.present(screen->lists[selected], SyntheticPaywall::size, scale);
    }
}
BENCHMARK(frameAfterTap)->Unit(benchmark::kMicrosecond);

void unchangedFrame(benchmark::State& state) {
    rasterbackend::RasterSurface surface;
    surface.present(screen->lists[0], SyntheticPaywall::size, scale);
    for (auto _ : state) surface.present(screen->lists[0], SyntheticPaywall::size, scale);
}
BENCHMARK(unchangedFrame)->Unit(benchmark::kMicrosecond);

// Everything that a first screen of the process needs, pictures included.
void coldFrame(benchmark::State& state) {
    for (auto _ : state) {
        rasterbackend::RasterSurface surface(std::make_shared<rasterbackend::RasterPainter>());
        surface.present(screen->lists[0], SyntheticPaywall::size, scale);
    }
}
BENCHMARK(coldFrame)->Unit(benchmark::kMicrosecond);

void shapeSentence(benchmark::State& state) {
    rasterbackend::RasterTextShaper shaper;
    const graphics::StyledRun run{
        "Cancel within 7 days, and you won’t be charged. Payment will be made automatically after the trial ends.",
        {.size = 13},
        0};
    for (auto _ : state) benchmark::DoNotOptimize(shaper.shape({&run, 1}, "en", geometry::LayoutDirection::leftToRight));
}
BENCHMARK(shapeSentence)->Unit(benchmark::kMicrosecond);

// A fragment that was never painted before.
void rasterSentence(benchmark::State& state) {
    rasterbackend::RasterTextShaper shaper;
    const graphics::StyledRun run{"Cancel within 7 days, and you won’t be charged. Payment", {.size = 13}, 0};
    const auto text = std::static_pointer_cast<const rasterbackend::RasterShapedText>(
        shaper.shape({&run, 1}, "en", geometry::LayoutDirection::leftToRight));
    rasterbackend::CoverageRasterizer rasterizer;
    rasterbackend::TextRasters rasters(rasterizer);
    double factor = 2;
    for (auto _ : state) {
        factor += 1e-9; // never asked for before
        const auto toPixels = geometry::Transform::scaling(factor, factor);
        benchmark::DoNotOptimize(rasters.raster(*text, {0, std::uint32_t(text->clusters.size())}, {16, 20}, toPixels, 0xFF000000));
    }
}
BENCHMARK(rasterSentence)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv) {
    screen = std::make_unique<Screen>();
    benchmark::Initialize(&argc, argv);
    // A picture of what is measured, to be looked at.
    if (argc > 1) {
        rasterbackend::RasterSurface surface;
        surface.present(screen->lists[0], SyntheticPaywall::size, scale);
        if (!rasterbackend::writePng(surface.picture(), argv[1])) return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    screen.reset();
    return 0;
}
