#include "Platform/SwiftUI/Modifiers/EnvironmentModifiers.hpp"

namespace proupsells::swiftui {

void EnvironmentObjectChange::apply(EnvironmentValues& values) const {
    auto objects = values.objects ? std::make_shared<EnvironmentObjects>(*values.objects) : std::make_shared<EnvironmentObjects>();
    std::erase_if(objects->entries, [this](const EnvironmentObjects::Entry& entry) { return entry.type == type; });
    objects->entries.push_back({type, object});
    values.objects = std::move(objects);
}

} // namespace proupsells::swiftui
