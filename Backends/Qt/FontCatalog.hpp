// The installed fonts that stand for the registered faces.
#pragma once

#include <QFont>
#include <QRawFont>
#include <memory>
#include <unordered_map>
#include <utility>
#include <vector>

#include "Backends/Qt/GlyphTable.hpp"
#include "Platform/Graphics/Font.hpp"

namespace proupsells::qtbackend {

// Texts are shaped at one large size, without hinting, and scaled afterwards: so their widths grow evenly with the font's size
// and do not depend on the pixels.
inline constexpr double designSize_px = 1024;

struct InstalledFace {
    QFont font;         // of the design size
    double ascent = 0;  // ems
    double descent = 0; // ems
};

class FontCatalog {
public:
    // The face's installed font; null asks for the default face. A family that is not installed is reported once and
    // replaced by the system's sans-serif font.
    const InstalledFace& face(const graphics::FontFace* face);

    // The glyphs of a font that shaping came up with. The address is good for the catalog's life.
    const std::shared_ptr<GlyphTable>& glyphs(const QRawFont& font);

private:
    InstalledFace find(const QString& family, int weight);

    std::unordered_map<const graphics::FontFace*, InstalledFace> m_faces;
    std::vector<std::unique_ptr<std::pair<QRawFont, std::shared_ptr<GlyphTable>>>> m_glyphs;
    std::vector<QString> m_missingFamilies;
};

} // namespace proupsells::qtbackend
