// Reading and writing UTF-16.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "Platform/System/Compiler.hpp"

namespace proupsells::foundation {

// A character beyond U+FFFF is written as a high and a low surrogate.
constexpr bool isHighSurrogate(char32_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
constexpr bool isLowSurrogate(char32_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }
constexpr char32_t joinedSurrogates(char32_t high, char32_t low) { return 0x10000 + ((high - 0xD800) << 10) + (low - 0xDC00); }

// UTF-8 texts, one after the other, as one UTF-16 text that knows where its units come from: for libraries that read UTF-16 only.
class PROUPSELLS_EXPORT Utf16Text {
public:
    Utf16Text() = default;
    explicit Utf16Text(std::string_view utf8) { append(utf8); }

    // Ill-formed parts become replacement characters. No character reaches from one text into the next.
    void append(std::string_view utf8);

    const std::u16string& units() const { return m_units; }
    // Where the unit's character begins, in bytes of all texts. For units().size(): where they end.
    std::uint32_t byteOffset(std::size_t unit) const { return unit < m_byteOffsets.size() ? m_byteOffsets[unit] : m_byteCount; }

private:
    std::u16string m_units;
    std::vector<std::uint32_t> m_byteOffsets; // one for each unit
    std::uint32_t m_byteCount = 0;
};

} // namespace proupsells::foundation
