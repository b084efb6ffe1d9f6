#include "Platform/System/BecomeProgram.hpp"

namespace proupsells::system {

std::error_code becomeProgram(const std::filesystem::path&, char* const*) {
    return std::make_error_code(std::errc::function_not_supported);
}

} // namespace proupsells::system
