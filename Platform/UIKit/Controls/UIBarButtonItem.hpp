// A button in a navigation bar.
#pragma once

#include <functional>
#include <string>

#include "Platform/UIKit/Views/UIKitTypes.hpp"
#include "Platform/UIKit/Views/UIResponder.hpp"

namespace proupsells::uikit {

struct UIBarButtonItem {
    UIImage image; // null: the title is shown
    std::string title;
    // A closure, or where it is empty a named action that goes up the responder chain from the bar.
    std::function<void()> action;
    Selector selector;

    std::string accessibilityIdentifier;
    std::string accessibilityLabel;

    // An item that calls `action` on `target`, which is held weakly.
    template <class Target>
    static UIBarButtonItem withTarget(UIImage image, const std::weak_ptr<Target>& target, void (Target::*action)()) {
        UIBarButtonItem item;
        item.image = std::move(image);
        item.action = [target, action] {
            if (const auto receiver = target.lock()) (receiver.get()->*action)();
        };
        return item;
    }
};

} // namespace proupsells::uikit
