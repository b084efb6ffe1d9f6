// The nodes of environment modifiers. A source that has a setter of its own includes this and instantiates
// `template struct swiftui::EnvironmentModifier<ItsSetter>`.
#pragma once

#include <optional>

#include "Platform/SwiftUI/Modifiers/EnvironmentModifiers.hpp"
#include "Platform/SwiftUI/Tree/Node.hpp"

namespace proupsells::swiftui {

// Keeps the environment that the views inside inherit.
template <class Setter>
class EnvironmentNode final : public ModifierNode {
public:
    void adopt(EnvironmentModifier<Setter>&& modifier, UpdatePass&) {
        m_isOutdated = isNew() || environmentChanged() || !(*m_setter == modifier.setter);
        m_setter.emplace(std::move(modifier.setter));
    }
    void adoptContent(const View& content, UpdatePass& pass) override {
        if (m_isOutdated) {
            EnvironmentValues values = environment();
            m_setter->apply(values);
            m_values.adopt(values);
        }
        UpdatePass inner = pass.with(m_values);
        updateChild(0, content, inner);
    }

private:
    std::optional<Setter> m_setter;
    EnvironmentValues m_values;
    bool m_isOutdated = true;
};

template <class Setter>
View EnvironmentModifier<Setter>::modified(View content) && {
    return newModifier<EnvironmentNode<Setter>>(std::move(*this), content);
}

} // namespace proupsells::swiftui
