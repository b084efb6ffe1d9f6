// How much of each pixel a shape covers, kept as spans: what is empty costs nothing, what is full is a fill.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace proupsells::rasterbackend {

class CoverageMask {
public:
    // Neighbouring pixels of a row. They share one coverage, or each has its own.
    struct Span {
        std::int32_t x = 0;
        std::int32_t length = 0;
        std::int32_t coverages = -1; // index of the first pixel's own coverage; -1 where they share one
        std::uint8_t shared = 0;     // 255: wholly covered
    };

    // The next row, from top to bottom, pixels from left to right; what is missing at its end is empty.
    void appendRow(std::span<const std::uint8_t> coverages);

    int height() const { return int(m_rowStarts.size()) - 1; }
    std::span<const Span> row(int y) const {
        return {m_spans.data() + m_rowStarts[std::size_t(y)], m_spans.data() + m_rowStarts[std::size_t(y) + 1]};
    }
    const std::uint8_t* coverages(const Span& span) const { return m_coverages.data() + span.coverages; }
    bool isEmpty() const { return m_spans.empty(); }
    // Memory used.
    std::size_t byteCount() const;

private:
    void appendMixed(std::span<const std::uint8_t> row, std::size_t first, std::size_t end);

    std::vector<std::uint32_t> m_rowStarts{0};
    std::vector<Span> m_spans;
    std::vector<std::uint8_t> m_coverages;
};

} // namespace proupsells::rasterbackend
