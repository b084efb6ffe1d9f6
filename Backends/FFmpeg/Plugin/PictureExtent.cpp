#include "Backends/FFmpeg/Plugin/PictureExtent.hpp"

#include <algorithm>

extern "C" {
#include <libavcodec/avcodec.h>
}

#include "Backends/FFmpeg/Plugin/PictureStream.hpp"

namespace proupsells::ffmpegbackend {

namespace {

struct Packets {
    double end_s = 0;     // of the last one
    double lastKey_s = 0; // where decoding can begin for the last time
    bool someAreMissing = false;
};

// True when the file ends inside the packet, or when its bytes were never written, as in a download that stopped.
bool isMissing(const AVPacket& packet) {
    if (packet.flags & AV_PKT_FLAG_CORRUPT) return true;
    return std::all_of(packet.data, packet.data + packet.size, [](std::uint8_t byte) { return byte == 0; });
}

Packets readPackets(PictureStream& stream) {
    Packets packets;
    while (const AVPacket* packet = stream.readPacket()) {
        if (isMissing(*packet)) {
            packets.someAreMissing = true;
            continue;
        }
        const double time_s = stream.timeOf(packet->pts != AV_NOPTS_VALUE ? packet->pts : packet->dts);
        packets.end_s = std::max(packets.end_s, time_s + stream.secondsOf(packet->duration));
        if (packet->flags & AV_PKT_FLAG_KEY) packets.lastKey_s = std::max(packets.lastKey_s, time_s);
    }
    return packets;
}

// 0 when no picture can be decoded from there to the end.
double endOfPicturesFrom(PictureStream& stream, double time_s) {
    double end_s = 0;
    stream.seek(time_s);
    while (const AVFrame* frame = stream.readFrame()) {
        const double duration_s = frame->pkt_duration > 0 ? stream.secondsOf(frame->pkt_duration) : stream.pictureDuration_s();
        end_s = std::max(end_s, stream.timeOf(frame->best_effort_timestamp) + duration_s);
    }
    return end_s;
}

// The end of the last picture of all. The last key picture may be broken: then further back.
double endOfPictures(PictureStream& stream, double lastKey_s) {
    for (double wayBack_s = 0;; wayBack_s = std::max(1.0, 2 * wayBack_s)) {
        const double place_s = std::max(0.0, lastKey_s - wayBack_s);
        const double end_s = endOfPicturesFrom(stream, place_s);
        if (end_s > 0 || place_s == 0) return end_s;
    }
}

} // namespace

PictureExtent extentOf(PictureStream& stream) {
    const double declared_s = stream.declaredDuration_s();
    // Files round their durations, by less than half a picture.
    const auto reachesDeclared = [&](double end_s) { return end_s + stream.pictureDuration_s() / 2 > declared_s; };

    const Packets packets = readPackets(stream);
    if (!packets.someAreMissing && reachesDeclared(packets.end_s)) return {declared_s, false};
    const double end_s = endOfPictures(stream, packets.lastKey_s);
    if (reachesDeclared(end_s)) return {declared_s, false};
    return {end_s, true};
}

} // namespace proupsells::ffmpegbackend
