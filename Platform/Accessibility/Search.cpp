#include "Platform/Accessibility/Search.hpp"

#include <algorithm>

namespace proupsells::accessibility {

namespace {

template <typename Visitor>
void visit(const SemanticNode& node, Visitor&& visitor) {
    visitor(node);
    for (const SemanticNode& child : node.children) visit(child, visitor);
}

template <typename Predicate>
std::vector<const SemanticNode*> findAll(const SemanticNode& root, Predicate&& matches) {
    std::vector<const SemanticNode*> found;
    visit(root, [&](const SemanticNode& node) {
        if (matches(node)) found.push_back(&node);
    });
    return found;
}

std::string shownText(const SemanticNode& node) {
    std::string joined;
    for (const std::string& text : shownTexts(node)) {
        if (!joined.empty() && !text.empty()) joined += ' ';
        joined += text;
    }
    return joined;
}

const std::string* firstImage(const SemanticNode& node) {
    if (!node.image.empty()) return &node.image;
    for (const SemanticNode& child : node.children) {
        if (const std::string* image = firstImage(child)) return image;
    }
    return nullptr;
}

bool isNamed(const SemanticNode& control, std::string_view name) {
    if (control.label == name) return true;
    const std::vector<std::string> texts = shownTexts(control);
    return std::find(texts.begin(), texts.end(), name) != texts.end() || (!texts.empty() && shownText(control) == name);
}

// Returns whether the node or something in it was added.
bool addControlsNamed(const SemanticNode& node, std::string_view name, std::vector<const SemanticNode*>& found) {
    bool isFoundInside = false;
    for (const SemanticNode& child : node.children) isFoundInside |= addControlsNamed(child, name, found);
    if (isFoundInside || !node.isControl || !isNamed(node, name)) return isFoundInside;
    found.push_back(&node);
    return true;
}

} // namespace

const SemanticNode* findByIdentifier(const SemanticNode& root, std::string_view identifier) {
    if (root.identifier == identifier) return &root;
    for (const SemanticNode& child : root.children) {
        if (const SemanticNode* found = findByIdentifier(child, identifier)) return found;
    }
    return nullptr;
}

std::vector<const SemanticNode*> findAllByIdentifier(const SemanticNode& root, std::string_view identifier) {
    return findAll(root, [&](const SemanticNode& node) { return node.identifier == identifier; });
}

std::vector<const SemanticNode*> findAllByType(const SemanticNode& root, std::string_view type) {
    return findAll(root, [&](const SemanticNode& node) { return node.type == type; });
}

std::vector<const SemanticNode*> findAllByText(const SemanticNode& root, std::string_view text) {
    return findAll(root, [&](const SemanticNode& node) { return node.text && node.text->text == text; });
}

std::vector<const SemanticNode*> controls(const SemanticNode& root) {
    return findAll(root, [](const SemanticNode& node) { return node.isControl; });
}

std::string nameOf(const SemanticNode& node) {
    if (!node.label.empty()) return node.label;
    if (std::string texts = shownText(node); !texts.empty()) return texts;
    const std::string* image = firstImage(node);
    return image ? *image : std::string();
}

std::vector<const SemanticNode*> controlsNamed(const SemanticNode& root, std::string_view name) {
    std::vector<const SemanticNode*> found;
    if (!name.empty()) addControlsNamed(root, name, found);
    return found;
}

std::vector<std::string> shownTexts(const SemanticNode& root) {
    std::vector<std::string> texts;
    visit(root, [&](const SemanticNode& node) {
        if (node.text) texts.push_back(node.text->text);
    });
    return texts;
}

} // namespace proupsells::accessibility
