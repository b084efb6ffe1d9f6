#include "Backends/FFmpeg/Plugin/Worker.hpp"

#include <algorithm>

#include "Backends/FFmpeg/Plugin/PlayedClip.hpp"

namespace proupsells::ffmpegbackend {

namespace {

// What is shown is asked for at every frame. So many questions later, each of some dozens of clips would have had its own.
constexpr std::uint64_t questionsOfIdleness = 64;

// Releases the clip, which may close its file, before the worker takes the lock again.
bool workOn(std::shared_ptr<PlayedClip> clip) { return clip && clip->work(); }

bool isSame(const std::weak_ptr<PlayedClip>& one, const std::weak_ptr<PlayedClip>& other) {
    return !one.owner_before(other) && !other.owner_before(one);
}

} // namespace

Worker::Worker() : m_thread([this] { run(); }) {}

Worker::~Worker() {
    {
        const std::lock_guard guard(m_lock);
        m_isStopping = true;
    }
    m_changed.notify_all();
    m_thread.join();
}

void Worker::enqueue(std::weak_ptr<PlayedClip> clip) {
    {
        const std::lock_guard guard(m_lock);
        m_queue.push_back(std::move(clip));
    }
    m_changed.notify_one();
}

void Worker::closeIdleFiles() {
    const std::uint64_t now = m_questionCount;
    std::erase_if(m_opened, [&](const std::weak_ptr<PlayedClip>& opened) {
        const auto clip = opened.lock();
        return !clip || clip->closeUnlessAskedSince(now > questionsOfIdleness ? now - questionsOfIdleness : 0);
    });
}

void Worker::run() {
    std::unique_lock guard(m_lock);
    for (;;) {
        m_changed.wait(guard, [this] { return m_isStopping || !m_queue.empty(); });
        if (m_isStopping) return;
        const std::weak_ptr<PlayedClip> next = std::move(m_queue.front());
        m_queue.pop_front();
        guard.unlock();
        const bool hasMore = workOn(next.lock());
        if (std::none_of(m_opened.begin(), m_opened.end(), [&](const auto& opened) { return isSame(opened, next); }))
            m_opened.push_back(next);
        closeIdleFiles();
        guard.lock();
        if (hasMore) m_queue.push_back(next);
    }
}

} // namespace proupsells::ffmpegbackend
