#include "Platform/System/Terminal.hpp"

#include <unistd.h>

#include <cstdlib>
#include <string_view>

namespace proupsells::system {

bool errorsGoToTerminal() {
    // A terminal that cannot go back in its line is no better than a file.
    const char* const kind = std::getenv("TERM");
    return isatty(STDERR_FILENO) == 1 && kind && std::string_view(kind) != "dumb";
}

} // namespace proupsells::system
