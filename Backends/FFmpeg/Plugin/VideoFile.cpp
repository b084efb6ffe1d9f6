#include "Backends/FFmpeg/Plugin/VideoFile.hpp"

#include <algorithm>
#include <utility>

extern "C" {
#include <libavutil/frame.h>
}

#include "Backends/FFmpeg/Plugin/PictureStream.hpp"

namespace proupsells::ffmpegbackend {

VideoFile::VideoFile(std::unique_ptr<PictureStream> stream, PictureExtent extent) : m_stream(std::move(stream)), m_extent(extent) {}

VideoFile::~VideoFile() = default;

std::unique_ptr<VideoFile> VideoFile::open(const ClipFile& file, std::string& complaint) {
    auto stream = PictureStream::open(file, complaint);
    if (!stream) return nullptr;
    const PictureExtent extent = extentOf(*stream);
    std::unique_ptr<VideoFile> video(new VideoFile(std::move(stream), extent));
    video->m_stream->seek(0);
    video->m_first = video->next();
    if (!video->m_first.picture || extent.duration_s <= 0) {
        complaint = "no picture in it can be decoded";
        return nullptr;
    }
    video->m_firstTime_s = std::exchange(video->m_first.time_s, 0);
    return video;
}

host::ClipFrame VideoFile::next() {
    if (m_first.picture) return std::exchange(m_first, {});
    while (const AVFrame* frame = m_stream->readFrame()) {
        const double time_s = m_stream->timeOf(frame->best_effort_timestamp);
        // The first picture is shown from the beginning, even if its own time is later.
        if (auto picture = m_converter.bitmapOf(*frame)) return {std::move(picture), time_s > m_firstTime_s ? time_s : 0};
    }
    return {};
}

host::ClipFrame VideoFile::seek(double time_s) {
    m_first = {};
    // When the pictures there are broken, or all of them are later, the search begins further back.
    for (double wayBack_s = 0;; wayBack_s = std::max(1.0, 2 * wayBack_s)) {
        const double place_s = std::max(0.0, time_s - wayBack_s);
        m_stream->seek(place_s);
        host::ClipFrame frame = next();
        const bool isDue = frame.picture && frame.time_s <= time_s;
        // Nothing is earlier, so the first picture there is has to do.
        if (!isDue && place_s == 0) frame.time_s = time_s;
        if (isDue || place_s == 0) return frame;
    }
}

} // namespace proupsells::ffmpegbackend
