// The files that a theme names.
#include <algorithm>
#include <map>
#include <string>

#include "Apps/ProUpsellsHost/InlineFiles.hpp"
#include "Apps/ProUpsellsHost/ThemeFile.hpp"
#include "Platform/System/Files.hpp"
#include "Platform/System/PathText.hpp"

namespace proupsells::hostprogram {

namespace {

// The places in a theme that name a file.
std::vector<std::filesystem::path*> fileNamesIn(Theme& theme) {
    std::vector<std::filesystem::path*> names;
    for (Theme::FaceFile& face : theme.faceFiles) names.push_back(&face.file);
    for (auto& [asset, picture] : theme.pictures) {
        names.push_back(&picture.file);
        if (picture.darkFile) names.push_back(&*picture.darkFile);
    }
    return names;
}

} // namespace

std::vector<std::filesystem::path> filesNamedBy(const Theme& theme) {
    Theme copy = theme;
    std::vector<std::filesystem::path> files;
    for (const std::filesystem::path* name : fileNamesIn(copy)) files.push_back(*name);
    std::sort(files.begin(), files.end());
    files.erase(std::unique(files.begin(), files.end()), files.end());
    return files;
}

Theme withKeptFiles(const Theme& theme) {
    InlineFiles kept;
    std::map<std::filesystem::path, std::string> names;
    for (const std::filesystem::path& file : filesNamedBy(theme)) {
        auto bytes = system::contentsOf(file);
        if (!bytes) continue;
        names[file] = std::to_string(names.size() + 1) + "-" + system::textOf(file.filename());
        kept.emplace_back(names[file], std::move(*bytes));
    }
    if (kept.empty()) return theme;

    const std::filesystem::path folder = keepInlineFiles(std::move(kept));
    Theme result = theme;
    for (std::filesystem::path* name : fileNamesIn(result))
        if (const auto found = names.find(*name); found != names.end()) *name = folder / found->second;
    return result;
}

} // namespace proupsells::hostprogram
