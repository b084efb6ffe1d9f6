// Finds things in the semantic tree of a screen.
#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "Platform/Accessibility/SemanticNode.hpp"

namespace proupsells::tests {

inline void visit(const accessibility::SemanticNode& node, const std::function<void(const accessibility::SemanticNode&)>& visitor) {
    visitor(node);
    for (const accessibility::SemanticNode& child : node.children) visit(child, visitor);
}

inline std::vector<accessibility::SemanticNode> allWhere(const accessibility::SemanticNode& root,
                                                         const std::function<bool(const accessibility::SemanticNode&)>& matches) {
    std::vector<accessibility::SemanticNode> result;
    visit(root, [&](const accessibility::SemanticNode& node) {
        if (matches(node)) result.push_back(node);
    });
    return result;
}

inline std::vector<accessibility::SemanticNode> allOfType(const accessibility::SemanticNode& root, std::string_view type) {
    return allWhere(root, [&](const accessibility::SemanticNode& node) { return node.type == type; });
}

inline bool has(const accessibility::SemanticNode& root, std::string_view identifier) {
    return !allWhere(root, [&](const accessibility::SemanticNode& node) { return node.identifier == identifier; }).empty();
}

// The first node with the identifier; throws, and so fails the test, when there is none.
inline accessibility::SemanticNode find(const accessibility::SemanticNode& root, std::string_view identifier) {
    const auto found = allWhere(root, [&](const accessibility::SemanticNode& node) { return node.identifier == identifier; });
    if (found.empty()) throw std::runtime_error("nothing has the identifier " + std::string(identifier));
    return found.front();
}

inline accessibility::SemanticNode firstOfType(const accessibility::SemanticNode& root, std::string_view type) {
    const auto found = allOfType(root, type);
    if (found.empty()) throw std::runtime_error("there is no " + std::string(type));
    return found.front();
}

// All texts inside, in the tree's order.
inline std::vector<std::string> texts(const accessibility::SemanticNode& root) {
    std::vector<std::string> result;
    visit(root, [&](const accessibility::SemanticNode& node) {
        if (node.text) result.push_back(node.text->text);
    });
    return result;
}

} // namespace proupsells::tests
