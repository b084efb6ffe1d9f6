// The texts that translators are given.
#pragma once

#include <span>
#include <string_view>

#include "Platform/System/Compiler.hpp"

namespace proupsells::tooling {

struct TranslatableText {
    std::string_view key;     // in English
    std::string_view comment; // for translators; empty for none
    std::string_view screen;  // where it is read first: "Paywall", "Comparison", "Store page", or "Shared" by all
};

// Every text of the screens, each key once, by screens and within them as the sources have them. The build reads them out of the
// sources.
PROUPSELLS_EXPORT std::span<const TranslatableText> translatableTexts();

} // namespace proupsells::tooling
