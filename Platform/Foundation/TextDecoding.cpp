#include "Platform/Foundation/TextDecoding.hpp"

#include <cstddef>

#include "Platform/Foundation/Utf16.hpp"
#include "Platform/Foundation/Utf8.hpp"

namespace proupsells::foundation {

namespace {

enum class ByteOrder { littleEndian, bigEndian };

DecodedText decodeUtf16(std::string_view bytes, ByteOrder order) {
    const std::size_t high = order == ByteOrder::bigEndian ? 0 : 1;
    const auto unitAt = [&](std::size_t offset) -> char32_t {
        return static_cast<unsigned char>(bytes[offset + high]) << 8 | static_cast<unsigned char>(bytes[offset + 1 - high]);
    };
    DecodedText decoded;
    decoded.text.reserve(bytes.size());
    for (std::size_t offset = 0; offset < bytes.size(); offset += 2) {
        char32_t character = 0;
        if (offset + 1 < bytes.size()) character = unitAt(offset);
        const bool isHalfUnit = offset + 1 == bytes.size();
        const bool isPair = isHighSurrogate(character) && offset + 3 < bytes.size() && isLowSurrogate(unitAt(offset + 2));
        if (isHalfUnit || isLowSurrogate(character) || (isHighSurrogate(character) && !isPair)) {
            decoded.isComplete = false;
            break;
        }
        if (isPair) {
            offset += 2;
            character = joinedSurrogates(character, unitAt(offset));
        }
        appendUtf8(decoded.text, character);
    }
    return decoded;
}

} // namespace

DecodedText decodeText(std::string_view bytes) {
    const std::string_view start = bytes.substr(0, 2);
    if (start == "\xFF\xFE") return decodeUtf16(bytes.substr(2), ByteOrder::littleEndian);
    if (start == "\xFE\xFF") return decodeUtf16(bytes.substr(2), ByteOrder::bigEndian);
    // No text begins with a NUL or has one in second place, so a NUL there is half of an ASCII character.
    if (start.size() == 2 && start[0] == '\0' && start[1] != '\0') return decodeUtf16(bytes, ByteOrder::bigEndian);
    if (start.size() == 2 && start[0] != '\0' && start[1] == '\0') return decodeUtf16(bytes, ByteOrder::littleEndian);
    if (bytes.substr(0, 3) == "\xEF\xBB\xBF") bytes.remove_prefix(3);
    const auto invalid = firstInvalidUtf8(bytes);
    return {std::string(bytes.substr(0, invalid.value_or(bytes.size()))), !invalid};
}

} // namespace proupsells::foundation
