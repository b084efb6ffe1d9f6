#include "Platform/Commons/FatalError.hpp"

#include <cstdio>
#include <cstdlib>

namespace proupsells::commons {

void fatalError(std::string_view message) {
    // What was reported before must not be lost with the process.
    std::fflush(stdout);
    std::fwrite(message.data(), 1, message.size(), stderr);
    std::fputc('\n', stderr);
    std::fflush(stderr);
    std::abort();
}

} // namespace proupsells::commons
