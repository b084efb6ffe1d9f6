// What a host does by itself, between the person's actions or from inside a call.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace proupsells::explorer {

enum class Deed : std::uint8_t {
    offerNone,
    offerLifetime, // which the paywall does not show
    offerYearly,
    offerMonthly,
    offerBoth,
    offerSeveral, // two of a kind, and one for a lifetime
    promoteYearly,
    promoteMonthly,
    promoteNothing,
    present,         // the entry controller, over the window's root
    presentOther,    // a controller of its own, over whatever the entry controller is in
    openStore,       // as a paywall with a control for it would
    dismiss,         // by the entry controller, animated
    dismissAtOnce,   // likewise without an animation
    dismissAll,      // by the window's root
    letGo,           // of the entry controller
    release,         // of the window's content and the entry controller
    releaseDelegate, // which is held weakly
    releaseTracker,  // likewise
    unsetParties,    // neither delegate nor tracker from now on
    tapAgain,        // what was tapped last
};

inline constexpr std::array<std::string_view, 21> deedNames{
    "offerNone",      "offerLifetime",  "offerYearly", "offerMonthly",    "offerBoth",      "offerSeveral", "promoteYearly",
    "promoteMonthly", "promoteNothing", "present",     "presentOther",    "openStore",      "dismiss",      "dismissAtOnce",
    "dismissAll",     "letGo",          "release",     "releaseDelegate", "releaseTracker", "unsetParties", "tapAgain"};

inline std::string_view nameOf(Deed deed) { return deedNames[std::size_t(deed)]; }
// Absent when no deed is called so.
inline std::optional<Deed> deedCalled(std::string_view name) {
    for (std::size_t i = 0; i < deedNames.size(); ++i)
        if (deedNames[i] == name) return Deed(i);
    return std::nullopt;
}

} // namespace proupsells::explorer
