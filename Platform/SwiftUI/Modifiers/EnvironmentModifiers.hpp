// Modifiers that change what the views inside inherit.
#pragma once

#include <memory>
#include <optional>
#include <type_traits>
#include <utility>

#include "Platform/SwiftUI/Tree/Connection.hpp"
#include "Platform/SwiftUI/Tree/EnvironmentValues.hpp"
#include "Platform/SwiftUI/Tree/ModifierNode.hpp"

namespace proupsells::swiftui {

// `Change` is comparable and changes what it is made for in apply(EnvironmentValues&).
template <class Change>
struct EnvironmentChange {
    Change change;

    View modified(View content) &&;
};

// Gives one of the values another value.
template <auto member>
struct EnvironmentSetting {
    std::remove_cvref_t<decltype(std::declval<EnvironmentValues>().*member)> value;

    void apply(EnvironmentValues& values) const { values.*member = value; }
    bool operator==(const EnvironmentSetting&) const = default;
};
template <auto member>
using EnvironmentModifier = EnvironmentChange<EnvironmentSetting<member>>;

inline EnvironmentModifier<&EnvironmentValues::foregroundStyle> foregroundStyle(const graphics::Color& color) { return {{color}}; }
inline EnvironmentModifier<&EnvironmentValues::font> font(const graphics::Font& font) { return {{font}}; }
inline EnvironmentModifier<&EnvironmentValues::multilineTextAlignment> multilineTextAlignment(graphics::TextAlignment alignment) {
    return {{alignment}};
}
inline EnvironmentModifier<&EnvironmentValues::lineLimit> lineLimit(std::optional<int> limit) { return {{limit}}; }
inline EnvironmentModifier<&EnvironmentValues::lineSpacing> lineSpacing(double spacing) { return {{spacing}}; }
inline EnvironmentModifier<&EnvironmentValues::avoidsShortLastLine> avoidsShortLastLine() { return {{true}}; }
// Texts are never narrower than their longest word.
inline EnvironmentModifier<&EnvironmentValues::keepsWordsWhole> keepsWordsWhole() { return {{true}}; }
inline EnvironmentModifier<&EnvironmentValues::textCase> textCase(TextCase textCase) { return {{textCase}}; }
inline EnvironmentModifier<&EnvironmentValues::minimumScaleFactor> minimumScaleFactor(double factor) { return {{factor}}; }
inline EnvironmentModifier<&EnvironmentValues::colorScheme> colorScheme(graphics::ColorScheme scheme) { return {{scheme}}; }
inline EnvironmentModifier<&EnvironmentValues::layoutDirection> layoutDirection(geometry::LayoutDirection direction) {
    return {{direction}};
}
// Two styles are equal when they are the same object.
inline EnvironmentModifier<&EnvironmentValues::buttonStyle> buttonStyle(std::shared_ptr<const ButtonStyle> style) {
    return {{std::move(style)}};
}

struct DisabledChange {
    bool isDisabled = false;

    void apply(EnvironmentValues& values) const { values.isEnabled = values.isEnabled && !isDisabled; }
    bool operator==(const DisabledChange&) const = default;
};
// Disabled views stay disabled, whatever is asked for inside.
inline EnvironmentChange<DisabledChange> disabled(bool isDisabled) { return {{isDisabled}}; }

struct EnvironmentObjectChange {
    TypeKey type;
    std::shared_ptr<combine::ObservableObject> object;

    void apply(EnvironmentValues& values) const;
    bool operator==(const EnvironmentObjectChange&) const = default;
};
// Found by the views inside with BuildContext::environmentObject, by its type.
template <class Object>
EnvironmentChange<EnvironmentObjectChange> environmentObject(const std::shared_ptr<Object>& object) {
    return {{typeKey<Object>(), object}};
}

namespace detail {

// Keeps the environment that the views inside inherit.
template <class Change>
class EnvironmentNode final : public ModifierNode {
public:
    void adopt(EnvironmentChange<Change>&& modifier, UpdatePass&) {
        const bool isSame = m_change && Connection::takeOver(*m_change, std::move(modifier.change));
        if (!m_change) m_change.emplace(std::move(modifier.change));
        m_isOutdated = environmentChanged() || !isSame;
    }
    void adoptContent(const View& content, UpdatePass& pass) override {
        if (m_isOutdated) {
            EnvironmentValues values = environment();
            m_change->apply(values);
            m_values.adopt(values);
        }
        UpdatePass inner = pass.with(m_values);
        updateChild(0, content, inner);
    }

private:
    std::optional<Change> m_change;
    EnvironmentValues m_values;
    bool m_isOutdated = true;
};

} // namespace detail

template <class Change>
View EnvironmentChange<Change>::modified(View content) && {
    return newModifier<detail::EnvironmentNode<Change>>(std::move(*this), content);
}

} // namespace proupsells::swiftui
