// A clip decoder that loads FFmpeg when the first clip is wanted.
#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <vector>

#include "Backends/FFmpeg/ClipPlugin.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::ffmpegbackend {

class PluginLoader;

// At Pace::realTime nothing here waits: clips show nothing until the plug-in is loaded. When it cannot be loaded, every clip is
// unplayable at either pace, and that is logged once.
class PROUPSELLS_EXPORT LazyClipDecoder final : public host::ClipDecoder {
public:
    // `folders` are searched for the plug-in, first one first.
    LazyClipDecoder(Pace pace, std::vector<std::filesystem::path> folders);
    ~LazyClipDecoder() override;

    // Beside the library that this code is in, beside the running program, and where the package's resources are looked for
    // (foundation::resourcePlaces()): there, and in the package's folder of libraries.
    static std::vector<std::filesystem::path> defaultFolders();

    std::shared_ptr<host::Clip> open(const std::filesystem::path& file) override;
    // Whether the plug-in is there: false until the first clip is wanted, and where it cannot be loaded.
    bool isLoaded() const;

private:
    Pace m_pace;
    std::vector<std::filesystem::path> m_folders;
    std::shared_ptr<PluginLoader> m_plugin; // null until the first clip is wanted
    std::map<std::filesystem::path, std::weak_ptr<host::Clip>> m_clips;
};

} // namespace proupsells::ffmpegbackend
