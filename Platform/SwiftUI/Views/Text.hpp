// Words.
#pragma once

#include <string>
#include <string_view>

#include "Platform/Graphics/AttributedString.hpp"
#include "Platform/SwiftUI/Tree/View.hpp"

namespace proupsells::swiftui {

// A plain text takes font and colour from the environment; so do runs of an attributed one whose font has no size or whose colour
// has no name. Wraps in the width it is offered, ends in "…" where height or lines run out, and is as wide as its widest line.
class Text {
public:
    Text(std::string text) : m_text(std::move(text)) {}
    Text(std::string_view text) : m_text(text) {}
    Text(const char* text) : m_text(text) {}
    Text(graphics::AttributedString text) : m_attributed(std::move(text)) {}

    bool isAttributed() const { return !m_attributed.isEmpty(); }
    const std::string& plain() const { return m_text; }
    const graphics::AttributedString& attributed() const { return m_attributed; }

    Element* makeElement() &&;
    bool operator==(const Text&) const = default;

private:
    std::string m_text;
    graphics::AttributedString m_attributed;
};

} // namespace proupsells::swiftui
