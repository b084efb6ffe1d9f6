// What makes a subtree come and go.
#pragma once

#include "Platform/SwiftUI/Tree/UpdatePass.hpp"

namespace proupsells::swiftui {

// Told by the parent that inserts, removes or takes back the subtree.
class TransitionHandler {
public:
    virtual void enter(const UpdatePass& pass) = 0;
    // Begins to leave. Returns when it will be gone, in the pass's seconds; that is now or earlier if it goes at once.
    virtual double leave(const UpdatePass& pass) = 0;
    virtual void comeBack(const UpdatePass& pass) = 0;

protected:
    ~TransitionHandler() = default;
};

} // namespace proupsells::swiftui
