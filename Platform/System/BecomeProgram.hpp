// Replacing the running program by another.
#pragma once

#include <filesystem>
#include <system_error>

#include "Platform/System/Compiler.hpp"

namespace proupsells::system {

// The process goes on as the program in `file`. `arguments` ends with a null pointer; its first entry is the name that the program
// is told it has. Comes back only when that fails, with the reason.
PROUPSELLS_EXPORT std::error_code becomeProgram(const std::filesystem::path& file, char* const* arguments);

} // namespace proupsells::system
