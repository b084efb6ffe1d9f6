#include "Platform/Foundation/Utf16.hpp"

#include "Platform/Foundation/Utf8.hpp"

namespace proupsells::foundation {

void Utf16Text::append(std::string_view utf8) {
    m_units.reserve(m_units.size() + utf8.size());
    m_byteOffsets.reserve(m_byteOffsets.size() + utf8.size());
    const auto addUnit = [this](char32_t unit, std::size_t offset) {
        m_units.push_back(static_cast<char16_t>(unit));
        m_byteOffsets.push_back(m_byteCount + static_cast<std::uint32_t>(offset));
    };
    for (std::size_t offset = 0; offset < utf8.size();) {
        const DecodedCharacter character = decodeUtf8(utf8, offset);
        if (character.value < 0x10000) {
            addUnit(character.value, offset);
        } else {
            addUnit(0xD800 + ((character.value - 0x10000) >> 10), offset);
            addUnit(0xDC00 + (character.value & 0x3FF), offset);
        }
        offset += character.length;
    }
    m_byteCount += static_cast<std::uint32_t>(utf8.size());
}

} // namespace proupsells::foundation
