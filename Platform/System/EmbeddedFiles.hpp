// Files that are part of the program itself.
#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "Platform/System/Compiler.hpp"

namespace proupsells::system {

// One of them, and where its bytes are.
struct EmbeddedFile {
    const char* name;  // UTF-8, with a "/" after each folder
    const char* begin; // the first byte
    const char* end;   // behind the last one
};

// A table of such files, as a global object: the package's build function proupsells_embed_resources() writes one. Each is read by
// its path, root() / name. Of two files of one name, the one whose table was made first counts.
class PROUPSELLS_EXPORT EmbeddedFiles {
public:
    // Names ascend by their bytes. The table and the bytes outlive this.
    explicit EmbeddedFiles(std::span<const EmbeddedFile> files);
    ~EmbeddedFiles();
    EmbeddedFiles(const EmbeddedFiles&) = delete;
    EmbeddedFiles& operator=(const EmbeddedFiles&) = delete;

    // The folder of them all, which is in no file system.
    static std::filesystem::path root();
    // Whether the path is the root's or of something below it, be it there or not.
    static bool isBelowRoot(const std::filesystem::path& path);

    // Whether there is any table.
    static bool areThere();
    // What is wrong with a table; empty where nothing is.
    static std::string complaint();

    // Absent where there is no such file, and for paths of file systems.
    static std::optional<std::string_view> bytesOf(const std::filesystem::path& file);
    static bool hasFolder(const std::filesystem::path& path);
    // What is right inside the folder, in the order of the names.
    static std::vector<std::filesystem::path> filesIn(const std::filesystem::path& folder);
    static std::vector<std::filesystem::path> foldersIn(const std::filesystem::path& folder);

private:
    static std::vector<std::filesystem::path> pathsIn(const std::filesystem::path& folder, bool areFolders);

    std::span<const EmbeddedFile> m_files;
    EmbeddedFiles* m_next = nullptr;
};

} // namespace proupsells::system
