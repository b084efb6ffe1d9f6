// The tree of views: who stands where, and in which window.
#include "Platform/UIKit/Views/UIView.hpp"

#include "Platform/Commons/FatalError.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"

namespace proupsells::uikit {

UIView::UIView(const geometry::Rect& frame) : m_frame(frame) {}

UIView::~UIView() {
    for (const auto& subview : m_subviews) subview->m_superview = nullptr;
}

std::size_t UIView::indexOf(const UIView& subview) const {
    for (std::size_t i = 0; i < m_subviews.size(); ++i)
        if (m_subviews[i].get() == &subview) return i;
    commons::fatalError("UIView: the sibling is not a subview of this view");
}

void UIView::addSubview(const std::shared_ptr<UIView>& view) { insert(view, m_subviews.size()); }

void UIView::insertSubview(const std::shared_ptr<UIView>& view, std::size_t index) { insert(view, index); }

void UIView::insertSubviewAbove(const std::shared_ptr<UIView>& view, const UIView& sibling) {
    if (view && view->m_superview == this) view->removeFromSuperview();
    insert(view, indexOf(sibling) + 1);
}

void UIView::insertSubviewBelow(const std::shared_ptr<UIView>& view, const UIView& sibling) {
    if (view && view->m_superview == this) view->removeFromSuperview();
    insert(view, indexOf(sibling));
}

void UIView::insert(const std::shared_ptr<UIView>& view, std::size_t index) {
    if (!view) commons::fatalError("UIView: there is no view to add");
    if (isDescendantOf(*view)) commons::fatalError("UIView: a view cannot stand inside itself");
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

bool UIView::isDescendantOf(const UIView& view) const {
    for (const UIView* ancestor = this; ancestor; ancestor = ancestor->m_superview)
        if (ancestor == &view) return true;
    return false;
}

UIWindow* UIView::window() const { return m_window; }

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

// --- Traits, language and safe area ---

UITraitCollection UIView::traitCollection() const {
    if (m_overrideTraits) return *m_overrideTraits;
    if (m_traits) return *m_traits;
    if (m_viewController) return m_viewController->expectedTraits();
    return m_superview ? m_superview->traitsForSubviews() : UITraitCollection{};
}

void UIView::setOverrideTraitCollection(const std::optional<UITraitCollection>& traits) {
    m_overrideTraits = traits;
    if (m_window) adoptTraits(m_superview ? m_superview->traitsForSubviews() : traits.value_or(UITraitCollection{}));
}

void UIView::traitCollectionDidChange(const UITraitCollection&) {}

// The first traits are taken silently: there is nothing yet that could have followed others.
void UIView::adoptTraits(const UITraitCollection& inherited) {
    const auto kept = strongReference(*this);
    const UITraitCollection& traits = m_overrideTraits ? *m_overrideTraits : inherited;
    if (m_traits == traits) return;
    const auto previous = m_traits;
    m_traits = traits;
    setNeedsLayout();
    setNeedsDisplay();
    if (previous) {
        traitCollectionDidChange(*previous);
        if (m_viewController) m_viewController->traitCollectionDidChange(*previous);
    }
    const auto subviews = m_subviews;
    for (const auto& subview : subviews)
        if (subview->m_superview == this && subview->m_window) subview->adoptTraits(traitsForSubviews());
}

void UIView::noticeLanguage() {
    const std::uint64_t count = foundation::LanguageChanges::count();
    if (std::exchange(m_languageChangeCount, count) == count) return;
    const auto kept = strongReference(*this);
    setNeedsLayout();
    setNeedsDisplay();
    languageDidChange();
    if (m_viewController) m_viewController->languageDidChange();
}

void UIView::followLanguage() {
    noticeLanguage();
    const auto subviews = m_subviews;
    for (const auto& subview : subviews)
        if (subview->m_superview == this && subview->m_window) subview->followLanguage();
}

geometry::PhysicalInsets UIView::safeAreaInsets() const { return safeAreaInsetsOf(bounds()); }

geometry::PhysicalInsets UIView::safeAreaInsetsOf(const geometry::Rect& rect) const {
    if (!m_window) return m_viewController ? m_viewController->expectedSafeArea() : geometry::PhysicalInsets{};
    const geometry::PhysicalInsets unsafe = m_window->windowSafeArea();
    const geometry::Size size = m_window->frame().size;
    const geometry::Rect here = convertTo(rect, m_window);
    const auto covered = [](double overlap, double inset) { return std::clamp(overlap, 0.0, inset); };
    return {covered(unsafe.top - here.minY(), unsafe.top), covered(unsafe.left - here.minX(), unsafe.left),
            covered(here.maxY() - (size.height - unsafe.bottom), unsafe.bottom),
            covered(here.maxX() - (size.width - unsafe.right), unsafe.right)};
}

geometry::Rect UIView::safeAreaRect() const {
    const geometry::PhysicalInsets insets = safeAreaInsets();
    const geometry::Rect all = bounds();
    return {{all.minX() + insets.left, all.minY() + insets.top},
            {std::max(0.0, all.width() - insets.left - insets.right), std::max(0.0, all.height() - insets.top - insets.bottom)}};
}

void UIView::noticeSafeArea() {
    const geometry::PhysicalInsets insets = safeAreaInsets();
    if (insets == m_lastSafeArea) return;
    m_lastSafeArea = insets;
    safeAreaInsetsDidChange();
    if (m_viewController) m_viewController->viewSafeAreaInsetsDidChange();
}

// --- Properties ---

void UIView::setBackgroundColor(const std::optional<UIColor>& color) {
    if (m_backgroundColor == color) return;
    m_backgroundColor = color;
    setNeedsDisplay();
}

void UIView::setAlpha(double alpha) {
    m_alpha = std::clamp(alpha, 0.0, 1.0);
    setNeedsDisplay();
}

void UIView::setHidden(bool hidden) {
    if (m_isHidden == hidden) return;
    m_isHidden = hidden;
    setNeedsDisplay();
    if (m_superview) m_superview->subviewDidInvalidateIntrinsicContentSize(*this);
}

void UIView::setClipsToBounds(bool clips) {
    m_clipsToBounds = clips;
    setNeedsDisplay();
}

void UIView::setCornerRadius(double radius) {
    m_cornerRadius = std::max(0.0, radius);
    setNeedsDisplay();
}

std::optional<UIColor> UIView::tintColor() const {
    for (const UIView* view = this; view; view = view->m_superview)
        if (view->m_tintColor) return view->m_tintColor;
    return {};
}

void UIView::setTintColor(const std::optional<UIColor>& color) {
    m_tintColor = color;
    setNeedsDisplay();
}

void UIView::setUserInteractionEnabled(bool enabled) { m_isUserInteractionEnabled = enabled; }

} // namespace proupsells::uikit
