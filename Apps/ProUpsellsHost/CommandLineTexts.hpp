// What shells and readers of manuals are told of the program's arguments, made of what `--help` says.
#pragma once

#include <string>

#include <CLI/CLI.hpp>

namespace proupsells::hostprogram {

enum class Shell { bash, zsh, fish };

// A script that makes the shell complete the program's commands and options.
std::string completionScript(const CLI::App& program, Shell shell);

// A page for man(1).
std::string manualPage(const CLI::App& program);

} // namespace proupsells::hostprogram
