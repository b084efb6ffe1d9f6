// One thing that a person, an assistive technology, time or a host does.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Platform/Host/WindowContent.hpp"
#include "Tests/Explorer/Deed.hpp"

namespace proupsells::explorer {

struct Action {
    enum class Kind : std::uint8_t {
        tap,       // a finger on the control, after as much scrolling as it needs
        activate,  // the assistive operation of the control
        increment, // likewise, one step up
        decrement, // likewise, one step down
        focus,     // gives the keys' focus to it
        reveal,    // scrolls to it
        key,
        wait,
        host
    };

    Kind kind = Kind::wait;
    std::string target; // the control's identifier, the key's or the deed's name, or the seconds

    bool operator==(const Action&) const = default;
};

// As in "tap subscribe", "key tab", "wait 0.3", "host offerNone".
std::string textOf(const Action& action);
// Actions with a semicolon between each two.
std::string textOf(const std::vector<Action>& actions);
// Absent when the text is no list of actions.
std::optional<std::vector<Action>> readActions(std::string_view text);

// The keys by name.
const std::vector<std::pair<std::string, host::Key>>& namedKeys();
// Absent when no key is called so.
std::optional<host::Key> keyCalled(std::string_view name);

} // namespace proupsells::explorer
