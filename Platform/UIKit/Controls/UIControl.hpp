// Views that a person operates, and the actions that they send.
#pragma once

#include <functional>
#include <type_traits>

#include "Platform/System/Compiler.hpp"
#include "Platform/UIKit/Views/UIView.hpp"

namespace proupsells::uikit {

class PROUPSELLS_EXPORT UIControl : public UIView {
public:
    // What targets can be told of. The control's surroundings count as inside, as far as trackingMargin says.
    enum class Event { touchDown, touchDragEnter, touchDragExit, touchUpInside, touchUpOutside, touchCancel, valueChanged };

    std::string_view typeName() const override { return "UIControl"; }

    // Calls `action` on `target`, which is held weakly, whenever `event` happens; targets are told in the order in which they were
    // added. An action is a member function of the target, with the control as its argument or without one, or a function of both.
    template <class Target, class Action>
    requires(std::is_invocable_v<Action&, Target&, UIControl&> ||
             std::is_invocable_v<Action&, Target&>) void addTarget(const std::weak_ptr<Target>& target, Action action,
                                                                   Event event) {
        Target* const address = target.lock().get();
        addEntry(
            {std::weak_ptr<void>(target), address, event, {}, [action = std::move(action), address](UIControl& sender) mutable {
                 if constexpr (std::is_invocable_v<Action&, Target&, UIControl&>)
                     std::invoke(action, *address, sender);
                 else
                     std::invoke(action, *address);
             }});
    }
    // Without a target: the action goes up the responder chain from here until somebody answers it.
    void addTarget(std::nullptr_t, Selector action, Event event) { addEntry({{}, nullptr, event, action, {}}); }
    // A closure of the control's own. It must not own the control.
    void addAction(std::function<void(UIControl&)> action, Event event) { addEntry({{}, nullptr, event, {}, std::move(action)}); }
    // Takes away all of the target's actions for the event.
    void removeTarget(const void* target, Event event);

    // Runs the actions of `event`. An action may change the list, and release the control.
    void sendActions(Event event);

    // While it is off, the control sends no action, not even for a finger that is down already.
    bool isEnabled() const { return m_isEnabled; }
    void setEnabled(bool enabled);
    // While a finger is down inside.
    bool isHighlighted() const { return m_isHighlighted; }
    // While the mouse rests on it, and it can be tapped.
    bool isHovered() const { return m_isHovered && m_isEnabled; }
    // From the finger's coming down to its lifting.
    bool isTracking() const { return m_isTracking; }

    // A disabled control takes touches and does nothing with them.
    void touchesBegan(const UITouch& touch) override;
    void touchesMoved(const UITouch& touch) override;
    void touchesEnded(const UITouch& touch) override;
    void touchesCancelled(const UITouch& touch) override;

    bool hover(std::optional<geometry::Point> location) override;

    // What assistive technology does instead of a tap; touchUpInside unless overridden.
    virtual void activate() { sendActions(Event::touchUpInside); }

protected:
    // How far outside the bounds a finger may wander and still counts as inside.
    static constexpr double trackingMargin = 70;

    // Whether the control looks pressed; the touches set it.
    void setHighlighted(bool highlighted);
    // By the bounds and trackingMargin around them.
    bool isInside(const UITouch& touch) const;
    // Whether those who look at the screen could operate it now: enabled, in a window, and neither hidden nor closed to touches.
    bool canBeOperated() const;

    void describe(accessibility::SemanticNode& node, const graphics::PaintState& state) const override;

private:
    struct Entry {
        std::weak_ptr<void> target;
        const void* address = nullptr; // null: no target
        Event event = Event::touchUpInside;
        Selector selector;
        std::function<void(UIControl&)> action;
    };
    void addEntry(Entry entry);

    std::vector<Entry> m_entries;
    bool m_isEnabled = true;
    bool m_isHighlighted = false;
    bool m_isHovered = false;
    bool m_isTracking = false;
};

} // namespace proupsells::uikit
