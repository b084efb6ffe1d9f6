// Whether a login follows is carried for the host, and changes nothing here.
#include <utility>

#include "ProUpsells/UpsellViewController.hpp"
#include "ProUpsells/VelaProUpsellViewController.hpp"
#include "Tests/ProUpsells/StoreScreen.hpp"

namespace proupsells::tests {

namespace {

class Login : public StoreTest {
protected:
    static std::shared_ptr<VelaProUpsellViewController> makeEntry(bool showsLogin) {
        return VelaProUpsellViewController::create(twoPlans(), VelaProUpsellViewController::Variant::comparisonPaywall,
                                                   Referrer{"Home"}, Entitlement::velaPRO, showsLogin);
    }
};

} // namespace

TEST_F(Login, IsStoredAsTheHostHasSetIt) {
    for (const bool showsLogin : {true, false}) {
        const auto entry = makeEntry(showsLogin);
        EXPECT_EQ(entry->showLoginOnSuccess(), showsLogin);

        entry->setShowLoginOnSuccess(!showsLogin);
        EXPECT_EQ(entry->showLoginOnSuccess(), !showsLogin);
        (void)entry->view();
        EXPECT_EQ(entry->showLoginOnSuccess(), !showsLogin);
    }
}

TEST_F(Login, ChangesNothingThatIsDone) {
    using TapEvent = UpsellViewModel::TapEvent;
    Ledger calls;
    const auto tracker = std::make_shared<LedgerTracker>(calls);
    const auto delegate = std::make_shared<LedgerDelegate>(calls);
    show(std::make_shared<uikit::UIViewController>());
    std::vector<Ledger> ledgers;
    for (const bool showsLogin : {true, false}) {
        const auto entry = makeEntry(showsLogin);
        entry->setTracker(tracker);
        entry->setDelegate(delegate);
        window->rootViewController()->present(entry, false);
        bed.settle();
        const auto model = dynamic_cast<UpsellViewController&>(*entry->children().front()).upsellViewModel();
        for (const TapEvent& event : {TapEvent{TapEvent::Purchase{yearly()}}, TapEvent{TapEvent::RestorePurchases{}},
                                      TapEvent{TapEvent::PrivacyPolicy{}}, TapEvent{TapEvent::TermsOfService{}}})
            model->tapEventOccurred.send(event);
        bed.runFor(1);
        EXPECT_EQ(window->frontMostViewController(), entry.get());
        model->tapEventOccurred.send({TapEvent::Cancel{}});
        bed.runFor(1);
        ledgers.push_back(std::exchange(calls, {}));
    }

    EXPECT_EQ(ledgers[0], ledgers[1]);
    EXPECT_EQ(ledgers[0].size(), 11u);
}

} // namespace proupsells::tests
