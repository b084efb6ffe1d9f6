#include "ProUpsells/VelaProStoreCell.hpp"

namespace proupsells {

void VelaProStoreCell::embed(const std::shared_ptr<uikit::UIViewController>& controller, uikit::UIViewController& parent) {
    parent.addChild(controller);
    controller->didMoveToParent(&parent);
    controller->view()->setFrame(contentView()->bounds());
    contentView()->addSubview(controller->view());
    m_viewController = controller;
}

void VelaProStoreCell::detach() {
    const auto controller = m_viewController.lock();
    m_viewController.reset();
    if (!controller) return;
    controller->view()->removeFromSuperview();
    controller->willMoveToParent(nullptr);
    controller->removeFromParent();
}

void VelaProStoreCell::layoutSubviews() {
    UICollectionViewCell::layoutSubviews();
    if (const auto controller = m_viewController.lock()) controller->view()->setFrame(contentView()->bounds());
}

} // namespace proupsells
