#include "Apps/ProUpsellsHost/PictureDigest.hpp"

#include <cstdint>

namespace proupsells::hostprogram {

namespace {

// A sum of 64 bits in which every bit of a word comes to bear on the upper half at once and on all after the next word.
class Sum {
public:
    explicit Sum(std::uint64_t factor) : m_factor(factor) {}

    void add(std::uint64_t word) {
        m_sum = (m_sum ^ word) * m_factor;
        m_sum ^= m_sum >> 32;
    }

    std::string digits() const {
        constexpr std::string_view hexadecimal = "0123456789abcdef";
        std::string result;
        for (int shift = 60; shift >= 0; shift -= 4) result += hexadecimal[m_sum >> shift & 15];
        return result;
    }

private:
    std::uint64_t m_factor; // odd, so that no sum is reached from two
    std::uint64_t m_sum = 0;
};

} // namespace

std::string digestOf(const rasterbackend::Picture& picture) {
    // The digits of the golden ratio and of the square root of two.
    Sum first(0x9E3779B97F4A7C15), second(0x6A09E667F3BCC909);
    const auto add = [&](std::uint64_t word) {
        first.add(word);
        second.add(word);
    };
    add(std::uint64_t(picture.width()) << 32 | std::uint64_t(picture.height()));
    for (int y = 0; y < picture.height(); ++y) {
        const rasterbackend::Pixel* const row = picture.row(y);
        for (int x = 0; x < picture.width(); ++x) add(row[x]);
    }
    return first.digits() + second.digits();
}

} // namespace proupsells::hostprogram
