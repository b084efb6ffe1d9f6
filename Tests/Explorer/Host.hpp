// A host that writes down every call it gets, and may do something inside one.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "ProUpsells/VelaProUpsellViewController.hpp"
#include "Tests/ProUpsells/Ledger.hpp"

namespace proupsells::explorer {

// A delegate that is also told of the end.
class HostDelegate final : public VelaProUpsellViewControllerDelegate {
public:
    using Write = std::function<void(const std::string& line)>;
    explicit HostDelegate(Write write) : m_write(std::move(write)) {}

    void proUpsellViewControllerDidContinueWith(VelaProUpsellViewController&, const SubscriptionOption& option) override {
        m_write("delegate.didContinueWith(" + option.SKU() + ")");
    }
    void proUpsellViewControllerDidTapRestore(VelaProUpsellViewController&) override { m_write("delegate.didTapRestore()"); }
    void proUpsellViewControllerDidTapPrivacyPolicy(VelaProUpsellViewController&) override {
        m_write("delegate.didTapPrivacyPolicy()");
    }
    void proUpsellViewControllerDidTapTermsOfService(VelaProUpsellViewController&) override {
        m_write("delegate.didTapTermsOfService()");
    }
    void proUpsellViewControllerDidClose(VelaProUpsellViewController&, ClosingReason reason) override {
        static constexpr const char* reasons[] = {"purchased", "cancelled", "dismissed"};
        m_write(std::string("delegate.didClose(") + reasons[std::size_t(reason)] + ")");
    }

private:
    Write m_write;
};

} // namespace proupsells::explorer
