#include "ProUpsells/HeaderImage.hpp"

#include "Platform/Foundation/Bundle.hpp"
#include "Platform/SwiftUI/Modifiers/AccessibilityModifiers.hpp"
#include "Platform/SwiftUI/Views/Image.hpp"
#include "Platform/VelaUIKit/VelaUIKitImage.hpp"

namespace proupsells {

using namespace swiftui;

View HeaderImage::body(BuildContext&) const {
    return Image{velauikit::VelaUIKitImage::marwickFolioWithProBadge()} |
           accessibilityRole(accessibility::Role::heading, foundation::localizedString("Marwick Folio Pro"));
}

} // namespace proupsells
