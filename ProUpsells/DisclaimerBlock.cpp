#include "ProUpsells/DisclaimerBlock.hpp"

#include "Platform/Foundation/Bundle.hpp"
#include "Platform/LumoKit/RoleColors.hpp"
#include "Platform/LumoKit/TextStyle.hpp"
#include "Platform/SwiftUI/SwiftUI.hpp"
#include "Platform/VelaUIKit/FlowLayout.hpp"
#include "Platform/VelaUIKit/VelaColors.hpp"
#include "ProUpsells/InfoButton.hpp"

namespace proupsells {

using namespace swiftui;
using TapEvent = UpsellViewModel::TapEvent;

View DisclaimerBlock::paymentText() const {
    if (!payment) return View{};
    return Text{*payment} | lumokit::textStyle(lumokit::labelSmall) | foregroundStyle(lumokit::ContentColor::secondary) |
           multilineTextAlignment(graphics::TextAlignment::center) | avoidsShortLastLine() | accessibilityIdentifier("disclaimer") |
           padding(Edge::top, 8) | padding(Edge::bottom, 8) | padding(Edge::horizontal);
}

View DisclaimerBlock::link(const char* key, TapEvent event, const char* identifier) const {
    return InfoButton{.text = foundation::localizedString(key),
                      .action = [model = model, event = std::move(event)] { model->tapEventOccurred.send(event); },
                      .identifier = identifier};
}

View DisclaimerBlock::links() const {
    return velauikit::FlowLayout{.spacing = 0,
                                 .content =
                                     {
                                         link("Terms of Service", {TapEvent::TermsOfService{}}, "termsOfService"),
                                         Spacer{},
                                         link("Privacy Policy", {TapEvent::PrivacyPolicy{}}, "privacyPolicy"),
                                         Spacer{},
                                         link("Restore Purchases", {TapEvent::RestorePurchases{}}, "restorePurchases"),
                                     }} |
           padding(Edge::horizontal) | padding(Edge::bottom, isCompact ? 0 : 10) | foregroundStyle(velauikit::velaSecondaryLabel);
}

View DisclaimerBlock::body(BuildContext&) const { return Group{.content = {paymentText(), links()}}; }

} // namespace proupsells
