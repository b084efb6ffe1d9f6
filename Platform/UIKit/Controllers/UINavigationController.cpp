#include "Platform/UIKit/Controllers/UINavigationController.hpp"

#include "Platform/Commons/FatalError.hpp"
#include "Platform/UIKit/Controllers/UINavigationBar.hpp"

namespace proupsells::uikit {

std::shared_ptr<UINavigationController> UINavigationController::create(std::shared_ptr<UIViewController> root) {
    if (!root) commons::fatalError("UINavigationController: there is no root controller");
    auto controller = std::make_shared<UINavigationController>(Creation{});
    controller->addChild(root);
    root->didMoveToParent(controller.get());
    return controller;
}

UIViewController& UINavigationController::contentViewController() {
    UIViewController* top = topViewController();
    return top ? top->contentViewController() : *this;
}

void UINavigationController::setBarBackgroundColor(const UIColor& color) {
    m_barBackgroundColor = color;
    if (UIView* view = viewIfLoaded()) view->setBackgroundColor(color);
}

void UINavigationController::setBarTintColor(const std::optional<UIColor>& color) {
    m_barTintColor = color;
    if (m_bar) m_bar->setTintColor(color);
}

void UINavigationController::viewDidLoad() {
    view()->setBackgroundColor(m_barBackgroundColor);
    if (UIViewController* top = topViewController()) view()->addSubview(top->view());
    m_bar = std::make_shared<UINavigationBar>();
    m_bar->setTintColor(m_barTintColor);
    view()->addSubview(m_bar);
    updateBar();
}

void UINavigationController::viewDidLayoutSubviews() {
    const geometry::Rect all = view()->bounds();
    const double barBottom = view()->safeAreaInsets().top + barHeight;
    m_bar->setFrame({{}, {all.width(), barBottom}});
    if (UIViewController* top = topViewController())
        top->view()->setFrame({{0, barBottom}, {all.width(), std::max(0.0, all.height() - barBottom)}});
}

geometry::PhysicalInsets UINavigationController::safeAreaForChildren(const geometry::PhysicalInsets& own) const {
    return {0, own.left, own.bottom, own.right};
}

void UINavigationController::updateBar() {
    const UIViewController* top = topViewController();
    if (!m_bar || !top) return;
    UINavigationItem item = top->navigationItem();
    if (item.title.empty()) item.title = top->title();
    m_bar->setItem(item);
}

} // namespace proupsells::uikit
