// Which form of a letter is wanted where several languages share it.
#pragma once

#include <string>
#include <string_view>

namespace proupsells::rasterbackend {

// The language in which a fallback font is to be looked for, as fontconfig writes it: the text's own where that is written in the
// script, else the script's most usual one. `language` is a tag such as "de-AT" or empty, `script` a code such as "Deva". Empty
// where neither tells.
std::string fallbackLanguage(const std::string& language, const std::string& script);

} // namespace proupsells::rasterbackend
