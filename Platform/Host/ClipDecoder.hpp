// Supplied by a backend: moving pictures.
#pragma once

#include <filesystem>
#include <memory>

#include "Platform/Geometry/Geometry.hpp"
#include "Platform/Graphics/DisplayList.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::host {

// What a clip shows at a time.
struct ClipFrame {
    std::shared_ptr<const graphics::Bitmap> picture; // null: nothing to show (yet)
    double time_s = 0;                               // of the frame in the clip
};

// One file, decoded once for everybody who shows it. Costs nothing while nobody asks.
class PROUPSELLS_EXPORT Clip {
public:
    virtual ~Clip() = default;

    // The frame due `time_s` after the clip's start; the clip repeats without end, from the end of its last picture. The same time
    // gives the same frame, whatever was asked for before. A decoder on a virtual clock waits for that frame. One on a real clock
    // never blocks: until it has caught up it answers with the last frame it had.
    virtual ClipFrame frameAt(double time_s) = 0;
    // False once `frameAt` has found out that there will never be a frame.
    virtual bool isPlayable() const = 0;
};

class PROUPSELLS_EXPORT ClipDecoder {
public:
    virtual ~ClipDecoder() = default;

    // Returns at once, and never null; the same clip for the same file as long as somebody holds it. A missing file makes a silent
    // clip without frames. So does a broken one, which costs one log line when its first frame is asked for, and no other when it
    // is opened again, and one whose pictures have more than 3840 × 2176 pixels. One that is cut short plays what it has, and costs
    // a line likewise.
    virtual std::shared_ptr<Clip> open(const std::filesystem::path& file) = 0;
};

} // namespace proupsells::host
