// How a presented controller stands in the window.
#pragma once

#include <string_view>

#include "Platform/Geometry/Geometry.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::uikit {

enum class UIModalPresentationStyle {
    automatic,  // a page sheet
    pageSheet,  // fills a window narrower than 600 points; otherwise a card in the centre, a little smaller than the window
    formSheet,  // fills a window narrower than 600 points; otherwise a card of the preferred size in the centre
    fullScreen, // fills the window and takes the presenter away
};

// "pageSheet", "formSheet" or "fullScreen"; automatic is the page sheet.
PROUPSELLS_EXPORT std::string_view presentationStyleName(UIModalPresentationStyle style);

// Where a controller of a style and a preferred size (zero for none) stands in a window. A card is never larger than the window.
PROUPSELLS_EXPORT geometry::Rect presentationFrame(UIModalPresentationStyle style, geometry::Size preferredSize,
                                                   geometry::Size windowSize);

} // namespace proupsells::uikit
