#include "Backends/FFmpeg/ClipPlugin.hpp"

#include <map>

#include "Backends/FFmpeg/Plugin/PlayedClip.hpp"
#include "Backends/FFmpeg/Plugin/Worker.hpp"

namespace ffmpegbackend {

namespace {

class FFmpegClipDecoder final : public host::ClipDecoder {
public:
    explicit FFmpegClipDecoder(const PluginHost& host) : m_host(host), m_worker(std::make_shared<Worker>()) {}

    std::shared_ptr<host::Clip> open(const std::filesystem::path& file) override {
        std::erase_if(m_clips, [](const auto& entry) { return entry.second.expired(); });
        auto& known = m_clips[file];
        if (auto clip = known.lock()) return clip;
        auto clip = std::make_shared<PlayedClip>(file, m_host, m_worker);
        known = clip;
        return clip;
    }

private:
    PluginHost m_host;
    std::shared_ptr<Worker> m_worker;
    std::map<std::filesystem::path, std::weak_ptr<PlayedClip>> m_clips;
};

} // namespace

} // namespace ffmpegbackend

extern "C" __attribute__((visibility("default"))) host::ClipDecoder* proupsellsMakeClipDecoder(const ffmpegbackend::PluginHost& host) {
    return new ffmpegbackend::FFmpegClipDecoder(host);
}
