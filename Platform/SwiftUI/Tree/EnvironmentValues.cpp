#include "Platform/SwiftUI/Tree/EnvironmentValues.hpp"

namespace proupsells::swiftui {

const std::shared_ptr<combine::ObservableObject>* EnvironmentObjects::find(TypeKey type) const {
    for (const Entry& entry : entries)
        if (entry.type == type) return &entry.object;
    return nullptr;
}

graphics::Font EnvironmentValues::scaled(graphics::Font scaledFont) const {
    if (scaledFont.scalesWithContentSize) scaledFont.size = graphics::scaledSize(scaledFont.size, contentSize);
    return scaledFont;
}

void EnvironmentValues::adopt(const EnvironmentValues& other) {
    if (version != 0 && hasSameContent(other)) return;
    *this = other;
    version = nextVersion();
}

std::uint64_t EnvironmentValues::nextVersion() {
    static std::uint64_t newest = 0;
    return ++newest;
}

} // namespace proupsells::swiftui
