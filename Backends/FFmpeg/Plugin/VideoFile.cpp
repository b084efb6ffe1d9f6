#include "Backends/FFmpeg/Plugin/VideoFile.hpp"

#include <algorithm>
#include <cmath>
#include <vector>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/log.h>
#include <libswscale/swscale.h>
}

namespace proupsells::ffmpegbackend {

namespace {

std::string reasonOf(int error) {
    char text[AV_ERROR_MAX_STRING_SIZE] = {};
    av_strerror(error, text, sizeof text);
    return text;
}

// Even lengths of at most `maximumPixels` pixels in the picture's proportions.
geometry::Size boundedSize(int width, int height) {
    const double pixels = static_cast<double>(width) * height;
    if (pixels <= VideoFile::maximumPixels) return {double(width), double(height)};
    const double factor = std::sqrt(VideoFile::maximumPixels / pixels);
    return {std::max(2.0, std::floor(width * factor / 2) * 2), std::max(2.0, std::floor(height * factor / 2) * 2)};
}

constexpr double standInFrameRate = 24; // where a file does not say

} // namespace

struct VideoFile::Contexts {
    AVFormatContext* format = nullptr;
    AVCodecContext* codec = nullptr;
    SwsContext* scaler = nullptr;
    AVPacket* packet = av_packet_alloc();
    AVFrame* frame = av_frame_alloc();
    std::vector<std::uint32_t> rows; // of a picture that is being converted
    AVStream* stream = nullptr;
    double start_s = 0;
    double duration_s = 0;
    double lastTime_s = 0;
    bool isDraining = false;

    ~Contexts() {
        sws_freeContext(scaler);
        av_frame_free(&frame);
        av_packet_free(&packet);
        avcodec_free_context(&codec);
        avformat_close_input(&format);
    }

    // Empty when all went well.
    std::string open(const std::filesystem::path& file) {
        av_log_set_level(AV_LOG_QUIET);
        if (const int error = avformat_open_input(&format, file.c_str(), nullptr, nullptr); error < 0) return reasonOf(error);
        if (const int error = avformat_find_stream_info(format, nullptr); error < 0) return reasonOf(error);
        const AVCodec* decoder = nullptr;
        const int index = av_find_best_stream(format, AVMEDIA_TYPE_VIDEO, -1, -1, &decoder, 0);
        if (index < 0 || !decoder) return "there are no pictures in it";
        stream = format->streams[index];
        codec = avcodec_alloc_context3(decoder);
        avcodec_parameters_to_context(codec, stream->codecpar);
        codec->thread_count = 1;
        if (const int error = avcodec_open2(codec, decoder, nullptr); error < 0) return reasonOf(error);
        readTimes();
        return {};
    }

    void readTimes() {
        const double unit_s = av_q2d(stream->time_base);
        start_s = stream->start_time == AV_NOPTS_VALUE ? 0 : static_cast<double>(stream->start_time) * unit_s;
        if (stream->duration != AV_NOPTS_VALUE) duration_s = static_cast<double>(stream->duration) * unit_s;
        if (!(duration_s > 0) && format->duration != AV_NOPTS_VALUE)
            duration_s = static_cast<double>(format->duration) / AV_TIME_BASE;
        if (!(duration_s > 0)) duration_s = 1 / standInFrameRate;
    }
};

VideoFile::VideoFile(std::unique_ptr<Contexts> contexts) : m_contexts(std::move(contexts)) {}

VideoFile::~VideoFile() = default;

std::unique_ptr<VideoFile> VideoFile::open(const std::filesystem::path& file, std::string& complaint) {
    auto contexts = std::make_unique<Contexts>();
    complaint = contexts->open(file);
    if (!complaint.empty()) return nullptr;
    return std::unique_ptr<VideoFile>(new VideoFile(std::move(contexts)));
}

double VideoFile::duration_s() const { return m_contexts->duration_s; }

bool VideoFile::receivePicture() {
    Contexts& c = *m_contexts;
    for (;;) {
        const int received = avcodec_receive_frame(c.codec, c.frame);
        if (received == 0) return true;
        if (received != AVERROR(EAGAIN) || c.isDraining) return false;
        const int read = av_read_frame(c.format, c.packet);
        if (read < 0) {
            c.isDraining = true;
            avcodec_send_packet(c.codec, nullptr);
            continue;
        }
        // A packet that cannot be decoded is passed over; the next key picture mends the rest.
        if (c.packet->stream_index == c.stream->index) avcodec_send_packet(c.codec, c.packet);
        av_packet_unref(c.packet);
    }
}

std::shared_ptr<const graphics::Bitmap> VideoFile::convertedPicture() {
    Contexts& c = *m_contexts;
    const AVFrame& frame = *c.frame;
    if (frame.width <= 0 || frame.height <= 0) return nullptr;
    const geometry::Size size = boundedSize(frame.width, frame.height);
    const int width = static_cast<int>(size.width), height = static_cast<int>(size.height);
    // Not SWS_ACCURATE_RND: where no scaling is needed it turns white into 253 of 255, at nine times the cost.
    c.scaler = sws_getCachedContext(c.scaler, frame.width, frame.height, static_cast<AVPixelFormat>(frame.format), width, height,
                                    AV_PIX_FMT_RGB32, SWS_BILINEAR | SWS_BITEXACT, nullptr, nullptr, nullptr);
    if (!c.scaler) return nullptr;
    // The scaler works on groups of pixels: it leaves rows unfinished, or writes past the last one, unless they have room for whole
    // groups.
    constexpr int group = 32;
    const int room = (width + group - 1) / group * group;
    c.rows.resize(static_cast<std::size_t>(room) * height);
    std::uint8_t* const planes[4] = {reinterpret_cast<std::uint8_t*>(c.rows.data())};
    const int strides[4] = {room * 4};
    sws_scale(c.scaler, frame.data, frame.linesize, 0, frame.height, planes, strides);

    auto bitmap = std::make_shared<graphics::Bitmap>();
    bitmap->width = width;
    bitmap->height = height;
    bitmap->pixels.reserve(static_cast<std::size_t>(width) * height);
    for (int y = 0; y < height; ++y) {
        const auto row = c.rows.begin() + std::ptrdiff_t(y) * room;
        bitmap->pixels.insert(bitmap->pixels.end(), row, row + width);
    }
    return bitmap;
}

host::ClipFrame VideoFile::next() {
    Contexts& c = *m_contexts;
    while (receivePicture()) {
        const std::int64_t stamp = c.frame->best_effort_timestamp;
        const double time_s =
            stamp == AV_NOPTS_VALUE ? c.lastTime_s : static_cast<double>(stamp) * av_q2d(c.stream->time_base) - c.start_s;
        c.lastTime_s = time_s;
        auto picture = convertedPicture();
        av_frame_unref(c.frame);
        if (picture) return {std::move(picture), time_s};
    }
    return {};
}

void VideoFile::seek(double time_s) {
    Contexts& c = *m_contexts;
    const auto stamp = static_cast<std::int64_t>((std::max(0.0, time_s) + c.start_s) / av_q2d(c.stream->time_base));
    if (av_seek_frame(c.format, c.stream->index, stamp, AVSEEK_FLAG_BACKWARD) < 0)
        av_seek_frame(c.format, c.stream->index, 0, AVSEEK_FLAG_BACKWARD | AVSEEK_FLAG_ANY);
    avcodec_flush_buffers(c.codec);
    c.isDraining = false;
    c.lastTime_s = 0;
}

} // namespace proupsells::ffmpegbackend
