// The product family's colours, under the names and numbers that its screens use.
#pragma once

#include "Platform/Graphics/Color.hpp"

namespace proupsells::velauikit {

using graphics::Color;
using graphics::rgb;

inline constexpr Color velaBackground{"velaBackground", rgb(0xFFFFFF), rgb(0x0F1315)};
// Of cards: they lift off by tone.
inline constexpr Color velaSecondaryAppBackground{"velaSecondaryAppBackground", rgb(0xF4F5F3), rgb(0x1A2023)};
inline constexpr Color velaLabel{"velaLabel", rgb(0x15191C), rgb(0xF3F5F4)};
inline constexpr Color velaSecondaryLabel{"velaSecondaryLabel", rgb(0x5A6268), rgb(0xA4ADB2)};
// Text on the accent.
inline constexpr Color velaLightText{"velaLightText", rgb(0xFFFFFF), rgb(0x0F1315)};
// Stronger than a mere divider: it is all that shows an empty radio circle.
inline constexpr Color velaBorder{"velaBorder", rgb(0x7F888D), rgb(0x6E777C)};
inline constexpr Color marwickContentAccent{"marwickContentAccent", rgb(0x0A7C78), rgb(0x3CCBC1)};

// A colour by its number: 2 page background, 9 title text, 10 subtitle text, 16 call-to-action text and icon, 22 call-to-action
// background. Any other number stops the program.
const Color& dynamicColor(int number);

} // namespace proupsells::velauikit
