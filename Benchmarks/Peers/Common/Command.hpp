// The command line that all programs share: PROGRAM MODE [ASSETS] [PNG|SECONDS].
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "Common/Report.hpp"

namespace peers {

struct Command {
    std::string mode;
    // The folder of the pictures, empty where none was named.
    std::string assets;
    // The last argument, empty where there is none.
    std::string last;

    // Ends the program with a line on how to use it where no mode is named.
    static Command parse(int count, char** arguments);

    // Where to put a picture of what is shown; empty where none is wanted.
    const std::string& picture() const { return last; }
    // How long to watch an idle screen; 60 where nothing was said.
    double seconds() const;
};

// What a program can be asked for. It fills the report.
struct Mode {
    std::string_view name;
    void (*run)(const Command& command, Report& report);
};

// Runs the mode that the command names, prints its report, and ends the process there and then: nobody measures how a screen is
// taken down.
[[noreturn]] void runMode(const Command& command, std::initializer_list<Mode> modes);

// Ends the program with the message and exit status 1: a figure of something that went wrong is worth nothing.
[[noreturn]] void fail(std::string_view message);

} // namespace peers
