#include "ProUpsells/ContainerWithCloseButton.hpp"

#include "Platform/Foundation/Bundle.hpp"
#include "Platform/SwiftUI/SwiftUI.hpp"
#include "Platform/VelaUIKit/VelaUIKitImage.hpp"

namespace proupsells {

using namespace swiftui;

namespace {

constexpr int closeIsReadFirst = -1;

} // namespace

View ContainerWithCloseButton::body(BuildContext&) const {
    return ZStack{.alignment = Alignment::topTrailing,
                  .content = {
                      contentView(),
                      Button{.action = closeButtonAction, .label = Image{velauikit::VelaUIKitImage::inAppMessageCloseIcon()}} |
                          buttonStyle(ButtonStyle::plain()) | padding(Edge::top | Edge::trailing, 18) | frame(44, 44) |
                          contentShape() | accessibilityIdentifier("close") |
                          accessibilityLabel(foundation::localizedString("Close")) | accessibilityReadingOrder(closeIsReadFirst),
                  }};
}

} // namespace proupsells
