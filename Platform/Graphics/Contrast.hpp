// How well one colour stands out from another, by WCAG 2.2.
#pragma once

#include "Platform/Graphics/Color.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::graphics {

// From 1, for equal colours, to 21, for black and white. Both are taken as opaque.
PROUPSELLS_EXPORT double contrast(RGBA a, RGBA b);

} // namespace proupsells::graphics
