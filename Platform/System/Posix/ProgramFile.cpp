#include "Platform/System/ProgramFile.hpp"

#include <dlfcn.h>
#include <link.h>

#include <system_error>

namespace proupsells::system {

namespace {

// The first object that is told of is the program, and the visit ends with it.
int isInside(dl_phdr_info* program, std::size_t, void* asked) {
    const auto address = reinterpret_cast<ElfW(Addr)>(asked);
    for (int index = 0; index < program->dlpi_phnum; ++index) {
        const auto& part = program->dlpi_phdr[index];
        // Wraps around for what lies before the part.
        if (part.p_type == PT_LOAD && address - (program->dlpi_addr + part.p_vaddr) < part.p_memsz) return 1;
    }
    return -1;
}

} // namespace

std::filesystem::path programFile() {
    std::error_code error;
    auto file = std::filesystem::read_symlink("/proc/self/exe", error);
    return error ? std::filesystem::path{} : file;
}

std::filesystem::path ownFile() {
    void* const here = reinterpret_cast<void*>(&ownFile);
    // The loader knows the program only by the name that it was started with, which need not be a path.
    if (dl_iterate_phdr(&isInside, here) == 1) return programFile();
    Dl_info library = {};
    if (dladdr(here, &library) == 0) return {};
    std::error_code error;
    auto file = std::filesystem::canonical(library.dli_fname, error);
    return error ? std::filesystem::path{} : file;
}

} // namespace proupsells::system
