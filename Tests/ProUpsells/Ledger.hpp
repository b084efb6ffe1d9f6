// A host that writes down every call it gets.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "Platform/UIKit/Controllers/PresentationObserver.hpp"
#include "ProUpsells/ProUpsellEventTracker.hpp"
#include "ProUpsells/VelaProUpsellViewControllerDelegate.hpp"

namespace proupsells::tests {

// Calls in the order in which they came, as "operation(arguments)".
using Ledger = std::vector<std::string>;

class LedgerTracker : public ProUpsellEventTracker {
public:
    explicit LedgerTracker(Ledger& ledger) : m_ledger(ledger) {}

    // What it does inside each of its calls.
    std::function<void()> duringCall;

    void trackUpsellViewed(const Referrer& referrer, const std::string& title, const std::string& entitlement) override {
        write("viewed", {referrer.description(), title, entitlement});
    }
    void trackSubscriptionOptionSelected(const SubscriptionOption& option, const Referrer& referrer,
                                         const std::string& title) override {
        write("optionSelected", {option.SKU(), referrer.description(), title});
    }
    void trackPurchaseTapped(const SubscriptionOption& option, const Referrer& referrer, const std::string& title,
                             const std::string& entitlement) override {
        write("purchaseTapped", {option.SKU(), referrer.description(), title, entitlement});
    }
    void trackReservedEvent() override { write("reserved", {}); }
    void trackUpsellDismissed(const Referrer& referrer, const std::string& title, const std::string& entitlement) override {
        write("dismissed", {referrer.description(), title, entitlement});
    }
    void trackRestoreTapped(const Referrer& referrer, const std::string& title) override {
        write("restoreTapped", {referrer.description(), title});
    }
    void trackPrivacyPolicyTapped(const Referrer& referrer, const std::string& title) override {
        write("privacyPolicyTapped", {referrer.description(), title});
    }
    void trackTermsOfServiceTapped(const Referrer& referrer, const std::string& title) override {
        write("termsOfServiceTapped", {referrer.description(), title});
    }
    void trackComparePlansTapped(const Referrer& referrer, const std::string& title) override {
        write("comparePlansTapped", {referrer.description(), title});
    }
    void trackChoosePlanTapped(const Referrer& referrer, const std::string& title, const std::string& entitlement) override {
        write("choosePlanTapped", {referrer.description(), title, entitlement});
    }

private:
    void write(const std::string& operation, const std::vector<std::string>& arguments) {
        std::string line = operation + "(";
        for (std::size_t index = 0; index < arguments.size(); ++index) line += (index ? ", " : "") + arguments[index];
        m_ledger.push_back(line + ")");
        if (duringCall) duringCall();
    }
    Ledger& m_ledger;
};

class LedgerDelegate final : public VelaProUpsellViewControllerDelegate {
public:
    explicit LedgerDelegate(Ledger& ledger) : m_ledger(ledger) {}

    // What it does inside each of its calls.
    std::function<void(VelaProUpsellViewController&)> duringCall;

    void proUpsellViewControllerDidContinueWith(VelaProUpsellViewController& sender, const SubscriptionOption& option) override {
        write("delegate.didContinueWith(" + option.SKU() + ")", sender);
    }
    void proUpsellViewControllerDidTapRestore(VelaProUpsellViewController& sender) override {
        write("delegate.didTapRestore()", sender);
    }
    void proUpsellViewControllerDidTapPrivacyPolicy(VelaProUpsellViewController& sender) override {
        write("delegate.didTapPrivacyPolicy()", sender);
    }
    void proUpsellViewControllerDidTapTermsOfService(VelaProUpsellViewController& sender) override {
        write("delegate.didTapTermsOfService()", sender);
    }

private:
    void write(const std::string& line, VelaProUpsellViewController& sender) {
        m_ledger.push_back(line);
        if (duringCall) duringCall(sender);
    }
    Ledger& m_ledger;
};

// Presentations among the calls of the ledger.
class LedgerObserver final : public uikit::PresentationObserver {
public:
    explicit LedgerObserver(Ledger& ledger) : m_ledger(ledger) {}
    void willPresent(uikit::UIViewController&, uikit::UIViewController& content, uikit::UIModalPresentationStyle,
                     geometry::Size) override {
        m_ledger.push_back("present " + std::string(content.typeName()));
    }
    void willDismiss(uikit::UIViewController&, uikit::UIViewController& content) override {
        m_ledger.push_back("dismiss " + std::string(content.typeName()));
    }

private:
    Ledger& m_ledger;
};

} // namespace proupsells::tests
