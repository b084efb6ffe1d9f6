// A theme's colours, with those that follow them.
#pragma once

#include "Platform/Graphics/Palette.hpp"
#include "ProUpsells/Theme.hpp"

namespace proupsells {

graphics::Palette themePalette(const Theme& theme);

} // namespace proupsells
