// What the program says about input that it cannot use.
#pragma once

#include <stdexcept>
#include <string>

namespace proupsells::hostprogram {

// The text with blanks for line feeds and control characters: input may hold them, and what is said of it is one line.
std::string oneLine(const std::string& text);

// One line: FILE: POINTER: what is wrong, what was expected. Caught in main(), exit status 2.
class InputError : public std::runtime_error {
public:
    // `pointer` is a JSON pointer, empty for the whole file.
    InputError(const std::string& file, const std::string& pointer, const std::string& complaint);
};

// The same, followed by a list on lines of its own.
class InputErrorWithList : public std::runtime_error {
public:
    InputErrorWithList(const InputError& error, const std::string& list) : std::runtime_error(error.what() + list) {}
};

} // namespace proupsells::hostprogram
