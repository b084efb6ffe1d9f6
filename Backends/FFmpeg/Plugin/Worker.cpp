#include "Backends/FFmpeg/Plugin/Worker.hpp"

#include "Backends/FFmpeg/Plugin/PlayedClip.hpp"

namespace ffmpegbackend {

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
        const auto clip = m_queue.front().lock();
        m_queue.pop_front();
        if (!clip) continue;
        guard.unlock();
        clip->work();
        guard.lock();
    }
}

} // namespace ffmpegbackend
