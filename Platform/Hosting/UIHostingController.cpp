#include "Platform/Hosting/UIHostingController.hpp"

namespace proupsells::hosting {

UIHostingController::UIHostingController(Creation, std::function<swiftui::View()> root) : m_root(std::move(root)) {}

std::shared_ptr<UIHostingController> UIHostingController::create(std::function<swiftui::View()> root) {
    return std::make_shared<UIHostingController>(Creation{}, std::move(root));
}

void UIHostingController::setRootView(std::function<swiftui::View()> root) {
    m_root = std::move(root);
    if (m_hostingView) m_hostingView->host().setRoot(m_root);
}

UIHostingView& UIHostingController::hostingView() {
    view();
    return *m_hostingView;
}

void UIHostingController::loadView() {
    m_hostingView = UIHostingView::create(m_root);
    m_hostingView->setShown(false);
    setView(m_hostingView);
}

void UIHostingController::viewWillAppear(bool /*animated*/) { m_hostingView->setShown(true); }

void UIHostingController::viewDidDisappear(bool /*animated*/) { m_hostingView->setShown(false); }

} // namespace proupsells::hosting
