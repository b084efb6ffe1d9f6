// A file's pictures, one after the other.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "Backends/FFmpeg/Plugin/ClipFile.hpp"
#include "Backends/FFmpeg/Plugin/PictureConverter.hpp"
#include "Backends/FFmpeg/Plugin/PictureExtent.hpp"
#include "Platform/Host/ClipDecoder.hpp"

namespace proupsells::ffmpegbackend {

class PictureStream;

// Used by one thread at a time.
class VideoFile {
public:
    // Null with the reason in `complaint` when the file holds no picture that can be decoded.
    static std::unique_ptr<VideoFile> open(const ClipFile& file, std::string& complaint);
    ~VideoFile();

    const PictureExtent& extent() const { return m_extent; }
    // The next picture in the order of time; without a picture at the end. Broken stretches are skipped. The first picture has time
    // 0.
    host::ClipFrame next();
    // Goes to the picture due at `time_s` or to one before it, and returns it; next() then leads on to the one due. Without a
    // picture when the file has none any more.
    host::ClipFrame seek(double time_s);

private:
    VideoFile(std::unique_ptr<PictureStream> stream, PictureExtent extent);

    std::unique_ptr<PictureStream> m_stream;
    PictureExtent m_extent;
    PictureConverter m_converter;
    double m_firstTime_s = 0; // of the first picture, as the stream counts
    host::ClipFrame m_first;  // decoded when the file was opened; empty once it has been handed out
};

} // namespace proupsells::ffmpegbackend
