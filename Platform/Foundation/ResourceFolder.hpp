// Where a library's own resources lie.
#pragma once

#include <filesystem>
#include <string_view>

namespace proupsells::foundation {

// The first of these that exists: `name` in the folder set below, in `share/proupsells` beside the running program's folder,
// in `builtFrom` (the folder of the build, or of the sources), and in `installedTo`. `builtFrom` when none does.
std::filesystem::path resourceFolder(std::string_view name, const std::filesystem::path& builtFrom,
                                     const std::filesystem::path& installedTo);

// For a host that brings the resources along in a folder of its own: the one that has a folder for each library. To be set before
// the first resource is used; the empty path takes it back.
void setResourceRoot(std::filesystem::path folder);

} // namespace proupsells::foundation
