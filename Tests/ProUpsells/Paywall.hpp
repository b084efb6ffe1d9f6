// The paywall's view on a screen of its own.
#pragma once

#include <optional>

#include "Platform/SwiftUI/SwiftUI.hpp"
#include "ProUpsells/UpsellEnvironment.hpp"
#include "ProUpsells/UpsellView.hpp"
#include "Tests/ProUpsells/Offers.hpp"
#include "Tests/ProUpsells/Screen.hpp"

namespace proupsells::tests {

using TapEvent = UpsellViewModel::TapEvent;

// What the view needs around it, and what it sends.
class PaywallModel {
public:
    explicit PaywallModel(std::vector<SubscriptionOption> options) : model(std::make_shared<UpsellViewModel>()) {
        model->options = std::move(options);
        m_token = model->tapEventOccurred.sink([this](const TapEvent& event) { events.push_back(event); });
    }

    std::function<swiftui::View()> root() {
        return [model = model, environment = m_environment, view = m_view]() -> swiftui::View {
            if (!*view) view->emplace(UpsellView{.model = model});
            return UpsellView(**view) | swiftui::environmentObject(environment);
        };
    }

    std::shared_ptr<UpsellViewModel> model;
    std::vector<TapEvent> events;

private:
    std::shared_ptr<UpsellEnvironment> m_environment = std::make_shared<UpsellEnvironment>();
    // Made when a screen first asks for it: its pictures need the screen's services.
    std::shared_ptr<std::optional<UpsellView>> m_view = std::make_shared<std::optional<UpsellView>>();
    combine::AnyCancellable m_token;
};

class Paywall : public PaywallModel, public Screen {
public:
    explicit Paywall(std::vector<SubscriptionOption> options, geometry::Size size = {375, 800}, ScreenOptions screenOptions = {})
        : PaywallModel(std::move(options)), Screen(root(), size, screenOptions) {}
};

} // namespace proupsells::tests
