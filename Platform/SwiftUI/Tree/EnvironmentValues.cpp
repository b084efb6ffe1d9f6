#include "Platform/SwiftUI/Tree/EnvironmentValues.hpp"

namespace proupsells::swiftui {

const std::shared_ptr<combine::ObservableObject>* EnvironmentObjects::find(TypeKey type) const {
    for (const Entry& entry : entries)
        if (entry.type == type) return &entry.object;
    return nullptr;
}

graphics::Font EnvironmentValues::scaled(graphics::Font scaledFont) const {
    if (scaledFont.scalesWithContentSize) scaledFont.size *= graphics::scaleFactor(contentSize);
    return scaledFont;
}

bool EnvironmentValues::hasSameContent(const EnvironmentValues& other) const {
    return colorScheme == other.colorScheme && layoutDirection == other.layoutDirection && contentSize == other.contentSize &&
           horizontalSizeClass == other.horizontalSizeClass && reduceMotion == other.reduceMotion && isEnabled == other.isEnabled &&
           displayScale == other.displayScale && localeIdentifier == other.localeIdentifier &&
           languageChangeCount == other.languageChangeCount && safeAreaInsets == other.safeAreaInsets && font == other.font &&
           foregroundStyle == other.foregroundStyle && multilineTextAlignment == other.multilineTextAlignment &&
           textCase == other.textCase && lineLimit == other.lineLimit && lineSpacing == other.lineSpacing &&
           minimumScaleFactor == other.minimumScaleFactor && buttonStyle == other.buttonStyle && objects == other.objects;
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
