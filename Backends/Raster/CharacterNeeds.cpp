#include "Backends/Raster/CharacterNeeds.hpp"

#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <unicode/utf16.h>

namespace proupsells::rasterbackend {

namespace {

constexpr char32_t plainSelector = 0xFE0E, emojiSelector = 0xFE0F;

Presentation usualPresentation(char32_t character) {
    if (u_hasBinaryProperty(UChar32(character), UCHAR_EMOJI_PRESENTATION)) return Presentation::emoji;
    return u_hasBinaryProperty(UChar32(character), UCHAR_EMOJI) ? Presentation::symbol : Presentation::text;
}

std::u32string normalized(const icu::Normalizer2* normalizer, std::u32string_view characters) {
    UErrorCode status = U_ZERO_ERROR;
    const auto* values = reinterpret_cast<const UChar32*>(characters.data());
    const icu::UnicodeString before = icu::UnicodeString::fromUTF32(values, std::int32_t(characters.size()));
    const icu::UnicodeString after = normalizer->normalize(before, status);
    if (U_FAILURE(status)) return std::u32string(characters);
    std::u32string result;
    for (std::int32_t unit = 0; unit < after.length(); unit = after.moveIndex32(unit, 1)) result += char32_t(after.char32At(unit));
    return result;
}

} // namespace

void findNeeds(std::u16string_view cluster, CharacterNeeds& needs) {
    needs.characters.clear();
    needs.presentation = Presentation::text;
    for (std::size_t unit = 0; unit < cluster.size();) {
        UChar32 value;
        U16_NEXT(cluster.data(), unit, cluster.size(), value);
        const auto character = char32_t(value);
        if (unit <= 2 && needs.characters.empty()) needs.presentation = usualPresentation(character);
        if (character == emojiSelector && needs.presentation == Presentation::symbol) needs.presentation = Presentation::emoji;
        if (character == plainSelector) needs.presentation = Presentation::text;
        if (!u_hasBinaryProperty(value, UCHAR_DEFAULT_IGNORABLE_CODE_POINT)) needs.characters += character;
    }
}

std::u32string composed(std::u32string_view characters) {
    UErrorCode status = U_ZERO_ERROR;
    return normalized(icu::Normalizer2::getNFCInstance(status), characters);
}

std::u32string decomposed(std::u32string_view characters) {
    UErrorCode status = U_ZERO_ERROR;
    return normalized(icu::Normalizer2::getNFDInstance(status), characters);
}

} // namespace proupsells::rasterbackend
