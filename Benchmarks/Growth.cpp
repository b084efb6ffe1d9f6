// What screens cost as their content grows: `Growth NAME COUNT` prints one line of JSON, `Growth` what there is to measure.
#include <malloc.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "Backends/Raster/RasterSurface.hpp"
#include "Benchmarks/GrowingContent.hpp"
#include "Benchmarks/RasterMachine.hpp"
#include "Platform/Accessibility/SemanticNode.hpp"
#include "Platform/Host/TextCache.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"
#include "Tests/Support/CpuTime.hpp"

namespace proupsells::benchmarks {
namespace {

constexpr geometry::Size size{375, 800};
constexpr double scale = 2;
constexpr double frame_s = 1.0 / 60;

double median(std::vector<double> values) {
    std::nth_element(values.begin(), values.begin() + std::ptrdiff_t(values.size() / 2), values.end());
    return values[values.size() / 2];
}

double heap_bytes() {
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks + info.hblkhd);
}

// The longest way that something on the screen can be scrolled downwards.
double scrollableLength(const accessibility::SemanticNode& node) {
    double longest = node.scroll ? node.scroll->contentSize.height - node.frame.height() : 0;
    for (const accessibility::SemanticNode& child : node.children) longest = std::max(longest, scrollableLength(child));
    return longest;
}

class Window {
public:
    Window() : m_window(uikit::UIWindow::create(size, {0, 0, 34, 0})) {
        m_window->setNeedsDisplayHandler([this] { m_needsDisplay = true; });
        m_window->setRootViewController(std::make_shared<uikit::UIViewController>());
    }
    ~Window() {
        m_window->setRootViewController(nullptr);
        m_window->setNeedsDisplayHandler({});
    }
    Window(const Window&) = delete;

    void present(const std::shared_ptr<uikit::UIViewController>& screen) {
        m_window->frontMostViewController()->present(screen, false);
        runloop::MainRunLoop::main().settle();
    }
    void show() {
        if (!std::exchange(m_needsDisplay, false) && !m_window->isAnimating()) return;
        m_window->paint(m_list);
        m_surface.present(m_list, size, scale);
    }
    void scroll(double distance) { m_window->scroll({187, 400}, {0, distance}); }
    void tap(double y) {
        const double now_s = runloop::MainRunLoop::main().now_s();
        m_window->touch({host::TouchPhase::began, {100, y}, now_s});
        m_window->touch({host::TouchPhase::ended, {100, y}, now_s});
        runloop::MainRunLoop::main().settle();
    }
    double scrollableLength() { return benchmarks::scrollableLength(m_window->semanticTree()); }
    std::size_t commandCount() const { return m_list.commands.size(); }
    // What a screen on a display has as well, whatever its content.
    static constexpr double pixel_bytes = size.width * scale * size.height * scale * sizeof(std::uint32_t);

private:
    std::shared_ptr<uikit::UIWindow> m_window;
    graphics::DisplayList m_list;
    rasterbackend::RasterSurface m_surface;
    bool m_needsDisplay = true;
};

// The windows that show a content.
class Show {
public:
    explicit Show(const GrowingContent& content, Screens screens) {
        for (const auto& screen : screens) {
            if (m_windows.empty() || content.place == GrowingContent::Place::windowsOfTheirOwn)
                m_windows.push_back(std::make_unique<Window>());
            m_windows.back()->present(screen);
        }
        show();
    }
    Window& front() { return *m_windows.back(); }
    double pixel_bytes() const { return Window::pixel_bytes * double(m_windows.size()); }

    void show() {
        for (const auto& window : m_windows) window->show();
    }
    void passFrame() {
        runloop::MainRunLoop& loop = runloop::MainRunLoop::main();
        loop.runUntil(loop.now_s() + frame_s);
        show();
    }

private:
    std::vector<std::unique_ptr<Window>> m_windows;
};

// A frame of a screen whose content fits, or almost, says nothing.
bool scrolls(Window& window) { return window.scrollableLength() > size.height / 2; }

// From half of the way, a little down and back again.
double scrolledFrame_s(Show& show) {
    Window& window = show.front();
    window.scroll(window.scrollableLength() / 2);
    for (int frame = 0; frame < 4; ++frame) show.passFrame();
    constexpr int frameCount = 48, turn = 6;
    std::vector<double> times_s;
    for (int frame = 0; frame < frameCount; ++frame)
        times_s.push_back(tests::cpuTimeOf_s([&] {
            window.scroll(frame / turn % 2 == 0 ? 20 : -20);
            show.passFrame();
        }));
    return median(std::move(times_s));
}

double tap_s(Show& show) {
    constexpr int tapCount = 12;
    std::vector<double> times_s;
    for (int tap = 0; tap < tapCount; ++tap)
        times_s.push_back(tests::cpuTimeOf_s([&] {
            show.front().tap(tap % 2 == 0 ? 490 : 380);
            show.show();
        }));
    return median(std::move(times_s));
}

struct Opening {
    double open_s = 0;
    double close_s = 0;
    double heap_bytes = 0;
};

// Texts are shaped anew. Fonts, letters and pictures are there.
Opening openOnce(const GrowingContent& content, int count) {
    host::TextCache::shared().clear();
    Screens screens = content.screens(count);
    const double heapBefore = heap_bytes();
    std::unique_ptr<Show> show;
    Opening opening;
    opening.open_s = tests::cpuTimeOf_s([&] { show = std::make_unique<Show>(content, std::move(screens)); });
    opening.heap_bytes = heap_bytes() - heapBefore - show->pixel_bytes();
    opening.close_s = tests::cpuTimeOf_s([&] {
        show = nullptr;
        runloop::MainRunLoop::main().settle();
    });
    return opening;
}

void measure(const GrowingContent& content, int count) {
    RasterMachine machine;
    openOnce(content, content.counts.front());
    const Opening first = openOnce(content, count);
    std::vector<double> opens_s{first.open_s}, closes_s{first.close_s};
    constexpr double enough_s = 1.5;
    for (double spent_s = first.open_s; spent_s < enough_s && opens_s.size() < 25; spent_s += opens_s.back()) {
        const Opening again = openOnce(content, count);
        opens_s.push_back(again.open_s);
        closes_s.push_back(again.close_s);
    }
    std::printf(R"({"series": "%s", "count": %d, "open_ms": %.3f, "close_ms": %.3f, "heap_kB": %.0f)", content.name.c_str(), count,
                median(opens_s) * 1e3, median(closes_s) * 1e3, first.heap_bytes / 1e3);
    Show show(content, content.screens(count));
    if (content.hasPlans) std::printf(R"(, "tap_ms": %.4f)", tap_s(show) * 1e3);
    if (scrolls(show.front())) std::printf(R"(, "frame_ms": %.4f)", scrolledFrame_s(show) * 1e3);
    std::printf(R"(, "commands": %zu})"
                "\n",
                show.front().commandCount());
}

} // namespace
} // namespace proupsells::benchmarks

int main(int count, char** arguments) {
    using namespace proupsells::benchmarks;
    if (count == 1) {
        for (const GrowingContent& content : growingContents())
            for (const int size : content.counts) std::printf("%s\t%d\t%s\n", content.name.c_str(), size, content.unit.c_str());
        return 0;
    }
    const auto contents = growingContents();
    const auto content =
        std::ranges::find_if(contents, [&](const GrowingContent& known) { return known.name == std::string_view(arguments[1]); });
    if (count != 3 || content == contents.end() || std::atoi(arguments[2]) < 1) return 2;
    measure(*content, std::atoi(arguments[2]));
    return 0;
}
