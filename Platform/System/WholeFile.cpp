#include "Platform/System/WholeFile.hpp"

#include <fstream>

namespace proupsells::system {

std::filesystem::path draftOf(const std::filesystem::path& file) {
    std::filesystem::path draft = file;
    return draft += ".part";
}

bool writeWhole(const std::filesystem::path& file, std::string_view bytes) {
    const std::filesystem::path draft = draftOf(file);
    std::error_code error;
    // It may be a link of somebody else's.
    std::filesystem::remove(draft, error);
    std::ofstream stream(draft, std::ios::binary);
    if (!stream) return false;
    stream.write(bytes.data(), std::streamsize(bytes.size()));
    stream.close();
    if (stream) std::filesystem::rename(draft, file, error);
    if (stream && !error) return true;
    std::filesystem::remove(draft, error);
    return false;
}

} // namespace proupsells::system
