// The paywall and the store page in a host that has nothing but memory to paint into.

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <fstream>
#include <thread>
#include <utility>
#include <vector>

#include "Ours/Modes.hpp"

namespace peers::ours {
namespace {

using namespace proupsells;

class MemoryScreen {
public:
    explicit MemoryScreen(std::shared_ptr<runloop::Clock> clock) : m_host(std::move(clock)), m_pixels(std::size_t(width) * height) {
        m_host.window()->setNeedsDisplayHandler([this] { m_needsDisplay = true; });
        m_surface.lend(rasterbackend::PixelBuffer{m_pixels.data(), width, height, width * 4, rasterbackend::PixelFormat::bgra});
    }

    Host& host() { return m_host; }
    // A host without a toolkit has none.
    void showHostsOwnText() {}
    void show() {
        m_host.loop().runDueTurns();
        m_host.window()->paint(m_list);
        m_surface.present(m_list, screenSize, scale);
    }
    void showWhole() {
        m_surface.forgetShown();
        show();
    }
    void passTime(double duration_s) { m_host.loop().runUntil(m_host.loop().now_s() + duration_s); }
    void rest() { passTime(1); }
    // As a host's own event loop would: a frame at each refresh of a display while something moves, else asleep until work is due.
    void runFor(double duration_s) {
        constexpr double frame_s = 1.0 / 60;
        runloop::MainRunLoop& loop = m_host.loop();
        for (const double end_s = loop.now_s() + duration_s; loop.now_s() < end_s;) {
            const double start_s = loop.now_s();
            loop.runDueTurns();
            if (std::exchange(m_needsDisplay, false) || m_host.window()->isAnimating()) show();
            double next_s = std::min(end_s, loop.nextDueTime_s().value_or(end_s));
            if (m_host.window()->isAnimating()) next_s = std::min(next_s, start_s + frame_s);
            std::this_thread::sleep_for(std::chrono::duration<double>(next_s - loop.now_s()));
        }
    }
    // As a portable pixmap.
    void save(const std::string& file) const {
        if (file.empty()) return;
        std::ofstream stream(file, std::ios::binary);
        stream << "P6 " << width << ' ' << height << " 255\n";
        for (const std::uint32_t pixel : m_pixels)
            for (const int shift : {16, 8, 0}) stream.put(char(pixel >> shift));
    }

private:
    static constexpr int width = int(screenSize.width * scale), height = int(screenSize.height * scale);

    Host m_host;
    std::vector<std::uint32_t> m_pixels;
    graphics::DisplayList m_list;
    rasterbackend::RasterSurface m_surface;
    bool m_needsDisplay = true;
};

void idle(const Command& command, Report& report) {
    MemoryScreen screen(realClock());
    screen.host().present(makePaywall());
    screen.runFor(3);
    const Stopwatch watch;
    screen.runFor(command.seconds());
    report.add("cpu_s_per_min", watch.cpu_ms() / watch.wall_ms() * 60);
    report.add(Memory::now());
}

void tapAndRepaint(const Command& command, Report& report) {
    tap<MemoryScreen>(command, report);
    MemoryScreen screen(virtualClock());
    screen.host().present(makePaywall());
    screen.show();
    Series repainted;
    for (int round = 0; round < 50; ++round) {
        const Stopwatch watch;
        screen.showWhole();
        repainted.add(watch.wall_ms());
    }
    report.add("full_repaint_ms", repainted);
}

} // namespace
} // namespace peers::ours

int main(int argc, char** argv) {
    using namespace peers::ours;
    peers::runMode(peers::Command::parse(argc, argv), {{"first", first<MemoryScreen>},
                                                       {"warm", warm<MemoryScreen>},
                                                       {"tap", tapAndRepaint},
                                                       {"store", store<MemoryScreen>},
                                                       {"idle", idle}});
}
