#include "Backends/Raster/CoverageMask.hpp"

namespace proupsells::rasterbackend {

namespace {

// Shorter stretches of one coverage are not worth a span of their own.
constexpr std::size_t shortestShared = 8;

std::size_t endOfEqual(std::span<const std::uint8_t> row, std::size_t first) {
    std::size_t end = first + 1;
    while (end < row.size() && row[end] == row[first]) ++end;
    return end;
}

} // namespace

void CoverageMask::appendRow(std::span<const std::uint8_t> row) {
    std::size_t mixedStart = 0;
    for (std::size_t x = 0; x < row.size();) {
        const std::size_t end = endOfEqual(row, x);
        const bool isEmpty = row[x] == 0;
        if (end - x >= shortestShared || (isEmpty && (x == mixedStart || end == row.size()))) {
            appendMixed(row, mixedStart, x);
            if (!isEmpty) m_spans.push_back({std::int32_t(x), std::int32_t(end - x), -1, row[x]});
            mixedStart = end;
        }
        x = end;
    }
    appendMixed(row, mixedStart, row.size());
    m_rowStarts.push_back(std::uint32_t(m_spans.size()));
}

void CoverageMask::appendMixed(std::span<const std::uint8_t> row, std::size_t first, std::size_t end) {
    if (first >= end) return;
    m_spans.push_back({std::int32_t(first), std::int32_t(end - first), std::int32_t(m_coverages.size()), 0});
    m_coverages.insert(m_coverages.end(), row.begin() + std::ptrdiff_t(first), row.begin() + std::ptrdiff_t(end));
}

std::size_t CoverageMask::byteCount() const {
    return m_rowStarts.capacity() * sizeof(std::uint32_t) + m_spans.capacity() * sizeof(Span) + m_coverages.capacity() +
           sizeof(*this);
}

} // namespace proupsells::rasterbackend
