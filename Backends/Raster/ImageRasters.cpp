#include "Backends/Raster/ImageRasters.hpp"

#include <functional>
#include <string_view>

#include "Backends/Raster/Blending.hpp"
#include "Backends/Raster/PictureFile.hpp"
#include "Backends/Raster/Resampling.hpp"
#include "Backends/Raster/TransformedPicture.hpp"
#include "Platform/Commons/DefaultLogger.hpp"
#include "Platform/System/PathText.hpp"

namespace proupsells::rasterbackend {

namespace {

constexpr std::size_t fileCacheBytes = 64 << 20;
// Frames of clips are shown for a moment; they must not push out the files.
constexpr std::size_t bitmapCacheBytes = 16 << 20;

std::shared_ptr<const CoverageMask> coverageOf(const Picture& image) {
    auto mask = std::make_shared<CoverageMask>();
    std::vector<std::uint8_t> coverages(std::size_t(image.width()));
    for (int y = 0; y < image.height(); ++y) {
        const auto* row = image.row(y);
        for (std::size_t x = 0; x < coverages.size(); ++x) coverages[x] = alphaOf(row[x]);
        mask->appendRow(coverages);
    }
    return mask;
}

std::size_t byteCountOf(const ImageRaster& raster) {
    return raster.pixels.byteCount() + (raster.file ? raster.file->byteCount() : 0) +
           (raster.coverage ? raster.coverage->byteCount() : 0) + sizeof(ImageRaster);
}

} // namespace

std::size_t ImageRasters::Key::Hash::operator()(const Key& key) const {
    return key.source ^ (std::size_t(key.width) * 0x9E3779B97F4A7C15u + std::size_t(key.height) * 0xC2B2AE3D27D4EB4Fu +
                         key.isTinted * 2 + key.isInTiles);
}

const std::size_t ImageRasters::maximumByteCount = fileCacheBytes + bitmapCacheBytes;

ImageRasters::ImageRasters(CoverageRasterizer& rasterizer)
    : m_rasterizer(rasterizer), m_files(fileCacheBytes), m_bitmaps(bitmapCacheBytes) {}

const ImageRaster& ImageRasters::image(const graphics::Image& image, graphics::ColorScheme scheme, PixelSize size,
                                       bool isTransformed) {
    const std::filesystem::path& file = image.fileFor(scheme);
    const bool isTinted = image.renderingMode == graphics::RenderingMode::tinted;
    // All pixels of the others are looked at.
    const bool isInTiles = !isTinted && !isTransformed;
    const Key key{std::hash<std::basic_string_view<std::filesystem::path::value_type>>()(file.native()), size.width, size.height,
                  isTinted, isInTiles};
    const Entry* known = m_files.find(key);
    if (known && known->file == file) {
        if (known->raster.file && known->firstPainting != m_painting) known->raster.file->keep();
        return known->raster;
    }
    if (!known) return insert(m_files, key, {load(file, size, isTinted, isInTiles), file, nullptr, m_painting});
    // Another file of the same hash.
    m_unshared = load(file, size, isTinted, isInTiles);
    return m_unshared;
}

void ImageRasters::prepare(const ImageRaster& raster, const PixelRect& part) {
    FilePicture& picture = *raster.file;
    picture.keep();
    std::vector<int> tiles;
    picture.tiles().forEachTouched(part, [&](int index, const PixelRect&) {
        if (!picture.isKept(index)) tiles.push_back(index);
    });
    if (!tiles.empty()) m_preparer.prepare(raster.file, std::move(tiles));
}

void ImageRasters::report(const std::filesystem::path& file) {
    if (m_reportedFiles.insert(file.native()).second)
        commons::DefaultLogger::shared().log(commons::DefaultLogger::errorSeverity,
                                             "The image " + system::textOf(file) + " cannot be read", "ImageRasters::report");
}

ImageRaster ImageRasters::load(const std::filesystem::path& file, PixelSize size, bool isTinted, bool isInTiles) {
    ImageRaster raster;
    if (isInTiles) raster.file = FilePicture::open(file, size);
    if (raster.file) {
        raster.isOpaque = raster.file->isOpaque();
        return raster;
    }
    raster.pixels = readPicture(file, size.width, size.height);
    if (raster.pixels.isNull()) {
        report(file);
        return raster;
    }
    if (isTinted)
        raster.coverage = coverageOf(raster.pixels);
    else
        raster.isOpaque = raster.pixels.isOpaque();
    return raster;
}

const ImageRaster& ImageRasters::bitmap(const std::shared_ptr<const graphics::Bitmap>& bitmap, PixelSize size) {
    const Key key{std::hash<const void*>()(bitmap.get()), size.width, size.height, false, false};
    const Entry* known = m_bitmaps.find(key);
    if (known && known->bitmap == bitmap) return known->raster;

    ImageRaster raster;
    const bool isWhole = bitmap->width > 0 && bitmap->height > 0 &&
                         bitmap->pixels.size() == std::size_t(bitmap->width) * std::size_t(bitmap->height);
    if (isWhole && !size.isEmpty()) {
        const Picture original({bitmap, bitmap->pixels.data()}, bitmap->width, bitmap->height);
        const bool fits = original.width() == size.width && original.height() == size.height;
        raster.pixels = fits ? original : resampled(original, size.width, size.height);
        raster.isOpaque = raster.pixels.isOpaque();
    }
    if (!known) return insert(m_bitmaps, key, {std::move(raster), {}, bitmap});
    m_unshared = std::move(raster);
    return m_unshared;
}

const ImageRaster& ImageRasters::insert(Cache& cache, const Key& key, Entry entry) {
    const std::size_t byteCount = byteCountOf(entry.raster) + (entry.bitmap ? entry.bitmap->pixels.size() * sizeof(Pixel) : 0);
    return cache.insert(key, std::move(entry), byteCount).raster;
}

ImageRaster ImageRasters::transformed(const ImageRaster& raster, const geometry::Rect& frame, const geometry::Transform& toPixels,
                                      const PixelRect& window) {
    const PixelRect pixels = touchedPixels(toPixels.apply(frame)).intersection(window);
    if (raster.pixels.isNull() || pixels.isEmpty()) return {};
    ImageRaster result;
    result.x = pixels.left;
    result.y = pixels.top;
    result.pixels = Picture(pixels.width(), pixels.height());
    paintTransformed(result.pixels, raster.pixels, frame,
                     toPixels.then(geometry::Transform::translation(-pixels.left, -pixels.top)), m_rasterizer);
    if (raster.coverage) result.coverage = coverageOf(result.pixels);
    return result;
}

} // namespace proupsells::rasterbackend
