// The host's delegate, tracker and presentation observer. Each of them only writes down what it is told.
#pragma once

#include <memory>

#include "Apps/ProUpsellsHost/EventLog.hpp"
#include "Platform/UIKit/Controllers/PresentationObserver.hpp"
#include "ProUpsells/ProUpsellEventTracker.hpp"
#include "ProUpsells/VelaProUpsellViewControllerDelegate.hpp"

namespace proupsells::hostprogram {

class LedgerDelegate final : public VelaProUpsellViewControllerDelegate {
public:
    explicit LedgerDelegate(std::shared_ptr<EventLog> log) : m_log(std::move(log)) {}

    void proUpsellViewControllerDidContinueWith(VelaProUpsellViewController&, const SubscriptionOption& option) override;
    void proUpsellViewControllerDidTapRestore(VelaProUpsellViewController&) override;
    void proUpsellViewControllerDidTapPrivacyPolicy(VelaProUpsellViewController&) override;
    void proUpsellViewControllerDidTapTermsOfService(VelaProUpsellViewController&) override;

private:
    std::shared_ptr<EventLog> m_log;
};

class LedgerTracker final : public ProUpsellEventTracker {
public:
    explicit LedgerTracker(std::shared_ptr<EventLog> log) : m_log(std::move(log)) {}

    void trackUpsellViewed(const Referrer&, const std::string& screenTitle, const std::string& entitlement) override;
    void trackSubscriptionOptionSelected(const SubscriptionOption&, const Referrer&, const std::string& screenTitle) override;
    void trackPurchaseTapped(const SubscriptionOption&, const Referrer&, const std::string& screenTitle,
                             const std::string& entitlement) override;
    void trackReservedEvent() override;
    void trackUpsellDismissed(const Referrer&, const std::string& screenTitle, const std::string& entitlement) override;
    void trackRestoreTapped(const Referrer&, const std::string& screenTitle) override;
    void trackPrivacyPolicyTapped(const Referrer&, const std::string& screenTitle) override;
    void trackTermsOfServiceTapped(const Referrer&, const std::string& screenTitle) override;
    void trackComparePlansTapped(const Referrer&, const std::string& screenTitle) override;
    void trackChoosePlanTapped(const Referrer&, const std::string& screenTitle, const std::string& entitlement) override;

private:
    std::shared_ptr<EventLog> m_log;
};

class LedgerObserver final : public uikit::PresentationObserver {
public:
    explicit LedgerObserver(std::shared_ptr<EventLog> log) : m_log(std::move(log)) {}

    void willPresent(uikit::UIViewController&, uikit::UIViewController& content, uikit::UIModalPresentationStyle,
                     geometry::Size) override;
    void willDismiss(uikit::UIViewController&, uikit::UIViewController& content) override;

private:
    std::shared_ptr<EventLog> m_log;
};

} // namespace proupsells::hostprogram
