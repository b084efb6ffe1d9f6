// The design system's colours, by role. Each has a light and a dark value.
#pragma once

#include "Platform/Graphics/Color.hpp"

namespace proupsells::lumokit {

using graphics::Color;
using graphics::rgb;

// The platform's own colour for texts.
inline constexpr Color platformPrimary{"primary", rgb(0x15191C), rgb(0xF3F5F4)};

// What is read: texts and icons.
namespace ContentColor {
inline constexpr Color primary{"ContentColor.primary", rgb(0x15191C), rgb(0xF3F5F4)};
inline constexpr Color secondary{"ContentColor.secondary", rgb(0x5A6268), rgb(0xA4ADB2)};
// On BackgroundColor::level4.
inline constexpr Color inverse{"ContentColor.inverse", rgb(0xFFFFFF), rgb(0x0F1315)};
} // namespace ContentColor

namespace BackgroundColor {
// The strongest one: ink on paper, paper on ink.
inline constexpr Color level4{"BackgroundColor.level4", rgb(0x0A7C78), rgb(0x3CCBC1)};
} // namespace BackgroundColor

namespace BorderColor {
// Parts groups from each other; nothing depends on seeing it.
inline constexpr Color secondary{"BorderColor.secondary", rgb(0xD5D9DB), rgb(0x343C40)};
} // namespace BorderColor

namespace DecorativeColor {
inline constexpr Color tealBackground{"DecorativeColor.tealBackground", rgb(0xD8F1EE), rgb(0x0E3634)};
// Text on tealBackground.
inline constexpr Color tealProminent{"DecorativeColor.tealProminent", rgb(0x085E5B), rgb(0x7FE3DB)};
} // namespace DecorativeColor

namespace ValidationColor {
inline constexpr Color neutralSubdued{"ValidationColor.neutralSubdued", rgb(0xE4E7E8), rgb(0x2E363A)};
// Text on neutralSubdued.
inline constexpr Color neutralImportant{"ValidationColor.neutralImportant", rgb(0x454D52), rgb(0xD3D9DC)};
} // namespace ValidationColor

} // namespace proupsells::lumokit
