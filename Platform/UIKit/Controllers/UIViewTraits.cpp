// What views and their controllers take over from around them: traits, the language, safe areas.
#include "Platform/UIKit/Controllers/UIWindow.hpp"

namespace proupsells::uikit {

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

} // namespace proupsells::uikit
