#include "Backends/FFmpeg/LazyClipDecoder.hpp"

#include <algorithm>
#include <utility>

#include "Backends/FFmpeg/PluginLoader.hpp"
#include "Platform/Foundation/Resources.hpp"
#include "Platform/System/EmbeddedFiles.hpp"
#include "Platform/System/ProgramFile.hpp"

namespace proupsells::ffmpegbackend {

namespace {

// Stands for a clip until the plug-in is loaded, then passes everything on to it. Not playable when there is no plug-in.
class LazyClip final : public host::Clip {
public:
    LazyClip(std::filesystem::path file, std::weak_ptr<PluginLoader> plugin)
        : m_file(std::move(file)), m_plugin(std::move(plugin)) {}

    host::ClipFrame frameAt(double time_s) override {
        if (!m_clip) openWhenPossible();
        return m_clip ? m_clip->frameAt(time_s) : host::ClipFrame{};
    }

    bool isPlayable() const override { return m_clip ? m_clip->isPlayable() : m_mayBeOpened; }

private:
    void openWhenPossible() {
        const auto plugin = m_plugin.lock();
        host::ClipDecoder* const decoder = plugin ? plugin->decoder() : nullptr;
        if (decoder) m_clip = decoder->open(m_file);
        m_mayBeOpened = plugin && !plugin->hasFailed();
    }

    std::filesystem::path m_file;
    std::weak_ptr<PluginLoader> m_plugin;
    std::shared_ptr<host::Clip> m_clip; // null until the plug-in is there
    bool m_mayBeOpened = true;
};

} // namespace

LazyClipDecoder::LazyClipDecoder(Pace pace, std::vector<std::filesystem::path> folders)
    : m_pace(pace), m_folders(std::move(folders)) {}

LazyClipDecoder::~LazyClipDecoder() = default;

// The libraries' folder and the programs' one lie as the package has them, seen from each place of its resources.
std::vector<std::filesystem::path> LazyClipDecoder::defaultFolders() {
    std::vector<std::filesystem::path> folders;
    const auto add = [&](const std::filesystem::path& folder) {
        auto tidy = folder.lexically_normal();
        if (std::find(folders.begin(), folders.end(), tidy) == folders.end()) folders.push_back(std::move(tidy));
    };
    for (const auto& file : {system::ownFile(), system::programFile()})
        if (!file.empty()) add(file.parent_path());
    for (const auto& place : foundation::resourcePlaces()) {
        // No plug-in can be loaded from inside the program.
        if (system::EmbeddedFiles::isBelowRoot(place)) continue;
        add(place);
        for (const char* libraries : {PROUPSELLS_LIBRARY_FOLDER "/proupsells", "bin"})
            add(place.parent_path().parent_path() / libraries);
    }
    return folders;
}

bool LazyClipDecoder::isLoaded() const { return m_plugin && m_plugin->isLoaded(); }

std::shared_ptr<host::Clip> LazyClipDecoder::open(const std::filesystem::path& file) {
    if (!m_plugin) m_plugin = std::make_shared<PluginLoader>(m_pace, m_folders);
    std::erase_if(m_clips, [](const auto& entry) { return entry.second.expired(); });
    auto& known = m_clips[file];
    if (auto clip = known.lock()) return clip;
    auto clip = std::make_shared<LazyClip>(file, m_plugin);
    known = clip;
    return clip;
}

} // namespace proupsells::ffmpegbackend
