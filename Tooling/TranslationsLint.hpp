// What is wrong with a host's translations.
#pragma once

#include <filesystem>
#include <map>
#include <span>
#include <string>
#include <vector>

#include "Platform/System/Compiler.hpp"
#include "Tooling/LintFinding.hpp"
#include "Tooling/TranslatableText.hpp"

namespace proupsells::tooling {

// A language of a host.
struct Translation {
    std::string language;                     // as the folder is named, such as "pt-BR"
    std::string file;                         // such as "pt-BR.lproj/Localizable.strings"
    std::map<std::string, std::string> texts; // by key
    std::string error{};                      // why the file cannot be read; empty when it can
};

// Every <language>.lproj/Localizable.strings of the folder, by name.
PROUPSELLS_EXPORT std::vector<Translation> readTranslations(const std::filesystem::path& folder);

// Whether each of the texts is there, says the same to its placeholders, and says it in another language. In the order of the
// texts; keys that no screen has come last.
PROUPSELLS_EXPORT std::vector<LintFinding> lint(const Translation& translation, std::span<const TranslatableText> texts);

} // namespace proupsells::tooling
