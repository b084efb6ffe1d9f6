#include "ProUpsells/HeaderImage.hpp"

#include "Platform/SwiftUI/Views/Image.hpp"
#include "Platform/VelaUIKit/VelaUIKitImage.hpp"

namespace proupsells {

using namespace swiftui;

View HeaderImage::body(BuildContext&) const { return Image{velauikit::VelaUIKitImage::marwickFolioWithProBadge()}; }

} // namespace proupsells
