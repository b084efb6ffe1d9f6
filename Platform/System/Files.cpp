#include "Platform/System/Files.hpp"

#include <algorithm>
#include <fstream>
#include <system_error>

#include "Platform/System/EmbeddedFiles.hpp"

namespace proupsells::system {

namespace {

namespace fs = std::filesystem;

template <class IsWanted>
std::vector<fs::path> sortedEntries(const fs::path& folder, const IsWanted& isWanted) {
    std::vector<fs::path> found;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        std::error_code ignored;
        if (isWanted(*entry, ignored)) found.push_back(entry->path());
    }
    std::sort(found.begin(), found.end());
    return found;
}

} // namespace

bool isThere(const fs::path& path) {
    if (EmbeddedFiles::isBelowRoot(path)) return EmbeddedFiles::bytesOf(path) || EmbeddedFiles::hasFolder(path);
    std::error_code ignored;
    return fs::exists(path, ignored);
}

bool isFile(const fs::path& path) {
    if (EmbeddedFiles::isBelowRoot(path)) return EmbeddedFiles::bytesOf(path).has_value();
    std::error_code ignored;
    return fs::is_regular_file(path, ignored);
}

std::vector<fs::path> filesIn(const fs::path& folder) {
    if (EmbeddedFiles::isBelowRoot(folder)) return EmbeddedFiles::filesIn(folder);
    return sortedEntries(folder,
                         [](const fs::directory_entry& entry, std::error_code& error) { return entry.is_regular_file(error); });
}

std::vector<fs::path> foldersIn(const fs::path& folder) {
    if (EmbeddedFiles::isBelowRoot(folder)) return EmbeddedFiles::foldersIn(folder);
    return sortedEntries(folder,
                         [](const fs::directory_entry& entry, std::error_code& error) { return entry.is_directory(error); });
}

std::optional<std::string> contentsOf(const fs::path& file) {
    if (const auto bytes = EmbeddedFiles::bytesOf(file)) return std::string(*bytes);
    if (!isFile(file)) return std::nullopt;
    std::error_code error;
    const auto size = fs::file_size(file, error);
    std::ifstream stream(file, std::ios::binary);
    if (error || !stream) return std::nullopt;
    std::string bytes(size, '\0');
    if (!stream.read(bytes.data(), static_cast<std::streamsize>(size))) return std::nullopt;
    return bytes;
}

} // namespace proupsells::system
