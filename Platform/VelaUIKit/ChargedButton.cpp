#include "Platform/VelaUIKit/ChargedButton.hpp"

#include <algorithm>

namespace proupsells::velauikit {

bool ChargedButton::pointInside(geometry::Point point) const {
    constexpr double smallestTarget = 44;
    const geometry::Rect own = bounds();
    return own.insetBy(std::min(0.0, (own.width() - smallestTarget) / 2), std::min(0.0, (own.height() - smallestTarget) / 2))
        .contains(point);
}

} // namespace proupsells::velauikit
