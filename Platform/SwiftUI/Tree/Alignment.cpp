#include "Platform/SwiftUI/Tree/Alignment.hpp"

namespace proupsells::swiftui {

geometry::Point alignedOrigin(geometry::Size child, geometry::Size box, Alignment alignment) {
    return {(box.width - child.width) * fraction(alignment.horizontal), (box.height - child.height) * fraction(alignment.vertical)};
}

} // namespace proupsells::swiftui
