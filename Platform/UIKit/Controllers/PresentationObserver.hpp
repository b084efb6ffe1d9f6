// Told of what is presented and dismissed, when it is asked for.
#pragma once

#include "Platform/System/Compiler.hpp"
#include "Platform/UIKit/Controllers/UIViewController.hpp"

namespace proupsells::uikit {

class PROUPSELLS_EXPORT PresentationObserver {
public:
    virtual ~PresentationObserver() = default;

    // `size` is the one that the controller will have.
    virtual void willPresent(UIViewController& controller, UIViewController& content, UIModalPresentationStyle style,
                             geometry::Size size) = 0;
    // Told once for all that a call dismisses: `controller` is the lowest one that goes, and what it has presented goes with it.
    // `content` is what the controller shows in the first place.
    virtual void willDismiss(UIViewController& controller, UIViewController& content) = 0;
};

} // namespace proupsells::uikit
