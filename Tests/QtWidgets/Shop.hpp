// Screens to show in widgets, and a host's application around them.
#pragma once

#include <gmock/gmock.h>

#include <QKeyEvent>
#include <QMouseEvent>
#include <memory>
#include <vector>

#include "Backends/QtWidgets/ControllerDialog.hpp"
#include "Platform/Accessibility/Search.hpp"
#include "Platform/UIKit/Controls/UIButton.hpp"
#include "ProUpsells/VelaProUpsellViewController.hpp"
#include "Tests/Qt/Events.hpp"

namespace proupsells::tests {

// Two buttons on red: "first" at the top left, 50 points wide and high, and "second" right of it.
class TwoButtons : public uikit::UIViewController {
public:
    void viewDidLoad() override {
        view()->setBackgroundColor(uikit::UIColor{"red", graphics::rgb(0xFF0000), graphics::rgb(0x400000)});
        for (const auto& [name, x] : {std::pair{"first", 0.0}, {"second", 50.0}}) {
            const auto button = std::make_shared<uikit::UIButton>();
            button->setFrame({{x, 0}, {50, 50}});
            button->accessibilityIdentifier = button->accessibilityLabel = name;
            button->addAction(
                [this, name = std::string(name)](uikit::UIControl&) {
                    presses.push_back(name);
                    // A copy, because it may let go of the controller.
                    if (const auto then = whenPressed) then();
                },
                uikit::UIControl::Event::touchUpInside);
            view()->addSubview(button);
        }
    }

    std::vector<std::string> presses;
    std::function<void()> whenPressed;
};

class Purchases final : public VelaProUpsellViewControllerDelegate {
public:
    void proUpsellViewControllerDidContinueWith(VelaProUpsellViewController& sender, const SubscriptionOption& option) override {
        bought = option.SKU();
        sender.dismiss(true);
    }
    void proUpsellViewControllerDidTapRestore(VelaProUpsellViewController&) override {}
    void proUpsellViewControllerDidTapPrivacyPolicy(VelaProUpsellViewController&) override {}
    void proUpsellViewControllerDidTapTermsOfService(VelaProUpsellViewController&) override {}
    void proUpsellViewControllerDidClose(VelaProUpsellViewController&, ClosingReason reason) override {
        reasons.push_back(reason);
        if (whenClosed) whenClosed();
    }

    std::string bought;
    std::vector<ClosingReason> reasons;
    std::function<void()> whenClosed;
};

inline std::shared_ptr<VelaProUpsellViewController> newPaywall(const std::shared_ptr<Purchases>& purchases) {
    const auto paywall = VelaProUpsellViewController::create(
        {SubscriptionOption{"pro.monthly", SubscriptionOption::SubscriptionType::Monthly{"$14.99"}, false}},
        VelaProUpsellViewController::Variant::comparisonPaywall, Referrer{"Home", 5}, Entitlement::velaPRO, true);
    paywall->setDelegate(purchases);
    return paywall;
}

inline void mouse(QWidget& widget, QEvent::Type type, QPointF at) {
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, at, widget.mapToGlobal(at), Qt::LeftButton, held, {});
    QCoreApplication::sendEvent(&widget, &event);
}

inline void click(QWidget& widget, QPointF at) {
    const QPointer<QWidget> kept(&widget);
    mouse(widget, QEvent::MouseButtonPress, at);
    if (kept) mouse(widget, QEvent::MouseButtonRelease, at);
}

inline void pressKey(QWidget& widget, int key) {
    QKeyEvent event(QEvent::KeyPress, key, {});
    QCoreApplication::sendEvent(&widget, &event);
}

// Clicks where the control of the identifier is.
inline void clickOn(qtwidgets::ControllerWidget& widget, std::string_view identifier) {
    const accessibility::SemanticNode screen = widget.uiWindow().semanticTree();
    const accessibility::SemanticNode* node = accessibility::findByIdentifier(screen, identifier);
    ASSERT_NE(node, nullptr) << identifier;
    click(widget, {node->frame.midX(), node->frame.midY()});
}

} // namespace proupsells::tests
