// Files for translators to begin with.
#pragma once

#include <span>
#include <string>

#include "Platform/System/Compiler.hpp"
#include "Tooling/TranslatableText.hpp"

namespace proupsells::tooling {

// A Localizable.strings in UTF-8 in which every key stands for itself, with a heading for each screen.
PROUPSELLS_EXPORT std::string stringsFile(std::span<const TranslatableText> texts);

// A template for gettext, in UTF-8, without translations.
PROUPSELLS_EXPORT std::string potFile(std::span<const TranslatableText> texts);

} // namespace proupsells::tooling
