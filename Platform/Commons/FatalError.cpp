#include "Platform/Commons/FatalError.hpp"

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace proupsells::commons {

namespace {

FatalErrorHook& currentHook() {
    static FatalErrorHook hook;
    return hook;
}

} // namespace

FatalErrorHook setFatalErrorHook(FatalErrorHook hook) { return std::exchange(currentHook(), std::move(hook)); }

void fatalError(std::string_view message) {
    // What was reported before must not be lost with the process.
    std::fflush(stdout);
    std::fwrite(message.data(), 1, message.size(), stderr);
    std::fputc('\n', stderr);
    std::fflush(stderr);
    if (const FatalErrorHook hook = setFatalErrorHook({})) hook(message);
    std::abort();
}

} // namespace proupsells::commons
