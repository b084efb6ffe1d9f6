// Which files the running code comes from.
#pragma once

#include <filesystem>

#include "Platform/System/Compiler.hpp"

namespace proupsells::system {

// The running program. Empty where the system does not tell.
PROUPSELLS_EXPORT std::filesystem::path programFile();

// The program or the library that this very code was linked into. Empty where the system does not tell.
PROUPSELLS_EXPORT std::filesystem::path ownFile();

} // namespace proupsells::system
