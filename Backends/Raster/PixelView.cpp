#include "Backends/Raster/PixelView.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

#include "Backends/Raster/RasterSurface.hpp"
#include "Platform/RunLoop/MainRunLoop.hpp"

namespace proupsells::rasterbackend {

namespace {

// How long views have looked ahead before the pictures that come next are read.
constexpr double restBeforePreparing_s = 1;

// In small letters.
constexpr std::pair<std::string_view, host::Key> namedKeys[] = {
    {"escape", host::Key::escape},
    {"tab", host::Key::tab},
    {"iso_left_tab", host::Key::backTab},
    {"return", host::Key::activate},
    {"enter", host::Key::activate},
    {"keypad enter", host::Key::activate},
    {"kp_enter", host::Key::activate},
    {"space", host::Key::space},
    {" ", host::Key::space},
    {"up", host::Key::up},
    {"arrowup", host::Key::up},
    {"down", host::Key::down},
    {"arrowdown", host::Key::down},
    {"left", host::Key::left},
    {"arrowleft", host::Key::left},
    {"right", host::Key::right},
    {"arrowright", host::Key::right},
    {"pageup", host::Key::pageUp},
    {"page up", host::Key::pageUp},
    {"prior", host::Key::pageUp},
    {"pagedown", host::Key::pageDown},
    {"page down", host::Key::pageDown},
    {"next", host::Key::pageDown},
    {"home", host::Key::home},
    {"end", host::Key::end},
};

bool isSameName(std::string_view a, std::string_view b) {
    const auto small = [](char letter) { return letter >= 'A' && letter <= 'Z' ? char(letter - 'A' + 'a') : letter; };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [&](char x, char y) { return small(x) == small(y); });
}

} // namespace

// What a call works on, so that the view may go away inside it.
struct PixelView::State : std::enable_shared_from_this<State> {
    bool paint(const PixelBuffer& buffer, double scale, bool holdsShown);
    void prepareAheadWhenAtRest();
    void frameIsWanted();

    std::shared_ptr<host::WindowContent> content;
    RasterSurface surface;
    graphics::DisplayList list;
    geometry::Size size; // points
    geometry::PhysicalInsets safeArea;
    bool isPlaced = false; // the content knows its size
    double refreshRate = 60;
    double lastFrame_s = -1; // of the run loop's time
    bool hasChanged = true;  // since the last frame
    bool isSeen = true;
    bool isPainting = false;
    bool isAbandoned = false;                 // the view is gone
    std::optional<geometry::Point> pressedAt; // where the pointer was last told; absent while it is up
    std::function<void()> frameHandler;
    std::shared_ptr<runloop::Timer> rest; // null while nobody looks ahead
};

PixelView::PixelView(std::shared_ptr<host::WindowContent> content) : m_state(std::make_shared<State>()) {
    m_state->content = std::move(content);
    m_state->content->setSeen(true);
    m_state->content->setNeedsDisplayHandler([state = std::weak_ptr(m_state)] {
        if (const auto held = state.lock()) held->frameIsWanted();
    });
}

PixelView::~PixelView() {
    m_state->isAbandoned = true;
    m_state->content->setNeedsDisplayHandler({});
    m_state->frameHandler = {};
    if (m_state->rest) m_state->rest->invalidate();
}

const std::shared_ptr<host::WindowContent>& PixelView::content() const { return m_state->content; }

// --- Place ---

void PixelView::setSize(geometry::Size size, geometry::PhysicalInsets safeArea) {
    const auto state = m_state;
    if (state->isPlaced && state->size == size && state->safeArea == safeArea) return;
    state->isPlaced = true;
    state->size = size;
    state->safeArea = safeArea;
    state->content->setSize(size, safeArea);
    state->frameIsWanted();
}

void PixelView::setRefreshRate(double framesPerSecond) { m_state->refreshRate = std::max(1.0, framesPerSecond); }

void PixelView::setSeen(bool isSeen) {
    const auto state = m_state;
    if (std::exchange(state->isSeen, isSeen) == isSeen) return;
    if (!isSeen) cancelPointer();
    state->content->setSeen(isSeen);
    if (isSeen) state->frameIsWanted();
}

// --- Picture ---

bool PixelView::paint(const PixelBuffer& buffer, double scale, bool holdsShown) {
    const auto state = m_state;
    // What a touch has changed is brought up to date before it is shown.
    runloop::MainRunLoop::main().runDueTurns();
    return state->paint(buffer, scale, holdsShown);
}

bool PixelView::repaint(const PixelBuffer& buffer, double scale, bool holdsShown) {
    const auto state = m_state;
    return state->paint(buffer, scale, holdsShown);
}

bool PixelView::State::paint(const PixelBuffer& buffer, double scale, bool holdsShown) {
    if (isPainting || isAbandoned) return false;
    isPainting = true;
    lastFrame_s = runloop::MainRunLoop::main().now_s();
    hasChanged = false;
    content->paint(list);
    isPainting = false;
    if (isAbandoned) return false;
    surface.lend(buffer, holdsShown);
    surface.present(list, size, scale);
    prepareAheadWhenAtRest();
    return !surface.lastDamage().empty();
}

// Only views that are at rest look ahead, whatever else moves on the screen.
void PixelView::State::prepareAheadWhenAtRest() {
    if (list.ahead.empty()) {
        if (rest) rest->invalidate();
        rest.reset();
    } else if (!rest || !rest->isValid()) {
        rest = runloop::MainRunLoop::main().schedule(restBeforePreparing_s, [state = weak_from_this()] {
            if (const auto held = state.lock()) held->surface.prepareAhead();
        });
    }
}

const std::vector<PixelRect>& PixelView::lastDamage() const { return m_state->surface.lastDamage(); }

void PixelView::forgetShown() {
    m_state->surface.forgetShown();
    m_state->hasChanged = true;
}

// --- Time ---

void PixelView::State::frameIsWanted() {
    if (isPainting) return;
    hasChanged = true;
    // A copy, because the handler may replace itself.
    if (const auto handler = frameHandler) handler();
}

void PixelView::setFrameHandler(std::function<void()> handler) { m_state->frameHandler = std::move(handler); }

// At once where nothing was shown for a while, so that what the person does is seen without delay.
std::optional<double> PixelView::nextFrameDelay_s() const {
    const bool isWanted = m_state->isSeen && (m_state->hasChanged || m_state->content->isAnimating());
    if (!isWanted) return std::nullopt;
    if (m_state->lastFrame_s < 0) return 0;
    const double interval_s = 1 / m_state->refreshRate;
    const double elapsed_s = runloop::MainRunLoop::main().now_s() - m_state->lastFrame_s;
    return std::clamp(interval_s - elapsed_s, 0.0, interval_s);
}

std::optional<double> PixelView::nextDueDelay_s() const {
    const std::optional<double> frame_s = nextFrameDelay_s(), work_s = runloop::MainRunLoop::main().nextDueDelay_s();
    return frame_s && work_s ? std::min(*frame_s, *work_s) : frame_s ? frame_s : work_s;
}

int PixelView::nextDueDelay_ms() const {
    // Where nothing comes for longer, hosts wake up in vain once an hour.
    constexpr double longest_s = 3600;
    const std::optional<double> delay_s = nextDueDelay_s();
    return delay_s ? int(std::ceil(std::min(*delay_s, longest_s) * 1000)) : -1;
}

// --- Input ---

void PixelView::pointer(geometry::Point location, bool isDown) {
    const std::optional<geometry::Point> former =
        std::exchange(m_state->pressedAt, isDown ? std::optional(location) : std::nullopt);
    if (former && !isDown) return touch(host::TouchPhase::ended, location);
    if (!former && isDown) return touch(host::TouchPhase::began, location);
    if (former && former != location) touch(host::TouchPhase::moved, location);
}

void PixelView::hover(std::optional<geometry::Point> location) {
    const auto content = m_state->content;
    content->pointer(location);
}

void PixelView::cancelPointer() {
    if (const auto former = std::exchange(m_state->pressedAt, std::nullopt)) touch(host::TouchPhase::cancelled, *former);
}

void PixelView::touch(host::TouchPhase phase, geometry::Point location) {
    const auto content = m_state->content;
    content->touch({phase, location, runloop::MainRunLoop::main().now_s()});
}

void PixelView::scroll(geometry::Point location, geometry::Point delta) {
    const auto content = m_state->content;
    content->scroll(location, delta);
}

bool PixelView::key(host::Key key, bool isRepeated) {
    const auto content = m_state->content;
    return content->key(key, isRepeated);
}

bool PixelView::key(std::string_view name, bool isShifted, bool isRepeated) {
    for (const auto& [known, meant] : namedKeys)
        if (isSameName(known, name)) return key(isShifted && meant == host::Key::tab ? host::Key::backTab : meant, isRepeated);
    return false;
}

} // namespace proupsells::rasterbackend
