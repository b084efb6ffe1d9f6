// Brings a finger to the view that it belongs to.
#pragma once

#include <memory>

#include "Platform/UIKit/Views/UIView.hpp"

namespace proupsells::uikit {

// The deepest view under the finger has the touch until it ends, or until a view around it takes it over.
class TouchRouter {
public:
    // Looks for the touched view in `root` and inside it. The router must not outlive it.
    explicit TouchRouter(UIView& root) : m_root(root) {}

    void touch(const host::Touch& touch);
    // Tells whoever has the touch that it is over. Later moves go nowhere.
    void cancel();
    bool isTracking() const { return !m_target.expired(); }

private:
    void begin(const UITouch& touch);
    // The view around the target that wants the touch instead; null for none.
    UIView* newOwner(UIView& target, const UITouch& touch) const;

    UIView& m_root;
    std::weak_ptr<UIView> m_target;
    UITouch m_last;
};

} // namespace proupsells::uikit
