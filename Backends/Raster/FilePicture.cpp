#include "Backends/Raster/FilePicture.hpp"

#include <algorithm>

#include "Backends/Raster/PictureFile.hpp"

namespace proupsells::rasterbackend {

std::shared_ptr<FilePicture> FilePicture::open(const std::filesystem::path& file, PixelSize size) {
    const system::MappedFile mapped(file);
    const auto compressed = compressedPicture(mapped.bytes(), size);
    if (!compressed) return nullptr;
    std::shared_ptr<FilePicture> picture(new FilePicture(file, *compressed));
    // There is little to be saved, and icons are painted often.
    if (picture->m_tiles.count() == 1) picture->keep();
    return picture;
}

std::size_t FilePicture::byteCount() const {
    return std::size_t(m_tiles.picture.width) * std::size_t(m_tiles.picture.height) * sizeof(Pixel);
}

bool FilePicture::isKept(int tile) const {
    const std::lock_guard lock(m_mutex);
    return m_kept && m_isThere[std::size_t(tile)];
}

bool FilePicture::keepsTiles() const {
    const std::lock_guard lock(m_mutex);
    return m_kept != nullptr;
}

void FilePicture::keep() {
    const std::lock_guard lock(m_mutex);
    if (m_kept) return;
    m_kept = std::make_shared_for_overwrite<Pixel[]>(byteCount() / sizeof(Pixel));
    m_isThere.assign(std::size_t(m_tiles.count()), false);
    m_wantedAgain.clear();
}

Picture FilePicture::keptPart(const PixelRect& part) const {
    const int pixelsPerRow = m_tiles.picture.width;
    const std::shared_ptr<Pixel[]> first(m_kept, m_kept.get() + std::ptrdiff_t(part.top) * pixelsPerRow + part.left);
    return Picture(first, part.width(), part.height(), pixelsPerRow);
}

Picture FilePicture::Reader::tile(int index, bool wantedAgain) {
    FilePicture& picture = m_picture;
    const std::lock_guard lock(picture.m_mutex);
    const PixelRect rect = picture.m_tiles.rect(index);
    if (picture.m_kept) {
        if (!picture.m_isThere[std::size_t(index)] && !decompressToKept(index)) return {};
        picture.m_isThere[std::size_t(index)] = true;
        return picture.keptPart(rect);
    }
    Picture tile;
    if (auto known = picture.m_wantedAgain.extract(index)) {
        tile = std::move(known.mapped());
    } else {
        tile = Picture::unwritten(rect.width(), rect.height());
        if (!decompress(index, tile.row(0))) return {};
    }
    if (wantedAgain) picture.m_wantedAgain.emplace(index, tile);
    return tile;
}

Picture FilePicture::Reader::kept(const PixelRect& part) {
    if (!m_picture.keepsTiles()) return {};
    bool isThere = true;
    m_picture.m_tiles.forEachTouched(part, [&](int index, const PixelRect&) { isThere = isThere && !tile(index, false).isNull(); });
    const PixelSize size = m_picture.m_tiles.picture;
    return isThere ? m_picture.keptPart({0, 0, size.width, size.height}) : Picture();
}

bool FilePicture::Reader::decompressToKept(int index) {
    const PixelRect rect = m_picture.m_tiles.rect(index);
    Picture place = m_picture.keptPart(rect);
    if (rect.width() == m_picture.m_tiles.picture.width) return decompress(index, place.row(0));
    Picture tile = Picture::unwritten(rect.width(), rect.height());
    if (!decompress(index, tile.row(0))) return false;
    for (int y = 0; y < rect.height(); ++y) std::copy_n(tile.row(y), rect.width(), place.row(y));
    return true;
}

// Another file may stand there by now.
bool FilePicture::Reader::decompress(int index, Pixel* to) {
    if (!m_mapped) {
        m_mapped.emplace(m_picture.m_file);
        m_compressed = compressedPicture(m_mapped->bytes(), m_picture.m_tiles.picture);
    }
    return m_compressed && m_compressed->tiles() == m_picture.m_tiles && m_compressed->decompress(index, to);
}

} // namespace proupsells::rasterbackend
