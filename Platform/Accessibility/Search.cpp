#include "Platform/Accessibility/Search.hpp"

#include <algorithm>

namespace proupsells::accessibility {

namespace {

template <typename Visitor>
void visit(const Node& node, Visitor&& visitor) {
    visitor(node);
    for (const Node& child : node.children) visit(child, visitor);
}

template <typename Predicate>
std::vector<const Node*> findAll(const Node& root, Predicate&& matches) {
    std::vector<const Node*> found;
    visit(root, [&](const Node& node) {
        if (matches(node)) found.push_back(&node);
    });
    return found;
}

std::string joinedTexts(const Node& node) {
    std::string joined;
    for (const std::string& text : shownTexts(node)) {
        if (!joined.empty() && !text.empty()) joined += ' ';
        joined += text;
    }
    return joined;
}

const std::string* firstImage(const Node& node) {
    if (!node.image.empty()) return &node.image;
    for (const Node& child : node.children) {
        if (const std::string* image = firstImage(child)) return image;
    }
    return nullptr;
}

bool isNamed(const Node& control, std::string_view name) {
    if (control.label == name) return true;
    const std::vector<std::string> texts = shownTexts(control);
    return std::ranges::find(texts, name) != texts.end() || (!texts.empty() && joinedTexts(control) == name);
}

// Returns whether the node or something in it was added.
bool addControlsNamed(const Node& node, std::string_view name, std::vector<const Node*>& found) {
    bool isFoundInside = false;
    for (const Node& child : node.children) isFoundInside |= addControlsNamed(child, name, found);
    if (isFoundInside || !node.isControl || !isNamed(node, name)) return isFoundInside;
    found.push_back(&node);
    return true;
}

} // namespace

const Node* findByIdentifier(const Node& root, std::string_view identifier) {
    if (root.identifier == identifier) return &root;
    for (const Node& child : root.children) {
        if (const Node* found = findByIdentifier(child, identifier)) return found;
    }
    return nullptr;
}

std::vector<const Node*> findAllByIdentifier(const Node& root, std::string_view identifier) {
    return findAll(root, [&](const Node& node) { return node.identifier == identifier; });
}

std::vector<const Node*> findAllByType(const Node& root, std::string_view type) {
    return findAll(root, [&](const Node& node) { return node.type == type; });
}

std::vector<const Node*> findAllByText(const Node& root, std::string_view text) {
    return findAll(root, [&](const Node& node) { return node.text && node.text->text == text; });
}

std::vector<const Node*> controls(const Node& root) {
    return findAll(root, [](const Node& node) { return node.isControl; });
}

std::string nameOf(const Node& node) {
    if (!node.label.empty()) return node.label;
    if (std::string texts = joinedTexts(node); !texts.empty()) return texts;
    const std::string* image = firstImage(node);
    return image ? *image : std::string();
}

std::vector<const Node*> controlsNamed(const Node& root, std::string_view name) {
    std::vector<const Node*> found;
    if (!name.empty()) addControlsNamed(root, name, found);
    return found;
}

std::vector<std::string> shownTexts(const Node& root) {
    std::vector<std::string> texts;
    visit(root, [&](const Node& node) {
        if (node.text) texts.push_back(node.text->text);
    });
    return texts;
}

} // namespace proupsells::accessibility
