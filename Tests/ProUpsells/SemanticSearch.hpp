// Finds things in the semantic tree of a screen.
#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "Platform/Accessibility/Node.hpp"

namespace proupsells::tests {

inline void visit(const accessibility::Node& node, const std::function<void(const accessibility::Node&)>& visitor) {
    visitor(node);
    for (const accessibility::Node& child : node.children) visit(child, visitor);
}

inline std::vector<accessibility::Node> allWhere(const accessibility::Node& root,
                                                 const std::function<bool(const accessibility::Node&)>& matches) {
    std::vector<accessibility::Node> result;
    visit(root, [&](const accessibility::Node& node) {
        if (matches(node)) result.push_back(node);
    });
    return result;
}

inline std::vector<accessibility::Node> allOfType(const accessibility::Node& root, std::string_view type) {
    return allWhere(root, [&](const accessibility::Node& node) { return node.type == type; });
}

inline bool has(const accessibility::Node& root, std::string_view identifier) {
    return !allWhere(root, [&](const accessibility::Node& node) { return node.identifier == identifier; }).empty();
}

// The first node with the identifier; throws, and so fails the test, when there is none.
inline accessibility::Node find(const accessibility::Node& root, std::string_view identifier) {
    const auto found = allWhere(root, [&](const accessibility::Node& node) { return node.identifier == identifier; });
    if (found.empty()) throw std::runtime_error("nothing has the identifier " + std::string(identifier));
    return found.front();
}

inline accessibility::Node firstOfType(const accessibility::Node& root, std::string_view type) {
    const auto found = allOfType(root, type);
    if (found.empty()) throw std::runtime_error("there is no " + std::string(type));
    return found.front();
}

// All texts inside, in the tree's order.
inline std::vector<std::string> texts(const accessibility::Node& root) {
    std::vector<std::string> result;
    visit(root, [&](const accessibility::Node& node) {
        if (node.text) result.push_back(node.text->text);
    });
    return result;
}

} // namespace proupsells::tests
