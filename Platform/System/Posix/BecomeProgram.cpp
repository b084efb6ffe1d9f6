#include "Platform/System/BecomeProgram.hpp"

#include <unistd.h>

#include <cerrno>

namespace proupsells::system {

std::error_code becomeProgram(const std::filesystem::path& file, char* const* arguments) {
    execv(file.c_str(), arguments);
    return {errno, std::generic_category()};
}

} // namespace proupsells::system
