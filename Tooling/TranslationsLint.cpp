#include "Tooling/TranslationsLint.hpp"

#include <algorithm>
#include <set>

#include "Platform/Foundation/Ascii.hpp"
#include "Platform/Foundation/Format.hpp"
#include "Platform/Foundation/StringsFile.hpp"
#include "Platform/System/Files.hpp"
#include "Platform/System/PathText.hpp"
#include "Tooling/Quoted.hpp"

namespace proupsells::tooling {

namespace {

struct Placeholders {
    std::multiset<std::string> arguments; // as they are numbered, those without a number from 1 on: "1", "2"
    std::size_t unnumbered = 0;
    bool hasNumbers = false;
    bool hasPercentSign = false;
    std::size_t boldMarks = 0;
};

Placeholders placeholdersOf(std::string_view text) {
    Placeholders found;
    while (!text.empty()) {
        const std::size_t length = std::max<std::size_t>(foundation::placeholderLength(text), 1);
        const std::string_view piece = text.substr(0, length);
        if (piece == "%@") {
            found.arguments.insert(std::to_string(++found.unnumbered));
        } else if (length > 2) {
            found.hasNumbers = true;
            found.arguments.insert(std::string(piece.substr(1, length - 3)));
        } else if (piece.starts_with('%')) {
            found.hasPercentSign = true;
        }
        const bool isBoldMark = text.starts_with("**");
        found.boldMarks += isBoldMark;
        text.remove_prefix(isBoldMark ? 2 : length);
    }
    return found;
}

// %1$@ for "1", as the key has it.
std::string spelt(const std::string& argument, const Placeholders& key) {
    return key.hasNumbers || argument != "1" ? "%" + argument + "$@" : "%@";
}

bool hasLetters(std::string_view text) {
    return std::any_of(text.begin(), text.end(), [](char c) { return foundation::asciiLower(c) != foundation::asciiUpper(c); });
}

class TranslationLinter {
public:
    TranslationLinter(const Translation& translation, std::span<const TranslatableText> texts)
        : m_translation(translation), m_texts(texts) {}

    std::vector<LintFinding> findings() {
        std::set<std::string_view> known;
        for (const TranslatableText& text : m_texts) {
            known.insert(text.key);
            const auto found = m_translation.texts.find(std::string(text.key));
            if (found == m_translation.texts.end() || found->second.empty())
                add("missing translation", text.key, "is missing and shows in English; translate it");
            else
                compare(found->first, found->second);
        }
        for (const auto& [key, text] : m_translation.texts)
            if (!known.contains(key)) add("unused translation", key, "is a text of no screen; take it out, or correct its key");
        return std::move(m_findings);
    }

private:
    void add(const char* rule, std::string_view key, const std::string& message) {
        m_findings.push_back({.rule = rule, .place = std::string(key), .message = message, .file = m_translation.file});
    }

    void compare(const std::string& key, const std::string& text) {
        const bool isEnglish = m_translation.language.starts_with("en");
        if (!isEnglish && key == text && hasLetters(key)) add("untranslated", key, "is the same as in English; translate it");
        const Placeholders before = placeholdersOf(key), after = placeholdersOf(text);
        for (const std::string& argument : before.arguments)
            if (!after.arguments.contains(argument))
                add("lost placeholder", key, inQuotes(text) + " has lost " + spelt(argument, before) + "; put it back");
        for (const std::string& argument : std::set(after.arguments.begin(), after.arguments.end()))
            if (!before.arguments.contains(argument))
                add("added placeholder", key,
                    inQuotes(text) + " has " + (after.hasNumbers ? "%" + argument + "$@" : "one %@ more") +
                        ", for which there is nothing to put in; take it out");
        if (before.hasPercentSign && !after.hasPercentSign)
            if (foundation::format(text, {}).find('%') == std::string::npos)
                add("lost placeholder", key, inQuotes(text) + " has lost %%; put it back");
        if (before.arguments.size() > 1 && before.hasNumbers && after.unnumbered > 0)
            add("placeholders without numbers", key,
                inQuotes(text) + " has %@ in the place of numbers, so that the order may be wrong; write %1$@, %2$@");
        if (before.boldMarks != after.boldMarks)
            add("lost bold marks", key,
                inQuotes(text) + " has " + std::to_string(after.boldMarks) + " of the " + std::to_string(before.boldMarks) +
                    " marks **; put a pair around what is to stand out");
    }

    const Translation& m_translation;
    std::span<const TranslatableText> m_texts;
    std::vector<LintFinding> m_findings;
};

} // namespace

std::vector<Translation> readTranslations(const std::filesystem::path& folder) {
    std::vector<Translation> all;
    for (const std::filesystem::path& each : system::foldersIn(folder)) {
        const std::filesystem::path file = each / "Localizable.strings";
        if (each.extension() != ".lproj" || !system::isFile(file)) continue;
        Translation translation{
            .language = system::textOf(each.stem()), .file = system::textOf(each.filename() / file.filename()), .texts = {}};
        const auto bytes = system::contentsOf(file);
        auto parsed = foundation::StringsFile::parse(bytes ? *bytes : std::string());
        if (!bytes) translation.error = "it cannot be read";
        if (parsed.error) translation.error = "line " + std::to_string(parsed.error->line) + ": " + parsed.error->message;
        translation.texts.insert(parsed.texts.begin(), parsed.texts.end());
        all.push_back(std::move(translation));
    }
    return all;
}

std::vector<LintFinding> lint(const Translation& translation, std::span<const TranslatableText> texts) {
    return TranslationLinter(translation, texts).findings();
}

} // namespace proupsells::tooling
