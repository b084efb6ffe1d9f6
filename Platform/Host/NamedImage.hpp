// Images of a bundle, by asset name.
#pragma once

#include <string>

#include "Platform/Foundation/Bundle.hpp"
#include "Platform/Graphics/Image.hpp"

namespace proupsells::host {

// The image in `name`.picture of the bundle, or else in `name`.svg, with `name`~dark beside it for the dark appearance if there is
// one. Read once, the same object on every later call. A missing or unreadable asset stops the program.
graphics::ImageRef namedImage(const std::string& name, const foundation::Bundle& bundle,
                              graphics::RenderingMode renderingMode = graphics::RenderingMode::original);

} // namespace proupsells::host
