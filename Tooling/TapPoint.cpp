#include "Tooling/TapPoint.hpp"

#include "Platform/Accessibility/Search.hpp"
#include "Tooling/Quoted.hpp"

namespace proupsells::tooling {

using accessibility::SemanticNode;

namespace {

// The control's identifier, and the name that a person sees.
std::string described(const SemanticNode& control) {
    const std::string name = accessibility::nameOf(control);
    if (control.identifier.empty()) return inQuotes(name);
    return escaped(control.identifier) + (name.empty() ? "" : " (" + inQuotes(name) + ")");
}

// What was revealed stands with its centre at the window's very edge; rounding must not carry it out of there.
geometry::Point withoutRounding(geometry::Point point) {
    constexpr double tolerance = 1e-6;
    if (point.x < 0 && point.x > -tolerance) point.x = 0;
    if (point.y < 0 && point.y > -tolerance) point.y = 0;
    return point;
}

TapPoint noPoint(std::string complaint, const SemanticNode& root) {
    TapPoint result{.point = std::nullopt, .complaint = std::move(complaint)};
    for (const SemanticNode* control : accessibility::controls(root)) result.controls.push_back(described(*control));
    return result;
}

} // namespace

FindControls controlsIdentified(std::string identifier) {
    return [identifier = std::move(identifier)](const SemanticNode& root) {
        auto found = accessibility::findAllByIdentifier(root, identifier);
        std::erase_if(found, [](const SemanticNode* node) { return !node->isControl; });
        return found;
    };
}

FindControls controlsCalled(std::string name) {
    return [name = std::move(name)](const SemanticNode& root) { return accessibility::controlsNamed(root, name); };
}

TapPoint tapPoint(uikit::UIWindow& window, const FindControls& find, const std::function<void()>& settle) {
    const SemanticNode before = window.semanticTree();
    const auto found = find(before);
    if (found.empty()) return noPoint("no control has", before);
    if (found.size() > 1) return noPoint(std::to_string(found.size()) + " controls have", before);
    if (!found.front()->reveal) return {.point = found.front()->frame.center()};

    found.front()->reveal();
    settle();
    const SemanticNode after = window.semanticTree();
    const auto revealed = find(after);
    if (revealed.empty()) return noPoint("no control has", after);
    return {.point = withoutRounding(revealed.front()->frame.center())};
}

} // namespace proupsells::tooling
