// What is shown in the place of the design system's own colours, typefaces and images.
#pragma once

#include "Platform/Graphics/Palette.hpp"
#include "Platform/Graphics/Typefaces.hpp"
#include "Platform/Host/NamedImage.hpp"

namespace proupsells::host {

struct Look {
    graphics::Palette palette;
    graphics::Typefaces typefaces;
    StandIns images;

    // Windows follow in their next update, as they follow a change of the language. An empty look brings back the design system's
    // own. Main thread only.
    static void setCurrent(Look look);
};

} // namespace proupsells::host
