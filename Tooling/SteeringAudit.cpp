#include "Tooling/SteeringAudit.hpp"

#include <algorithm>
#include <set>

#include "Tooling/Quoted.hpp"
#include "Tooling/SpokenScreen.hpp"

namespace proupsells::tooling {

using accessibility::ReadingElement;
using accessibility::Role;

namespace {

std::string described(const ReadingElement& element) {
    return std::string(nameOf(element.role)) + (element.identifier.empty() ? "" : " " + element.identifier) + " " +
           inQuotes(element.name);
}

// The same for an element in every reading of a screen, whether it has a view at the time or not.
std::string keyOf(const ReadingElement& element) { return element.identifier.empty() ? element.name : element.identifier; }

const ReadingElement* focused(const ReadingElement& reading) {
    const auto all = accessibility::elementsOf(reading);
    const auto found = std::find_if(all.begin(), all.end(), [](const ReadingElement* each) { return each->isFocused; });
    return found == all.end() ? nullptr : *found;
}

const ReadingElement* elementOf(const ReadingElement& reading, const std::string& key) {
    const auto all = accessibility::elementsOf(reading);
    const auto found = std::find_if(all.begin(), all.end(), [&](const ReadingElement* each) { return keyOf(*each) == key; });
    return found == all.end() ? nullptr : *found;
}

class KeyboardWalk {
public:
    KeyboardWalk(host::WindowContent& content, geometry::Size size, const Wait& wait)
        : m_content(content), m_bounds{{}, size}, m_wait(wait) {}

    std::vector<Finding> findings() {
        constexpr int moreThanAnyScreenHas = 500;
        m_content.dropFocus();
        for (int i = 0; i < moreThanAnyScreenHas; ++i) {
            m_content.key(host::Key::tab);
            m_wait(0);
            const ReadingElement reading = m_content.reading();
            const ReadingElement* const element = focused(reading);
            if (!element || !m_reached.insert(keyOf(*element)).second) break;
            look(*element);
        }
        m_content.dropFocus();
        m_wait(0);
        holdReached();
        return std::move(m_findings);
    }

private:
    void add(AuditRule rule, const ReadingElement& element, const char* what) {
        m_findings.push_back({rule, "", described(element) + " " + what, element.identifier});
    }

    void look(const ReadingElement& element) {
        const geometry::Rect inWindow = element.frame.intersection(m_bounds);
        if (!element.isOnScreen || inWindow.isEmpty())
            return add(AuditRule::hiddenFocus, element, "is out of sight when it has the focus");
        graphics::DisplayList with, without;
        m_content.paint(with);
        m_content.dropFocus();
        m_wait(0);
        m_content.paint(without);
        std::vector<geometry::Rect> damage;
        graphics::findDamage(without, with, damage);
        constexpr double ring = 8; // points around a control
        const bool isSeen = std::any_of(damage.begin(), damage.end(),
                                        [&](const auto& each) { return each.intersects(element.frame.insetBy(-ring, -ring)); });
        if (!isSeen) add(AuditRule::invisibleFocus, element, "looks the same with the focus");
        const ReadingElement reading = m_content.reading();
        if (const ReadingElement* const same = elementOf(reading, keyOf(element)); same && same->focus) same->focus();
        m_wait(0);
    }

    void holdReached() {
        const ReadingElement reading = m_content.reading();
        for (const ReadingElement* element : accessibility::elementsOf(reading)) {
            if (!element->isOperable() || element->isDisabled || m_reached.contains(keyOf(*element))) continue;
            // Keys stop at one button of a group; the arrows go on from there.
            if (element->role == Role::radioButton && isGroupReached(reading, *element)) continue;
            add(AuditRule::noKeyboard, *element, "never gets the focus");
        }
    }

    bool isGroupReached(const ReadingElement& reading, const ReadingElement& button) const {
        const auto all = accessibility::elementsOf(reading);
        return std::any_of(all.begin(), all.end(), [&](const ReadingElement* group) {
            const auto& inside = group->children;
            const bool isIts = std::any_of(inside.begin(), inside.end(), [&](const auto& each) { return &each == &button; });
            return isIts &&
                   std::any_of(inside.begin(), inside.end(), [&](const auto& each) { return m_reached.contains(keyOf(each)); });
        });
    }

    host::WindowContent& m_content;
    geometry::Rect m_bounds;
    const Wait& m_wait;
    std::set<std::string> m_reached;
    std::vector<Finding> m_findings;
};

class StateTrial {
public:
    StateTrial(uikit::UIWindow& window, const Wait& wait) : m_window(window), m_wait(wait) {}

    std::vector<Finding> findings() {
        const ReadingElement reading = m_window.reading();
        for (const ReadingElement* element : accessibility::elementsOf(reading)) {
            if (element->isDisabled) continue;
            if (element->role == Role::disclosure && element->activate && element->isExpanded) tryDisclosure(*element);
            if (element->role == Role::pager && element->adjust && element->count > 1) tryPager(*element);
            if (element->role == Role::radioButton && element->activate && element->isChecked) tryRadioButton(*element);
        }
        for (const ReadingElement* element : accessibility::elementsOf(reading))
            if (element->role == Role::radioButton && element->isChecked.value_or(false)) press(keyOf(*element));
        return std::move(m_findings);
    }

private:
    static constexpr double longEnough_s = 1; // for what opens and turns

    void add(const ReadingElement& element, const char* what) {
        m_findings.push_back({AuditRule::wrongState, "", described(element) + " " + what, element.identifier});
    }

    // The element in the reading of now. Null when it has gone.
    const ReadingElement* now(const std::string& key) {
        m_now = m_window.reading();
        return elementOf(m_now, key);
    }

    void press(const std::string& key) {
        const ReadingElement* const element = now(key);
        if (element && element->activate) element->activate();
        m_wait(longEnough_s);
    }

    void tryDisclosure(const ReadingElement& before) {
        press(keyOf(before));
        const ReadingElement* const after = now(keyOf(before));
        if (after && after->isExpanded == before.isExpanded) add(before, "tells the same state after it was pressed");
        press(keyOf(before));
    }

    void tryRadioButton(const ReadingElement& before) {
        press(keyOf(before));
        const ReadingElement* const after = now(keyOf(before));
        if (after && !after->isChecked.value_or(false)) add(before, "is not told as checked after it was chosen");
    }

    void tryPager(const ReadingElement& before) {
        const int step = before.position < before.count ? 1 : -1;
        const ReadingElement* element = now(keyOf(before));
        const int place = element->position;
        element->adjust(step);
        m_wait(longEnough_s);
        element = now(keyOf(before));
        if (element && element->position == place) add(before, "tells the same page after it was turned");
        if (element && element->position != place && element->adjust) element->adjust(-step);
        m_wait(longEnough_s);
    }

    uikit::UIWindow& m_window;
    const Wait& m_wait;
    ReadingElement m_now;
    std::vector<Finding> m_findings;
};

} // namespace

std::vector<Finding> auditKeyboard(uikit::UIWindow& window, const Wait& wait) {
    return auditKeyboard(window, window.bounds().size, wait);
}

std::vector<Finding> auditKeyboard(host::WindowContent& content, geometry::Size size, const Wait& wait) {
    return KeyboardWalk(content, size, wait).findings();
}

std::vector<Finding> auditStates(uikit::UIWindow& window, const Wait& wait) { return StateTrial(window, wait).findings(); }

} // namespace proupsells::tooling
