// Declarative screens inside view controllers.
#pragma once

#include <memory>

#include "Platform/Hosting/UIHostingController.hpp"

namespace proupsells::velauikit {

// Makes `controller` a child of `parent` whose view fills `container`; null means the parent's own view.
void addHostingController(uikit::UIViewController& parent, const std::shared_ptr<hosting::UIHostingController>& controller,
                          uikit::UIView* container = nullptr);

} // namespace proupsells::velauikit
