#include "Platform/System/EmbeddedFiles.hpp"

#include <algorithm>
#include <functional>
#include <set>

#include "Platform/System/PathText.hpp"

namespace proupsells::system {

namespace {

namespace fs = std::filesystem;

// Reads well in messages.
constexpr std::string_view rootName = "<inside the program>";

constinit EmbeddedFiles* first = nullptr;

// Absent outside the root; empty for the root itself.
std::optional<std::string> nameBelowRoot(const fs::path& path) {
    if (!EmbeddedFiles::isBelowRoot(path)) return std::nullopt;
    const std::u8string text = path.generic_u8string();
    std::string name(text.begin() + std::ptrdiff_t(std::min(rootName.size() + 1, text.size())), text.end());
    while (name.ends_with('/')) name.pop_back();
    return name;
}

bool isBefore(const EmbeddedFile& file, std::string_view name) { return file.name < name; }

// The part of a table that is in the folder, however deep.
std::span<const EmbeddedFile> partIn(std::span<const EmbeddedFile> files, const std::string& folder) {
    if (folder.empty()) return files;
    // '0' is the character after '/'.
    const auto begin = std::lower_bound(files.begin(), files.end(), folder + '/', isBefore);
    const auto end = std::lower_bound(begin, files.end(), folder + '0', isBefore);
    return files.subspan(std::size_t(begin - files.begin()), std::size_t(end - begin));
}

// What stands in a file's name after its folder's.
std::string_view nameInside(const EmbeddedFile& file, const std::string& folder) {
    return std::string_view(file.name).substr(folder.empty() ? 0 : folder.size() + 1);
}

std::string complaintAbout(std::span<const EmbeddedFile> files) {
    if (files.empty()) return "there are none";
    for (std::size_t index = 0; index < files.size(); ++index) {
        const EmbeddedFile& file = files[index];
        if (!file.name || !*file.name) return "number " + std::to_string(index) + " has no name";
        if (!file.begin || !file.end || std::less<>()(file.end, file.begin)) return std::string(file.name) + " has no bytes";
        if (index > 0 && !(std::string_view(files[index - 1].name) < file.name)) return std::string(file.name) + " is out of order";
    }
    return {};
}

} // namespace

EmbeddedFiles::EmbeddedFiles(std::span<const EmbeddedFile> files) : m_files(files) {
    EmbeddedFiles** end = &first;
    while (*end) end = &(*end)->m_next;
    *end = this;
}

EmbeddedFiles::~EmbeddedFiles() {
    EmbeddedFiles** place = &first;
    while (*place != this) place = &(*place)->m_next;
    *place = m_next;
}

fs::path EmbeddedFiles::root() { return rootName; }

bool EmbeddedFiles::isBelowRoot(const fs::path& path) {
    const auto& text = path.native();
    if (text.size() < rootName.size() || !std::equal(rootName.begin(), rootName.end(), text.begin())) return false;
    return text.size() == rootName.size() || text[rootName.size()] == '/' || text[rootName.size()] == fs::path::preferred_separator;
}

bool EmbeddedFiles::areThere() { return first; }

std::string EmbeddedFiles::complaint() {
    for (const EmbeddedFiles* table = first; table; table = table->m_next)
        if (std::string complaint = complaintAbout(table->m_files); !complaint.empty()) return complaint;
    return {};
}

std::optional<std::string_view> EmbeddedFiles::bytesOf(const fs::path& file) {
    const auto name = nameBelowRoot(file);
    if (!name) return std::nullopt;
    for (const EmbeddedFiles* table = first; table; table = table->m_next) {
        const auto found = std::lower_bound(table->m_files.begin(), table->m_files.end(), *name, isBefore);
        if (found != table->m_files.end() && found->name == *name)
            return std::string_view(found->begin, std::size_t(found->end - found->begin));
    }
    return std::nullopt;
}

bool EmbeddedFiles::hasFolder(const fs::path& path) {
    const auto name = nameBelowRoot(path);
    if (!name) return false;
    for (const EmbeddedFiles* table = first; table; table = table->m_next)
        if (!partIn(table->m_files, *name).empty()) return true;
    return false;
}

std::vector<fs::path> EmbeddedFiles::filesIn(const fs::path& folder) { return pathsIn(folder, false); }
std::vector<fs::path> EmbeddedFiles::foldersIn(const fs::path& folder) { return pathsIn(folder, true); }

std::vector<fs::path> EmbeddedFiles::pathsIn(const fs::path& folder, bool areFolders) {
    const auto name = nameBelowRoot(folder);
    if (!name) return {};
    std::set<fs::path> paths;
    for (const EmbeddedFiles* table = first; table; table = table->m_next) {
        for (const EmbeddedFile& file : partIn(table->m_files, *name)) {
            const std::string_view inside = nameInside(file, *name);
            const std::size_t slash = inside.find('/');
            if ((slash != std::string_view::npos) == areFolders) paths.insert(folder / pathOf(inside.substr(0, slash)));
        }
    }
    return {paths.begin(), paths.end()};
}

} // namespace proupsells::system
