#include "Backends/Qt/DecodedText.hpp"

namespace proupsells::qtbackend {

namespace {

struct DecodedCharacter {
    char32_t value = 0xFFFD;
    std::size_t length = 1; // bytes
};

bool isContinuation(unsigned char byte) { return (byte & 0xC0) == 0x80; }

// How many bytes a character with this first byte has; 0 where no character starts with it.
std::size_t sequenceLength(unsigned char lead) {
    if (lead < 0x80) return 1;
    if (lead < 0xC2) return 0;
    if (lead < 0xE0) return 2;
    if (lead < 0xF0) return 3;
    return lead < 0xF5 ? 4 : 0;
}

// Overlong forms, surrogates and values past the last character are told by their second byte.
bool mayFollow(unsigned char lead, unsigned char second) {
    if (!isContinuation(second)) return false;
    if (lead == 0xE0) return second >= 0xA0;
    if (lead == 0xED) return second < 0xA0;
    if (lead == 0xF0) return second >= 0x90;
    if (lead == 0xF4) return second < 0x90;
    return true;
}

DecodedCharacter decode(const std::string& text, std::size_t at) {
    const auto lead = static_cast<unsigned char>(text[at]);
    const std::size_t length = sequenceLength(lead);
    if (length == 0) return {};
    if (length == 1) return {lead, 1};

    char32_t value = lead & (0x7F >> length);
    for (std::size_t index = 1; index < length; ++index) {
        const unsigned char byte = at + index < text.size() ? static_cast<unsigned char>(text[at + index]) : 0;
        if (index == 1 ? !mayFollow(lead, byte) : !isContinuation(byte)) return {0xFFFD, index};
        value = value << 6 | (byte & 0x3F);
    }
    return {value, length};
}

} // namespace

DecodedText::DecodedText(std::span<const graphics::StyledRun> runs) {
    std::uint32_t textStart = 0;
    for (const graphics::StyledRun& run : runs) {
        m_runStarts.push_back(std::uint32_t(m_units.size()));
        append(run.text, textStart);
        textStart += std::uint32_t(run.text.size());
    }
    m_runStarts.push_back(std::uint32_t(m_units.size()));
    m_byteOffsets.push_back(textStart);
}

void DecodedText::append(const std::string& text, std::uint32_t textStart) {
    m_units.reserve(m_units.size() + qsizetype(text.size()));
    m_byteOffsets.reserve(m_byteOffsets.size() + text.size() + 1);
    for (std::size_t at = 0; at < text.size();) {
        const DecodedCharacter character = decode(text, at);
        const auto offset = std::uint32_t(textStart + at);
        if (QChar::requiresSurrogates(character.value)) {
            m_units.append(QChar(QChar::highSurrogate(character.value)));
            m_units.append(QChar(QChar::lowSurrogate(character.value)));
            m_byteOffsets.insert(m_byteOffsets.end(), 2, offset);
        } else {
            m_units.append(QChar(char16_t(character.value)));
            m_byteOffsets.push_back(offset);
        }
        at += character.length;
    }
}

} // namespace proupsells::qtbackend
