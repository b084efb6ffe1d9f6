// The one thread on which all clips are decoded.
#pragma once

#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <thread>

namespace proupsells::ffmpegbackend {

class PlayedClip;

class Worker {
public:
    Worker();
    // Waits until the clip at work has finished its turn; the others get none.
    ~Worker();
    Worker(const Worker&) = delete;

    // The clip is held weakly, so one that nobody shows any more gets no more turns.
    void enqueue(std::weak_ptr<PlayedClip> clip);

private:
    void run();

    std::mutex m_lock;
    std::condition_variable m_changed;
    std::deque<std::weak_ptr<PlayedClip>> m_queue;
    bool m_isStopping = false;
    std::thread m_thread;
};

} // namespace proupsells::ffmpegbackend
