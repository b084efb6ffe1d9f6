#include "Platform/Foundation/Utf8.hpp"

namespace proupsells::foundation {

namespace {

// What a lead byte promises: the sequence's length, its own payload bits, and the range of the second byte, which alone rules out
// overlong forms, surrogates and values beyond U+10FFFF. Length 0: no lead byte.
struct Lead {
    std::size_t length = 0;
    unsigned payload = 0;
    unsigned secondLow = 0x80;
    unsigned secondHigh = 0xBF;
};

Lead leadOf(unsigned byte) {
    if (byte < 0x80) return {1, byte};
    if (byte >= 0xC2 && byte <= 0xDF) return {2, byte & 0x1F};
    if (byte == 0xE0) return {3, 0, 0xA0};
    if (byte == 0xED) return {3, 0xD, 0x80, 0x9F};
    if (byte >= 0xE1 && byte <= 0xEF) return {3, byte & 0xF};
    if (byte == 0xF0) return {4, 0, 0x90};
    if (byte == 0xF4) return {4, 4, 0x80, 0x8F};
    if (byte >= 0xF1 && byte <= 0xF3) return {4, byte & 7};
    return {};
}

} // namespace

DecodedCharacter decodeUtf8(std::string_view text, std::size_t offset) {
    const auto byteAt = [&](std::size_t index) { return static_cast<unsigned char>(text[index]); };
    const Lead lead = leadOf(byteAt(offset));
    if (lead.length == 0) return {replacementCharacter, 1, false};
    char32_t value = lead.payload;
    for (std::size_t i = 1; i < lead.length; ++i) {
        if (offset + i >= text.size()) return {replacementCharacter, i, false};
        const unsigned byte = byteAt(offset + i);
        const bool isSecond = i == 1;
        if (byte < (isSecond ? lead.secondLow : 0x80) || byte > (isSecond ? lead.secondHigh : 0xBF))
            return {replacementCharacter, i, false};
        value = value << 6 | (byte & 0x3F);
    }
    return {value, lead.length, true};
}

void appendUtf8(std::string& text, char32_t character) {
    const bool isSurrogate = character >= 0xD800 && character <= 0xDFFF;
    if (isSurrogate || character > 0x10FFFF) character = replacementCharacter;
    const auto appendByte = [&](char32_t byte) { text.push_back(static_cast<char>(byte)); };
    const auto appendTail = [&](int shift) { appendByte(0x80 | (character >> shift & 0x3F)); };
    if (character < 0x80) {
        appendByte(character);
    } else if (character < 0x800) {
        appendByte(0xC0 | character >> 6);
        appendTail(0);
    } else if (character < 0x10000) {
        appendByte(0xE0 | character >> 12);
        appendTail(6);
        appendTail(0);
    } else {
        appendByte(0xF0 | character >> 18);
        appendTail(12);
        appendTail(6);
        appendTail(0);
    }
}

std::optional<std::size_t> firstInvalidUtf8(std::string_view text) {
    for (std::size_t offset = 0; offset < text.size();) {
        const DecodedCharacter character = decodeUtf8(text, offset);
        if (!character.isValid) return offset;
        offset += character.length;
    }
    return std::nullopt;
}

std::string repairedUtf8(std::string_view text) {
    std::string repaired;
    repaired.reserve(text.size());
    for (std::size_t offset = 0; offset < text.size();) {
        const DecodedCharacter character = decodeUtf8(text, offset);
        appendUtf8(repaired, character.value);
        offset += character.length;
    }
    return repaired;
}

} // namespace proupsells::foundation
