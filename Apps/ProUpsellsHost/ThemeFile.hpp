// A theme in a file.
#pragma once

#include <filesystem>

#include "ProUpsells/Theme.hpp"

namespace proupsells::hostprogram {

// Files that it names count from its own folder; whether they are there is the module's business. Throws InputError, also for a
// theme that the module would refuse.
Theme readThemeFile(const std::filesystem::path& file);

} // namespace proupsells::hostprogram
