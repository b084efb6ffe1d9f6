// The list that translators are given is exactly what the screens show and say.
#include <gmock/gmock.h>

#include <map>
#include <set>

#include "Backends/Headless/TestBed.hpp"
#include "Platform/Accessibility/Reading.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"
#include "ProUpsells/AllTheThingsHeaderViewShelf.hpp"
#include "ProUpsells/UpsellViewController.hpp"
#include "ProUpsells/VelaProStorePageViewController.hpp"
#include "ProUpsells/VelaProUpsellViewController.hpp"
#include "Tests/ProUpsells/HostTranslations.hpp"
#include "Tests/ProUpsells/Offers.hpp"
#include "Tests/ProUpsells/SemanticSearch.hpp"
#include "Tests/ProUpsells/StubLocaleServices.hpp"
#include "Tooling/TranslatableText.hpp"

namespace proupsells::tests {
namespace {

using accessibility::SemanticNode;
using testing::IsEmpty;
using TapEvent = UpsellViewModel::TapEvent;

// What stands for a key in the host's translation below, whatever happens to the case of its letters and to its placeholders.
std::string numberOf(std::size_t index) { return "⟦" + std::to_string(index) + "⟧"; }
bool isTranslated(const std::string& text) { return text.find("⟦") != std::string::npos; }

std::map<std::string, std::string> numberedTexts() {
    std::map<std::string, std::string> result;
    for (std::size_t index = 0; const auto& text : tooling::translatableTexts()) {
        std::string& numbered = result[std::string(text.key)] = numberOf(index++);
        for (const char* placeholder : {"%@", "%1$@", "%2$@"})
            if (text.key.find(placeholder) != std::string_view::npos) numbered += placeholder;
    }
    return result;
}

// A host whose translation numbers the texts. Every test here uses it: the comparison keeps the texts of its first use.
class NumberedHost {
public:
    using Texts = std::set<std::string>;

    ~NumberedHost() { VelaProStorePageViewController::shouldMentioniCloudSync = false; }

    // All that the three screens show and say, everything opened.
    Texts textsOf(const std::vector<SubscriptionOption>& options) {
        Texts texts;
        for (const TapEvent& opening : {TapEvent{TapEvent::WhatIsPro{}}, TapEvent{TapEvent::ComparePlans{}}}) {
            const auto window = uikit::UIWindow::create({700, 8000});
            window->setRootViewController(std::make_shared<uikit::UIViewController>());
            const auto entry = VelaProUpsellViewController::create(options, VelaProUpsellViewController::Variant::comparisonPaywall,
                                                                   Referrer{"Home"}, Entitlement::velaPRO, true);
            entry->setAnnualSubscriptionPriceForComparisonWithPromotionalPrice("⟦before⟧");
            window->rootViewController()->present(entry, false);
            addAllPages(texts, *window);
            operateAll(*window, "plan.", texts);
            dynamic_cast<UpsellViewController&>(*entry->children().front()).upsellViewModel()->tapEventOccurred.send(opening);
            m_bed.runFor(1);
            add(texts, *window);
            operateAll(*window, "comparison.category.", texts);
            window->setRootViewController(nullptr);
        }
        return texts;
    }

    // The header that a host may have in place of the store page's own.
    Texts textsOfOtherHeader() {
        Texts texts;
        AllTheThingsHeaderViewShelf shelf;
        const auto window = uikit::UIWindow::create({700, 300});
        window->setRootViewController(shelf.viewController());
        add(texts, *window);
        return texts;
    }

    headless::TestBed& bed() { return m_bed; }

private:
    static constexpr double secondsAPage = 5; // of the header

    void add(Texts& texts, uikit::UIWindow& window) {
        m_bed.settle();
        for (const std::string& text : tests::texts(window.semanticTree())) texts.insert(text);
        const auto reading = window.reading();
        for (const accessibility::ReadingElement* element : accessibility::elementsOf(reading))
            texts.insert({element->name, element->value});
        texts.erase("");
    }

    // What a person finds who waits for every page of the header.
    void addAllPages(Texts& texts, uikit::UIWindow& window) {
        for (int page = 0; page < 4; ++page) {
            add(texts, window);
            m_bed.runFor(secondsAPage);
        }
    }

    // Those whose identifier begins so, one after another.
    void operateAll(uikit::UIWindow& window, std::string_view prefix, Texts& texts) {
        const SemanticNode screen = window.semanticTree();
        visit(screen, [&](const SemanticNode& node) {
            if (!node.identifier.starts_with(prefix) || !node.activate) return;
            node.activate();
            m_bed.runFor(1); // what opens is not told before it can be seen
            add(texts, window);
        });
    }

    headless::TestBed m_bed;
    HostTranslations m_translations{numberedTexts()};
};

std::vector<SubscriptionOption> plans(bool haveUsedTrial) {
    const PlanDetails details{.introductoryPeriodLength = "⟦1 week⟧", .hasUsedFreeTrial = haveUsedTrial};
    return {yearly("⟦yearly⟧", details), monthly("⟦monthly⟧", details)};
}

NumberedHost::Texts allTexts() {
    NumberedHost host;
    VelaProStorePageViewController::shouldMentioniCloudSync = true;
    NumberedHost::Texts all = host.textsOf(plans(false));
    all.merge(host.textsOf(plans(true)));
    all.merge(host.textsOf({}));
    host.bed().takeLogRecords(); // of a paywall without plans
    all.merge(host.textsOfOtherHeader());
    StubLocaleServices services;
    services.cannotFormatPercent();
    all.merge(host.textsOf(plans(false)));
    return all;
}

TEST(TranslatableTexts, AreAllThatIsShownAndSpoken) {
    NumberedHost::Texts others;
    for (const std::string& text : allTexts())
        if (!isTranslated(text)) others.insert(text);

    EXPECT_THAT(others, IsEmpty());
}

// What the bridge to assistive technology adds to a reading; its own tests hold it.
constexpr std::string_view addedByBridge[] = {"%1$@ of %2$@"};

TEST(TranslatableTexts, AreAllShownOrSpoken) {
    const NumberedHost::Texts all = allTexts();
    std::set<std::string_view> unused;

    for (std::size_t index = 0; const auto& text : tooling::translatableTexts()) {
        const std::string number = numberOf(index++);
        if (std::none_of(all.begin(), all.end(), [&](const std::string& shown) { return shown.find(number) != std::string::npos; }))
            unused.insert(text.key);
    }

    EXPECT_THAT(unused, testing::ElementsAreArray(addedByBridge));
}

TEST(TranslatableTexts, HaveNoKeyTwice) {
    std::set<std::string_view> keys;

    for (const auto& text : tooling::translatableTexts()) EXPECT_TRUE(keys.insert(text.key).second) << text.key;
}

} // namespace
} // namespace proupsells::tests
