// Pictures at the sizes in pixels at which they are shown.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <unordered_set>

#include "Backends/Raster/CoverageMask.hpp"
#include "Backends/Raster/CoverageRasterizer.hpp"
#include "Backends/Raster/FilePicture.hpp"
#include "Backends/Raster/LruCache.hpp"
#include "Backends/Raster/Picture.hpp"
#include "Backends/Raster/PicturePreparer.hpp"
#include "Backends/Raster/PixelRect.hpp"
#include "Platform/Geometry/Transform.hpp"
#include "Platform/Graphics/DisplayList.hpp"

namespace proupsells::rasterbackend {

struct ImageRaster {
    Picture pixels;                    // null when the picture cannot be read, and where `file` has them
    std::shared_ptr<FilePicture> file; // null when the picture was made for its size
    bool isOpaque = false;
    std::shared_ptr<const CoverageMask> coverage; // of a tinted picture: where the tint goes
    int x = 0, y = 0;                             // where it stands, of one that was transformed
};

class ImageRasters {
public:
    // The rasterizer is lent, and used in no two calls at once.
    explicit ImageRasters(CoverageRasterizer& rasterizer);

    // A picture that is asked for again after a call is kept in memory.
    void endPainting() { ++m_painting; }
    // A file that cannot be read is reported once and has null pixels. Good until the next call.
    const ImageRaster& image(const graphics::Image& image, graphics::ColorScheme scheme, PixelSize size, bool isTransformed);
    // Shares the bitmap's pixels where they need no scaling. Good until the next call, as long as the bitmap lives.
    const ImageRaster& bitmap(const std::shared_ptr<const graphics::Bitmap>& bitmap, PixelSize size);

    // Keeps the tiles of a raster that has a file, and reads them beside the main thread.
    void prepare(const ImageRaster& raster, const PixelRect& part);
    // Until all that is to be prepared is there.
    void finishPreparing() { m_preparer.wait(); }
    // Pixels in memory, or that have a place there; at most maximumByteCount, and one picture more where that is larger.
    std::size_t byteCount() const { return m_files.byteCount() + m_bitmaps.byteCount(); }
    static const std::size_t maximumByteCount;

    // Says once that a file cannot be read.
    void report(const std::filesystem::path& file);

    // Turned, or scaled by a passing animation, of a raster that `isTransformed`: the picture that covers `frame`, as it is mapped
    // to pixels, inside of `window`.
    ImageRaster transformed(const ImageRaster& raster, const geometry::Rect& frame, const geometry::Transform& toPixels,
                            const PixelRect& window);

private:
    struct Key {
        std::size_t source; // hash of a file name, or an address
        int width, height;
        bool isTinted;
        bool isInTiles;

        bool operator==(const Key&) const = default;
        struct Hash {
            std::size_t operator()(const Key& key) const;
        };
    };
    struct Entry {
        ImageRaster raster;
        std::filesystem::path file;
        std::shared_ptr<const graphics::Bitmap> bitmap; // kept so that its address stays its own
        std::uint64_t firstPainting = 0;
    };

    ImageRaster load(const std::filesystem::path& file, PixelSize size, bool isTinted, bool isInTiles);
    using Cache = LruCache<Key, Entry>;
    static const ImageRaster& insert(Cache& cache, const Key& key, Entry entry);

    CoverageRasterizer& m_rasterizer;
    Cache m_files;
    Cache m_bitmaps;
    std::unordered_set<std::filesystem::path::string_type> m_reportedFiles;
    ImageRaster m_unshared;
    std::uint64_t m_painting = 0;
    PicturePreparer m_preparer;
};

} // namespace proupsells::rasterbackend
