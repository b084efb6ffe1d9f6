#include "Backends/Qt/GlyphTable.hpp"

#include <QGlyphRun>
#include <QPainter>
#include <QPainterPath>
#include <QRawFont>
#include <cmath>

namespace proupsells::qtbackend {

namespace {

// Emoji fonts hold pictures of about this size.
constexpr int pictureSize_px = 136;

bool hasPictures(const QRawFont& font) {
    for (const char* table : {"CBDT", "sbix", "COLR", "SVG "})
        if (!font.fontTable(table).isEmpty()) return true;
    return false;
}

geometry::Path outlineOf(const QPainterPath& path, double unitsPerEm) {
    const auto point = [&](const QPainterPath::Element& element) -> geometry::Point {
        return {element.x / unitsPerEm, element.y / unitsPerEm};
    };
    geometry::Path outline;
    for (int index = 0; index < path.elementCount(); ++index) {
        const QPainterPath::Element element = path.elementAt(index);
        switch (element.type) {
        case QPainterPath::MoveToElement: outline.moveTo(point(element)); break;
        case QPainterPath::LineToElement: outline.lineTo(point(element)); break;
        case QPainterPath::CurveToElement:
            outline.cubicTo(point(element), point(path.elementAt(index + 1)), point(path.elementAt(index + 2)));
            index += 2;
            break;
        case QPainterPath::CurveToDataElement: break;
        }
    }
    return outline;
}

GlyphShape pictureOf(QRawFont font, quint32 glyph) {
    font.setPixelSize(pictureSize_px);
    const QRectF box = font.boundingRect(glyph).adjusted(-2, -2, 2, 2);
    const QRect pixels = box.toAlignedRect();
    if (pixels.width() <= 0 || pixels.width() > 4 * pictureSize_px || pixels.height() <= 0 || pixels.height() > 4 * pictureSize_px)
        return {};

    QImage picture(pixels.size(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    QGlyphRun run;
    run.setRawFont(font);
    run.setGlyphIndexes({glyph});
    run.setPositions({QPointF(0, 0)});
    painter.drawGlyphRun(-pixels.topLeft(), run);
    painter.end();
    const double em = pictureSize_px;
    return {{}, picture, {{pixels.x() / em, pixels.y() / em}, {pixels.width() / em, pixels.height() / em}}};
}

bool isPicture(const GlyphShape& shape) {
    for (int y = 0; y < shape.picture.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(shape.picture.constScanLine(y));
        for (int x = 0; x < shape.picture.width(); ++x)
            if (qRed(row[x]) != 0 || qGreen(row[x]) != 0 || qBlue(row[x]) != 0) return true;
    }
    return false;
}

} // namespace

GlyphTable::GlyphTable(const QRawFont& font) : m_hasPictures(hasPictures(font)) {}

const GlyphShape& GlyphTable::shape(const QRawFont& font, quint32 glyph) {
    const auto found = m_shapes.find(glyph);
    if (found != m_shapes.end()) return found->second;
    GlyphShape shape;
    if (m_hasPictures) shape = pictureOf(font, glyph);
    // A font with pictures has plain glyphs too; they come out all black and follow the text's colour.
    if (!isPicture(shape)) shape = {outlineOf(font.pathForGlyph(glyph), font.pixelSize()), {}, {}};
    return m_shapes.emplace(glyph, std::move(shape)).first->second;
}

} // namespace proupsells::qtbackend
