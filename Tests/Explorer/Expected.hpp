// What a host is to be told, and what the paywall is to show: the contract, without any of the module's code.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "Tests/Explorer/ExpectedScreens.hpp"
#include "Tests/Explorer/Setting.hpp"

namespace proupsells::explorer {

class Expected {
public:
    using Kind = ExpectedScreens::Kind;

    // From the moment at which the host has shown the paywall.
    explicit Expected(const Setting& setting);

    // What somebody does, by whatever means.
    void press(const std::string& identifier);
    void escape();
    void act(Deed deed);
    // Lets time pass, in seconds.
    void pass(double duration_s);

    // Calls and log lines since the start, in order.
    const std::vector<std::string>& calls() const { return m_calls; }
    const std::vector<std::string>& logs() const { return m_logs; }

    // Whether the program is to stop: a plan is chosen that is not among those of the paywall.
    bool stops() const;
    // The plans that the paywall shows, in its order, and the chosen one's place.
    const std::vector<SubscriptionOption>& plans() const { return m_plans; }
    int chosen() const { return m_chosen; }
    // What is struck through before each plan's price; empty for nothing.
    std::string formerPriceOf(const SubscriptionOption& plan) const;
    std::string subscribeTitle() const;
    // Empty without a plan.
    std::string disclaimer() const;

    bool isTransitioning() const { return m_screens.isTransitioning(); }
    // What is in front; absent when the window is empty.
    std::optional<Kind> front() const;
    bool paywallIsInWindow() const { return m_paywall->stands || m_screens.root() == m_paywall; }
    // Everything that is kept from one action to the next, in words.
    std::string state() const;

private:
    void connect();
    // What only who holds the entry controller can do.
    void actOnPaywall(Deed deed);
    void offer(Deed deed);
    void closePaywall();
    void closeStore();
    void subscribe();
    void dismiss(const ExpectedScreens::ScreenPointer& from, bool isAnimated);
    // Calls on who is there, with what the host does inside.
    void tellDelegate(const std::string& call, const std::string& arguments = "");
    void tellTracker(const std::string& call, const std::string& arguments);
    void tellStoreTracker(const std::string& call);
    void make(const std::string& call, const std::string& arguments);

    std::optional<Reaction> m_reaction; // until it has come
    bool m_isEmbedded;
    bool m_hasDelegate, m_hasTracker; // whether the host keeps them
    bool m_isDelegateSet, m_isTrackerSet;
    bool m_isHeld = true;           // the entry controller, by the host
    bool m_storeHasTracker = false; // whether the store page was given one
    std::string m_lastPress;

    std::vector<SubscriptionOption> m_plans;
    std::string m_offer;
    bool m_promotesYearly, m_promotesMonthly;
    int m_chosen = 0;
    std::string m_reason = "dismissed"; // if the paywall closed now

    ExpectedScreens m_screens;
    ExpectedScreens::ScreenPointer m_root = std::make_shared<ExpectedScreens::Screen>();
    ExpectedScreens::ScreenPointer m_paywall = std::make_shared<ExpectedScreens::Screen>();

    std::vector<std::string> m_calls, m_logs;
};

} // namespace proupsells::explorer
