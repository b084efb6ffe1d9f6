// The real paywall in a window without a display, presented and at rest.
#pragma once

#include <optional>

#include "Platform/Hosting/UIHostingController.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"
#include "ProUpsells/UpsellViewController.hpp"
#include "ProUpsells/VelaProUpsellViewController.hpp"

namespace proupsells::benchmarks {

inline std::vector<proupsells::SubscriptionOption> twoPlans() {
    using proupsells::SubscriptionOption;
    using Type = SubscriptionOption::SubscriptionType;
    return {SubscriptionOption{"pro.yearly", Type{Type::Yearly{"$99.99", "$8.33", std::nullopt, "1 week"}}, false},
            SubscriptionOption{"pro.monthly", Type{Type::Monthly{"$14.99", std::nullopt, std::nullopt}}, false}};
}

class PaywallWindow {
public:
    PaywallWindow() : m_window(uikit::UIWindow::create({375, 800}, {0, 0, 34, 0})) {
        m_window->setRootViewController(std::make_shared<uikit::UIViewController>());
        m_entry = proupsells::VelaProUpsellViewController::create(
            twoPlans(), proupsells::VelaProUpsellViewController::Variant::comparisonPaywall, "Benchmark",
            proupsells::Entitlement::velaPRO, true);
        m_window->rootViewController()->present(m_entry, false);
        settle();
    }
    ~PaywallWindow() { m_window->setRootViewController(nullptr); }

    void settle() { runloop::MainRunLoop::main().settle(); }

    // Announces a change that changes nothing: the root's body is evaluated again.
    void announce() {
        paywall()->upsellViewModel()->objectWillChange.send({});
        settle();
    }

    // Evaluates every body, measures and lays out everything again; texts stay shaped.
    void dropCaches() {
        const auto hosting = std::dynamic_pointer_cast<hosting::UIHostingController>(paywall()->children().front());
        hosting->host().dropCaches();
        settle();
    }

    // Picks the other plan.
    void tapOtherPlan() {
        constexpr double yearly_y = 380, monthly_y = 490;
        m_isMonthly = !m_isMonthly;
        const geometry::Point at{100, m_isMonthly ? monthly_y : yearly_y};
        const double now_s = runloop::MainRunLoop::main().now_s();
        m_window->touch({host::TouchPhase::began, at, now_s});
        m_window->touch({host::TouchPhase::ended, at, now_s});
        settle();
    }

    const graphics::DisplayList& paint() {
        m_window->paint(m_list);
        return m_list;
    }

private:
    std::shared_ptr<proupsells::UpsellViewController> paywall() const {
        return std::dynamic_pointer_cast<proupsells::UpsellViewController>(m_entry->children().front());
    }

    std::shared_ptr<uikit::UIWindow> m_window;
    std::shared_ptr<proupsells::VelaProUpsellViewController> m_entry;
    graphics::DisplayList m_list;
    bool m_isMonthly = false;
};

} // namespace proupsells::benchmarks
