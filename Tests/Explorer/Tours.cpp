#include "Tests/Explorer/Tours.hpp"

#include <array>

namespace proupsells::explorer {

namespace {

constexpr std::array offers{Deed::offerNone,    Deed::offerLifetime, Deed::offerYearly,
                            Deed::offerMonthly, Deed::offerBoth,     Deed::offerSeveral};

// A control that only turns the carousel's pages, opens a category or moves a shelf.
bool isScenery(const std::string& identifier) {
    return identifier.starts_with("carousel") || identifier.starts_with("comparison.category") ||
           identifier.starts_with("store.shelf");
}

std::string wordFor(Party party) { return party == Party::present ? "there" : party == Party::absent ? "absent" : "released"; }

// Everything that a person can do by hand or by voice.
Journey byHand() {
    Journey journey{"hand", "every tap and assistive operation, with time in between", {}};
    const Alphabet all{.hasTaps = true, .hasAssistance = true, .waits = {"0.2", "1"}, .deeds = {Deed::openStore}};
    journey.tours.push_back({.setting = {.name = "hand"}, .alphabet = all});
    journey.tours.push_back({.setting = {.name = "hand-low", .size = {375, 600}}, .alphabet = all, .pause_s = 1});
    journey.tours.push_back({.setting = {.name = "hand-sheet", .size = {1000, 900}}, .alphabet = all, .pause_s = 1});
    journey.tours.push_back({.setting = {.name = "hand-short", .offer = Deed::offerSeveral},
                             .alphabet = all,
                             .reach = 2,
                             .isInTests = true,
                             .isExplored = false});
    return journey;
}

Tour keysOn(const std::string& screen, const char* opening, std::size_t reach) {
    return {.setting = {.name = "keys-on-" + screen},
            .alphabet = {.hasFocusing = true, .hasKeys = true, .deeds = {Deed::openStore}},
            .opening = readActions(opening).value(),
            .pause_s = 1,
            .tellsPagesApart = false,
            .reach = reach};
}

// From any control to any other one, and a few keys further.
Journey byKeys() {
    Journey journey{"keys", "every key, and the focus given by a screen reader", {}};
    journey.tours = {keysOn("paywall", "", 4), keysOn("comparison", "tap comparePlans; wait 1", 3),
                     keysOn("store", "host openStore; wait 1", 3), keysOn("pages", "focus carousel.pageControl", 2)};
    journey.tours.back().tellsPagesApart = journey.tours.back().isInTests = true;
    return journey;
}

// As far as keys lead.
Journey byKeysAlone() {
    const Alphabet keys{.hasKeys = true, .deeds = {Deed::openStore}};
    return {"keys-alone",
            "every key, as far as they lead",
            {{.setting = {.name = "keys"}, .alphabet = keys, .pause_s = 1, .tellsPagesApart = false}},
            true};
}

// What changes while the screens are open.
Journey withOffers() {
    Journey journey{"offers", "options and comparison prices, changed at any time", {}};
    Alphabet alphabet{.hasTaps = true, .hasAssistance = true, .waits = {"1"}, .deeds = {offers.begin(), offers.end()}};
    alphabet.deeds.insert(alphabet.deeds.end(), {Deed::promoteYearly, Deed::promoteMonthly, Deed::promoteNothing, Deed::openStore});
    alphabet.leavesOut = isScenery;
    journey.tours.push_back({.setting = {.name = "offers"}, .alphabet = alphabet, .pause_s = 1, .tellsPagesApart = false});
    for (const Deed offer : offers)
        journey.tours.push_back({.setting = {.name = "from-" + std::string(nameOf(offer)), .offer = offer},
                                 .alphabet = alphabet,
                                 .pause_s = 1,
                                 .reach = 2,
                                 .isInTests = offer == Deed::offerSeveral});
    return journey;
}

// Who listens, and how long.
Journey withParties() {
    Journey journey{"parties", "delegate and tracker there, absent, released", {}};
    Alphabet alphabet{.hasTaps = true,
                      .waits = {"1"},
                      .deeds = {Deed::releaseDelegate, Deed::releaseTracker, Deed::unsetParties, Deed::openStore}};
    alphabet.leavesOut = isScenery;
    constexpr std::array parties{Party::present, Party::absent, Party::released};
    for (const Party delegate : parties)
        for (const Party tracker : parties)
            journey.tours.push_back({.setting = {.name = "delegate-" + wordFor(delegate) + "-tracker-" + wordFor(tracker),
                                                 .delegate = delegate,
                                                 .tracker = tracker},
                                     .alphabet = alphabet,
                                     .pause_s = 1,
                                     .isInTests = delegate == Party::released && tracker == Party::present});
    return journey;
}

// A host that shows, hides and lets go whenever it likes.
Journey withHosts() {
    Journey journey{"hosts", "presenting, dismissing and releasing at any time", {}};
    Alphabet alphabet{.hasTaps = true,
                      .waits = {"0.2", "1"},
                      .deeds = {Deed::present, Deed::presentOther, Deed::openStore, Deed::dismiss, Deed::dismissAtOnce,
                                Deed::dismissAll, Deed::letGo, Deed::release}};
    alphabet.leavesOut = isScenery;
    journey.tours.push_back({.setting = {.name = "presented"}, .alphabet = alphabet});
    journey.tours.push_back({.setting = {.name = "embedded", .isEmbedded = true}, .alphabet = alphabet});
    journey.tours.push_back(
        {.setting = {.name = "presented-short"}, .alphabet = alphabet, .reach = 2, .isInTests = true, .isExplored = false});
    return journey;
}

// Each call that the module makes, and what leads to where it is made.
constexpr std::array<std::pair<const char*, const char*>, 16> calls{{{"delegate.didContinueWith", ""},
                                                                     {"delegate.didTapRestore", ""},
                                                                     {"delegate.didTapPrivacyPolicy", ""},
                                                                     {"delegate.didTapTermsOfService", ""},
                                                                     {"delegate.didClose", ""},
                                                                     {"viewed", ""},
                                                                     {"optionSelected", ""},
                                                                     {"purchaseTapped", ""},
                                                                     {"dismissed", ""},
                                                                     {"restoreTapped", ""},
                                                                     {"privacyPolicyTapped", ""},
                                                                     {"termsOfServiceTapped", ""},
                                                                     {"comparePlansTapped", ""},
                                                                     {"viewed", "host openStore"},
                                                                     {"dismissed", "host openStore; wait 1"},
                                                                     {"choosePlanTapped", "host openStore; wait 1"}}};

// Every deed inside every call.
Journey fromInside() {
    Journey journey{"inside", "a host that does something inside a call", {}};
    Alphabet alphabet{.hasTaps = true, .waits = {"1"}};
    alphabet.leavesOut = isScenery;
    for (const auto& [call, opening] : calls)
        for (std::size_t deed = 0; deed < deedNames.size(); ++deed)
            journey.tours.push_back(
                {.setting = {.name = std::string(deedNames[deed]) + "-in-" + call + (opening[0] ? "-of-store" : ""),
                             .reaction = Reaction{call, Deed(deed), opening[0] != 0}},
                 .alphabet = alphabet,
                 .opening = readActions(opening).value(),
                 .reach = 2,
                 .isInTests = journey.tours.size() % 8 == 0});
    return journey;
}

} // namespace

const std::vector<Journey>& allJourneys() {
    static const std::vector<Journey> journeys{byHand(),    byKeys(),     withOffers(), withParties(),
                                               withHosts(), fromInside(), byKeysAlone()};
    return journeys;
}

const Setting* settingCalled(std::string_view name) {
    for (const Journey& journey : allJourneys())
        for (const Tour& tour : journey.tours)
            if (tour.setting.name == name) return &tour.setting;
    return nullptr;
}

} // namespace proupsells::explorer
