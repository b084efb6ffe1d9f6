#include "Platform/Foundation/Bundle.hpp"

#include <algorithm>
#include <map>
#include <unordered_map>
#include <utility>

#include "Platform/Commons/DefaultLogger.hpp"
#include "Platform/Foundation/Ascii.hpp"
#include "Platform/Foundation/LanguageChanges.hpp"
#include "Platform/Foundation/Locale.hpp"
#include "Platform/Foundation/PseudoLanguage.hpp"
#include "Platform/Foundation/StringsFile.hpp"
#include "Platform/RunLoop/MainActor.hpp"
#include "Platform/System/Files.hpp"
#include "Platform/System/PathText.hpp"

namespace proupsells::foundation {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view languageFolderExtension = ".lproj";

std::string normalised(std::string_view name) {
    std::string result = asciiLowerCased(std::string(name));
    std::replace(result.begin(), result.end(), '_', '-');
    return result;
}

void logUnusable(const std::string& place, std::string_view reason) {
    commons::DefaultLogger::shared().log(commons::DefaultLogger::errorSeverity,
                                         place + ": " + std::string(reason) + "; none of its translations are used",
                                         "Bundle.localizedString");
}

// Empty when there is no such file. One that is there and cannot be used costs a log line.
StringsFile::Texts readTexts(const fs::path& path) {
    if (!system::isThere(path)) return {};
    const auto bytes = system::contentsOf(path);
    if (!bytes) {
        logUnusable(system::textOf(path), "the file cannot be read");
        return {};
    }
    StringsFile file = StringsFile::parse(*bytes);
    if (file.error) logUnusable(system::textOf(path) + ":" + std::to_string(file.error->line), file.error->message);
    return std::move(file.texts);
}

} // namespace

struct Bundle::Tables {
    explicit Tables(const fs::path& folder) {
        if (folder.empty()) return;
        for (const fs::path& subfolder : system::foldersIn(folder)) {
            const std::string name = normalised(system::textOf(subfolder.filename()));
            if (!name.ends_with(languageFolderExtension)) continue;
            folders.emplace(name.substr(0, name.size() - languageFolderExtension.size()), subfolder);
        }
    }

    const StringsFile::Texts& forLanguage(const std::string& language) {
        const auto known = byLanguage.find(language);
        if (known != byLanguage.end()) return known->second;
        const auto folder = folders.find(normalised(language));
        return byLanguage
            .emplace(language, folder == folders.end() ? StringsFile::Texts{} : readTexts(folder->second / "Localizable.strings"))
            .first->second;
    }

    std::map<std::string, fs::path> folders;                        // by normalised language
    std::unordered_map<std::string, StringsFile::Texts> byLanguage; // as locales spell it; nothing moves once it is in
};

Bundle::Bundle(fs::path folder) : m_folder(std::move(folder)), m_tables(std::make_unique<Tables>(m_folder)) {}

Bundle::~Bundle() = default;

std::optional<fs::path> Bundle::pathForResource(std::string_view name, std::string_view extension) const {
    if (m_folder.empty() || name.empty()) return std::nullopt;
    std::string text(name);
    if (!extension.empty()) text.append(".").append(extension);
    const fs::path fileName = system::pathOf(text);
    if (system::isFile(m_folder / fileName)) return m_folder / fileName;
    for (const fs::path& subfolder : system::foldersIn(m_folder))
        if (system::isFile(subfolder / fileName)) return subfolder / fileName;
    return std::nullopt;
}

const std::string& Bundle::translation(const std::string& key) const {
    for (const std::string& language : Locale::current().languageChain()) {
        const StringsFile::Texts& texts = m_tables->forLanguage(language);
        if (const auto text = texts.find(key); text != texts.end()) return text->second;
    }
    return key;
}

std::string Bundle::localizedString(const std::string& key) const {
    runloop::MainActor::assertIsolated();
    const auto pseudoLanguage = pseudoLanguageOf(Locale::current().languageTag());
    return pseudoLanguage ? pseudoTranslation(translation(key), *pseudoLanguage) : translation(key);
}

namespace {

std::unique_ptr<const Bundle>& mainBundle() {
    static auto bundle = std::make_unique<const Bundle>(fs::path{});
    return bundle;
}

} // namespace

const Bundle& Bundle::main() { return *mainBundle(); }

void Bundle::setMain(fs::path folder) {
    runloop::MainActor::assertIsolated();
    if (mainBundle()->folder() == folder) return;
    mainBundle() = std::make_unique<const Bundle>(std::move(folder));
    LanguageChanges::add();
}

std::string localizedString(const std::string& key, std::string_view) { return Bundle::main().localizedString(key); }

} // namespace proupsells::foundation
