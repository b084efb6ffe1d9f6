// Where the package's own resources lie: pictures, faces, clips.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Platform/System/Compiler.hpp"

namespace proupsells::foundation {

// For a host that brings the resources along in a folder of its own: the one that has a folder for each library, such as
// `ProUpsells`. It is asked before all other places. To be set before the first screen; the empty path takes it back.
PROUPSELLS_EXPORT void setResourceRoot(std::filesystem::path folder);

// Where resources are looked for, in this order: the host's folder; inside the program, where it has system::EmbeddedFiles;
// `share/proupsells` beside the library that this code is in, or in one of the three folders above it; the same of the running
// program; each ResourcePlace.
PROUPSELLS_EXPORT std::vector<std::filesystem::path> resourcePlaces();

// The folder or file `name` in the first place that has it; absent where none does. One inside the program has a path below
// system::EmbeddedFiles::root(), which Bundle, pictures, faces and clips take like any other.
PROUPSELLS_EXPORT std::optional<std::filesystem::path> findResource(std::string_view name);

// The same, where nothing can be shown without it: stops the program where no place has it, naming them all.
PROUPSELLS_EXPORT std::filesystem::path requiredResource(std::string_view name);

} // namespace proupsells::foundation
