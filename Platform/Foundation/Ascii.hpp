// ASCII digits, and the case of ASCII letters; the C functions would follow the process's locale.
#pragma once

#include <algorithm>
#include <string>

namespace proupsells::foundation {

constexpr bool isAsciiDigit(char c) { return c >= '0' && c <= '9'; }
constexpr char asciiUpper(char letter) { return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter; }
constexpr char asciiLower(char letter) { return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter; }

inline std::string asciiLowerCased(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), asciiLower);
    return text;
}

} // namespace proupsells::foundation
