// What a world is made of before anybody acts in it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Platform/Geometry/Geometry.hpp"
#include "ProUpsells/SubscriptionOption.hpp"
#include "Tests/Explorer/Deed.hpp"

namespace proupsells::explorer {

// Whether a host has a delegate or a tracker; released: it had one while the paywall came.
enum class Party : std::uint8_t { present, absent, released };

// What a host does inside a call, the first time that it is made.
struct Reaction {
    std::string call; // as the ledger has it, up to the arguments: "delegate.didContinueWith"
    Deed deed = Deed::dismiss;
    bool isOfStore = false; // the store page's call of that name instead of the paywall's
};

struct Setting {
    std::string name{}; // without blanks and colons
    Deed offer = Deed::offerBoth;
    bool promotesYearly = false;
    bool promotesMonthly = false;
    Party delegate = Party::present;
    Party tracker = Party::present;
    geometry::Size size{375, 800}; // points
    bool isEmbedded = false;       // the entry controller is the window's root instead of being presented
    std::optional<Reaction> reaction{};
};

// The plans of an offer, in the order in which the host has them.
std::vector<SubscriptionOption> plansOf(Deed offer);

} // namespace proupsells::explorer
