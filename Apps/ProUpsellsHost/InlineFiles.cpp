#include "Apps/ProUpsellsHost/InlineFiles.hpp"

#include <algorithm>
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

} // namespace

std::filesystem::path keepInlineFiles(InlineFiles files) {
    static std::vector<std::unique_ptr<Kept>> all;
    const std::string folder = "inline-" + std::to_string(all.size() + 1);
    for (auto& [name, bytes] : files) name = folder + "/" + name;
    // A table of none would be a programming error.
    all.push_back(files.empty() ? nullptr : std::make_unique<Kept>(std::move(files)));
    return system::EmbeddedFiles::root() / folder;
}

} // namespace proupsells::hostprogram
