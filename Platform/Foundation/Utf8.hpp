// Reading and writing UTF-8.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "Platform/System/Compiler.hpp"

namespace proupsells::foundation {

// Stands for what is no character.
inline constexpr char32_t replacementCharacter = U'\uFFFD';

// One step of decoding. `length` is in bytes, at least 1. Each maximal ill-formed part becomes one replacement character, as with
// every other decoder.
struct DecodedCharacter {
    char32_t value = 0;
    std::size_t length = 1;
    bool isValid = true;
};

// The character that begins at `offset`, which must be below the text's length.
PROUPSELLS_EXPORT DecodedCharacter decodeUtf8(std::string_view text, std::size_t offset);

// Adds one character; a surrogate or a value beyond U+10FFFF becomes a replacement character.
void appendUtf8(std::string& text, char32_t character);

// Where the first ill-formed part begins, in bytes; absent in valid UTF-8.
PROUPSELLS_EXPORT std::optional<std::size_t> firstInvalidUtf8(std::string_view text);
inline bool isValidUtf8(std::string_view text) { return !firstInvalidUtf8(text); }

// The text with a replacement character for every ill-formed part.
PROUPSELLS_EXPORT std::string repairedUtf8(std::string_view text);

} // namespace proupsells::foundation
