#include "ProUpsells/VerticallyStackedContainerViewController.hpp"

#include <utility>

#include "ProUpsells/UnsupportedInitializer.hpp"

namespace proupsells {

VerticallyStackedContainerViewController::VerticallyStackedContainerViewController(
    std::shared_ptr<uikit::UIViewController> firstShelf, std::shared_ptr<uikit::UIViewController> secondShelf)
    : m_firstShelf(std::move(firstShelf)), m_secondShelf(std::move(secondShelf)) {}

VerticallyStackedContainerViewController::VerticallyStackedContainerViewController(const foundation::Coder&) {
    stopAtUnimplementedInitializer("init(coder:)", "VerticallyStackedContainerViewController");
}

void VerticallyStackedContainerViewController::setContentSpacing(double spacing) {
    m_contentSpacing = spacing;
    if (m_shelfSpacingConstraint) m_shelfSpacingConstraint->setConstant(spacing);
}

void VerticallyStackedContainerViewController::viewDidLoad() {
    addChild(m_firstShelf);
    addChild(m_secondShelf);
    m_firstShelf->didMoveToParent(this);
    m_secondShelf->didMoveToParent(this);

    uikit::UIView& root = *view();
    const auto first = m_firstShelf->view(), second = m_secondShelf->view();
    first->setTranslatesAutoresizingMaskIntoConstraints(false);
    second->setTranslatesAutoresizingMaskIntoConstraints(false);
    root.addSubview(first);
    root.addSubview(second);

    m_shelfSpacingConstraint = second->topAnchor().constraintEqualTo(first->bottomAnchor(), m_contentSpacing);
    uikit::NSLayoutConstraint::activate({
        first->topAnchor().constraintEqualTo(root.topAnchor()),
        first->centerXAnchor().constraintEqualTo(root.centerXAnchor()),
        first->leadingAnchor().constraintEqualTo(root.leadingAnchor()),
        second->centerXAnchor().constraintEqualTo(root.centerXAnchor()),
        second->leadingAnchor().constraintEqualTo(root.leadingAnchor()),
        second->bottomAnchor().constraintEqualTo(root.bottomAnchor()),
        m_shelfSpacingConstraint,
    });
}

} // namespace proupsells
