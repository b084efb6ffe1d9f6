// The paywall in a test: no window, a clock that stands still until it is told to move, and a tap that ends in a purchase.

#include <ProUpsells/Headless.hpp>

#include "Shop/Shop.hpp"

using namespace proupsells;

int main() {
    headless::TestBed bed;
    const auto window = uikit::UIWindow::create({375, 800});
    window->setRootViewController(std::make_shared<uikit::UIViewController>());
    const auto purchases = std::make_shared<shop::Purchases>();
    window->rootViewController()->present(shop::newPaywall(purchases), true);
    bed.runFor(1);

    const accessibility::SemanticNode screen = window->semanticTree();
    const accessibility::SemanticNode* const subscribe = accessibility::findByIdentifier(screen, "subscribe");
    if (!subscribe) return 1;
    subscribe->activate();
    bed.runFor(1);
    return window->rootViewController()->presentedViewController() ? 1 : 0;
}
