#include "Backends/Raster/RasterTextShaper.hpp"

#include "Backends/Raster/ClusterMaker.hpp"
#include "Backends/Raster/PieceShaper.hpp"

namespace proupsells::rasterbackend {

namespace {

using graphics::LineBreak;
using graphics::StyledRun;

// The end of the piece that starts at a cluster: where the direction changes or the paragraph ends, without its line feed.
std::uint32_t endOfPiece(const RasterShapedText& text, std::uint32_t first) {
    std::uint32_t cluster = first;
    const auto belongs = [&](const graphics::Cluster& c) {
        return c.breakAfter != LineBreak::mandatory && c.bidiLevel == text.clusters[first].bidiLevel;
    };
    while (cluster < text.clusters.size() && belongs(text.clusters[cluster])) ++cluster;
    return cluster;
}

} // namespace

struct RasterTextShaper::Parts {
    explicit Parts(FontSources sources) : catalog(std::move(sources)) {}

    FontCatalog catalog;
    ClusterMaker clusterMaker;
    PieceShaper pieceShaper{catalog};
    std::vector<std::uint32_t> unitStarts;
};

RasterTextShaper::RasterTextShaper() : RasterTextShaper(FontSources{}) {}

RasterTextShaper::RasterTextShaper(FontSources sources) : m_parts(std::make_unique<Parts>(std::move(sources))) {}

RasterTextShaper::~RasterTextShaper() = default;

void RasterTextShaper::registerFace(std::string family, int weight, std::filesystem::path file) {
    m_parts->catalog.registerFace(std::move(family), weight, std::move(file));
}

std::shared_ptr<const graphics::ShapedText> RasterTextShaper::shape(std::span<const StyledRun> runs, std::string_view language,
                                                                    geometry::LayoutDirection direction) {
    auto result = std::make_shared<RasterShapedText>();
    result->runs.assign(runs.begin(), runs.end());
    for (const StyledRun& run : runs) {
        const CatalogFace& face = m_parts->catalog.face(run.font.face);
        result->metrics.push_back({face.ascent * pointSize(run), face.descent * pointSize(run)});
    }

    const RunUnits text(runs);
    m_parts->clusterMaker.makeClusters(text, language, result->clusters, m_parts->unitStarts);
    graphics::assignBidiLevels(*result, direction);
    const auto count = std::uint32_t(result->clusters.size());
    result->groupStarts.resize(count);
    result->glyphStarts.resize(count + 1);
    result->glyphs.reserve(count);
    m_parts->pieceShaper.begin(*result, text, m_parts->unitStarts, language);
    for (std::uint32_t first = 0; first < count;) {
        const std::uint32_t end = endOfPiece(*result, first);
        if (end > first) m_parts->pieceShaper.shape(first, end);
        first = end;
        // Line feeds have neither width nor glyphs.
        for (; first < count && result->clusters[first].breakAfter == LineBreak::mandatory; ++first) {
            result->groupStarts[first] = first;
            result->glyphStarts[first] = std::uint32_t(result->glyphs.size());
        }
    }
    result->glyphStarts[count] = std::uint32_t(result->glyphs.size());
    return result;
}

} // namespace proupsells::rasterbackend
