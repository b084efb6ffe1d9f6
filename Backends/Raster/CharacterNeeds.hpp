// What a user-perceived character asks of a font.
#pragma once

#include <string>
#include <string_view>

namespace proupsells::rasterbackend {

enum class Presentation {
    text,
    symbol, // may be coloured where the text's own face lacks it
    emoji,  // coloured where there are coloured emoji
};

struct CharacterNeeds {
    std::u32string characters; // that want a glyph; joiners and the like do not
    Presentation presentation = Presentation::text;
};

// The needs of one cluster. Keeps the memory of `needs`.
void findNeeds(std::u16string_view cluster, CharacterNeeds& needs);

// The same characters joined with their marks, as far as there are joined ones; and taken apart.
std::u32string composed(std::u32string_view characters);
std::u32string decomposed(std::u32string_view characters);

} // namespace proupsells::rasterbackend
