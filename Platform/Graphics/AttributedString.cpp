#include "Platform/Graphics/AttributedString.hpp"

#include <utility>

namespace proupsells::graphics {

AttributedString::AttributedString(std::string text, TextAttributes attributes) {
    if (!text.empty()) m_runs.push_back({std::move(text), attributes});
}

void AttributedString::append(const AttributedString& other) {
    if (&other == this) return append(AttributedString(other));
    for (const AttributedRun& run : other.m_runs) {
        if (!m_runs.empty() && m_runs.back().attributes == run.attributes) {
            m_runs.back().text.append(run.text);
        } else {
            m_runs.push_back(run);
        }
    }
    if (!paragraphStyle) paragraphStyle = other.paragraphStyle;
}

std::string AttributedString::text() const {
    std::string text;
    for (const AttributedRun& run : m_runs) text += run.text;
    return text;
}

} // namespace proupsells::graphics
