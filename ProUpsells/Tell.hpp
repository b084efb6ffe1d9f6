// Calls on delegates and trackers.
#pragma once

#include <functional>
#include <memory>

namespace proupsells {

// Calls the operation on `party`, which stays alive until the call is over. Does nothing when nobody is there.
template <class Party, class Operation, class... Arguments>
void tell(const std::weak_ptr<Party>& party, Operation operation, Arguments&&... arguments) {
    if (const auto present = party.lock()) std::invoke(operation, *present, arguments...);
}

} // namespace proupsells
