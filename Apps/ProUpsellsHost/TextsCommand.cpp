#include "Apps/ProUpsellsHost/TextsCommand.hpp"

#include <iostream>

#include <nlohmann/json.hpp>

#include "Tooling/TranslationFiles.hpp"

namespace proupsells::hostprogram {

namespace {

std::string jsonFile(std::span<const tooling::TranslatableText> texts) {
    Json rows = Json::array();
    for (const auto& [key, comment, screen] : texts) {
        Json& row = rows.emplace_back(Json{{"key", key}, {"comment", nullptr}, {"screen", screen}});
        if (!comment.empty()) row["comment"] = comment;
    }
    return Json{{"texts", rows}}.dump(2) + "\n";
}

std::string fileIn(TextsFormat format) {
    const auto texts = tooling::translatableTexts();
    switch (format) {
    case TextsFormat::strings: return tooling::stringsFile(texts);
    case TextsFormat::pot: return tooling::potFile(texts);
    case TextsFormat::json: break;
    }
    return jsonFile(texts);
}

} // namespace

void printTexts(TextsFormat format) { std::cout << fileIn(format); }

} // namespace proupsells::hostprogram
