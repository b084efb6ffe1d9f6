// Finds where two display lists differ.
//
// Commands that both lists have, in the same order, paint the same wherever no other command paints; so the damage is the
// bounds of all others. The common beginning and end are found by comparison, what is common in between by hash values
// and a longest increasing run.
#include <algorithm>
#include <cstring>

#include "Platform/Graphics/DisplayList.hpp"

namespace proupsells::graphics {

namespace {

using geometry::Rect;

constexpr std::size_t maximumRectangleCount = 8;

double area(const Rect& rect) { return rect.width() * rect.height(); }

// Keeps a few rectangles that do not overlap.
class DamageCollector {
public:
    explicit DamageCollector(std::vector<Rect>& rectangles) : m_rectangles(rectangles) { m_rectangles.clear(); }

    void add(Rect rect) {
        if (rect.isEmpty()) return;
        // What grew by one union may overlap another rectangle.
        while (const auto overlapping = takeOverlapping(rect)) rect = rect.united(*overlapping);
        m_rectangles.push_back(rect);
        if (m_rectangles.size() > maximumRectangleCount) mergeCheapestPair();
    }

private:
    std::optional<Rect> takeOverlapping(const Rect& rect) {
        for (Rect& candidate : m_rectangles) {
            if (!candidate.intersects(rect)) continue;
            const Rect taken = candidate;
            candidate = m_rectangles.back();
            m_rectangles.pop_back();
            return taken;
        }
        return std::nullopt;
    }

    void mergeCheapestPair() {
        std::size_t first = 0, second = 1;
        double leastWaste = geometry::infinity;
        for (std::size_t a = 0; a < m_rectangles.size(); ++a) {
            for (std::size_t b = a + 1; b < m_rectangles.size(); ++b) {
                const double waste = area(m_rectangles[a].united(m_rectangles[b])) - area(m_rectangles[a]) - area(m_rectangles[b]);
                if (waste >= leastWaste) continue;
                leastWaste = waste;
                first = a;
                second = b;
            }
        }
        const Rect merged = m_rectangles[first].united(m_rectangles[second]);
        m_rectangles.erase(m_rectangles.begin() + std::ptrdiff_t(second));
        m_rectangles.erase(m_rectangles.begin() + std::ptrdiff_t(first));
        add(merged);
    }

    std::vector<Rect>& m_rectangles;
};

// std::bit_cast, which some supported standard libraries lack.
template <class Bits, class Value>
Bits bitsOf(const Value& value) {
    static_assert(sizeof(Bits) == sizeof(Value));
    Bits bits;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

// Equal for commands that paint the same; resources are left to the comparison.
std::uint64_t hashOf(const Command& command) {
    std::uint64_t hash = 0x9E3779B97F4A7C15;
    const auto mix = [&hash](std::uint64_t value) {
        hash = (hash ^ value) * 0xD6E8FEB86659FD93;
        hash ^= hash >> 32;
    };
    // Adding zero makes one zero of the two, which compare equal.
    const auto mixLength = [&mix](double value) { mix(bitsOf<std::uint64_t>(value + 0.0)); };
    mixLength(command.frame.origin.x);
    mixLength(command.frame.origin.y);
    mixLength(command.frame.size.width);
    mixLength(command.frame.size.height);
    mixLength(command.bounds.origin.x);
    mixLength(command.bounds.origin.y);
    mixLength(double(command.opacity));
    mix(std::uint64_t(command.kind) << 32 | bitsOf<std::uint32_t>(command.color));
    mix(std::uint64_t(command.firstCluster) << 32 | command.endCluster);
    return hash;
}

struct HashedCommand {
    std::uint64_t hash = 0;
    std::uint32_t index = 0;

    bool operator<(const HashedCommand& other) const { return hash != other.hash ? hash < other.hash : index < other.index; }
};

struct Match {
    std::uint32_t before = 0;
    std::uint32_t after = 0;
    std::int32_t previous = -1; // in the longest run of matches that ends here
};

// Memory that is kept from one comparison to the next.
struct Workspace {
    std::vector<HashedCommand> before;
    std::vector<HashedCommand> after;
    std::vector<Match> matches;
    std::vector<std::int32_t> runEnds; // for each length, the match that ends the run with the lowest `after`
};

struct Range {
    std::uint32_t first = 0;
    std::uint32_t end = 0;

    bool isEmpty() const { return first == end; }
};

class ListComparison {
public:
    ListComparison(const DisplayList& before, const DisplayList& after, std::vector<Rect>& result, Workspace& workspace)
        : m_before(before), m_after(after), m_damage(result), m_workspace(workspace) {}

    void run() {
        skipCommonEnds();
        if (!m_rangeBefore.isEmpty() && !m_rangeAfter.isEmpty()) {
            findMatches();
            findLongestRun();
        } else {
            m_workspace.matches.clear();
            m_workspace.runEnds.clear();
        }
        addUnmatched();
    }

private:
    bool isSame(std::uint32_t before, std::uint32_t after) const {
        return paintsTheSame(m_before, m_before.commands[before], m_after, m_after.commands[after]);
    }

    void skipCommonEnds() {
        m_rangeBefore = {0, std::uint32_t(m_before.commands.size())};
        m_rangeAfter = {0, std::uint32_t(m_after.commands.size())};
        while (!m_rangeBefore.isEmpty() && !m_rangeAfter.isEmpty() && isSame(m_rangeBefore.first, m_rangeAfter.first)) {
            ++m_rangeBefore.first;
            ++m_rangeAfter.first;
        }
        while (!m_rangeBefore.isEmpty() && !m_rangeAfter.isEmpty() && isSame(m_rangeBefore.end - 1, m_rangeAfter.end - 1)) {
            --m_rangeBefore.end;
            --m_rangeAfter.end;
        }
    }

    static void hashRange(const DisplayList& list, Range range, std::vector<HashedCommand>& result) {
        result.clear();
        for (std::uint32_t index = range.first; index < range.end; ++index) result.push_back({hashOf(list.commands[index]), index});
        std::sort(result.begin(), result.end());
    }

    // Pairs the first of several equal commands with the first, the second with the second, and so on.
    void findMatches() {
        hashRange(m_before, m_rangeBefore, m_workspace.before);
        hashRange(m_after, m_rangeAfter, m_workspace.after);
        auto& matches = m_workspace.matches;
        matches.clear();
        auto before = m_workspace.before.begin();
        auto after = m_workspace.after.begin();
        while (before != m_workspace.before.end() && after != m_workspace.after.end()) {
            if (before->hash < after->hash) {
                ++before;
            } else if (after->hash < before->hash) {
                ++after;
            } else {
                if (isSame(before->index, after->index)) matches.push_back({before->index, after->index});
                ++before;
                ++after;
            }
        }
        std::sort(matches.begin(), matches.end(), [](const Match& a, const Match& b) { return a.before < b.before; });
    }

    void findLongestRun() {
        auto& matches = m_workspace.matches;
        auto& runEnds = m_workspace.runEnds;
        runEnds.clear();
        for (std::size_t index = 0; index < matches.size(); ++index) {
            const auto place =
                std::lower_bound(runEnds.begin(), runEnds.end(), matches[index].after,
                                 [&](std::int32_t end, std::uint32_t after) { return matches[std::size_t(end)].after < after; });
            matches[index].previous = place == runEnds.begin() ? -1 : *(place - 1);
            if (place == runEnds.end()) {
                runEnds.push_back(std::int32_t(index));
            } else {
                *place = std::int32_t(index);
            }
        }
    }

    // From the lists' ends towards their beginnings, since the run of matches is linked that way.
    void addUnmatched() {
        std::uint32_t endBefore = m_rangeBefore.end, endAfter = m_rangeAfter.end;
        std::int32_t match = m_workspace.runEnds.empty() ? -1 : m_workspace.runEnds.back();
        for (; match >= 0; match = m_workspace.matches[std::size_t(match)].previous) {
            const Match& common = m_workspace.matches[std::size_t(match)];
            addBounds(m_before, {common.before + 1, endBefore});
            addBounds(m_after, {common.after + 1, endAfter});
            endBefore = common.before;
            endAfter = common.after;
        }
        addBounds(m_before, {m_rangeBefore.first, endBefore});
        addBounds(m_after, {m_rangeAfter.first, endAfter});
    }

    void addBounds(const DisplayList& list, Range range) {
        for (std::uint32_t index = range.first; index < range.end; ++index) m_damage.add(list.commands[index].bounds);
    }

    const DisplayList& m_before;
    const DisplayList& m_after;
    DamageCollector m_damage;
    Workspace& m_workspace;
    Range m_rangeBefore;
    Range m_rangeAfter;
};

} // namespace

void findDamage(const DisplayList& before, const DisplayList& after, std::vector<Rect>& result) {
    thread_local Workspace workspace;
    ListComparison(before, after, result, workspace).run();
}

} // namespace proupsells::graphics
