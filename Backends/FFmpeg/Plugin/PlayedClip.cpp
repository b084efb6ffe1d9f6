#include "Backends/FFmpeg/Plugin/PlayedClip.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

#include "Backends/FFmpeg/Plugin/Complaints.hpp"
#include "Backends/FFmpeg/Plugin/Worker.hpp"

namespace proupsells::ffmpegbackend {

namespace {

// Times are rounded, in files and when they are added up. A picture, or the next round, counts as due this much early.
constexpr double timeTolerance_s = 1e-6;
// Seeking is quicker than decoding everything on the way when the way is longer than this.
constexpr double longestWalk_s = 1.0;
// After this many pictures a clip lets the others have their turn.
constexpr int picturesATurn = 8;

} // namespace

PlayedClip::PlayedClip(ClipFile file, Pace pace, std::shared_ptr<Complaints> complaints, std::weak_ptr<Worker> worker)
    : m_file(std::move(file)), m_pace(pace), m_worker(std::move(worker)), m_complaints(std::move(complaints)) {}

double PlayedClip::momentAt(double time_s) const {
    if (!std::isfinite(time_s)) return 0;
    const double moment_s = std::fmod(time_s + timeTolerance_s, m_duration_s);
    return moment_s < 0 ? moment_s + m_duration_s : moment_s;
}

std::optional<host::ClipFrame> PlayedClip::dueFrame(double moment_s) const {
    for (std::size_t i = m_window.size(); i-- > 0;) {
        if (m_window[i].time_s > moment_s) continue;
        const bool isLast = i + 1 == m_window.size();
        if (isLast && !m_windowReachesEnd) return std::nullopt;
        return m_window[i];
    }
    return std::nullopt;
}

host::ClipFrame PlayedClip::frameAt(double time_s) {
    std::unique_lock guard(m_lock);
    const auto ask = [&] {
        m_askedTime_s = time_s;
        const auto worker = m_worker.lock();
        if (worker && !std::exchange(m_isQueued, true)) worker->enqueue(weak_from_this());
        return worker != nullptr;
    };

    if (const auto worker = m_worker.lock()) m_lastQuestion = worker->countQuestion();
    for (;;) {
        if (const std::string complaint = std::exchange(m_complaint, {}); !complaint.empty()) {
            guard.unlock();
            m_complaints->complainAbout(m_file.path, complaint);
            guard.lock();
        }
        m_isPlayable = m_state != State::unplayable;
        if (!m_isPlayable) return {};
        if (m_state == State::open) {
            if (const auto due = dueFrame(momentAt(time_s))) {
                m_lastShown = *due;
                // Decodes some pictures ahead, but only while somebody asks.
                if (!m_windowReachesEnd && picturesAfter(*due) < picturesAhead / 2) ask();
                return m_lastShown;
            }
        }
        if (!ask() || m_pace == Pace::realTime) return m_lastShown;
        m_changed.wait(guard);
    }
}

std::size_t PlayedClip::picturesAfter(const host::ClipFrame& frame) const {
    std::size_t count = 0;
    for (const auto& other : m_window) count += other.time_s > frame.time_s;
    return count;
}

bool PlayedClip::needsSeek(double moment_s) const {
    if (!m_window.empty() && moment_s < m_window.front().time_s) return true;
    // The last seek may have led to a key picture far before the moment. From there on, pictures are decoded one by one.
    const double reached_s = std::max(m_window.empty() ? 0 : m_window.back().time_s, m_soughtMoment_s);
    return moment_s > reached_s + longestWalk_s;
}

void PlayedClip::openFile() {
    std::string complaint;
    std::error_code error;
    const bool isThere = m_file.embeddedBytes || std::filesystem::exists(m_file.path, error);
    m_video = isThere ? VideoFile::open(m_file, complaint) : nullptr;

    const std::lock_guard guard(m_lock);
    m_state = m_video ? State::open : State::unplayable;
    if (m_video) m_duration_s = m_video->extent().duration_s;
    if (m_video && m_video->extent().isCutShort) m_complaint = "is cut short: only its beginning is played";
    if (isThere && !m_video) m_complaint = "cannot be played: " + complaint;
}

bool PlayedClip::decodeOne() {
    double wanted_s;
    bool seeks;
    {
        const std::lock_guard guard(m_lock);
        wanted_s = momentAt(m_askedTime_s);
        seeks = needsSeek(wanted_s);
        while (m_window.size() > 1 && m_window[1].time_s <= wanted_s && !seeks) m_window.pop_front();
        const bool isDue = !seeks && dueFrame(wanted_s).has_value();
        if (isDue && (m_windowReachesEnd || m_window.size() > picturesAhead)) return false;
        if (seeks) {
            m_window.clear();
            m_windowReachesEnd = false;
            m_soughtMoment_s = wanted_s;
        }
    }
    host::ClipFrame frame = seeks ? m_video->seek(wanted_s) : m_video->next();

    const std::lock_guard guard(m_lock);
    if (frame.picture) {
        m_window.push_back(std::move(frame));
        return true;
    }
    m_windowReachesEnd = true;
    if (!m_window.empty()) return true;
    // Somebody has changed the file since it was opened.
    m_state = State::unplayable;
    m_complaint = "cannot be played any more: its pictures have gone";
    return true;
}

bool PlayedClip::closeUnlessAskedSince(std::uint64_t question) {
    {
        const std::lock_guard guard(m_lock);
        if (m_isQueued || m_lastQuestion >= question) return false;
        if (m_state == State::open) m_state = State::unopened;
        m_window.clear();
        m_windowReachesEnd = false;
        m_soughtMoment_s = 0;
    }
    m_video.reset();
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
