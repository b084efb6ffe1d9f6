// A file's pictures, one after the other.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "Platform/Host/ClipDecoder.hpp"

namespace proupsells::ffmpegbackend {

// Used by one thread at a time.
class VideoFile {
public:
    // Pictures with more pixels are scaled down to about this many.
    static constexpr int maximumPixels = 400'000;

    // Null with the reason in `complaint` when the file holds no pictures that can be decoded.
    static std::unique_ptr<VideoFile> open(const std::filesystem::path& file, std::string& complaint);
    ~VideoFile();

    double duration_s() const;
    // The next picture in order of time; a null one at the end, or where the rest is broken. Broken stretches are skipped.
    host::ClipFrame next();
    // Goes to a place from which `next` leads to the picture due at `time_s`, at it or before it.
    void seek(double time_s);

private:
    struct Contexts;
    explicit VideoFile(std::unique_ptr<Contexts> contexts);

    bool receivePicture();
    std::shared_ptr<const graphics::Bitmap> convertedPicture();

    std::unique_ptr<Contexts> m_contexts;
};

} // namespace proupsells::ffmpegbackend
