// The file format of translations.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "Platform/System/Compiler.hpp"

namespace proupsells::foundation {

// Lines of `"key" = "text";` in UTF-8 or UTF-16, with /* */ and // comments between them. Keys and texts stand in quotes or are
// plain words of letters, digits and _ $ . : / -. In quotes, \n \t \r \a \b \f \v are controls, \Uxxxx (or \uxxxx) is a UTF-16 unit
// in hexadecimal, up to three octal digits are a character's number, and a backslash in front of anything else stands for that. The
// last text of a key that occurs twice counts.
struct StringsFile {
    using Texts = std::unordered_map<std::string, std::string>;

    struct Error {
        std::size_t line = 1; // from 1
        std::string message;
    };

    Texts texts; // empty when there is an error
    std::optional<Error> error;

    PROUPSELLS_EXPORT static StringsFile parse(std::string_view bytes);
};

} // namespace proupsells::foundation
