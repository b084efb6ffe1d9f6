#include "Apps/ProUpsellsHost/Emergency.hpp"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <new>

#include "Apps/ProUpsellsHost/Program.hpp"
#include "Platform/System/StandardStreams.hpp"

namespace proupsells::hostprogram {

namespace {

std::terminate_handler formerHandler = nullptr;

[[noreturn]] void endTheProgram() {
    try {
        if (const std::exception_ptr exception = std::current_exception()) std::rethrow_exception(exception);
    } catch (const std::bad_alloc&) {
        endForWantOfMemory();
    } catch (...) {
        // Not ours to explain.
    }
    formerHandler();
    std::abort();
}

} // namespace

void prepareForEmergencies() {
    system::holdStandardStreams();
#ifdef SIGPIPE
    std::signal(SIGPIPE, SIG_IGN);
#endif
#ifdef SIGXFSZ
    std::signal(SIGXFSZ, SIG_IGN);
#endif
    formerHandler = std::set_terminate(endTheProgram);
}

void endForWantOfMemory() {
    std::fflush(stdout);
    std::fprintf(stderr, "%s\n", noMemoryLeft);
    std::_Exit(unusableInput);
}

} // namespace proupsells::hostprogram
