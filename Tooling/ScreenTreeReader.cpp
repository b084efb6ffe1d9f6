// The way back from a screen's text.
#include <algorithm>
#include <charconv>

#include "Tooling/ScreenTree.hpp"
#include "Tooling/WrittenNumber.hpp"

namespace proupsells::tooling {

namespace {

constexpr std::size_t deepest = 1000;

// One line, read from the left. Each step leaves the rest; a step that fails makes all further ones fail.
class LineReader {
public:
    explicit LineReader(std::string_view line) : m_rest(line) {}

    bool holds() const { return m_holds; }
    bool isAtEnd() const { return m_rest.empty(); }

    std::size_t depth() {
        const std::size_t blanks = std::min(m_rest.find_first_not_of(' '), m_rest.size());
        if (blanks % 2 != 0) m_holds = false;
        m_rest.remove_prefix(blanks);
        return blanks / 2;
    }

    void expect(char c) {
        if (m_rest.empty() || m_rest.front() != c)
            m_holds = false;
        else
            m_rest.remove_prefix(1);
    }

    std::string word(char end) {
        const std::size_t length = m_rest.find(end);
        if (length == std::string_view::npos || length == 0) {
            m_holds = false;
            return {};
        }
        std::string result(m_rest.substr(0, length));
        m_rest.remove_prefix(length);
        return result;
    }

    double number() {
        const std::optional<double> value = takeNumber(m_rest);
        if (!value) m_holds = false;
        return value.value_or(0);
    }

    std::string quoted() {
        std::string result;
        expect('"');
        while (m_holds && !m_rest.empty() && m_rest.front() != '"') result += character();
        expect('"');
        return result;
    }

private:
    // What one character of the text stands for.
    std::string character() {
        const char c = m_rest.front();
        m_rest.remove_prefix(1);
        if (c != '\\') return {c};
        if (m_rest.empty()) {
            m_holds = false;
            return {};
        }
        const char escape = m_rest.front();
        m_rest.remove_prefix(1);
        if (escape == 'n') return "\n";
        if (escape == 'u') return controlCharacter();
        if (escape != '"' && escape != '\\') m_holds = false;
        return {escape};
    }

    std::string controlCharacter() {
        unsigned code = 0;
        const std::string_view four = m_rest.substr(0, 4);
        const auto [end, error] = std::from_chars(four.data(), four.data() + four.size(), code, 16);
        if (error != std::errc() || end != four.data() + 4 || code > 0x9F) m_holds = false;
        m_rest.remove_prefix(four.size());
        return code < 0x80 ? std::string{char(code)} : std::string{'\xC2', char(code)};
    }

    std::string_view m_rest;
    bool m_holds = true;
};

ScreenTree readNode(LineReader& line) {
    ScreenTree node;
    node.type = line.word(' ');
    line.expect(' ');
    line.expect('[');
    node.frame.origin.x = line.number();
    line.expect(' ');
    node.frame.origin.y = line.number();
    line.expect(' ');
    node.frame.size.width = line.number();
    line.expect(' ');
    node.frame.size.height = line.number();
    line.expect(']');
    while (line.holds() && !line.isAtEnd()) {
        line.expect(' ');
        std::string name = line.word('=');
        line.expect('=');
        node.properties.emplace_back(std::move(name), line.quoted());
    }
    return node;
}

} // namespace

std::optional<ScreenTree> readScreenText(std::string_view text) {
    std::optional<ScreenTree> root;
    std::vector<ScreenTree*> path; // from the root to the node that was read last
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        if (end == std::string_view::npos) return std::nullopt;
        LineReader line(text.substr(0, end));
        text.remove_prefix(end + 1);

        const std::size_t depth = line.depth();
        ScreenTree node = readNode(line);
        const bool hasPlace = root ? depth > 0 && depth <= path.size() && depth <= deepest : depth == 0;
        if (!line.holds() || !hasPlace) return std::nullopt;
        path.resize(depth);
        if (!root)
            path.push_back(&root.emplace(std::move(node)));
        else
            path.push_back(&path.back()->children.emplace_back(std::move(node)));
    }
    return root;
}

} // namespace proupsells::tooling
