#include "Backends/FFmpeg/LazyClipDecoder.hpp"

#include <dlfcn.h>

#include "Platform/Commons/DefaultLogger.hpp"

namespace ffmpegbackend {

namespace {

void complain(const char* message) {
    commons::DefaultLogger::shared().log(commons::DefaultLogger::errorSeverity, message, "ClipDecoder");
}

// Null with the reason in `error`.
MakeClipDecoder findFunction(const std::filesystem::path& file, std::string& error) {
    void* library = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
    void* symbol = library ? dlsym(library, makeClipDecoderSymbol) : nullptr;
    if (!symbol) error = dlerror();
    return reinterpret_cast<MakeClipDecoder>(symbol);
}

} // namespace

LazyClipDecoder::LazyClipDecoder(Pace pace, std::vector<std::filesystem::path> folders) : m_pace(pace), m_folders(std::move(folders)) {}

LazyClipDecoder::~LazyClipDecoder() = default;

std::vector<std::filesystem::path> LazyClipDecoder::defaultFolders() {
    std::vector<std::filesystem::path> folders;
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    if (!error) {
        folders.push_back(program.parent_path());
        folders.push_back(program.parent_path().parent_path() / "lib" / "proupsells");
    }
    folders.emplace_back(PROUPSELLS_PLUGIN_FOLDER);
    return folders;
}

void LazyClipDecoder::load() {
    m_hasTried = true;
    std::string reason = "there is no " + std::string(pluginFileName);
    for (const auto& folder : m_folders) {
        const auto file = folder / pluginFileName;
        std::error_code error;
        if (!std::filesystem::exists(file, error)) continue;
        if (const MakeClipDecoder make = findFunction(file, reason)) {
            m_decoder.reset(make({m_pace, &complain}));
            return;
        }
    }
    complain(("Clips cannot be played: " + reason).c_str());
}

std::shared_ptr<host::Clip> LazyClipDecoder::open(const std::filesystem::path& file) {
    if (!m_hasTried) load();
    return m_decoder ? m_decoder->open(file) : nullptr;
}

} // namespace ffmpegbackend
