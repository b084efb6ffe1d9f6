// The paywall as a QML type.
#pragma once

#include <QString>
#include <QVariantList>

#include "Backends/QtQuick/ControllerItem.hpp"
#include "Platform/System/Compiler.hpp"
#include "ProUpsells/VelaProUpsellViewController.hpp"

namespace proupsells::qtquick {

// `import ProUpsells` after qtquick::install():
//
//     Paywall {
//         options: [
//             { sku: "pro.yearly", period: "yearly", price: "$99.99", monthlyPrice: "$8.33", trial: "1 week" },
//             { sku: "pro.monthly", period: "monthly", price: "$14.99" }
//         ]
//         onPurchaseRequested: sku => shop.buy(sku)
//         onClosed: reason => loader.active = false
//     }
//
// An option has a `sku`, a `period` ("monthly", "yearly" or "lifetime") and a `price`; a yearly one also a `monthlyPrice`. A
// `trial` is the length of the free trial as a text, `introductoryPrice` its price, `hasUsedFreeTrial` says that the person has had
// it. An option that lacks something costs one log line and is left out.
class PROUPSELLS_EXPORT PaywallItem : public ControllerItem {
    Q_OBJECT
    // The plans, as above, in the order in which they are given.
    Q_PROPERTY(QVariantList options READ options WRITE setOptions NOTIFY optionsChanged)
    // What promotional prices are compared with; empty for none.
    Q_PROPERTY(QString annualComparisonPrice READ annualComparisonPrice WRITE setAnnualComparisonPrice NOTIFY pricesChanged)
    Q_PROPERTY(QString monthlyComparisonPrice READ monthlyComparisonPrice WRITE setMonthlyComparisonPrice NOTIFY pricesChanged)
    // Where the person came from, for the tracker. To be set before the paywall is shown.
    Q_PROPERTY(QString referrer READ referrer WRITE setReferrer NOTIFY referrerChanged)
    // Whether the paywall is there. It closes by itself; setting it again opens a new one.
    Q_PROPERTY(bool open READ isOpen WRITE setOpen NOTIFY openChanged)

public:
    // Why the paywall has closed; see proupsells::ClosingReason.
    // NOLINTNEXTLINE(readability-identifier-naming): QML wants values that begin with a capital.
    enum class Reason { Purchased, Cancelled, Dismissed };
    Q_ENUM(Reason)

    // Open at first, as soon as QML has set every property.
    explicit PaywallItem(QQuickItem* parent = nullptr);
    ~PaywallItem() override;

    // The property, as it was set.
    const QVariantList& options() const { return m_options; }
    // Sets the property, also while the paywall is there, by the rules of VelaProUpsellViewController::setOptions.
    void setOptions(const QVariantList& options);

    // The property of the same name, for C++.
    const QString& annualComparisonPrice() const { return m_annualPrice; }
    void setAnnualComparisonPrice(const QString& price);
    const QString& monthlyComparisonPrice() const { return m_monthlyPrice; }
    void setMonthlyComparisonPrice(const QString& price);
    const QString& referrer() const { return m_referrer; }
    void setReferrer(const QString& referrer);
    bool isOpen() const { return m_paywall != nullptr; }
    void setOpen(bool opens);

    // For hosts that mix QML and C++. Null while it is not open.
    const std::shared_ptr<VelaProUpsellViewController>& paywall() const { return m_paywall; }
    // Held weakly, and passed on to each paywall that is opened from now on.
    void setTracker(std::weak_ptr<ProUpsellEventTracker> tracker);

signals:
    // A property has become another one.
    void optionsChanged();
    void pricesChanged();
    void referrerChanged();
    void openChanged();

    // The person has continued with a plan: the host buys it, then sets `open` to false.
    void purchaseRequested(const QString& sku);
    // The person has tapped the button of that name; the paywall stays.
    void restoreRequested();
    void privacyPolicyRequested();
    void termsOfServiceRequested();
    // The paywall has gone, after its last animation.
    void closed(Reason reason);

protected:
    // Called by QML.
    void componentComplete() override;

private:
    class Delegate;
    void makePaywall();
    void passOnPrices();

    QVariantList m_options;
    QString m_annualPrice, m_monthlyPrice, m_referrer;
    bool m_opensWhenComplete = true;
    std::weak_ptr<ProUpsellEventTracker> m_tracker;
    std::shared_ptr<Delegate> m_delegate;
    std::shared_ptr<VelaProUpsellViewController> m_paywall;
};

} // namespace proupsells::qtquick
