// What the store page costs down to the pixels, 750 × 1600, painted by the pixel engine, with its clips playing. The times are the
// whole process's, so that what is decoded in the background counts.
#include "Backends/FFmpeg/LazyClipDecoder.hpp"
#include "Benchmarks/RasterMachine.hpp"
#include "Benchmarks/StoreWindow.hpp"

namespace proupsells::benchmarks {
namespace {

std::shared_ptr<host::ClipDecoder> realClips() {
    using ffmpegbackend::LazyClipDecoder;
    return std::make_shared<LazyClipDecoder>(ffmpegbackend::Pace::exact, LazyClipDecoder::defaultFolders());
}

// Up and down the page, 20 points a frame, while the strips drift.
void scroll(benchmark::State& state, std::shared_ptr<host::ClipDecoder> clips) {
    RasterMachine machine{std::move(clips)};
    StoreWindow window;
    double step = 20;
    for (auto _ : state) {
        if (window.offset() + step < 0 || window.offset() + step > window.largestOffset()) step = -step;
        window.scrollTo(window.offset() + step);
        window.passFrame();
    }
}

void scrolledFrame(benchmark::State& state) { scroll(state, realClips()); }
BENCHMARK(scrolledFrame)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();

void scrolledFrameWithoutClips(benchmark::State& state) { scroll(state, nullptr); }
BENCHMARK(scrolledFrameWithoutClips)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();

// A second of the page standing still at a place.
void second(benchmark::State& state, geometry::Size size, double offset) {
    RasterMachine machine{realClips()};
    StoreWindow window{size};
    window.scrollTo(offset);
    window.passFrame();
    const int framesBefore = window.frames();
    for (auto _ : state)
        for (int frame = 0; frame < 60; ++frame) window.passFrame();
    state.counters["pictures/s"] = double(window.frames() - framesBefore) / double(state.iterations());
}

void secondAtTheTopWithOneClip(benchmark::State& state) { second(state, {375, 800}, 0); }
BENCHMARK(secondAtTheTopWithOneClip)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();

void secondAtThreeStrips(benchmark::State& state) { second(state, {375, 800}, 1226); }
BENCHMARK(secondAtThreeStrips)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();

void secondAtTheRowOfClips(benchmark::State& state) { second(state, {375, 800}, 2000); }
BENCHMARK(secondAtTheRowOfClips)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();

// The still picture of the PDF shelf fills the window.
void secondAwayFromStripsAndClips(benchmark::State& state) { second(state, {375, 320}, 895); }
BENCHMARK(secondAwayFromStripsAndClips)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();

} // namespace
} // namespace proupsells::benchmarks

int main(int count, char** arguments) { return proupsells::benchmarks::run(count, arguments); }
