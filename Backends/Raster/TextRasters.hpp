// Fragments of shaped text as masks, made once for each size and place between pixels.
#pragma once

#include <array>
#include <memory>
#include <unordered_map>

#include "Backends/Raster/Blending.hpp"
#include "Backends/Raster/CoverageRasterizer.hpp"
#include "Backends/Raster/LruCache.hpp"
#include "Backends/Raster/Picture.hpp"
#include "Backends/Raster/PlacedMask.hpp"
#include "Backends/Raster/RasterShapedText.hpp"
#include "Backends/Raster/RasterTextShaper.hpp"

namespace proupsells::rasterbackend {

// A mask to be painted in the text's colour; or, where there is emoji, the finished picture.
struct TextRaster {
    PlacedMask mask;
    Picture picture; // stands at the mask's place
};

// Neighbouring clusters of one run and one direction.
struct FragmentRange {
    std::uint32_t first = 0;
    std::uint32_t end = 0;

    bool operator==(const FragmentRange&) const = default;
};

class TextRasters {
public:
    // The rasterizer is lent, and used in no two calls at once.
    explicit TextRasters(CoverageRasterizer& rasterizer);

    // `baseline` is the fragment's left end, in the lengths that `toPixels` maps. Upright text stands on whole rows of pixels.
    TextRaster raster(const RasterShapedText& text, FragmentRange range, geometry::Point baseline,
                      const geometry::Transform& toPixels, Pixel color);

    // The text itself, or, where another shaper made it, our glyphs on its clusters' places.
    std::shared_ptr<const RasterShapedText> withGlyphs(const std::shared_ptr<const graphics::ShapedText>& text);

private:
    struct Key {
        std::uint64_t text;
        FragmentRange range;
        std::array<double, 4> linear;
        int phaseX, phaseY; // quarters of a pixel
        Pixel color;        // of a picture

        bool operator==(const Key&) const = default;
        struct Hash {
            std::size_t operator()(const Key& key) const;
        };
    };
    struct Entry {
        std::shared_ptr<const CoverageMask> mask;
        Picture picture;
        int x, y; // from the baseline's pixel
    };
    struct ForeignText {
        std::weak_ptr<const graphics::ShapedText> original;
        std::shared_ptr<const RasterShapedText> ours;
    };

    Entry make(const RasterShapedText& text, FragmentRange range, const geometry::Transform& toPixels, Pixel color);
    std::shared_ptr<const RasterShapedText> translate(const graphics::ShapedText& text);

    CoverageRasterizer& m_rasterizer;
    LruCache<Key, Entry> m_entries;
    std::unordered_map<const graphics::ShapedText*, ForeignText> m_foreignTexts;
    RasterTextShaper m_shaper;
};

} // namespace proupsells::rasterbackend
