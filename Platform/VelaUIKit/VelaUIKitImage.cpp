#include "Platform/VelaUIKit/VelaUIKitImage.hpp"

#include "Platform/Host/NamedImage.hpp"
#include "Platform/LumoKit/ResourceBundle.hpp"

namespace proupsells::velauikit {

const graphics::ImageRef& VelaUIKitImage::marwickFolioWithProBadge() {
    static const graphics::ImageRef image = host::namedImage("marwickFolioWithProBadge", lumokit::resourceBundle());
    return image;
}

const graphics::ImageRef& VelaUIKitImage::inAppMessageCloseIcon() {
    static const graphics::ImageRef image = host::namedImage("inAppMessageCloseIcon", lumokit::resourceBundle());
    return image;
}

} // namespace proupsells::velauikit
