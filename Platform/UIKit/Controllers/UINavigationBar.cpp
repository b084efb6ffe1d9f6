#include "Platform/UIKit/Controllers/UINavigationBar.hpp"

namespace proupsells::uikit {

UINavigationBar::UINavigationBar() : m_title(std::make_shared<UILabel>()) {
    m_title->setTextAlignment(graphics::TextAlignment::center);
    m_title->accessibilityTraits = accessibility::Traits::header;
    addSubview(m_title);
}

void UINavigationBar::setItem(const UINavigationItem& item) {
    m_title->setText(item.title);
    m_title->setHidden(item.title.empty());
    if (m_button) m_button->removeFromSuperview();
    m_button = item.rightBarButtonItem ? makeButton(*item.rightBarButtonItem) : nullptr;
    if (m_button) addSubview(m_button);
    setNeedsLayout();
}

std::shared_ptr<UIButton> UINavigationBar::makeButton(const UIBarButtonItem& item) {
    auto button = std::make_shared<UIButton>();
    button->accessibilityIdentifier = item.accessibilityIdentifier;
    button->accessibilityLabel = item.accessibilityLabel;
    if (item.image) {
        button->setImage(item.image);
    } else {
        auto title = std::make_shared<UILabel>();
        title->setText(item.title);
        title->setTextAlignment(graphics::TextAlignment::center);
        title->fillSuperview();
        button->addSubview(title);
    }
    if (item.action)
        button->addAction([action = item.action](UIControl&) { action(); }, UIControl::Event::touchUpInside);
    else if (!item.selector.name.empty())
        button->addTarget(nullptr, item.selector, UIControl::Event::touchUpInside);
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
