// A file as it plays for everybody who shows it.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>

#include "Platform/Host/ClipDecoder.hpp"

namespace proupsells::velauikit {

// All views of a file share one, so they show the same picture and the file is decoded once. The file is opened when its first
// picture is wanted.
class ClipPlayback : public std::enable_shared_from_this<ClipPlayback> {
    struct Creation {};

public:
    // Begins now; the one that has begun already as long as somebody holds it. Main thread only.
    static std::shared_ptr<ClipPlayback> of(const std::filesystem::path& file);
    ClipPlayback(Creation, std::filesystem::path file);

    const std::filesystem::path& file() const { return m_file; }
    // The picture due at the main run loop's time; none when there is none yet, or none at all.
    host::ClipFrame currentFrame();
    // The one that the clip begins with, or, until it is there, the one shown last.
    host::ClipFrame firstFrame() { return frameAt(0); }
    // Stands still as long as somebody holds what this returns, and goes on from there.
    std::shared_ptr<void> held();
    // False once there will never be a picture.
    bool isPlayable() const { return m_isPlayable; }

private:
    void open();
    host::ClipFrame frameAt(double time_s);

    std::filesystem::path m_file;
    double time_s() const;

    double m_start_s;                 // of a playback that was never held
    std::weak_ptr<void> m_hold;       // expired while nobody holds it
    std::optional<double> m_heldAt_s; // of its own time
    std::shared_ptr<host::Clip> m_clip;
    bool m_hasOpened = false;
    bool m_isPlayable = true;
};

} // namespace proupsells::velauikit
