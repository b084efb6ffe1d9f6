// Reads the pictures of a file with FFmpeg, either as the packets that are stored in it or as decoded frames.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "Backends/FFmpeg/Plugin/ClipFile.hpp"
#include "Backends/FFmpeg/Plugin/MemoryInput.hpp"

struct AVCodecContext;
struct AVFormatContext;
struct AVFrame;
struct AVPacket;
struct AVStream;

namespace proupsells::ffmpegbackend {

// Times are in seconds from the start of the stream. Used by one thread at a time.
class PictureStream {
public:
    // Null, with the reason in `complaint`, when the file is no film.
    static std::unique_ptr<PictureStream> open(const ClipFile& file, std::string& complaint);

    // What the file says; the duration of one picture when it says nothing.
    double declaredDuration_s() const;
    // The usual time between two pictures.
    double pictureDuration_s() const;

    // The next packet, undecoded, in the order of decoding. Null at the end. Valid until the next call.
    const AVPacket* readPacket();
    // The next picture, in the order of time; packets that cannot be decoded are skipped. Null at the end. Valid until the next
    // call.
    const AVFrame* readFrame();
    // A stamp of a packet or frame in seconds. Without a stamp, the time of the one before.
    double timeOf(std::int64_t stamp);
    double secondsOf(std::int64_t duration) const;
    // Where its first picture stands on its own clock.
    double start_s() const;

    // Goes to the last key picture at or before `time_s`.
    void seek(double time_s);

private:
    struct Free {
        void operator()(AVFormatContext* format) const;
        void operator()(AVCodecContext* codec) const;
        void operator()(AVPacket* packet) const;
        void operator()(AVFrame* frame) const;
    };

    PictureStream();
    // Empty when all went well.
    std::string begin(const ClipFile& file);
    std::string findStreams();
    void feedDecoder();

    MemoryInput m_input; // read by the format
    std::unique_ptr<AVFormatContext, Free> m_format;
    std::unique_ptr<AVCodecContext, Free> m_codec;
    std::unique_ptr<AVPacket, Free> m_packet;
    std::unique_ptr<AVFrame, Free> m_frame;
    AVStream* m_stream = nullptr;
    double m_lastTime_s = 0;
    bool m_isDraining = false; // the decoder has got all packets
    bool m_needsKey = false;   // a picture was broken: those up to the next key picture build on it
};

} // namespace proupsells::ffmpegbackend
