#include "Backends/FFmpeg/Plugin/PlayedClip.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

#include "Backends/FFmpeg/Plugin/Worker.hpp"

namespace proupsells::ffmpegbackend {

namespace {

// Times in files are rounded to their time base; a picture counts as due this much early.
constexpr double timeTolerance_s = 1e-6;
// Going forward by more than this is quicker by looking for a key picture.
constexpr double longestWalk_s = 1.0;
// A clip that cannot keep up with the time leaves room for the others after so many.
constexpr int picturesATurn = 8;

} // namespace

PlayedClip::PlayedClip(std::filesystem::path file, const PluginHost& host, std::weak_ptr<Worker> worker)
    : m_file(std::move(file)), m_host(host), m_worker(std::move(worker)) {}

bool PlayedClip::isPlayable() const {
    const std::lock_guard guard(m_lock);
    return m_state != State::unplayable;
}

std::optional<host::ClipFrame> PlayedClip::dueFrame(double moment_s) const {
    for (std::size_t i = m_window.size(); i-- > 0;) {
        if (m_window[i].time_s > moment_s + timeTolerance_s) continue;
        const bool isLast = i + 1 == m_window.size();
        if (isLast && !m_windowReachesEnd) return std::nullopt;
        return m_window[i];
    }
    return std::nullopt;
}

host::ClipFrame PlayedClip::frameAt(double time_s) {
    std::unique_lock guard(m_lock);
    const auto momentOf = [&] {
        if (!(m_duration_s > 0) || !std::isfinite(time_s)) return 0.0;
        const double moment_s = std::fmod(time_s, m_duration_s);
        return moment_s < 0 ? moment_s + m_duration_s : moment_s;
    };
    const auto ask = [&] {
        m_wanted_s = momentOf();
        const auto worker = m_worker.lock();
        if (worker && !std::exchange(m_isQueued, true)) worker->enqueue(weak_from_this());
        return worker != nullptr;
    };

    for (;;) {
        if (m_state == State::unplayable) {
            const std::string complaint = std::exchange(m_complaint, {});
            guard.unlock();
            if (!complaint.empty() && m_host.complain) m_host.complain(complaint.c_str());
            return {};
        }
        if (m_state == State::open) {
            if (const auto due = dueFrame(momentOf())) {
                m_lastShown = *due;
                // Stays some pictures ahead; costs nothing once nobody asks any more.
                if (!m_windowReachesEnd && picturesAfter(*due) < picturesAhead / 2) ask();
                return m_lastShown;
            }
        }
        if (!ask() || m_host.pace == Pace::realTime) return m_lastShown;
        m_changed.wait(guard);
    }
}

std::size_t PlayedClip::picturesAfter(const host::ClipFrame& frame) const {
    std::size_t count = 0;
    for (const auto& other : m_window) count += other.time_s > frame.time_s;
    return count;
}

bool PlayedClip::needsSeek(double moment_s) const {
    if (!m_window.empty() && moment_s + timeTolerance_s < m_window.front().time_s) return true;
    // The key picture may be far before the moment: from there on it is walked, not sought again.
    const double reached_s = std::max(m_window.empty() ? 0 : m_window.back().time_s, m_soughtMoment_s);
    return moment_s > reached_s + longestWalk_s;
}

void PlayedClip::openFile() {
    std::string complaint;
    std::error_code error;
    const bool isThere = std::filesystem::exists(m_file, error);
    m_video = isThere ? VideoFile::open(m_file, complaint) : nullptr;
    // A file is a clip when its first picture can be had.
    host::ClipFrame first;
    if (m_video) {
        first = m_video->next();
        if (!first.picture) {
            m_video.reset();
            complaint = "no picture in it can be decoded";
        }
    }

    const std::lock_guard guard(m_lock);
    m_state = m_video ? State::open : State::unplayable;
    if (!m_video) {
        if (isThere) m_complaint = "The clip \"" + m_file.filename().string() + "\" cannot be played: " + complaint;
        return;
    }
    m_duration_s = m_video->duration_s();
    first.time_s = 0;
    m_window.push_back(std::move(first));
}

bool PlayedClip::decodeOne() {
    double wanted_s;
    bool seeks;
    {
        const std::lock_guard guard(m_lock);
        wanted_s = m_wanted_s;
        seeks = needsSeek(wanted_s);
        while (m_window.size() > 1 && m_window[1].time_s <= wanted_s + timeTolerance_s && !seeks) m_window.pop_front();
        const bool isDue = !seeks && dueFrame(wanted_s).has_value();
        if (isDue && (m_windowReachesEnd || m_window.size() > picturesAhead)) return false;
        if (seeks) {
            m_window.clear();
            m_windowReachesEnd = false;
            m_soughtMoment_s = wanted_s;
        }
    }
    if (seeks) m_video->seek(wanted_s);
    host::ClipFrame frame = m_video->next();

    const std::lock_guard guard(m_lock);
    if (!frame.picture) {
        m_windowReachesEnd = true;
        // Broken from here on: what there is stands for the rest.
        if (m_window.empty()) {
            if (!m_lastShown.picture)
                m_state = State::unplayable;
            else
                m_window.push_back({m_lastShown.picture, 0});
        }
        return true;
    }
    if (m_window.empty() && frame.time_s > wanted_s) frame.time_s = std::min(frame.time_s, wanted_s);
    m_window.push_back(std::move(frame));
    return true;
}

bool PlayedClip::isState(State state) const {
    const std::lock_guard guard(m_lock);
    return m_state == state;
}

bool PlayedClip::work() {
    if (isState(State::unopened)) openFile();
    bool hasMore = !isState(State::unplayable);
    for (int picture = 0; picture < picturesATurn && hasMore; ++picture) hasMore = decodeOne() && !isState(State::unplayable);

    const std::lock_guard guard(m_lock);
    m_isQueued = hasMore;
    m_changed.notify_all();
    return hasMore;
}

} // namespace proupsells::ffmpegbackend
