// The shapes of one installed font's glyphs.
#pragma once

#include <QImage>
#include <memory>
#include <unordered_map>

#include "Platform/Geometry/Path.hpp"

class QRawFont;

namespace proupsells::qtbackend {

// A glyph is a filled outline or, in an emoji font, a picture. Lengths are in ems, from the pen's place on the baseline, y
// downwards.
struct GlyphShape {
    geometry::Path outline;
    QImage picture; // null for an outline
    geometry::Rect pictureFrame;
};

// Holds no object of Qt's font system, so that shaped texts may live longer than the application object.
class GlyphTable {
public:
    explicit GlyphTable(const QRawFont& font);

    // The shape of a glyph of the table's font. The address is good for the table's life.
    const GlyphShape& shape(const QRawFont& font, quint32 glyph);

private:
    bool m_hasPictures;
    std::unordered_map<quint32, GlyphShape> m_shapes;
};

} // namespace proupsells::qtbackend
