#include "Backends/Raster/PicturePreparer.hpp"

#include <system_error>

namespace proupsells::rasterbackend {

PicturePreparer::~PicturePreparer() {
    {
        const std::lock_guard lock(m_mutex);
        m_jobs.clear();
    }
    wait();
}

void PicturePreparer::prepare(std::shared_ptr<FilePicture> picture, std::vector<int> tiles) {
    const std::lock_guard lock(m_mutex);
    m_jobs.push_back({std::move(picture), std::move(tiles)});
    if (m_isWorking) return;
    // The former one has left its last job behind, and waits for nothing any more.
    if (m_thread.joinable()) m_thread.join();
    try {
        m_thread = std::thread([this] { work(); });
        m_isWorking = true;
    } catch (const std::system_error&) {
        // Without a thread, pictures are read when they are painted.
        m_jobs.clear();
    }
}

void PicturePreparer::wait() {
    if (m_thread.joinable()) m_thread.join();
}

std::optional<PicturePreparer::Job> PicturePreparer::takeJob() {
    const std::lock_guard lock(m_mutex);
    m_isWorking = !m_jobs.empty();
    if (!m_isWorking) return std::nullopt;
    Job job = std::move(m_jobs.front());
    m_jobs.pop_front();
    return job;
}

void PicturePreparer::work() {
    while (const std::optional<Job> job = takeJob()) {
        FilePicture::Reader reader(*job->picture);
        for (const int tile : job->tiles) reader.tile(tile, false);
    }
}

} // namespace proupsells::rasterbackend
