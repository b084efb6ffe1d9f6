#include "Tests/Explorer/Observation.hpp"

#include <algorithm>
#include <cmath>

#include "Platform/Accessibility/Search.hpp"

namespace proupsells::explorer {

using accessibility::ReadingElement;
using accessibility::SemanticNode;
using accessibility::Traits;

namespace {

std::string flag(const char* name, const std::optional<bool>& value) {
    return value ? std::string(" ") + name + (*value ? "=yes" : "=no") : "";
}

// One line for what has an identifier. Where things stand and what they look like on the way is left out.
void describe(const SemanticNode& node, Fingerprint& print) {
    std::string& text = print.screen;
    if (!node.identifier.empty()) {
        text += node.identifier + "|" + node.value;
        if (contains(node.traits, Traits::selected)) text += " selected";
        if (contains(node.traits, Traits::disabled)) text += " disabled";
        text += flag("checked", node.spoken.isChecked) + flag("expanded", node.spoken.isExpanded) + '\n';
    }
    if (node.scroll && node.scroll->contentSize.height > node.frame.height()) {
        constexpr double stretch = 250; // points that are taken for the same place
        print.scrolled += " " + std::to_string(int(std::floor(node.scroll->contentOffset.y / stretch)));
    }
    for (const SemanticNode& child : node.children) describe(child, print);
}

std::string stackOf(uikit::UIWindow& window) {
    std::string text;
    for (const uikit::UIViewController* shown = window.rootViewController(); shown; shown = shown->presentedViewController()) {
        text += std::string(shown->typeName()) + (shown->isAppeared() ? " appeared" : "") +
                (shown->isBeingPresented() ? " coming" : "") + (shown->isBeingDismissed() ? " going" : "") + '\n';
    }
    return text;
}

void addOperations(const ReadingElement& element, const Alphabet& alphabet, std::vector<Action>& actions) {
    const auto add = [&](Action::Kind kind) { actions.push_back({kind, element.identifier}); };
    if (alphabet.hasAssistance) {
        if (element.activate) add(Action::Kind::activate);
        if (element.adjust) add(Action::Kind::increment);
        if (element.adjust) add(Action::Kind::decrement);
        if (element.revealWhole && !element.isOnScreen) add(Action::Kind::reveal);
    }
    if (alphabet.hasFocusing && element.focus) add(Action::Kind::focus);
}

} // namespace

const SemanticNode& Observation::tree() const {
    if (!m_tree) m_tree = m_world->window().semanticTree();
    return *m_tree;
}

const ReadingElement& Observation::reading() const {
    if (!m_reading) m_reading = m_world->window().reading();
    return *m_reading;
}

std::string Observation::front() const {
    const uikit::UIViewController* const front = m_world->window().frontMostViewController();
    return front ? std::string(front->typeName()) : "";
}

bool Observation::isMoving() const { return m_world->window().isTransitioning(); }

const SemanticNode* Observation::node(const std::string& identifier) const {
    return accessibility::findByIdentifier(tree(), identifier);
}

const ReadingElement* Observation::focused() const {
    for (const ReadingElement* element : accessibility::elementsOf(reading()))
        if (element->isFocused) return element;
    return nullptr;
}

const ReadingElement* Observation::told(const std::string& identifier) const {
    for (const ReadingElement* element : accessibility::elementsOf(reading()))
        if (element->identifier == identifier) return element;
    return nullptr;
}

Fingerprint fingerprintOf(World& world, const Observation& seen) {
    Fingerprint result{.screen = stackOf(world.window()) + (seen.isMoving() ? "moving\n" : "")};
    describe(seen.tree(), result);
    if (const ReadingElement* const focused = seen.focused()) result.focus = focused->identifier;
    return result;
}

std::vector<Action> actionsIn(const Observation& seen, const Alphabet& alphabet) {
    std::vector<Action> actions;
    if (alphabet.hasTaps)
        for (const SemanticNode* control : accessibility::controls(seen.tree()))
            if (!control->identifier.empty() && !alphabet.leavesOut(control->identifier))
                actions.push_back({Action::Kind::tap, control->identifier});
    for (const ReadingElement* element : accessibility::elementsOf(seen.reading()))
        if (!element->identifier.empty() && !alphabet.leavesOut(element->identifier)) addOperations(*element, alphabet, actions);
    if (alphabet.hasKeys)
        for (const auto& [name, key] : namedKeys()) actions.push_back({Action::Kind::key, name});
    for (const std::string& duration_s : alphabet.waits) actions.push_back({Action::Kind::wait, duration_s});
    for (const Deed deed : alphabet.deeds) actions.push_back({Action::Kind::host, std::string(nameOf(deed))});
    return actions;
}

} // namespace proupsells::explorer
