#include "Tooling/Quoted.hpp"

namespace proupsells::tooling {

std::string inQuotes(std::string_view text) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string result = "\"";
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '\n')
            result += "\\n";
        else if (byte < ' ' || byte == 0x7F)
            result += std::string("\\u00") + digits[byte >> 4] + digits[byte & 15];
        else
            result += c == '"' || c == '\\' ? std::string("\\") + c : std::string(1, c);
    }
    return result + '"';
}

} // namespace proupsells::tooling
