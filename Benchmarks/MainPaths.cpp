// The main paths, one a run, for counting their instructions: `MainPaths NAME` under callgrind counts that path alone.
#include <valgrind/callgrind.h>

#include <cstdio>
#include <functional>
#include <string_view>

#include "Backends/Raster/RasterSurface.hpp"
#include "Benchmarks/PaywallWindow.hpp"
#include "Benchmarks/RasterMachine.hpp"
#include "Benchmarks/StoreWindow.hpp"

namespace proupsells::benchmarks {
namespace {

constexpr geometry::Size size{375, 800};
constexpr double scale = 2;

void counted(const std::function<void()>& path) {
    CALLGRIND_START_INSTRUMENTATION;
    path();
    CALLGRIND_STOP_INSTRUMENTATION;
}

// What the first paywall of a process costs, with everything that it needs for the first time.
void firstPaywall() {
    counted([] {
        RasterMachine machine;
        PaywallWindow window;
        rasterbackend::RasterSurface surface;
        surface.present(window.paint(), size, scale);
    });
}

// After as many others in the process.
template <int count>
void paywallAfter() {
    RasterMachine machine;
    const auto open = [] {
        PaywallWindow window;
        rasterbackend::RasterSurface surface;
        surface.present(window.paint(), size, scale);
    };
    for (int earlier = 0; earlier < count; ++earlier) open();
    counted(open);
}

void tap() {
    RasterMachine machine;
    PaywallWindow window;
    rasterbackend::RasterSurface surface;
    const auto tapOnce = [&] {
        window.tapOtherPlan();
        surface.present(window.paint(), size, scale);
    };
    for (int warming = 0; warming < 4; ++warming) tapOnce();
    counted(tapOnce);
}

// From one page to the next, at 60 frames a second.
void carousel() {
    RasterMachine machine;
    PaywallWindow window;
    rasterbackend::RasterSurface surface;
    const auto passFrames = [&](int count) {
        for (; count > 0; --count) {
            machine.loop.runUntil(machine.loop.now_s() + 1.0 / 60);
            surface.present(window.paint(), size, scale);
        }
    };
    passFrames(299);
    counted([&] { passFrames(130); });
}

void storeScroll() {
    RasterMachine machine;
    StoreWindow window;
    const auto scroll = [&](double step) {
        for (int frame = 0; frame < 60; ++frame) {
            window.scrollTo(window.offset() + step);
            window.passFrame();
        }
    };
    scroll(20);
    scroll(-20);
    counted([&] { scroll(20); });
}

constexpr std::pair<std::string_view, void (*)()> paths[] = {
    {"first-paywall", firstPaywall},
    // Pictures that are painted again are kept, so the second one reads them once more.
    {"second-paywall", paywallAfter<1>},
    {"next-paywall", paywallAfter<2>},
    {"tap", tap},
    {"carousel", carousel},
    {"store-scroll", storeScroll},
};

} // namespace
} // namespace proupsells::benchmarks

int main(int count, char** arguments) {
    for (const auto& [name, path] : proupsells::benchmarks::paths) {
        if (count == 1) std::printf("%s\n", name.data());
        if (count != 2 || name != arguments[1]) continue;
        path();
        return 0;
    }
    return count == 1 ? 0 : 2;
}
