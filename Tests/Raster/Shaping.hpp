// Texts shaped by the raster engine, for the tests.
#pragma once

#include <memory>
#include <numeric>
#include <string>
#include <vector>

#include "Backends/Raster/FontCatalog.hpp"
#include "Backends/Raster/RasterShapedText.hpp"
#include "Backends/Raster/RasterTextShaper.hpp"

namespace proupsells::tests {

using ShapedRef = std::shared_ptr<const rasterbackend::RasterShapedText>;

inline const graphics::FontFace* faceOf(const std::string& family, int weight) {
    return &graphics::registerFontFace("Shaping-" + family + std::to_string(weight), family, weight);
}

inline ShapedRef shapedBy(rasterbackend::RasterTextShaper& shaper, const std::vector<graphics::StyledRun>& runs,
                          const std::string& language = "en",
                          geometry::LayoutDirection direction = geometry::LayoutDirection::leftToRight) {
    return std::static_pointer_cast<const rasterbackend::RasterShapedText>(shaper.shape(runs, language, direction));
}

inline ShapedRef shapedBy(rasterbackend::RasterTextShaper& shaper, const std::string& text,
                          const graphics::FontFace* face = nullptr, double size = 100) {
    return shapedBy(shaper, std::vector<graphics::StyledRun>{{text, {.face = face, .size = size}, 0}});
}

inline double widthOf(const graphics::ShapedText& text) {
    return std::accumulate(text.clusters.begin(), text.clusters.end(), 0.0,
                           [](double sum, const graphics::Cluster& cluster) { return sum + cluster.advance; });
}

// What the text's first glyph looks like.
inline const rasterbackend::GlyphShape& firstShape(const ShapedRef& text) { return *text->glyphs.at(0).shape; }

} // namespace proupsells::tests
