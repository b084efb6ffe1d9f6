#include "Backends/Raster/Resampling.hpp"

#include <algorithm>
#include <bit>
#include <cstring>
#include <span>
#include <vector>

namespace proupsells::rasterbackend {

namespace {

constexpr int channelCount = 4;
// The weights of a pixel are whole numbers and add up to this exactly, so that what has one colour keeps it.
constexpr int weightBits = 14;
constexpr std::int64_t wholeWeight = 1 << weightBits;
// What is added up down the columns keeps some bits of the fraction.
constexpr int fractionBits = 6;

// The pixels along one axis of which a new pixel is made: so many from `first` on.
struct Taps {
    int first;
    std::span<const std::uint16_t> weights;
};

// The weights along one axis.
class Axis {
public:
    Axis(int from, int to) : m_from(from), m_to(to), m_firsts(std::size_t(to)), m_ends(std::size_t(to)) {
        for (int index = 0; index < to; ++index) {
            if (to < from)
                addArea(index);
            else
                addInterpolation(index);
            m_ends[std::size_t(index)] = m_weights.size();
        }
    }

    Taps operator[](int index) const {
        const std::size_t begin = index > 0 ? m_ends[std::size_t(index) - 1] : 0;
        return {m_firsts[std::size_t(index)], std::span(m_weights).subspan(begin, m_ends[std::size_t(index)] - begin)};
    }

private:
    // Lengths are counted in units of which `m_to` make an old pixel and `m_from` a new one.
    void addArea(int index) {
        const std::int64_t begin = std::int64_t(index) * m_from, end = begin + m_from;
        const std::int64_t first = begin / m_to;
        m_firsts[std::size_t(index)] = int(first);
        std::int64_t given = 0;
        for (std::int64_t pixel = first; pixel * m_to < end; ++pixel) {
            const std::int64_t covered = std::min((pixel + 1) * m_to, end) - begin;
            // Rounded are the sums, so that no error adds up.
            const std::int64_t sum = (covered * wholeWeight + m_from / 2) / m_from;
            m_weights.push_back(std::uint16_t(sum - given));
            given = sum;
        }
    }

    void addInterpolation(int index) {
        // Twice the distance between the centres of the first old pixel and of this one.
        const std::int64_t distance = std::max<std::int64_t>(0, (2 * std::int64_t(index) + 1) * m_from - m_to);
        const std::int64_t first = distance / (2 * std::int64_t(m_to));
        const std::int64_t beyond = distance - first * 2 * m_to;
        m_firsts[std::size_t(index)] = int(first);
        const std::int64_t second = first + 1 < m_from ? (beyond * wholeWeight + m_to) / (2 * std::int64_t(m_to)) : 0;
        m_weights.push_back(std::uint16_t(wholeWeight - second));
        if (second > 0) m_weights.push_back(std::uint16_t(second));
    }

    int m_from;
    int m_to;
    std::vector<int> m_firsts;
    std::vector<std::size_t> m_ends; // of each one's weights
    std::vector<std::uint16_t> m_weights;
};

const std::uint8_t* channelsOf(const Picture& picture, int y) { return reinterpret_cast<const std::uint8_t*>(picture.row(y)); }

// One new row, still as wide as the picture.
void addRows(const Picture& picture, Taps taps, std::vector<std::uint32_t>& sums, std::vector<std::uint16_t>& row) {
    const std::size_t count = row.size();
    std::fill(sums.begin(), sums.end(), 1u << (weightBits - fractionBits - 1));
    for (std::size_t tap = 0; tap < taps.weights.size(); ++tap) {
        const std::uint8_t* const channels = channelsOf(picture, taps.first + int(tap));
        const std::uint16_t weight = taps.weights[tap];
        std::uint32_t* const to = sums.data();
        for (std::size_t index = 0; index < count; ++index) to[index] += std::uint32_t(weight) * std::uint16_t(channels[index]);
    }
    for (std::size_t index = 0; index < count; ++index) row[index] = std::uint16_t(sums[index] >> (weightBits - fractionBits));
}

// A pixel's first and third channel in one number, far enough apart to be added up together.
constexpr std::uint64_t channelPair = 0x0000FFFF'0000FFFF;
static_assert(std::endian::native == std::endian::little, "The first channel must be the lowest");

void addColumns(const std::vector<std::uint16_t>& row, const Axis& axis, Pixel* to, int width) {
    constexpr int droppedBits = weightBits + fractionBits;
    constexpr std::uint64_t half = 1u << (droppedBits - 1);
    const auto finished = [](std::uint64_t sum) { return Pixel(sum) >> droppedBits | Pixel(sum >> 32) >> droppedBits << 16; };
    for (int x = 0; x < width; ++x) {
        const Taps taps = axis[x];
        const std::uint16_t* from = row.data() + std::size_t(taps.first) * channelCount;
        std::uint64_t even = half | half << 32, odd = even;
        for (const std::uint64_t weight : taps.weights) {
            std::uint64_t channels;
            std::memcpy(&channels, from, sizeof(channels));
            even += (channels & channelPair) * weight;
            odd += (channels >> 16 & channelPair) * weight;
            from += channelCount;
        }
        to[x] = finished(even) | finished(odd) << 8;
    }
}

} // namespace

Picture resampled(const Picture& picture, int width, int height) {
    if (picture.isNull() || (picture.width() == width && picture.height() == height)) return picture;
    Picture result = Picture::unwritten(width, height);
    if (result.isNull()) return {};

    const Axis columns(picture.width(), width), rows(picture.height(), height);
    std::vector<std::uint32_t> sums(std::size_t(picture.width()) * channelCount);
    std::vector<std::uint16_t> row(sums.size());
    for (int y = 0; y < height; ++y) {
        addRows(picture, rows[y], sums, row);
        addColumns(row, columns, result.row(y), width);
    }
    return result;
}

} // namespace proupsells::rasterbackend
