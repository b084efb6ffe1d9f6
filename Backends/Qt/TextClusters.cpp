#include "Backends/Qt/TextClusters.hpp"

#include <QTextBoundaryFinder>

namespace proupsells::qtbackend {

namespace {

using graphics::Cluster;
using graphics::LineBreak;

bool isRegionalIndicatorPair(const QString& units, qsizetype at) {
    const auto isIndicator = [&](qsizetype unit) {
        return unit + 1 < units.size() && units[unit] == QChar(0xD83C) && units[unit + 1].unicode() >= 0xDDE6 &&
               units[unit + 1].unicode() <= 0xDDFF;
    };
    return isIndicator(at) && isIndicator(at + 2);
}

std::vector<std::uint32_t> clusterStarts(const RunUnits& text) {
    std::vector<std::uint32_t> starts;
    const QString& units = text.units();
    starts.reserve(std::size_t(units.size()) + 1);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, units);
    std::size_t run = 0;
    for (qsizetype at = 0; at >= 0 && at < units.size();) {
        starts.push_back(std::uint32_t(at));
        // Qt's rules see the two letters of a flag apart.
        qsizetype next = at + 4;
        if (isRegionalIndicatorPair(units, at))
            finder.setPosition(next);
        else
            next = finder.toNextBoundary();
        while (text.runStart(run) <= std::uint32_t(at) && run < text.runCount()) ++run;
        const qsizetype runEnd = text.runStart(run);
        if (next < 0 || next > runEnd) {
            next = runEnd;
            finder.setPosition(next);
        }
        at = next;
    }
    starts.push_back(std::uint32_t(units.size()));
    return starts;
}

bool isLineFeed(QChar unit) {
    const char16_t value = unit.unicode();
    return (value >= 0x0A && value <= 0x0D) || value == 0x85 || value == 0x2028 || value == 0x2029;
}

bool isBlank(QChar unit) {
    switch (unit.unicode()) {
    case 0x09:
    case 0x20:
    case 0x1680:
    case 0x205F:
    case 0x3000: return true;
    case 0x2007: return false; // figure space, which does not break
    default: return unit.unicode() >= 0x2000 && unit.unicode() <= 0x200A;
    }
}

// A soft hyphen would not be shown, and a solidus keeps a price and its period together ("$8.33/month").
bool mayEndALine(QChar last) { return last != QChar(u'\u00AD') && last != u'/'; }

} // namespace

void makeClusters(const RunUnits& text, std::vector<Cluster>& clusters, std::vector<std::uint32_t>& unitStarts) {
    unitStarts = clusterStarts(text);
    clusters.resize(unitStarts.size() - 1);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, text.units());
    std::size_t run = 0;
    for (std::size_t index = 0; index < clusters.size(); ++index) {
        const std::uint32_t start = unitStarts[index], end = unitStarts[index + 1];
        while (text.runStart(run + 1) <= start) ++run;
        Cluster& cluster = clusters[index];
        cluster.textOffset = text.byteOffset(start);
        cluster.textLength = text.byteOffset(end) - cluster.textOffset;
        cluster.run = std::uint16_t(run);

        const QChar last = text.units()[end - 1];
        cluster.isWhitespace = isLineFeed(last) || isBlank(text.units()[start]);
        finder.setPosition(end);
        if (isLineFeed(last)) {
            // A carriage return and its line feed stay together even across runs.
            const bool continues = last == '\r' && end < text.units().size() && text.units()[end] == '\n';
            cluster.breakAfter = continues ? LineBreak::none : LineBreak::mandatory;
        } else if (end < text.units().size() && finder.isAtBoundary() && mayEndALine(last)) {
            cluster.breakAfter = LineBreak::allowed;
        }
    }
}

} // namespace proupsells::qtbackend
