#include "Platform/SwiftUI/Tree/Appearances.hpp"

#include <algorithm>
#include <numeric>

#include "Platform/SwiftUI/Tree/Node.hpp"
#include "Platform/SwiftUI/Tree/ViewHost.hpp"

namespace proupsells::swiftui {

using geometry::Axis;
using geometry::extentOf;
using geometry::Rect;

namespace {

// A view of no length is on screen if its place is.
bool isPartlyInside(double start, double end, double windowStart, double windowEnd) {
    return start < windowEnd && (end > windowStart || (end == start && start == windowStart));
}

bool isOnScreen(const Node& node, double now_s) {
    if (node.hasLeft()) return false;
    Rect rect = node.frame();
    for (const Node* outer = node.parent(); outer; outer = outer->parent()) {
        rect = rect.offsetBy(outer->contentTranslation(now_s));
        if (const auto viewport = outer->viewport()) {
            if (!isPartlyInside(rect.minX(), rect.maxX(), viewport->minX(), viewport->maxX()) ||
                !isPartlyInside(rect.minY(), rect.maxY(), viewport->minY(), viewport->maxY()))
                return false;
        }
        rect = rect.offsetBy(outer->frame().origin);
    }
    return true;
}

// A place in the content of the scroll view around a view.
struct ScrolledPlace {
    const Node* scroller = nullptr;
    Rect rect;
};

// Absent outside scroll views, and for what may move by other means.
std::optional<ScrolledPlace> scrolledPlaceOf(const Node& node, double now_s) {
    Rect rect = node.frame();
    for (const Node* outer = node.parent(); outer; outer = outer->parent()) {
        if (outer->viewport()) return ScrolledPlace{outer, rect};
        if (outer->contentTranslation(now_s) != geometry::Point{}) return std::nullopt;
        rect = rect.offsetBy(outer->frame().origin);
    }
    return std::nullopt;
}

} // namespace

void AppearanceObserver::observeAppearance(ViewHost& host) { host.appearances().add(*this); }

AppearanceObserver::~AppearanceObserver() {
    if (m_appearances) m_appearances->remove(*this);
}

void Appearances::add(AppearanceObserver& observer) {
    observer.m_appearances = this;
    observer.m_slot = Slot(m_observers.size());
    m_observers.push_back(&observer);
    forgetPlaces();
}

void Appearances::remove(AppearanceObserver& observer) {
    m_observers[observer.m_slot] = nullptr;
    ++m_goneCount;
    std::replace(m_toBeTold.begin(), m_toBeTold.end(), &observer, static_cast<AppearanceObserver*>(nullptr));
    forgetPlaces();
}

bool Appearances::update(bool isTreeSeen, double now_s) {
    if (m_observers.size() == m_goneCount) return false;
    findCandidates(now_s);
    const bool hasLeft = tell(false, isTreeSeen, now_s);
    const bool hasCome = tell(true, isTreeSeen, now_s);
    if (m_places == Places::known) {
        std::erase_if(m_candidates, [this](Slot slot) { return !m_observers[slot]->m_hasAppeared; });
        std::swap(m_onScreen, m_candidates);
    }
    return hasLeft || hasCome;
}

void Appearances::findCandidates(double now_s) {
    if (m_places == Places::forgotten) {
        closeGaps();
        m_candidates.resize(m_observers.size());
        std::iota(m_candidates.begin(), m_candidates.end(), Slot(0));
        m_places = Places::outOfDate;
        return;
    }
    if (m_places == Places::outOfDate) learnPlaces(now_s);
    m_candidates = m_onScreen;
    m_candidates.insert(m_candidates.end(), m_unscrolled.begin(), m_unscrolled.end());
    collectNear(now_s);
    std::sort(m_candidates.begin(), m_candidates.end());
    m_candidates.erase(std::unique(m_candidates.begin(), m_candidates.end()), m_candidates.end());
}

void Appearances::closeGaps() {
    if (m_goneCount == 0) return;
    std::erase(m_observers, static_cast<AppearanceObserver*>(nullptr));
    m_goneCount = 0;
    for (Slot slot = 0; slot < m_observers.size(); ++slot) m_observers[slot]->m_slot = slot;
}

void Appearances::learnPlaces(double now_s) {
    m_places = Places::known;
    m_scrolled.clear();
    m_unscrolled.clear();
    m_onScreen.clear();
    std::vector<std::vector<Rect>> rects;
    for (Slot slot = 0; slot < m_observers.size(); ++slot) {
        AppearanceObserver& observer = *m_observers[slot];
        if (observer.m_hasAppeared) m_onScreen.push_back(slot);
        const auto place = scrolledPlaceOf(observer.observedNode(), now_s);
        if (!place) {
            m_unscrolled.push_back(slot);
            continue;
        }
        // Most often the same as the last one's.
        if (m_scrolled.empty() || m_scrolled.back().scroller != place->scroller) {
            m_scrolled.push_back({.scroller = place->scroller, .axis = {}, .extents = {}, .slots = {}});
            rects.emplace_back();
        }
        m_scrolled.back().slots.push_back(slot);
        rects.back().push_back(place->rect);
    }
    for (std::size_t index = 0; index < m_scrolled.size(); ++index) {
        Rect all;
        for (const Rect& rect : rects[index]) all = all.united(rect);
        Scrolled& scrolled = m_scrolled[index];
        scrolled.axis = all.width() > all.height() ? Axis::horizontal : Axis::vertical;
        scrolled.extents.assign(rects[index].size(), [&](std::size_t i) { return extentOf(rects[index][i], scrolled.axis); });
    }
}

void Appearances::collectNear(double now_s) {
    // Views of no length count where they only touch the viewport, and rounding may put them a little elsewhere.
    constexpr double margin = 1;
    for (const Scrolled& scrolled : m_scrolled) {
        const geometry::Point translation = scrolled.scroller->contentTranslation(now_s);
        const Rect viewport = scrolled.scroller->viewport()->offsetBy({-translation.x, -translation.y});
        const auto [start, end] = extentOf(viewport, scrolled.axis);
        const auto [firstNear, endNear] = scrolled.extents.reachingInto(start - margin, end + margin);
        m_candidates.insert(m_candidates.end(), scrolled.slots.begin() + std::ptrdiff_t(firstNear),
                            scrolled.slots.begin() + std::ptrdiff_t(endNear));
    }
}

bool Appearances::tell(bool isShown, bool isTreeSeen, double now_s) {
    m_toBeTold.clear();
    for (const Slot slot : m_candidates) {
        AppearanceObserver* observer = m_observers[slot];
        if (observer && observer->m_hasAppeared != isShown &&
            (isTreeSeen && isOnScreen(observer->observedNode(), now_s)) == isShown)
            m_toBeTold.push_back(observer);
    }
    const bool hasChanged = !m_toBeTold.empty();
    // By index: one that goes away in a call leaves a null in its place.
    for (std::size_t index = 0; index < m_toBeTold.size(); ++index) {
        AppearanceObserver* observer = m_toBeTold[index];
        if (!observer) continue;
        observer->m_hasAppeared = isShown;
        observer->appearanceChanged(isShown);
    }
    m_toBeTold.clear();
    return hasChanged;
}

} // namespace proupsells::swiftui
