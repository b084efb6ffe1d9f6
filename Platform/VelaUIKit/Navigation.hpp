// The product family's navigation bars.
#pragma once

#include <memory>

#include "Platform/UIKit/Controllers/UINavigationController.hpp"

namespace proupsells::velauikit {

// The controller in a navigation controller of its own, whose bar has the page's background and texts' colour.
std::shared_ptr<uikit::UINavigationController> embedInNavController(const std::shared_ptr<uikit::UIViewController>& controller);

enum class BarButtonStyle { close };

// A bar-button of a style, without an action.
uikit::UIBarButtonItem barButtonItem(BarButtonStyle style);

// A bar-button of a style that calls `action` on `target`, which is held weakly.
template <class Target>
uikit::UIBarButtonItem barButtonItem(BarButtonStyle style, const std::weak_ptr<Target>& target, void (Target::*action)()) {
    uikit::UIBarButtonItem item = barButtonItem(style);
    item.action = [target, action] {
        if (const auto receiver = target.lock()) (receiver.get()->*action)();
    };
    return item;
}

} // namespace proupsells::velauikit
