#include "Apps/ProUpsellsHost/LintCommand.hpp"

#include <algorithm>
#include <iostream>

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/AcceptedFindings.hpp"
#include "Apps/ProUpsellsHost/AuditOffers.hpp"
#include "Apps/ProUpsellsHost/InputError.hpp"
#include "Apps/ProUpsellsHost/Offers.hpp"
#include "Platform/System/PathText.hpp"
#include "Tooling/OffersLint.hpp"
#include "Tooling/TranslationsLint.hpp"

namespace proupsells::hostprogram {

using tooling::LintFinding;

namespace {

// What is found in the files of a folder, each named with the folder.
std::vector<LintFinding> findingsIn(const std::filesystem::path& folder) {
    const auto translations = tooling::readTranslations(folder);
    if (translations.empty())
        throw InputError(system::textOf(folder), "",
                         "there are no translations, expected a folder of <language>.lproj/Localizable.strings");
    std::vector<LintFinding> all;
    for (const tooling::Translation& translation : translations) {
        const std::string file = system::textOf(folder / system::pathOf(translation.file));
        if (!translation.error.empty()) throw InputError(file, "", translation.error + ", expected lines of \"key\" = \"text\";");
        for (LintFinding& finding : tooling::lint(translation, tooling::translatableTexts())) {
            finding.file = file;
            all.push_back(std::move(finding));
        }
    }
    return all;
}

bool isAboutRoom(const AuditEntry& entry) {
    using tooling::AuditRule;
    constexpr AuditRule rules[] = {AuditRule::truncated, AuditRule::brokenWord, AuditRule::outside, AuditRule::overlapping};
    return std::any_of(std::begin(rules), std::end(rules), [&](AuditRule rule) { return entry.rule == nameOf(rule); });
}

// The key whose translation a finding names; where the text stands, if it is put together from several.
std::string keyIn(const AuditEntry& entry, const tooling::Translation& translation) {
    std::string key = entry.identifier.empty() ? entry.screen : entry.screen + " " + entry.identifier;
    std::size_t length = 0;
    for (const auto& [each, text] : translation.texts) {
        if (text.size() <= length || entry.message.find("\"" + text + "\"") == std::string::npos) continue;
        key = each;
        length = text.size();
    }
    return key;
}

// Translations that are longer than their place on the usual telephones, at the usual text size.
std::vector<LintFinding> findTooLong(const Offers& offers, const std::filesystem::path& folder) {
    std::vector<LintFinding> all;
    AuditSubject subject{.offers = offers, .device = {}, .matrix = defaultMatrix(std::nullopt)};
    subject.device.strings = folder;
    subject.matrix.sizes = {{320, 568}, {375, 667}};
    subject.matrix.textSizes = {graphics::ContentSizeCategory::large};
    subject.matrix.appearances = {graphics::ColorScheme::light};
    subject.matrix.locales.clear();
    const auto translations = tooling::readTranslations(folder);
    for (const tooling::Translation& translation : translations) subject.matrix.locales.push_back(translation.language);
    const AuditLedger ledger = auditOffers(subject);
    for (const AuditEntry& entry : ledger.entries()) {
        if (!isAboutRoom(entry)) continue;
        const std::string language = entry.configuration.substr(0, entry.configuration.find(' '));
        const auto translation =
            std::find_if(translations.begin(), translations.end(), [&](const auto& each) { return each.language == language; });
        if (translation == translations.end()) continue;
        all.push_back(
            {.rule = "too long",
             .place = keyIn(entry, *translation),
             .message = entry.message + " on a screen " + std::to_string(int(entry.smallestWidth)) + " points wide; shorten it",
             .file = system::textOf(folder / system::pathOf(translation->file))});
    }
    return all;
}

std::string inOneLine(const LintFinding& finding, bool isAboutOffers) {
    const std::string place = isAboutOffers ? finding.place : Json(finding.place).dump();
    return finding.file + ": " + place + ": " + finding.rule + ": " + finding.message + "\n";
}

} // namespace

int lintOffers(const LintArguments& arguments) {
    constexpr int clean = 0, hasFindings = 1;
    const AcceptedFindings accepted(arguments.accepted);
    const Offers offers = readOffersFile(arguments.offers);
    auto findings = tooling::lint({offers.options, offers.annualSubscriptionPriceForComparisonWithPromotionalPrice,
                                   offers.monthlySubscriptionPriceForComparisonWithPromotionalPrice});
    const std::size_t aboutOffers = findings.size();
    for (LintFinding& finding : findings) finding.file = system::textOf(arguments.offers);
    if (arguments.strings) {
        for (LintFinding& finding : findingsIn(*arguments.strings)) findings.push_back(std::move(finding));
        // A monthly price of 0 stops the program that shows it.
        const bool canBeShown =
            std::none_of(findings.begin(), findings.end(), [](const auto& each) { return each.rule == tooling::zeroMonth; });
        if (canBeShown)
            for (LintFinding& finding : findTooLong(offers, *arguments.strings)) findings.push_back(std::move(finding));
    }

    Json rows = Json::array();
    std::string text;
    for (const LintFinding& finding : findings) {
        if (accepted.covers({{"rule", finding.rule}, {"file", finding.file}, {"place", finding.place}})) continue;
        text += inOneLine(finding, &finding < findings.data() + aboutOffers);
        rows.push_back({{"rule", finding.rule}, {"file", finding.file}, {"place", finding.place}, {"message", finding.message}});
    }
    std::cout << (arguments.format == LintFormat::json ? Json{{"findings", rows}}.dump(2) + "\n" : text);
    return rows.empty() ? clean : hasFindings;
}

} // namespace proupsells::hostprogram
