// Reads pictures beside the main thread.
#pragma once

#include <deque>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

#include "Backends/Raster/FilePicture.hpp"

namespace proupsells::rasterbackend {

// Has a thread only while there is something to read. To be used from the main thread.
class PicturePreparer {
public:
    PicturePreparer() = default;
    // What has not been read yet is not.
    ~PicturePreparer();
    PicturePreparer(const PicturePreparer&) = delete;
    PicturePreparer& operator=(const PicturePreparer&) = delete;

    // The tiles of a picture that keeps them.
    void prepare(std::shared_ptr<FilePicture> picture, std::vector<int> tiles);
    // Until everything is read.
    void wait();

private:
    struct Job {
        std::shared_ptr<FilePicture> picture;
        std::vector<int> tiles;
    };

    void work();
    std::optional<Job> takeJob();

    std::mutex m_mutex; // guards what follows, but the thread
    std::deque<Job> m_jobs;
    bool m_isWorking = false;
    std::thread m_thread;
};

} // namespace proupsells::rasterbackend
