#include "Platform/Foundation/ResourceFolder.hpp"

#include <system_error>
#include <utility>

#include "Platform/System/ProgramFile.hpp"

namespace proupsells::foundation {

namespace {

std::filesystem::path& resourceRoot() {
    static std::filesystem::path root;
    return root;
}

} // namespace

std::filesystem::path resourceFolder(std::string_view name, const std::filesystem::path& builtFrom,
                                     const std::filesystem::path& installedTo) {
    const std::filesystem::path shared = system::programFile().parent_path().parent_path() / "share" / "proupsells" / name;
    for (const auto& candidate : {resourceRoot().empty() ? std::filesystem::path{} : resourceRoot() / name, shared, builtFrom,
                                  installedTo.empty() ? installedTo : installedTo / name}) {
        std::error_code error;
        if (!candidate.empty() && std::filesystem::is_directory(candidate, error)) return candidate;
    }
    return builtFrom;
}

void setResourceRoot(std::filesystem::path folder) { resourceRoot() = std::move(folder); }

} // namespace proupsells::foundation
