#include "Backends/QtQuick/PaywallItem.hpp"

#include <QPointer>
#include <utility>

#include "Backends/QtQuick/OptionReader.hpp"

namespace proupsells::qtquick {

namespace {

std::optional<std::string> priceOf(const QString& text) {
    return text.isEmpty() ? std::nullopt : std::optional(text.toStdString());
}

} // namespace

// Turns the module's calls into signals.
class PaywallItem::Delegate final : public VelaProUpsellViewControllerDelegate {
public:
    explicit Delegate(PaywallItem& item) : m_item(item) {}

    void proUpsellViewControllerDidContinueWith(VelaProUpsellViewController&, const SubscriptionOption& option) override {
        emit m_item.purchaseRequested(QString::fromStdString(option.SKU()));
    }
    void proUpsellViewControllerDidTapRestore(VelaProUpsellViewController&) override { emit m_item.restoreRequested(); }
    void proUpsellViewControllerDidTapPrivacyPolicy(VelaProUpsellViewController&) override { emit m_item.privacyPolicyRequested(); }
    void proUpsellViewControllerDidTapTermsOfService(VelaProUpsellViewController&) override {
        emit m_item.termsOfServiceRequested();
    }
    void proUpsellViewControllerDidClose(VelaProUpsellViewController&, ClosingReason reason) override {
        emit m_item.closed(Reason(reason));
    }

private:
    PaywallItem& m_item;
};

PaywallItem::PaywallItem(QQuickItem* parent) : ControllerItem(parent), m_delegate(std::make_shared<Delegate>(*this)) {
    connect(this, &ControllerItem::dismissalRequested, this, [this] { setOpen(false); });
}

PaywallItem::~PaywallItem() = default;

void PaywallItem::componentComplete() {
    ControllerItem::componentComplete();
    if (m_opensWhenComplete) makePaywall();
}

void PaywallItem::makePaywall() {
    m_paywall =
        VelaProUpsellViewController::create(readOptions(m_options), VelaProUpsellViewController::Variant::comparisonPaywall,
                                            Referrer{m_referrer.toStdString()}, Entitlement::velaPRO, /*showLoginOnSuccess*/ false);
    m_paywall->setDelegate(m_delegate);
    m_paywall->setTracker(m_tracker);
    passOnPrices();
    setController(m_paywall);
    emit openChanged();
}

void PaywallItem::setOpen(bool opens) {
    m_opensWhenComplete = opens;
    if (opens == isOpen() || !isComponentComplete()) return;
    if (opens) return makePaywall();
    const auto leaving = std::exchange(m_paywall, nullptr);
    const QPointer<PaywallItem> self(this);
    setController(nullptr);
    if (self) emit openChanged();
}

void PaywallItem::setOptions(const QVariantList& options) {
    if (m_options == options) return;
    m_options = options;
    if (m_paywall) m_paywall->setOptions(readOptions(options));
    emit optionsChanged();
}

void PaywallItem::setAnnualComparisonPrice(const QString& price) {
    if (std::exchange(m_annualPrice, price) == price) return;
    passOnPrices();
    emit pricesChanged();
}

void PaywallItem::setMonthlyComparisonPrice(const QString& price) {
    if (std::exchange(m_monthlyPrice, price) == price) return;
    passOnPrices();
    emit pricesChanged();
}

void PaywallItem::passOnPrices() {
    if (!m_paywall) return;
    m_paywall->setAnnualSubscriptionPriceForComparisonWithPromotionalPrice(priceOf(m_annualPrice));
    m_paywall->setMonthlySubscriptionPriceForComparisonWithPromotionalPrice(priceOf(m_monthlyPrice));
}

void PaywallItem::setReferrer(const QString& referrer) {
    if (std::exchange(m_referrer, referrer) != referrer) emit referrerChanged();
}

void PaywallItem::setTracker(std::weak_ptr<ProUpsellEventTracker> tracker) {
    m_tracker = std::move(tracker);
    if (m_paywall) m_paywall->setTracker(m_tracker);
}

} // namespace proupsells::qtquick
