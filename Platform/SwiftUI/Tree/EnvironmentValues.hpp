// What a view inherits from the views around it.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Platform/Combine/ObservableObject.hpp"
#include "Platform/Geometry/Geometry.hpp"
#include "Platform/Graphics/AttributedString.hpp"
#include "Platform/Graphics/Color.hpp"
#include "Platform/Graphics/ContentSize.hpp"
#include "Platform/Graphics/Font.hpp"
#include "Platform/SwiftUI/Tree/TypeKey.hpp"

namespace proupsells::swiftui {

// Base of what a button looks like; see ButtonStyle.hpp among the views.
class ButtonStyle;

enum class SizeClass : std::uint8_t { compact, regular };
enum class TextCase : std::uint8_t { asWritten, uppercase };

// Models, found by their types. All environments that add none share one list.
struct EnvironmentObjects {
    struct Entry {
        TypeKey type;
        std::shared_ptr<combine::ObservableObject> object;
    };
    std::vector<Entry> entries;

    const std::shared_ptr<combine::ObservableObject>* find(TypeKey type) const;
};

// The values themselves. A new one is a member here; views set it with EnvironmentModifier<&EnvironmentValues::member>.
struct InheritedValues {
    graphics::ColorScheme colorScheme = graphics::ColorScheme::light;
    geometry::LayoutDirection layoutDirection = geometry::LayoutDirection::leftToRight;
    graphics::ContentSizeCategory contentSize = graphics::ContentSizeCategory::large;
    SizeClass horizontalSizeClass = SizeClass::compact;
    bool reduceMotion = false;
    bool isEnabled = true;
    double displayScale = 2;
    std::string localeIdentifier = "en_US";
    std::uint64_t languageChangeCount = 0;   // another one: texts are to be read again
    geometry::PhysicalInsets safeAreaInsets; // of the host's window

    graphics::Font font{.size = 17, .name = "body"};
    graphics::Color foregroundStyle{"primary", graphics::rgb(0x15191C), graphics::rgb(0xF3F5F4)};
    graphics::TextAlignment multilineTextAlignment = graphics::TextAlignment::leading;
    TextCase textCase = TextCase::asWritten;
    std::optional<int> lineLimit; // absent: as many lines as it takes
    double lineSpacing = 0;
    bool avoidsShortLastLine = false; // see host::TextRules
    bool keepsWordsWhole = false;     // the same
    double minimumScaleFactor = 1;    // a text that would be cut is shown smaller instead, down to this share of its size

    std::shared_ptr<const ButtonStyle> buttonStyle; // null: the automatic one
    std::shared_ptr<const EnvironmentObjects> objects;

    bool operator==(const InheritedValues&) const = default;
};

// The values with a mark by which nodes see whether they are still the same. Copied only where one of them is overridden.
struct EnvironmentValues : InheritedValues {
    // Differs between any two contents that differ.
    std::uint64_t version = 0;

    bool isRightToLeft() const { return layoutDirection == geometry::LayoutDirection::rightToLeft; }
    // The font as large as it is shown here.
    graphics::Font scaled(graphics::Font font) const;
    // Equal in everything but the version.
    bool hasSameContent(const InheritedValues& other) const { return static_cast<const InheritedValues&>(*this) == other; }
    // Takes the content over. The version becomes a new one if the content differs.
    void adopt(const EnvironmentValues& other);
    static std::uint64_t nextVersion();
};

} // namespace proupsells::swiftui
