// A session on a clock that follows another one, recorded as the window program does it.
#pragma once

#include <cstdint>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "Apps/ProUpsellsHost/HostSession.hpp"
#include "Apps/ProUpsellsHost/Recording.hpp"
#include "Backends/Raster/PixelView.hpp"
#include "Platform/RunLoop/MainRunLoop.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

namespace proupsells::tests {

// What was told and shown.
struct Shown {
    std::string events;                // lines
    std::vector<std::uint64_t> frames; // a number for the pixels of each
    std::string tree;                  // of the last screen, in JSON
    double end_s = 0;

    bool operator==(const Shown&) const = default;
};
// Where the two differ first.
std::string difference(const Shown& one, const Shown& other);

// The sample offers.
std::string sampleOffersText();

// What somebody sees of a session, and what is done to it.
class RecordedSession {
public:
    RecordedSession(const std::filesystem::path& file, const hostprogram::Device& device);
    ~RecordedSession();

    // Lets the real clock go on.
    void pass(double duration_s);
    // What the window program does at each refresh of the display.
    void makeFrame();
    void set(const hostprogram::Device& device);
    void open(hostprogram::StartScreen screen);
    // Only the monthly plan, or all of them; those that the session began with, or ones that another screen has led to.
    void replaceOffers(bool onlyMonthly, bool fromElsewhere);
    // The paywall is gone.
    bool isOver() const;
    // Ends the recording and writes it.
    Shown finish();

    host::WindowContent& content() { return *m_content; }
    rasterbackend::PixelView& view() { return *m_view; }
    hostprogram::HostSession& session() { return *m_session; }

private:
    std::shared_ptr<runloop::VirtualClock> m_real = std::make_shared<runloop::VirtualClock>();
    runloop::MainRunLoop m_loop;
    std::ostringstream m_events;
    std::unique_ptr<hostprogram::Recording> m_recording;
    std::unique_ptr<hostprogram::HostSession> m_session;
    std::shared_ptr<host::WindowContent> m_content;
    std::unique_ptr<rasterbackend::PixelView> m_view;
    std::vector<std::uint32_t> m_pixels;
    std::vector<std::uint64_t> m_frames;
};

// What comes out when the file is played.
Shown play(const std::filesystem::path& file);

} // namespace proupsells::tests
