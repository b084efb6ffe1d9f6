// The clients that wait for the end of a turn.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "Platform/RunLoop/UpdateClient.hpp"

namespace proupsells::runloop {

// In the order of their first request; a client that waits already is not added again.
class UpdateQueue {
public:
    // Returns whether the client was added.
    bool add(const std::weak_ptr<UpdateClient>& client, double due_s);
    // When the earliest request is due; absent when no living client waits.
    std::optional<double> earliestDue_s();
    // Takes out the first living client that is due at `moment_s`; null when there is none.
    std::shared_ptr<UpdateClient> takeDue(double moment_s);

private:
    struct Request {
        std::weak_ptr<UpdateClient> client;
        double due_s;
    };
    std::vector<Request> m_requests;
};

} // namespace proupsells::runloop
