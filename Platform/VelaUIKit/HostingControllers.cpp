#include "Platform/VelaUIKit/HostingControllers.hpp"

namespace proupsells::velauikit {

void addHostingController(uikit::UIViewController& parent, const std::shared_ptr<hosting::UIHostingController>& controller,
                          uikit::UIView* container) {
    parent.addChild(controller);
    (container ? *container : *parent.view()).addSubview(controller->view());
    controller->view()->fillSuperview();
    controller->didMoveToParent(&parent);
}

} // namespace proupsells::velauikit
