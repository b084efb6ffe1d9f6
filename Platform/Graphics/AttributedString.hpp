// Rich text: runs of text with attributes.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Platform/Graphics/Color.hpp"
#include "Platform/Graphics/Font.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::graphics {

// How a stretch of text looks.
struct TextAttributes {
    Font font;
    Color color;
    bool isStruckThrough = false; // a single line
    double kern = 0;              // points added after each user-perceived character

    bool operator==(const TextAttributes&) const = default;
};

// Where lines stand that are narrower than the whole text; leading follows the screen's direction.
enum class TextAlignment : std::uint8_t { leading, center, trailing };

// How the lines of a text stand.
struct ParagraphStyle {
    double lineSpacing = 0; // points between two lines
    TextAlignment alignment = TextAlignment::leading;

    bool operator==(const ParagraphStyle&) const = default;
};

// A stretch of text that looks the same.
struct AttributedRun {
    std::string text;
    TextAttributes attributes;

    bool operator==(const AttributedRun&) const = default;
};

class PROUPSELLS_EXPORT AttributedString {
public:
    AttributedString() = default;
    // No run at all for an empty text.
    AttributedString(std::string text, TextAttributes attributes);

    // Neighbouring runs of equal attributes become one. The paragraph style is the other's where this text has none.
    void append(const AttributedString& other);
    // In the order in which they are read.
    const std::vector<AttributedRun>& runs() const { return m_runs; }
    // All runs' texts, one after the other.
    std::string text() const;
    // Whether there is no run.
    bool isEmpty() const { return m_runs.empty(); }

    // Absent: whoever shows the text decides.
    std::optional<ParagraphStyle> paragraphStyle;

    bool operator==(const AttributedString&) const = default;

private:
    std::vector<AttributedRun> m_runs;
};

} // namespace proupsells::graphics
