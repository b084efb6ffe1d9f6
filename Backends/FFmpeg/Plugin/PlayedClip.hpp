// A file that is being shown: the pictures around the moment, decoded ahead by a worker.
#pragma once

#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <string>

#include "Backends/FFmpeg/ClipPlugin.hpp"
#include "Backends/FFmpeg/Plugin/VideoFile.hpp"

namespace proupsells::ffmpegbackend {

class Worker;

// Holds at most `picturesAhead` + 1 pictures of at most VideoFile::maximumPixels pixels, 4 bytes each.
class PlayedClip final : public host::Clip, public std::enable_shared_from_this<PlayedClip> {
public:
    static constexpr std::size_t picturesAhead = 4;

    PlayedClip(std::filesystem::path file, const PluginHost& host, std::weak_ptr<Worker> worker);

    host::ClipFrame frameAt(double time_s) override;
    bool isPlayable() const override;

    // Called by the worker: opens the file and decodes a few pictures. Returns whether there is more to do until the wanted moment
    // and some pictures ahead are there.
    bool work();

private:
    enum class State { unopened, open, unplayable };

    // The newest picture that is due at `moment_s`, when it is certain that no later one is due as well.
    std::optional<host::ClipFrame> dueFrame(double moment_s) const;
    std::size_t picturesAfter(const host::ClipFrame& frame) const;
    bool needsSeek(double moment_s) const;
    void openFile();
    bool isState(State state) const;
    // Decodes one picture into the window. False at the end of what there is to do.
    bool decodeOne();

    const std::filesystem::path m_file;
    const PluginHost m_host;
    // The decoder owns it; a clip that outlives the decoder stands still.
    const std::weak_ptr<Worker> m_worker;

    // The worker's own.
    std::unique_ptr<VideoFile> m_video;

    // Shared, under the lock.
    mutable std::mutex m_lock;
    std::condition_variable m_changed;
    State m_state = State::unopened;
    std::string m_complaint; // to be made by the thread that asks for frames
    double m_duration_s = 0;
    double m_wanted_s = 0;                // in [0, duration)
    std::deque<host::ClipFrame> m_window; // ascending times
    double m_soughtMoment_s = 0;          // what the decoder was last sent to
    bool m_windowReachesEnd = false;      // nothing follows the last picture before the clip starts again
    bool m_isQueued = false;
    host::ClipFrame m_lastShown;
};

} // namespace proupsells::ffmpegbackend
