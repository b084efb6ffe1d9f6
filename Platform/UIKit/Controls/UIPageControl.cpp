#include "Platform/UIKit/Controls/UIPageControl.hpp"

#include <cmath>

#include "Platform/Foundation/Bundle.hpp"
#include "Platform/Foundation/Format.hpp"

namespace proupsells::uikit {

void UIPageControl::setNumberOfPages(int count) {
    count = std::max(0, count);
    if (m_numberOfPages == count) return;
    m_numberOfPages = count;
    setCurrentPage(m_currentPage);
    invalidateIntrinsicContentSize();
    setNeedsDisplay();
}

void UIPageControl::setCurrentPage(int page) {
    page = std::clamp(page, 0, std::max(0, m_numberOfPages - 1));
    if (m_currentPage == page) return;
    m_currentPage = page;
    setNeedsDisplay();
}

void UIPageControl::setBackgroundStyle(BackgroundStyle style) { m_backgroundStyle = style; }

geometry::Size UIPageControl::intrinsicContentSize() const {
    constexpr double height = 26;
    return {m_numberOfPages * cellWidth, height};
}

geometry::Point UIPageControl::dotCenter(int page) const {
    const double fromMiddle = (page + 0.5 - m_numberOfPages / 2.0) * cellWidth;
    return {bounds().midX() + (isRightToLeft() ? -fromMiddle : fromMiddle), bounds().midY()};
}

int UIPageControl::pageAt(double x) const {
    const double fromMiddle = isRightToLeft() ? bounds().midX() - x : x - bounds().midX();
    return int(std::floor(fromMiddle / cellWidth + m_numberOfPages / 2.0));
}

void UIPageControl::goToPage(int page) {
    const int before = m_currentPage;
    setCurrentPage(page);
    if (m_currentPage != before) sendActions(Event::valueChanged);
}

void UIPageControl::touchesEnded(const UITouch& touch) {
    const auto kept = strongReference(*this);
    const bool isTap = isTracking() && isEnabled() && isInside(touch);
    UIControl::touchesEnded(touch);
    if (isTap) goToPage(pageAt(touch.location(*this).x));
}

std::string UIPageControl::accessibilityValue() const {
    if (m_numberOfPages == 0) return {};
    const std::string& sentence = foundation::localizedString(
        "page %1$@ of %2$@", "Spoken value of a page indicator: the current page and the number of pages");
    return foundation::format(sentence, {std::to_string(m_currentPage + 1), std::to_string(m_numberOfPages)});
}

void UIPageControl::draw(graphics::PaintContext& context, const graphics::PaintState& state) const {
    constexpr double diameter = 7, otherDotsOpacity = 0.3;
    const graphics::RGBA color = dotColor.resolved(state.scheme);
    for (int page = 0; page < m_numberOfPages; ++page) {
        const geometry::Point center = dotCenter(page);
        const geometry::Rect dot{{center.x - diameter / 2, center.y - diameter / 2}, {diameter, diameter}};
        context.fillEllipse(page == m_currentPage ? state : state.fadedBy(otherDotsOpacity), dot, color);
    }
}

void UIPageControl::describe(accessibility::SemanticNode& node, const graphics::PaintState& state) const {
    UIControl::describe(node, state);
    node.traits = node.traits | accessibility::Traits::adjustable;
    node.spoken.page = m_numberOfPages > 0 ? m_currentPage + 1 : 0;
    node.spoken.pageCount = m_numberOfPages;
    if (!isEnabled()) return;
    node.adjust = [control = weakReference(const_cast<UIPageControl&>(*this))](int step) {
        if (const auto held = control.lock(); held && held->canBeOperated()) held->goToPage(held->m_currentPage + step);
    };
}

} // namespace proupsells::uikit
