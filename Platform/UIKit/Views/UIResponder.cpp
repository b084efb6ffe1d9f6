#include "Platform/UIKit/Views/UIResponder.hpp"

#include "Platform/UIKit/Views/UIView.hpp"

namespace proupsells::uikit {

geometry::Point UITouch::location(const UIView& view) const { return view.convertFrom(windowLocation, nullptr); }

geometry::Point UITouch::startLocation(const UIView& view) const { return view.convertFrom(startWindowLocation, nullptr); }

bool UIResponder::respond(Selector, UIResponder*) { return false; }

bool UIResponder::sendUpTheChain(Selector action, UIResponder* sender) {
    for (UIResponder* responder = this; responder; responder = responder->nextResponder()) {
        const auto kept = responder->weak_from_this().lock();
        if (responder->respond(action, sender)) return true;
    }
    return false;
}

void UIResponder::touchesBegan(const UITouch& touch) {
    if (UIResponder* next = nextResponder()) next->touchesBegan(touch);
}

void UIResponder::touchesMoved(const UITouch& touch) {
    if (UIResponder* next = nextResponder()) next->touchesMoved(touch);
}

void UIResponder::touchesEnded(const UITouch& touch) {
    if (UIResponder* next = nextResponder()) next->touchesEnded(touch);
}

void UIResponder::touchesCancelled(const UITouch& touch) {
    if (UIResponder* next = nextResponder()) next->touchesCancelled(touch);
}

} // namespace proupsells::uikit
