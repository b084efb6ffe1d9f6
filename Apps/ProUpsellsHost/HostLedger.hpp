// The host's side of every conversation: delegate, tracker and presentation observer, each of which only writes down what it is
// told.
#pragma once

#include <memory>

#include "Apps/ProUpsellsHost/EventLog.hpp"
#include "Platform/UIKit/Controllers/PresentationObserver.hpp"
#include "ProUpsells/ProUpsellEventTracker.hpp"
#include "ProUpsells/VelaProUpsellViewControllerDelegate.hpp"

namespace proupsells::hostprogram {

class LedgerDelegate final : public proupsells::VelaProUpsellViewControllerDelegate {
public:
    explicit LedgerDelegate(std::shared_ptr<EventLog> log) : m_log(std::move(log)) {}

    void proUpsellViewControllerDidContinueWith(proupsells::VelaProUpsellViewController&,
                                                const proupsells::SubscriptionOption& option) override;
    void proUpsellViewControllerDidTapRestore(proupsells::VelaProUpsellViewController&) override;
    void proUpsellViewControllerDidTapPrivacyPolicy(proupsells::VelaProUpsellViewController&) override;
    void proUpsellViewControllerDidTapTermsOfService(proupsells::VelaProUpsellViewController&) override;

private:
    std::shared_ptr<EventLog> m_log;
};

class LedgerTracker final : public proupsells::ProUpsellEventTracker {
public:
    explicit LedgerTracker(std::shared_ptr<EventLog> log) : m_log(std::move(log)) {}

    void trackUpsellViewed(const proupsells::Referrer&, const std::string& screenTitle, const std::string& entitlement) override;
    void trackSubscriptionOptionSelected(const proupsells::SubscriptionOption&, const proupsells::Referrer&,
                                         const std::string& screenTitle) override;
    void trackPurchaseTapped(const proupsells::SubscriptionOption&, const proupsells::Referrer&, const std::string& screenTitle,
                             const std::string& entitlement) override;
    void trackReservedEvent() override;
    void trackUpsellDismissed(const proupsells::Referrer&, const std::string& screenTitle, const std::string& entitlement) override;
    void trackRestoreTapped(const proupsells::Referrer&, const std::string& screenTitle) override;
    void trackPrivacyPolicyTapped(const proupsells::Referrer&, const std::string& screenTitle) override;
    void trackTermsOfServiceTapped(const proupsells::Referrer&, const std::string& screenTitle) override;
    void trackComparePlansTapped(const proupsells::Referrer&, const std::string& screenTitle) override;
    void trackChoosePlanTapped(const proupsells::Referrer&, const std::string& screenTitle,
                               const std::string& entitlement) override;

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
