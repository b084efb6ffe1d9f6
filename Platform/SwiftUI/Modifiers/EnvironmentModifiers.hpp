// Modifiers that change what the views inside inherit.
#pragma once

#include <memory>
#include <optional>

#include "Platform/SwiftUI/Tree/EnvironmentValues.hpp"
#include "Platform/SwiftUI/Tree/View.hpp"

namespace proupsells::swiftui {

// `Setter` is comparable and writes its value with apply(EnvironmentValues&).
template <class Setter>
struct EnvironmentModifier {
    Setter setter;

    View modified(View content) &&;
};

namespace environment {

struct ForegroundStyle {
    graphics::Color color;
    void apply(EnvironmentValues& values) const { values.foregroundStyle = color; }
    bool operator==(const ForegroundStyle&) const = default;
};
struct FontValue {
    graphics::Font font;
    void apply(EnvironmentValues& values) const { values.font = font; }
    bool operator==(const FontValue&) const = default;
};
struct MultilineTextAlignment {
    graphics::TextAlignment alignment;
    void apply(EnvironmentValues& values) const { values.multilineTextAlignment = alignment; }
    bool operator==(const MultilineTextAlignment&) const = default;
};
struct LineLimit {
    std::optional<int> limit;
    void apply(EnvironmentValues& values) const { values.lineLimit = limit; }
    bool operator==(const LineLimit&) const = default;
};
struct LineSpacing {
    double spacing;
    void apply(EnvironmentValues& values) const { values.lineSpacing = spacing; }
    bool operator==(const LineSpacing&) const = default;
};
struct Case {
    TextCase textCase;
    void apply(EnvironmentValues& values) const { values.textCase = textCase; }
    bool operator==(const Case&) const = default;
};
struct MinimumScaleFactor {
    double factor;
    void apply(EnvironmentValues& values) const { values.minimumScaleFactor = factor; }
    bool operator==(const MinimumScaleFactor&) const = default;
};
struct Scheme {
    graphics::ColorScheme scheme;
    void apply(EnvironmentValues& values) const { values.colorScheme = scheme; }
    bool operator==(const Scheme&) const = default;
};
struct Direction {
    geometry::LayoutDirection direction;
    void apply(EnvironmentValues& values) const { values.layoutDirection = direction; }
    bool operator==(const Direction&) const = default;
};
// Disabled views stay disabled, whatever is asked for inside.
struct Disabled {
    bool isDisabled;
    void apply(EnvironmentValues& values) const { values.isEnabled = values.isEnabled && !isDisabled; }
    bool operator==(const Disabled&) const = default;
};
// Two styles are equal when they are the same object.
struct Style {
    std::shared_ptr<const ButtonStyle> style;
    void apply(EnvironmentValues& values) const { values.buttonStyle = style; }
    bool operator==(const Style&) const = default;
};
struct Object {
    TypeKey type;
    std::shared_ptr<combine::ObservableObject> object;
    void apply(EnvironmentValues& values) const;
    bool operator==(const Object&) const = default;
};

} // namespace environment

inline EnvironmentModifier<environment::ForegroundStyle> foregroundStyle(const graphics::Color& color) { return {{color}}; }
inline EnvironmentModifier<environment::FontValue> font(const graphics::Font& font) { return {{font}}; }
inline EnvironmentModifier<environment::MultilineTextAlignment> multilineTextAlignment(graphics::TextAlignment alignment) {
    return {{alignment}};
}
// Absent: as many lines as it takes.
inline EnvironmentModifier<environment::LineLimit> lineLimit(std::optional<int> limit) { return {{limit}}; }
inline EnvironmentModifier<environment::LineSpacing> lineSpacing(double spacing) { return {{spacing}}; }
inline EnvironmentModifier<environment::Case> textCase(TextCase textCase) { return {{textCase}}; }
// A text that would be cut is shown smaller instead, down to this share of its size.
inline EnvironmentModifier<environment::MinimumScaleFactor> minimumScaleFactor(double factor) { return {{factor}}; }
inline EnvironmentModifier<environment::Scheme> colorScheme(graphics::ColorScheme scheme) { return {{scheme}}; }
inline EnvironmentModifier<environment::Direction> layoutDirection(geometry::LayoutDirection direction) { return {{direction}}; }
inline EnvironmentModifier<environment::Disabled> disabled(bool isDisabled) { return {{isDisabled}}; }
inline EnvironmentModifier<environment::Style> buttonStyle(std::shared_ptr<const ButtonStyle> style) {
    return {{std::move(style)}};
}
template <class Object>
EnvironmentModifier<environment::Object> environmentObject(const std::shared_ptr<Object>& object) {
    return {{typeKey<Object>(), object}};
}

} // namespace proupsells::swiftui
