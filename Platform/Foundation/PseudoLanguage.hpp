// Languages that nobody speaks: they show what a translation would do to a screen while its texts can still be read.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "Platform/System/Compiler.hpp"

namespace proupsells::foundation {

enum class PseudoLanguage {
    accented, // en-XA: accented letters, some 40 % more of them, in brackets
    mirrored, // ar-XB: every word runs from right to left
};

// The one that a language tag such as "en-XA" asks for, in any case; absent for every other language.
PROUPSELLS_EXPORT std::optional<PseudoLanguage> pseudoLanguageOf(std::string_view languageTag);

// The English text in that language. Placeholders (%@, %1$@, %%) and everything that is no letter stay as they are, and an empty
// text stays empty.
PROUPSELLS_EXPORT std::string pseudoTranslation(std::string_view text, PseudoLanguage language);

} // namespace proupsells::foundation
