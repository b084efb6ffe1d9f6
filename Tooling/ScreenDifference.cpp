#include "Tooling/ScreenDifference.hpp"

#include <algorithm>
#include <cmath>

#include "Tooling/Quoted.hpp"
#include "Tooling/WrittenNumber.hpp"

namespace proupsells::tooling {

namespace {

std::string valueOf(const ScreenTree& node, std::string_view property) {
    const std::string* value = node.property(property);
    return value ? *value : "";
}

// What makes two nodes the same one, the surest sign first.
bool areAlike(const ScreenTree& a, const ScreenTree& b, int sign) {
    if (a.type != b.type || valueOf(a, "identifier") != valueOf(b, "identifier")) return false;
    if (sign == 0) return a == b;
    const auto haveSame = [&](std::string_view property) { return valueOf(a, property) == valueOf(b, property); };
    if (sign == 1) return haveSame("text") && haveSame("label") && haveSame("image") && haveSame("clipName");
    return true;
}
constexpr int signCount = 3;

struct Pair {
    const ScreenTree* before = nullptr; // null for what has come
    const ScreenTree* after = nullptr;  // null for what has gone
};

using NodeList = std::vector<const ScreenTree*>;

// The longest way through both lists that keeps their order and pairs only what is alike, as pairs of indices. Very long lists are
// paired by their places instead.
std::vector<std::pair<std::size_t, std::size_t>> longestPairing(const NodeList& before, const NodeList& after, int sign) {
    constexpr std::size_t mostComparisons = 1'000'000;
    std::vector<std::pair<std::size_t, std::size_t>> result;
    if (before.size() > mostComparisons / after.size()) {
        for (std::size_t i = 0; i < std::min(before.size(), after.size()); ++i)
            if (areAlike(*before[i], *after[i], sign)) result.emplace_back(i, i);
        return result;
    }
    const std::size_t width = after.size() + 1;
    std::vector<std::size_t> lengths((before.size() + 1) * width); // of the longest way from a pair of indices on
    std::vector<bool> alike(before.size() * width);
    for (std::size_t i = before.size(); i-- > 0;) {
        for (std::size_t j = after.size(); j-- > 0;) {
            const bool pairs = areAlike(*before[i], *after[j], sign);
            alike[i * width + j] = pairs;
            lengths[i * width + j] =
                pairs ? lengths[(i + 1) * width + j + 1] + 1 : std::max(lengths[(i + 1) * width + j], lengths[i * width + j + 1]);
        }
    }
    for (std::size_t i = 0, j = 0; i < before.size() && j < after.size();) {
        if (alike[i * width + j])
            result.emplace_back(i++, j++);
        else if (lengths[(i + 1) * width + j] >= lengths[i * width + j + 1])
            ++i;
        else
            ++j;
    }
    return result;
}

// Pairs by one sign, and what is left between those by the next one.
void pairUp(const NodeList& before, const NodeList& after, int sign, std::vector<Pair>& pairs) {
    if (sign == signCount || before.empty() || after.empty()) {
        for (const ScreenTree* node : before) pairs.push_back({node, nullptr});
        for (const ScreenTree* node : after) pairs.push_back({nullptr, node});
        return;
    }
    std::size_t i = 0, j = 0;
    const auto pairGap = [&](std::size_t endOfBefore, std::size_t endOfAfter) {
        pairUp({before.begin() + i, before.begin() + endOfBefore}, {after.begin() + j, after.begin() + endOfAfter}, sign + 1,
               pairs);
    };
    for (const auto& [left, right] : longestPairing(before, after, sign)) {
        pairGap(left, right);
        pairs.push_back({before[left], after[right]});
        i = left + 1;
        j = right + 1;
    }
    pairGap(before.size(), after.size());
}

NodeList pointersTo(const std::vector<ScreenTree>& nodes) {
    NodeList result;
    for (const ScreenTree& node : nodes) result.push_back(&node);
    return result;
}

// A length or a list of them, as written in a tree, against another one.
bool areCloseNumbers(std::string_view a, std::string_view b, double tolerance) {
    while (true) {
        const auto left = takeNumber(a), right = takeNumber(b);
        if (!left || !right || std::abs(*left - *right) > tolerance) return false;
        if (a.empty() || b.empty()) return a.empty() && b.empty();
        if (a.front() != ' ' || b.front() != ' ') return false;
        a.remove_prefix(1);
        b.remove_prefix(1);
    }
}

// What a change of a property is called; a property that is not among these is called by its own name.
struct Wording {
    const char* property;
    const char* verb;
    bool isLength = false;
};
constexpr Wording wordings[] = {
    {"text", "reads"},
    {"lines", "lines are"},
    {"traits", "traits are"},
    {"offset", "offset is", true},
    {"content", "content is", true},
    {"inset", "inset is", true},
    {"clip", "clip is", true},
    {"lineWidth", "lineWidth is", true},
    {"cornerRadius", "cornerRadius is", true},
};

// How far what stands in a scroll view has been scrolled away from the one to the other; nothing in other nodes.
geometry::Point scrolledBy(const ScreenTree& before, const ScreenTree& after) {
    const auto offsetOf = [](const ScreenTree& node) {
        const std::string offset = valueOf(node, "offset");
        std::string_view rest = offset;
        const double x = takeNumber(rest).value_or(0);
        rest.remove_prefix(std::min<std::size_t>(rest.size(), 1));
        return geometry::Point{x, takeNumber(rest).value_or(0)};
    };
    return offsetOf(after) - offsetOf(before);
}

class Comparison {
public:
    explicit Comparison(double tolerance) : m_tolerance(tolerance) {}

    // The parent's identifier and shift are those of the innermost node around that has one, and how far the parent has moved.
    void compare(const ScreenTree& before, const ScreenTree& after, const std::string& around, geometry::Point parentShift) {
        const std::string name = nameOf(after, around);
        const geometry::Point shift{after.frame.origin.x - before.frame.origin.x, after.frame.origin.y - before.frame.origin.y};
        compareFrames(before, after, name, shift, parentShift);
        compareProperties(before, after, name);

        const std::string identifier = valueOf(after, "identifier");
        const std::string& inside = identifier.empty() ? around : identifier;
        const geometry::Point innerShift = shift - scrolledBy(before, after);
        std::vector<Pair> pairs;
        pairUp(pointersTo(before.children), pointersTo(after.children), 0, pairs);
        for (const auto& [old, current] : pairs) {
            if (old && current) {
                if (!(*old == *current) || !isNear(innerShift, {})) compare(*old, *current, inside, innerShift);
            } else if (old) {
                m_sentences.push_back(nameOf(*old, inside) + " is gone");
            } else {
                m_sentences.push_back(nameOf(*current, inside) + " is new, at " + written(current->frame));
            }
        }
    }

    std::vector<std::string> take() { return std::move(m_sentences); }

private:
    static std::string nameOf(const ScreenTree& node, const std::string& around) {
        if (const std::string* identifier = node.property("identifier")) return *identifier;
        std::string result = node.type;
        for (const char* property : {"text", "label", "image", "clipName"}) {
            if (const std::string* value = node.property(property)) {
                result += " " + inQuotes(*value);
                break;
            }
        }
        return around.empty() ? result : result + " in " + around;
    }

    bool isNear(geometry::Point a, geometry::Point b) const {
        return std::abs(a.x - b.x) <= m_tolerance && std::abs(a.y - b.y) <= m_tolerance;
    }

    void compareFrames(const ScreenTree& before, const ScreenTree& after, const std::string& name, geometry::Point shift,
                       geometry::Point parentShift) {
        if (!isNear(shift, parentShift))
            m_sentences.push_back(name + (isNear(shift, {}) ? " stays where it is, and what it stands in has moved"
                                                            : " moved by " + written(shift.x) + ", " + written(shift.y)));
        const geometry::Size old = before.frame.size, current = after.frame.size;
        if (!isNear({old.width, old.height}, {current.width, current.height}))
            m_sentences.push_back(name + " is " + written(current.width) + " x " + written(current.height) + " instead of " +
                                  written(old.width) + " x " + written(old.height));
    }

    void compareProperties(const ScreenTree& before, const ScreenTree& after, const std::string& name) {
        for (const auto& [property, value] : after.properties) compareProperty(property, before.property(property), &value, name);
        for (const auto& [property, value] : before.properties)
            if (!after.property(property)) compareProperty(property, &value, nullptr, name);
    }

    void compareProperty(const std::string& property, const std::string* old, const std::string* current, const std::string& name) {
        if (property == "identifier") return;
        const auto* wording =
            std::find_if(std::begin(wordings), std::end(wordings), [&](const Wording& each) { return property == each.property; });
        const bool isKnown = wording != std::end(wordings);
        if (old && current && (*old == *current || (isKnown && wording->isLength && areCloseNumbers(*old, *current, m_tolerance))))
            return;
        const auto told = [](const std::string* value) { return value ? inQuotes(*value) : std::string("none"); };
        m_sentences.push_back(name + " " + (isKnown ? wording->verb : property + " is") + " " + told(current) + " instead of " +
                              told(old));
    }

    double m_tolerance;
    std::vector<std::string> m_sentences;
};

} // namespace

std::vector<std::string> differences(const ScreenTree& before, const ScreenTree& after, double tolerance) {
    if (before.type != after.type) return {after.type + " is shown instead of " + before.type};
    Comparison comparison(tolerance);
    comparison.compare(before, after, "", {});
    return comparison.take();
}

} // namespace proupsells::tooling
