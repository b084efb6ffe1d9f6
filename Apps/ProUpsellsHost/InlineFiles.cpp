#include "Apps/ProUpsellsHost/InlineFiles.hpp"

#include <algorithm>
#include <map>
#include <memory>

#include "Platform/System/EmbeddedFiles.hpp"
#include "Platform/System/PathText.hpp"

namespace proupsells::hostprogram {

namespace {

// The files, and the table of them, which points into them.
struct Kept {
    explicit Kept(InlineFiles all) : files(std::move(all)) {
        std::sort(files.begin(), files.end());
        for (const auto& [name, bytes] : files) entries.push_back({name.c_str(), bytes.data(), bytes.data() + bytes.size()});
        table = std::make_unique<system::EmbeddedFiles>(entries);
    }

    InlineFiles files;
    std::vector<system::EmbeddedFile> entries;
    std::unique_ptr<system::EmbeddedFiles> table;
};

// By their folders.
std::map<std::filesystem::path, std::unique_ptr<Kept>>& keptFiles() {
    static std::map<std::filesystem::path, std::unique_ptr<Kept>> all;
    return all;
}

} // namespace

std::filesystem::path keepInlineFiles(InlineFiles files) {
    static int count = 0;
    const std::string name = "inline-" + std::to_string(++count);
    const std::filesystem::path folder = system::EmbeddedFiles::root() / name;
    for (auto& file : files) file.first = name + "/" + file.first;
    // A table of none would be a programming error.
    if (!files.empty()) keptFiles()[folder] = std::make_unique<Kept>(std::move(files));
    return folder;
}

void dropInlineFiles(const std::filesystem::path& folder) { keptFiles().erase(folder); }

} // namespace proupsells::hostprogram
