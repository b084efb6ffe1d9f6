#include "Backends/Qt/ElementList.hpp"

#include <algorithm>

#include "Backends/Qt/AccessibleElement.hpp"
#include "Backends/Qt/QtAccessibility.hpp"

namespace proupsells::qtbackend {

using accessibility::ReadingElement;

namespace {

bool isSameView(const ReadingElement& a, const ReadingElement& b) {
    return a.id != 0 && a.id == b.id && a.identifier == b.identifier && a.role == b.role;
}

// A view that was made anew has its identifier still. An item that comes into sight has neither: it gets a view.
bool isSameThing(const ReadingElement& a, const ReadingElement& b) {
    if (a.role != b.role || a.identifier != b.identifier) return false;
    return !a.identifier.empty() || ((a.id == 0 || b.id == 0) && a.name == b.name);
}

AccessibleElement* make(QtAccessibility& owner, AccessibleElement* parent, ReadingElement told) {
    auto* const element = new AccessibleElement(owner, parent, std::move(told));
    QAccessible::registerAccessibleInterface(element);
    return element;
}

void forget(AccessibleElement* element) { QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(element)); }

void tell(QtAccessibility& owner, QAccessibleInterface* element, QAccessible::Event type) {
    QAccessibleEvent event(element, type);
    owner.tell(event);
}

} // namespace

AccessibleElement* ElementList::at(int index) const {
    return index < 0 || index >= count() ? nullptr : m_elements[std::size_t(index)];
}

AccessibleElement* ElementList::at(QPoint place) const {
    const auto isThere = [place](const AccessibleElement* element) {
        return element->told().isOnScreen && element->rect().contains(place);
    };
    const auto found = std::find_if(m_elements.rbegin(), m_elements.rend(), isThere);
    return found == m_elements.rend() ? nullptr : *found;
}

int ElementList::indexOf(const QAccessibleInterface* element) const {
    const auto found = std::find(m_elements.begin(), m_elements.end(), element);
    return found == m_elements.end() ? -1 : int(found - m_elements.begin());
}

AccessibleElement* ElementList::focused() const {
    for (AccessibleElement* element : m_elements) {
        if (element->told().isFocused) return element;
        if (AccessibleElement* const inner = element->elements().focused()) return inner;
    }
    return nullptr;
}

void ElementList::fill(QtAccessibility& owner, AccessibleElement* parent, std::vector<ReadingElement> told) {
    m_elements.reserve(told.size());
    for (ReadingElement& one : told) m_elements.push_back(make(owner, parent, std::move(one)));
}

void ElementList::clear() {
    for (AccessibleElement* element : std::exchange(m_elements, {})) forget(element);
}

// For each that is told the element that it was, or null for a new one.
std::vector<AccessibleElement*> ElementList::take(const std::vector<ReadingElement>& told) const {
    std::vector<AccessibleElement*> left = m_elements, taken(told.size());
    // What follows the last one found is the likeliest to come next.
    std::size_t next = 0;
    const auto takeBy = [&](bool (*isSame)(const ReadingElement&, const ReadingElement&)) {
        for (std::size_t index = 0; index < told.size(); ++index) {
            if (taken[index]) continue;
            for (std::size_t step = 0; step < left.size(); ++step) {
                AccessibleElement*& candidate = left[(next + step) % left.size()];
                if (!candidate || !isSame(candidate->told(), told[index])) continue;
                taken[index] = std::exchange(candidate, nullptr);
                next += step + 1;
                break;
            }
        }
    };
    takeBy(isSameView);
    takeBy(isSameThing);
    return taken;
}

// One by one, so that each is told with the place that it had.
void ElementList::dropAllBut(QtAccessibility& owner, const std::vector<AccessibleElement*>& kept) {
    for (std::size_t index = m_elements.size(); index-- > 0;) {
        AccessibleElement* const element = m_elements[index];
        if (std::find(kept.begin(), kept.end(), element) != kept.end()) continue;
        tell(owner, element, QAccessible::ObjectDestroyed);
        m_elements.erase(m_elements.begin() + std::ptrdiff_t(index));
        forget(element);
    }
}

void ElementList::order(QtAccessibility& owner, const std::vector<AccessibleElement*>& kept) {
    std::vector<AccessibleElement*> ordered;
    std::copy_if(kept.begin(), kept.end(), std::back_inserter(ordered), [](AccessibleElement* element) { return element; });
    if (std::exchange(m_elements, ordered) == ordered) return;
    tell(owner, m_elements.front()->parent(), QAccessible::ObjectReorder);
}

void ElementList::adopt(QtAccessibility& owner, AccessibleElement* parent, std::vector<ReadingElement> told) {
    const std::vector<AccessibleElement*> taken = take(told);
    dropAllBut(owner, taken);
    order(owner, taken);
    for (std::size_t index = 0; index < told.size(); ++index) {
        if (taken[index]) {
            taken[index]->become(std::move(told[index]));
            continue;
        }
        AccessibleElement* const element = make(owner, parent, std::move(told[index]));
        m_elements.insert(m_elements.begin() + std::ptrdiff_t(index), element);
        tell(owner, element, QAccessible::ObjectCreated);
    }
}

} // namespace proupsells::qtbackend
