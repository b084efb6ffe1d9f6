// Tells views when they come on screen and when they leave it.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "Platform/Geometry/Axis.hpp"
#include "Platform/Geometry/Intervals.hpp"

namespace proupsells::swiftui {

class Appearances;
class Node;
class ViewHost;

// Something that is told when it comes on screen and when it leaves it.
class AppearanceObserver {
public:
    virtual ~AppearanceObserver();
    virtual void appearanceChanged(bool isOnScreen) = 0;
    virtual Node& observedNode() = 0;

protected:
    // From its first update on, in the order of the tree.
    void observeAppearance(ViewHost& host);

private:
    friend class Appearances;
    Appearances* m_appearances = nullptr;
    std::uint32_t m_slot = 0; // in the list of all
    bool m_hasAppeared = false;
};

// Those of one tree. While nothing but scrolling goes on, only those are asked that are on screen or may come onto it.
class Appearances {
public:
    // In the order in which they are told. They take themselves away when they end.
    void add(AppearanceObserver& observer);
    // Views may stand elsewhere than so far, scrolling aside.
    void forgetPlaces() { m_places = Places::forgotten; }
    // Tells those that have left the screen, then those that have come onto it. In a tree that cannot be seen, none is on screen.
    // Returns whether anybody was told.
    bool update(bool isTreeSeen, double now_s);

private:
    friend class AppearanceObserver;

    using Slot = std::uint32_t;
    enum class Places : std::uint8_t {
        forgotten, // everybody is asked in the next update
        outOfDate, // everybody has been asked; who asks again learns the places first
        known,
    };
    // Those in one scroll view, with where they are in its content.
    struct Scrolled {
        const Node* scroller = nullptr;
        geometry::Axis axis = geometry::Axis::vertical;
        geometry::Intervals extents;
        std::vector<Slot> slots;
    };

    void remove(AppearanceObserver& observer);
    void findCandidates(double now_s);
    void closeGaps();
    void learnPlaces(double now_s);
    void collectNear(double now_s);
    bool tell(bool isShown, bool isTreeSeen, double now_s);

    std::vector<AppearanceObserver*> m_observers; // null where one has gone
    std::size_t m_goneCount = 0;
    std::vector<Slot> m_candidates;              // of the update under way, in order
    std::vector<AppearanceObserver*> m_toBeTold; // null where one has gone
    Places m_places = Places::forgotten;
    // While the places are known:
    std::vector<Scrolled> m_scrolled;
    std::vector<Slot> m_unscrolled;
    std::vector<Slot> m_onScreen;
};

} // namespace proupsells::swiftui
