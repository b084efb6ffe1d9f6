// Makes the store page's plan button.
#pragma once

#include <initializer_list>
#include <memory>

#include "Platform/System/Compiler.hpp"
#include "Platform/UIKit/Controls/UIButton.hpp"

namespace proupsells {

class PROUPSELLS_EXPORT CallToActionButtonProvider {
public:
    CallToActionButtonProvider() = delete;

    // Calls `action` on `target`, which is held weakly, on each of the events. The caller sizes and places the button.
    template <class Target, class Action>
    static std::shared_ptr<uikit::UIButton> button(const std::weak_ptr<Target>& target, Action action,
                                                   std::initializer_list<uikit::UIControl::Event> events) {
        const auto made = makeButton();
        for (const auto event : events) made->addTarget(target, action, event);
        return made;
    }
    // Without a target the action goes up the responder chain.
    static std::shared_ptr<uikit::UIButton> button(std::nullptr_t, uikit::Selector action,
                                                   std::initializer_list<uikit::UIControl::Event> events);

private:
    static std::shared_ptr<uikit::UIButton> makeButton();
};

} // namespace proupsells
