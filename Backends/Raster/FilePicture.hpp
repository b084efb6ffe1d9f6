// A picture of a file, decompressed where it is painted.
#pragma once

#include <filesystem>
#include <memory>
#include <mutex>
#include <optional>
#include <unordered_map>
#include <vector>

#include "Backends/Raster/Picture.hpp"
#include "Backends/Raster/PictureCodec.hpp"
#include "Platform/System/MappedFile.hpp"

namespace proupsells::rasterbackend {

// A screen that is seen for the first time is painted tile by tile, and nothing of it is kept: most of its pictures are not painted
// again. What is painted again stays in memory from then on, as far as it is painted. Several threads may read it.
class FilePicture {
public:
    // Null where the file has no pixels of exactly this size.
    static std::shared_ptr<FilePicture> open(const std::filesystem::path& file, PixelSize size);

    const std::filesystem::path& path() const { return m_file; }
    const TileGrid& tiles() const { return m_tiles; }
    bool isOpaque() const { return m_isOpaque; }
    // Memory for the whole of it.
    std::size_t byteCount() const;

    // From now on tiles are kept.
    void keep();
    // Whether a tile is in memory, to stay.
    bool isKept(int tile) const;

    // Gives tiles one after another. Has the file open meanwhile at most: while nothing is read, its bytes take no memory.
    class Reader {
    public:
        explicit Reader(FilePicture& picture) : m_picture(picture) {}

        // Null where the file's bytes are broken. One that is not kept is forgotten at once, unless it is `wantedAgain` soon.
        Picture tile(int index, bool wantedAgain);
        // The whole picture, which is written where it shows `part`: whole rows are painted faster than tiles. Null where the
        // picture is not kept or the file's bytes are broken.
        Picture kept(const PixelRect& part);

    private:
        bool decompressToKept(int index);
        bool decompress(int index, Pixel* to);

        FilePicture& m_picture;
        std::optional<system::MappedFile> m_mapped;
        std::optional<CompressedPicture> m_compressed;
    };

private:
    FilePicture(std::filesystem::path file, const CompressedPicture& compressed)
        : m_file(std::move(file)), m_tiles(compressed.tiles()), m_isOpaque(compressed.isOpaque()) {}

    bool keepsTiles() const;
    Picture keptPart(const PixelRect& part) const;

    std::filesystem::path m_file;
    TileGrid m_tiles;
    bool m_isOpaque;
    mutable std::mutex m_mutex;                     // guards what follows
    std::shared_ptr<Pixel[]> m_kept;                // the whole picture; null until tiles are kept
    std::vector<bool> m_isThere;                    // of each tile that is kept, whether it is written
    std::unordered_map<int, Picture> m_wantedAgain; // tiles by their index, while tiles are not kept
};

} // namespace proupsells::rasterbackend
