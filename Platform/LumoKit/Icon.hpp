// The design system's icons. All are painted in the foreground style.
#pragma once

#include "Platform/Graphics/Image.hpp"

namespace proupsells::lumokit {

class Icon {
public:
    Icon() = delete;

    // A cut diamond, 24 points high and wide.
    static const graphics::ImageRef& diamond24();
};

// The platform's own symbols.
class SystemSymbol {
public:
    SystemSymbol() = delete;

    // "chevron.right"
    static const graphics::ImageRef& chevronRight();
};

} // namespace proupsells::lumokit
