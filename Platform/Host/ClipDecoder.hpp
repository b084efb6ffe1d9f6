// Supplied by a backend: moving pictures.
#pragma once

#include <filesystem>
#include <memory>

#include "Platform/Geometry/Geometry.hpp"
#include "Platform/Graphics/DisplayList.hpp"

namespace proupsells::host {

// What a clip shows at a time.
struct ClipFrame {
    std::shared_ptr<const graphics::Bitmap> picture; // null: nothing to show (yet)
    double time_s = 0;                               // of the frame in the clip
};

// One file, decoded once for everybody who shows it. Costs nothing while nobody asks.
class Clip {
public:
    virtual ~Clip() = default;

    // The frame due `time_s` after the clip's start; the clip repeats without end. A decoder on a real clock never blocks: until it
    // has caught up it answers with the last frame it had. One on a virtual clock waits, so the same time gives the same frame.
    virtual ClipFrame frameAt(double time_s) = 0;
    // False once the file has turned out to hold no picture that can be decoded.
    virtual bool isPlayable() const = 0;
};

class ClipDecoder {
public:
    virtual ~ClipDecoder() = default;

    // Returns at once, with the same clip for the same file as long as somebody holds it. Null when no clip can be played at all. A
    // missing file makes a silent clip without frames, a broken one costs one log line.
    virtual std::shared_ptr<Clip> open(const std::filesystem::path& file) = 0;
};

} // namespace proupsells::host
