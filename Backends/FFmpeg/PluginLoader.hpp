// Brings the plug-in into the process, in the background where the main thread must not wait.
#pragma once

#include <filesystem>
#include <future>
#include <memory>
#include <string>
#include <vector>

#include "Backends/FFmpeg/ClipPlugin.hpp"

namespace proupsells::ffmpegbackend {

// Begins at once, on a thread of its own. The plug-in stays loaded until the process ends. Belongs to one thread.
class PluginLoader {
public:
    // `folders` are searched for the plug-in, first one first.
    PluginLoader(Pace pace, const std::vector<std::filesystem::path>& folders);

    // Null while the plug-in is being loaded, and when it cannot be loaded, which is logged once. Waits at Pace::exact.
    host::ClipDecoder* decoder();
    bool isLoaded() const { return m_decoder != nullptr; }
    // True once `decoder` has found out that there is none.
    bool hasFailed() const { return m_hasFailed; }

private:
    struct Outcome {
        MakeClipDecoder make = nullptr; // null with a complaint
        std::string complaint;
    };
    static Outcome load(const std::vector<std::filesystem::path>& folders);
    void adopt(const Outcome& outcome);

    Pace m_pace;
    std::future<Outcome> m_outcome; // invalid once it has been adopted
    std::unique_ptr<host::ClipDecoder> m_decoder;
    bool m_hasFailed = false;
};

} // namespace proupsells::ffmpegbackend
