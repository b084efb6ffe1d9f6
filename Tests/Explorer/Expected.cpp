#include "Tests/Explorer/Expected.hpp"

#include <algorithm>
#include <utility>

namespace proupsells::explorer {

using Screen = ExpectedScreens::Screen;
using ScreenPointer = ExpectedScreens::ScreenPointer;

namespace {

const std::string referrer = "Home - elementIDint(5)";
const std::string paywallTitle = "ProUpsell Phase 2: with Comparison List and Carousel Sept24";
const std::string storeTitle = "Vela Pro Store Page";
const std::string entitlement = "VELA_PRO";

const std::string onPaywall = referrer + ", " + paywallTitle;
const std::string onPaywallWithEntitlement = onPaywall + ", " + entitlement;
const std::string onStore = referrer + ", " + storeTitle + ", " + entitlement;

// Yearly plans come first, the others keep their order, and what is bought for a lifetime is not shown.
std::vector<SubscriptionOption> shown(const std::vector<SubscriptionOption>& offered) {
    std::vector<SubscriptionOption> result;
    for (const SubscriptionOption& plan : offered)
        if (plan.isYearly()) result.push_back(plan);
    for (const SubscriptionOption& plan : offered)
        if (plan.isMonthly()) result.push_back(plan);
    return result;
}

bool offersTrial(const SubscriptionOption& plan) { return plan.introductoryPeriodLength().has_value() && !plan.hasUsedFreeTrial(); }

// Which screen has the control.
ExpectedScreens::Kind screenOf(const std::string& identifier) {
    if (identifier.starts_with("comparison.")) return ExpectedScreens::Kind::comparison;
    return identifier.starts_with("store.") ? ExpectedScreens::Kind::store : ExpectedScreens::Kind::paywall;
}

ScreenPointer newScreen(ExpectedScreens::Kind kind) {
    auto screen = std::make_shared<Screen>();
    screen->kind = kind;
    return screen;
}

} // namespace

Expected::Expected(const Setting& setting)
    : m_reaction(setting.reaction), m_isEmbedded(setting.isEmbedded), m_hasDelegate(setting.delegate != Party::absent),
      m_hasTracker(setting.tracker != Party::absent), m_isDelegateSet(m_hasDelegate), m_isTrackerSet(m_hasTracker),
      m_promotesYearly(setting.promotesYearly), m_promotesMonthly(setting.promotesMonthly) {
    connect();
    m_paywall->kind = Kind::paywall;
    offer(setting.offer);
    if (m_plans.empty()) m_logs.push_back("UpsellViewController - tried to init without monthly & yearly subscription option");
    if (m_isEmbedded) {
        m_root = m_paywall;
        m_screens.setRoot(m_paywall);
    } else {
        m_screens.setRoot(m_root);
        m_screens.present(m_root, m_paywall, true);
    }
    pass(1);
    if (setting.delegate == Party::released) act(Deed::releaseDelegate);
    if (setting.tracker == Party::released) act(Deed::releaseTracker);
}

void Expected::connect() {
    m_screens.told = [this](const std::string& line) { m_calls.push_back(line); };
    m_screens.logged = [this](const std::string& line) { m_logs.push_back(line); };
    m_screens.appeared = [this](const ScreenPointer& screen) {
        if (screen->kind == Kind::paywall) tellTracker("viewed", onPaywallWithEntitlement);
        if (screen->kind == Kind::store) tellStoreTracker("viewed");
    };
    m_screens.disappeared = [this](const ScreenPointer& screen) {
        if (screen->kind == Kind::paywall) tellDelegate("didClose", std::exchange(m_reason, "dismissed"));
    };
}

// --- The person ---

void Expected::press(const std::string& identifier) {
    const ScreenPointer front = m_screens.front();
    if (!front || m_screens.isTransitioning() || front->kind != screenOf(identifier)) return;
    m_lastPress = identifier;
    if (identifier == "close") return closePaywall();
    if (identifier == "subscribe") return subscribe();
    if (identifier == "comparePlans") {
        m_screens.present(m_paywall, newScreen(Kind::comparison), true);
        return tellTracker("comparePlansTapped", onPaywall);
    }
    if (identifier == "restorePurchases") {
        tellDelegate("didTapRestore");
        return tellTracker("restoreTapped", onPaywall);
    }
    if (identifier == "privacyPolicy") {
        tellDelegate("didTapPrivacyPolicy");
        return tellTracker("privacyPolicyTapped", onPaywall);
    }
    if (identifier == "termsOfService") {
        tellDelegate("didTapTermsOfService");
        return tellTracker("termsOfServiceTapped", onPaywall);
    }
    if (identifier.starts_with("plan.")) {
        const auto found =
            std::find_if(m_plans.begin(), m_plans.end(), [&](const auto& plan) { return "plan." + plan.SKU() == identifier; });
        m_chosen = found == m_plans.end() ? 0 : int(found - m_plans.begin());
    }
    if (identifier == "comparison.close" || identifier == "comparison.choosePlan") dismiss(front, true);
    if (identifier == "store.close") closeStore();
    if (identifier == "store.choosePlan") {
        tellStoreTracker("choosePlanTapped");
        dismiss(front, true);
    }
}

void Expected::escape() {
    const ScreenPointer front = m_screens.front();
    if (!front || m_screens.isTransitioning()) return;
    switch (front->kind) {
    case Kind::paywall: return press("close");
    case Kind::comparison: return press("comparison.close");
    case Kind::store: return press("store.close");
    default: return;
    }
}

void Expected::closePaywall() {
    m_reason = "cancelled";
    tellTracker("dismissed", onPaywallWithEntitlement);
    dismiss(m_paywall, true);
}

void Expected::closeStore() {
    const ScreenPointer store = m_screens.front();
    tellStoreTracker("dismissed");
    dismiss(store, true);
}

void Expected::subscribe() {
    if (m_plans.empty()) return;
    const std::string SKU = m_plans[std::size_t(m_chosen)].SKU();
    m_reason = "purchased";
    tellDelegate("didContinueWith", SKU);
    tellTracker("optionSelected", SKU + ", " + onPaywall);
    tellTracker("purchaseTapped", SKU + ", " + onPaywallWithEntitlement);
}

void Expected::pass(double duration_s) { m_screens.pass(duration_s); }

// A root is nobody's to dismiss but the host's, which this one does when it is asked.
void Expected::dismiss(const ScreenPointer& from, bool isAnimated) {
    if (m_screens.dismiss(from, isAnimated) || from != m_screens.root() || !m_isEmbedded) return;
    m_calls.push_back("root is to be dismissed");
    m_screens.setRoot(nullptr);
}

// --- The host ---

void Expected::act(Deed deed) {
    switch (deed) {
    case Deed::dismissAll:
        if (m_screens.root()) dismiss(m_screens.root(), true);
        return;
    case Deed::letGo: m_isHeld = false; return;
    case Deed::release:
        m_screens.setRoot(nullptr);
        m_isHeld = false;
        return;
    case Deed::releaseDelegate: m_hasDelegate = false; return;
    case Deed::releaseTracker: m_hasTracker = false; return;
    case Deed::tapAgain:
        if (!m_lastPress.empty()) press(std::string(m_lastPress));
        return;
    default:
        if (m_isHeld) actOnPaywall(deed);
    }
}

void Expected::actOnPaywall(Deed deed) {
    switch (deed) {
    case Deed::promoteYearly: m_promotesYearly = true; return;
    case Deed::promoteMonthly: m_promotesMonthly = true; return;
    case Deed::promoteNothing: m_promotesYearly = m_promotesMonthly = false; return;
    case Deed::present:
        if (!m_isEmbedded && m_screens.root()) m_screens.present(m_screens.root(), m_paywall, true);
        return;
    case Deed::presentOther: return m_screens.present(m_paywall, newScreen(Kind::other), true);
    case Deed::openStore: m_storeHasTracker = m_isTrackerSet; return m_screens.present(m_paywall, newScreen(Kind::store), true);
    case Deed::dismiss:
    case Deed::dismissAtOnce: return dismiss(m_paywall, deed == Deed::dismiss);
    case Deed::unsetParties: m_isDelegateSet = m_isTrackerSet = false; return;
    default: return offer(deed);
    }
}

void Expected::offer(Deed deed) {
    m_offer = nameOf(deed);
    m_plans = shown(plansOf(deed));
}

void Expected::tellDelegate(const std::string& call, const std::string& arguments) {
    if (m_isDelegateSet && m_hasDelegate) make("delegate." + call, arguments);
}

void Expected::tellTracker(const std::string& call, const std::string& arguments) {
    if (m_isTrackerSet && m_hasTracker) make(call, arguments);
}

void Expected::tellStoreTracker(const std::string& call) {
    if (m_storeHasTracker && m_hasTracker) make(call, onStore);
}

void Expected::make(const std::string& call, const std::string& arguments) {
    m_calls.push_back(call + "(" + arguments + ")");
    if (!m_reaction || m_reaction->call != call) return;
    if (m_reaction->isOfStore != (arguments == onStore)) return;
    const Deed deed = std::exchange(m_reaction, std::nullopt)->deed;
    act(deed);
}

// --- What is shown ---

bool Expected::stops() const { return !m_plans.empty() && std::size_t(m_chosen) >= m_plans.size(); }

std::optional<Expected::Kind> Expected::front() const {
    const ScreenPointer front = m_screens.front();
    return front ? std::optional(front->kind) : std::nullopt;
}

std::string Expected::formerPriceOf(const SubscriptionOption& plan) const {
    if (plan.isYearly()) return m_promotesYearly ? "$119.99" : "";
    return m_promotesMonthly ? "$19.99" : "";
}

std::string Expected::subscribeTitle() const {
    return !m_plans.empty() && offersTrial(m_plans[std::size_t(m_chosen)]) ? "Start Your Free Trial" : "Subscribe Now";
}

std::string Expected::disclaimer() const {
    if (m_plans.empty()) return "";
    const SubscriptionOption& plan = m_plans[std::size_t(m_chosen)];
    if (offersTrial(plan) && plan.isYearly())
        return "Cancel within 7 days, and you won\u2019t be charged. Payment will be made automatically after the trial ends.";
    if (offersTrial(plan))
        return *plan.introductoryPeriodLength() + " trial.\nPayment will be made automatically after the trial ends.";
    return (plan.isYearly() ? "Save 45%. " : "") + std::string("Payment will be made immediately.");
}

std::string Expected::state() const {
    std::string text = m_offer + " chosen " + std::to_string(m_chosen) + " reason " + m_reason;
    if (m_promotesYearly) text += " promotesYearly";
    if (m_promotesMonthly) text += " promotesMonthly";
    if (m_isDelegateSet && m_hasDelegate) text += " delegate";
    if (m_isTrackerSet && m_hasTracker) text += " tracker";
    if (m_isHeld) text += " held";
    if (m_storeHasTracker && front() == Kind::store) text += " storeTracker";
    if (m_reaction) text += " armed";
    if (m_screens.isTransitioning()) text += " moving";
    return text;
}

} // namespace proupsells::explorer
