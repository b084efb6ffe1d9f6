#include "Backends/FFmpeg/ClipPlugin.hpp"

#include "Backends/FFmpeg/Plugin/Complaints.hpp"
#include "Backends/FFmpeg/Plugin/PlayedClip.hpp"
#include "Backends/FFmpeg/Plugin/Worker.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::ffmpegbackend {

namespace {

// Opens a file each time it is asked: LazyClipDecoder, in the program, shares the clips.
class FFmpegClipDecoder final : public host::ClipDecoder {
public:
    explicit FFmpegClipDecoder(const PluginHost& host)
        : m_host(host), m_complaints(std::make_shared<Complaints>(host)), m_worker(std::make_shared<Worker>()) {}

    std::shared_ptr<host::Clip> open(const std::filesystem::path& file) override {
        return std::make_shared<PlayedClip>(ClipFile{file, m_host.embeddedBytes(file)}, m_host.pace, m_complaints, m_worker);
    }

private:
    PluginHost m_host;
    std::shared_ptr<Complaints> m_complaints; // with clips that outlive the decoder
    std::shared_ptr<Worker> m_worker;
};

} // namespace

extern "C" PROUPSELLS_ALWAYS_EXPORTED host::ClipDecoder* proupsellsMakeClipDecoder2(const PluginHost& host) {
    return new FFmpegClipDecoder(host);
}

} // namespace proupsells::ffmpegbackend
