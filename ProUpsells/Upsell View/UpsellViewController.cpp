#include "ProUpsells/UpsellViewController.hpp"

#include <algorithm>
#include <utility>

#include "Platform/Commons/DefaultLogger.hpp"
#include "Platform/Foundation/Bundle.hpp"
#include "Platform/Hosting/UIHostingController.hpp"
#include "Platform/RunLoop/MainActor.hpp"
#include "Platform/SwiftUI/Modifiers/EnvironmentModifiers.hpp"
#include "Platform/VelaUIKit/HostingControllers.hpp"
#include "Platform/VelaUIKit/VelaColors.hpp"
#include "ProUpsells/PreparedOptions.hpp"
#include "ProUpsells/Tell.hpp"
#include "ProUpsells/UnsupportedInitializer.hpp"
#include "ProUpsells/UpsellEnvironment.hpp"
#include "ProUpsells/UpsellView.hpp"

namespace proupsells {

using TapEvent = UpsellViewModel::TapEvent;

namespace {

// One handler for each kind of event.
template <class... Handlers>
struct Overloaded : Handlers... {
    using Handlers::operator()...;
};
template <class... Handlers>
Overloaded(Handlers...) -> Overloaded<Handlers...>;

std::function<swiftui::View()> paywall(const std::shared_ptr<UpsellViewModel>& model) {
    return [view = UpsellView{.model = model}, environment = std::make_shared<UpsellEnvironment>()]() -> swiftui::View {
        return UpsellView(view) | swiftui::environmentObject(environment);
    };
}

bool canBeSold(const SubscriptionOption& option) { return option.isYearly() || option.isMonthly(); }

} // namespace

std::shared_ptr<UpsellViewController> UpsellViewController::create(const std::vector<SubscriptionOption>& subscriptionOptions,
                                                                   Variant variant) {
    runloop::MainActor::assertIsolated("UpsellViewController::create");
    auto controller = std::make_shared<UpsellViewController>(Creation{}, variant);
    controller->start(subscriptionOptions);
    return controller;
}

std::shared_ptr<UpsellViewController> UpsellViewController::create(const foundation::Coder&) { stopAtInitializerFromArchive(); }

UpsellViewController::UpsellViewController(Creation, Variant variant) : m_variant(variant) {}

void UpsellViewController::start(const std::vector<SubscriptionOption>& subscriptionOptions) {
    if (std::none_of(subscriptionOptions.begin(), subscriptionOptions.end(), canBeSold))
        commons::DefaultLogger::shared().log(commons::DefaultLogger::errorSeverity,
                                             "UpsellViewController - tried to init without monthly & yearly subscription option",
                                             "init(subscriptionOptions:variant:)");
    m_upsellViewModel->options = preparedOptions(subscriptionOptions);
    m_upsellModelTapEventObserver =
        m_upsellViewModel->tapEventOccurred.sink([weakSelf = uikit::weakReference(*this)](const auto& event) {
            if (const auto self = weakSelf.lock()) self->handle(event);
        });
}

void UpsellViewController::handle(const TapEvent& event) {
    const auto forward = [this](auto operation, const auto&... arguments) { tell(m_delegate, operation, *this, arguments...); };
    std::visit(
        Overloaded{
            [&](const TapEvent::Purchase& purchase) { forward(&Delegate::upsellViewControllerDidContinueWith, purchase.option); },
            [&](const TapEvent::Cancel&) {
                forward(&Delegate::upsellViewControllerDidTapCancel);
                dismiss(true);
            },
            [&](const TapEvent::RestorePurchases&) { forward(&Delegate::upsellViewControllerDidTapRestoreButton); },
            [&](const TapEvent::WhatIsPro&) { forward(&Delegate::upsellViewControllerDidTapWhatIsProButton); },
            [&](const TapEvent::PrivacyPolicy&) { forward(&Delegate::upsellViewControllerDidTapPrivacyPolicyButton); },
            [&](const TapEvent::TermsOfService&) { forward(&Delegate::upsellViewControllerDidTapTermsOfServiceButton); },
            [&](const TapEvent::ComparePlans&) { forward(&Delegate::upsellViewControllerDidTapComparePlans); },
        },
        event.kind);
}

void UpsellViewController::updateOptions(const std::vector<SubscriptionOption>& options) {
    m_upsellViewModel->options = preparedOptions(options);
}

std::optional<std::string> UpsellViewController::annualSubscriptionPriceForComparisonWithPromotionalPrice() const {
    return m_upsellViewModel->annualSubscriptionPriceForComparisonWithPromotionalPrice.get();
}

void UpsellViewController::setAnnualSubscriptionPriceForComparisonWithPromotionalPrice(std::optional<std::string> price) {
    m_upsellViewModel->annualSubscriptionPriceForComparisonWithPromotionalPrice = std::move(price);
}

std::optional<std::string> UpsellViewController::monthlySubscriptionPriceForComparisonWithPromotionalPrice() const {
    return m_upsellViewModel->monthlySubscriptionPriceForComparisonWithPromotionalPrice.get();
}

void UpsellViewController::setMonthlySubscriptionPriceForComparisonWithPromotionalPrice(std::optional<std::string> price) {
    m_upsellViewModel->monthlySubscriptionPriceForComparisonWithPromotionalPrice = std::move(price);
}

void UpsellViewController::viewDidLoad() {
    view()->setBackgroundColor(velauikit::velaBackground);

    m_hostingController = hosting::UIHostingController::create(paywall(m_upsellViewModel));
    velauikit::addHostingController(*this, m_hostingController);
    m_hostingController->view()->setContentCompressionResistancePriority(uikit::layoutPriorityHigh, uikit::Axis::vertical);
    m_hostingController->view()->setBackgroundColor(velauikit::velaBackground);
}

// A view's carousel titles are in the language in which it was made. The states, such as the page, pass to the new view.
void UpsellViewController::languageDidChange() {
    if (m_hostingController) m_hostingController->setRootView(paywall(m_upsellViewModel));
}

bool UpsellViewController::accessibilityPerformEscape() {
    const auto self = uikit::strongReference(*this);
    m_upsellViewModel->tapEventOccurred.send({TapEvent::Cancel{}});
    return true;
}

std::string UpsellViewController::accessibilityScreenName() const {
    return foundation::localizedString("Choose Your Plan", "Button that a user clicks to go back to upsell page");
}

void UpsellViewController::viewWillAppear(bool /*animated*/) {
    if (!imageDownloadTask) return;
    m_emptyStateView->configure({.kind = velauikit::EmptyStateView::Kind::waiting});
    view()->addSubview(m_emptyStateView);
    m_emptyStateView->fillSuperview();
}

} // namespace proupsells
