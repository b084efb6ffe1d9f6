// A language that changes while a screen is shown.
#include <gmock/gmock.h>

#include "Backends/Headless/TestBed.hpp"
#include "Platform/Foundation/Bundle.hpp"
#include "Platform/Foundation/Locale.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"
#include "ProUpsells/UpsellViewController.hpp"
#include "ProUpsells/VelaProUpsellViewController.hpp"
#include "Tests/ProUpsells/Ledger.hpp"
#include "Tests/ProUpsells/Offers.hpp"
#include "Tests/ProUpsells/ScreenDescription.hpp"
#include "Tests/ProUpsells/SemanticSearch.hpp"
#include "Tests/Support/FailOnUnexpectedLog.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

namespace proupsells::tests {
namespace {

using foundation::Bundle;
using foundation::Locale;
using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::Not;
using TapEvent = UpsellViewModel::TapEvent;

enum class Shown { paywall, comparison, store };
constexpr Shown everyScreen[] = {Shown::paywall, Shown::comparison, Shown::store};

// A host whose entry controller is presented when the object is made.
class Host {
public:
    explicit Host(const std::string& language) : bed(host::Services{}, language) {
        setLanguage(language);
        window->setRootViewController(std::make_shared<uikit::UIViewController>());
        entry->setTracker(tracker);
        entry->setDelegate(delegate);
        window->rootViewController()->present(entry, false);
        bed.settle();
    }
    ~Host() { window->setRootViewController(nullptr); }

    // What a host does: the texts' direction comes with its language.
    void setLanguage(const std::string& language) {
        Locale::setCurrent(Locale(language));
        uikit::UITraitCollection traits = window->traits();
        traits.layoutDirection = language == "ar" ? geometry::LayoutDirection::rightToLeft : geometry::LayoutDirection::leftToRight;
        window->setTraits(traits);
    }
    void open(Shown screen) {
        if (screen == Shown::comparison) send({TapEvent::ComparePlans{}});
        if (screen == Shown::store) send({TapEvent::WhatIsPro{}});
        bed.runFor(1);
    }
    void send(const TapEvent& event) {
        auto& paywall = dynamic_cast<UpsellViewController&>(*entry->children().front());
        paywall.upsellViewModel()->tapEventOccurred.send(event);
    }
    void tap(std::string_view identifier) {
        const geometry::Point location = find(tree(), identifier).frame.center();
        window->touch({host::TouchPhase::began, location, bed.now_s()});
        window->touch({host::TouchPhase::ended, location, bed.now_s()});
        bed.settle();
    }
    accessibility::SemanticNode tree() { return window->semanticTree(); }
    std::string dump() { return described(tree()); }
    std::vector<std::string> texts() { return tests::texts(tree()); }

    headless::TestBed bed;
    Ledger ledger;
    std::shared_ptr<LedgerTracker> tracker = std::make_shared<LedgerTracker>(ledger);
    std::shared_ptr<LedgerDelegate> delegate = std::make_shared<LedgerDelegate>(ledger);
    std::shared_ptr<uikit::UIWindow> window = uikit::UIWindow::create({375, 800});
    std::shared_ptr<VelaProUpsellViewController> entry = VelaProUpsellViewController::create(
        {yearly("$99.99", {.introductoryPeriodLength = "1 week"}), monthly()},
        VelaProUpsellViewController::Variant::comparisonPaywall, Referrer{"Home"}, Entitlement::velaPRO, true);
};

// Translations into German, and into a language that is read from right to left. What stands in the comparison's catalogue is left
// out: its texts stay those of its first use.
class LanguageChange : public ::testing::Test {
protected:
    LanguageChange() {
        folder.write("de.lproj/Localizable.strings", texts("de "));
        folder.write("ar.lproj/Localizable.strings", texts("اسم "));
        Bundle::setMain(folder.path());
    }
    ~LanguageChange() override {
        Bundle::setMain({});
        Locale::setCurrent(Locale{});
    }

    static std::string texts(const std::string& prefix) {
        std::string result;
        for (const char* key : {"Annually",
                                "Monthly",
                                "**%1$@** per year (%2$@/month).",
                                "**%@** per month",
                                "Save %@",
                                "Best Value",
                                "Start Your Free Trial",
                                "Subscribe Now",
                                "%1$@ trial.",
                                "Payment will be made automatically after the trial ends.",
                                "Payment will be made immediately.",
                                "Close",
                                "Compare Plans: Free vs Pro",
                                "7 Day Free Trial",
                                "Terms of Service",
                                "Privacy Policy",
                                "Restore Purchases",
                                "Endless premium templates, updated daily.",
                                "Thousands of photos, videos, graphics and fonts.",
                                "Remove photo backgrounds with one tap.",
                                "Grow your business with Custom Domains and Link in Bio.",
                                "page %1$@ of %2$@",
                                "Compare Plans",
                                "Choose Your Plan",
                                "%@ free",
                                "choose your plan",
                                "It's never been easier to look professional.",
                                "Upload brand assets",
                                "Add your logos, fonts and color palettes to use within your projects.",
                                "Get full access to all templates",
                                "Design on the go with professionally designed templates, updated daily.",
                                "Print with PDF export",
                                "Export PDFs for high-quality printing of posters, cards, stationery and more."})
            result += "\"" + std::string(key) + "\" = \"" + prefix + key + "\";\n";
        return result;
    }

    TemporaryFolder folder;
};

TEST_F(LanguageChange, LeavesEveryScreenAsOneThatWasOpenedInTheNewLanguage) {
    const std::pair<const char*, const char*> changes[] = {{"en", "de"}, {"de", "en"}, {"de", "ar"}, {"ar", "de"}};
    for (const Shown screen : everyScreen) {
        for (const auto& [before, after] : changes) {
            SCOPED_TRACE(std::to_string(int(screen)) + " from " + before + " to " + after);
            std::vector<std::string> changed, fresh;
            {
                Host host(before);
                host.open(screen);
                host.setLanguage(after);
                host.bed.settle();
                for (const double time_s : {2.0, 9.0, 12.5}) {
                    host.bed.runUntil(time_s);
                    changed.push_back(host.dump());
                }
            }
            {
                Host host(after);
                host.open(screen);
                for (const double time_s : {2.0, 9.0, 12.5}) {
                    host.bed.runUntil(time_s);
                    fresh.push_back(host.dump());
                }
            }
            EXPECT_EQ(changed, fresh);
        }
    }
}

TEST_F(LanguageChange, IsFollowedByADumpInTheSameMoment) {
    for (const Shown screen : everyScreen) {
        Host host("en");
        host.open(screen);
        const std::string before = host.dump();

        host.setLanguage("de");

        EXPECT_NE(host.dump(), before);
        const std::string inGerman = host.dump();
        host.bed.settle();
        EXPECT_EQ(host.dump(), inGerman);
    }
}

TEST_F(LanguageChange, ReachesAnotherBundlesTexts) {
    const TemporaryFolder other;
    other.write("en.lproj/Localizable.strings", "\"Monthly\" = \"By the month\"; \"Close\" = \"Shut\";");
    Host host("en");

    Bundle::setMain(other.path());
    host.bed.settle();

    EXPECT_THAT(host.texts(), Contains("By the month"));
    EXPECT_EQ(find(host.tree(), "close").label, "Shut");
}

TEST_F(LanguageChange, ReachesScreensThatAreCovered) {
    Host host("en");
    host.open(Shown::comparison);

    host.setLanguage("de");
    host.bed.settle();
    host.tap("comparison.close");
    host.bed.runFor(1);

    EXPECT_THAT(host.texts(), Contains("de Monthly"));
    EXPECT_THAT(host.texts(), Not(Contains("Monthly")));
}

TEST_F(LanguageChange, ReachesScreensThatComeIn) {
    for (const Shown screen : {Shown::comparison, Shown::store}) {
        Host host("en");
        host.send(screen == Shown::store ? TapEvent{TapEvent::WhatIsPro{}} : TapEvent{TapEvent::ComparePlans{}});
        host.bed.runFor(0.25);

        host.setLanguage("de");
        host.bed.runFor(1);

        EXPECT_THAT(host.dump(), HasSubstr(screen == Shown::store ? "de Upload brand assets" : "de Choose Your Plan"));
        EXPECT_THAT(host.dump(), HasSubstr("|de Close|"));
    }
}

TEST_F(LanguageChange, ReachesAnEntryControllerThatWasAwayMeanwhile) {
    Host host("en");
    host.window->rootViewController()->dismiss(false);
    host.setLanguage("de");
    host.bed.settle();
    host.window->rootViewController()->present(host.entry, false);
    host.bed.settle();

    EXPECT_THAT(host.texts(), Contains("de Endless premium templates, updated daily."));
    EXPECT_THAT(host.texts(), Not(Contains("Monthly")));
}

TEST_F(LanguageChange, ReachesAnEntryControllerWhoseViewWasLoadedBefore) {
    Host host("en");
    const auto other =
        VelaProUpsellViewController::create({yearly(), monthly()}, VelaProUpsellViewController::Variant::comparisonPaywall,
                                            Referrer{"Home"}, Entitlement::velaPRO, true);
    other->view();
    host.setLanguage("de");
    host.entry->present(other, false);
    host.bed.settle();

    EXPECT_THAT(host.texts(), Contains("de Endless premium templates, updated daily."));
}

TEST_F(LanguageChange, MayComeFromInsideACallOfTheDelegate) {
    Host host("en");
    host.delegate->duringCall = [](VelaProUpsellViewController&) { Locale::setCurrent(Locale("de")); };

    host.tap("subscribe");

    EXPECT_EQ(find(host.tree(), "subscribe").label, "de Start Your Free Trial");
}

TEST_F(LanguageChange, KeepsWhatTheUserDid) {
    Host host("en");
    host.tap("plan.pro.monthly");
    host.bed.runUntil(7.5);
    ASSERT_EQ(find(host.tree(), "carousel.pageControl").value, "page 2 of 4");

    host.setLanguage("de");
    host.bed.settle();

    EXPECT_EQ(find(host.tree(), "carousel.pageControl").value, "de page 2 of 4");
    EXPECT_THAT(host.texts(), Contains("de Thousands of photos, videos, graphics and fonts."));
    EXPECT_EQ(find(host.tree(), "subscribe").label, "de Subscribe Now");
    host.bed.runUntil(10);
    EXPECT_EQ(find(host.tree(), "carousel.pageControl").value, "de page 3 of 4");
}

TEST_F(LanguageChange, KeepsAFingerThatIsOnTheCloseButton) {
    Host host("en");
    host.open(Shown::comparison);
    const geometry::Point location = find(host.tree(), "comparison.close").frame.center();
    host.window->touch({host::TouchPhase::began, location, host.bed.now_s()});

    host.setLanguage("de");
    host.bed.settle();
    host.window->touch({host::TouchPhase::ended, location, host.bed.now_s()});
    host.bed.runFor(1);

    EXPECT_TRUE(has(host.tree(), "subscribe"));
}

TEST_F(LanguageChange, IsNoneForTheSameLanguageAgain) {
    Host host("de");
    host.bed.runUntil(2);
    graphics::DisplayList list;
    host.window->paint(list);
    bool isAnnounced = false;
    host.window->setNeedsDisplayHandler([&] { isAnnounced = true; });

    Locale::setCurrent(Locale("de"));
    Bundle::setMain(folder.path());
    host.bed.settle();

    EXPECT_FALSE(isAnnounced);
}

} // namespace
} // namespace proupsells::tests
