#include "Tooling/Base64.hpp"

#include <algorithm>
#include <cstdint>

namespace proupsells::tooling {

namespace {

constexpr std::string_view alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

} // namespace

// Three bytes are four characters.
std::string base64Of(std::string_view bytes) {
    std::string text;
    for (std::size_t start = 0; start < bytes.size(); start += 3) {
        const std::string_view part = bytes.substr(start, 3);
        std::uint32_t bits = 0;
        for (std::size_t i = 0; i < 3; ++i) bits = bits << 8 | (i < part.size() ? std::uint8_t(part[i]) : 0);
        for (std::size_t i = 0; i < 4; ++i) text += i <= part.size() ? alphabet[bits >> (18 - 6 * i) & 63] : '=';
    }
    return text;
}

std::optional<std::string> bytesOfBase64(std::string_view text) {
    if (text.size() % 4 != 0) return std::nullopt;
    const std::size_t padding = std::min<std::size_t>(2, text.size() - std::min(text.size(), text.find_last_not_of('=') + 1));
    std::string bytes;
    for (std::size_t start = 0; start < text.size(); start += 4) {
        std::uint32_t bits = 0;
        for (std::size_t i = start; i < start + 4; ++i) {
            const bool isPadding = i >= text.size() - padding;
            const std::size_t value = isPadding ? 0 : alphabet.find(text[i]);
            if (value == std::string_view::npos) return std::nullopt;
            bits = bits << 6 | std::uint32_t(value);
        }
        for (int shift = 16; shift >= 0; shift -= 8) bytes += char(bits >> shift & 255);
    }
    bytes.erase(bytes.size() - std::min(padding, bytes.size()));
    // No other text stands for the same bytes.
    return base64Of(bytes) == text ? std::optional(bytes) : std::nullopt;
}

} // namespace proupsells::tooling
