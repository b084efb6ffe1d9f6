#include "Platform/Graphics/PictureHeader.hpp"

#include <cmath>

#include "Platform/Foundation/LittleEndian.hpp"

namespace proupsells::graphics {

namespace {

using foundation::appendNumber;
using foundation::takeNumber;

constexpr std::string_view signature("\x93Pict\r\n\x02", 8);
constexpr double unitsPerPoint = 1000;

bool isLength(std::uint32_t length_px) { return length_px >= 1 && length_px <= PictureHeader::maximumLength_px; }

bool isWithin(const PictureHeader::Variant& variant, std::uint64_t fileSize) {
    return isLength(variant.width_px) && isLength(variant.height_px) && variant.byteCount > 0 &&
           std::uint64_t(variant.offset) + variant.byteCount <= fileSize;
}

} // namespace

std::optional<PictureHeader> PictureHeader::parse(std::string_view beginning, std::uint64_t fileSize) {
    std::string_view rest = beginning;
    if (rest.size() < byteCount(1) || !rest.starts_with(signature)) return std::nullopt;
    rest.remove_prefix(signature.size());
    const std::uint32_t width = takeNumber(rest), height = takeNumber(rest), count = takeNumber(rest);
    if (width == 0 || height == 0 || count == 0 || count > maximumSizeCount || beginning.size() < byteCount(count))
        return std::nullopt;

    PictureHeader header{{width / unitsPerPoint, height / unitsPerPoint}, std::vector<Variant>(count)};
    for (Variant& variant : header.variants) {
        variant.width_px = takeNumber(rest);
        variant.height_px = takeNumber(rest);
        variant.offset = takeNumber(rest);
        variant.byteCount = takeNumber(rest);
        if (!isWithin(variant, fileSize)) return std::nullopt;
    }
    return header;
}

std::string PictureHeader::bytes() const {
    std::string bytes(signature);
    appendNumber(bytes, std::uint32_t(std::lround(naturalSize.width * unitsPerPoint)));
    appendNumber(bytes, std::uint32_t(std::lround(naturalSize.height * unitsPerPoint)));
    appendNumber(bytes, std::uint32_t(variants.size()));
    for (const Variant& variant : variants)
        for (const std::uint32_t number : {variant.width_px, variant.height_px, variant.offset, variant.byteCount})
            appendNumber(bytes, number);
    return bytes;
}

} // namespace proupsells::graphics
