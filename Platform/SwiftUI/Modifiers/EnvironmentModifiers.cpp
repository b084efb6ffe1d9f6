#include "Platform/SwiftUI/Modifiers/EnvironmentModifiers.hpp"

#include "Platform/SwiftUI/Modifiers/EnvironmentNode.hpp"

namespace proupsells::swiftui {

void environment::Object::apply(EnvironmentValues& values) const {
    auto objects = values.objects ? std::make_shared<EnvironmentObjects>(*values.objects) : std::make_shared<EnvironmentObjects>();
    std::erase_if(objects->entries, [this](const EnvironmentObjects::Entry& entry) { return entry.type == type; });
    objects->entries.push_back({type, object});
    values.objects = std::move(objects);
}

template struct EnvironmentModifier<environment::ForegroundStyle>;
template struct EnvironmentModifier<environment::FontValue>;
template struct EnvironmentModifier<environment::MultilineTextAlignment>;
template struct EnvironmentModifier<environment::LineLimit>;
template struct EnvironmentModifier<environment::LineSpacing>;
template struct EnvironmentModifier<environment::Case>;
template struct EnvironmentModifier<environment::MinimumScaleFactor>;
template struct EnvironmentModifier<environment::Scheme>;
template struct EnvironmentModifier<environment::Direction>;
template struct EnvironmentModifier<environment::Disabled>;
template struct EnvironmentModifier<environment::Style>;
template struct EnvironmentModifier<environment::Object>;

} // namespace proupsells::swiftui
