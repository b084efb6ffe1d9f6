#include "Tooling/SpokenScreen.hpp"
#include "Tooling/Quoted.hpp"

#include <algorithm>

namespace proupsells::tooling {

using accessibility::ReadingElement;
using accessibility::Role;

namespace {

std::string place(const ReadingElement& element) {
    return std::to_string(element.position) + " of " + std::to_string(element.count);
}

// What can change about an element while it stays the same one. Empty words are not told.
std::vector<std::string> statesOf(const ReadingElement& element) {
    const auto oneOf = [](const std::optional<bool>& state, const char* yes, const char* no) -> std::string {
        return !state ? "" : *state ? yes : no;
    };
    // A pager's value says its place in words.
    const bool hasPlace = element.count > 0 && element.value.empty();
    return {element.value.empty() ? "" : inQuotes(element.value),
            oneOf(element.isChecked, "checked", "not checked"),
            oneOf(element.isExpanded, "expanded", "collapsed"),
            hasPlace ? place(element) : "",
            element.isDisabled ? "disabled" : "",
            element.isBusy ? "busy" : ""};
}

// The words for a state that has gone and left nothing in its place.
constexpr const char* endedStates[] = {"no value", "not to be checked", "not to be expanded", "no place", "enabled", "ready"};

std::string roleAndName(const ReadingElement& element) {
    std::string result(nameOf(element.role));
    if (!element.name.empty()) result += " " + inQuotes(element.name);
    return result;
}

void appendLines(const ReadingElement& element, const std::string& indentation, std::vector<std::string>& lines) {
    lines.push_back(indentation + spokenLine(element));
    for (const ReadingElement& child : element.children) appendLines(child, indentation + "  ", lines);
}

// Finds each element of a reading in the one before, each of those once.
class Counterparts {
public:
    explicit Counterparts(const ReadingElement& before) : m_left(accessibility::elementsOf(before)) {}

    // Null where there is none.
    const ReadingElement* take(const ReadingElement& element) {
        // An item of a list has no view, and so no id, while it is out of sight.
        const auto isSameView = [&](const ReadingElement* each) { return element.id != 0 && each->id == element.id; };
        const auto isSameControl = [&](const ReadingElement* each) {
            return !element.identifier.empty() && each->identifier == element.identifier;
        };
        const auto isSameWords = [&](const ReadingElement* each) { return each->name == element.name; };
        if (const auto* found = takeWhere(element.role, isSameView)) return found;
        if (const auto* found = takeWhere(element.role, isSameControl)) return found;
        return takeWhere(element.role, isSameWords);
    }

    const std::vector<const ReadingElement*>& left() const { return m_left; }

private:
    template <class IsSame>
    const ReadingElement* takeWhere(Role role, IsSame isSame) {
        const auto found =
            std::find_if(m_left.begin(), m_left.end(), [&](const auto* each) { return each->role == role && isSame(each); });
        if (found == m_left.end()) return nullptr;
        const ReadingElement* const taken = *found;
        m_left.erase(found);
        return taken;
    }

    std::vector<const ReadingElement*> m_left;
};

void tellChanges(const ReadingElement& before, const ReadingElement& after, std::vector<std::string>& told) {
    if (before.name != after.name) told.push_back(roleAndName(before) + ": now " + inQuotes(after.name));
    const auto old = statesOf(before), now = statesOf(after);
    for (std::size_t i = 0; i < now.size(); ++i)
        if (old[i] != now[i]) told.push_back(roleAndName(after) + ": " + (now[i].empty() ? endedStates[i] : now[i]));
}

const ReadingElement* focused(const std::vector<const ReadingElement*>& elements) {
    const auto found = std::find_if(elements.begin(), elements.end(), [](const auto* each) { return each->isFocused; });
    return found == elements.end() ? nullptr : *found;
}

} // namespace

std::string_view nameOf(Role role) {
    switch (role) {
    case Role::unstated: return "unstated";
    case Role::dialog: return "dialog";
    case Role::group: return "group";
    case Role::radioGroup: return "radio group";
    case Role::heading: return "heading";
    case Role::text: return "text";
    case Role::image: return "image";
    case Role::button: return "button";
    case Role::link: return "link";
    case Role::radioButton: return "radio button";
    case Role::disclosure: return "disclosure";
    case Role::pager: break;
    }
    return "pager";
}

std::string spokenLine(const ReadingElement& element) {
    std::string line = roleAndName(element);
    for (const std::string& state : statesOf(element))
        if (!state.empty()) line += ", " + state;
    return line;
}

std::vector<std::string> spokenLines(const ReadingElement& reading) {
    std::vector<std::string> lines;
    appendLines(reading, "", lines);
    return lines;
}

std::vector<std::string> announcements(const ReadingElement& before, const ReadingElement& after) {
    std::vector<std::string> told;
    if (before.id != after.id) {
        appendLines(after, "", told);
        told.front().insert(0, "screen: ");
    } else {
        Counterparts counterparts(before);
        std::vector<std::string> changes;
        for (const ReadingElement* element : accessibility::elementsOf(after)) {
            if (const ReadingElement* const counterpart = counterparts.take(*element))
                tellChanges(*counterpart, *element, changes);
            else
                changes.push_back("new: " + spokenLine(*element));
        }
        for (const ReadingElement* element : counterparts.left()) told.push_back("gone: " + roleAndName(*element));
        told.insert(told.end(), changes.begin(), changes.end());
    }
    const auto all = accessibility::elementsOf(after), allBefore = accessibility::elementsOf(before);
    const ReadingElement *const focus = focused(all), *const oldFocus = focused(allBefore);
    const bool hasMoved =
        focus && (!oldFocus || before.id != after.id || focus->id != oldFocus->id || focus->identifier != oldFocus->identifier);
    if (hasMoved) told.push_back("focus: " + spokenLine(*focus));
    if (!focus && oldFocus && before.id == after.id) told.push_back("focus: none");
    return told;
}

} // namespace proupsells::tooling
