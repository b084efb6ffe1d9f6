#include "Tests/Explorer/Invariants.hpp"

#include <algorithm>
#include <cmath>
#include <set>

#include "Platform/Accessibility/Search.hpp"
#include "Tooling/ScreenTree.hpp"

namespace proupsells::explorer {

using accessibility::ReadingElement;
using accessibility::SemanticNode;
using accessibility::Traits;

namespace {

using Problems = std::vector<std::string>;

std::string inLines(const std::vector<std::string>& lines, std::size_t from) {
    std::string text;
    for (std::size_t i = from; i < lines.size(); ++i) text += "\n      " + lines[i];
    return text.empty() ? "\n      nothing" : text;
}

// From the first line on that differs.
void compare(const char* what, const std::vector<std::string>& wanted, const std::vector<std::string>& found, Problems& problems) {
    if (wanted == found) return;
    const auto first = std::mismatch(wanted.begin(), wanted.end(), found.begin(), found.end()).first;
    const auto place = std::size_t(first - wanted.begin());
    problems.push_back(std::string(what) + " expected:" + inLines(wanted, place) + "\n    but there came:" + inLines(found, place));
}

// --- The paywall's words ---

std::vector<std::string> struckThrough(const SemanticNode& node) {
    std::vector<std::string> result;
    if (node.text)
        for (const accessibility::TextRunInfo& run : node.text->runs)
            if (run.isStruckThrough) result.push_back(run.text);
    for (const SemanticNode& child : node.children) {
        const auto inside = struckThrough(child);
        result.insert(result.end(), inside.begin(), inside.end());
    }
    return result;
}

void comparePlan(const Observation& seen, const Expected& expected, std::size_t place, Problems& problems) {
    const SubscriptionOption& plan = expected.plans()[place];
    const SemanticNode* const node = seen.node("plan." + plan.SKU());
    const ReadingElement* const told = seen.told("plan." + plan.SKU());
    if (!node || !told) return; // said already, by the order of the plans
    const bool isChosen = int(place) == expected.chosen();
    if (contains(node->traits, Traits::selected) != isChosen || told->isChecked != isChosen)
        problems.push_back("the plan " + plan.SKU() + (isChosen ? " is not marked" : " is marked"));
    const std::string former = expected.formerPriceOf(plan);
    if (struckThrough(*node) != (former.empty() ? std::vector<std::string>{} : std::vector{former}))
        problems.push_back("the plan " + plan.SKU() + " has another former price than \"" + former + "\"");
    if (accessibility::shownTexts(*node).empty()) problems.push_back("the plan " + plan.SKU() + " has no words");
}

void comparePaywall(const Observation& seen, const Expected& expected, Problems& problems) {
    std::vector<std::string> wanted, found, told;
    for (const SubscriptionOption& plan : expected.plans()) wanted.push_back("plan." + plan.SKU());
    for (const SemanticNode* control : accessibility::controls(seen.tree()))
        if (control->identifier.starts_with("plan.")) found.push_back(control->identifier);
    for (const ReadingElement* element : accessibility::elementsOf(seen.reading()))
        if (element->identifier.starts_with("plan.")) told.push_back(element->identifier);
    compare("plans to be seen", wanted, found, problems);
    compare("plans to be heard", wanted, told, problems);
    for (std::size_t place = 0; place < expected.plans().size(); ++place) comparePlan(seen, expected, place, problems);

    const SemanticNode* const subscribe = seen.node("subscribe");
    const SemanticNode* const disclaimer = seen.node("disclaimer");
    if (!subscribe || subscribe->label != expected.subscribeTitle())
        problems.push_back("the subscribe button does not say \"" + expected.subscribeTitle() + "\"");
    if (subscribe && contains(subscribe->traits, Traits::disabled) != expected.plans().empty())
        problems.push_back("the subscribe button is enabled without a plan, or disabled with one");
    if ((disclaimer && disclaimer->text ? disclaimer->text->text : "") != expected.disclaimer())
        problems.push_back("the disclaimer is not \"" + expected.disclaimer() + "\"");
}

// --- What is seen, heard, dumped and touched ---

bool isEnabled(const SemanticNode& node) { return !contains(node.traits, Traits::disabled); }

void compareControls(World& world, const Observation& seen, Problems& problems) {
    std::set<std::string> identifiers;
    const std::set<std::string> reachable = reachableControls(seen.tree(), {{}, world.window().frame().size});
    for (const SemanticNode* control : accessibility::controls(seen.tree())) {
        const std::string& identifier = control->identifier;
        if (identifier.empty()) {
            problems.push_back("a control has no identifier: " + accessibility::nameOf(*control));
            continue;
        }
        if (!identifiers.insert(identifier).second) problems.push_back("two controls are called " + identifier);
        if (!control->isOnScreen || !isEnabled(*control)) continue;
        const ReadingElement* const told = seen.told(identifier);
        if (!told || !told->isOperable() || told->isDisabled)
            problems.push_back(identifier + " can be touched, and is not told as something to be operated");
        else if (told->frame != control->frame)
            problems.push_back(identifier + " is told to stand where it does not");
        if (seen.isMoving() || !reachable.contains(identifier)) continue;
        world.window().pointer(control->frame.center());
        if (!world.window().pointsAtControl())
            problems.push_back(identifier + " is told to be on the screen, and no touch reaches it");
    }
    world.window().pointer(std::nullopt);
    (void)world.window().pointsAtControl();
    for (const ReadingElement* element : accessibility::elementsOf(seen.reading()))
        if (element->activate && element->id != 0 && !identifiers.contains(element->identifier))
            problems.push_back((element->identifier.empty() ? element->name : element->identifier) +
                               " is told as something to be operated, and is no control");
}

void addIdentifiers(const tooling::ScreenTree& tree, std::set<std::string>& identifiers) {
    if (const std::string* const identifier = tree.property("identifier")) identifiers.insert(*identifier);
    for (const tooling::ScreenTree& child : tree.children) addIdentifiers(child, identifiers);
}

void compareDump(const Observation& seen, Problems& problems) {
    const auto dumped = tooling::readScreenText(tooling::screenText(tooling::screenTree(seen.tree())));
    if (!dumped) return problems.push_back("the screen's text cannot be read back");
    std::set<std::string> identifiers;
    addIdentifiers(*dumped, identifiers);
    for (const ReadingElement* element : accessibility::elementsOf(seen.reading()))
        if (element->isOnScreen && !element->identifier.empty() && !identifiers.contains(element->identifier))
            problems.push_back(element->identifier + " is told, and is not in the screen's text");
}

void lookAtFocus(const Observation& seen, bool isInSight, Problems& problems) {
    int count = 0;
    for (const ReadingElement* element : accessibility::elementsOf(seen.reading())) {
        if (!element->isFocused) continue;
        if (++count > 1) problems.push_back(element->identifier + " is in focus besides another element");
        const SemanticNode* const node = seen.node(element->identifier);
        if (!isInSight || (node && node->opacity <= 0)) problems.push_back(element->identifier + " is in focus and out of sight");
        if (element->isDisabled) problems.push_back(element->identifier + " is in focus and disabled");
    }
}

} // namespace

bool focusIsInSight(World& world, const Observation& seen) {
    const ReadingElement* const focused = seen.focused();
    if (!focused) return true;
    const geometry::Rect window{{}, world.window().frame().size};
    return focused->isOnScreen && !focused->plate.intersection(window).isEmpty();
}

std::vector<std::string> problemsOf(World& world, const Observation& seen, const Expected& expected, bool isFocusScrolledAway) {
    Problems problems;
    compare("calls", expected.calls(), world.calls(), problems);
    compare("log lines", expected.logs(), world.logs(), problems);
    const std::string front = expected.front() ? controllerNameOf(*expected.front()) : "";
    if (seen.front() != front) problems.push_back("in front stands \"" + seen.front() + "\" instead of \"" + front + "\"");
    if (seen.isMoving() != expected.isTransitioning())
        problems.push_back(seen.isMoving() ? "a screen is still on its way" : "a screen is not on its way any more");
    if (front.empty() || !problems.empty()) return problems;
    if (expected.front() == Expected::Kind::paywall) comparePaywall(seen, expected, problems);
    compareControls(world, seen, problems);
    compareDump(seen, problems);
    lookAtFocus(seen, isFocusScrolledAway || seen.isMoving() || focusIsInSight(world, seen), problems);
    return problems;
}

} // namespace proupsells::explorer
