// The translations that hosts can begin with are whole.
#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "Platform/Foundation/Bundle.hpp"
#include "Platform/Foundation/Locale.hpp"
#include "Platform/Foundation/StringsFile.hpp"
#include "ProUpsells/UpsellViewController.hpp"
#include "ProUpsells/VelaProUpsellViewController.hpp"
#include "Tests/ProUpsells/Offers.hpp"
#include "Tests/ProUpsells/Screen.hpp"
#include "Tests/ProUpsells/SemanticSearch.hpp"
#include "Tests/Support/SourceFile.hpp"
#include "Tooling/TranslatableText.hpp"

namespace proupsells::tests {
namespace {

using foundation::StringsFile;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using TapEvent = UpsellViewModel::TapEvent;

std::filesystem::path folder() { return sourceFile("Examples/Translations"); }

// What stands in the file of each language.
std::map<std::string, std::string> files() {
    std::map<std::string, std::string> found;
    for (const auto& entry : std::filesystem::directory_iterator(folder())) {
        std::ifstream file(entry.path() / "Localizable.strings", std::ios::binary);
        std::ostringstream bytes;
        bytes << file.rdbuf();
        found.emplace(entry.path().stem().string(), bytes.str());
    }
    return found;
}

std::map<std::string, StringsFile::Texts> translations() {
    std::map<std::string, StringsFile::Texts> found;
    for (const auto& [language, bytes] : files()) {
        const StringsFile parsed = StringsFile::parse(bytes);
        EXPECT_FALSE(parsed.error) << language << ": " << parsed.error->line << ": " << parsed.error->message;
        found.emplace(language, parsed.texts);
    }
    return found;
}

// "%1$@", "%@" and "%%", in no order; bold marks count as well.
std::multiset<std::string> placeholdersOf(const std::string& text) {
    std::multiset<std::string> found;
    for (std::size_t at = text.find('%'); at != std::string::npos; at = text.find('%', at)) {
        const std::size_t end = text.find_first_of("@%", at + 1);
        if (end == std::string::npos) break;
        found.insert(text.substr(at, end - at + 1));
        at = end + 1;
    }
    for (std::size_t at = text.find("**"); at != std::string::npos; at = text.find("**", at + 2)) found.insert("**");
    return found;
}

TEST(SampleTranslations, AreThereInSixteenLanguages) {
    std::vector<std::string> languages;
    for (const auto& [language, texts] : translations()) languages.push_back(language);

    EXPECT_THAT(languages, ElementsAre("ar", "de", "es", "fr", "he", "hi", "it", "ja", "ko", "nl", "pl", "pt-BR", "ru", "tr",
                                       "zh-Hans", "zh-Hant"));
}

TEST(SampleTranslations, KeepEveryPlaceholder) {
    for (const auto& [language, texts] : translations())
        for (const auto& [key, text] : texts) {
            EXPECT_EQ(placeholdersOf(text), placeholdersOf(key)) << language << ": " << text;
            EXPECT_FALSE(text.empty()) << language << ": " << key;
        }
}

TEST(SampleTranslations, HaveEveryTextAndNoOther) {
    std::set<std::string> all;
    for (const tooling::TranslatableText& text : tooling::translatableTexts()) all.emplace(text.key);

    for (const auto& [language, texts] : translations()) {
        std::set<std::string> own;
        for (const auto& [key, text] : texts) own.insert(key);
        EXPECT_EQ(own, all) << language;
    }
}

TEST(SampleTranslations, SayWhatEachTextIsFor) {
    for (const auto& [language, bytes] : files())
        for (const tooling::TranslatableText& text : tooling::translatableTexts()) {
            const std::string entry = "\n\"" + std::string(text.key) + "\" = ";
            const std::string comment = text.comment.empty() ? std::string() : "\n/* " + std::string(text.comment) + " */";
            EXPECT_THAT(bytes, HasSubstr(comment + entry)) << language;
            if (comment.empty()) {
                EXPECT_THAT(bytes, Not(HasSubstr("*/" + entry))) << language;
            }
        }
}

// What the paywall and the store page show and say, with a trial and without. The comparison's catalogue stays in the language of
// its first use.
std::set<std::string> shownIn(const std::string& language) {
    headless::TestBed bed(host::Services{}, language);
    foundation::Bundle::setMain(folder());
    foundation::Locale::setCurrent(foundation::Locale(language));
    std::set<std::string> shown;
    for (const bool hasUsedTrial : {false, true}) {
        const auto window = uikit::UIWindow::create({375, 6000});
        window->setRootViewController(std::make_shared<uikit::UIViewController>());
        const auto entry = VelaProUpsellViewController::create(
            {yearly("$99.99", {.introductoryPeriodLength = "1 week", .hasUsedFreeTrial = hasUsedTrial}), monthly()},
            VelaProUpsellViewController::Variant::comparisonPaywall, Referrer{"Home"}, Entitlement::velaPRO, true);
        window->rootViewController()->present(entry, false);
        bed.settle();
        for (const std::string& text : texts(window->semanticTree())) shown.insert(text);
        dynamic_cast<UpsellViewController&>(*entry->children().front())
            .upsellViewModel()
            ->tapEventOccurred.send({TapEvent::WhatIsPro{}});
        bed.runFor(1);
        for (const std::string& text : texts(window->semanticTree())) shown.insert(text);
        window->setRootViewController(nullptr);
    }
    foundation::Bundle::setMain({});
    foundation::Locale::setCurrent(foundation::Locale{});
    return shown;
}

TEST(SampleTranslations, LeaveNothingInEnglish) {
    const std::set<std::string> english = shownIn("en");
    for (const auto& [language, translated] : translations()) {
        std::set<std::string> left;
        for (const std::string& text : shownIn(language)) {
            const bool isItsOwn =
                std::any_of(translated.begin(), translated.end(), [&](const auto& entry) { return entry.second == text; });
            if (english.contains(text) && !isItsOwn) left.insert(text);
        }
        EXPECT_THAT(left, IsEmpty()) << language;
    }
    EXPECT_GT(english.size(), 25u);
}

} // namespace
} // namespace proupsells::tests
