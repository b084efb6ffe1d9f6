// A finger on the way through the views.
#pragma once

#include "Platform/Host/WindowContent.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::uikit {

class UIView;

struct PROUPSELLS_EXPORT UITouch {
    host::TouchPhase phase = host::TouchPhase::began;
    geometry::Point windowLocation;
    geometry::Point startWindowLocation; // where the finger came down
    double time_s = 0;

    // The finger, now and when it came down, in the coordinates of `view`.
    geometry::Point location(const UIView& view) const;
    geometry::Point startLocation(const UIView& view) const;
};

} // namespace proupsells::uikit
