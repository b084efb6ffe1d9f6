#include "Apps/ProUpsellsHost/TreeSearch.hpp"

namespace proupsellshost {

using accessibility::Node;

namespace {

bool showsText(const Node& node, std::string_view text) {
    if (node.label == text || (node.text && node.text->text == text)) return true;
    for (const Node& child : node.children)
        if (showsText(child, text)) return true;
    return false;
}

// Whether something inside was found, so that an outer control does not count as well.
bool collectByText(const Node& node, std::string_view text, std::vector<const Node*>& found) {
    bool hasFound = false;
    for (const Node& child : node.children) hasFound |= collectByText(child, text, found);
    if (hasFound || !node.isControl || !showsText(node, text)) return hasFound;
    found.push_back(&node);
    return true;
}

template <class Predicate>
void collect(const Node& node, const Predicate& matches, std::vector<const Node*>& found) {
    if (matches(node)) found.push_back(&node);
    for (const Node& child : node.children) collect(child, matches, found);
}

} // namespace

const Node* findIdentifier(const Node& root, std::string_view identifier) {
    if (root.identifier == identifier) return &root;
    for (const Node& child : root.children)
        if (const Node* found = findIdentifier(child, identifier)) return found;
    return nullptr;
}

std::vector<const Node*> controlsWithIdentifier(const Node& root, std::string_view identifier) {
    std::vector<const Node*> found;
    collect(root, [&](const Node& node) { return node.isControl && node.identifier == identifier; }, found);
    return found;
}

std::vector<const Node*> controlsWithText(const Node& root, std::string_view text) {
    std::vector<const Node*> found;
    collectByText(root, text, found);
    return found;
}

std::vector<const Node*> allControls(const Node& root) {
    std::vector<const Node*> found;
    collect(root, [](const Node& node) { return node.isControl; }, found);
    return found;
}

std::string shownText(const Node& node) {
    if (node.text) return node.text->text;
    std::string result;
    for (const Node& child : node.children) {
        const std::string text = shownText(child);
        if (text.empty()) continue;
        if (!result.empty()) result += ' ';
        result += text;
    }
    return result;
}

std::string describe(const Node& control) {
    const std::string name = control.label.empty() ? shownText(control) : control.label;
    if (control.identifier.empty()) return '"' + name + '"';
    return control.identifier + (name.empty() ? "" : " (\"" + name + "\")");
}

} // namespace proupsellshost
