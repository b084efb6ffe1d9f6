// Rich text: runs of text with attributes.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Platform/Graphics/Color.hpp"
#include "Platform/Graphics/Font.hpp"

namespace proupsells::graphics {

struct TextAttributes {
    Font font;
    Color color;
    bool isStruckThrough = false; // a single line
    double kern = 0;              // points added after each user-perceived character

    bool operator==(const TextAttributes&) const = default;
};

enum class TextAlignment : std::uint8_t { leading, center, trailing };

struct ParagraphStyle {
    double lineSpacing = 0; // points between two lines
    TextAlignment alignment = TextAlignment::leading;

    bool operator==(const ParagraphStyle&) const = default;
};

struct AttributedRun {
    std::string text;
    TextAttributes attributes;

    bool operator==(const AttributedRun&) const = default;
};

class AttributedString {
public:
    AttributedString() = default;
    // No run at all for an empty text.
    AttributedString(std::string text, TextAttributes attributes);

    // Neighbouring runs of equal attributes become one. The paragraph style is the other's where this text has none.
    void append(const AttributedString& other);
    const std::vector<AttributedRun>& runs() const { return m_runs; }
    // All runs' texts, one after the other.
    std::string text() const;
    bool isEmpty() const { return m_runs.empty(); }

    std::optional<ParagraphStyle> paragraphStyle;

    bool operator==(const AttributedString&) const = default;

private:
    std::vector<AttributedRun> m_runs;
};

} // namespace proupsells::graphics
