// What a controller shows in a navigation bar.
#pragma once

#include <optional>
#include <string>

#include "Platform/UIKit/Controls/UIBarButtonItem.hpp"

namespace proupsells::uikit {

struct UINavigationItem {
    std::string title;                                 // empty: the controller's title
    std::optional<UIBarButtonItem> rightBarButtonItem; // stands at the trailing end
};

} // namespace proupsells::uikit
