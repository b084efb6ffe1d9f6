#include "Platform/UIKit/Controllers/KeyboardFocus.hpp"

#include <algorithm>

#include "Platform/UIKit/Controllers/FocusRing.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"

namespace proupsells::uikit {

using accessibility::Role;
using host::Key;

namespace {

bool isChecked(const accessibility::ReadingElement& element) { return element.isChecked.value_or(false); }

void addTexts(const accessibility::SemanticNode& node, std::vector<geometry::Rect>& texts) {
    if (node.text && node.isOnScreen && node.opacity > 0) texts.push_back(node.frame);
    for (const accessibility::SemanticNode& child : node.children) addTexts(child, texts);
}

void forEachElement(accessibility::ReadingElement& element, const auto& visit) {
    visit(element);
    for (accessibility::ReadingElement& child : element.children) forEachElement(child, visit);
}

} // namespace

void KeyboardFocus::collect(const Element& element, const Element* group, std::vector<Stop>& stops) {
    if (element.takesFocus) stops.push_back({&element, group});
    const Element* const inner = element.role == Role::radioGroup ? &element : nullptr;
    for (const Element& child : element.children) collect(child, inner, stops);
}

KeyboardFocus::Stops KeyboardFocus::stopsIn(const accessibility::SemanticNode& screen) {
    Stops stops{accessibility::readingOf(screen), {}};
    collect(stops.reading, nullptr, stops.all);
    return stops;
}

KeyboardFocus::Stops KeyboardFocus::stops() const { return stopsIn(m_window.semanticTree()); }

KeyboardFocus::Place* KeyboardFocus::place() {
    const UIViewController* const front = m_window.frontMostViewController();
    std::erase_if(m_places, [](const Place& place) { return place.screen.expired(); });
    const auto known =
        std::find_if(m_places.begin(), m_places.end(), [&](const Place& place) { return place.screen.lock().get() == front; });
    return known == m_places.end() ? nullptr : &*known;
}

// A view that was made anew has another id and the same identifier; one that shows something else now has it the other way round.
std::optional<std::size_t> KeyboardFocus::indexOf(const Place& place, const std::vector<Stop>& stops) {
    const auto isSame = [&](const Stop& stop) {
        return stop.element->identifier == place.identifier && stop.element->id == place.id;
    };
    const auto isAgain = [&](const Stop& stop) {
        return !place.identifier.empty() && stop.element->identifier == place.identifier;
    };
    auto found = std::find_if(stops.begin(), stops.end(), isSame);
    if (found == stops.end()) found = std::find_if(stops.begin(), stops.end(), isAgain);
    return found == stops.end() ? std::nullopt : std::optional(std::size_t(found - stops.begin()));
}

std::optional<std::size_t> KeyboardFocus::indexInFocus(const std::vector<Stop>& stops) {
    if (!m_isThere || stops.empty()) return std::nullopt;
    if (!place()) {
        const auto first = nextStop(stops, -1, 1, nullptr);
        give(stops[*first], *first);
    }
    Place* const here = place();
    const std::optional<std::size_t> index = here ? indexOf(*here, stops) : std::nullopt;
    if (index) here->index = *index;
    return index;
}

void KeyboardFocus::give(const Stop& stop, std::size_t index) {
    UIViewController* const front = m_window.frontMostViewController();
    if (!front) return;
    m_isThere = true;
    Place* here = place();
    if (!here) here = &m_places.emplace_back(Place{weakReference(*front), 0, {}, 0});
    here->id = stop.element->id;
    here->identifier = stop.element->identifier;
    here->index = index;
    m_window.setNeedsDisplay();
}

void KeyboardFocus::giveInSight(const std::vector<Stop>& stops, std::size_t index) {
    give(stops[index], index);
    if (const auto& reveal = stops[index].element->revealWhole) reveal();
    // What comes into sight with it may change the page, and push it away again.
    constexpr int furtherAttempts = 2;
    for (int attempt = 0; !isFocusSeen() && !m_window.isTransitioning() && attempt < furtherAttempts; ++attempt) revealFocus();
}

bool KeyboardFocus::isFocusSeen() {
    m_lastFrame = frameInFocus(m_window.semanticTree());
    return m_lastFrame.has_value();
}

void KeyboardFocus::revealFocus() {
    const Place* const here = place();
    const Stops now = stops();
    const std::optional<std::size_t> index = here ? indexOf(*here, now.all) : std::nullopt;
    if (!index) return;
    if (const auto& reveal = now.all[*index].element->revealWhole) reveal();
}

std::optional<std::size_t> KeyboardFocus::nextStop(const std::vector<Stop>& stops, std::ptrdiff_t from, int step,
                                                   const Element* group) {
    const auto isEntry = [&](const Stop& stop) {
        if (!stop.group) return true;
        if (stop.group == group) return false; // left as a whole
        const auto isMember = [&](const Stop& other) { return other.group == stop.group; };
        const auto isChosen = [&](const Stop& other) { return isMember(other) && isChecked(*other.element); };
        auto entry = std::find_if(stops.begin(), stops.end(), isChosen);
        if (entry == stops.end()) entry = std::find_if(stops.begin(), stops.end(), isMember);
        return entry->element == stop.element;
    };
    for (std::ptrdiff_t index = from + step; index >= 0 && index < std::ptrdiff_t(stops.size()); index += step)
        if (isEntry(stops[std::size_t(index)])) return std::size_t(index);
    return std::nullopt;
}

bool KeyboardFocus::move(int step, bool leavesAtEnds) {
    if (!m_isThere) return take(step > 0 ? host::FocusEnd::first : host::FocusEnd::last);
    const Stops stops = this->stops();
    if (stops.all.empty()) {
        drop();
        return false;
    }
    const auto count = std::ptrdiff_t(stops.all.size());
    const std::optional<std::size_t> here = indexInFocus(stops.all);
    // Where the control was that has gone is now the next one.
    const auto lost = std::ptrdiff_t(place() ? std::min(place()->index, stops.all.size()) : 0) - (step > 0 ? 1 : 0);
    const Element* const group = here ? stops.all[*here].group : nullptr;
    std::optional<std::size_t> next = nextStop(stops.all, here ? std::ptrdiff_t(*here) : lost, step, group);
    if (!next && leavesAtEnds) {
        drop();
        return false;
    }
    if (!next) next = nextStop(stops.all, step > 0 ? -1 : count, step, nullptr);
    giveInSight(stops.all, *next);
    return true;
}

bool KeyboardFocus::take(host::FocusEnd end) {
    const Stops stops = this->stops();
    const bool isFirst = end == host::FocusEnd::first;
    const auto stop = nextStop(stops.all, isFirst ? -1 : std::ptrdiff_t(stops.all.size()), isFirst ? 1 : -1, nullptr);
    if (stop) giveInSight(stops.all, *stop);
    return stop.has_value();
}

void KeyboardFocus::drop() {
    if (m_isThere) m_window.setNeedsDisplay();
    m_isThere = false;
    m_places.clear();
    m_lastFrame.reset();
    m_ring.reset();
}

int KeyboardFocus::horizontalStep(Key key) const {
    if (key != Key::left && key != Key::right) return 0;
    return (key == Key::right) == m_window.isRightToLeft() ? -1 : 1;
}

// From the last one to the first one and back.
bool KeyboardFocus::chooseNeighbour(const std::vector<Stop>& stops, std::size_t index, int step) {
    std::vector<std::size_t> members;
    for (std::size_t i = 0; i < stops.size(); ++i)
        if (stops[i].group == stops[index].group) members.push_back(i);
    const auto here = std::find(members.begin(), members.end(), index) - members.begin();
    const auto count = std::ptrdiff_t(members.size());
    const std::size_t next = members[std::size_t((here + step + count) % count)];
    giveInSight(stops, next);
    if (const auto choose = stops[next].element->activate; choose && next != index) choose();
    return true;
}

bool KeyboardFocus::use(Key key, bool isRepeated) {
    const Stops stops = this->stops();
    const std::optional<std::size_t> here = indexInFocus(stops.all);
    if (!here) return false;
    const Stop& stop = stops.all[*here];
    if (key == Key::activate || key == Key::space) {
        if (stop.element->activate && !isRepeated) stop.element->activate();
        return stop.element->activate != nullptr;
    }
    const int across = horizontalStep(key), down = key == Key::down ? 1 : key == Key::up ? -1 : 0;
    if (stop.group) return across + down != 0 && chooseNeighbour(stops.all, *here, across + down);
    if (across == 0) return false;
    if (stop.element->adjust) {
        stop.element->adjust(across);
        return true;
    }
    const auto& isExpanded = stop.element->isExpanded;
    if (isExpanded && *isExpanded != (across > 0)) stop.element->activate();
    return isExpanded.has_value();
}

void KeyboardFocus::mark(Element& reading) {
    std::vector<Stop> stops;
    collect(reading, nullptr, stops);
    const std::optional<std::size_t> here = indexInFocus(stops);
    const Element* const focused = here ? stops[*here].element : nullptr;
    forEachElement(reading, [&](Element& element) {
        element.isFocused = &element == focused;
        if (!element.takesFocus) return;
        element.focus = [window = weakReference(m_window), id = element.id, identifier = element.identifier] {
            const auto held = window.lock();
            if (!held || held->isTransitioning()) return;
            KeyboardFocus& focus = *held->m_focus;
            const Stops stops = focus.stops();
            for (std::size_t i = 0; i < stops.all.size(); ++i)
                if (stops.all[i].element->id == id && stops.all[i].element->identifier == identifier)
                    return focus.giveInSight(stops.all, i);
        };
    });
}

void KeyboardFocus::paintRing(graphics::PaintContext& context, bool isNew) {
    if (isNew || m_mustFindRing) findRing();
    // What moves by itself tells nobody.
    m_mustFindRing = m_isThere && m_window.isAnimating();
    if (m_ring) paintFocusRing(context, m_window.windowState(), *m_ring);
}

// Asks for no more of the screen than is seen of it: it may be long.
void KeyboardFocus::findRing() {
    m_lastFrame.reset();
    m_ring.reset();
    if (!m_isThere || m_window.isTransitioning()) return;
    if (!place()) (void)indexInFocus(stops().all);
    const accessibility::SemanticNode screen = m_window.seenTree();
    m_lastFrame = frameInFocus(screen);
    if (!m_lastFrame) return;
    std::vector<geometry::Rect> texts;
    addTexts(screen, texts);
    m_ring = focusRingAround(*m_lastFrame, m_window.bounds(), texts);
}

std::optional<geometry::Rect> KeyboardFocus::frameInFocus(const accessibility::SemanticNode& screen) {
    const Place* const place = this->place();
    if (!m_isThere || !place || m_window.isTransitioning()) return std::nullopt;
    const Stops stops = stopsIn(screen);
    const std::optional<std::size_t> here = indexOf(*place, stops.all);
    if (!here || !stops.all[*here].element->isOnScreen) return std::nullopt;
    return stops.all[*here].element->plate;
}

} // namespace proupsells::uikit
