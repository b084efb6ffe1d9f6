// What texts measure with the fixed-metrics shaper, worked out from its rule: a character is 0.5 × size wide, a line 1.25 × size
// high.
#pragma once

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include "Platform/Accessibility/SemanticNode.hpp"

namespace proupsells::tests {

// A text's user-perceived characters, as far as one code point is one.
inline std::size_t characterCount(const std::string& text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

inline double textWidth(const std::string& text, double size) { return static_cast<double>(characterCount(text)) * size / 2; }

// The widths of the lines when words are set one after the other as long as they fit.
inline std::vector<double> lineWidths(const std::string& text, double size, double available) {
    std::vector<double> lines;
    std::string line;
    std::size_t start = 0;
    while (start <= text.size()) {
        const std::size_t end = std::min(text.find(' ', start), text.size());
        const std::string word = text.substr(start, end - start);
        const std::string longer = line.empty() ? word : line + " " + word;
        if (!line.empty() && textWidth(longer, size) > available) {
            lines.push_back(textWidth(line, size));
            line = word;
        } else {
            line = longer;
        }
        start = end + 1;
    }
    lines.push_back(textWidth(line, size));
    return lines;
}

// The words of a plain text that are wider than its frame, so that they stand on more than one line.
inline std::vector<std::string> brokenWords(const accessibility::SemanticNode& node) {
    std::vector<std::string> result;
    if (!node.text || !node.text->runs.empty()) return result;
    std::istringstream words(node.text->text);
    for (std::string word; words >> word;)
        if (textWidth(word, node.text->size) > node.frame.width() + 1e-6) result.push_back(word);
    return result;
}

} // namespace proupsells::tests
