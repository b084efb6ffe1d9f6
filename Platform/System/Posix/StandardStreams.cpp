#include "Platform/System/StandardStreams.hpp"

#include <fcntl.h>
#include <unistd.h>

namespace proupsells::system {

void holdStandardStreams() {
    // A new file gets the lowest free number.
    for (int file = STDIN_FILENO; file <= STDERR_FILENO; ++file)
        if (fcntl(file, F_GETFD) < 0) (void)open("/dev/null", file == STDIN_FILENO ? O_WRONLY : O_RDONLY);
}

} // namespace proupsells::system
