// The ring around the control that keys operate.
#pragma once

#include <vector>

#include "Platform/Geometry/Geometry.hpp"
#include "Platform/Graphics/PaintContext.hpp"
#include "Platform/UIKit/Views/UIKitTypes.hpp"

namespace proupsells::uikit {

inline constexpr UIColor focusRingColor{"focusRing", graphics::rgb(0x15191C), graphics::rgb(0xF3F5F4)};
inline constexpr UIColor focusRingRimColor{"focusRingRim", graphics::rgb(0xFFFFFF), graphics::rgb(0x0F1315)};

// Where the ring's middle line stands around a control: a little outside of it, but inside of the window and, where that can be,
// not across a text. All in window points.
geometry::Rect focusRingAround(const geometry::Rect& control, const geometry::Rect& window,
                               const std::vector<geometry::Rect>& texts);

// In the colour of texts, with a rim in the page's on either side: it can be told from whatever it crosses, and from the border of
// a chosen plan.
void paintFocusRing(graphics::PaintContext& context, const graphics::PaintState& state, const geometry::Rect& ring);

} // namespace proupsells::uikit
