// Whoever may answer touches and named actions: views and view controllers, linked from the inside out.
#pragma once

#include <memory>
#include <string_view>

#include "Platform/System/Compiler.hpp"
#include "Platform/UIKit/Views/UITouch.hpp"

namespace proupsells::uikit {

// The name of an action that somebody up the responder chain answers. Names live as long as the process.
struct Selector {
    std::string_view name;

    bool operator==(const Selector&) const = default;
};

class PROUPSELLS_EXPORT UIResponder : public std::enable_shared_from_this<UIResponder> {
public:
    UIResponder() = default;
    UIResponder(const UIResponder&) = delete;
    UIResponder& operator=(const UIResponder&) = delete;
    virtual ~UIResponder() = default;

    // The class's name, as in the code.
    virtual std::string_view typeName() const = 0;

    // Who is asked next; null at the end of the chain.
    virtual UIResponder* nextResponder() const { return nullptr; }

    // Does what `action` names and returns true, or returns false when the name means nothing here.
    virtual bool respond(Selector action, UIResponder* sender);
    // Asks this responder, then the next ones, until somebody answers. Returns whether somebody did.
    bool sendUpTheChain(Selector action, UIResponder* sender);

    // Unless overridden, a touch goes to the next responder.
    virtual void touchesBegan(const UITouch& touch);
    virtual void touchesMoved(const UITouch& touch);
    virtual void touchesEnded(const UITouch& touch);
    virtual void touchesCancelled(const UITouch& touch);
};

// A weak reference of the static type, for closures that must not keep `responder` alive. Empty for one without a shared owner,
// which includes every object whose constructor is still running.
template <class Responder>
std::weak_ptr<Responder> weakReference(Responder& responder) {
    return std::static_pointer_cast<Responder>(responder.weak_from_this().lock());
}

// The same as an owner, for keeping `responder` alive through a call.
template <class Responder>
std::shared_ptr<Responder> strongReference(Responder& responder) {
    return std::static_pointer_cast<Responder>(responder.weak_from_this().lock());
}

} // namespace proupsells::uikit
