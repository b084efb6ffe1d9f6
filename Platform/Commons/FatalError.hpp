// Programming errors stop the program here, with their message.
#pragma once

#include <string_view>

namespace proupsells::commons {

// Writes `message` and a line feed to standard error, then aborts.
[[noreturn]] void fatalError(std::string_view message);

} // namespace proupsells::commons
