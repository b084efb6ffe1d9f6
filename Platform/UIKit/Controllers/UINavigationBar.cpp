#include "Platform/UIKit/Controllers/UINavigationBar.hpp"

namespace proupsells::uikit {

UINavigationBar::UINavigationBar() : m_title(std::make_shared<UILabel>()) {
    m_title->setTextAlignment(graphics::TextAlignment::center);
    m_title->accessibilityTraits = accessibility::Traits::header;
    accessibilitySpoken.order = -1; // stands above the content, which it is painted over
    addSubview(m_title);
}

void UINavigationBar::setItem(const UINavigationItem& item) {
    m_title->setText(item.title);
    m_title->setHidden(item.title.empty());
    showButton(item.rightBarButtonItem);
    setNeedsLayout();
}

// A button that looks as before stays, and keeps the finger that is on it.
void UINavigationBar::showButton(const std::optional<UIBarButtonItem>& item) {
    const bool isSameButton = m_button && item && item->image == m_item.image && item->title == m_item.title &&
                              item->selector == m_item.selector && bool(item->action) == bool(m_item.action);
    m_item = item.value_or(UIBarButtonItem{});
    if (!isSameButton) {
        if (m_button) m_button->removeFromSuperview();
        m_button = item ? makeButton() : nullptr;
        if (m_button) addSubview(m_button);
    }
    if (!m_button) return;
    m_button->accessibilityIdentifier = m_item.accessibilityIdentifier;
    m_button->accessibilityLabel = m_item.accessibilityLabel;
}

std::shared_ptr<UIButton> UINavigationBar::makeButton() {
    auto button = std::make_shared<UIButton>();
    if (m_item.image) {
        button->setImage(m_item.image);
    } else {
        auto title = std::make_shared<UILabel>();
        title->setText(m_item.title);
        title->setTextAlignment(graphics::TextAlignment::center);
        title->fillSuperview();
        button->addSubview(title);
    }
    if (m_item.action) {
        // The newest action; a copy, since it may take the button away.
        const auto run = [bar = weakReference(*this)](UIControl&) {
            const auto held = bar.lock();
            const auto action = held ? held->m_item.action : nullptr;
            if (action) action();
        };
        button->addAction(run, UIControl::Event::touchUpInside);
    } else if (!m_item.selector.name.empty()) {
        button->addTarget(nullptr, m_item.selector, UIControl::Event::touchUpInside);
    }
    return button;
}

void UINavigationBar::layoutSubviews() {
    constexpr double touchTarget = 44, margin = 8;
    const geometry::Rect room = safeAreaRect();
    const double middle = room.midY();
    const bool mirrored = isRightToLeft();
    double taken = margin;
    if (m_button) {
        const double natural = m_button->subviews().empty() ? 0 : m_button->subviews().front()->intrinsicContentSize().width;
        const double width = std::max(touchTarget, natural);
        const double x = mirrored ? room.minX() + margin : room.maxX() - margin - width;
        m_button->setFrame({{x, middle - touchTarget / 2}, {width, touchTarget}});
        taken += width + margin;
    }
    // Centred in the bar, and so as far from the empty end as from the button.
    const double titleHeight = m_title->intrinsicContentSize().height;
    m_title->setFrame({{room.minX() + taken, middle - titleHeight / 2}, {std::max(0.0, room.width() - 2 * taken), titleHeight}});
}

} // namespace proupsells::uikit
