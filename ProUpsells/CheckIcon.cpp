#include "ProUpsells/CheckIcon.hpp"

#include "Platform/LumoKit/RoleColors.hpp"
#include "Platform/SwiftUI/SwiftUI.hpp"
#include "ProUpsells/ImageResource.hpp"

namespace proupsells {

using namespace swiftui;

View CheckIcon::body(BuildContext&) const {
    return Image{image(ImageResource::upsellValuePropositionCheckmark(), graphics::RenderingMode::tinted)}.resizable() |
           frame(16, 16) | padding(Edge::trailing, 14) | foregroundStyle(lumokit::ContentColor::primary);
}

} // namespace proupsells
