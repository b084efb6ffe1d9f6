// The one thread on which all clips are decoded.
#pragma once

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace proupsells::ffmpegbackend {

class PlayedClip;

class Worker {
public:
    Worker();
    // Waits until the clip at work has finished its turn; the others get none.
    ~Worker();
    Worker(const Worker&) = delete;

    // Counts what all clips are asked for; returns how much that is.
    std::uint64_t countQuestion() { return ++m_questionCount; }

    // The clip is held weakly, so one that nobody shows any more gets no more turns.
    void enqueue(std::weak_ptr<PlayedClip> clip);

private:
    void run();
    // The files of clips that have not been asked for a picture for a while: those that are not shown any more, though somebody may
    // still hold them.
    void closeIdleFiles();

    std::mutex m_lock;
    std::condition_variable m_changed;
    std::deque<std::weak_ptr<PlayedClip>> m_queue;
    bool m_isStopping = false;
    std::atomic<std::uint64_t> m_questionCount = 0;
    std::vector<std::weak_ptr<PlayedClip>> m_opened; // on the thread alone
    std::thread m_thread;
};

} // namespace proupsells::ffmpegbackend
