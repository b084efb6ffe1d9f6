// Text files of unknown encoding.
#pragma once

#include <string>
#include <string_view>

namespace proupsells::foundation {

// A text as UTF-8, without its byte order mark.
struct DecodedText {
    std::string text;
    bool isComplete = true; // false: `text` ends before the first bytes that are no character
};

// Takes UTF-16 for what begins with its byte order mark, or with one ASCII character in it, and all else for UTF-8 with or without
// a mark.
DecodedText decodeText(std::string_view bytes);

} // namespace proupsells::foundation
