#include "Apps/ProUpsellsHost/Translations.hpp"

#include <algorithm>
#include <map>

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/InlineFiles.hpp"
#include "Apps/ProUpsellsHost/InputError.hpp"
#include "Platform/Foundation/StringsFile.hpp"
#include "Platform/System/Files.hpp"
#include "Platform/System/PathText.hpp"

namespace proupsells::hostprogram {

namespace {

constexpr std::string_view languageFolderExtension = ".lproj";
constexpr const char* tableName = "Localizable.strings";

// As a file of strings has it.
std::string quotedText(const std::string& text) {
    std::string result = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') result += '\\';
        if (c == '\0')
            result += "\\U0000";
        else
            result += c;
    }
    return result + "\"";
}

bool isLanguage(const std::string& name) {
    return !name.empty() && name.size() <= 64 && std::all_of(name.begin(), name.end(), [](unsigned char c) {
        return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == '-';
    });
}

Json textsIn(const std::filesystem::path& file) {
    const auto bytes = system::contentsOf(file);
    if (!bytes) throw InputError(system::textOf(file), "", "the file cannot be read, expected a file of translations");
    const foundation::StringsFile strings = foundation::StringsFile::parse(*bytes);
    if (strings.error)
        throw InputError(system::textOf(file), "",
                         strings.error->message + " on line " + std::to_string(strings.error->line) +
                             ", expected a file of translations");
    Json texts = Json::object();
    for (const auto& [key, text] : std::map(strings.texts.begin(), strings.texts.end())) texts[key] = text;
    return texts;
}

} // namespace

std::filesystem::path readInlineTranslations(const JsonCursor& object) {
    InlineFiles files;
    for (const std::string& language : object.keys()) {
        const JsonCursor texts = object.at(language);
        if (!isLanguage(language)) texts.fail("\"" + language + "\" is no language, expected one such as \"de\" or \"pt-BR\"");
        std::string table;
        for (const std::string& key : texts.keys()) table += quotedText(key) + " = " + quotedText(texts.at(key).text()) + ";\n";
        files.emplace_back(language + std::string(languageFolderExtension) + "/" + tableName, std::move(table));
    }
    return keepInlineFiles(std::move(files));
}

std::vector<std::filesystem::path> translationFilesIn(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> files;
    for (const std::filesystem::path& subfolder : system::foldersIn(folder)) {
        const std::filesystem::path file = subfolder / tableName;
        if (system::textOf(subfolder.filename()).ends_with(languageFolderExtension) && system::isThere(file)) files.push_back(file);
    }
    return files;
}

Json translationsIn(const std::filesystem::path& folder) {
    Json languages = Json::object();
    for (const std::filesystem::path& file : translationFilesIn(folder))
        languages[system::textOf(file.parent_path().stem())] = textsIn(file);
    return languages;
}

} // namespace proupsells::hostprogram
