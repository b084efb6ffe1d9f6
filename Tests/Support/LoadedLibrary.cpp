// What SharedObjectTests loads.
#include "Platform/System/Compiler.hpp"
#include "Platform/System/ProgramFile.hpp"

extern "C" PROUPSELLS_ALWAYS_EXPORTED void tellFiles(std::filesystem::path& own, std::filesystem::path& program) {
    own = proupsells::system::ownFile();
    program = proupsells::system::programFile();
}
