#include "Tests/Recording/RecordedSession.hpp"

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/ScenarioRunner.hpp"
#include "Apps/ProUpsellsHost/ScreenDump.hpp"
#include "Backends/Raster/RasterSurface.hpp"
#include "Platform/RunLoop/SteppedClock.hpp"

namespace proupsells::tests {

using namespace hostprogram;

namespace {

// Enough to tell every frame from every other.
constexpr double scale = 0.5;

std::uint64_t numberOf(const void* pixels, std::size_t count) {
    std::uint64_t hash = 14695981039346656037u;
    const auto* const words = static_cast<const std::uint32_t*>(pixels);
    for (std::size_t i = 0; i < count; ++i) hash = (hash ^ (words[i] & 0xFFFFFF)) * 1099511628211u;
    return hash;
}

rasterbackend::PixelSize pixelsOf(geometry::Size size) {
    return {int(std::ceil(size.width * scale)), int(std::ceil(size.height * scale))};
}

// Painted whole, into memory of its own.
std::uint64_t numberOf(const graphics::DisplayList& list, geometry::Size size) {
    const rasterbackend::PixelSize pixels = pixelsOf(size);
    std::vector<std::uint32_t> memory(std::size_t(pixels.width) * std::size_t(pixels.height));
    rasterbackend::RasterSurface surface;
    surface.lend(rasterbackend::PixelBuffer{memory.data(), pixels.width, pixels.height, pixels.width * 4});
    surface.present(list, size, scale);
    return numberOf(memory.data(), memory.size());
}

Json offersJson() { return Json::parse(sampleOffersText()); }

Offers offers() {
    const Json json = offersJson();
    return readOffers(JsonCursor{json, "offers"});
}

std::string treeOf(HostSession& session) { return toJson(session.window().semanticTree()).dump(); }

} // namespace

std::string difference(const Shown& one, const Shown& other) {
    if (one.events != other.events) return "event lines:\n" + one.events + "and\n" + other.events;
    if (one.frames.size() != other.frames.size())
        return std::to_string(one.frames.size()) + " frames and " + std::to_string(other.frames.size());
    for (std::size_t i = 0; i < one.frames.size(); ++i)
        if (one.frames[i] != other.frames[i]) return "frame " + std::to_string(i) + " of " + std::to_string(one.frames.size());
    if (one.tree != other.tree) return "trees:\n" + one.tree + "\nand\n" + other.tree;
    return one.end_s == other.end_s ? "" : std::to_string(one.end_s) + " s and " + std::to_string(other.end_s) + " s";
}

std::string sampleOffersText() {
    return R"({ "options": [
        { "SKU": "pro.yearly", "type": "yearly", "price": "$99.99", "monthlyEffectivePrice": "$8.33", "introductoryPeriodLength": "1 week" },
        { "SKU": "pro.monthly", "type": "monthly", "price": "$14.99" },
        { "SKU": "pro.forever", "type": "lifetime", "price": "$299.99" } ],
      "referrer": { "name": "Home", "elementID": 5 }, "shouldMentioniCloudSync": true })";
}

RecordedSession::RecordedSession(const std::filesystem::path& file, const Device& device)
    : m_loop(std::make_shared<runloop::SteppedClock>(m_real)),
      m_recording(std::make_unique<Recording>(file, offersJson(), device, HostScreen::scene)),
      m_session(std::make_unique<HostSession>(offers(), device, HostParts{.screen = HostScreen::scene}, ffmpegbackend::Pace::exact,
                                              std::make_shared<EventLog>(m_events))) {
    m_session->present();
    m_content = m_recording->begin(*m_session);
    m_view = std::make_unique<rasterbackend::PixelView>(m_content);
    m_view->setSize(device.size, device.safeArea);
}

RecordedSession::~RecordedSession() { m_view.reset(); }

void RecordedSession::pass(double duration_s) { m_real->advanceTo(m_real->now_s() + duration_s); }

void RecordedSession::makeFrame() {
    const rasterbackend::PixelSize size = pixelsOf(m_session->window().frame().size);
    m_pixels.resize(std::size_t(size.width) * std::size_t(size.height));
    m_view->paint({m_pixels.data(), size.width, size.height, size.width * 4}, scale);
    m_frames.push_back(numberOf(m_pixels.data(), m_pixels.size()));
}

void RecordedSession::set(const Device& device) {
    m_loop.runDueTurns();
    Device sized = device;
    m_session->noteSize(m_session->window().frame().size, m_session->window().windowSafeArea());
    sized.size = m_session->device().size;
    sized.safeArea = m_session->device().safeArea;
    if (changesBetween(m_session->device(), sized).empty()) return;
    m_recording->willSetDevice(sized);
    m_session->setDevice(sized);
}

void RecordedSession::open(StartScreen screen) {
    m_loop.runDueTurns();
    m_recording->willOpen(screen);
    m_session->open(screen);
}

void RecordedSession::replaceOffers(bool onlyMonthly, bool fromElsewhere) {
    Json json = offersJson();
    if (onlyMonthly) json["options"].erase(0);
    if (fromElsewhere) json.update({{"referrer", "Elsewhere"}, {"shouldMentioniCloudSync", false}});
    m_loop.runDueTurns();
    m_recording->willReplaceOffers(json);
    m_session->replaceOffers(readOffers(JsonCursor{json, "offers"}));
}

bool RecordedSession::isOver() const { return !m_session->window().isTransitioning() && !m_session->isShowing(); }

Shown RecordedSession::finish() {
    m_recording->write();
    Shown shown{{}, m_frames, treeOf(*m_session), m_loop.now_s()};
    m_view.reset();
    m_session.reset();
    shown.events = m_events.str();
    return shown;
}

Shown play(const std::filesystem::path& file) {
    const Scenario scenario = readScenario(file);
    runloop::MainRunLoop loop(std::make_shared<runloop::VirtualClock>());
    std::ostringstream events;
    const auto log = std::make_shared<EventLog>(events);
    Shown shown;
    {
        HostSession session(scenario.offers, scenario.device, hostPartsOf(scenario), ffmpegbackend::Pace::exact, log);
        ScenarioRunner(scenario, loop, session, log, std::nullopt).run({}, [&](const graphics::DisplayList& frame) {
            shown.frames.push_back(numberOf(frame, session.window().frame().size));
        });
        shown.tree = treeOf(session);
        shown.end_s = loop.now_s();
    }
    shown.events = events.str();
    return shown;
}

} // namespace proupsells::tests
