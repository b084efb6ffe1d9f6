// Complains about broken files.
#pragma once

#include <filesystem>
#include <set>
#include <string>

#include "Backends/FFmpeg/ClipPlugin.hpp"
#include "Platform/System/PathText.hpp"

namespace proupsells::ffmpegbackend {

// Complains once about each file, however often it is opened again. Used by the thread that asks for frames.
class Complaints {
public:
    explicit Complaints(const PluginHost& host) : m_host(host) {}

    void complainAbout(const std::filesystem::path& file, const std::string& complaint) {
        if (!m_host.complain || !m_files.insert(file).second) return;
        m_host.complain(("The clip \"" + system::textOf(file.filename()) + "\" " + complaint).c_str());
    }

private:
    PluginHost m_host;
    std::set<std::filesystem::path> m_files;
};

} // namespace proupsells::ffmpegbackend
