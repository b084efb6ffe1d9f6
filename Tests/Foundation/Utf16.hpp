// Texts in UTF-16, as translators' tools write them.
#pragma once

#include <string>
#include <string_view>

#include "Platform/Foundation/Utf16.hpp"

namespace proupsells::tests {

enum class ByteOrder { littleEndian, bigEndian };

inline void appendUnit(std::string& bytes, char32_t unit, ByteOrder order) {
    const char high = static_cast<char>(unit >> 8), low = static_cast<char>(unit & 0xFF);
    bytes += order == ByteOrder::bigEndian ? std::string{high, low} : std::string{low, high};
}

// The valid UTF-8 text in UTF-16, without a byte order mark.
inline std::string utf16(std::string_view text, ByteOrder order) {
    std::string bytes;
    const foundation::Utf16Text units(text);
    for (const char16_t unit : units.units()) appendUnit(bytes, unit, order);
    return bytes;
}

inline std::string byteOrderMark(ByteOrder order) {
    std::string mark;
    appendUnit(mark, 0xFEFF, order);
    return mark;
}

} // namespace proupsells::tests
