// Pictures.
#pragma once

#include "Platform/Graphics/Image.hpp"
#include "Platform/SwiftUI/Tree/View.hpp"

namespace proupsells::swiftui {

// Has the image's natural size; a resizable one takes the size that it is offered. A tinted image is painted in the foreground
// style. An absent image has no size.
struct Image {
    graphics::ImageRef image;
    bool isResizable = false;

    Image resizable() && {
        isResizable = true;
        return std::move(*this);
    }
    Element* makeElement() &&;
    bool operator==(const Image&) const = default;
};

} // namespace proupsells::swiftui
