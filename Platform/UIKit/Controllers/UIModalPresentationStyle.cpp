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

namespace {

geometry::Rect centered(geometry::Size size, geometry::Size windowSize) {
    return {{(windowSize.width - size.width) / 2, (windowSize.height - size.height) / 2}, size};
}

} // namespace

geometry::Rect presentationFrame(UIModalPresentationStyle style, geometry::Size preferredSize, geometry::Size windowSize) {
    constexpr geometry::Size defaultFormSize{540, 620};
    constexpr double pageWidth = 704, pageMargin = 20;

    if (style == UIModalPresentationStyle::fullScreen || windowSize.width < regularWidth) return {{0, 0}, windowSize};
    if (style == UIModalPresentationStyle::formSheet) {
        const bool hasPreference = preferredSize.width > 0 && preferredSize.height > 0;
        const geometry::Size wanted = hasPreference ? preferredSize : defaultFormSize;
        return centered({std::min(wanted.width, windowSize.width), std::min(wanted.height, windowSize.height)}, windowSize);
    }
    const double widest = windowSize.width - 2 * pageMargin, highest = windowSize.height - 2 * pageMargin;
    return centered({std::min(pageWidth, widest), std::max(highest, 0.0)}, windowSize);
}

} // namespace proupsells::uikit
