#include "Apps/ProUpsellsHost/LintCommand.hpp"

#include <iostream>

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/AcceptedFindings.hpp"
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
    if (arguments.strings)
        for (LintFinding& finding : findingsIn(*arguments.strings)) findings.push_back(std::move(finding));

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
