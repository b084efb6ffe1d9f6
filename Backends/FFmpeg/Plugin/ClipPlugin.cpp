#include "Backends/FFmpeg/ClipPlugin.hpp"

#include "Backends/FFmpeg/Plugin/PlayedClip.hpp"
#include "Backends/FFmpeg/Plugin/Worker.hpp"

namespace proupsells::ffmpegbackend {

namespace {

// Asked once for a file that is shown: the program's side shares its clips.
class FFmpegClipDecoder final : public host::ClipDecoder {
public:
    explicit FFmpegClipDecoder(const PluginHost& host) : m_host(host), m_worker(std::make_shared<Worker>()) {}

    std::shared_ptr<host::Clip> open(const std::filesystem::path& file) override {
        return std::make_shared<PlayedClip>(file, m_host, m_worker);
    }

private:
    PluginHost m_host;
    std::shared_ptr<Worker> m_worker;
};

} // namespace

extern "C" __attribute__((visibility("default"))) host::ClipDecoder* proupsellsMakeClipDecoder(const PluginHost& host) {
    return new FFmpegClipDecoder(host);
}

} // namespace proupsells::ffmpegbackend
