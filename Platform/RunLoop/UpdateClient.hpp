// What takes part in the update at the end of a turn.
#pragma once

#include "Platform/System/Compiler.hpp"

namespace proupsells::runloop {

// Something that is brought up to date at the end of a turn, at most once a turn for each request.
class PROUPSELLS_EXPORT UpdateClient {
public:
    virtual ~UpdateClient() = default;
    // Called on the main thread, within the turn that the request has led to.
    virtual void update() = 0;
};

} // namespace proupsells::runloop
