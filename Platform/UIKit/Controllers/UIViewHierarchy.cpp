// How views come into a superview and a window and leave them, and what their controllers hear of it.
#include <algorithm>
#include <string>

#include "Platform/Commons/FatalError.hpp"
#include "Platform/Host/TreeDepth.hpp"
#include "Platform/UIKit/Controllers/UIViewController.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"

namespace proupsells::uikit {

namespace {

// How many views stand inside each other, the outermost one included.
int levelsOf(const UIView& view) {
    int inside = 0;
    for (const auto& subview : view.subviews()) inside = std::max(inside, levelsOf(*subview));
    return 1 + inside;
}

} // namespace

void UIView::insert(const std::shared_ptr<UIView>& view, std::size_t index) {
    if (!view) commons::fatalError("UIView: there is no view to add");
    if (isDescendantOf(*view)) commons::fatalError("UIView: a view cannot stand inside itself");
    int around = 1;
    for (const UIView* outer = m_superview; outer; outer = outer->m_superview) ++around;
    if (around + levelsOf(*view) > host::maximumTreeDepth)
        commons::fatalError("UIView: views are nested too deeply: more than " + std::to_string(host::maximumTreeDepth) +
                            " stand inside each other");
    const auto kept = view; // the argument may be a reference into the former superview's list
    if (kept->m_superview) kept->removeFromSuperview();

    m_subviews.insert(m_subviews.begin() + std::ptrdiff_t(std::min(index, m_subviews.size())), kept);
    kept->m_superview = this;
    didAddSubview(*kept);
    kept->constraintInputDidChange();
    kept->movedToWindow(m_window);
    kept->didMoveToSuperview();
    // A view may come with a layout that was due where it stood before.
    if (kept->m_needsLayout || kept->m_subtreeNeedsLayout) m_subtreeNeedsLayout = true;
    setNeedsLayout();
    setNeedsDisplay();
    for (const auto& controller : kept->outermostControllers()) controller->followParent();
}

void UIView::removeFromSuperview() {
    if (!m_superview) return;
    const auto kept = strongReference(*this);
    const auto controllers = outermostControllers();
    for (const auto& controller : controllers)
        if (controller->parent()) controller->beginAppearance(false, false);
    if (!m_superview) return; // somebody told has removed the view already

    UIView& former = *m_superview;
    former.willRemoveSubview(*this);
    former.m_subviews.erase(former.m_subviews.begin() + std::ptrdiff_t(former.indexOf(*this)));
    former.constraintInputDidChange();
    for (UIView* around = &former; around; around = around->m_superview) around->endConstraintsAcross(*this);
    m_superview = nullptr;
    former.setNeedsLayout();
    former.setNeedsDisplay();
    movedToWindow(nullptr);
    didMoveToSuperview();
    for (const auto& controller : controllers) controller->followParent();
}

// The controllers whose views are the outermost ones at or below this view.
std::vector<std::shared_ptr<UIViewController>> UIView::outermostControllers() {
    std::vector<std::shared_ptr<UIViewController>> found;
    if (m_viewController) {
        if (auto controller = strongReference(*m_viewController)) found.push_back(std::move(controller));
        return found;
    }
    for (const auto& subview : m_subviews)
        for (auto& controller : subview->outermostControllers()) found.push_back(std::move(controller));
    return found;
}

UIResponder* UIView::nextResponder() const {
    if (m_viewController) return m_viewController;
    return m_superview;
}

void UIView::movedToWindow(UIWindow* window) {
    if (m_window == window) return;
    const auto kept = strongReference(*this);
    m_window = window;
    if (window && m_superview) adoptTraits(m_superview->traitsForSubviews());
    if (window) noticeLanguage();
    didMoveToWindow();
    const auto subviews = m_subviews;
    for (const auto& subview : subviews)
        if (subview->m_superview == this) subview->movedToWindow(window);
}

void UIView::noticeWindowVisibility() {
    const auto kept = strongReference(*this);
    windowVisibilityDidChange();
    if (m_viewController) m_viewController->windowVisibilityDidChange();
    const auto subviews = m_subviews;
    for (const auto& subview : subviews)
        if (subview->m_superview == this && subview->m_window) subview->noticeWindowVisibility();
}

void UIView::tellControllerOfLayout() {
    if (!m_viewController) return;
    const auto controller = strongReference(*m_viewController);
    controller->viewDidLayoutSubviews();
}

bool UIView::isAttended() const { return m_window && m_window->isAttended(convertTo(bounds(), nullptr)); }

} // namespace proupsells::uikit
