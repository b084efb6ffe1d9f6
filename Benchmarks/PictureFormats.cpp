#include "Benchmarks/PictureFormats.hpp"

#include <png.h>
#include <zstd.h>

#include <cstring>
#include <unordered_map>
#include <vector>

#include "Backends/Raster/PictureCodec.hpp"
#include "Backends/Raster/PngReader.hpp"

namespace proupsells::benchmarks {

namespace {

using rasterbackend::Picture;
using rasterbackend::Pixel;

std::size_t pixelCount(const Picture& picture) { return picture.byteCount() / sizeof(Pixel); }

std::string_view bytesOf(const Picture& picture) { return {reinterpret_cast<const char*>(picture.row(0)), picture.byteCount()}; }

// The difference between each row and the one above it, channel by channel.
Picture differences(const Picture& picture) {
    Picture result(picture.width(), picture.height());
    for (int y = 0; y < picture.height(); ++y) {
        const auto* row = reinterpret_cast<const std::uint8_t*>(picture.row(y));
        const auto* above = reinterpret_cast<const std::uint8_t*>(picture.row(std::max(0, y - 1)));
        auto* to = reinterpret_cast<std::uint8_t*>(result.row(y));
        for (int index = 0; index < picture.width() * 4; ++index) to[index] = std::uint8_t(row[index] - (y > 0 ? above[index] : 0));
    }
    return result;
}

Picture summedUp(Picture picture) {
    for (int y = 1; y < picture.height(); ++y) {
        const auto* above = reinterpret_cast<const std::uint8_t*>(picture.row(y - 1));
        auto* to = reinterpret_cast<std::uint8_t*>(picture.row(y));
        for (int index = 0; index < picture.width() * 4; ++index) to[index] = std::uint8_t(to[index] + above[index]);
    }
    return picture;
}

std::string rawPixels(const Picture& picture) { return std::string(bytesOf(picture)); }

// As whoever blends mapped pixels reads them.
Picture readInPlace(std::string_view bytes, int width, int height) {
    const Picture picture(std::shared_ptr<const Pixel[]>(std::shared_ptr<void>(), reinterpret_cast<const Pixel*>(bytes.data())),
                          width, height);
    Pixel common = 0;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) common |= picture.row(y)[x];
    return common != 0 ? picture : Picture();
}

std::string png(const Picture& picture) {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = png_uint_32(picture.width());
    image.height = png_uint_32(picture.height());
    image.format = PNG_FORMAT_BGRA;
    png_alloc_size_t size = PNG_IMAGE_PNG_SIZE_MAX(image);
    std::string bytes(size, '\0');
    if (!png_image_write_to_memory(&image, bytes.data(), &size, 0, picture.row(0), 0, nullptr)) return {};
    bytes.resize(size);
    return bytes;
}

Picture fromPng(std::string_view bytes, int, int) { return rasterbackend::pngPicture(bytes); }

std::string zstd(const Picture& picture) {
    std::string bytes(ZSTD_compressBound(picture.byteCount()), '\0');
    bytes.resize(ZSTD_compress(bytes.data(), bytes.size(), picture.row(0), picture.byteCount(), 19));
    return bytes;
}

Picture fromZstd(std::string_view bytes, int width, int height) {
    Picture picture(width, height);
    const std::size_t size = ZSTD_decompress(picture.row(0), picture.byteCount(), bytes.data(), bytes.size());
    return size == picture.byteCount() ? picture : Picture();
}

std::string lz4Differences(const Picture& picture) { return rasterbackend::compressed(differences(picture)); }
Picture fromLz4Differences(std::string_view bytes, int width, int height) {
    return summedUp(rasterbackend::decompressed(bytes, width, height));
}

std::string zstdDifferences(const Picture& picture) { return zstd(differences(picture)); }
Picture fromZstdDifferences(std::string_view bytes, int width, int height) { return summedUp(fromZstd(bytes, width, height)); }

// Byte by byte: runs, pixels of a small table of recent ones, small differences, whole pixels.
class RecentPixels {
public:
    static constexpr std::uint8_t run = 0x00, recent = 0x40, difference = 0x80, whole = 0xC0;
    static constexpr int longestRun = 64;

    static std::uint8_t place(Pixel pixel) { return std::uint8_t((pixel * 0x9E3779B1u) >> 26); }

    Pixel table[64] = {};
    Pixel last = 0;

    void remember(Pixel pixel) { last = table[place(pixel)] = pixel; }
};

int channel(Pixel pixel, int index) { return int(pixel >> 8 * index & 0xFF); }

// The three differences of colours between −2 and 1, two bits each. None for others.
std::optional<std::uint8_t> smallDifference(Pixel from, Pixel to) {
    if (channel(from, 3) != channel(to, 3)) return std::nullopt;
    int code = 0;
    for (int index = 0; index < 3; ++index) {
        const int difference = channel(to, index) - channel(from, index) + 2;
        if (difference < 0 || difference > 3) return std::nullopt;
        code |= difference << 2 * index;
    }
    return std::uint8_t(code);
}

std::string recentPixels(const Picture& picture) {
    std::string bytes;
    RecentPixels state;
    const Pixel* const pixels = picture.row(0);
    for (std::size_t index = 0, count = pixelCount(picture); index < count;) {
        const Pixel pixel = pixels[index];
        int length = 0;
        while (index + std::size_t(length) < count && length < RecentPixels::longestRun &&
               pixels[index + std::size_t(length)] == state.last)
            ++length;
        if (length > 0) {
            bytes += char(RecentPixels::run | (length - 1));
            index += std::size_t(length);
            continue;
        }
        if (state.table[RecentPixels::place(pixel)] == pixel) {
            bytes += char(RecentPixels::recent | RecentPixels::place(pixel));
        } else if (const auto difference = smallDifference(state.last, pixel)) {
            bytes += char(RecentPixels::difference | *difference);
        } else {
            bytes += char(RecentPixels::whole);
            bytes.append(reinterpret_cast<const char*>(&pixel), sizeof(pixel));
        }
        state.remember(pixel);
        ++index;
    }
    return bytes;
}

Picture fromRecentPixels(std::string_view bytes, int width, int height) {
    Picture picture(width, height);
    RecentPixels state;
    Pixel* to = picture.row(0);
    Pixel* const end = to + pixelCount(picture);
    for (std::size_t at = 0; at < bytes.size();) {
        const std::uint8_t code = std::uint8_t(bytes[at++]), value = code & 0x3F;
        if ((code & 0xC0) == RecentPixels::run) {
            if (end - to <= value) return {};
            to = std::fill_n(to, value + 1, state.last);
            continue;
        }
        Pixel pixel = 0;
        if ((code & 0xC0) == RecentPixels::recent) {
            pixel = state.table[value];
        } else if ((code & 0xC0) == RecentPixels::difference) {
            pixel = state.last + (value & 3) + ((value >> 2 & 3) << 8) + ((value >> 4 & 3) << 16) - 0x020202;
        } else {
            if (bytes.size() - at < sizeof(pixel)) return {};
            std::memcpy(&pixel, bytes.data() + at, sizeof(pixel));
            at += sizeof(pixel);
        }
        if (to == end) return {};
        state.remember(pixel);
        *to++ = pixel;
    }
    return to == end ? picture : Picture();
}

// Numbers of seven bits a byte, the lowest first.
void appendNumber(std::string& bytes, std::uint32_t number) {
    for (; number > 127; number >>= 7) bytes += char((number & 127) | 128);
    bytes += char(number);
}

std::optional<std::uint32_t> takeNumber(std::string_view& bytes) {
    std::uint32_t number = 0;
    for (int shift = 0; !bytes.empty() && shift < 32; shift += 7) {
        const std::uint8_t byte = std::uint8_t(bytes.front());
        bytes.remove_prefix(1);
        number |= std::uint32_t(byte & 127) << shift;
        if (byte < 128) return number;
    }
    return std::nullopt;
}

// All colours, then the length and the colour of each run.
std::string paletteRuns(const Picture& picture) {
    std::unordered_map<Pixel, std::uint32_t> numbers;
    std::vector<Pixel> palette;
    std::string runs;
    const Pixel* const pixels = picture.row(0);
    for (std::size_t index = 0, count = pixelCount(picture); index < count;) {
        const std::size_t begin = index;
        while (index < count && pixels[index] == pixels[begin]) ++index;
        const auto [entry, isNew] = numbers.emplace(pixels[begin], std::uint32_t(palette.size()));
        if (isNew) palette.push_back(pixels[begin]);
        appendNumber(runs, std::uint32_t(index - begin));
        appendNumber(runs, entry->second);
    }
    std::string bytes;
    appendNumber(bytes, std::uint32_t(palette.size()));
    bytes.append(reinterpret_cast<const char*>(palette.data()), palette.size() * sizeof(Pixel));
    return bytes + runs;
}

Picture fromPaletteRuns(std::string_view bytes, int width, int height) {
    Picture picture(width, height);
    Pixel* to = picture.row(0);
    Pixel* const end = to + pixelCount(picture);
    const auto colorCount = takeNumber(bytes);
    if (!colorCount || bytes.size() / sizeof(Pixel) < *colorCount) return {};
    const std::string_view palette = bytes.substr(0, *colorCount * sizeof(Pixel));
    bytes.remove_prefix(palette.size());
    while (!bytes.empty()) {
        const auto length = takeNumber(bytes), color = takeNumber(bytes);
        if (!length || !color || *length > std::size_t(end - to) || *color >= *colorCount) return {};
        Pixel pixel = 0;
        std::memcpy(&pixel, palette.data() + *color * sizeof(Pixel), sizeof(pixel));
        to = std::fill_n(to, *length, pixel);
    }
    return to == end ? picture : Picture();
}

constexpr PictureFormat formats[] = {
    {"raw pixels, read in place", rawPixels, readInPlace},
    {"PNG", png, fromPng},
    {"LZ4 (as shipped)", rasterbackend::compressed, rasterbackend::decompressed},
    {"LZ4, differences of rows", lz4Differences, fromLz4Differences},
    {"zstd", zstd, fromZstd},
    {"zstd, differences of rows", zstdDifferences, fromZstdDifferences},
    {"recent pixels, small steps", recentPixels, fromRecentPixels},
    {"palette, runs", paletteRuns, fromPaletteRuns},
};

} // namespace

std::span<const PictureFormat> pictureFormats() { return formats; }

} // namespace proupsells::benchmarks
