// A clip decoder that loads FFmpeg when the first clip is wanted.
#pragma once

#include <filesystem>
#include <memory>
#include <vector>

#include "Backends/FFmpeg/ClipPlugin.hpp"

namespace ffmpegbackend {

// Without the plug-in no clip plays, which costs one log line. The plug-in stays loaded until the process ends.
class LazyClipDecoder final : public host::ClipDecoder {
public:
    // `folders` are searched for the plug-in, first one first.
    LazyClipDecoder(Pace pace, std::vector<std::filesystem::path> folders);
    ~LazyClipDecoder() override;

    // Beside the running program, in the libraries' folder beside that, and where the package was installed.
    static std::vector<std::filesystem::path> defaultFolders();

    std::shared_ptr<host::Clip> open(const std::filesystem::path& file) override;
    bool isLoaded() const { return m_decoder != nullptr; }

private:
    void load();

    Pace m_pace;
    std::vector<std::filesystem::path> m_folders;
    std::unique_ptr<host::ClipDecoder> m_decoder;
    bool m_hasTried = false;
};

} // namespace ffmpegbackend
