// Stops for initializers that are declared but not supported.
#pragma once

#include <string_view>

#include "Platform/Foundation/Coder.hpp"

namespace proupsells {

// Stops the program: "init(coder:) has not been implemented".
[[noreturn]] void stopAtInitializerFromArchive();

// Stops the program, naming the initializer and the class.
[[noreturn]] void stopAtUnimplementedInitializer(std::string_view initializer, std::string_view className);

} // namespace proupsells
