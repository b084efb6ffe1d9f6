#include "ProUpsells/RadioPickerButton.hpp"

#include "Platform/Foundation/Bundle.hpp"
#include "Platform/Foundation/Format.hpp"
#include "Platform/LumoKit/LargestTextSize.hpp"
#include "Platform/LumoKit/RoleColors.hpp"
#include "Platform/LumoKit/TextStyle.hpp"
#include "Platform/SwiftUI/SwiftUI.hpp"
#include "Platform/VelaUIKit/VelaColors.hpp"
#include "ProUpsells/FreeTrialCapsule.hpp"
#include "ProUpsells/RadioPickerButtonBadge.hpp"
#include "ProUpsells/RadioPickerSelectionIndicator.hpp"

namespace proupsells {

using namespace swiftui;
using accessibility::Traits;
using lumokit::ContentColor::primary;

namespace {

std::string withoutLeadingBlanks(const std::string& text) {
    const auto start = text.find_first_not_of(' ');
    return start == std::string::npos ? std::string() : text.substr(start);
}

} // namespace

View RadioPickerButton::titleRow(graphics::ContentSizeCategory textSize) const {
    const ViewList content{
        Text{item.title} | lumokit::textStyle(lumokit::bodyLarge) | multilineTextAlignment(graphics::TextAlignment::leading) |
            foregroundStyle(primary),
        item.offersTrial()
            ? FreeTrialCapsule{} | accessibilityLabel("Free Trial Capsule") | accessibilityIdentifier("trial." + item.id)
            : View{},
    };
    // At the largest text sizes the two do not fit beside each other.
    if (textSize >= graphics::ContentSizeCategory::accessibilityMedium)
        return VStack{.alignment = HorizontalAlignment::leading, .spacing = 8, .content = content};
    return HStack{.spacing = 8, .content = content};
}

View RadioPickerButton::card(graphics::ContentSizeCategory textSize) const {
    return HStack{
               .spacing = 8,
               .content =
                   {
                       VStack{.alignment = HorizontalAlignment::leading,
                              .spacing = 8,
                              .content = {titleRow(textSize), Text{item.subtitle} | foregroundStyle(velauikit::velaSecondaryLabel) |
                                                                  lumokit::largestTextSize(lumokit::LargestSize::mainText)}},
                       Spacer{},
                       RadioPickerSelectionIndicator{selected} | accessibilityLabel("Selection Indicator"),
                   }} |
           padding(Edge::horizontal, 14) | padding(Edge::vertical, 16) |
           frame({.maxWidth = geometry::infinity, .minHeight = 90, .alignment = Alignment::leading}) |
           background(RoundedRectangle(cornerRadius).fill(velauikit::velaSecondaryAppBackground)) | contentShape();
}

// Always there and only shown or hidden, so that a change of the selection moves nothing.
View RadioPickerButton::selectedBorder() const {
    return RoundedRectangle(cornerRadius, geometry::CornerStyle::continuous).stroke(2) | opacity(selected ? 1 : 0) |
           allowsHitTesting(false);
}

// The frame is only 1 high, so that the badge's centre stands on the card's top edge.
View RadioPickerButton::badge() const {
    if (!item.badge) return View{};
    return RadioPickerButtonBadge{*item.badge} | accessibilityIdentifier("badge." + item.id) | accessibilitySilent() | padding(16) |
           fixedSize() | frame({.height = 1}) | allowsHitTesting(false);
}

std::string RadioPickerButton::label() const {
    const std::string price = withoutLeadingBlanks(item.subtitle.text());
    return price.empty() ? item.title : item.title + ", " + price;
}

// All that the card shows. A line through a price cannot be heard, so it is said.
std::string RadioPickerButton::spokenName() const {
    std::string name = item.title, price;
    const auto add = [&](const std::string& part) {
        if (!part.empty()) name += ", " + part;
    };
    if (item.badge) add(*item.badge);
    if (item.offersTrial()) add(FreeTrialCapsule::text());
    for (const graphics::AttributedRun& run : item.subtitle.runs()) {
        if (run.attributes.isStruckThrough)
            add(foundation::format(foundation::localizedString("formerly %@", "Spoken instead of a price that is struck through"),
                                   {run.text}));
        else
            price += run.text;
    }
    add(withoutLeadingBlanks(price));
    return name;
}

View RadioPickerButton::body(BuildContext& context) const {
    return Button{.action = action, .label = card(context.environment().contentSize)} | buttonStyle(ButtonStyle::plain()) |
           AccessibilityModifier{
               .identifier = "plan." + item.id, .label = label(), .traits = selected ? Traits::selected : Traits::none} |
           accessibilityRadioButton(spokenName(), selected) | overlay(selectedBorder()) | overlay(badge(), Alignment::topTrailing);
}

} // namespace proupsells
