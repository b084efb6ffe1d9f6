// The program without a window. It loads no toolkit: `show` is left to the program beside it that has windows.
#include <filesystem>

#include "Apps/ProUpsellsHost/InputError.hpp"
#include "Apps/ProUpsellsHost/Program.hpp"
#include "Platform/System/BecomeProgram.hpp"
#include "Platform/System/PathText.hpp"
#include "Platform/System/ProgramFile.hpp"

using namespace proupsells;

namespace {

// Only comes back when it fails.
int becomeWindowProgram(char** arguments) {
    const auto program = system::programFile().parent_path() / "proupsells-window";
    const std::error_code reason = system::becomeProgram(program, arguments);
    throw hostprogram::InputError(system::textOf(program), "", reason.message() + ", expected the program that has windows");
}

} // namespace

int main(int count, char** arguments) {
    return hostprogram::runProgram(count, arguments, [&](const auto&) { return becomeWindowProgram(arguments); });
}
