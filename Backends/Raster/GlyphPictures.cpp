#include "Backends/Raster/GlyphPictures.hpp"

#include <ft2build.h>
#include FT_FREETYPE_H

namespace proupsells::rasterbackend {

namespace {

// Emoji fonts hold pictures of about this size.
constexpr int pictureSize_px = 136;
// Nothing that belongs into a line of text is larger.
constexpr unsigned largestPicture_px = 4 * pictureSize_px;

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

struct GlyphPictures::Face {
    FT_Library library = nullptr;
    FT_Face face = nullptr; // null where FreeType cannot read the font

    Face(std::span<const char> file, int index) {
        if (FT_Init_FreeType(&library) != 0) return;
        const auto* bytes = reinterpret_cast<const FT_Byte*>(file.data());
        if (FT_New_Memory_Face(library, bytes, FT_Long(file.size()), index, &face) != 0) face = nullptr;
    }
    ~Face() {
        if (library) FT_Done_FreeType(library); // and its face
    }
};

GlyphPictures::GlyphPictures(std::span<const char> file, int index) : m_file(file), m_index(index) {}
GlyphPictures::~GlyphPictures() = default;

GlyphShape GlyphPictures::shape(std::uint32_t glyph) {
    if (!m_face) m_face = std::make_unique<Face>(m_file, m_index);
    const FT_Face face = m_face->face;
    if (!face || !selectPictureSize(face)) return {};
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
