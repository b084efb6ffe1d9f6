#include "Platform/UIKit/Controllers/TouchRouter.hpp"

namespace proupsells::uikit {

void TouchRouter::touch(const host::Touch& touch) {
    const bool begins = touch.phase == host::TouchPhase::began;
    if (begins) cancel();
    const UITouch here{touch.phase, touch.location, begins ? touch.location : m_last.startWindowLocation, touch.time_s};
    m_last = here;
    if (begins) return begin(here);

    const auto target = m_target.lock();
    if (!target) return;
    switch (touch.phase) {
    case host::TouchPhase::began: break;
    case host::TouchPhase::moved:
        if (UIView* owner = newOwner(*target, here)) {
            const auto kept = strongReference(*owner);
            m_target = kept;
            target->touchesCancelled(here);
            kept->touchesBegan(here);
        } else {
            target->touchesMoved(here);
        }
        break;
    case host::TouchPhase::ended:
        m_target.reset();
        target->touchesEnded(here);
        break;
    case host::TouchPhase::cancelled:
        m_target.reset();
        target->touchesCancelled(here);
        break;
    }
}

void TouchRouter::begin(const UITouch& touch) {
    UIView* hit = m_root.hitTest(touch.location(m_root));
    if (!hit) return;
    if (UIView* owner = newOwner(*hit, touch)) hit = owner;
    const auto kept = strongReference(*hit);
    m_target = kept;
    if (kept) kept->touchesBegan(touch);
}

UIView* TouchRouter::newOwner(UIView& target, const UITouch& touch) const {
    if (target.keepsTouch()) return nullptr;
    for (UIView* around = target.superview(); around && &target != &m_root; around = around->superview()) {
        if (around->takesOverTouch(touch)) return around;
        if (around == &m_root) break;
    }
    return nullptr;
}

void TouchRouter::cancel() {
    const auto target = m_target.lock();
    m_target.reset();
    if (!target) return;
    UITouch over = m_last;
    over.phase = host::TouchPhase::cancelled;
    target->touchesCancelled(over);
}

} // namespace proupsells::uikit
