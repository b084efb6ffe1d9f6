// Parents and children, and how they appear together.
#include "Platform/Commons/FatalError.hpp"
#include "Platform/UIKit/Controllers/UIViewController.hpp"

namespace proupsells::uikit {

void UIViewController::addChild(const std::shared_ptr<UIViewController>& child) {
    if (!child) commons::fatalError("UIViewController: there is no child to add");
    for (const UIViewController* ancestor = this; ancestor; ancestor = ancestor->m_parent)
        if (ancestor == child.get()) commons::fatalError("UIViewController: a controller cannot be its own child");
    const auto kept = child;
    if (kept->m_parent == this) return;
    if (kept->m_parent) kept->removeFromParent();
    kept->willMoveToParent(this);
    m_children.push_back(kept);
    kept->m_parent = this;
    kept->followParent();
}

void UIViewController::removeFromParent() {
    if (!m_parent) return;
    const auto kept = strongReference(*this);
    std::erase(m_parent->m_children, kept);
    m_parent = nullptr;
    beginAppearance(false, false);
    endAppearance();
    didMoveToParent(nullptr);
}

bool UIViewController::viewStandsIn(const UIViewController& parent) const {
    return m_view && parent.m_view && m_view->isDescendantOf(*parent.m_view);
}

// A parent is told before its children, when it begins as well as when it ends. A child whose view arrives while the parent is
// half-way is brought half-way as well, and goes the rest of the way with it.
void UIViewController::beginAppearance(bool appearing, bool animated) {
    const bool isShown = m_appearance == Appearance::appearing || m_appearance == Appearance::appeared;
    if (appearing == isShown) return;
    const auto kept = strongReference(*this);
    m_appearance = appearing ? Appearance::appearing : Appearance::disappearing;
    m_appearanceIsAnimated = animated;
    if (appearing)
        viewWillAppear(animated);
    else
        viewWillDisappear(animated);
    followedByChildren();
}

void UIViewController::endAppearance() {
    if (m_appearance != Appearance::appearing && m_appearance != Appearance::disappearing) return;
    const auto kept = strongReference(*this);
    const bool hasAppeared = m_appearance == Appearance::appearing;
    m_appearance = hasAppeared ? Appearance::appeared : Appearance::disappeared;
    if (hasAppeared)
        viewDidAppear(m_appearanceIsAnimated);
    else
        viewDidDisappear(m_appearanceIsAnimated);
    followedByChildren();
}

void UIViewController::followedByChildren() {
    const auto children = m_children;
    for (const auto& child : children)
        if (child->m_parent == this) child->followParent();
}

void UIViewController::followParent() {
    if (!m_parent) return;
    const auto kept = strongReference(*this);
    const Appearance wanted = viewStandsIn(*m_parent) ? m_parent->m_appearance : Appearance::disappeared;
    const bool animated = m_parent->m_appearanceIsAnimated;
    switch (wanted) {
    case Appearance::appearing: beginAppearance(true, animated); break;
    case Appearance::appeared:
        beginAppearance(true, false);
        endAppearance();
        break;
    case Appearance::disappearing: beginAppearance(false, animated); break;
    case Appearance::disappeared:
        beginAppearance(false, false);
        endAppearance();
        break;
    }
}

const UIViewController& UIViewController::outermostParent() const {
    const UIViewController* outermost = this;
    while (outermost->m_parent) outermost = outermost->m_parent;
    return *outermost;
}

UIViewController& UIViewController::outermostParent() {
    return const_cast<UIViewController&>(static_cast<const UIViewController*>(this)->outermostParent());
}

} // namespace proupsells::uikit
