#include "Platform/UIKit/Controllers/UIModalPresentationStyle.hpp"

#include "Platform/UIKit/Views/UITraitCollection.hpp"

namespace proupsells::uikit {

std::string_view presentationStyleName(UIModalPresentationStyle style) {
    switch (style) {
    case UIModalPresentationStyle::formSheet: return "formSheet";
    case UIModalPresentationStyle::fullScreen: return "fullScreen";
    case UIModalPresentationStyle::automatic:
    case UIModalPresentationStyle::pageSheet: break;
    }
    return "pageSheet";
}

geometry::Rect presentationFrame(UIModalPresentationStyle style, geometry::Size preferredSize, geometry::Size windowSize) {
    constexpr geometry::Size defaultFormSize{540, 620};
    constexpr double pageWidth = 704, pageTop = 20;

    if (style == UIModalPresentationStyle::fullScreen || windowSize.width < regularWidth) return {{0, 0}, windowSize};
    if (style == UIModalPresentationStyle::formSheet) {
        const bool hasPreference = preferredSize.width > 0 && preferredSize.height > 0;
        const geometry::Size wanted = hasPreference ? preferredSize : defaultFormSize;
        const geometry::Size size{std::min(wanted.width, windowSize.width), std::min(wanted.height, windowSize.height)};
        return {{(windowSize.width - size.width) / 2, (windowSize.height - size.height) / 2}, size};
    }
    const double width = std::min(pageWidth, windowSize.width);
    const double top = std::min(pageTop, windowSize.height);
    return {{(windowSize.width - width) / 2, top}, {width, windowSize.height - top}};
}

} // namespace proupsells::uikit
