// The paywall and the store page in a host that has nothing but memory to paint into.

#include <cstdint>
#include <fstream>
#include <vector>

#include "Ours/Modes.hpp"

namespace peers::ours {
namespace {

using namespace proupsells;

class MemoryScreen {
public:
    explicit MemoryScreen(std::shared_ptr<runloop::Clock> clock) : m_host(std::move(clock)), m_pixels(std::size_t(width) * height) {
        m_surface.lend(rasterbackend::PixelBuffer{m_pixels.data(), width, height, width * 4, rasterbackend::PixelFormat::bgra});
    }

    Host& host() { return m_host; }
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
};

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
    peers::runMode(
        peers::Command::parse(argc, argv),
        {{"first", first<MemoryScreen>}, {"warm", warm<MemoryScreen>}, {"tap", tapAndRepaint}, {"store", store<MemoryScreen>}});
}
