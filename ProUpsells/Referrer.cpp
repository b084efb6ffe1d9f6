#include "ProUpsells/Referrer.hpp"

#include <string_view>
#include <utility>

namespace proupsells {

namespace {

std::string unicodeEscape(unsigned scalar) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string hexadecimal;
    do hexadecimal.insert(hexadecimal.begin(), digits[scalar % 16]);
    while (scalar /= 16);
    return "\\u{" + hexadecimal + "}";
}

// The escape of an ASCII character; the character itself when it needs none.
std::string escaped(unsigned char character) {
    switch (character) {
    case '"': return "\\\"";
    case '\\': return "\\\\";
    case '\n': return "\\n";
    case '\t': return "\\t";
    case '\r': return "\\r";
    case '\0': return "\\0";
    default: break;
    }
    const bool isControl = character < 0x20 || character == 0x7F;
    return isControl ? unicodeEscape(character) : std::string(1, static_cast<char>(character));
}

std::string inQuotes(std::string_view text) {
    std::string result = "\"";
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        const auto next = i + 1 < text.size() ? static_cast<unsigned char>(text[i + 1]) : 0;
        // The second block of control characters, U+0080 to U+009F, takes two bytes.
        if (byte == 0xC2 && next >= 0x80 && next < 0xA0) {
            result += unicodeEscape(next);
            ++i;
        } else {
            result += escaped(byte);
        }
    }
    return result + "\"";
}

} // namespace

std::string Referrer::ElementID::description() const {
    if (const auto* number = std::get_if<Int>(&value)) return "int(" + std::to_string(number->value) + ")";
    return "uuid(" + inQuotes(std::get<Uuid>(value).value) + ")";
}

Referrer::Referrer(std::string name, std::optional<std::int64_t> elementID) : name(std::move(name)) {
    if (elementID) this->elementID = ElementID{ElementID::Int{*elementID}};
}

Referrer::Referrer(std::string name, std::int64_t elementID) : Referrer(std::move(name), std::optional(elementID)) {}

Referrer::Referrer(std::string name, std::string elementID)
    : name(std::move(name)), elementID(ElementID{ElementID::Uuid{std::move(elementID)}}) {}

std::string Referrer::description() const { return elementID ? name + " - elementID" + elementID->description() : name; }

} // namespace proupsells
