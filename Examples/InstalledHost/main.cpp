// Embedding the paywall in a test: no window, a virtual clock, and a tap that ends in a purchase.

#include <ProUpsells/Headless.hpp>
#include <ProUpsells/ProUpsells.hpp>
#include <iostream>

using namespace proupsells;

namespace {

class Purchases final : public VelaProUpsellViewControllerDelegate {
public:
    void proUpsellViewControllerDidContinueWith(VelaProUpsellViewController&, const SubscriptionOption& option) override {
        bought = option.SKU();
    }
    void proUpsellViewControllerDidTapRestore(VelaProUpsellViewController&) override {}
    void proUpsellViewControllerDidTapPrivacyPolicy(VelaProUpsellViewController&) override {}
    void proUpsellViewControllerDidTapTermsOfService(VelaProUpsellViewController&) override {}

    std::string bought;
};

} // namespace

int main() {
    headless::TestBed bed;
    const auto window = uikit::UIWindow::create({375, 800});
    window->setRootViewController(std::make_shared<uikit::UIViewController>());

    const auto purchases = std::make_shared<Purchases>();
    const auto paywall = VelaProUpsellViewController::create(
        {SubscriptionOption{"pro.monthly", SubscriptionOption::SubscriptionType::Monthly{"$14.99", std::nullopt, std::nullopt},
                            false}},
        VelaProUpsellViewController::Variant::comparisonPaywall, Referrer{"Home", 5}, Entitlement::velaPRO, true);
    paywall->setDelegate(purchases);
    window->rootViewController()->present(paywall, true);
    bed.runFor(1);

    const accessibility::SemanticNode screen = window->semanticTree();
    const accessibility::SemanticNode* subscribe = accessibility::findByIdentifier(screen, "subscribe");
    if (!subscribe || !subscribe->activate) return 1;
    subscribe->activate();
    bed.settle();

    std::cout << "bought " << purchases->bought << '\n';
    return purchases->bought == "pro.monthly" ? 0 : 1;
}
