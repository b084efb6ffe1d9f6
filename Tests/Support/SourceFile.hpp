// Files of the project that tests read.
#pragma once

#include <filesystem>

namespace proupsells::tests {

// A file or folder of the project, found above the working directory or above this source; empty where it is in neither.
inline std::filesystem::path sourceFile(const std::filesystem::path& name) {
    for (const auto& start : {std::filesystem::current_path(), std::filesystem::path(__FILE__)})
        for (auto above = start; above != above.parent_path(); above = above.parent_path())
            if (std::filesystem::exists(above / name)) return above / name;
    return {};
}

} // namespace proupsells::tests
