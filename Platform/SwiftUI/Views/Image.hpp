// Pictures.
#pragma once

#include "Platform/Graphics/Image.hpp"
#include "Platform/SwiftUI/Tree/View.hpp"

namespace proupsells::swiftui {

// Natural size unless resizable, which takes the size it is offered. A tinted image is painted in the foreground style. Absent
// images have no size.
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
