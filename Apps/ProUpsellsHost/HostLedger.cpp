#include "Apps/ProUpsellsHost/HostLedger.hpp"

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/Numbers.hpp"
#include "Apps/ProUpsellsHost/Offers.hpp"

namespace proupsells::hostprogram {

void LedgerDelegate::proUpsellViewControllerDidContinueWith(VelaProUpsellViewController&, const SubscriptionOption& option) {
    m_log->write("delegate", {{"operation", "proUpsellViewController(_:didContinueWith:)"}, {"option", toJson(option)}});
}

void LedgerDelegate::proUpsellViewControllerDidTapRestore(VelaProUpsellViewController&) {
    m_log->write("delegate", {{"operation", "proUpsellViewControllerDidTapRestore(_:)"}});
}

void LedgerDelegate::proUpsellViewControllerDidTapPrivacyPolicy(VelaProUpsellViewController&) {
    m_log->write("delegate", {{"operation", "proUpsellViewControllerDidTapPrivacyPolicy(_:)"}});
}

void LedgerDelegate::proUpsellViewControllerDidTapTermsOfService(VelaProUpsellViewController&) {
    m_log->write("delegate", {{"operation", "proUpsellViewControllerDidTapTermsOfService(_:)"}});
}

namespace {

Json tracked(const char* operation, const Referrer& referrer, const std::string& screenTitle) {
    return {{"operation", operation}, {"referrer", referrer.description()}, {"screenTitle", screenTitle}};
}

Json tracked(const char* operation, const Referrer& referrer, const std::string& screenTitle, const std::string& entitlement) {
    Json result = tracked(operation, referrer, screenTitle);
    result["entitlement"] = entitlement;
    return result;
}

} // namespace

void LedgerTracker::trackUpsellViewed(const Referrer& referrer, const std::string& screenTitle, const std::string& entitlement) {
    m_log->write("tracker", tracked("trackUpsellViewed", referrer, screenTitle, entitlement));
}

void LedgerTracker::trackSubscriptionOptionSelected(const SubscriptionOption& option, const Referrer& referrer,
                                                    const std::string& screenTitle) {
    m_log->write("tracker", {{"operation", "trackSubscriptionOptionSelected"},
                             {"option", toJson(option)},
                             {"referrer", referrer.description()},
                             {"screenTitle", screenTitle}});
}

void LedgerTracker::trackPurchaseTapped(const SubscriptionOption& option, const Referrer& referrer, const std::string& screenTitle,
                                        const std::string& entitlement) {
    m_log->write("tracker", {{"operation", "trackPurchaseTapped"},
                             {"option", toJson(option)},
                             {"referrer", referrer.description()},
                             {"screenTitle", screenTitle},
                             {"entitlement", entitlement}});
}

void LedgerTracker::trackReservedEvent() { m_log->write("tracker", {{"operation", "trackReservedEvent"}}); }

void LedgerTracker::trackUpsellDismissed(const Referrer& referrer, const std::string& screenTitle, const std::string& entitlement) {
    m_log->write("tracker", tracked("trackUpsellDismissed", referrer, screenTitle, entitlement));
}

void LedgerTracker::trackRestoreTapped(const Referrer& referrer, const std::string& screenTitle) {
    m_log->write("tracker", tracked("trackRestoreTapped", referrer, screenTitle));
}

void LedgerTracker::trackPrivacyPolicyTapped(const Referrer& referrer, const std::string& screenTitle) {
    m_log->write("tracker", tracked("trackPrivacyPolicyTapped", referrer, screenTitle));
}

void LedgerTracker::trackTermsOfServiceTapped(const Referrer& referrer, const std::string& screenTitle) {
    m_log->write("tracker", tracked("trackTermsOfServiceTapped", referrer, screenTitle));
}

void LedgerTracker::trackComparePlansTapped(const Referrer& referrer, const std::string& screenTitle) {
    m_log->write("tracker", tracked("trackComparePlansTapped", referrer, screenTitle));
}

void LedgerTracker::trackChoosePlanTapped(const Referrer& referrer, const std::string& screenTitle,
                                          const std::string& entitlement) {
    m_log->write("tracker", tracked("trackChoosePlanTapped", referrer, screenTitle, entitlement));
}

void LedgerObserver::willPresent(uikit::UIViewController& controller, uikit::UIViewController& content,
                                 uikit::UIModalPresentationStyle style, geometry::Size size) {
    m_log->write("present", {{"controller", controller.typeName()},
                             {"content", content.typeName()},
                             {"style", uikit::presentationStyleName(style)},
                             {"size", toJson(size)}});
}

void LedgerObserver::willDismiss(uikit::UIViewController& controller, uikit::UIViewController& content) {
    m_log->write("dismiss", {{"controller", controller.typeName()}, {"content", content.typeName()}});
}

} // namespace proupsells::hostprogram
