#include "Backends/FFmpeg/Plugin/PictureStream.hpp"

#include <algorithm>
#include <initializer_list>
#include <utility>
#include <vector>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/dict.h>
#include <libavutil/log.h>
}

#include "Platform/System/PathText.hpp"

namespace proupsells::ffmpegbackend {

namespace {

constexpr double standInFrameRate = 24; // where a file does not say

// In whole blocks of 16. A decoder keeps some pictures of a clip's own size.
constexpr std::int64_t mostPixels = 3840 * 2176;

std::string reasonOf(int error) {
    char text[AV_ERROR_MAX_STRING_SIZE] = {};
    av_strerror(error, text, sizeof text);
    return text;
}

// A dictionary of FFmpeg's.
class Options {
public:
    Options(std::initializer_list<std::pair<const char*, const char*>> entries) {
        for (const auto& [name, value] : entries) av_dict_set(&m_options, name, value, 0);
    }
    ~Options() { av_dict_free(&m_options); }
    Options(const Options&) = delete;
    Options& operator=(const Options&) = delete;

    // FFmpeg takes out what it has understood.
    AVDictionary** get() { return &m_options; }

private:
    AVDictionary* m_options = nullptr;
};

} // namespace

void PictureStream::Free::operator()(AVFormatContext* format) const { avformat_close_input(&format); }

void PictureStream::Free::operator()(AVCodecContext* codec) const { avcodec_free_context(&codec); }

void PictureStream::Free::operator()(AVPacket* packet) const { av_packet_free(&packet); }

void PictureStream::Free::operator()(AVFrame* frame) const { av_frame_free(&frame); }

PictureStream::PictureStream() : m_packet(av_packet_alloc()), m_frame(av_frame_alloc()) {}

std::unique_ptr<PictureStream> PictureStream::open(const ClipFile& file, std::string& complaint) {
    std::unique_ptr<PictureStream> stream(new PictureStream);
    complaint = stream->begin(file);
    return complaint.empty() ? std::move(stream) : nullptr;
}

std::string PictureStream::begin(const ClipFile& file) {
    av_log_set_level(AV_LOG_QUIET);
    AVFormatContext* format = nullptr;
    if (file.embeddedBytes && (format = avformat_alloc_context())) format->pb = m_input.open(*file.embeddedBytes);
    // What a file may be, by all the names of that one format, and where it may lie. FFmpeg also takes lists of other files and
    // addresses in a network for clips.
    Options permissions = {{"format_whitelist", "mov,mp4,m4a,3gp,3g2,mj2"}, {"protocol_whitelist", "file"}};
    // A path is one even where it looks like an address.
    const std::string place = "file:" + system::textOf(file.path);
    if (const int error = avformat_open_input(&format, place.c_str(), nullptr, permissions.get()); error < 0)
        return reasonOf(error);
    m_format.reset(format);
    if (const std::string complaint = findStreams(); !complaint.empty()) return complaint;
    const AVCodec* decoder = nullptr;
    const int index = av_find_best_stream(format, AVMEDIA_TYPE_VIDEO, -1, -1, &decoder, 0);
    if (index < 0 || !decoder) return "there are no pictures in it";
    m_stream = format->streams[index];
    m_codec.reset(avcodec_alloc_context3(decoder));
    avcodec_parameters_to_context(m_codec.get(), m_stream->codecpar);
    m_codec->thread_count = 1;
    m_codec->max_pixels = mostPixels;
    if (const int error = avcodec_open2(m_codec.get(), decoder, nullptr); error < 0) return reasonOf(error);
    return {};
}

// FFmpeg may decode some pictures to find out.
std::string PictureStream::findStreams() {
    const std::vector<AVStream*> streams(m_format->streams, m_format->streams + m_format->nb_streams);
    for (const AVStream* stream : streams)
        if (std::int64_t(stream->codecpar->width) * stream->codecpar->height > mostPixels)
            return "its pictures are " + std::to_string(stream->codecpar->width) + " by " +
                   std::to_string(stream->codecpar->height) + " pixels, expected at most as many as 3840 by 2176 have";
    std::vector<AVDictionary*> options(streams.size());
    for (AVDictionary*& one : options) av_dict_set_int(&one, "max_pixels", mostPixels, 0);
    const int error = avformat_find_stream_info(m_format.get(), options.data());
    for (AVDictionary*& one : options) av_dict_free(&one);
    return error < 0 ? reasonOf(error) : std::string();
}

double PictureStream::declaredDuration_s() const {
    // What is not known, AV_NOPTS_VALUE, is below 0 as well.
    if (m_stream->duration > 0) return secondsOf(m_stream->duration);
    return m_format->duration > 0 ? double(m_format->duration) / AV_TIME_BASE : pictureDuration_s();
}

double PictureStream::pictureDuration_s() const {
    const double rate = av_q2d(m_stream->avg_frame_rate);
    return 1 / (rate > 0 ? rate : standInFrameRate);
}

const AVPacket* PictureStream::readPacket() {
    for (;;) {
        av_packet_unref(m_packet.get());
        if (av_read_frame(m_format.get(), m_packet.get()) < 0) return nullptr;
        if (m_packet->stream_index == m_stream->index) return m_packet.get();
    }
}

const AVFrame* PictureStream::readFrame() {
    for (;;) {
        const int received = avcodec_receive_frame(m_codec.get(), m_frame.get());
        const bool isDamaged = m_frame->decode_error_flags != 0 || (m_frame->flags & AV_FRAME_FLAG_CORRUPT);
        if (received == 0 && isDamaged) continue;
        if (received == 0) return m_frame.get();
        if (m_isDraining) return nullptr;
        if (received != AVERROR(EAGAIN)) m_needsKey = true;
        feedDecoder();
    }
}

void PictureStream::feedDecoder() {
    const AVPacket* packet = readPacket();
    m_isDraining = packet == nullptr;
    if (m_isDraining) {
        avcodec_send_packet(m_codec.get(), nullptr);
        return;
    }
    if (packet->flags & AV_PKT_FLAG_KEY) m_needsKey = false;
    if (m_needsKey) return;
    // From half a packet the decoder would make up the rest of a picture, and an empty packet would end the stream.
    const bool isWhole = packet->size > 0 && !(packet->flags & AV_PKT_FLAG_CORRUPT);
    // What builds on a broken picture would look different on every way to it.
    m_needsKey = !isWhole || avcodec_send_packet(m_codec.get(), packet) < 0;
}

double PictureStream::timeOf(std::int64_t stamp) {
    if (stamp == AV_NOPTS_VALUE) return m_lastTime_s;
    return m_lastTime_s = secondsOf(stamp) - start_s();
}

double PictureStream::start_s() const { return m_stream->start_time == AV_NOPTS_VALUE ? 0 : secondsOf(m_stream->start_time); }

double PictureStream::secondsOf(std::int64_t duration) const { return static_cast<double>(duration) * av_q2d(m_stream->time_base); }

void PictureStream::seek(double time_s) {
    const auto stamp = static_cast<std::int64_t>((std::max(0.0, time_s) + start_s()) / av_q2d(m_stream->time_base));
    av_seek_frame(m_format.get(), m_stream->index, stamp, AVSEEK_FLAG_BACKWARD);
    avcodec_flush_buffers(m_codec.get());
    m_isDraining = false;
    m_lastTime_s = 0;
}

} // namespace proupsells::ffmpegbackend
