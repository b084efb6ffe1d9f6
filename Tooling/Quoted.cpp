#include "Tooling/Quoted.hpp"

namespace proupsells::tooling {

namespace {

bool isControl(unsigned char byte) { return byte < ' ' || byte == 0x7F; }

// Of U+0080 to U+009F, which some terminals obey as well; both of their bytes.
bool isLateControl(std::string_view bytes) {
    const auto second = bytes.size() > 1 ? static_cast<unsigned char>(bytes[1]) : 0;
    return !bytes.empty() && bytes[0] == '\xC2' && second >= 0x80 && second <= 0x9F;
}

std::string inHexadecimal(char byte) {
    constexpr std::string_view digits = "0123456789abcdef";
    const auto value = static_cast<unsigned char>(byte);
    return std::string("\\u00") + digits[value >> 4] + digits[value & 15];
}

} // namespace

std::string escaped(std::string_view text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '\n')
            result += "\\n";
        else if (isControl(static_cast<unsigned char>(c)))
            result += inHexadecimal(c);
        else if (isLateControl(text.substr(i)))
            result += inHexadecimal(text[++i]);
        else
            result += c == '"' || c == '\\' ? std::string("\\") + c : std::string(1, c);
    }
    return result;
}

std::string inQuotes(std::string_view text) { return '"' + escaped(text) + '"'; }

} // namespace proupsells::tooling
