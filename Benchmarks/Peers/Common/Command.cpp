#include "Common/Command.hpp"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>

namespace peers {

Command Command::parse(int count, char** arguments) {
    if (count < 2) {
        std::fprintf(stderr, "usage: %s MODE [ASSETS] [PNG|SECONDS]\n", arguments[0]);
        std::exit(2);
    }
    return {.mode = arguments[1], .assets = count > 2 ? arguments[2] : "", .last = count > 3 ? arguments[3] : ""};
}

double Command::seconds() const { return last.empty() ? 60 : std::atof(last.c_str()); }

void runMode(const Command& command, std::initializer_list<Mode> modes) {
    for (const Mode& mode : modes) {
        if (mode.name != command.mode) continue;
        Report report;
        mode.run(command, report);
        report.print();
        ::_exit(0);
    }
    std::fprintf(stderr, "no such mode: %s\n", command.mode.c_str());
    ::_exit(2);
}

void fail(std::string_view message) {
    std::fprintf(stderr, "%.*s\n", int(message.size()), message.data());
    ::_exit(1);
}

} // namespace peers
