// Loading, and what a controller knows of the place that it is made for.
#include "Platform/UIKit/Controllers/UIViewController.hpp"

#include "Platform/Commons/FatalError.hpp"
#include "Platform/UIKit/Controllers/UINavigationController.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"

namespace proupsells::uikit {

UIViewController::~UIViewController() {
    if (m_view) m_view->m_viewController = nullptr;
    for (const auto& child : m_children) child->m_parent = nullptr;
}

const std::shared_ptr<UIView>& UIViewController::view() {
    if (m_view) return m_view;
    const auto kept = strongReference(*this);
    loadView();
    if (!m_view) commons::fatalError("UIViewController: loadView has set no view");
    viewDidLoad();
    return m_view;
}

void UIViewController::loadView() { setView(std::make_shared<UIView>()); }

void UIViewController::setView(std::shared_ptr<UIView> view) {
    if (m_view) m_view->m_viewController = nullptr;
    m_view = std::move(view);
    if (m_view) m_view->m_viewController = this;
}

UIResponder* UIViewController::nextResponder() const {
    if (const auto presenter = m_presenting.lock()) return presenter.get();
    return m_view ? m_view->superview() : nullptr;
}

void UIViewController::setTitle(std::string title) {
    m_title = std::move(title);
    navigationItemChanged();
}

void UIViewController::setRightBarButtonItem(UIBarButtonItem item) {
    m_navigationItem.rightBarButtonItem = std::move(item);
    navigationItemChanged();
}

void UIViewController::navigationItemChanged() {
    if (UINavigationController* navigation = navigationController()) navigation->updateBar();
}

UINavigationController* UIViewController::navigationController() const {
    for (UIViewController* ancestor = m_parent; ancestor; ancestor = ancestor->m_parent)
        if (auto* navigation = dynamic_cast<UINavigationController*>(ancestor)) return navigation;
    return nullptr;
}

UIWindow* UIViewController::window() const { return m_view ? m_view->window() : nullptr; }

// --- The place that the controller is made for ---

UITraitCollection UIViewController::traitCollection() const { return m_view ? m_view->traitCollection() : expectedTraits(); }

UITraitCollection UIViewController::expectedTraits() const {
    if (m_parent) return m_parent->traitCollection();
    const auto window = m_expectedWindow.lock();
    if (!window) return {};
    UITraitCollection traits = window->traits();
    const double width = expectedFrame(*window).width();
    traits.horizontalSizeClass = width < regularWidth ? UIUserInterfaceSizeClass::compact : UIUserInterfaceSizeClass::regular;
    return traits;
}

geometry::PhysicalInsets UIViewController::expectedSafeArea() const {
    if (m_parent) {
        const UIView* outside = m_parent->viewIfLoaded();
        return m_parent->safeAreaForChildren(outside ? outside->safeAreaInsets() : m_parent->expectedSafeArea());
    }
    const auto window = m_expectedWindow.lock();
    if (!window) return {};
    const geometry::PhysicalInsets unsafe = window->windowSafeArea();
    const geometry::Size size = window->frame().size;
    const geometry::Rect here = expectedFrame(*window);
    return {std::max(0.0, unsafe.top - here.minY()), std::max(0.0, unsafe.left - here.minX()),
            std::max(0.0, here.maxY() - (size.height - unsafe.bottom)), std::max(0.0, here.maxX() - (size.width - unsafe.right))};
}

geometry::Rect UIViewController::expectedFrame(const UIWindow& window) const {
    if (m_presenting.expired()) return {{}, window.frame().size};
    return presentationFrame(m_modalPresentationStyle, m_preferredContentSize, window.frame().size);
}

} // namespace proupsells::uikit
