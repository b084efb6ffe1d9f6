// A colour in a bundle, by name. The module has none of its own: its colours come from the design system.
#pragma once

#include <functional>
#include <string>

#include "Platform/Foundation/Bundle.hpp"

namespace proupsells {

struct ColorResource {
    std::string name;
    const foundation::Bundle* bundle = nullptr;

    bool operator==(const ColorResource&) const = default;
};

} // namespace proupsells

template <>
struct std::hash<proupsells::ColorResource> {
    std::size_t operator()(const proupsells::ColorResource& resource) const noexcept {
        return std::hash<std::string>{}(resource.name) * 31 + std::hash<const void*>{}(resource.bundle);
    }
};
