#include "Backends/Raster/GlyphShapeReader.hpp"

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_OUTLINE_H

namespace proupsells::rasterbackend {

namespace {

using geometry::Point;

// Emoji fonts hold pictures of about this size.
constexpr int pictureSize_px = 136;
// Nothing that belongs into a line of text is larger.
constexpr unsigned largestPicture_px = 4 * pictureSize_px;

// Builds a path in ems from an outline in the font's own units.
struct PathBuilder {
    geometry::Path path;
    double unitsPerEm;
    Point last{};

    Point point(const FT_Vector* v) const { return {double(v->x) / unitsPerEm, -double(v->y) / unitsPerEm}; }

    static int moveTo(const FT_Vector* to, void* builder) {
        auto& self = *static_cast<PathBuilder*>(builder);
        if (!self.path.isEmpty()) self.path.close();
        self.path.moveTo(self.last = self.point(to));
        return 0;
    }
    static int lineTo(const FT_Vector* to, void* builder) {
        auto& self = *static_cast<PathBuilder*>(builder);
        self.path.lineTo(self.last = self.point(to));
        return 0;
    }
    static int conicTo(const FT_Vector* control, const FT_Vector* to, void* builder) {
        auto& self = *static_cast<PathBuilder*>(builder);
        const Point middle = self.point(control), end = self.point(to);
        const auto towards = [&](Point from) {
            return Point{from.x + (middle.x - from.x) * 2 / 3, from.y + (middle.y - from.y) * 2 / 3};
        };
        self.path.cubicTo(towards(self.last), towards(end), end);
        self.last = end;
        return 0;
    }
    static int cubicTo(const FT_Vector* control1, const FT_Vector* control2, const FT_Vector* to, void* builder) {
        auto& self = *static_cast<PathBuilder*>(builder);
        self.path.cubicTo(self.point(control1), self.point(control2), self.last = self.point(to));
        return 0;
    }
};

// The smallest size that need not be enlarged, or the largest there is.
int bestFixedSize(FT_Face face) {
    int best = 0;
    for (int index = 1; index < face->num_fixed_sizes; ++index) {
        const FT_Pos size = face->available_sizes[index].y_ppem, bestSize = face->available_sizes[best].y_ppem;
        const bool isNearer = size < bestSize ? size >= pictureSize_px * 64 : bestSize < pictureSize_px * 64;
        if (isNearer) best = index;
    }
    return best;
}

bool selectPictureSize(FT_Face face) {
    if (FT_HAS_FIXED_SIZES(face)) return FT_Select_Size(face, bestFixedSize(face)) == 0;
    return FT_Set_Pixel_Sizes(face, 0, pictureSize_px) == 0;
}

// FreeType's colours are premultiplied already.
Picture pictureOf(const FT_Bitmap& bitmap) {
    Picture picture(int(bitmap.width), int(bitmap.rows));
    for (int y = 0; y < picture.height(); ++y) {
        const unsigned char* source = bitmap.buffer + std::ptrdiff_t(y) * bitmap.pitch;
        Pixel* row = picture.row(y);
        for (int x = 0; x < picture.width(); ++x, source += 4)
            row[x] = Pixel(source[3]) << 24 | Pixel(source[2]) << 16 | Pixel(source[1]) << 8 | Pixel(source[0]);
    }
    return picture;
}

} // namespace

geometry::Path readOutline(FT_Face face, std::uint32_t glyph) {
    if (FT_Load_Glyph(face, glyph, FT_LOAD_NO_SCALE | FT_LOAD_NO_BITMAP) != 0) return {};
    if (face->glyph->format != FT_GLYPH_FORMAT_OUTLINE) return {};
    PathBuilder builder{{}, double(face->units_per_EM)};
    const FT_Outline_Funcs funcs{PathBuilder::moveTo, PathBuilder::lineTo, PathBuilder::conicTo, PathBuilder::cubicTo, 0, 0};
    if (FT_Outline_Decompose(&face->glyph->outline, &funcs, &builder) != 0) return {};
    if (!builder.path.isEmpty()) builder.path.close();
    return std::move(builder.path);
}

GlyphShape readPicture(FT_Face face, std::uint32_t glyph) {
    if (!selectPictureSize(face)) return {};
    if (FT_Load_Glyph(face, glyph, FT_LOAD_COLOR | FT_LOAD_RENDER | FT_LOAD_NO_HINTING) != 0) return {};
    const FT_GlyphSlot slot = face->glyph;
    const bool isColoured = slot->bitmap.pixel_mode == FT_PIXEL_MODE_BGRA;
    if (!isColoured || slot->bitmap.width > largestPicture_px || slot->bitmap.rows > largestPicture_px) return {};
    const double em = face->size->metrics.y_ppem;
    return {{},
            pictureOf(slot->bitmap),
            {{slot->bitmap_left / em, -slot->bitmap_top / em}, {slot->bitmap.width / em, slot->bitmap.rows / em}}};
}

} // namespace proupsells::rasterbackend
