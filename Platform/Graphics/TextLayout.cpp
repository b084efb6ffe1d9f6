#include "Platform/Graphics/TextLayout.hpp"

#include <algorithm>
#include <limits>

namespace proupsells::graphics {

namespace {

// Forgives the rounding of sums, so that a text that is given its own measured size keeps its lines.
constexpr double tolerance = 1e-6;

// A line before it is known whether it stays.
struct Candidate {
    std::uint32_t first = 0;
    std::uint32_t end = 0;  // without the blanks at its end
    std::uint32_t next = 0; // where the following line starts
    double width = 0;
    double ascent = 0;
    double descent = 0;
    bool endsParagraph = false;
};

class LineMaker {
public:
    LineMaker(const ShapedText& text, const TextLayoutRequest& request, TextLayout& result)
        : m_text(text), m_request(request), m_result(result), m_count(std::uint32_t(text.clusters.size())),
          m_width(request.width.value_or(geometry::infinity)) {}

    void makeLines();

private:
    Candidate lineFrom(std::uint32_t first) const;
    Candidate filled(const Candidate& wrapped) const;
    bool isTaller(std::uint16_t run, const Candidate& line) const;
    void measureHeight(Candidate& line) const;
    bool isLast(const Candidate& line) const;
    bool mayFollow(const Candidate& line) const;
    void add(const Candidate& line, bool isTruncated);
    void addFragments(const TextLine& line);
    void reorderFragments(std::uint32_t first, std::uint32_t end);
    std::uint8_t levelOf(const TextFragment& fragment) const { return m_text.clusters[fragment.firstCluster].bidiLevel; }
    std::uint16_t runAt(std::uint32_t cluster) const;
    bool breaksMandatorilyAfter(std::uint32_t cluster) const { return m_text.clusters[cluster].breakAfter == LineBreak::mandatory; }

    const ShapedText& m_text;
    const TextLayoutRequest& m_request;
    TextLayout& m_result;
    const std::uint32_t m_count;
    const double m_width;
};

// An empty last line has no cluster of its own and looks like the end of the text before it.
std::uint16_t LineMaker::runAt(std::uint32_t cluster) const {
    return m_count == 0 ? 0 : m_text.clusters[std::min(cluster, m_count - 1)].run;
}

// Blanks never overflow: they count once something follows them on the line.
Candidate LineMaker::lineFrom(std::uint32_t first) const {
    Candidate line{.first = first, .end = first, .next = m_count};
    Candidate atBreak = line;
    bool hasBreak = false;
    double blanks = 0;
    for (std::uint32_t index = first; index < m_count; ++index) {
        const Cluster& cluster = m_text.clusters[index];
        if (cluster.isWhitespace) {
            blanks += cluster.advance;
        } else {
            const double width = line.width + blanks + cluster.advance;
            if (width > m_width + tolerance && index > first) {
                if (hasBreak) return atBreak;
                line.next = index;
                return line;
            }
            line.width = width;
            line.end = index + 1;
            blanks = 0;
        }
        if (cluster.breakAfter == LineBreak::none) continue;
        atBreak = line;
        atBreak.next = index + 1;
        hasBreak = true;
        if (cluster.breakAfter == LineBreak::mandatory) {
            atBreak.endsParagraph = true;
            return atBreak;
        }
    }
    return line;
}

bool LineMaker::isTaller(std::uint16_t run, const Candidate& line) const {
    if (run >= m_text.metrics.size()) return false;
    return m_text.metrics[run].ascent > line.ascent || m_text.metrics[run].descent > line.descent;
}

// As much of the paragraph's rest as leaves room for the ellipsis, wherever that ends, without making the line taller.
Candidate LineMaker::filled(const Candidate& wrapped) const {
    Candidate line = wrapped;
    line.end = line.first;
    line.width = 0;
    double blanks = 0;
    for (std::uint32_t index = line.first; index < m_count; ++index) {
        const Cluster& cluster = m_text.clusters[index];
        if (index >= wrapped.next && isTaller(cluster.run, wrapped)) break;
        if (cluster.isWhitespace) {
            blanks += cluster.advance;
        } else {
            const double width = line.width + blanks + cluster.advance;
            if (width + m_request.ellipsisWidth > m_width + tolerance) break;
            line.width = width;
            line.end = index + 1;
            blanks = 0;
        }
        if (cluster.breakAfter == LineBreak::mandatory) break;
    }
    line.width += m_request.ellipsisWidth;
    return line;
}

void LineMaker::measureHeight(Candidate& line) const {
    const auto include = [&](std::uint16_t run) {
        if (run >= m_text.metrics.size()) return;
        line.ascent = std::max(line.ascent, m_text.metrics[run].ascent);
        line.descent = std::max(line.descent, m_text.metrics[run].descent);
    };
    std::uint16_t run = runAt(line.first);
    include(run);
    for (std::uint32_t index = line.first; index < line.next; ++index) {
        if (m_text.clusters[index].run == run) continue;
        run = m_text.clusters[index].run;
        include(run);
    }
}

bool LineMaker::isLast(const Candidate& line) const { return line.next == m_count && !line.endsParagraph; }

// Whether the line after `line` would be kept. Nothing else is known about it yet.
bool LineMaker::mayFollow(const Candidate& line) const {
    if (m_request.lineLimit && int(m_result.lines.size()) + 1 >= *m_request.lineLimit) return false;
    if (!m_request.height) return true;
    Candidate next = line.next == m_count ? Candidate{.first = m_count, .end = m_count, .next = m_count} : lineFrom(line.next);
    measureHeight(next);
    const double spacing = m_request.lineSpacing * (m_result.lines.empty() ? 1 : 2);
    const double height = m_result.size.height + line.ascent + line.descent + next.ascent + next.descent + spacing;
    return height <= *m_request.height + tolerance;
}

void LineMaker::makeLines() {
    std::uint32_t first = 0;
    while (true) {
        Candidate line = lineFrom(first);
        measureHeight(line);
        if (isLast(line)) return add(line, false);
        if (!mayFollow(line)) return add(filled(line), true);
        add(line, false);
        first = line.next;
    }
}

void LineMaker::add(const Candidate& candidate, bool isTruncated) {
    TextLine line;
    line.firstCluster = candidate.first;
    line.endCluster = candidate.end;
    line.width = candidate.width;
    line.ascent = candidate.ascent;
    line.height = candidate.ascent + candidate.descent;
    line.isRightToLeft = line.firstCluster < m_count && m_text.clusters[line.firstCluster].paragraphLevel % 2 == 1;
    line.isTruncated = isTruncated;
    if (isTruncated) {
        line.ellipsisWidth = m_request.ellipsisWidth;
        line.ellipsisRun = runAt(line.endCluster > line.firstCluster ? line.endCluster - 1 : line.firstCluster);
        m_result.isTruncated = true;
    }
    line.firstFragment = std::uint32_t(m_result.fragments.size());
    addFragments(line);
    line.endFragment = std::uint32_t(m_result.fragments.size());

    if (!m_result.lines.empty()) m_result.size.height += m_request.lineSpacing;
    m_result.size.height += line.height;
    m_result.size.width = std::max(m_result.size.width, line.width);
    m_result.lines.push_back(line);
}

void LineMaker::addFragments(const TextLine& line) {
    const auto firstFragment = std::uint32_t(m_result.fragments.size());
    for (std::uint32_t index = line.firstCluster; index < line.endCluster; ++index) {
        const Cluster& cluster = m_text.clusters[index];
        const bool continues = m_result.fragments.size() > firstFragment && m_result.fragments.back().run == cluster.run &&
                               levelOf(m_result.fragments.back()) == cluster.bidiLevel;
        if (!continues) {
            m_result.fragments.push_back({.firstCluster = index, .run = cluster.run, .isRightToLeft = cluster.bidiLevel % 2 == 1});
        }
        m_result.fragments.back().endCluster = index + 1;
        m_result.fragments.back().width += cluster.advance;
    }
    const auto endFragment = std::uint32_t(m_result.fragments.size());
    reorderFragments(firstFragment, endFragment);

    double x = line.isRightToLeft ? line.ellipsisWidth : 0;
    for (std::uint32_t index = firstFragment; index < endFragment; ++index) {
        m_result.fragments[index].x = x;
        x += m_result.fragments[index].width;
    }
}

// From the highest level down to the lowest odd one, every stretch of at least that level is turned round.
void LineMaker::reorderFragments(std::uint32_t first, std::uint32_t end) {
    int highest = 0, lowestOdd = std::numeric_limits<int>::max();
    for (std::uint32_t index = first; index < end; ++index) {
        const int level = levelOf(m_result.fragments[index]);
        highest = std::max(highest, level);
        if (level % 2 == 1) lowestOdd = std::min(lowestOdd, level);
    }
    const auto begin = m_result.fragments.begin();
    for (int level = highest; level >= lowestOdd; --level) {
        for (std::uint32_t index = first; index < end;) {
            std::uint32_t stretchEnd = index;
            while (stretchEnd < end && levelOf(m_result.fragments[stretchEnd]) >= level) ++stretchEnd;
            if (stretchEnd > index) std::reverse(begin + index, begin + stretchEnd);
            index = std::max(index + 1, stretchEnd);
        }
    }
}

void makeLines(const ShapedText& text, const TextLayoutRequest& request, TextLayout& result) {
    result.lines.clear();
    result.fragments.clear();
    result.size = {};
    result.isTruncated = false;
    result.lineSpacing = request.lineSpacing;
    result.direction = request.direction;
    LineMaker(text, request, result).makeLines();
}

bool endsInShortLine(const ShapedText& text, const TextLayout& layout) {
    if (layout.lines.size() < 2) return false;
    const TextLine& last = layout.lines.back();
    if (last.firstCluster == last.endCluster || last.width >= layout.size.width / 3) return false;
    const auto begin = text.clusters.begin() + last.firstCluster, end = text.clusters.begin() + last.endCluster - 1;
    return std::all_of(begin, end, [](const Cluster& cluster) { return cluster.breakAfter == LineBreak::none; });
}

// Fills the lines in less and less room, so that words come down from the widest one.
void lengthenLastLine(const ShapedText& text, const TextLayoutRequest& request, TextLayout& result) {
    const std::size_t lineCount = result.lines.size();
    const double leastWidth = unbreakableWidth(text);
    TextLayoutRequest narrower = request;
    while (endsInShortLine(text, result)) {
        narrower.width = result.size.width - 2 * tolerance;
        const bool canBeNarrower = *narrower.width > leastWidth;
        if (canBeNarrower) makeLines(text, narrower, result);
        if (canBeNarrower && result.lines.size() == lineCount && !result.isTruncated) continue;
        return makeLines(text, request, result);
    }
}

} // namespace

void layOutText(const ShapedText& text, const TextLayoutRequest& request, TextLayout& result) {
    makeLines(text, request, result);
    if (request.avoidsShortLastLine && !text.keepsGreedyLines && !result.isTruncated) lengthenLastLine(text, request, result);
}

double unbreakableWidth(const ShapedText& text) {
    double widest = 0, width = 0, blanks = 0;
    for (const Cluster& cluster : text.clusters) {
        if (cluster.isWhitespace) {
            blanks += cluster.advance;
        } else {
            width += blanks + cluster.advance;
            widest = std::max(widest, width);
            blanks = 0;
        }
        if (cluster.breakAfter != LineBreak::none) width = blanks = 0;
    }
    return widest;
}

} // namespace proupsells::graphics
