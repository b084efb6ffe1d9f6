// A picture that a theme may replace.
#pragma once

#include <span>
#include <string_view>

#include "Platform/Foundation/Bundle.hpp"

namespace proupsells {

struct ThemePicture {
    std::string_view name;
    const foundation::Bundle& (*bundle)();

    // Every picture of the module and of the design system.
    static std::span<const ThemePicture> all();
    // Null where no picture has the name.
    static const ThemePicture* find(std::string_view name);
};

} // namespace proupsells
