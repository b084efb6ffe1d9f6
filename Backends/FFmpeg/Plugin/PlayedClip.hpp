// A clip that is being shown: the pictures around the present moment, decoded ahead by the worker.
#pragma once

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <mutex>
#include <optional>
#include <string>

#include "Backends/FFmpeg/ClipPlugin.hpp"
#include "Backends/FFmpeg/Plugin/ClipFile.hpp"
#include "Backends/FFmpeg/Plugin/VideoFile.hpp"

namespace proupsells::ffmpegbackend {

class Complaints;
class Worker;

// Holds at most `picturesAhead` + 1 pictures of at most PictureConverter::maximumPixels pixels, 4 bytes each.
class PlayedClip final : public host::Clip, public std::enable_shared_from_this<PlayedClip> {
public:
    static constexpr std::size_t picturesAhead = 4;

    PlayedClip(ClipFile file, Pace pace, std::shared_ptr<Complaints> complaints, std::weak_ptr<Worker> worker);

    host::ClipFrame frameAt(double time_s) override;
    bool isPlayable() const override { return m_isPlayable; }

    // Called by the worker: opens the file and decodes a few pictures. False when the picture asked for last and some after it are
    // there.
    bool work();
    // Called by the worker: lets the file and the pictures go when nobody has asked since then, in the worker's count of questions.
    // They come back when somebody asks. Returns whether they have gone.
    bool closeUnlessAskedSince(std::uint64_t question);

private:
    enum class State { unopened, open, unplayable };

    // Where the clip is `time_s` after its start, in [0, duration).
    double momentAt(double time_s) const;
    // The picture due at `moment_s`; absent when it has not been decoded yet, or when a later one might be due instead.
    std::optional<host::ClipFrame> dueFrame(double moment_s) const;
    std::size_t picturesAfter(const host::ClipFrame& frame) const;
    bool needsSeek(double moment_s) const;
    void openFile();
    bool isState(State state) const;
    // Decodes one picture into the window. False when there is nothing to do.
    bool decodeOne();

    const ClipFile m_file;
    const Pace m_pace;
    // Owned by the decoder. A clip that outlives the decoder stands still.
    const std::weak_ptr<Worker> m_worker;

    // Used by the asking thread only.
    const std::shared_ptr<Complaints> m_complaints;
    bool m_isPlayable = true;

    // Used by the worker only.
    std::unique_ptr<VideoFile> m_video;

    // Shared, under the lock.
    mutable std::mutex m_lock;
    std::condition_variable m_changed;
    State m_state = State::unopened;
    std::string m_complaint; // to be made by the thread that asks
    double m_duration_s = 0;
    std::uint64_t m_lastQuestion = 0;     // in the worker's count
    double m_askedTime_s = 0;             // since the clip's start
    std::deque<host::ClipFrame> m_window; // ascending times
    double m_soughtMoment_s = 0;          // what the decoder was last sent to
    bool m_windowReachesEnd = false;      // nothing follows the last picture before the clip starts again
    bool m_isQueued = false;
    host::ClipFrame m_lastShown;
};

} // namespace proupsells::ffmpegbackend
