// Turns decoded frames into bitmaps, large ones into smaller bitmaps.
#pragma once

#include <memory>
#include <vector>

#include "Platform/Graphics/DisplayList.hpp"

struct AVFrame;
struct SwsContext;

namespace proupsells::ffmpegbackend {

class PictureConverter {
public:
    // Pictures with more pixels are scaled down to about this many.
    static constexpr int maximumPixels = 400'000;

    PictureConverter() = default;
    ~PictureConverter();
    PictureConverter(const PictureConverter&) = delete;

    // Null when the frame cannot be converted.
    std::shared_ptr<const graphics::Bitmap> bitmapOf(const AVFrame& frame);

private:
    SwsContext* m_scaler = nullptr;    // for frames like the last one
    std::vector<std::uint32_t> m_rows; // of a picture that is being converted
};

} // namespace proupsells::ffmpegbackend
