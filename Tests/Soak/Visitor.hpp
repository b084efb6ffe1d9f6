// Somebody who does anything at all to the screens, by a seed.
#pragma once

#include <deque>
#include <random>
#include <string>
#include <vector>

#include "Tests/Soak/Stage.hpp"

namespace proupsells::soak {

class Visitor {
public:
    Visitor(Stage& stage, std::uint64_t seed) : m_stage(stage), m_random(seed) {}

    // One touch, key, scroll or operation; a change of the window, of its traits or of what is offered; or some time. Presents the
    // paywall where there is none.
    void act();
    // What is wrong with the screen now, in words; empty for nothing.
    std::vector<std::string> problems();
    // The last deeds, oldest first.
    std::string lastDeeds() const;

private:
    void note(std::string deed);
    int below(int limit) { return int(m_random() % std::uint64_t(limit)); }
    bool tosses() { return below(2) == 1; }
    geometry::Point place();

    void tap();
    void drag();
    void press();
    void operate();
    void scroll();
    void resize();
    void setTraits();
    void setOffers();
    void wait();
    void openStore();

    Stage& m_stage;
    std::mt19937_64 m_random;
    std::deque<std::string> m_deeds;
    bool m_hasMovedFocus = false; // by the last deed
};

} // namespace proupsells::soak
