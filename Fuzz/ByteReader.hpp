// Bytes read as choices.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>

namespace proupsells::fuzz {

// Zeros once the bytes are used up. They must stay as long as the reader.
class ByteReader {
public:
    ByteReader(const std::uint8_t* data, std::size_t size) : m_data(data), m_size(size) {}

    bool isOver() const { return m_at >= m_size; }
    // From 0 up to the limit, which is 256 at most.
    int below(int limit) { return isOver() ? 0 : m_data[m_at++] % limit; }
    bool flag() { return below(2) == 1; }
    // From 0 to 2 times the length, and now and then no number.
    double coordinate(double length) {
        const int byte = below(256);
        if (byte == 255) return std::numeric_limits<double>::quiet_NaN();
        if (byte == 254) return -std::numeric_limits<double>::infinity();
        return byte / 127.0 * length;
    }

private:
    const std::uint8_t* m_data;
    std::size_t m_size, m_at = 0;
};

} // namespace proupsells::fuzz
