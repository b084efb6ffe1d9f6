#include "Backends/FFmpeg/Plugin/Worker.hpp"

#include "Backends/FFmpeg/Plugin/PlayedClip.hpp"

namespace proupsells::ffmpegbackend {

namespace {

// Releases the clip, which may close its file, before the worker takes the lock again.
bool workOn(std::shared_ptr<PlayedClip> clip) { return clip && clip->work(); }

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

void Worker::run() {
    std::unique_lock guard(m_lock);
    for (;;) {
        m_changed.wait(guard, [this] { return m_isStopping || !m_queue.empty(); });
        if (m_isStopping) return;
        const std::weak_ptr<PlayedClip> next = std::move(m_queue.front());
        m_queue.pop_front();
        guard.unlock();
        const bool hasMore = workOn(next.lock());
        guard.lock();
        if (hasMore) m_queue.push_back(next);
    }
}

} // namespace proupsells::ffmpegbackend
