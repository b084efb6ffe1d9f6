#include "Apps/ProUpsellsHost/SourceWatch.hpp"

#include <utility>

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/JsonFile.hpp"
#include "Apps/ProUpsellsHost/ThemeFile.hpp"
#include "Apps/ProUpsellsHost/Translations.hpp"
#include "Platform/System/Files.hpp"
#include "Platform/System/PathText.hpp"

namespace proupsells::hostprogram {

namespace {

FileChanges::Files only(const std::optional<std::filesystem::path>& file) {
    return [file] { return file ? std::vector{*file} : std::vector<std::filesystem::path>{}; };
}

FileChanges::Files tablesIn(const std::optional<std::filesystem::path>& folder) {
    return [folder] {
        std::vector<std::filesystem::path> tables;
        if (folder)
            for (const std::filesystem::path& file : translationFilesIn(*folder)) tables.push_back(file);
        return tables;
    };
}

FileChanges::Files filesOfTheme(const std::optional<std::filesystem::path>& file) {
    std::vector<std::filesystem::path> files;
    try {
        if (file) files = filesNamedBy(readThemeFile(*file));
    } catch (const std::runtime_error&) {
        // It is told of where the theme is used.
    }
    return [files] { return files; };
}

// Reads what has changed. What is wrong with it is told of instead.
template <class Read>
void readInto(SourceChange& change, const Read& read) {
    try {
        read();
    } catch (const std::runtime_error& error) {
        change.complaints.emplace_back(error.what());
    }
}

} // namespace

SourceWatch::SourceWatch(Sources sources)
    : m_sources(std::move(sources)), m_offers(only(m_sources.offers)), m_strings(tablesIn(m_sources.strings)),
      m_theme(only(m_sources.theme)), m_themeFiles(filesOfTheme(m_sources.theme)) {}

std::filesystem::path SourceWatch::keptTranslations(const std::filesystem::path& folder) {
    const Json texts = translationsIn(folder);
    return readInlineTranslations(JsonCursor{texts, system::textOf(folder)});
}

Theme SourceWatch::readTheme() {
    const Theme theme = readThemeFile(*m_sources.theme);
    // Known before they are read: what is written meanwhile is a change.
    m_themeFiles = FileChanges([files = filesNamedBy(theme)] { return files; });
    return withKeptFiles(theme);
}

SourceChange SourceWatch::look() {
    SourceChange change;
    if (m_offers.look())
        readInto(change, [&] {
            auto json = std::make_unique<Json>(readJsonFile(m_sources.offers));
            readOffers(JsonCursor{*json, system::textOf(m_sources.offers)});
            change.offers = std::move(json);
        });
    if (m_strings.look()) readInto(change, [&] { change.strings = keptTranslations(*m_sources.strings); });
    const bool namesOthers = m_theme.look(), areOthers = m_themeFiles.look();
    if (namesOthers || areOthers) readInto(change, [&] { change.theme = readTheme(); });
    return change;
}

} // namespace proupsells::hostprogram
