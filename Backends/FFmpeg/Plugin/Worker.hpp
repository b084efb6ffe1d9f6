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
    // Finishes the turn of the clip in hand, forgets the others.
    ~Worker();
    Worker(const Worker&) = delete;

    // The clip is held weakly: one that nobody shows any more is not worked on.
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
