#include "Ours/Host.hpp"

namespace peers::ours {

using namespace proupsells;

namespace {

std::vector<SubscriptionOption> plans() {
    using Type = SubscriptionOption::SubscriptionType;
    return {SubscriptionOption{"pro.yearly", Type{Type::Yearly{"$99.99", "$8.33", std::nullopt, "1 week"}}, true},
            SubscriptionOption{"pro.monthly", Type{Type::Monthly{"$14.99"}}, false}};
}

constexpr int visits = 5;
const Referrer referrer{"Home", visits};

} // namespace

Host::Host(std::shared_ptr<runloop::Clock> clock)
    : m_loop(std::move(clock)), m_services({.textShaper = std::make_shared<rasterbackend::RasterTextShaper>(),
                                            .imageDecoder = std::make_shared<rasterbackend::RasterImageDecoder>(),
                                            .localeServices = std::make_shared<icubackend::IcuLocaleServices>()}),
      m_window(uikit::UIWindow::create(screenSize, safeArea)) {
    m_window->setRootViewController(std::make_shared<uikit::UIViewController>());
}

void Host::tap(geometry::Point place) {
    m_window->touch({proupsells::host::TouchPhase::began, place, m_loop.now_s()});
    m_window->touch({proupsells::host::TouchPhase::ended, place, m_loop.now_s()});
}

accessibility::SemanticNode Host::part(std::string_view identifier) {
    const accessibility::SemanticNode screen = m_window->semanticTree();
    const accessibility::SemanticNode* found = accessibility::findByIdentifier(screen, identifier);
    if (!found) fail("the screen has no " + std::string(identifier));
    return *found;
}

std::shared_ptr<uikit::UIViewController> makePaywall() {
    return VelaProUpsellViewController::create(plans(), VelaProUpsellViewController::Variant::comparisonPaywall, referrer,
                                               Entitlement::velaPRO, true);
}

std::shared_ptr<uikit::UIViewController> makeStorePage() {
    return VelaProStorePageViewController::create(plans(), referrer, Entitlement::velaPRO);
}

double largestOffset(const accessibility::SemanticNode& screen) {
    double offset = 0;
    if (screen.scroll) offset = screen.scroll->contentSize.height + screen.scroll->contentInset.bottom - screen.frame.size.height;
    for (const accessibility::SemanticNode& child : screen.children) offset = std::max(offset, largestOffset(child));
    return offset;
}

} // namespace peers::ours
