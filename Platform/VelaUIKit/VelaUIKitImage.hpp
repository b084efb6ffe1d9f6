// The product family's images.
#pragma once

#include "Platform/Graphics/Image.hpp"

namespace proupsells::velauikit {

class VelaUIKitImage {
public:
    VelaUIKitImage() = delete;

    // The product's logo with its Pro badge, 208 × 26 points.
    static const graphics::ImageRef& marwickFolioWithProBadge();
    // A close icon that can be seen on any picture, 26 × 26 points.
    static const graphics::ImageRef& inAppMessageCloseIcon();
};

} // namespace proupsells::velauikit
