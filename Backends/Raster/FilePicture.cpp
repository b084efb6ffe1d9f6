#include "Backends/Raster/FilePicture.hpp"

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

void FilePicture::keep() {
    const std::lock_guard lock(m_mutex);
    if (m_kept) return;
    m_kept = std::make_shared_for_overwrite<Pixel[]>(byteCount() / sizeof(Pixel));
    m_isThere.assign(std::size_t(m_tiles.count()), false);
    m_wantedAgain.clear();
}

Picture FilePicture::Reader::tile(int index, bool wantedAgain) {
    FilePicture& picture = m_picture;
    const std::lock_guard lock(picture.m_mutex);
    const PixelRect rect = picture.m_tiles.rect(index);
    if (picture.m_kept) {
        Pixel* const pixels = picture.m_kept.get() + picture.m_tiles.pixelsBefore(index);
        if (!picture.m_isThere[std::size_t(index)] && !decompress(index, pixels)) return {};
        picture.m_isThere[std::size_t(index)] = true;
        return Picture({picture.m_kept, pixels}, rect.width(), rect.height());
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

// Another file may stand there by now.
bool FilePicture::Reader::decompress(int index, Pixel* to) {
    if (!m_mapped) {
        m_mapped.emplace(m_picture.m_file);
        m_compressed = compressedPicture(m_mapped->bytes(), m_picture.m_tiles.picture);
    }
    return m_compressed && m_compressed->tiles() == m_picture.m_tiles && m_compressed->decompress(index, to);
}

} // namespace proupsells::rasterbackend
