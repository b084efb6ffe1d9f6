#include "Backends/FFmpeg/Plugin/PictureConverter.hpp"

#include <algorithm>
#include <cmath>

extern "C" {
#include <libavutil/frame.h>
#include <libswscale/swscale.h>
}

namespace proupsells::ffmpegbackend {

namespace {

struct PixelSize {
    int width = 0;
    int height = 0;
};

// Even lengths of at most `maximumPixels` pixels in the picture's proportions.
PixelSize boundedSize(int width, int height) {
    const double pixels = static_cast<double>(width) * height;
    if (pixels <= PictureConverter::maximumPixels) return {width, height};
    const double factor = std::sqrt(PictureConverter::maximumPixels / pixels);
    const auto bounded = [&](int length) { return std::max(2, int(length * factor / 2) * 2); };
    return {bounded(width), bounded(height)};
}

} // namespace

PictureConverter::~PictureConverter() { sws_freeContext(m_scaler); }

std::shared_ptr<const graphics::Bitmap> PictureConverter::bitmapOf(const AVFrame& frame) {
    const auto [width, height] = boundedSize(frame.width, frame.height);
    // Not SWS_ACCURATE_RND: where no scaling is needed it turns white into 253 of 255, at nine times the cost.
    m_scaler = sws_getCachedContext(m_scaler, frame.width, frame.height, static_cast<AVPixelFormat>(frame.format), width, height,
                                    AV_PIX_FMT_RGB32, SWS_BILINEAR | SWS_BITEXACT, nullptr, nullptr, nullptr);
    if (!m_scaler) return nullptr;
    // The scaler works on groups of pixels: it leaves rows unfinished, or writes past the last one, unless they have room for whole
    // groups.
    constexpr int group = 32;
    const int room = (width + group - 1) / group * group;
    m_rows.resize(static_cast<std::size_t>(room) * height);
    std::uint8_t* const planes[4] = {reinterpret_cast<std::uint8_t*>(m_rows.data())};
    const int strides[4] = {room * 4};
    sws_scale(m_scaler, frame.data, frame.linesize, 0, frame.height, planes, strides);

    auto bitmap = std::make_shared<graphics::Bitmap>();
    bitmap->width = width;
    bitmap->height = height;
    bitmap->pixels.reserve(static_cast<std::size_t>(width) * height);
    for (int y = 0; y < height; ++y) {
        const auto row = m_rows.begin() + std::ptrdiff_t(y) * room;
        bitmap->pixels.insert(bitmap->pixels.end(), row, row + width);
    }
    return bitmap;
}

} // namespace proupsells::ffmpegbackend
