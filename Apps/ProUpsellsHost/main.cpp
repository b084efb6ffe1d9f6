// The program without a window. It loads no toolkit: `show` is left to the program beside it that has windows.
#include <unistd.h>

#include <cstring>
#include <filesystem>

#include "Apps/ProUpsellsHost/InputError.hpp"
#include "Apps/ProUpsellsHost/Program.hpp"

using namespace proupsells;

namespace {

// Only comes back when it fails.
int becomeWindowProgram(char** arguments) {
    std::error_code ignored;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", ignored).parent_path() / "proupsells-window";
    execv(program.c_str(), arguments);
    throw hostprogram::InputError(program.string(), "",
                                  std::string(std::strerror(errno)) + ", expected the program that has windows");
}

} // namespace

int main(int count, char** arguments) {
    return hostprogram::runProgram(count, arguments, [&](const auto&) { return becomeWindowProgram(arguments); });
}
