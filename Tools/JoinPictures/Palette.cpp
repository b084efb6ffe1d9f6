#include "Tools/JoinPictures/Palette.hpp"

#include <algorithm>
#include <array>
#include <map>
#include <span>
#include <utility>

namespace proupsells::joinpictures {

namespace {

constexpr std::size_t paletteSize = 256, exactColours = 64;

struct Share {
    Colour colour = 0;
    std::uint64_t count = 0;
};

int channel(Colour colour, int index) { return int(colour >> (16 - 8 * index) & 0xFF); }

std::vector<Share> sharesOf(const std::vector<Colour>& pixels) {
    std::map<Colour, std::uint64_t> counts;
    for (const Colour pixel : pixels) ++counts[pixel];
    std::vector<Share> shares;
    shares.reserve(counts.size());
    for (const auto& [colour, count] : counts) shares.push_back({colour, count});
    std::stable_sort(shares.begin(), shares.end(), [](const Share& a, const Share& b) { return a.count > b.count; });
    return shares;
}

// Colours that one of the palette will stand for.
struct Box {
    std::span<Share> shares;
    int widest = 0;         // channel
    std::uint64_t cost = 0; // what it would help to split the box

    explicit Box(std::span<Share> among) : shares(among) {
        std::uint64_t count = 0;
        for (const Share& share : shares) count += share.count;
        int length = 0;
        for (int index = 0; index < 3; ++index) {
            const auto [low, high] = std::minmax_element(shares.begin(), shares.end(), [&](const Share& a, const Share& b) {
                return channel(a.colour, index) < channel(b.colour, index);
            });
            const int here = channel(high->colour, index) - channel(low->colour, index);
            if (here > length) widest = index;
            length = std::max(length, here);
        }
        cost = count * std::uint64_t(length) * std::uint64_t(length);
    }

    // Half of the pixels on either side, where the colours allow that.
    std::pair<Box, Box> split() const {
        std::stable_sort(shares.begin(), shares.end(),
                         [this](const Share& a, const Share& b) { return channel(a.colour, widest) < channel(b.colour, widest); });
        std::uint64_t count = 0, before = 0;
        for (const Share& share : shares) count += share.count;
        std::size_t middle = 0;
        while (middle + 1 < shares.size() && (middle == 0 || before + shares[middle].count <= count / 2))
            before += shares[middle++].count;
        return {Box(shares.first(middle)), Box(shares.subspan(middle))};
    }

    Colour mean() const {
        Colour mean = 0;
        for (int index = 0; index < 3; ++index) {
            std::uint64_t sum = 0, count = 0;
            for (const Share& share : shares) {
                sum += share.count * std::uint64_t(channel(share.colour, index));
                count += share.count;
            }
            mean = mean << 8 | Colour((sum + count / 2) / count);
        }
        return mean;
    }
};

int distance(Colour a, Colour b) {
    int sum = 0;
    for (int index = 0; index < 3; ++index) {
        const int way = channel(a, index) - channel(b, index);
        sum += way * way;
    }
    return sum;
}

} // namespace

std::vector<Colour> paletteOf(const std::vector<Colour>& pixels) {
    std::vector<Share> shares = sharesOf(pixels);
    const std::size_t exact = std::min(shares.size(), shares.size() <= paletteSize ? paletteSize : exactColours);
    std::vector<Colour> palette;
    for (std::size_t index = 0; index < exact; ++index) palette.push_back(shares[index].colour);
    if (exact == shares.size()) return palette;

    std::vector<Box> boxes{Box(std::span(shares).subspan(exact))};
    while (boxes.size() < paletteSize - exact) {
        const auto worst = std::max_element(boxes.begin(), boxes.end(), [](const Box& a, const Box& b) { return a.cost < b.cost; });
        if (worst->shares.size() < 2) break;
        auto [first, second] = worst->split();
        *worst = first;
        boxes.push_back(second);
    }
    for (const Box& box : boxes) palette.push_back(box.mean());
    return palette;
}

std::vector<std::uint8_t> placesIn(const std::vector<Colour>& palette, const std::vector<Colour>& pixels) {
    std::map<Colour, std::uint8_t> known;
    std::vector<std::uint8_t> places;
    places.reserve(pixels.size());
    for (const Colour pixel : pixels) {
        const auto [entry, isNew] = known.try_emplace(pixel);
        if (isNew) {
            const auto nearest = std::min_element(palette.begin(), palette.end(),
                                                  [pixel](Colour a, Colour b) { return distance(a, pixel) < distance(b, pixel); });
            entry->second = std::uint8_t(nearest - palette.begin());
        }
        places.push_back(entry->second);
    }
    return places;
}

} // namespace proupsells::joinpictures
