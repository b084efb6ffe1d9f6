#include "Backends/FFmpeg/PluginLoader.hpp"

#include <chrono>

#include "Platform/Commons/DefaultLogger.hpp"
#include "Platform/System/EmbeddedFiles.hpp"
#include "Platform/System/PathText.hpp"
#include "Platform/System/SharedObject.hpp"

namespace proupsells::ffmpegbackend {

namespace {

void complain(const char* message) {
    commons::DefaultLogger::shared().log(commons::DefaultLogger::errorSeverity, message, "ClipDecoder");
}

} // namespace

PluginLoader::PluginLoader(Pace pace, const std::vector<std::filesystem::path>& folders)
    : m_pace(pace), m_outcome(std::async(std::launch::async, [folders] { return load(folders); })) {}

PluginLoader::Outcome PluginLoader::load(const std::vector<std::filesystem::path>& folders) {
    std::string reason = "there is no " + std::string(pluginFileName) + " in";
    for (const auto& folder : folders) reason += (&folder == &folders.front() ? " " : ", ") + system::textOf(folder);
    for (const auto& folder : folders) {
        const auto file = folder / pluginFileName;
        std::error_code error;
        if (!std::filesystem::exists(file, error)) continue;
        system::SharedObject plugin(file);
        if (const auto make = plugin.function(makeClipDecoderSymbol)) return {reinterpret_cast<MakeClipDecoder>(make), {}};
        reason = plugin.complaint();
    }
    return {nullptr, "Clips cannot be played: " + reason};
}

host::ClipDecoder* PluginLoader::decoder() {
    const bool isReady =
        m_outcome.valid() && (m_pace == Pace::exact || m_outcome.wait_for(std::chrono::seconds(0)) == std::future_status::ready);
    if (isReady) adopt(m_outcome.get());
    return m_decoder.get();
}

void PluginLoader::adopt(const Outcome& outcome) {
    if (outcome.make) return m_decoder.reset(outcome.make({m_pace, &complain, &system::EmbeddedFiles::bytesOf}));
    m_hasFailed = true;
    complain(outcome.complaint.c_str());
}

} // namespace proupsells::ffmpegbackend
