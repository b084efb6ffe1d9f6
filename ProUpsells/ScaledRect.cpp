#include "ProUpsells/ScaledRect.hpp"

namespace proupsells {

geometry::Path ScaledRect::path(const geometry::Rect& rect) const {
    return geometry::Path::rectangle({rect.origin, {rect.width(), rect.height() * animatableData}});
}

ScaledRect::operator swiftui::Shape() const {
    return swiftui::CustomShape{.path = [](const geometry::Rect& rect, double data) { return ScaledRect{data}.path(rect); },
                                .animatableData = animatableData,
                                .name = "ScaledRect"};
}

} // namespace proupsells
